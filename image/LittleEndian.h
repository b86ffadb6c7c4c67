// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// @file
/// Little-endian fields of file headers, read byte by byte: no alignment is needed.

namespace tint {

/// The 16-bit value stored at `p`, low byte first.
inline uint16_t ReadLe16(const uint8_t* p) {
    return static_cast<uint16_t>(p[0] | p[1] << 8);
}

/// The 32-bit value stored at `p`, low byte first.
inline uint32_t ReadLe32(const uint8_t* p) {
    return ReadLe16(p) | static_cast<uint32_t>(ReadLe16(p + 2)) << 16;
}

} // namespace tint
