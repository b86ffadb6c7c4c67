// SPDX-License-Identifier: MIT
//
// The values of EXIF fields, and where each goes.
#include "image/ExifField.h"
#include "image/LittleEndian.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstring>
#include <iterator>
#include <limits>

namespace tint {

int32_t ToInt32(double value) {
    if (std::isnan(value))
        return 0;
    return static_cast<int32_t>(
        std::clamp<double>(value, std::numeric_limits<int32_t>::min(), INT32_MAX));
}

uint32_t ToUint32(double value) {
    return std::isnan(value) ? 0 : static_cast<uint32_t>(std::clamp<double>(value, 0, UINT32_MAX));
}

float ToFloat(double value) {
    if (std::fabs(value) > FLT_MAX)
        return std::copysign(std::numeric_limits<float>::infinity(), value > 0 ? 1.0f : -1.0f);
    return static_cast<float>(value);
}

} // namespace tint

using tint::ToFloat;
using tint::ToInt32;

namespace {

enum Format : uint32_t {
    kUnsignedByte = 1,
    kAscii,
    kUnsignedShort,
    kUnsignedLong,
    kUnsignedRational,
    kSignedByte,
    kUndefined,
    kSignedShort,
    kSignedLong,
    kSignedRational,
    kFloat,
    kDouble,
};

constexpr uint8_t kFormatBytes[] = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8};

/// Copies up to the first NUL or the end of either side; the rest of `to` becomes NUL.
template <size_t N>
void CopyText(char (&to)[N], const uint8_t* from, size_t bytes, size_t limit = N - 1) {
    const size_t room = std::min({bytes, limit, N - 1});
    const size_t length = static_cast<size_t>(std::find(from, from + room, 0) - from);
    memset(to, 0, N);
    memcpy(to, from, length);
}

/// The length of a text without the spaces at its end.
size_t LengthWithoutFilling(const uint8_t* text, size_t bytes) {
    // By blocks: many entries of a damaged file can share one long value.
    constexpr char kSpaces[] = "                                                                ";
    constexpr size_t kBlock = sizeof(kSpaces) - 1;
    while (bytes >= kBlock && memcmp(text + bytes - kBlock, kSpaces, kBlock) == 0)
        bytes -= kBlock;
    while (bytes > 0 && text[bytes - 1] == ' ')
        --bytes;
    return bytes;
}

/// A unit of length in inches; other codes leave `factor` as it is.
void StoreUnit(double code, float& factor) {
    switch (ToInt32(code)) {
    case 1: // none stated: inches are meant
    case 2:
        factor = 1.0f;
        break;
    case 3: // centimetre
        factor = 0.3937007784843445f;
        break;
    case 4: // millimetre
        factor = 0.03937007859349251f;
        break;
    case 5: // micrometre
        factor = 3.937007932108827e-05f;
        break;
    default:
        break;
    }
}

/// Film speed; one below 50 is deliberately taken for the code that old cameras store instead.
int32_t FilmSpeed(double value) {
    const double speed = std::trunc(value);
    return ToInt32(speed < 50 ? speed * 200 : speed);
}

/// The f-number of an aperture in APEX units, unless the file has stated one.
void StoreApexAperture(double apex, float& number) {
    if (number == 0)
        number = ToFloat(std::exp2(apex / 2));
}

} // namespace

uint16_t ExifReader::Get16m(const uint8_t* p) {
    return static_cast<uint16_t>(p[0] << 8 | p[1]);
}

uint16_t ExifReader::Get16u(const uint8_t* p) const {
    return motorolaOrder ? Get16m(p) : tint::ReadLe16(p);
}

uint32_t ExifReader::Get32u(const uint8_t* p) const {
    return motorolaOrder ? static_cast<uint32_t>(Get16m(p)) << 16 | Get16m(p + 2)
                         : tint::ReadLe32(p);
}

int32_t ExifReader::Get32s(const uint8_t* p) const {
    return static_cast<int32_t>(Get32u(p));
}

uint32_t ExifReader::FormatBytes(uint32_t format) {
    return format < std::size(kFormatBytes) ? kFormatBytes[format] : 0;
}

double ExifReader::ConvertAnyFormat(const uint8_t* value, int32_t format) const {
    switch (format) {
    case kUnsignedByte:
        return *value;
    case kSignedByte:
        return static_cast<int8_t>(*value);
    case kUnsignedShort:
        return Get16u(value);
    case kSignedShort:
        return static_cast<int16_t>(Get16u(value));
    case kUnsignedLong:
        return Get32u(value);
    case kSignedLong:
        return Get32s(value);
    case kUnsignedRational: // deliberately read as signed
    case kSignedRational: {
        const int32_t denominator = Get32s(value + 4);
        return denominator == 0 ? 0 : static_cast<double>(Get32s(value)) / denominator;
    }
    case kFloat: { // deliberately in the machine's own byte order
        float number;
        memcpy(&number, value, sizeof(number));
        return number;
    }
    case kDouble: { // likewise
        double number;
        memcpy(&number, value, sizeof(number));
        return number;
    }
    default:
        return 0;
    }
}

