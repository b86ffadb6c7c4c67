// SPDX-License-Identifier: MIT
/// @file
/// CString: the narrow (multi-byte) string.
///
///     CString text;
///     text.Format("%d of %d", done, total);
///     text.TrimRight();
///     window.SetWindowText(text);
#pragma once

#include "afx/Types.h"

#include <cstdarg>
#include <cstddef>

namespace afx {
struct StringBlock;
}

/// A string of multi-byte characters in the ANSI code page. Lengths and indices count bytes;
/// searching, comparing and case conversion respect double-byte characters.
///
/// The object is one pointer to its characters, so that a cast to LPCTSTR costs nothing. Copies
/// share one reference-counted block until one of them changes. Different objects may be used by
/// different threads, even when they share a block. Where there is no memory for the result the
/// functions throw CMemoryException, for an index outside the string CInvalidArgException.
class CString {
public:
    typedef char XCHAR;
    typedef char* PXSTR;
    typedef const char* PCXSTR;
    typedef wchar_t YCHAR;
    typedef wchar_t* PYSTR;
    typedef const wchar_t* PCYSTR;

    CString() noexcept;
    CString(const CString& strSrc);
    /// @param pszSrc text to copy; null gives an empty string; a resource identifier made by
    ///               MAKEINTRESOURCE loads that string.
    CString(const XCHAR* pszSrc);
    /// Converts from UTF-16 to the ANSI code page. Null gives an empty string.
    explicit CString(const YCHAR* pszSrc);
    explicit CString(const unsigned char* pszSrc);
    explicit CString(char ch, int nLength = 1);
    explicit CString(wchar_t ch, int nLength = 1);
    CString(const XCHAR* pch, int nLength);
    CString(const YCHAR* pch, int nLength);
    ~CString() noexcept;

    CString& operator=(const CString& strSrc);
    CString& operator=(PCXSTR pszSrc);
    CString& operator=(PCYSTR pszSrc);
    CString& operator=(const unsigned char* pszSrc);
    CString& operator=(XCHAR ch);
    CString& operator=(YCHAR ch);

    // Access

    int GetLength() const noexcept;
    bool IsEmpty() const noexcept;
    void Empty() noexcept;
    XCHAR GetAt(int iChar) const;
    void SetAt(int iChar, XCHAR ch);
    /// Like GetAt; the index of the terminating null is accepted as well.
    XCHAR operator[](int iChar) const;
    /// The characters, terminated by a null and never null themselves. Valid until the next change.
    operator PCXSTR() const noexcept;
    PCXSTR GetString() const noexcept;
    void SetString(PCXSTR pszSrc);
    void SetString(PCXSTR pszSrc, int nLength);

    // The character buffer

    int GetAllocLength() const noexcept;
    /// A buffer for at least nMinBufferLength characters and a null, filled with the present text.
    /// Call ReleaseBuffer after writing to it and before any other member.
    PXSTR GetBuffer(int nMinBufferLength);
    PXSTR GetBuffer();
    /// A buffer of exactly nLength characters, which is the length from now on.
    PXSTR GetBufferSetLength(int nLength);
    /// Ends writing through GetBuffer. -1 stands for the length up to the first null.
    void ReleaseBuffer(int nNewLength = -1);
    void ReleaseBufferSetLength(int nNewLength);
    /// Stops sharing of the buffer: copies made from now on get their own.
    PXSTR LockBuffer();
    void UnlockBuffer() noexcept;
    void Preallocate(int nLength);
    void FreeExtra();
    void Truncate(int nNewLength);

    // Comparison

    int Compare(PCXSTR psz) const;
    int CompareNoCase(PCXSTR psz) const;
    int Collate(PCXSTR psz) const;
    int CollateNoCase(PCXSTR psz) const;

    // Parts

    CString Mid(int iFirst) const;
    CString Mid(int iFirst, int nCount) const;
    CString Left(int nCount) const;
    CString Right(int nCount) const;
    /// The characters at the start that all occur in the set.
    CString SpanIncluding(PCXSTR pszCharSet) const;
    /// The characters before the first one that occurs in the set.
    CString SpanExcluding(PCXSTR pszCharSet) const;
    /// The next token at or after iStart, where any character of pszTokens separates tokens.
    /// @param iStart receives the index behind the token and its separator, -1 when there is none.
    CString Tokenize(PCXSTR pszTokens, int& iStart) const;

    // Changes

