// SPDX-License-Identifier: MIT
/// @file
/// CArray: an array that grows.
#pragma once

#include "afx/CObject.h"
#include "afx/CollectionHelpers.h"

#include <cstdint>
#include <memory>
#include <new>
#include <utility>

/// Elements one after the other in memory, counted from 0.
///
/// TYPE needs a default constructor and assignment. Elements that come into being by growing are
/// value-initialized. A bad index, also a negative size, throws CInvalidArgException in every
/// build; too large a size throws CMemoryException.
///
/// @tparam ARG_TYPE type by which elements are passed, often a constant reference.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray : public CObject {
public:
    CArray() = default;

    INT_PTR GetSize() const { return m_size; }
    INT_PTR GetCount() const { return m_size; }
    BOOL IsEmpty() const { return m_size == 0; }
    /// Largest index, -1 when the array is empty.
    INT_PTR GetUpperBound() const { return m_size - 1; }
    /// @param nGrowBy fewest elements to make room for when the array grows; -1 leaves it alone.
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1);
    void FreeExtra();
    void RemoveAll() { SetSize(0); }

    const TYPE& GetAt(INT_PTR nIndex) const { return m_elements[checked(nIndex)]; }
    TYPE& GetAt(INT_PTR nIndex) { return m_elements[checked(nIndex)]; }
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement) { GetAt(nIndex) = newElement; }
    const TYPE& ElementAt(INT_PTR nIndex) const { return GetAt(nIndex); }
    TYPE& ElementAt(INT_PTR nIndex) { return GetAt(nIndex); }
    const TYPE& operator[](INT_PTR nIndex) const { return GetAt(nIndex); }
    TYPE& operator[](INT_PTR nIndex) { return GetAt(nIndex); }
    /// The first element; null when the array is empty. Valid until the size changes.
    const TYPE* GetData() const { return m_size == 0 ? nullptr : m_elements.get(); }
    TYPE* GetData() { return m_size == 0 ? nullptr : m_elements.get(); }

    /// Like SetAt(), but makes the array larger where needed.
    void SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement);
    /// @return the index of the new element.
    INT_PTR Add(ARG_TYPE newElement);
    /// @return the index of the first appended element.
    INT_PTR Append(const CArray& src);
    void Copy(const CArray& src);

    /// Inserts copies of an element; behind the end, the gap is filled with new elements.
    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount = 1);
    void InsertAt(INT_PTR nStartIndex, CArray* pNewArray);
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1);

    void Serialize(CArchive& ar) override;
    void Dump(CDumpContext& dc) const override;

private:
    INT_PTR checked(INT_PTR index) const;
    void reallocate(INT_PTR capacity);
    void openGap(INT_PTR index, INT_PTR count);

    // Elements from m_size on are spare: they hold the value that growing shall show.
    std::unique_ptr<TYPE[]> m_elements;
    INT_PTR m_size = 0;
    INT_PTR m_capacity = 0;
    INT_PTR m_growBy = 0;
};

