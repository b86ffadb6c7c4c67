// SPDX-License-Identifier: MIT
/// @file
/// CMap: values by unique keys.
#pragma once

#include "afx/CObject.h"
#include "afx/CollectionHelpers.h"

#include <memory>
#include <new>
#include <utility>
#include <vector>

/// A hash table from keys to values, which uses HashKey and CompareElements.
///
/// The order of an iteration is arbitrary. Values and CPair objects stay where they are until their
/// key is removed. KEY is made from ARG_KEY; VALUE needs a default constructor and assignment.
///
/// @tparam ARG_KEY, ARG_VALUE types by which keys and values are passed.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class CMap : public CObject {
public:
    /// A key with its value.
    struct CPair {
        const KEY key;
        VALUE value;

    protected:
        explicit CPair(ARG_KEY keyValue) : key(keyValue), value() {}
    };

    /// @param nBlockSize accepted for the interface's sake; pairs are allocated one by one.
    explicit CMap(INT_PTR nBlockSize = 10) { UNUSED_ALWAYS(nBlockSize); }
    ~CMap() override { RemoveAll(); }

    INT_PTR GetCount() const { return m_count; }
    INT_PTR GetSize() const { return m_count; }
    BOOL IsEmpty() const { return m_count == 0; }

    /// @return nonzero when the key was found; otherwise the value is left alone.
    BOOL Lookup(ARG_KEY key, VALUE& rValue) const;
    /// The pair of the key, null when there is none.
    const CPair* PLookup(ARG_KEY key) const { return find(key, HashKey<ARG_KEY>(key)); }
    CPair* PLookup(ARG_KEY key) { return find(key, HashKey<ARG_KEY>(key)); }

    /// The value of the key, which is added with a default value when it is not there.
    VALUE& operator[](ARG_KEY key);
    void SetAt(ARG_KEY key, ARG_VALUE newValue) { (*this)[key] = newValue; }
    /// @return nonzero when the key was there.
    BOOL RemoveKey(ARG_KEY key);
    void RemoveAll();

    /// Start of an iteration with GetNextAssoc(); null when the map is empty.
    POSITION GetStartPosition() const { return m_count == 0 ? nullptr : BEFORE_START_POSITION; }
    /// Fetches the next pair; rNextPosition becomes null with the last one.
    void GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const;
    const CPair* PGetFirstAssoc() const { return firstFrom(0); }
    CPair* PGetFirstAssoc() { return firstFrom(0); }
    const CPair* PGetNextAssoc(const CPair* pAssocRet) const { return next(pAssocRet); }
    CPair* PGetNextAssoc(const CPair* pAssocRet) { return next(pAssocRet); }

    UINT GetHashTableSize() const { return m_tableSize; }
    /// Sets the number of buckets, best a prime about a fifth larger than the number of pairs.
    /// The map must be empty.
    void InitHashTable(UINT hashSize, BOOL bAllocNow = TRUE);

    void Serialize(CArchive& ar) override;
    void Dump(CDumpContext& dc) const override;

