// SPDX-License-Identifier: MIT
/// @file
/// Arrays and lists of one fixed element type. Those of pointers own nothing they point to.
#pragma once

#include "afx/FixedArray.h"
#include "afx/FixedList.h"

/// Array of untyped pointers. It cannot be stored to an archive.
class CPtrArray : public afx::FixedArray<CPtrArray, void*, void*> {
    DECLARE_DYNAMIC(CPtrArray)
public:
    CPtrArray() = default;
};

/// Array of objects, which are stored and loaded with it.
class CObArray : public afx::FixedArray<CObArray, CObject*, CObject*> {
    DECLARE_SERIAL(CObArray)
public:
    CObArray() = default;
    void Serialize(CArchive& ar) override;
};

class CStringArray : public afx::FixedArray<CStringArray, CString, const CString&> {
    DECLARE_SERIAL(CStringArray)
public:
    CStringArray() = default;
    void Serialize(CArchive& ar) override;
};

class CByteArray : public afx::FixedArray<CByteArray, BYTE, BYTE> {
    DECLARE_SERIAL(CByteArray)
public:
    CByteArray() = default;
    void Serialize(CArchive& ar) override;
};

class CWordArray : public afx::FixedArray<CWordArray, WORD, WORD> {
    DECLARE_SERIAL(CWordArray)
public:
    CWordArray() = default;
    void Serialize(CArchive& ar) override;
};

class CDWordArray : public afx::FixedArray<CDWordArray, DWORD, DWORD> {
    DECLARE_SERIAL(CDWordArray)
public:
    CDWordArray() = default;
    void Serialize(CArchive& ar) override;
};

/// Array of unsigned numbers. It cannot be stored to an archive.
class CUIntArray : public afx::FixedArray<CUIntArray, UINT, UINT> {
    DECLARE_DYNAMIC(CUIntArray)
public:
    CUIntArray() = default;
};

/// List of untyped pointers. It cannot be stored to an archive.
class CPtrList : public afx::FixedList<CPtrList, void*, void*> {
    DECLARE_DYNAMIC(CPtrList)
public:
    explicit CPtrList(INT_PTR nBlockSize = 10);
};

/// List of objects, which are stored and loaded with it.
class CObList : public afx::FixedList<CObList, CObject*, CObject*> {
    DECLARE_SERIAL(CObList)
public:
    explicit CObList(INT_PTR nBlockSize = 10);
    void Serialize(CArchive& ar) override;
};

class CStringList : public afx::FixedList<CStringList, CString, const CString&> {
    DECLARE_SERIAL(CStringList)
public:
    explicit CStringList(INT_PTR nBlockSize = 10);
    void Serialize(CArchive& ar) override;
};
