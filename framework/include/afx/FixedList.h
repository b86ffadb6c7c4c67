// SPDX-License-Identifier: MIT
/// @file
/// The common interface of the lists of one fixed element type.
#pragma once

#include "afx/CList.h"
#include "afx/FixedArray.h"

namespace afx {

/// A list like CList.
/// @tparam DERIVED the class that derives from this one.
template <class DERIVED, class TYPE, class ARG_TYPE>
class FixedList : public CObject {
public:
    using ConstElement = typename ConstView<TYPE>::Element;
    using ConstReturned = typename ConstView<TYPE>::Returned;

    INT_PTR GetCount() const { return m_list.GetCount(); }
    INT_PTR GetSize() const { return m_list.GetSize(); }
    BOOL IsEmpty() const { return m_list.IsEmpty(); }

    TYPE& GetHead() { return m_list.GetHead(); }
    ConstElement& GetHead() const { return constant(m_list.GetHead()); }
    TYPE& GetTail() { return m_list.GetTail(); }
    ConstElement& GetTail() const { return constant(m_list.GetTail()); }
    TYPE RemoveHead() { return m_list.RemoveHead(); }
    TYPE RemoveTail() { return m_list.RemoveTail(); }
    POSITION AddHead(ARG_TYPE newElement) { return m_list.AddHead(newElement); }
    POSITION AddTail(ARG_TYPE newElement) { return m_list.AddTail(newElement); }
    void AddHead(DERIVED* pNewList) { m_list.AddHead(elementsOf(pNewList)); }
    void AddTail(DERIVED* pNewList) { m_list.AddTail(elementsOf(pNewList)); }
    void RemoveAll() { m_list.RemoveAll(); }

    POSITION GetHeadPosition() const { return m_list.GetHeadPosition(); }
    POSITION GetTailPosition() const { return m_list.GetTailPosition(); }
    TYPE& GetNext(POSITION& rPosition) { return m_list.GetNext(rPosition); }
    ConstReturned GetNext(POSITION& rPosition) const { return m_list.GetNext(rPosition); }
    TYPE& GetPrev(POSITION& rPosition) { return m_list.GetPrev(rPosition); }
    ConstReturned GetPrev(POSITION& rPosition) const { return m_list.GetPrev(rPosition); }

    TYPE& GetAt(POSITION position) { return m_list.GetAt(position); }
    ConstElement& GetAt(POSITION position) const { return constant(m_list.GetAt(position)); }
    void SetAt(POSITION pos, ARG_TYPE newElement) { m_list.SetAt(pos, newElement); }
    void RemoveAt(POSITION position) { m_list.RemoveAt(position); }
    POSITION InsertBefore(POSITION position, ARG_TYPE newElement) {
        return m_list.InsertBefore(position, newElement);
    }
    POSITION InsertAfter(POSITION position, ARG_TYPE newElement) {
        return m_list.InsertAfter(position, newElement);
    }

    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = nullptr) const {
        return m_list.Find(searchValue, startAfter);
    }
    POSITION FindIndex(INT_PTR nIndex) const { return m_list.FindIndex(nIndex); }

    void Dump(CDumpContext& dc) const override { m_list.Dump(dc); }

private:
    friend DERIVED;
    using Elements = CList<TYPE, ARG_TYPE>;

    explicit FixedList(INT_PTR blockSize) : m_list(blockSize) {}
    static Elements* elementsOf(FixedList* list) {
        return list == nullptr ? nullptr : &list->m_list;
    }
    static ConstElement& constant(const TYPE& element) {
        return const_cast<ConstElement&>(element);
    }

    Elements m_list;
};

} // namespace afx
