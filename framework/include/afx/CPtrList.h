// SPDX-License-Identifier: MIT
/// @file
/// CPtrList: a list of untyped pointers.
#pragma once

#include "afx/CList.h"

/// A list like CList. It owns nothing it points to, and cannot be stored to an archive.
class CPtrList : public CObject {
    DECLARE_DYNAMIC(CPtrList)
public:
    explicit CPtrList(INT_PTR nBlockSize = 10);

    INT_PTR GetCount() const { return m_list.GetCount(); }
    INT_PTR GetSize() const { return m_list.GetSize(); }
    BOOL IsEmpty() const { return m_list.IsEmpty(); }

    void*& GetHead() { return m_list.GetHead(); }
    const void*& GetHead() const { return constant(m_list.GetHead()); }
    void*& GetTail() { return m_list.GetTail(); }
    const void*& GetTail() const { return constant(m_list.GetTail()); }
    void* RemoveHead() { return m_list.RemoveHead(); }
    void* RemoveTail() { return m_list.RemoveTail(); }
    POSITION AddHead(void* newElement) { return m_list.AddHead(newElement); }
    POSITION AddTail(void* newElement) { return m_list.AddTail(newElement); }
    void AddHead(CPtrList* pNewList) { m_list.AddHead(elementsOf(pNewList)); }
    void AddTail(CPtrList* pNewList) { m_list.AddTail(elementsOf(pNewList)); }
    void RemoveAll() { m_list.RemoveAll(); }

    POSITION GetHeadPosition() const { return m_list.GetHeadPosition(); }
    POSITION GetTailPosition() const { return m_list.GetTailPosition(); }
    void*& GetNext(POSITION& rPosition) { return m_list.GetNext(rPosition); }
    const void* GetNext(POSITION& rPosition) const { return m_list.GetNext(rPosition); }
    void*& GetPrev(POSITION& rPosition) { return m_list.GetPrev(rPosition); }
    const void* GetPrev(POSITION& rPosition) const { return m_list.GetPrev(rPosition); }

    void*& GetAt(POSITION position) { return m_list.GetAt(position); }
    const void*& GetAt(POSITION position) const { return constant(m_list.GetAt(position)); }
    void SetAt(POSITION pos, void* newElement) { m_list.SetAt(pos, newElement); }
    void RemoveAt(POSITION position) { m_list.RemoveAt(position); }
    POSITION InsertBefore(POSITION position, void* newElement) {
        return m_list.InsertBefore(position, newElement);
    }
    POSITION InsertAfter(POSITION position, void* newElement) {
        return m_list.InsertAfter(position, newElement);
    }

    POSITION Find(void* searchValue, POSITION startAfter = nullptr) const {
        return m_list.Find(searchValue, startAfter);
    }
    POSITION FindIndex(INT_PTR nIndex) const { return m_list.FindIndex(nIndex); }

    void Dump(CDumpContext& dc) const override { m_list.Dump(dc); }

private:
    using Elements = CList<void*, void*>;

    static Elements* elementsOf(CPtrList* list) {
        return list == nullptr ? nullptr : &list->m_list;
    }
    static const void*& constant(void* const& element) { return const_cast<const void*&>(element); }

    Elements m_list;
};
