// SPDX-License-Identifier: MIT
#include "imageinfo/ResampleOption.h"

namespace {

/// Takes a decimal number of 31 bits from the front of `text`.
bool TakeNumber(std::string& text, int32_t& number) {
    int64_t value = 0;
    size_t length = 0;
    for (; length < text.size() && text[length] >= '0' && text[length] <= '9'; ++length) {
        value = value * 10 + (text[length] - '0');
        if (value > INT32_MAX)
            return false;
    }
    text.erase(0, length);
    number = static_cast<int32_t>(value);
    return length > 0;
}

bool TakeCharacter(std::string& text, char character) {
    if (text.empty() || text[0] != character)
        return false;
    text.erase(0, 1);
    return true;
}

} // namespace

bool ParseResample(const std::string& text, ResampleOption& option) {
    std::string rest = text;
    if (!TakeNumber(rest, option.width) || !TakeCharacter(rest, 'x') ||
        !TakeNumber(rest, option.height) || option.width == 0 || option.height == 0)
        return false;
    if (TakeCharacter(rest, ',') && !TakeNumber(rest, option.interpolation))
        return false;
    if (option.interpolation > tint::kCatmullRom)
        return false;
    return rest.empty() || (TakeCharacter(rest, ',') && TakeNumber(rest, option.overflow) &&
                            option.overflow <= tint::kOverflowRepeat && rest.empty());
}
