// SPDX-License-Identifier: MIT
// The characters and their buffer; what is done with them stands in CStringEdit.cpp.
#include "afx/CString.h"

#include "MultiByte.h"
#include "StringBlock.h"
#include "afx/CException.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <functional>
#include <string>

using afx::LengthOf;
using afx::StringBlock;

namespace {

int sumOfLengths(int a, int b) {
    if (a > INT_MAX - b) {
        AfxThrowMemoryException();
    }
    return a + b;
}

} // namespace

// The object can be read as a pointer to its characters.
static_assert(sizeof(CString) == sizeof(char*));

// Construction and assignment

CString::CString() noexcept : m_characters(StringBlock::empty()->text()) {}

CString::CString(const CString& strSrc) : CString() {
    *this = strSrc;
}

CString::CString(const XCHAR* pszSrc) : CString() {
    if (!loadIfResource(pszSrc)) {
        assignBytes(pszSrc, LengthOf(pszSrc));
    }
}

CString::CString(const YCHAR* pszSrc) : CString() {
    assignWide(pszSrc, LengthOf(pszSrc));
}

CString::CString(char ch, int nLength) : CString() {
    if (nLength > 0) {
        std::memset(GetBufferSetLength(nLength), ch, static_cast<size_t>(nLength));
    }
}

CString::CString(wchar_t ch, int nLength) : CString() {
    if (nLength > 0) {
        const std::wstring text(static_cast<size_t>(nLength), ch);
        assignWide(text.data(), nLength);
    }
}

CString::CString(const XCHAR* pch, int nLength) : CString() {
    assignBytes(pch, nLength);
}

CString::CString(const YCHAR* pch, int nLength) : CString() {
    assignWide(pch, nLength);
}

CString::~CString() noexcept {
    StringBlock::release(block());
}

CString& CString::operator=(const CString& strSrc) {
    StringBlock* const source = strSrc.block();
    if (source == block()) {
        return *this;
    }
    if (!source->isEmptyBlock()) {
        source->references.fetch_add(1);
    }
    StringBlock::release(block());
    m_characters = source->text();
    return *this;
}

CString& CString::operator=(PCXSTR pszSrc) {
    assignBytes(pszSrc, LengthOf(pszSrc));
    return *this;
}

// The character buffer

StringBlock* CString::block() const noexcept {
    return reinterpret_cast<StringBlock*>(m_characters) - 1;
}

/// The characters for writing, with room for minLength of them and for the present text. No other
/// string sees what is written.
char* CString::writable(int minLength) {
    StringBlock* const old = block();
    if (minLength < 0) {
        AfxThrowInvalidArgException();
    }
    if (old->isExclusive() && minLength <= old->capacity) {
        return m_characters;
    }
    int capacity = (std::max)(minLength, old->length);
    if (old->isExclusive() && capacity <= INT_MAX / 2) {
        // The string grows, and will probably go on growing.
        capacity = (std::max)(capacity, old->capacity + old->capacity / 2);
    }
    StringBlock* const fresh = StringBlock::allocate(capacity);
    std::memcpy(fresh->text(), old->text(), static_cast<size_t>(old->length) + 1);
    fresh->length = old->length;
    m_characters = fresh->text();
    StringBlock::release(old);
    return m_characters;
}

void CString::setLength(int length) noexcept {
    block()->length = length;
    m_characters[length] = '\0';
}

bool CString::pointsInto(const char* text) const noexcept {
    const std::less<> before;
    return !before(text, m_characters) && before(text, m_characters + GetAllocLength() + 1);
}

void CString::checkIndex(int index, int limit) const {
    if (index < 0 || index >= limit) {
        AfxThrowInvalidArgException();
    }
}

