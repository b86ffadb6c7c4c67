// SPDX-License-Identifier: MIT
#include "afx/CString.h"

#include "StringBlock.h"
#include "afx/CException.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <functional>
#include <mbctype.h>
#include <mbstring.h>
#include <string>

using afx::StringBlock;

namespace {

const unsigned char* bytes(const char* text) {
    return reinterpret_cast<const unsigned char*>(text);
}

/// A null pointer stands for the empty string in all arguments.
const char* orEmpty(const char* text) {
    return text != nullptr ? text : "";
}

int lengthOf(const char* text) {
    const size_t length = text != nullptr ? std::strlen(text) : 0;
    if (length > INT_MAX) {
        AfxThrowMemoryException();
    }
    return static_cast<int>(length);
}

int lengthOf(const wchar_t* text) {
    const size_t length = text != nullptr ? std::wcslen(text) : 0;
    if (length > INT_MAX) {
        AfxThrowMemoryException();
    }
    return static_cast<int>(length);
}

int sumOfLengths(int a, int b) {
    if (a > INT_MAX - b) {
        AfxThrowMemoryException();
    }
    return a + b;
}

int distance(const char* first, const void* last) {
    return static_cast<int>(static_cast<const char*>(last) - first);
}

/// Bytes of the character at text[index], which may be the first half of a double-byte one.
int characterSize(const char* text, int index, int length) {
    const bool isDouble = index + 1 < length && _ismbblead(static_cast<BYTE>(text[index]));
    return isDouble ? 2 : 1;
}

bool isInSet(const char* character, int size, const char* set) {
    if (size == 1) {
        return *character != '\0' && _mbschr(bytes(set), static_cast<BYTE>(*character)) != nullptr;
    }
    const unsigned pair = (static_cast<BYTE>(character[0]) << 8) | static_cast<BYTE>(character[1]);
    return _mbschr(bytes(set), pair) != nullptr;
}

/// Where the characters that are in the set (or are not) end, seen from index on.
int endOfSpan(const char* text, int index, int length, const char* set, bool inSet) {
    while (index < length) {
        const int size = characterSize(text, index, length);
        if (isInSet(text + index, size, set) != inSet) {
            break;
        }
        index += size;
    }
    return index;
}

constexpr char whitespace[] = " \t\n\v\f\r";

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
        assignBytes(pszSrc, lengthOf(pszSrc));
    }
}

CString::CString(const YCHAR* pszSrc) : CString() {
    assignWide(pszSrc, lengthOf(pszSrc));
}

CString::CString(const unsigned char* pszSrc) : CString(reinterpret_cast<const char*>(pszSrc)) {}

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
    if (source->isLocked() || block()->isLocked()) {
        assignBytes(strSrc.m_characters, source->length);
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
    assignBytes(pszSrc, lengthOf(pszSrc));
    return *this;
}

CString& CString::operator=(PCYSTR pszSrc) {
    assignWide(pszSrc, lengthOf(pszSrc));
    return *this;
}

CString& CString::operator=(const unsigned char* pszSrc) {
    return *this = reinterpret_cast<const char*>(pszSrc);
}

CString& CString::operator=(XCHAR ch) {
    assignBytes(&ch, 1);
    return *this;
}

CString& CString::operator=(YCHAR ch) {
    assignWide(&ch, 1);
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
        const bool wasLocked = block()->isLocked();
        StringBlock* const fresh = StringBlock::allocate(length);
        std::memcpy(fresh->text(), text, static_cast<size_t>(length));
        StringBlock::release(block());
        m_characters = fresh->text();
        fresh->references = wasLocked ? StringBlock::locked : 1;
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
    if (block()->isLocked()) {
        setLength(0);
        return;
    }
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
    assignBytes(pszSrc, lengthOf(pszSrc));
}

void CString::SetString(PCXSTR pszSrc, int nLength) {
    if (nLength > 0 && pszSrc != nullptr) {
        nLength = static_cast<int>(strnlen(pszSrc, static_cast<size_t>(nLength)));
    }
    assignBytes(pszSrc, nLength);
}

CString::PXSTR CString::GetBuffer(int nMinBufferLength) {
    return writable(nMinBufferLength);
}

