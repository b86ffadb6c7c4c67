// SPDX-License-Identifier: MIT
//
// Any path has to come out of imageinfo as valid JSON.
#include "imageinfo/Json.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(JsonString, EscapesWhatJsonDoesNotAllowAndTakesBrokenUtf8ForLatin1) {
    const struct {
        std::string text, json;
    } cases[] = {
        {"", "\"\""},
        {"a/b.bmp", "\"a/b.bmp\""},
        {"C:\\a \"b\"", "\"C:\\\\a \\\"b\\\"\""},
        {std::string("\0\n\x1F\x7F", 4), "\"\\u0000\\u000a\\u001f\\u007f\""},
        {"\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80", "\"\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\""},
        {"\xE4.bmp", "\"\\u00e4.bmp\""},               // Latin-1
        {"\xC3", "\"\\u00c3\""},                       // cut
        {"\xC0\xAF", "\"\\u00c0\\u00af\""},            // overlong
        {"\xED\xA0\x80", "\"\\u00ed\\u00a0\\u0080\""}, // surrogate
        {"\xF4\x90\x80\x80", "\"\\u00f4\\u0090\\u0080\\u0080\""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(JsonString(c.text), c.json);
}

} // namespace
