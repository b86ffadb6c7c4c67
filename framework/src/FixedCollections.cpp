// SPDX-License-Identifier: MIT
#include "afx/CollectionHelpers.h"
#include "afx/FixedCollections.h"

IMPLEMENT_DYNAMIC(CPtrArray, CObject)
IMPLEMENT_DYNAMIC(CUIntArray, CObject)
IMPLEMENT_DYNAMIC(CPtrList, CObject)
IMPLEMENT_SERIAL(CObArray, CObject, 0)
IMPLEMENT_SERIAL(CStringArray, CObject, 0)
IMPLEMENT_SERIAL(CByteArray, CObject, 0)
IMPLEMENT_SERIAL(CWordArray, CObject, 0)
IMPLEMENT_SERIAL(CDWordArray, CObject, 0)
IMPLEMENT_SERIAL(CObList, CObject, 0)
IMPLEMENT_SERIAL(CStringList, CObject, 0)

namespace {

/// Bytes that an object takes in an archive at the least: its tag.
constexpr size_t smallestObject = 2;

} // namespace

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

CPtrList::CPtrList(INT_PTR nBlockSize) : FixedList(nBlockSize) {}
CObList::CObList(INT_PTR nBlockSize) : FixedList(nBlockSize) {}
CStringList::CStringList(INT_PTR nBlockSize) : FixedList(nBlockSize) {}

void CObArray::Serialize(CArchive& ar) {
    CObject::Serialize(ar);
    if (ar.IsStoring()) {
        afx::ArchiveCount::write(ar, GetSize());
        for (INT_PTR index = 0; index < GetSize(); ++index) {
            ar << GetAt(index);
        }
        return;
    }
    SetSize(afx::ArchiveCount::read(ar, smallestObject));
    for (INT_PTR index = 0; index < GetSize(); ++index) {
        ar >> ElementAt(index);
    }
}

void CStringArray::Serialize(CArchive& ar) {
    m_array.Serialize(ar);
}

void CByteArray::Serialize(CArchive& ar) {
    m_array.Serialize(ar);
}

void CWordArray::Serialize(CArchive& ar) {
    m_array.Serialize(ar);
}

void CDWordArray::Serialize(CArchive& ar) {
    m_array.Serialize(ar);
}

void CObList::Serialize(CArchive& ar) {
    CObject::Serialize(ar);
    if (ar.IsStoring()) {
        afx::ArchiveCount::write(ar, GetCount());
        for (POSITION position = GetHeadPosition(); position != nullptr;) {
            ar << GetNext(position);
        }
        return;
    }
    for (INT_PTR left = afx::ArchiveCount::read(ar, smallestObject); left > 0; --left) {
        CObject* object = nullptr;
        ar >> object;
        AddTail(object);
    }
}

void CStringList::Serialize(CArchive& ar) {
    m_list.Serialize(ar);
}
