// SPDX-License-Identifier: MIT
//
// The marker sections of a JPEG file.
#include "image/ExifReader.h"

#include "image/Trace.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <new>

namespace {

constexpr int32_t kMarkerStart = 0xD8; // SOI
constexpr int32_t kMarkerEnd = 0xD9;   // EOI
constexpr int32_t kMarkerScan = 0xDA;  // SOS
constexpr int32_t kMarkerApp0 = 0xE0;
constexpr int32_t kMarkerApp1 = 0xE1;
constexpr int32_t kMarkerComment = 0xFE; // COM
constexpr int kMaxMarkerReads = 7;       // the marker, after six fill bytes at most

/// Zero bytes behind the data of every section.  An EXIF block is deliberately taken to be as long
/// as its whole section, though its two length bytes lie before it: that lets values end two bytes
/// behind the section, and these are the bytes.
constexpr int32_t kSlackBytes = 2;

/// Whether `marker` starts a frame: 0xC0 to 0xCF but for DHT, JPG and DAC.
bool IsFrame(int32_t marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

std::unique_ptr<uint8_t[]> Allocate(size_t bytes) {
    return std::unique_ptr<uint8_t[]>(new (std::nothrow) uint8_t[bytes]());
}

} // namespace

ExifReader::ExifReader(ExifInfo* callersInfo)
    : m_ownInfo(callersInfo ? nullptr : std::make_unique<ExifInfo>()),
      info(callersInfo ? callersInfo : m_ownInfo.get()), lastError(), motorolaOrder(false),
      exifImageWidth(0), sectionCount(0), m_depth(0), m_directories(0) {}

ExifReader::~ExifReader() = default;

bool ExifReader::Fail(const char* text) {
    snprintf(lastError, sizeof(lastError), "%s", text);
    return false;
}

bool ExifReader::ReadSections(CxFile* stream, uint32_t mode) {
    if (!stream || stream->GetC() != 0xFF || stream->GetC() != kMarkerStart)
        return Fail("no JPEG file");
    while (sectionCount < kMaxSections) {
        const int32_t marker = ReadMarker(*stream);
        if (marker == 0xFF) {
            tint::Trace("too many padding bytes\n");
            return Fail("too many padding bytes!");
        }
        if (!ReadSection(*stream, marker))
            return false;
        const Outcome outcome = HandleSection(*stream, mode);
        if (outcome != Outcome::kGoOn)
            return outcome == Outcome::kDone;
    }
    return Fail("Too many sections in jpg file");
}

/// The first byte that is not a fill byte; 0xFF when there are too many of them, -1 at the end.
int32_t ExifReader::ReadMarker(CxFile& stream) {
    int32_t marker = 0xFF;
    for (int i = 0; i < kMaxMarkerReads && marker == 0xFF; ++i)
        marker = stream.GetC();
    return marker;
}

/// Reads the section behind a marker and counts it.
bool ExifReader::ReadSection(CxFile& stream, int32_t marker) {
    const int32_t high = stream.GetC();
    const int32_t low = stream.GetC();
    if (high < 0 || low < 0 || (high << 8 | low) < 2)
        return Fail("invalid marker");
    Section& section = sections[sectionCount];
    section.type = marker;
    section.size = high << 8 | low;
    section.position = stream.Tell() - 2;
    section.data = Allocate(static_cast<size_t>(section.size + kSlackBytes));
    if (!section.data)
        return Fail("Could not allocate memory");
    section.data[0] = static_cast<uint8_t>(high);
    section.data[1] = static_cast<uint8_t>(low);
    const size_t rest = static_cast<size_t>(section.size - 2);
    if (rest > 0 && stream.Read(&section.data[2], 1, rest) != rest) {
        section = {};
        return Fail("Premature end of file?");
    }
    ++sectionCount;
    return true;
}

/// Looks into the section just read.
ExifReader::Outcome ExifReader::HandleSection(CxFile& stream, uint32_t mode) {
    const Section& section = sections[sectionCount - 1];
    const uint8_t* data = section.data.get();
    const bool metadata = (mode & kReadMetadata) != 0;
    switch (section.type) {
    case kMarkerScan:
        if (!(mode & kReadImage))
            return Outcome::kDone;
        return ReadImageData(stream) ? Outcome::kDone : Outcome::kFailed;
    case kMarkerEnd:
        tint::Trace("No image in jpeg!\n");
        Fail("No image in jpeg!");
        return Outcome::kFailed;
    case kMarkerApp0:
        DiscardSection();
        break;
    case kMarkerApp1:
        // Other users of this marker, such as XMP, say so by another name.
        if (metadata && section.size >= 6 && memcmp(data + 2, "Exif", 4) == 0)
            info->isExif = ProcessExif(data + 2, static_cast<uint32_t>(section.size));
        else
            DiscardSection();
        break;
    case kMarkerComment:
        if (metadata && !HasSection(kMarkerComment))
            ProcessComment(data, section.size);
        else
            DiscardSection();
        break;
    default:
        if (IsFrame(section.type) && section.size >= 8)
            ProcessStartOfFrame(data, section.type);
        break;
    }
    return Outcome::kGoOn;
}

/// Keeps all that follows the scan header.  The size comes from the stream, not from the file's
/// words.
bool ExifReader::ReadImageData(CxFile& stream) {
    if (sectionCount == kMaxSections)
        return Fail("Too many sections in jpg file");
    const int32_t position = stream.Tell();
    if (position < 0 || !stream.Seek(0, 2))
        return Fail("could not read the rest of the image");
    const int32_t size = stream.Tell() - position;
    if (!stream.Seek(position, 0) || size < 0)
        return Fail("could not read the rest of the image");
    Section& section = sections[sectionCount];
    section.data = Allocate(static_cast<size_t>(size));
    if (!section.data)
        return Fail("could not allocate data for entire image");
    if (size > 0 && stream.Read(section.data.get(), 1, static_cast<size_t>(size)) !=
                        static_cast<size_t>(size)) {
        section = {};
        return Fail("could not read the rest of the image");
    }
    section.type = kImageDataSection;
    section.size = size;
    section.position = position;
    ++sectionCount;
    return true;
}

void ExifReader::DiscardSection() {
    sections[--sectionCount] = {};
}

/// Whether a section of this type is kept, but for the last one.
bool ExifReader::HasSection(int32_t type) const {
    return std::any_of(sections, sections + sectionCount - 1,
                       [type](const Section& section) { return section.type == type; });
}

int32_t ExifReader::ThumbnailPosition() const {
    const uint8_t* thumbnail = info->thumbnailData;
    for (const Section& section : sections) {
        const uint8_t* data = section.data.get();
        if (!data || thumbnail < data || thumbnail >= data + section.size + kSlackBytes)
            continue;
        const int64_t position = section.position + int64_t{thumbnail - data};
        return section.position >= 0 && position <= INT32_MAX ? static_cast<int32_t>(position) : -1;
    }
    return -1;
}

void ExifReader::ProcessComment(const uint8_t* data, int32_t length) {
    constexpr int32_t kMaxLength = sizeof(info->comments);
    size_t written = 0;
    for (int32_t i = 2; i < std::min(length, kMaxLength); ++i) {
        const uint8_t c = data[i];
        if (c == '\r' && i + 1 < length && data[i + 1] == '\n')
            continue;
        const bool shown = (c >= ' ' && c < 0x7F) || c == '\n' || c == '\t';
        info->comments[written++] = shown ? static_cast<char>(c) : '?';
    }
    info->comments[written] = '\0';
}

void ExifReader::ProcessStartOfFrame(const uint8_t* data, int32_t marker) {
    info->height = Get16m(data + 3);
    info->width = Get16m(data + 5);
    info->isColor = data[7] == 3;
    info->process = marker;
}
