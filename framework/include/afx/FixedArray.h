// SPDX-License-Identifier: MIT
/// @file
/// The common interface of the arrays of one fixed element type.
#pragma once

#include "afx/CArray.h"

namespace afx {

/// How an array or list of fixed type shows an element that may not be changed: a pointer as a
/// pointer to const, which is what the interface promises, anything else as a const element.
template <class TYPE>
struct ConstView {
    using Element = const TYPE;
    using Returned = const TYPE;
};
template <class TARGET>
struct ConstView<TARGET*> {
    using Element = const TARGET*;
    using Returned = const TARGET*;
};
template <>
struct ConstView<CString> {
    using Element = const CString;
    using Returned = const CString&;
};

/// An array like CArray whose elements are given back by value.
/// @tparam DERIVED the class that derives from this one.
template <class DERIVED, class TYPE, class ARG_TYPE>
class FixedArray : public CObject {
public:
    using Value = std::conditional_t<std::is_scalar_v<TYPE>, TYPE, const TYPE&>;

    INT_PTR GetSize() const { return m_array.GetSize(); }
    INT_PTR GetCount() const { return m_array.GetCount(); }
    BOOL IsEmpty() const { return m_array.IsEmpty(); }
    INT_PTR GetUpperBound() const { return m_array.GetUpperBound(); }
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1) { m_array.SetSize(nNewSize, nGrowBy); }
    void FreeExtra() { m_array.FreeExtra(); }
    void RemoveAll() { m_array.RemoveAll(); }

    Value GetAt(INT_PTR nIndex) const { return m_array.GetAt(nIndex); }
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement) { m_array.SetAt(nIndex, newElement); }
    TYPE& ElementAt(INT_PTR nIndex) { return m_array.ElementAt(nIndex); }
    Value operator[](INT_PTR nIndex) const { return m_array.GetAt(nIndex); }
    TYPE& operator[](INT_PTR nIndex) { return m_array.ElementAt(nIndex); }
    typename ConstView<TYPE>::Element* GetData() const {
        return const_cast<typename ConstView<TYPE>::Element*>(m_array.GetData());
    }
    TYPE* GetData() { return m_array.GetData(); }

    void SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement) { m_array.SetAtGrow(nIndex, newElement); }
    INT_PTR Add(ARG_TYPE newElement) { return m_array.Add(newElement); }
    INT_PTR Append(const DERIVED& src) { return m_array.Append(elementsOf(src)); }
    void Copy(const DERIVED& src) { m_array.Copy(elementsOf(src)); }

    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount = 1) {
        m_array.InsertAt(nIndex, newElement, nCount);
    }
    void InsertAt(INT_PTR nStartIndex, DERIVED* pNewArray) {
        requireArgument(pNewArray != nullptr);
        m_array.InsertAt(nStartIndex, &static_cast<FixedArray*>(pNewArray)->m_array);
    }
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1) { m_array.RemoveAt(nIndex, nCount); }

    void Dump(CDumpContext& dc) const override { m_array.Dump(dc); }

private:
    friend DERIVED;
    using Elements = CArray<TYPE, ARG_TYPE>;

    FixedArray() = default;
    static const Elements& elementsOf(const FixedArray& array) { return array.m_array; }

    Elements m_array;
};

} // namespace afx
