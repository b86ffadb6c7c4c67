// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// @file
/// Bytes of made-up files, for tests and as seeds for the fuzzers.

namespace imagetest {

using Bytes = std::vector<uint8_t>;

/// Byte by byte: GCC warns of an overrun in the vector's own insertion behind a few known bytes.
inline void Append(Bytes& out, const Bytes& more) {
    for (const uint8_t byte : more)
        out.push_back(byte);
}

/// The low `bytes` bytes of `value`, lowest or highest first.
inline Bytes Number(uint64_t value, int bytes, bool highestFirst = false) {
    Bytes out;
    for (int i = 0; i < bytes; ++i)
        out.push_back(static_cast<uint8_t>(value >> 8 * (highestFirst ? bytes - 1 - i : i)));
    return out;
}

inline Bytes Cut(const Bytes& whole, size_t length) {
    return Bytes(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(length));
}

/// `made` after `change`, a lambda that takes it by reference.
template <class Made, class Change>
Made With(Made made, Change change) {
    change(made);
    return made;
}

} // namespace imagetest
