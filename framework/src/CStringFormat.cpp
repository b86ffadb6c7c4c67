// SPDX-License-Identifier: MIT
// Formatting, string resources and the environment.
#include "afx/CString.h"

#include "ModuleState.h"
#include "afx/CException.h"

#include <climits>
#include <cstdio>
#include <memory>

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

CString loadFormat(UINT id) {
    CString format;
    if (!format.LoadString(id)) {
        AfxThrowResourceException();
    }
    return format;
}

struct LocalFreer {
    void operator()(char* memory) const noexcept { ::LocalFree(memory); }
};

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

void AFX_CDECL CString::Format(UINT nFormatID, ...) {
    const CString format = loadFormat(nFormatID);
    va_list args;
    va_start(args, nFormatID);
    FormatV(format, args);
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

void AFX_CDECL CString::AppendFormat(UINT nFormatID, ...) {
    const CString format = loadFormat(nFormatID);
    va_list args;
    va_start(args, nFormatID);
    Append(formatted(format, args));
    va_end(args);
}

void AFX_CDECL CString::FormatMessage(PCXSTR pszFormat, ...) {
    va_list args;
    va_start(args, pszFormat);
    FormatMessageV(pszFormat, &args);
    va_end(args);
}

void AFX_CDECL CString::FormatMessage(UINT nFormatID, ...) {
    const CString format = loadFormat(nFormatID);
    va_list args;
    va_start(args, nFormatID);
    FormatMessageV(format, &args);
    va_end(args);
}

void CString::FormatMessageV(PCXSTR pszFormat, va_list* pArgList) {
    char* message = nullptr;
    const DWORD length =
        ::FormatMessageA(FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER, pszFormat, 0,
                         0, reinterpret_cast<char*>(&message), 0, pArgList);
    const std::unique_ptr<char, LocalFreer> owner(message);
    if (length == 0 && ::GetLastError() == ERROR_NOT_ENOUGH_MEMORY) {
        AfxThrowMemoryException();
    }
    assignBytes(message, static_cast<int>(length));
}

BOOL CString::LoadString(UINT nID) {
    return LoadString(afx::ResourceHandle(), nID);
}

BOOL CString::LoadString(HINSTANCE hInstance, UINT nID) {
    const HRSRC table =
        ::FindResourceA(hInstance, tableName(nID), reinterpret_cast<char*>(RT_STRING));
    return assignFromTable(*this, hInstance, table, nID);
}

BOOL CString::LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID) {
    const HRSRC table = ::FindResourceExA(hInstance, reinterpret_cast<char*>(RT_STRING),
                                          tableName(nID), wLanguageID);
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

BOOL CString::GetEnvironmentVariable(PCXSTR pszVar) {
    Empty();
    // The variable may grow between the two calls, so ask until the buffer was large enough.
    DWORD size = ::GetEnvironmentVariableA(pszVar, nullptr, 0);
    while (size > 0) {
        CString value;
        char* const buffer = value.GetBuffer(static_cast<int>(size));
        const DWORD length = ::GetEnvironmentVariableA(pszVar, buffer, size + 1);
        if (length <= size) {
            value.ReleaseBuffer(static_cast<int>(length));
            *this = value;
            return TRUE;
        }
        size = length;
    }
    return FALSE;
}
