// SPDX-License-Identifier: MIT
#pragma once

#include "image/CxMemFile.h"
#include "image/DecodeLimits.h"
#include "image/IsImage.h"
#include "tests/image/Bytes.h"

#include <cstdio>
#include <string>

/// @file
/// What the image tests share.

namespace imagetest {

/// The picture as text, top row first: colours as RRGGBB, rows separated by " / ".
inline std::string Picture(const IsImage& image) {
    std::string text;
    for (uint32_t y = image.Height(); y-- > 0;) {
        for (uint32_t x = 0; x < image.Width(); ++x) {
            const RGBQUAD color = image.GetPixelColor(x, y);
            char hex[8];
            snprintf(hex, sizeof(hex), "%02X%02X%02X", color.rgbRed, color.rgbGreen, color.rgbBlue);
            text += text.empty() || text.back() == ' ' ? "" : " ";
            text += hex;
        }
        text += y > 0 ? " / " : "";
    }
    return text;
}

/// The palette indices of the picture as hexadecimal digits, top row first, rows separated by "/".
inline std::string Indices(const IsImage& image) {
    std::string text;
    for (uint32_t y = image.Height(); y-- > 0;) {
        for (uint32_t x = 0; x < image.Width(); ++x)
            text += "0123456789ABCDEF"[image.GetPixelIndex(x, y) & 15];
        text += y > 0 ? "/" : "";
    }
    return text;
}

/// Runs a decoder over `data`, which it cannot read past: the block is exactly as long.
inline bool Decode(const Bytes& data, IsImage& image, uint32_t type) {
    const Bytes exact(data.begin(), data.end());
    CxMemFile stream(const_cast<uint8_t*>(exact.data()), static_cast<uint32_t>(exact.size()));
    return image.DecodeByType(type, &stream);
}

/// Sets decode limits, and puts the old ones back at the end of a test.
class LimitsGuard {
public:
    explicit LimitsGuard(const tint::DecodeLimits& limits = {}) : m_saved(tint::GetDecodeLimits()) {
        tint::SetDecodeLimits(limits);
    }
    ~LimitsGuard() { tint::SetDecodeLimits(m_saved); }
    LimitsGuard(const LimitsGuard&) = delete;
    LimitsGuard& operator=(const LimitsGuard&) = delete;

private:
    tint::DecodeLimits m_saved;
};

} // namespace imagetest
