// SPDX-License-Identifier: MIT
#pragma once

#include "tests/image/Bytes.h"

#include <string>

/// @file
/// EXIF blocks built entry by entry, in either byte order, sound or not.

namespace exiftest {

using imagetest::Append;
using imagetest::Bytes;

// clang-format off
enum Format : uint16_t {
    kByte = 1, kAscii, kShort, kLong, kRational, kSignedByte, kUndefined, kSignedShort, kSignedLong,
    kSignedRational, kFloat, kDouble
};
// clang-format on

/// A directory entry; a value of more than 4 bytes is put behind the directory.
struct Entry {
    uint16_t tag;
    uint16_t format;
    uint32_t count;
    Bytes value;
};

class ExifBuilder {
public:
    explicit ExifBuilder(bool motorola) : m_motorola(motorola) {}

    Bytes Number(uint64_t value, int bytes) const {
        return imagetest::Number(value, bytes, m_motorola);
    }
    Entry Short(uint16_t tag, uint16_t value) const { return {tag, kShort, 1, Number(value, 2)}; }
    Entry Long(uint16_t tag, uint32_t value) const { return {tag, kLong, 1, Number(value, 4)}; }
    Entry Text(uint16_t tag, const std::string& text, uint16_t format = kAscii) const {
        return {tag, format, static_cast<uint32_t>(text.size()), Bytes(text.begin(), text.end())};
    }
    Entry Rational(uint16_t tag, int32_t numerator, int32_t denominator,
                   uint16_t format = kRational) const {
        Bytes value = Number(static_cast<uint32_t>(numerator), 4);
        Append(value, Number(static_cast<uint32_t>(denominator), 4));
        return {tag, format, 1, value};
    }
    /// The bytes of a directory that stands at `offset`, with its values behind it.
    Bytes Directory(uint32_t offset, const std::vector<Entry>& entries, uint32_t next = 0) const {
        Bytes out = Number(entries.size(), 2);
        Bytes values;
        const size_t valuesAt = offset + 2 + 12 * entries.size() + 4;
        for (const Entry& entry : entries) {
            Append(out, Number(entry.tag, 2));
            Append(out, Number(entry.format, 2));
            Append(out, Number(entry.count, 4));
            if (entry.value.size() > 4) {
                Append(out, Number(valuesAt + values.size(), 4));
                Append(values, entry.value);
            } else {
                Append(out, entry.value);
                out.resize(out.size() + 4 - entry.value.size());
            }
        }
        Append(out, Number(next, 4));
        Append(out, values);
        return out;
    }

    /// An EXIF block from "Exif" on.  `parts` follow one another from offset 8 on.
    Bytes Block(const std::vector<Bytes>& parts, uint32_t first = 8) const {
        Bytes out = {'E', 'x', 'i', 'f', 0, 0};
        Append(out, m_motorola ? Bytes{'M', 'M'} : Bytes{'I', 'I'});
        Append(out, Number(42, 2));
        Append(out, Number(first, 4));
        for (const Bytes& part : parts)
            Append(out, part);
        return out;
    }

    /// A block of one directory.
    Bytes Block(const std::vector<Entry>& entries, uint32_t next = 0) const {
        return Block(std::vector<Bytes>{Directory(8, entries, next)});
    }

private:
    bool m_motorola;
};

} // namespace exiftest
