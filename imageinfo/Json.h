// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// `text` as a JSON string with its quotes.  Bytes that are not UTF-8 are taken for Latin-1, so that
/// any path gives valid JSON.
std::string JsonString(const std::string& text);
