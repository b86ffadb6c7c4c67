// SPDX-License-Identifier: MIT
#pragma once

#include "image/CxMemFile.h"
#include "image/DecodeLimits.h"
#include "image/ImageBMP.h"

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

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

/// Runs the BMP decoder over `data`, which it cannot read past: the block is exactly as long.
inline bool DecodeBmp(const std::vector<uint8_t>& data, CxImageBMP& image) {
    const std::vector<uint8_t> exact(data.begin(), data.end());
    CxMemFile stream(const_cast<uint8_t*>(exact.data()), static_cast<uint32_t>(exact.size()));
    return image.DecodeBmp(&stream);
}

/// Puts the decode limits back at the end of a test.
class LimitsGuard {
public:
    LimitsGuard() : m_saved(tint::GetDecodeLimits()) {}
    ~LimitsGuard() { tint::SetDecodeLimits(m_saved); }
    LimitsGuard(const LimitsGuard&) = delete;
    LimitsGuard& operator=(const LimitsGuard&) = delete;

private:
    tint::DecodeLimits m_saved;
};

} // namespace imagetest
