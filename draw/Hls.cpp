// SPDX-License-Identifier: MIT
#include "draw/Hls.h"

#include <algorithm>
#include <cstdint>

namespace {

DWORD PackHLS(BYTE hue, BYTE luminance, BYTE saturation) {
    return static_cast<DWORD>(hue) | static_cast<DWORD>(luminance) << 8 |
           static_cast<DWORD>(saturation) << 16;
}

BYTE HueOf(DWORD hls) {
    return static_cast<BYTE>(hls);
}

BYTE LuminanceOf(DWORD hls) {
    return static_cast<BYTE>(hls >> 8);
}

BYTE SaturationOf(DWORD hls) {
    return static_cast<BYTE>(hls >> 16);
}

BYTE ToByte(float value) {
    return static_cast<BYTE>(static_cast<int>(value));
}

/// Hue in degrees of a colour that is not grey: above 0, up to and including 360.
float HueDegrees(int red, int green, int blue, int largest, float range) {
    const float redDistance = static_cast<float>(largest - red) / range;
    const float greenDistance = static_cast<float>(largest - green) / range;
    const float blueDistance = static_cast<float>(largest - blue) / range;

    // Where two channels share the maximum the later one decides; both formulas then agree, but
    // only up to rounding, so the order is part of the result.
    float hue = 0.0f;
    if (red == largest)
        hue = 60.0f * (6.0f + blueDistance - greenDistance);
    if (green == largest)
        hue = 60.0f * (2.0f + redDistance - blueDistance);
    if (blue == largest)
        hue = 60.0f * (4.0f + greenDistance - redDistance);

    // Exactly 360 stays: pure red keeps the hue byte 255.
    return hue > 360.0f ? hue - 360.0f : hue;
}

/// Moves `value` by `percent` of the way to 255 (positive) or to 0 (negative).
BYTE MoveTowardsEnd(BYTE value, int percent) {
    // 64 bits, so that no percentage overflows.
    const std::int64_t from = value;
    if (percent >= 1)
        return static_cast<BYTE>(from + (255 - from) * percent / 100);
    if (percent < 0)
        return static_cast<BYTE>(from * (static_cast<std::int64_t>(percent) + 100) / 100);
    return value;
}

} // namespace

DWORD RGBToHLS(COLORREF color) {
    const int red = GetRValue(color);
    const int green = GetGValue(color);
    const int blue = GetBValue(color);
    const int largest = std::max({red, green, blue});
    const int smallest = std::min({red, green, blue});
    const auto sum = static_cast<float>(largest + smallest);

    const float luminance = sum / 510.0f;
    float hue = 0.0f;
    float saturation = 0.0f;
    if (largest != smallest) {
        const auto range = static_cast<float>(largest - smallest);
        saturation = luminance <= 0.5f ? range / sum : range / (510.0f - sum);
        hue = HueDegrees(red, green, blue, largest, range);
    }
    return PackHLS(ToByte(hue * 255.0f / 360.0f), ToByte(luminance * 255.0f),
                   ToByte(saturation * 255.0f));
}

COLORREF HLSToRGB(DWORD hls) {
    const BYTE grey = LuminanceOf(hls);
    if (SaturationOf(hls) == 0)
        return RGB(grey, grey, grey);

    const float hue = static_cast<float>(HueOf(hls) * 360) / 255.0f;
    const float luminance = static_cast<float>(grey) / 255.0f;
    const float saturation = static_cast<float>(SaturationOf(hls)) / 255.0f;
    const float m2 = luminance <= 0.5f ? luminance + luminance * saturation
                                       : luminance + saturation - luminance * saturation;
    const float m1 = 2.0f * luminance - m2;

    const auto red = static_cast<BYTE>(HueToComponent(m1, m2, hue + 120.0f));
    const auto green = static_cast<BYTE>(HueToComponent(m1, m2, hue));
    const auto blue = static_cast<BYTE>(HueToComponent(m1, m2, hue - 120.0f));
    return RGB(red, green, blue);
}

int HueToComponent(float m1, float m2, float hue) {
    if (hue > 360.0f)
        hue -= 360.0f;
    else if (hue < 0.0f)
        hue += 360.0f;

    float value = m1;
    if (hue < 60.0f)
        value = m1 + (m2 - m1) * hue / 60.0f;
    else if (hue < 180.0f)
        value = m2;
    else if (hue < 240.0f)
        value = m1 + (m2 - m1) * (240.0f - hue) / 60.0f;
    return static_cast<int>(value * 255.0f);
}

COLORREF AdjustColorLS(COLORREF color, int luminance, int saturation) {
    const DWORD hls = RGBToHLS(color);
    return HLSToRGB(PackHLS(HueOf(hls), MoveTowardsEnd(LuminanceOf(hls), luminance),
                            MoveTowardsEnd(SaturationOf(hls), saturation)));
}
