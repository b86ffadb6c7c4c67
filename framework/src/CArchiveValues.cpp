// SPDX-License-Identifier: MIT
// Numbers, strings, geometry and the counts of collections in an archive.
#include "afx/CArchive.h"

#include <climits>
#include <string>

namespace {

// Marks in front of a length that does not fit the field before it.
constexpr BYTE longerThanByte = 0xFF;
constexpr WORD longerThanWord = 0xFFFF;
constexpr WORD wideCharacters = 0xFFFE;
constexpr DWORD longerThanDword = 0xFFFFFFFF;

} // namespace

template <class VALUE>
CArchive& CArchive::put(VALUE value) {
    Write(&value, static_cast<INT>(sizeof(value)));
    return *this;
}

template <class VALUE>
CArchive& CArchive::get(VALUE& value) {
    VALUE read;
    readExactly(&read, sizeof(read));
    value = read;
    return *this;
}

CArchive& CArchive::operator<<(BYTE by) {
    return put(by);
}

CArchive& CArchive::operator<<(WORD w) {
    return put(w);
}

CArchive& CArchive::operator<<(LONG l) {
    return put(l);
}

CArchive& CArchive::operator<<(DWORD dw) {
    return put(dw);
}

CArchive& CArchive::operator<<(float f) {
    return put(f);
}

CArchive& CArchive::operator<<(double d) {
    return put(d);
}

CArchive& CArchive::operator<<(int i) {
    return put(i);
}

CArchive& CArchive::operator<<(short w) {
    return put(w);
}

CArchive& CArchive::operator<<(char ch) {
    return put(ch);
}

CArchive& CArchive::operator<<(wchar_t ch) {
    return put(ch);
}

CArchive& CArchive::operator<<(unsigned u) {
    return put(u);
}

CArchive& CArchive::operator<<(bool b) {
    return put(static_cast<BYTE>(b));
}

CArchive& CArchive::operator<<(ULONGLONG dwdw) {
    return put(dwdw);
}

CArchive& CArchive::operator<<(LONGLONG dwdw) {
    return put(dwdw);
}

CArchive& CArchive::operator>>(BYTE& by) {
    return get(by);
}

CArchive& CArchive::operator>>(WORD& w) {
    return get(w);
}

CArchive& CArchive::operator>>(LONG& l) {
    return get(l);
}

CArchive& CArchive::operator>>(DWORD& dw) {
    return get(dw);
}

CArchive& CArchive::operator>>(float& f) {
    return get(f);
}

CArchive& CArchive::operator>>(double& d) {
    return get(d);
}

CArchive& CArchive::operator>>(int& i) {
    return get(i);
}

CArchive& CArchive::operator>>(short& w) {
    return get(w);
}

CArchive& CArchive::operator>>(char& ch) {
    return get(ch);
}

CArchive& CArchive::operator>>(wchar_t& ch) {
    return get(ch);
}

CArchive& CArchive::operator>>(unsigned& u) {
    return get(u);
}

CArchive& CArchive::operator>>(bool& b) {
    BYTE value; // any byte may stand in the file, but not in a bool
    get(value);
    b = value != 0;
    return *this;
}

CArchive& CArchive::operator>>(ULONGLONG& dwdw) {
    return get(dwdw);
}

CArchive& CArchive::operator>>(LONGLONG& dwdw) {
    return get(dwdw);
}

CArchive& AFXAPI operator<<(CArchive& ar, const RECT& rect) {
    return ar << rect.left << rect.top << rect.right << rect.bottom;
}

CArchive& AFXAPI operator<<(CArchive& ar, POINT point) {
    return ar << point.x << point.y;
}

CArchive& AFXAPI operator<<(CArchive& ar, SIZE size) {
    return ar << size.cx << size.cy;
}

CArchive& AFXAPI operator>>(CArchive& ar, RECT& rect) {
    return ar >> rect.left >> rect.top >> rect.right >> rect.bottom;
}

CArchive& AFXAPI operator>>(CArchive& ar, POINT& point) {
    return ar >> point.x >> point.y;
}

CArchive& AFXAPI operator>>(CArchive& ar, SIZE& size) {
    return ar >> size.cx >> size.cy;
}

CArchive& CArchive::operator<<(const CString& str) {
    const int length = str.GetLength();
    if (length < longerThanByte) {
        *this << static_cast<BYTE>(length);
    } else if (length < wideCharacters) {
        *this << longerThanByte << static_cast<WORD>(length);
    } else {
        *this << longerThanByte << longerThanWord << static_cast<DWORD>(length);
    }
    Write(str.GetString(), length);
    return *this;
}

/// @param wide  set when the characters are UTF-16, as a Unicode build writes them.
ULONGLONG CArchive::readStringLength(bool& wide) {
    wide = false;
    for (;;) {
        BYTE byteLength;
        *this >> byteLength;
        if (byteLength != longerThanByte) {
            return byteLength;
        }
        WORD wordLength;
        *this >> wordLength;
        if (wordLength == wideCharacters && !wide) {
            wide = true;
            continue;
        }
        if (wordLength == wideCharacters) {
            fail(CArchiveException::badIndex);
        }
        if (wordLength != longerThanWord) {
            return wordLength;
        }
        DWORD dwordLength;
        *this >> dwordLength;
        if (dwordLength != longerThanDword) {
            return dwordLength;
        }
        ULONGLONG length;
        *this >> length;
        return length;
    }
}

CArchive& CArchive::operator>>(CString& str) {
    bool wide = false;
    const ULONGLONG length = readStringLength(wide);
    if (length > bytesLeft() / (wide ? sizeof(wchar_t) : 1)) {
        fail(CArchiveException::endOfFile);
    }
    if (length > INT_MAX) {
        fail(CArchiveException::badIndex);
    }
    if (wide) {
        std::wstring text(static_cast<size_t>(length), L'\0');
        readExactly(text.data(), text.size() * sizeof(wchar_t));
        str = CString(text.data(), static_cast<int>(length));
    } else {
        CString text;
        readExactly(text.GetBufferSetLength(static_cast<int>(length)), static_cast<size_t>(length));
        str = text;
    }
    return *this;
}

namespace afx {

void ArchiveCount::write(CArchive& archive, INT_PTR count) {
    if (count < longerThanWord) {
        archive << static_cast<WORD>(count);
    } else if (count < static_cast<INT_PTR>(longerThanDword)) {
        archive << longerThanWord << static_cast<DWORD>(count);
    } else {
        archive << longerThanWord << longerThanDword << static_cast<ULONGLONG>(count);
    }
}

INT_PTR ArchiveCount::read(CArchive& archive, size_t minBytes) {
    WORD wordCount;
    archive >> wordCount;
    ULONGLONG count = wordCount;
    if (wordCount == longerThanWord) {
        DWORD dwordCount;
        archive >> dwordCount;
        count = dwordCount;
        if (dwordCount == longerThanDword) {
            archive >> count;
        }
    }
    if (count > archive.bytesLeft() / minBytes) {
        archive.fail(CArchiveException::endOfFile);
    }
    return static_cast<INT_PTR>(count);
}

} // namespace afx
