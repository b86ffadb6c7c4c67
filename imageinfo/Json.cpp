// SPDX-License-Identifier: MIT
#include "imageinfo/Json.h"

#include <cstdint>
#include <cstdio>

namespace {

/// Length of the UTF-8 sequence at `text[at]`, 0 where there is none.
size_t Utf8Length(const std::string& text, size_t at) {
    const auto byte = [&](size_t i) {
        return i < text.size() ? static_cast<uint8_t>(text[i]) : 0u;
    };
    const unsigned lead = byte(at);
    const unsigned second = byte(at + 1);
    if (lead < 0x80)
        return 1;
    size_t length = lead >= 0xC2 && lead <= 0xDF ? 2 : lead >= 0xE0 && lead <= 0xEF ? 3 : 0;
    if (lead >= 0xF0 && lead <= 0xF4)
        length = 4;
    // Overlong forms, surrogates and what lies beyond U+10FFFF show in the second byte.
    if ((lead == 0xE0 && second < 0xA0) || (lead == 0xED && second > 0x9F) ||
        (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second > 0x8F))
        return 0;
    for (size_t i = 1; i < length; ++i) {
        if ((byte(at + i) & 0xC0) != 0x80)
            return 0;
    }
    return length;
}

std::string Escape(unsigned code) {
    char escape[8];
    snprintf(escape, sizeof(escape), "\\u%04x", code & 0xFFFF);
    return escape;
}

} // namespace

std::string JsonString(const std::string& text) {
    std::string json = "\"";
    for (size_t at = 0; at < text.size();) {
        const unsigned byte = static_cast<uint8_t>(text[at]);
        const size_t length = Utf8Length(text, at);
        if (length == 0 || byte < 0x20 || byte == 0x7F) {
            json += Escape(byte);
            ++at;
            continue;
        }
        if (byte == '"' || byte == '\\')
            json += '\\';
        json.append(text, at, length);
        at += length;
    }
    return json + '"';
}
