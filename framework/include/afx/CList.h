// SPDX-License-Identifier: MIT
/// @file
/// CList: a doubly linked list.
#pragma once

#include "afx/CObject.h"
#include "afx/CollectionHelpers.h"

#include <list>
#include <utility>

/// Elements in an order, where inserting and removing is cheap at any place.
///
/// A POSITION stays valid until its element is removed; one of another list or of a removed element
/// must not be passed. A null POSITION where an element is needed, or an empty list, throws
/// CInvalidArgException in every build. TYPE needs a default constructor and assignment.
///
/// @tparam ARG_TYPE type by which elements are passed, often a constant reference.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CList : public CObject {
public:
    /// @param nBlockSize accepted for the interface's sake; elements are allocated one by one.
    explicit CList(INT_PTR nBlockSize = 10) { UNUSED_ALWAYS(nBlockSize); }

    INT_PTR GetCount() const { return static_cast<INT_PTR>(m_nodes.size()); }
    INT_PTR GetSize() const { return GetCount(); }
    BOOL IsEmpty() const { return m_nodes.empty(); }

    TYPE& GetHead() { return GetAt(GetHeadPosition()); }
    const TYPE& GetHead() const { return GetAt(GetHeadPosition()); }
    TYPE& GetTail() { return GetAt(GetTailPosition()); }
    const TYPE& GetTail() const { return GetAt(GetTailPosition()); }

    TYPE RemoveHead();
    TYPE RemoveTail();
    POSITION AddHead(ARG_TYPE newElement) { return insert(m_nodes.begin(), newElement); }
    POSITION AddTail(ARG_TYPE newElement) { return insert(m_nodes.end(), newElement); }
    /// Adds copies of the elements of another list, in their order.
    void AddHead(CList* pNewList);
    void AddTail(CList* pNewList);
    void RemoveAll() { m_nodes.clear(); }

    /// Null when the list is empty.
    POSITION GetHeadPosition() const;
    POSITION GetTailPosition() const;
    /// The element at rPosition, which moves on to the next and becomes null behind the last.
    TYPE& GetNext(POSITION& rPosition);
    const TYPE& GetNext(POSITION& rPosition) const;
    /// The element at rPosition, which moves back and becomes null before the first.
    TYPE& GetPrev(POSITION& rPosition);
    const TYPE& GetPrev(POSITION& rPosition) const;

    TYPE& GetAt(POSITION position) { return node(position).data; }
    const TYPE& GetAt(POSITION position) const { return node(position).data; }
    void SetAt(POSITION pos, ARG_TYPE newElement) { node(pos).data = newElement; }
    void RemoveAt(POSITION position) { m_nodes.erase(node(position).place); }

    /// Inserts before the position; null stands for the head of the list.
    POSITION InsertBefore(POSITION position, ARG_TYPE newElement);
    /// Inserts behind the position; null stands for the tail of the list.
    POSITION InsertAfter(POSITION position, ARG_TYPE newElement);

    /// Looks for an equal element behind startAfter, from the head when that is null.
    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = nullptr) const;
    /// The position of the element counted from 0, null when there is none.
    POSITION FindIndex(INT_PTR nIndex) const;

    void Serialize(CArchive& ar) override;
    void Dump(CDumpContext& dc) const override;

private:
    struct Node {
        TYPE data = TYPE();
        typename std::list<Node>::iterator place;
    };
    using Nodes = std::list<Node>;

    static POSITION positionOf(const Node& node) {
        return reinterpret_cast<POSITION>(const_cast<Node*>(&node));
    }
    static Node& node(POSITION position);
    POSITION insert(typename Nodes::iterator before, ARG_TYPE element);
    void store(CArchive& ar);
    void load(CArchive& ar);

    Nodes m_nodes;
};

