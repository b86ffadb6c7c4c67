// SPDX-License-Identifier: MIT
#pragma once

#include "image/CxFile.h"
#include "image/ExifInfo.h"

#include <cstdint>
#include <memory>

/// Walks the marker sections of a JPEG file and fills an ExifInfo from them.
///
///     ExifInfo info;
///     ExifReader reader(&info);
///     if (!reader.ReadSections(&stream, ExifReader::kReadMetadata))
///         Report(reader.LastError());
///
/// Offsets and counts are checked in 64 bits before anything is read, and tint::DecodeLimits bounds
/// the directories.  Some readings are deliberate though the format says otherwise; existing users
/// know their cameras' files by them.  They are marked where they happen:
/// - the first directory is read at offset 8 even if the file says otherwise, and then again where
///   the file says;
/// - the link to the next directory is taken from the first two of its four bytes, so the directory
///   of the thumbnail is found in little-endian files only;
/// - unsigned fractions are read as signed ones, floating-point values in the machine's byte order;
/// - a film speed below 50 is a code and is multiplied by 200;
/// - the bits for the flash's return light count as a used flash.
class ExifReader {
public:
    static constexpr int32_t kMaxSections = 20;
    static constexpr int32_t kImageDataSection = 0x123; ///< type of the section of kReadImage

    /// What ReadSections reads; may be combined.
    enum Mode : uint32_t {
        kReadMetadata = 1, ///< EXIF fields and comment
        kReadImage = 2,    ///< the rest of the file behind the first scan header, as a section
    };

    /// One marker section.
    struct Section {
        std::unique_ptr<uint8_t[]> data; ///< from the two length bytes on
        int32_t type = 0;                ///< marker code, or kImageDataSection
        int32_t size = 0;                ///< bytes of `data`, as the file states them
        int32_t position = 0;            ///< where `data` begins in the stream
    };

    /// @param info  filled by the reader and kept by the caller; null: the reader has its own
    explicit ExifReader(ExifInfo* info = nullptr);
    ~ExifReader();
    ExifReader(const ExifReader&) = delete;
    ExifReader& operator=(const ExifReader&) = delete;

    /// Reads the sections from the stream's position, which is the start of the file, up to the
    /// first scan.
    /// @return false with LastError set; what was read before the failure is kept
    bool ReadSections(CxFile* stream, uint32_t mode);

    /// Reads an EXIF block.
    /// @param data    from "Exif" on
    /// @param length  readable bytes at `data`
    bool ProcessExif(const uint8_t* data, uint32_t length);

    /// Reads one directory of fields and those it leads to.
    /// @param directory   within the `exifLength` readable bytes at `offsetBase`
    /// @param offsetBase  what the offsets in the fields count from
    /// @param info        receives the fields
    /// @param lastUsed    raised to the end of the last value in the block; may be null
    bool ProcessDirectory(const uint8_t* directory, const uint8_t* offsetBase, uint32_t exifLength,
                          ExifInfo* info, const uint8_t** lastUsed);

    /// Takes over a comment section.  @param data  `length` bytes from the two length bytes on
    void ProcessComment(const uint8_t* data, int32_t length);

    /// Takes over size and process of the frame.
    /// @param data  a section from the two length bytes on, 8 bytes at least
    void ProcessStartOfFrame(const uint8_t* data, int32_t marker);

    /// A value as a number, 0 for texts and undefined ones.
    /// @param value  with as many readable bytes as the format has
    double ConvertAnyFormat(const uint8_t* value, int32_t format) const;

    /// Bytes of one value of an EXIF format, 0 for a format outside 1 to 12.
    static uint32_t FormatBytes(uint32_t format);

    uint16_t Get16u(const uint8_t* p) const;  ///< in the block's byte order
    uint32_t Get32u(const uint8_t* p) const;  ///< in the block's byte order
    int32_t Get32s(const uint8_t* p) const;   ///< in the block's byte order
    static uint16_t Get16m(const uint8_t* p); ///< always big-endian

    /// Chooses the byte order of the functions above; ProcessExif sets it from the block.
    void SetMotorolaOrder(bool motorola) { motorolaOrder = motorola; }

    const ExifInfo& Info() const { return *info; }
    /// Text of the last failure or oddity, "" if there was none.
    const char* LastError() const { return lastError; }
    int32_t SectionCount() const { return sectionCount; }
    /// @param index  below SectionCount
    const Section& SectionAt(int32_t index) const { return sections[index]; }
    /// Where the thumbnail begins in the stream, -1 when there is none or 31 bits do not hold it.
    int32_t ThumbnailPosition() const;

private:
    struct Field;
    struct Directory;
    enum class Outcome { kGoOn, kDone, kFailed };

    bool Fail(const char* text);
    int32_t ReadMarker(CxFile& stream);
    bool ReadSection(CxFile& stream, int32_t marker);
    Outcome HandleSection(CxFile& stream, uint32_t mode);
    bool ReadImageData(CxFile& stream);
    void DiscardSection();
    bool HasSection(int32_t type) const;

    bool ReadField(const Directory& directory, const uint8_t* entry, Field& field);
    bool FollowLink(const Directory& directory, uint32_t offset);
    double Number(const Field& field) const;
    void StoreField(const Field& field, ExifInfo& to);
    void StoreCameraField(const Field& field, ExifInfo& to);
    void StoreOrientation(double value, ExifInfo& to);
    static void StoreUserComment(const Field& field, ExifInfo& to);

    std::unique_ptr<ExifInfo> m_ownInfo;
    ExifInfo* info;
    char lastError[256];
    bool motorolaOrder;     ///< "MM": big-endian
    int32_t exifImageWidth; ///< largest of the two sides that the EXIF fields state
    Section sections[kMaxSections];
    int32_t sectionCount;
    uint32_t m_depth;       ///< directories being read, one inside the other
    uint32_t m_directories; ///< directories read so far, of all blocks
};
