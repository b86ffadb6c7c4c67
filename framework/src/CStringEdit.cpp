// SPDX-License-Identifier: MIT
// Comparison, parts, changes and search; the characters themselves stand in CString.cpp.
#include "afx/CString.h"

#include "MultiByte.h"
#include "afx/CException.h"

#include <algorithm>
#include <climits>
#include <mbstring.h>

using afx::Bytes;
using afx::CharacterSize;
using afx::EndOfSpan;
using afx::IsInSet;
using afx::LengthOf;
using afx::OrEmpty;

namespace {

constexpr char whitespace[] = " \t\n\v\f\r";

int distance(const char* first, const void* last) {
    return static_cast<int>(static_cast<const char*>(last) - first);
}

} // namespace

// Comparison

int CString::Compare(PCXSTR psz) const {
    return _mbscmp(Bytes(m_characters), Bytes(OrEmpty(psz)));
}

int CString::CompareNoCase(PCXSTR psz) const {
    return _mbsicmp(Bytes(m_characters), Bytes(OrEmpty(psz)));
}

// Parts

CString CString::Mid(int iFirst) const {
    return Mid(iFirst, INT_MAX);
}

CString CString::Mid(int iFirst, int nCount) const {
    iFirst = (std::min)((std::max)(iFirst, 0), GetLength());
    nCount = (std::min)((std::max)(nCount, 0), GetLength() - iFirst);
    return nCount == GetLength() ? *this : CString(m_characters + iFirst, nCount);
}

CString CString::Left(int nCount) const {
    return Mid(0, nCount);
}

CString CString::Right(int nCount) const {
    nCount = (std::min)((std::max)(nCount, 0), GetLength());
    return Mid(GetLength() - nCount, nCount);
}

// Changes

void CString::Append(PCXSTR pszSrc) {
    Append(pszSrc, LengthOf(pszSrc));
}

void CString::Append(PCXSTR pszSrc, int nLength) {
    if (nLength < 0 || (pszSrc == nullptr && nLength > 0)) {
        AfxThrowInvalidArgException();
    }
    if (nLength > 0) {
        replaceRange(GetLength(), 0, pszSrc, nLength);
    }
}

void CString::Append(const CString& strSrc) {
    Append(strSrc.m_characters, strSrc.GetLength());
}

void CString::AppendChar(XCHAR ch) {
    Append(&ch, 1);
}

CString& CString::operator+=(const CString& str) {
    Append(str);
    return *this;
}

CString& CString::operator+=(PCXSTR pszSrc) {
    Append(pszSrc);
    return *this;
}

CString& CString::operator+=(char ch) {
    AppendChar(ch);
    return *this;
}

CString& CString::operator+=(unsigned char ch) {
    AppendChar(static_cast<char>(ch));
    return *this;
}

CString& CString::operator+=(wchar_t ch) {
    return *this += CString(ch);
}

CString& CString::MakeUpper() {
    ::CharUpperBuffA(writable(0), static_cast<DWORD>(GetLength()));
    return *this;
}

CString& CString::MakeLower() {
    ::CharLowerBuffA(writable(0), static_cast<DWORD>(GetLength()));
    return *this;
}

CString& CString::TrimLeft() {
    return TrimLeft(whitespace);
}

CString& CString::TrimLeft(PCXSTR pszTargets) {
    Delete(0, EndOfSpan(m_characters, 0, GetLength(), OrEmpty(pszTargets), true));
    return *this;
}

CString& CString::TrimRight() {
    return TrimRight(whitespace);
}

CString& CString::TrimRight(PCXSTR pszTargets) {
    // From the front: only so is it known which byte starts a character.
    const char* const targets = OrEmpty(pszTargets);
    const int length = GetLength();
    int end = 0;
    for (int index = 0; index < length;) {
        const int size = CharacterSize(m_characters, index, length);
        if (!IsInSet(m_characters + index, size, targets)) {
            end = index + size;
        }
        index += size;
    }
    Truncate(end);
    return *this;
}

CString& CString::Trim() {
    return TrimRight().TrimLeft();
}

int CString::Replace(PCXSTR pszOld, PCXSTR pszNew) {
    const int oldLength = LengthOf(pszOld);
    int found = oldLength > 0 ? Find(pszOld) : -1;
    if (found < 0) {
        return 0;
    }
    const int newLength = LengthOf(pszNew);
    CString result;
    int copied = 0;
    int replaced = 0;
    for (; found >= 0; found = Find(pszOld, copied)) {
        result.Append(m_characters + copied, found - copied);
        result.Append(pszNew, newLength);
        copied = found + oldLength;
        ++replaced;
    }
    result.Append(m_characters + copied, GetLength() - copied);
    *this = result;
    return replaced;
}

int CString::Delete(int iIndex, int nCount) {
    const int index = (std::min)((std::max)(iIndex, 0), GetLength());
    const int count = (std::min)((std::max)(nCount, 0), GetLength() - index);
    if (count > 0) {
        replaceRange(index, count, nullptr, 0);
    }
    return GetLength();
}

// Search

int CString::Find(XCHAR ch, int iStart) const noexcept {
    if (iStart < 0 || iStart >= GetLength()) {
        return -1;
    }
    const void* const found = _mbschr(Bytes(m_characters + iStart), static_cast<BYTE>(ch));
    const int index = found != nullptr ? distance(m_characters, found) : GetLength();
    return index < GetLength() ? index : -1; // the terminating null is no part of the string
}

int CString::Find(PCXSTR pszSub, int iStart) const noexcept {
    if (pszSub == nullptr || iStart < 0 || iStart > GetLength()) {
        return -1;
    }
    const void* const found = _mbsstr(Bytes(m_characters + iStart), Bytes(pszSub));
    return found != nullptr ? distance(m_characters, found) : -1;
}

int CString::ReverseFind(XCHAR ch) const noexcept {
    if (ch == '\0') {
        return -1;
    }
    const void* const found = _mbsrchr(Bytes(m_characters), static_cast<BYTE>(ch));
    return found != nullptr ? distance(m_characters, found) : -1;
}
