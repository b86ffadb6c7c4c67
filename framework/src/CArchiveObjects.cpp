// SPDX-License-Identifier: MIT
// Objects and classes in an archive.
//
// Each object and class gets an index, from 1 on, when it is first met; later it is referred to by
// that index. In front of an object stands a tag of 16 bits:
//     0x0000            a null pointer
//     0x0001 - 0x7FFE   the object of that index
//     0x7FFF            followed by 32 bits: an index, with bigClassFlag that of a class
//     0x8000 | index    a new object of the class of that index
//     0xFFFF            a new object of a new class, whose description follows
// A class is described by its schema number, the length of its name and the name.
#include "afx/CArchive.h"

#include "afx/Diagnostics.h"

#include <cstring>

namespace {

constexpr WORD nullTag = 0;
constexpr WORD newClassTag = 0xFFFF;
constexpr WORD smallClassFlag = 0x8000;
constexpr WORD bigTag = 0x7FFF;
constexpr DWORD bigClassFlag = 0x80000000;
constexpr DWORD largestIndex = 0x3FFFFFFE;

constexpr UINT unknownSchema = static_cast<UINT>(-1);
constexpr UINT notSerializable = 0xFFFF;
constexpr WORD longestClassName = 255;

/// How deep loaded objects may nest. A file can ask for any depth, the stack cannot give it.
constexpr int deepestNesting = 1000;

void requireSerializable(const CRuntimeClass* runtimeClass) {
    if (runtimeClass->m_wSchema == notSerializable) {
        AfxThrowNotSupportedException();
    }
}

UINT schemaNumber(const CRuntimeClass* runtimeClass) {
    return runtimeClass->m_wSchema & ~static_cast<UINT>(VERSIONABLE_SCHEMA);
}

bool readsOtherSchemas(const CRuntimeClass* runtimeClass) {
    return (runtimeClass->m_wSchema & VERSIONABLE_SCHEMA) != 0;
}

/// Counts a nested call and keeps the schema of the outer object.
class NestedObject {
public:
    NestedObject(int& depth, UINT& schema) : m_depth(depth), m_schema(schema), m_outer(schema) {
        ++m_depth;
    }
    ~NestedObject() {
        --m_depth;
        m_schema = m_outer;
    }
    NestedObject(const NestedObject&) = delete;
    NestedObject& operator=(const NestedObject&) = delete;

private:
    int& m_depth;
    UINT& m_schema;
    const UINT m_outer;
};

} // namespace

/// The index that the next new object or class gets.
DWORD CArchive::nextIndex() const {
    return static_cast<DWORD>((m_storing ? m_stored.size() : m_loaded.size()) + 1);
}

void CArchive::checkRoomForIndex() const {
    if (nextIndex() > largestIndex) {
        fail(CArchiveException::badIndex);
    }
}

void CArchive::MapObject(const CObject* pOb) {
    checkRoomForIndex();
    if (pOb == nullptr) {
        return;
    }
    if (m_storing) {
        m_stored.emplace(pOb, nextIndex());
    } else {
        m_loaded.push_back({const_cast<CObject*>(pOb), nullptr, unknownSchema, true});
    }
}

// Storing

void CArchive::storeTag(DWORD index, DWORD bigFlag, WORD smallFlag) {
    if (index < bigTag) {
        *this << static_cast<WORD>(smallFlag | index);
    } else {
        *this << bigTag << (bigFlag | index);
    }
}

void CArchive::storeClassDescription(const CRuntimeClass* runtimeClass) {
    const size_t length = std::strlen(runtimeClass->m_lpszClassName);
    if (length > longestClassName) {
        AfxThrowNotSupportedException();
    }
    *this << static_cast<WORD>(schemaNumber(runtimeClass)) << static_cast<WORD>(length);
    Write(runtimeClass->m_lpszClassName, static_cast<INT>(length));
}

void CArchive::WriteClass(const CRuntimeClass* pClassRef) {
    requireStoring();
    if (pClassRef == nullptr) {
        AfxThrowInvalidArgException();
    }
    requireSerializable(pClassRef);
    const auto known = m_stored.find(pClassRef);
    if (known != m_stored.end()) {
        storeTag(known->second, bigClassFlag, smallClassFlag);
        return;
    }
    checkRoomForIndex();
    *this << newClassTag;
    storeClassDescription(pClassRef);
    m_stored.emplace(pClassRef, nextIndex());
}

void CArchive::WriteObject(const CObject* pOb) {
    requireStoring();
    if (pOb == nullptr) {
        *this << nullTag;
        return;
    }
    const auto known = m_stored.find(pOb);
    if (known != m_stored.end()) {
        storeTag(known->second, 0, 0);
        return;
    }
    WriteClass(pOb->GetRuntimeClass());
    checkRoomForIndex();
    m_stored.emplace(pOb, nextIndex());
    const_cast<CObject*>(pOb)->Serialize(*this);
}

// Loading

