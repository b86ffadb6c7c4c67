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
    explicit CString(char ch, int nLength = 1);
    explicit CString(wchar_t ch, int nLength = 1);
    CString(const XCHAR* pch, int nLength);
    CString(const YCHAR* pch, int nLength);
    ~CString() noexcept;

    CString& operator=(const CString& strSrc);
    CString& operator=(PCXSTR pszSrc);

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

    // The character buffer

    int GetAllocLength() const noexcept;
    /// A buffer for at least nMinBufferLength characters and a null, filled with the present text.
    /// Call ReleaseBuffer after writing to it and before any other member.
    PXSTR GetBuffer(int nMinBufferLength);
    /// A buffer of exactly nLength characters, which is the length from now on.
    PXSTR GetBufferSetLength(int nLength);
    /// Ends writing through GetBuffer. -1 stands for the length up to the first null.
    void ReleaseBuffer(int nNewLength = -1);
    void ReleaseBufferSetLength(int nNewLength);
    void Truncate(int nNewLength);

    // Comparison

    int Compare(PCXSTR psz) const;
    int CompareNoCase(PCXSTR psz) const;

    // Parts

    CString Mid(int iFirst) const;
    CString Mid(int iFirst, int nCount) const;
    CString Left(int nCount) const;
    CString Right(int nCount) const;

    // Changes

    void Append(PCXSTR pszSrc);
    void Append(PCXSTR pszSrc, int nLength);
    void Append(const CString& strSrc);
    void AppendChar(XCHAR ch);
    CString& operator+=(const CString& str);
    CString& operator+=(PCXSTR pszSrc);
    CString& operator+=(char ch);
    CString& operator+=(unsigned char ch);
    CString& operator+=(wchar_t ch);
    CString& MakeUpper();
    CString& MakeLower();
    CString& TrimLeft();
    CString& TrimLeft(PCXSTR pszTargets);
    CString& TrimRight();
    CString& TrimRight(PCXSTR pszTargets);
    CString& Trim();
    /// @return the number of occurrences replaced.
    int Replace(PCXSTR pszOld, PCXSTR pszNew);
    /// @return the new length.
    int Delete(int iIndex, int nCount = 1);

    // Search: all answer an index, or -1

    int Find(XCHAR ch, int iStart = 0) const noexcept;
    int Find(PCXSTR pszSub, int iStart = 0) const noexcept;
    int ReverseFind(XCHAR ch) const noexcept;

    // Formatting and resources

    void AFX_CDECL Format(PCXSTR pszFormat, ...);
    void FormatV(PCXSTR pszFormat, va_list args);
    void AFX_CDECL AppendFormat(PCXSTR pszFormat, ...);
    /// Loads a string resource. @return nonzero on success; otherwise the string is unchanged.
    BOOL LoadString(UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID);

    // Characters without an object

    static int StringLength(PCXSTR psz) noexcept;

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