/// The first value of a field; 0 where the block ends before it does.
double ExifReader::Number(const Field& field) const {
    // A field of no values has its bytes in the entry, which are fewer than some formats take.
    return field.readable < FormatBytes(field.format) ? 0
                                                      : ConvertAnyFormat(field.value, field.format);
}

void ExifReader::StoreField(const Field& field, ExifInfo& to) {
    const double number = Number(field);
    switch (field.tag) {
    case 0x010F:
        CopyText(to.cameraMake, field.value, field.bytes);
        break;
    case 0x0110:
        CopyText(to.cameraModel, field.value, field.bytes);
        break;
    case 0x0112:
        StoreOrientation(number, to);
        break;
    case 0x011A:
        to.xResolution = ToFloat(number);
        break;
    case 0x011B:
        to.yResolution = ToFloat(number);
        break;
    case 0x0128:
        StoreUnit(number, to.resolutionUnit);
        break;
    case 0x9000:
        CopyText(to.exifVersion, field.value, field.bytes);
        break;
    case 0x9003:
        CopyText(to.dateTime, field.value, field.bytes);
        break;
    case 0x9102:
        to.compressionLevel = ToInt32(number);
        break;
    case 0x9286:
        StoreUserComment(field, to);
        break;
    case 0xA002:
    case 0xA003:
        exifImageWidth = std::max(exifImageWidth, ToInt32(number));
        break;
    default:
        StoreCameraField(field, to);
        break;
    }
}

/// The fields that say how the picture was taken.
void ExifReader::StoreCameraField(const Field& field, ExifInfo& to) {
    const double number = Number(field);
    switch (field.tag) {
    case 0x829A:
        to.exposureTime = ToFloat(number);
        break;
    case 0x829D:
        to.apertureFNumber = ToFloat(number);
        break;
    case 0x8822:
        to.exposureProgram = ToInt32(number);
        break;
    case 0x8827:
        to.isoEquivalent = FilmSpeed(number);
        break;
    case 0x9201:
        if (to.exposureTime == 0)
            to.exposureTime = ToFloat(std::exp2(-number));
        break;
    case 0x9202:
    case 0x9205:
        StoreApexAperture(number, to.apertureFNumber);
        break;
    case 0x9203:
        to.brightness = ToFloat(number);
        break;
    case 0x9204:
        to.exposureBias = ToFloat(number);
        break;
    case 0x9206:
        to.subjectDistance = ToFloat(number);
        break;
    case 0x9207:
        to.meteringMode = ToInt32(number);
        break;
    case 0x9208:
        to.lightSource = ToInt32(number);
        break;
    case 0x9209:
        to.flashUsed = (ToInt32(number) & 7) != 0; // deliberately not bit 0 alone
        break;
    case 0x920A:
        to.focalLength = ToFloat(number);
        break;
    case 0xA20E:
        to.focalPlaneXRes = ToFloat(number);
        break;
    case 0xA20F:
        to.focalPlaneYRes = ToFloat(number);
        break;
    case 0xA210:
        StoreUnit(number, to.focalPlaneUnits);
        break;
    default:
        break;
    }
}

void ExifReader::StoreOrientation(double value, ExifInfo& to) {
    const int32_t orientation = ToInt32(value);
    const bool known = orientation >= 1 && orientation <= 8;
    if (!known)
        Fail("Undefined rotation value"); // told, but no reason to give up the other fields
    to.orientation = known ? orientation : 0;
}

/// The text begins with the name of its encoding, of which "ASCII" is passed over together with the
/// filling behind it.  Other names stay in the text.
void ExifReader::StoreUserComment(const Field& field, ExifInfo& to) {
    constexpr size_t kMaxCharacters = 199;
    constexpr size_t kNameBytes = 5;
    constexpr size_t kFillEnd = 10;
    const size_t bytes = LengthWithoutFilling(field.value, field.bytes);
    size_t start = 0;
    if (bytes >= kNameBytes && memcmp(field.value, "ASCII", kNameBytes) == 0) {
        const size_t end = std::min(bytes, kFillEnd);
        start = kNameBytes;
        while (start < end && (field.value[start] == '\0' || field.value[start] == ' '))
            ++start;
        if (start == end)
            return; // nothing but filling: the comment stays as it was
    }
    CopyText(to.comments, field.value + start, bytes - start, kMaxCharacters);
}