CString::PXSTR CString::GetBuffer() {
    return writable(0);
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

CString::PXSTR CString::LockBuffer() {
    writable(GetLength());
    block()->references = StringBlock::locked;
    return m_characters;
}

void CString::UnlockBuffer() noexcept {
    if (block()->isLocked()) {
        block()->references = 1;
    }
}

void CString::Preallocate(int nLength) {
    writable(nLength);
}

void CString::FreeExtra() {
    StringBlock* const old = block();
    if (old->length == old->capacity || old->isLocked()) {
        return;
    }
    StringBlock* const fresh = StringBlock::allocate(old->length);
    std::memcpy(fresh->text(), old->text(), static_cast<size_t>(old->length) + 1);
    fresh->length = old->length;
    m_characters = fresh->text();
    StringBlock::release(old);
}

void CString::Truncate(int nNewLength) {
    checkIndex(nNewLength, GetLength() + 1);
    if (nNewLength < GetLength()) {
        writable(nNewLength);
        setLength(nNewLength);
    }
}

// Comparison

int CString::Compare(PCXSTR psz) const {
    return _mbscmp(bytes(m_characters), bytes(orEmpty(psz)));
}

int CString::CompareNoCase(PCXSTR psz) const {
    return _mbsicmp(bytes(m_characters), bytes(orEmpty(psz)));
}

int CString::Collate(PCXSTR psz) const {
    return _mbscoll(bytes(m_characters), bytes(orEmpty(psz)));
}

int CString::CollateNoCase(PCXSTR psz) const {
    return _mbsicoll(bytes(m_characters), bytes(orEmpty(psz)));
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

CString CString::SpanIncluding(PCXSTR pszCharSet) const {
    return Left(endOfSpan(m_characters, 0, GetLength(), orEmpty(pszCharSet), true));
}

CString CString::SpanExcluding(PCXSTR pszCharSet) const {
    return Left(endOfSpan(m_characters, 0, GetLength(), orEmpty(pszCharSet), false));
}

CString CString::Tokenize(PCXSTR pszTokens, int& iStart) const {
    if (iStart < 0) {
        AfxThrowInvalidArgException();
    }
    const char* const separators = orEmpty(pszTokens);
    const int first = endOfSpan(m_characters, iStart, GetLength(), separators, true);
    if (first < GetLength()) {
        const int end = endOfSpan(m_characters, first, GetLength(), separators, false);
        iStart = end + 1;
        return Mid(first, end - first);
    }
    iStart = -1;
    return CString();
}

// Changes

void CString::Append(PCXSTR pszSrc) {
    Append(pszSrc, lengthOf(pszSrc));
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

CString& CString::operator+=(PCYSTR pszSrc) {
    return *this += CString(pszSrc);
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

CString& CString::MakeReverse() {
    const CString source(*this);
    const int length = GetLength();
    char* const buffer = writable(length);
    for (int index = 0; index < length;) {
        const int size = characterSize(source, index, length);
        std::memcpy(buffer + length - index - size, source.m_characters + index,
                    static_cast<size_t>(size));
        index += size;
    }
    return *this;
}

CString& CString::TrimLeft() {
    return TrimLeft(whitespace);
}

CString& CString::TrimLeft(XCHAR chTarget) {
    const char targets[] = {chTarget, '\0'};
    return TrimLeft(targets);
}

CString& CString::TrimLeft(PCXSTR pszTargets) {
    Delete(0, endOfSpan(m_characters, 0, GetLength(), orEmpty(pszTargets), true));
    return *this;
}

CString& CString::TrimRight() {
    return TrimRight(whitespace);
}

CString& CString::TrimRight(XCHAR chTarget) {
    const char targets[] = {chTarget, '\0'};
    return TrimRight(targets);
}

CString& CString::TrimRight(PCXSTR pszTargets) {
    // From the front: only so is it known which byte starts a character.
    const char* const targets = orEmpty(pszTargets);
    const int length = GetLength();
    int end = 0;
    for (int index = 0; index < length;) {
        const int size = characterSize(m_characters, index, length);
        if (!isInSet(m_characters + index, size, targets)) {
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

CString& CString::Trim(XCHAR chTarget) {
    return TrimRight(chTarget).TrimLeft(chTarget);
}

CString& CString::Trim(PCXSTR pszTargets) {
    return TrimRight(pszTargets).TrimLeft(pszTargets);
}

int CString::Replace(XCHAR chOld, XCHAR chNew) {
    int replaced = 0;
    if (chOld != chNew) {
        for (int found = Find(chOld); found >= 0; found = Find(chOld, found + 1)) {
            SetAt(found, chNew);
            ++replaced;
        }
    }
    return replaced;
}

int CString::Replace(PCXSTR pszOld, PCXSTR pszNew) {
    const int oldLength = lengthOf(pszOld);
    int found = oldLength > 0 ? Find(pszOld) : -1;
    if (found < 0) {
        return 0;
    }
    const int newLength = lengthOf(pszNew);
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

int CString::Remove(XCHAR chRemove) {
    const int length = GetLength();
    if (Find(chRemove) < 0) {
        return 0;
    }
    char* const buffer = writable(length);
    int kept = 0;
    for (int index = 0; index < length;) {
        const int size = characterSize(buffer, index, length);
        if (size == 2 || buffer[index] != chRemove) {
            std::memmove(buffer + kept, buffer + index, static_cast<size_t>(size));
            kept += size;
        }
        index += size;
    }
    setLength(kept);
    return length - kept;
}

int CString::Insert(int iIndex, XCHAR ch) {
    const int index = (std::min)((std::max)(iIndex, 0), GetLength());
    replaceRange(index, 0, &ch, 1);
    return GetLength();
}

int CString::Insert(int iIndex, PCXSTR psz) {
    const int index = (std::min)((std::max)(iIndex, 0), GetLength());
    const int length = lengthOf(psz);
    if (length > 0) {
        replaceRange(index, 0, psz, length);
    }
    return GetLength();
}

int CString::Delete(int iIndex, int nCount) {
    const int index = (std::min)((std::max)(iIndex, 0), GetLength());
    const int count = (std::min)((std::max)(nCount, 0), GetLength() - index);
    if (count > 0) {
        replaceRange(index, count, nullptr, 0);
    }
    return GetLength();
}

void CString::AnsiToOem() {
    char* const buffer = writable(0);
    ::CharToOemBuffA(buffer, buffer, static_cast<DWORD>(GetLength()));
}

void CString::OemToAnsi() {
    char* const buffer = writable(0);
    ::OemToCharBuffA(buffer, buffer, static_cast<DWORD>(GetLength()));
}

// Search

int CString::Find(XCHAR ch, int iStart) const noexcept {
    if (iStart < 0 || iStart >= GetLength()) {
        return -1;
    }
    const void* const found = _mbschr(bytes(m_characters + iStart), static_cast<BYTE>(ch));
    const int index = found != nullptr ? distance(m_characters, found) : GetLength();
    return index < GetLength() ? index : -1; // the terminating null is no part of the string
}

int CString::Find(PCXSTR pszSub, int iStart) const noexcept {
    if (pszSub == nullptr || iStart < 0 || iStart > GetLength()) {
        return -1;
    }
    const void* const found = _mbsstr(bytes(m_characters + iStart), bytes(pszSub));
    return found != nullptr ? distance(m_characters, found) : -1;
}

int CString::FindOneOf(PCXSTR pszCharSet) const noexcept {
    const void* const found = _mbspbrk(bytes(m_characters), bytes(orEmpty(pszCharSet)));
    return found != nullptr ? distance(m_characters, found) : -1;
}

int CString::ReverseFind(XCHAR ch) const noexcept {
    if (ch == '\0') {
        return -1;
    }
    const void* const found = _mbsrchr(bytes(m_characters), static_cast<BYTE>(ch));
    return found != nullptr ? distance(m_characters, found) : -1;
}

// Characters without an object

int CString::StringLength(PCXSTR psz) noexcept {
    return psz != nullptr ? static_cast<int>(strnlen(psz, INT_MAX)) : 0;
}

void CString::CopyChars(XCHAR* pchDest, const XCHAR* pchSrc, int nChars) noexcept {
    if (nChars > 0) {
        std::memcpy(pchDest, pchSrc, static_cast<size_t>(nChars));
    }
}

void CString::CopyChars(XCHAR* pchDest, size_t nDestLen, const XCHAR* pchSrc, int nChars) noexcept {
    if (nChars > 0) {
        std::memcpy(pchDest, pchSrc, (std::min)(nDestLen, static_cast<size_t>(nChars)));
    }
}

void CString::CopyCharsOverlapped(XCHAR* pchDest, const XCHAR* pchSrc, int nChars) noexcept {
    if (nChars > 0) {
        std::memmove(pchDest, pchSrc, static_cast<size_t>(nChars));
    }
}