template <class TYPE, class ARG_TYPE>
INT_PTR CArray<TYPE, ARG_TYPE>::checked(INT_PTR index) const {
    afx::requireArgument(index >= 0 && index < m_size);
    return index;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::reallocate(INT_PTR capacity) {
    if (static_cast<size_t>(capacity) > static_cast<size_t>(PTRDIFF_MAX) / sizeof(TYPE)) {
        AfxThrowMemoryException();
    }
    std::unique_ptr<TYPE[]> elements;
    if (capacity > 0) {
        elements.reset(new (std::nothrow) TYPE[static_cast<size_t>(capacity)]());
        if (elements == nullptr) {
            AfxThrowMemoryException();
        }
    }
    std::move(m_elements.get(), m_elements.get() + m_size, elements.get());
    m_elements = std::move(elements);
    m_capacity = capacity;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetSize(INT_PTR nNewSize, INT_PTR nGrowBy) {
    afx::requireArgument(nNewSize >= 0 && nGrowBy >= -1);
    if (nGrowBy >= 0) {
        m_growBy = nGrowBy;
    }
    if (nNewSize == 0) {
        m_elements.reset();
        m_size = 0;
        m_capacity = 0;
        return;
    }
    if (nNewSize > m_capacity) {
        // Room to spare keeps the cost of adding elements one by one low; an array that is sized
        // once gets what it asked for.
        const INT_PTR step = m_growBy > 0 ? m_growBy : m_capacity / 2;
        const bool overflows = step > INTPTR_MAX - m_capacity;
        reallocate(overflows ? nNewSize : (std::max)(nNewSize, m_capacity + step));
    }
    for (INT_PTR index = nNewSize; index < m_size; ++index) {
        m_elements[index] = TYPE();
    }
    m_size = nNewSize;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::FreeExtra() {
    if (m_size < m_capacity) {
        reallocate(m_size);
    }
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement) {
    afx::requireArgument(nIndex >= 0 && nIndex < INTPTR_MAX);
    if (nIndex < m_size) {
        m_elements[nIndex] = newElement;
        return;
    }
    TYPE element = TYPE();
    element = newElement; // first of all: newElement may stand in this array
    SetSize(nIndex + 1);
    m_elements[nIndex] = std::move(element);
}

template <class TYPE, class ARG_TYPE>
INT_PTR CArray<TYPE, ARG_TYPE>::Add(ARG_TYPE newElement) {
    const INT_PTR index = m_size;
    SetAtGrow(index, newElement);
    return index;
}

template <class TYPE, class ARG_TYPE>
INT_PTR CArray<TYPE, ARG_TYPE>::Append(const CArray& src) {
    const INT_PTR first = m_size;
    const INT_PTR count = src.m_size;
    SetSize(first + count);
    CopyElements<TYPE>(m_elements.get() + first, src.m_elements.get(), count);
    return first;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Copy(const CArray& src) {
    if (this != &src) {
        SetSize(src.m_size);
        CopyElements<TYPE>(m_elements.get(), src.m_elements.get(), src.m_size);
    }
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::openGap(INT_PTR index, INT_PTR count) {
    const INT_PTR oldSize = m_size;
    const INT_PTR base = (std::max)(index, oldSize);
    if (count > INTPTR_MAX - base) {
        AfxThrowMemoryException();
    }
    SetSize(base + count);
    if (index < oldSize) {
        std::move_backward(m_elements.get() + index, m_elements.get() + oldSize,
                           m_elements.get() + oldSize + count);
    }
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount) {
    afx::requireArgument(nIndex >= 0 && nCount > 0);
    TYPE element = TYPE();
    element = newElement; // first of all: newElement may stand in this array
    openGap(nIndex, nCount);
    std::fill_n(m_elements.get() + nIndex, nCount, element);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::InsertAt(INT_PTR nStartIndex, CArray* pNewArray) {
    afx::requireArgument(nStartIndex >= 0 && pNewArray != nullptr && pNewArray != this);
    if (pNewArray->m_size > 0) {
        openGap(nStartIndex, pNewArray->m_size);
        CopyElements<TYPE>(m_elements.get() + nStartIndex, pNewArray->m_elements.get(),
                           pNewArray->m_size);
    }
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::RemoveAt(INT_PTR nIndex, INT_PTR nCount) {
    afx::requireArgument(nIndex >= 0 && nCount >= 0 && nIndex <= m_size &&
                         nCount <= m_size - nIndex);
    TYPE* const first = m_elements.get() + nIndex;
    std::move(first + nCount, m_elements.get() + m_size, first);
    const INT_PTR newSize = m_size - nCount;
    for (INT_PTR index = newSize; index < m_size; ++index) {
        m_elements[index] = TYPE();
    }
    m_size = newSize;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Serialize(CArchive& ar) {
    CObject::Serialize(ar);
    if (ar.IsStoring()) {
        afx::ArchiveCount::write(ar, m_size);
    } else {
        SetSize(afx::ArchiveCount::read(ar));
    }
    SerializeElements<TYPE>(ar, m_elements.get(), m_size);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Dump(CDumpContext& dc) const {
    CObject::Dump(dc);
    dc << "with " << static_cast<LONGLONG>(m_size) << " elements\n";
    if (dc.GetDepth() > 0) {
        DumpElements<TYPE>(dc, m_elements.get(), m_size);
    }
}