CRuntimeClass* CArchive::loadClassDescription(UINT& schema) {
    WORD storedSchema;
    WORD length;
    *this >> storedSchema >> length;
    if (length == 0 || length > longestClassName) {
        fail(CArchiveException::badClass);
    }
    char name[longestClassName + 1];
    readExactly(name, length);
    name[length] = '\0';

    CRuntimeClass* const found = CRuntimeClass::FromName(name);
    if (found == nullptr || found->m_wSchema == notSerializable) {
        fail(CArchiveException::badClass);
    }
    if (storedSchema != schemaNumber(found) && !readsOtherSchemas(found)) {
        fail(CArchiveException::badSchema);
    }
    schema = storedSchema;
    return found;
}

CRuntimeClass* CArchive::ReadClass(const CRuntimeClass* pClassRefRequested, UINT* pSchema,
                                   DWORD* pObTag) {
    requireLoading();
    if (pClassRefRequested != nullptr) {
        requireSerializable(pClassRefRequested);
    }
    WORD tag;
    *this >> tag;
    DWORD index = tag & ~DWORD{smallClassFlag};
    bool isClass = (tag & smallClassFlag) != 0;
    if (tag == bigTag) {
        *this >> index;
        isClass = (index & bigClassFlag) != 0;
        index &= ~bigClassFlag;
    }
    if (!isClass) {
        if (pObTag == nullptr) {
            fail(CArchiveException::badIndex);
        }
        *pObTag = index;
        return nullptr;
    }

    LoadedEntry entry{};
    if (tag == newClassTag) {
        checkRoomForIndex();
        entry.runtimeClass = loadClassDescription(entry.schema);
        m_loaded.push_back(entry);
        index = static_cast<DWORD>(m_loaded.size());
    } else {
        if (index == 0 || index > m_loaded.size()) {
            fail(CArchiveException::badIndex);
        }
        entry = m_loaded[index - 1];
    }
    if (entry.runtimeClass == nullptr) {
        fail(CArchiveException::badIndex); // an object where a class should be
    }
    if (pClassRefRequested != nullptr && !entry.runtimeClass->IsDerivedFrom(pClassRefRequested)) {
        fail(CArchiveException::badClass);
    }
    if (pObTag != nullptr) {
        *pObTag = bigClassFlag | index;
    }
    (pSchema != nullptr ? *pSchema : m_objectSchema) = entry.schema;
    return entry.runtimeClass;
}

CObject* CArchive::ReadObject(const CRuntimeClass* pClass) {
    UINT schema = unknownSchema;
    DWORD tag = 0;
    CRuntimeClass* const runtimeClass = ReadClass(pClass, &schema, &tag);
    return runtimeClass == nullptr ? existingObject(tag, pClass) : newObject(runtimeClass, schema);
}

CObject* CArchive::existingObject(DWORD index, const CRuntimeClass* requested) {
    if (index == nullTag) {
        return nullptr;
    }
    if (index > m_loaded.size() || m_loaded[index - 1].object == nullptr) {
        fail(CArchiveException::badIndex);
    }
    LoadedEntry& entry = m_loaded[index - 1];
    if (requested != nullptr && !entry.object->IsKindOf(requested)) {
        fail(CArchiveException::badClass);
    }
    entry.shared = true;
    return entry.object;
}

CObject* CArchive::newObject(CRuntimeClass* runtimeClass, UINT schema) {
    checkRoomForIndex();
    if (m_depth >= deepestNesting) {
        fail(CArchiveException::badIndex);
    }
    const size_t place = m_loaded.size();
    m_loaded.push_back({nullptr, nullptr, unknownSchema, false});
    CObject* const object = runtimeClass->CreateObject();
    if (object == nullptr) {
        AfxThrowMemoryException();
    }
    m_loaded[place].object = object; // known before it is loaded: it may point to itself
    const NestedObject nested(m_depth, m_objectSchema);
    m_objectSchema = schema;
    try {
        object->Serialize(*this);
    } catch (...) {
        m_loaded[place].object = nullptr;
        if (!m_loaded[place].shared) {
            delete object; // nobody else has seen it
        }
        throw;
    }
    return object;
}

void CArchive::SerializeClass(const CRuntimeClass* pClassRef) {
    if (m_storing) {
        WriteClass(pClassRef);
    } else {
        ReadClass(pClassRef);
    }
}

UINT CArchive::GetObjectSchema() {
    const UINT schema = m_objectSchema;
    m_objectSchema = unknownSchema; // valid for one object, and to be asked for once
    return schema;
}

void CArchive::SetObjectSchema(UINT nSchema) {
    m_objectSchema = nSchema;
}

CArchive& AFXAPI operator<<(CArchive& ar, const CObject* pOb) {
    ar.WriteObject(pOb);
    return ar;
}

CArchive& AFXAPI operator>>(CArchive& ar, CObject*& pOb) {
    pOb = ar.ReadObject(nullptr);
    return ar;
}

CArchive& AFXAPI operator>>(CArchive& ar, const CObject*& pOb) {
    pOb = ar.ReadObject(nullptr);
    return ar;
}
