// SPDX-License-Identifier: MIT
#include "afx/CString.h"

CString operator+(const CString& str1, const CString& str2) {
    CString sum(str1);
    sum += str2;
    return sum;
}

CString operator+(const CString& str1, CString::PCXSTR psz2) {
    CString sum(str1);
    sum += psz2;
    return sum;
}

CString operator+(CString::PCXSTR psz1, const CString& str2) {
    CString sum;
    sum += psz1;
    sum += str2;
    return sum;
}

CString operator+(const CString& str1, char ch2) {
    CString sum(str1);
    sum += ch2;
    return sum;
}

CString operator+(char ch1, const CString& str2) {
    CString sum(ch1);
    sum += str2;
    return sum;
}

CString operator+(const CString& str1, wchar_t ch2) {
    return str1 + CString(ch2);
}

CString operator+(wchar_t ch1, const CString& str2) {
    return CString(ch1) + str2;
}

bool operator==(const CString& str1, const CString& str2) {
    return str1.Compare(str2) == 0;
}

bool operator==(const CString& str1, CString::PCXSTR psz2) {
    return str1.Compare(psz2) == 0;
}

bool operator==(CString::PCXSTR psz1, const CString& str2) {
    return str2.Compare(psz1) == 0;
}

bool operator==(const CString& str1, CString::PCYSTR psz2) {
    return str1 == CString(psz2);
}

bool operator==(CString::PCYSTR psz1, const CString& str2) {
    return str2 == CString(psz1);
}

bool operator==(const CString& str1, CString::XCHAR ch2) {
    return str1.GetLength() == 1 && str1.GetAt(0) == ch2;
}

bool operator==(CString::XCHAR ch1, const CString& str2) {
    return str2 == ch1;
}

bool operator!=(const CString& str1, const CString& str2) {
    return !(str1 == str2);
}

bool operator!=(const CString& str1, CString::PCXSTR psz2) {
    return !(str1 == psz2);
}

bool operator!=(CString::PCXSTR psz1, const CString& str2) {
    return !(psz1 == str2);
}

bool operator!=(const CString& str1, CString::PCYSTR psz2) {
    return !(str1 == psz2);
}

bool operator!=(CString::PCYSTR psz1, const CString& str2) {
    return !(psz1 == str2);
}

bool operator!=(const CString& str1, CString::XCHAR ch2) {
    return !(str1 == ch2);
}

bool operator!=(CString::XCHAR ch1, const CString& str2) {
    return !(ch1 == str2);
}

bool operator<(const CString& str1, const CString& str2) {
    return str1.Compare(str2) < 0;
}

bool operator<(const CString& str1, CString::PCXSTR psz2) {
    return str1.Compare(psz2) < 0;
}

bool operator<(CString::PCXSTR psz1, const CString& str2) {
    return str2.Compare(psz1) > 0;
}

bool operator>(const CString& str1, const CString& str2) {
    return str2 < str1;
}

bool operator>(const CString& str1, CString::PCXSTR psz2) {
    return psz2 < str1;
}

bool operator>(CString::PCXSTR psz1, const CString& str2) {
    return str2 < psz1;
}

bool operator<=(const CString& str1, const CString& str2) {
    return !(str1 > str2);
}

bool operator<=(const CString& str1, CString::PCXSTR psz2) {
    return !(str1 > psz2);
}

bool operator<=(CString::PCXSTR psz1, const CString& str2) {
    return !(psz1 > str2);
}

bool operator>=(const CString& str1, const CString& str2) {
    return !(str1 < str2);
}

bool operator>=(const CString& str1, CString::PCXSTR psz2) {
    return !(str1 < psz2);
}

bool operator>=(CString::PCXSTR psz1, const CString& str2) {
    return !(psz1 < str2);
}