template <class TYPE, class ARG_TYPE>
typename CList<TYPE, ARG_TYPE>::Node& CList<TYPE, ARG_TYPE>::node(POSITION position) {
    afx::requireArgument(position != nullptr);
    return *reinterpret_cast<Node*>(position);
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::insert(typename Nodes::iterator before, ARG_TYPE element) {
    Nodes added;
    try {
        added.emplace_back();
    } catch (const std::bad_alloc&) {
        AfxThrowMemoryException();
    }
    Node& node = added.front();
    node.data = element;
    node.place = added.begin();
    m_nodes.splice(before, added);
    return positionOf(node);
}

template <class TYPE, class ARG_TYPE>
TYPE CList<TYPE, ARG_TYPE>::RemoveHead() {
    TYPE element = std::move(GetHead());
    m_nodes.pop_front();
    return element;
}

template <class TYPE, class ARG_TYPE>
TYPE CList<TYPE, ARG_TYPE>::RemoveTail() {
    TYPE element = std::move(GetTail());
    m_nodes.pop_back();
    return element;
}

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::AddHead(CList* pNewList) {
    afx::requireArgument(pNewList != nullptr && pNewList != this);
    for (auto it = pNewList->m_nodes.rbegin(); it != pNewList->m_nodes.rend(); ++it) {
        AddHead(it->data);
    }
}

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::AddTail(CList* pNewList) {
    afx::requireArgument(pNewList != nullptr && pNewList != this);
    for (Node& node : pNewList->m_nodes) {
        AddTail(node.data);
    }
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::GetHeadPosition() const {
    return m_nodes.empty() ? nullptr : positionOf(m_nodes.front());
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::GetTailPosition() const {
    return m_nodes.empty() ? nullptr : positionOf(m_nodes.back());
}

template <class TYPE, class ARG_TYPE>
const TYPE& CList<TYPE, ARG_TYPE>::GetNext(POSITION& rPosition) const {
    Node& current = node(rPosition);
    const typename Nodes::const_iterator next = std::next(current.place);
    rPosition = next == m_nodes.end() ? nullptr : positionOf(*next);
    return current.data;
}

template <class TYPE, class ARG_TYPE>
TYPE& CList<TYPE, ARG_TYPE>::GetNext(POSITION& rPosition) {
    return const_cast<TYPE&>(std::as_const(*this).GetNext(rPosition));
}

template <class TYPE, class ARG_TYPE>
const TYPE& CList<TYPE, ARG_TYPE>::GetPrev(POSITION& rPosition) const {
    Node& current = node(rPosition);
    const typename Nodes::const_iterator place = current.place;
    rPosition = place == m_nodes.begin() ? nullptr : positionOf(*std::prev(place));
    return current.data;
}

template <class TYPE, class ARG_TYPE>
TYPE& CList<TYPE, ARG_TYPE>::GetPrev(POSITION& rPosition) {
    return const_cast<TYPE&>(std::as_const(*this).GetPrev(rPosition));
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::InsertBefore(POSITION position, ARG_TYPE newElement) {
    return position == nullptr ? AddHead(newElement) : insert(node(position).place, newElement);
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::InsertAfter(POSITION position, ARG_TYPE newElement) {
    return position == nullptr ? AddTail(newElement)
                               : insert(std::next(node(position).place), newElement);
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::Find(ARG_TYPE searchValue, POSITION startAfter) const {
    auto it = m_nodes.begin();
    if (startAfter != nullptr) {
        it = std::next(node(startAfter).place);
    }
    for (; it != m_nodes.end(); ++it) {
        if (CompareElements(&it->data, &searchValue)) {
            return positionOf(*it);
        }
    }
    return nullptr;
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::FindIndex(INT_PTR nIndex) const {
    if (nIndex < 0 || nIndex >= GetCount()) {
        return nullptr;
    }
    return positionOf(*std::next(m_nodes.begin(), nIndex));
}

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::store(CArchive& ar) {
    afx::ArchiveCount::write(ar, GetCount());
    for (Node& node : m_nodes) {
        SerializeElements<TYPE>(ar, &node.data, 1);
    }
}

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::load(CArchive& ar) {
    for (INT_PTR left = afx::ArchiveCount::read(ar); left > 0; --left) {
        TYPE element = TYPE();
        SerializeElements<TYPE>(ar, &element, 1);
        AddTail(element);
    }
}

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::Serialize(CArchive& ar) {
    CObject::Serialize(ar);
    if (ar.IsStoring()) {
        store(ar);
    } else {
        load(ar);
    }
}

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::Dump(CDumpContext& dc) const {
    CObject::Dump(dc);
    dc << "with " << static_cast<LONGLONG>(GetCount()) << " elements\n";
    if (dc.GetDepth() > 0) {
        for (const Node& node : m_nodes) {
            DumpElements<TYPE>(dc, &node.data, 1);
        }
    }
}
