// SPDX-License-Identifier: MIT
#pragma once

namespace afx {

/// A null pointer stands for the empty string in all arguments of CString.
const char* OrEmpty(const char* text) noexcept;

/// Length of a text that may be null. Throws CMemoryException when it exceeds an int.
int LengthOf(const char* text);
int LengthOf(const wchar_t* text);

/// The form in which the multi-byte functions of the C library take a text.
const unsigned char* Bytes(const char* text) noexcept;

/// Bytes of the character at text[index]: 1, or 2 for a double-byte one.
int CharacterSize(const char* text, int index, int length) noexcept;

/// Where the characters end, seen from index on, that are in the set (inSet) or are not.
int EndOfSpan(const char* text, int index, int length, const char* set, bool inSet) noexcept;

/// True when the character of the given size occurs in the set.
bool IsInSet(const char* character, int size, const char* set) noexcept;

} // namespace afx