private:
    struct Assoc : CPair {
        Assoc(ARG_KEY keyValue, UINT hashValue) : CPair(keyValue), hash(hashValue) {}
        const UINT hash;
        std::unique_ptr<Assoc> next;
    };
    using Bucket = std::unique_ptr<Assoc>;

    static constexpr UINT defaultTableSize = 17;

    Bucket& bucket(UINT hash) { return m_buckets[hash % m_tableSize]; }
    Assoc* find(ARG_KEY key, UINT hash) const;
    Assoc* add(ARG_KEY key, UINT hash);
    Assoc* firstFrom(size_t index) const;
    Assoc* next(const CPair* pair) const;
    void store(CArchive& ar);
    void load(CArchive& ar);

    std::vector<Bucket> m_buckets;
    UINT m_tableSize = defaultTableSize;
    INT_PTR m_count = 0;
};

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
typename CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::Assoc*
CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::find(ARG_KEY key, UINT hash) const {
    if (m_buckets.empty()) {
        return nullptr;
    }
    Assoc* assoc = m_buckets[hash % m_tableSize].get();
    while (assoc != nullptr && !(assoc->hash == hash && CompareElements(&assoc->key, &key))) {
        assoc = assoc->next.get();
    }
    return assoc;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
typename CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::Assoc*
CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::add(ARG_KEY key, UINT hash) {
    try {
        if (m_buckets.empty()) {
            m_buckets.resize(m_tableSize);
        }
        Bucket added = std::make_unique<Assoc>(key, hash);
        Bucket& head = bucket(hash);
        added->next = std::move(head);
        head = std::move(added);
        ++m_count;
        return head.get();
    } catch (const std::bad_alloc&) {
        AfxThrowMemoryException();
    }
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
typename CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::Assoc*
CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::firstFrom(size_t index) const {
    for (; index < m_buckets.size(); ++index) {
        if (m_buckets[index] != nullptr) {
            return m_buckets[index].get();
        }
    }
    return nullptr;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
typename CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::Assoc*
CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::next(const CPair* pair) const {
    afx::requireArgument(pair != nullptr);
    const Assoc* const assoc = static_cast<const Assoc*>(pair);
    return assoc->next != nullptr ? assoc->next.get() : firstFrom(assoc->hash % m_tableSize + 1);
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
BOOL CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::Lookup(ARG_KEY key, VALUE& rValue) const {
    const CPair* const pair = PLookup(key);
    if (pair == nullptr) {
        return FALSE;
    }
    rValue = pair->value;
    return TRUE;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
VALUE& CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::operator[](ARG_KEY key) {
    const UINT hash = HashKey<ARG_KEY>(key);
    Assoc* const found = find(key, hash);
    return found != nullptr ? found->value : add(key, hash)->value;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
BOOL CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::RemoveKey(ARG_KEY key) {
    if (m_count == 0) {
        return FALSE;
    }
    const UINT hash = HashKey<ARG_KEY>(key);
    for (Bucket* link = &bucket(hash); *link != nullptr; link = &(*link)->next) {
        if ((*link)->hash == hash && CompareElements(&(*link)->key, &key)) {
            const Bucket removed = std::move(*link); // kept to the end: key may be part of it
            *link = std::move(removed->next);
            --m_count;
            return TRUE;
        }
    }
    return FALSE;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::RemoveAll() {
    for (Bucket& head : m_buckets) {
        while (head != nullptr) { // one by one, so that a long chain is no deep recursion
            head = std::move(head->next);
        }
    }
    m_buckets.clear();
    m_count = 0;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::GetNextAssoc(POSITION& rNextPosition, KEY& rKey,
                                                        VALUE& rValue) const {
    afx::requireArgument(rNextPosition != nullptr);
    const Assoc* const assoc = rNextPosition == BEFORE_START_POSITION
                                   ? firstFrom(0)
                                   : reinterpret_cast<const Assoc*>(rNextPosition);
    afx::requireArgument(assoc != nullptr);
    rNextPosition = reinterpret_cast<POSITION>(next(assoc));
    rKey = assoc->key;
    rValue = assoc->value;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::InitHashTable(UINT hashSize, BOOL bAllocNow) {
    afx::requireArgument(m_count == 0 && hashSize > 0);
    m_buckets.clear();
    m_tableSize = hashSize;
    if (bAllocNow) {
        try {
            m_buckets.resize(hashSize);
        } catch (const std::bad_alloc&) {
            AfxThrowMemoryException();
        }
    }
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::store(CArchive& ar) {
    afx::ArchiveCount::write(ar, m_count);
    for (CPair* pair = PGetFirstAssoc(); pair != nullptr; pair = PGetNextAssoc(pair)) {
        SerializeElements<KEY>(ar, const_cast<KEY*>(&pair->key), 1);
        SerializeElements<VALUE>(ar, &pair->value, 1);
    }
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::load(CArchive& ar) {
    const INT_PTR count = afx::ArchiveCount::read(ar, 2);
    if (m_count == 0 && count > static_cast<INT_PTR>(m_tableSize)) {
        // Short chains, however many pairs the file holds.
        InitHashTable(static_cast<UINT>((std::min)(count, INT_PTR{INT_MAX})));
    }
    for (INT_PTR left = count; left > 0; --left) {
        KEY key = KEY();
        VALUE value = VALUE();
        SerializeElements<KEY>(ar, &key, 1);
        SerializeElements<VALUE>(ar, &value, 1);
        SetAt(key, value);
    }
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::Serialize(CArchive& ar) {
    CObject::Serialize(ar);
    if (ar.IsStoring()) {
        store(ar);
    } else {
        load(ar);
    }
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::Dump(CDumpContext& dc) const {
    CObject::Dump(dc);
    dc << "with " << static_cast<LONGLONG>(m_count) << " elements\n";
    if (dc.GetDepth() > 0) {
        for (const CPair* pair = PGetFirstAssoc(); pair != nullptr; pair = PGetNextAssoc(pair)) {
            DumpElements<KEY>(dc, &pair->key, 1);
            DumpElements<VALUE>(dc, &pair->value, 1);
        }
    }
}