    void Append(PCXSTR pszSrc);
    void Append(PCXSTR pszSrc, int nLength);
    void Append(const CString& strSrc);
    void AppendChar(XCHAR ch);
    CString& operator+=(const CString& str);
    CString& operator+=(PCXSTR pszSrc);
    CString& operator+=(PCYSTR pszSrc);
    CString& operator+=(char ch);
    CString& operator+=(unsigned char ch);
    CString& operator+=(wchar_t ch);
    CString& MakeUpper();
    CString& MakeLower();
    CString& MakeReverse();
    CString& TrimLeft();
    CString& TrimLeft(XCHAR chTarget);
    CString& TrimLeft(PCXSTR pszTargets);
    CString& TrimRight();
    CString& TrimRight(XCHAR chTarget);
    CString& TrimRight(PCXSTR pszTargets);
    CString& Trim();
    CString& Trim(XCHAR chTarget);
    CString& Trim(PCXSTR pszTargets);
    /// @return the number of characters replaced.
    int Replace(XCHAR chOld, XCHAR chNew);
    /// @return the number of occurrences replaced.
    int Replace(PCXSTR pszOld, PCXSTR pszNew);
    /// @return the number of characters removed.
    int Remove(XCHAR chRemove);
    /// Inserts before iIndex; an index behind the end appends. @return the new length.
    int Insert(int iIndex, XCHAR ch);
    int Insert(int iIndex, PCXSTR psz);
    /// @return the new length.
    int Delete(int iIndex, int nCount = 1);
    void AnsiToOem();
    void OemToAnsi();

    // Search: all answer an index, or -1

    int Find(XCHAR ch, int iStart = 0) const noexcept;
    int Find(PCXSTR pszSub, int iStart = 0) const noexcept;
    int FindOneOf(PCXSTR pszCharSet) const noexcept;
    int ReverseFind(XCHAR ch) const noexcept;

    // Formatting and resources

    void AFX_CDECL Format(PCXSTR pszFormat, ...);
    /// @param nFormatID string resource that holds the format.
    void AFX_CDECL Format(UINT nFormatID, ...);
    void FormatV(PCXSTR pszFormat, va_list args);
    void AFX_CDECL AppendFormat(PCXSTR pszFormat, ...);
    void AFX_CDECL AppendFormat(UINT nFormatID, ...);
    /// Formats with the inserts of the system's message tables, "%1!s!" and so on.
    void AFX_CDECL FormatMessage(PCXSTR pszFormat, ...);
    void AFX_CDECL FormatMessage(UINT nFormatID, ...);
    void FormatMessageV(PCXSTR pszFormat, va_list* pArgList);
    /// Loads a string resource. @return nonzero on success; otherwise the string is unchanged.
    BOOL LoadString(UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID);
    /// @return nonzero when the variable exists; otherwise the string is empty.
    BOOL GetEnvironmentVariable(PCXSTR pszVar);

    // Characters without an object

    static int StringLength(PCXSTR psz) noexcept;
    static void CopyChars(XCHAR* pchDest, const XCHAR* pchSrc, int nChars) noexcept;
    static void CopyChars(XCHAR* pchDest, size_t nDestLen, const XCHAR* pchSrc,
                          int nChars) noexcept;
    static void CopyCharsOverlapped(XCHAR* pchDest, const XCHAR* pchSrc, int nChars) noexcept;

private:
    afx::StringBlock* block() const noexcept;
    void assignBytes(const char* text, int length);
    void assignWide(const wchar_t* text, int length);
    void replaceRange(int first, int count, const char* text, int length);
    char* writable(int minLength);
    void setLength(int length) noexcept;
    bool pointsInto(const char* text) const noexcept;
    void checkIndex(int index, int limit) const;
    BOOL loadIfResource(const char* text);

    char* m_characters;
};

typedef CString CStringA;

CString operator+(const CString& str1, const CString& str2);
CString operator+(const CString& str1, CString::PCXSTR psz2);
CString operator+(CString::PCXSTR psz1, const CString& str2);
CString operator+(const CString& str1, char ch2);
CString operator+(char ch1, const CString& str2);
CString operator+(const CString& str1, wchar_t ch2);
CString operator+(wchar_t ch1, const CString& str2);

bool operator==(const CString& str1, const CString& str2);
bool operator==(const CString& str1, CString::PCXSTR psz2);
bool operator==(CString::PCXSTR psz1, const CString& str2);
bool operator==(const CString& str1, CString::PCYSTR psz2);
bool operator==(CString::PCYSTR psz1, const CString& str2);
bool operator==(const CString& str1, CString::XCHAR ch2);
bool operator==(CString::XCHAR ch1, const CString& str2);
bool operator!=(const CString& str1, const CString& str2);
bool operator!=(const CString& str1, CString::PCXSTR psz2);
bool operator!=(CString::PCXSTR psz1, const CString& str2);
bool operator!=(const CString& str1, CString::PCYSTR psz2);
bool operator!=(CString::PCYSTR psz1, const CString& str2);
bool operator!=(const CString& str1, CString::XCHAR ch2);
bool operator!=(CString::XCHAR ch1, const CString& str2);
bool operator<(const CString& str1, const CString& str2);
bool operator<(const CString& str1, CString::PCXSTR psz2);
bool operator<(CString::PCXSTR psz1, const CString& str2);
bool operator>(const CString& str1, const CString& str2);
bool operator>(const CString& str1, CString::PCXSTR psz2);
bool operator>(CString::PCXSTR psz1, const CString& str2);
bool operator<=(const CString& str1, const CString& str2);
bool operator<=(const CString& str1, CString::PCXSTR psz2);
bool operator<=(CString::PCXSTR psz1, const CString& str2);
bool operator>=(const CString& str1, const CString& str2);
bool operator>=(const CString& str1, CString::PCXSTR psz2);
bool operator>=(CString::PCXSTR psz1, const CString& str2);
