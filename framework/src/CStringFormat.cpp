// SPDX-License-Identifier: MIT
// Formatting and string resources.
#include "afx/CString.h"

#include "ModuleState.h"
#include "afx/CException.h"

#include <climits>
#include <cstdio>

namespace {

CString formatted(const char* format, va_list args) {
    if (format == nullptr) {
        AfxThrowInvalidArgException();
    }
    va_list again;
    va_copy(again, args);
    const int length = std::vsnprintf(nullptr, 0, format, again);
    va_end(again);
    if (length < 0 || length == INT_MAX) {
        AfxThrowInvalidArgException();
    }
    CString text;
    // The terminating null is written too; every buffer has room for it.
    std::vsnprintf(text.GetBufferSetLength(length), static_cast<size_t>(length) + 1, format, args);
    return text;
}

/// Strings are stored in tables of sixteen; each string is its length and that many UTF-16 units.
constexpr UINT stringsPerTable = 16;

LPSTR tableName(UINT id) {
    return MAKEINTRESOURCEA(id / stringsPerTable + 1);
}

/// Finds a string in its table. Answers false when it is missing or empty, or the table is cut off.
bool findInTable(HINSTANCE module, HRSRC table, UINT id, const WORD*& text, int& length) {
    const HGLOBAL loaded = table != nullptr ? ::LoadResource(module, table) : nullptr;
    const WORD* words = static_cast<const WORD*>(::LockResource(loaded));
    if (words == nullptr) {
        return false;
    }
    const WORD* const end = words + ::SizeofResource(module, table) / sizeof(WORD);
    for (UINT skip = id % stringsPerTable; words < end; --skip) {
        const WORD size = *words++;
        if (size > end - words) {
            return false;
        }
        if (skip == 0) {
            text = words;
            length = size;
            return size > 0;
        }
        words += size;
    }
    return false;
}

BOOL assignFromTable(CString& string, HINSTANCE module, HRSRC table, UINT id) {
    const WORD* text = nullptr;
    int length = 0;
    if (!findInTable(module, table, id, text, length)) {
        return FALSE;
    }
    static_assert(sizeof(wchar_t) == sizeof(WORD));
    string = CString(reinterpret_cast<const wchar_t*>(text), length);
    return TRUE;
}

} // namespace

void AFX_CDECL CString::Format(PCXSTR pszFormat, ...) {
    va_list args;
    va_start(args, pszFormat);
    FormatV(pszFormat, args);
    va_end(args);
}

void CString::FormatV(PCXSTR pszFormat, va_list args) {
    *this = formatted(pszFormat, args);
}

void AFX_CDECL CString::AppendFormat(PCXSTR pszFormat, ...) {
    va_list args;
    va_start(args, pszFormat);
    Append(formatted(pszFormat, args));
    va_end(args);
}

BOOL CString::LoadString(UINT nID) {
    return LoadString(afx::ResourceHandle(), nID);
}

BOOL CString::LoadString(HINSTANCE hInstance, UINT nID) {
    const HRSRC table =
        ::FindResourceA(hInstance, tableName(nID), reinterpret_cast<char*>(RT_STRING));
    return assignFromTable(*this, hInstance, table, nID);
}

BOOL CString::loadIfResource(const char* text) {
    if (text == nullptr || !IS_INTRESOURCE(text)) {
        return FALSE;
    }
    if (!LoadString(static_cast<UINT>(reinterpret_cast<UINT_PTR>(text)))) {
        Empty(); // an identifier without a string is an empty string, never an address
    }
    return TRUE;
}
