// SPDX-License-Identifier: MIT
/// @file
/// Helper functions of CList and CMap. Specialize them for types that the general version
/// does not suit.
#pragma once

#include "afx/CArchive.h"
#include "afx/CDumpContext.h"
#include "afx/CString.h"

#include <algorithm>
#include <climits>
#include <type_traits>

namespace afx {
/// Refuses a bad index, position or empty collection in every build.
inline void requireArgument(bool valid) {
    if (!valid) {
        AfxThrowInvalidArgException();
    }
}

/// Hash value of a string.
UINT HashString(LPCSTR text) noexcept;
UINT HashString(LPCWSTR text) noexcept;
} // namespace afx

/// Compares elements with their operator ==.
template <class TYPE, class ARG_TYPE>
BOOL AFXAPI CompareElements(const TYPE* pElement1, const ARG_TYPE* pElement2) {
    return *pElement1 == *pElement2;
}

/// Writes the elements to a dump. Does nothing unless specialized.
template <class TYPE>
void AFXAPI DumpElements(CDumpContext& dc, const TYPE* pElements, INT_PTR nCount) {
    UNUSED_ALWAYS(dc);
    UNUSED_ALWAYS(pElements);
    UNUSED_ALWAYS(nCount);
}

/// Stores or loads the bytes of the elements as they stand in memory: specialize it for types with
/// pointers.
template <class TYPE>
void AFXAPI SerializeElements(CArchive& ar, TYPE* pElements, INT_PTR nCount) {
    const INT_PTR largestStep = INT_MAX / static_cast<INT_PTR>(sizeof(TYPE));
    for (INT_PTR done = 0; done < nCount;) {
        const INT_PTR step = (std::min)(nCount - done, largestStep);
        const UINT bytes = static_cast<UINT>(step * static_cast<INT_PTR>(sizeof(TYPE)));
        if (ar.IsStoring()) {
            ar.Write(pElements + done, static_cast<INT>(bytes));
        } else if (ar.Read(pElements + done, bytes) != bytes) {
            AfxThrowArchiveException(CArchiveException::endOfFile);
        }
        done += step;
    }
}

template <>
void AFXAPI SerializeElements<CString>(CArchive& ar, CString* pElements, INT_PTR nCount);

/// Hash value of a map's key. Strings are hashed by their characters, numbers and pointers by
/// their value without the four lowest bits.
template <class ARG_KEY>
UINT AFXAPI HashKey(ARG_KEY key) {
    using Key = std::remove_cv_t<std::remove_reference_t<ARG_KEY>>;
    if constexpr (std::is_convertible_v<Key, LPCSTR>) {
        return afx::HashString(static_cast<LPCSTR>(key));
    } else if constexpr (std::is_convertible_v<Key, LPCWSTR>) {
        return afx::HashString(static_cast<LPCWSTR>(key));
    } else if constexpr (std::is_pointer_v<Key>) {
        return static_cast<UINT>(reinterpret_cast<DWORD_PTR>(key) >> 4);
    } else {
        return static_cast<UINT>(static_cast<DWORD_PTR>(key) >> 4);
    }
}
