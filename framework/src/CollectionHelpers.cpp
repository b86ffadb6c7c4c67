// SPDX-License-Identifier: MIT
#include "afx/CollectionHelpers.h"

namespace afx {

UINT HashString(LPCSTR text) noexcept {
    UINT value = 0;
    for (; text != nullptr && *text != '\0'; ++text) {
        value = value * 33 + static_cast<BYTE>(*text);
    }
    return value;
}

UINT HashString(LPCWSTR text) noexcept {
    UINT value = 0;
    for (; text != nullptr && *text != L'\0'; ++text) {
        value = value * 33 + *text;
    }
    return value;
}

} // namespace afx

template <>
void AFXAPI SerializeElements<CString>(CArchive& ar, CString* pElements, INT_PTR nCount) {
    for (INT_PTR index = 0; index < nCount; ++index) {
        if (ar.IsStoring()) {
            ar << pElements[index];
        } else {
            ar >> pElements[index];
        }
    }
}
