// SPDX-License-Identifier: MIT
#include "MultiByte.h"

#include "afx/CException.h"

#include <climits>
#include <cstring>
#include <cwchar>
#include <mbctype.h>
#include <mbstring.h>

namespace afx {

const char* OrEmpty(const char* text) noexcept {
    return text != nullptr ? text : "";
}

int LengthOf(const char* text) {
    const size_t length = text != nullptr ? std::strlen(text) : 0;
    if (length > INT_MAX) {
        AfxThrowMemoryException();
    }
    return static_cast<int>(length);
}

int LengthOf(const wchar_t* text) {
    const size_t length = text != nullptr ? std::wcslen(text) : 0;
    if (length > INT_MAX) {
        AfxThrowMemoryException();
    }
    return static_cast<int>(length);
}

const unsigned char* Bytes(const char* text) noexcept {
    return reinterpret_cast<const unsigned char*>(text);
}

int CharacterSize(const char* text, int index, int length) noexcept {
    const bool isDouble = index + 1 < length && _ismbblead(static_cast<BYTE>(text[index]));
    return isDouble ? 2 : 1;
}

bool IsInSet(const char* character, int size, const char* set) noexcept {
    if (size == 1) {
        return *character != '\0' && _mbschr(Bytes(set), static_cast<BYTE>(*character)) != nullptr;
    }
    const unsigned pair = (static_cast<BYTE>(character[0]) << 8) | static_cast<BYTE>(character[1]);
    return _mbschr(Bytes(set), pair) != nullptr;
}

int EndOfSpan(const char* text, int index, int length, const char* set, bool inSet) noexcept {
    while (index < length) {
        const int size = CharacterSize(text, index, length);
        if (IsInSet(text + index, size, set) != inSet) {
            break;
        }
        index += size;
    }
    return index;
}

} // namespace afx