/// @param text  may be part of this string.
void CString::assignBytes(const char* text, int length) {
    if (length < 0 || (text == nullptr && length > 0)) {
        AfxThrowInvalidArgException();
    }
    if (length == 0) {
        Empty();
        return;
    }
    if (!block()->isExclusive() || length > block()->capacity) {
        StringBlock* const fresh = StringBlock::allocate(length);
        std::memcpy(fresh->text(), text, static_cast<size_t>(length));
        StringBlock::release(block());
        m_characters = fresh->text();
    } else {
        std::memmove(m_characters, text, static_cast<size_t>(length));
    }
    setLength(length);
}

void CString::assignWide(const wchar_t* text, int length) {
    if (length < 0 || (text == nullptr && length > 0)) {
        AfxThrowInvalidArgException();
    }
    if (length == 0) {
        Empty();
        return;
    }
    const int size = ::WideCharToMultiByte(CP_ACP, 0, text, length, nullptr, 0, nullptr, nullptr);
    if (size <= 0) {
        AfxThrowMemoryException();
    }
    char* const buffer = GetBufferSetLength(size);
    ::WideCharToMultiByte(CP_ACP, 0, text, length, buffer, size, nullptr, nullptr);
}

/// Replaces count characters from first on; both lie inside the string.
/// @param text  may be part of this string.
void CString::replaceRange(int first, int count, const char* text, int length) {
    const int oldLength = GetLength();
    const int newLength = sumOfLengths(oldLength - count, length);
    if (pointsInto(text)) {
        const std::string copy(text, static_cast<size_t>(length));
        replaceRange(first, count, copy.data(), length);
        return;
    }
    char* const buffer = writable((std::max)(newLength, oldLength));
    std::memmove(buffer + first + length, buffer + first + count,
                 static_cast<size_t>(oldLength - first - count));
    if (length > 0) {
        std::memcpy(buffer + first, text, static_cast<size_t>(length));
    }
    setLength(newLength);
}

int CString::GetLength() const noexcept {
    return block()->length;
}

int CString::GetAllocLength() const noexcept {
    return block()->capacity;
}

bool CString::IsEmpty() const noexcept {
    return GetLength() == 0;
}

void CString::Empty() noexcept {
    StringBlock::release(block());
    m_characters = StringBlock::empty()->text();
}

CString::XCHAR CString::GetAt(int iChar) const {
    checkIndex(iChar, GetLength() + 1);
    return m_characters[iChar];
}

void CString::SetAt(int iChar, XCHAR ch) {
    checkIndex(iChar, GetLength());
    writable(GetLength())[iChar] = ch;
}

CString::XCHAR CString::operator[](int iChar) const {
    return GetAt(iChar);
}

CString::operator PCXSTR() const noexcept {
    return m_characters;
}

CString::PCXSTR CString::GetString() const noexcept {
    return m_characters;
}

void CString::SetString(PCXSTR pszSrc) {
    assignBytes(pszSrc, LengthOf(pszSrc));
}

CString::PXSTR CString::GetBuffer(int nMinBufferLength) {
    return writable(nMinBufferLength);
}

CString::PXSTR CString::GetBufferSetLength(int nLength) {
    writable(nLength);
    setLength(nLength);
    return m_characters;
}

void CString::ReleaseBuffer(int nNewLength) {
    if (nNewLength == -1) {
        const size_t room = static_cast<size_t>(GetAllocLength());
        nNewLength = static_cast<int>(strnlen(m_characters, room));
    }
    ReleaseBufferSetLength(nNewLength);
}

void CString::ReleaseBufferSetLength(int nNewLength) {
    checkIndex(nNewLength, GetAllocLength() + 1);
    if (nNewLength == 0 && block()->isEmptyBlock()) {
        return;
    }
    writable(nNewLength);
    setLength(nNewLength);
}

void CString::Truncate(int nNewLength) {
    checkIndex(nNewLength, GetLength() + 1);
    if (nNewLength < GetLength()) {
        writable(nNewLength);
        setLength(nNewLength);
    }
}

// Characters without an object

int CString::StringLength(PCXSTR psz) noexcept {
    return psz != nullptr ? static_cast<int>(strnlen(psz, INT_MAX)) : 0;
}
