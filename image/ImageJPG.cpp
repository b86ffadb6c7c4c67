// SPDX-License-Identifier: MIT
#include "image/ImageJPG.h"

#include "image/DibRows.h"
#include "image/ExifReader.h"
#include "image/JpegDecoder.h"

#include <algorithm>
#include <cmath>
#include <new>

using namespace tint;

namespace {

constexpr uint32_t kDefaultDitherMode = JDITHER_FS;
constexpr uint8_t kDensityPerCentimeter = 2;

/// Dots per inch along one axis.
/// @param exifDensity  pixels per unit of `unit` inches; 0 when not stated, as is `unit`
int32_t DpiOf(float exifDensity, float unit, uint16_t density, uint8_t densityUnit) {
    if (exifDensity != 0 && unit != 0) {
        const float dpi = exifDensity / unit;
        return dpi >= 0 && dpi < 2147483648.0f ? static_cast<int32_t>(dpi) : 0;
    }
    if (densityUnit == kDensityPerCentimeter) // the metres' formula, deliberately
        return static_cast<int32_t>(std::floor(density * 254.0 / 10000.0 + 0.5));
    return density;
}

/// An entry of the library's palette.
RGBQUAD MapColor(const jpeg_decompress_struct& library, int index) {
    const JSAMPARRAY map = library.colormap;
    if (library.out_color_components < 3) {
        const uint8_t gray = map[0][index];
        return {gray, gray, gray, 0};
    }
    // A fourth row is the black of inverted CMYK.
    const unsigned key = library.out_color_components > 3 ? map[3][index] : 255u;
    const auto sample = [&](int row) { return static_cast<uint8_t>(map[row][index] * key / 255); };
    return {sample(2), sample(1), sample(0), 0};
}

} // namespace

CxImageJPG::CxImageJPG() : IsImage(kFormatJpeg), ditherMode(kDefaultDitherMode) {}

CxImageJPG::~CxImageJPG() = default;

bool CxImageJPG::ReadExif(CxFile* stream) {
    exifInfo = {};
    exifReader.reset(new (std::nothrow) ExifReader(&exifInfo));
    const int32_t position = stream ? stream->Tell() : -1;
    if (!exifReader || position < 0)
        return false; // what cannot be gone back to is left to the decoder
    exifReader->ReadSections(stream, ExifReader::kReadMetadata);
    return stream->Seek(position, 0) && exifInfo.isExif;
}

const char* CxImageJPG::ExifErrorText() const {
    return exifReader ? exifReader->LastError() : "";
}

int32_t CxImageJPG::ThumbnailPosition() const {
    return exifReader ? exifReader->ThumbnailPosition() : -1;
}

bool CxImageJPG::DecodeJpeg(CxFile* stream) {
    if (!stream)
        return false;
    const bool hasExif = ReadExif(stream);
    JpegDecoder decoder(*stream);
    jpeg_decompress_struct& library = decoder.Library();
    bool decoded = decoder.ReadHeader();
    if (decoded) {
        ApplySettings(library);
        decoded = decoder.Measure() && CreateFor(library, hasExif) && decoder.Start();
    }
    if (decoded) {
        SetPalette(library);
        decoded = decoder.ReadRows(DibRows(*this, true)) && decoder.Finish();
    }
    if (*decoder.ErrorText())
        SetErrorText(decoder.ErrorText());
    return decoded;
}

/// Passes the image's settings to the library, after it has chosen its own.
void CxImageJPG::ApplySettings(jpeg_decompress_struct& library) const {
    const uint32_t options = FormatValue(kFormatJpeg);
    if (options & kJpegGrayscale)
        library.out_color_space = JCS_GRAYSCALE;
    if (options & kJpegQuantize) {
        library.quantize_colors = TRUE;
        library.desired_number_of_colors = info.jpegQuality;
    }
    if ((options & kJpegDither) && ditherMode <= JDITHER_FS)
        library.dither_mode = static_cast<J_DITHER_MODE>(ditherMode);
    if (options & kJpegOnePass)
        library.two_pass_quantize = FALSE;
    if (options & kJpegNoSmoothing)
        library.do_fancy_upsampling = FALSE;
    library.scale_denom = std::max<unsigned>(info.jpegScale, 1); // 0 would enlarge
    // The order of an image's rows, so that nothing has to be swapped afterwards.
    if (library.out_color_space == JCS_RGB && !library.quantize_colors)
        library.out_color_space = JCS_EXT_BGR;
}

/// Makes the image once its size is known, before the library takes memory for the picture.
bool CxImageJPG::CreateFor(jpeg_decompress_struct& library, bool hasExif) {
    if (!BeginPicture(library.output_width, library.output_height,
                      8 * static_cast<uint32_t>(library.output_components), kFormatJpeg))
        return false;
    const float unit = hasExif ? exifInfo.resolutionUnit : 0;
    SetHorizontalDpi(DpiOf(exifInfo.xResolution, unit, library.X_density, library.density_unit));
    SetVerticalDpi(DpiOf(exifInfo.yResolution, unit, library.Y_density, library.density_unit));
    info.orientation = static_cast<uint8_t>(hasExif ? exifInfo.orientation : 0);
    return true;
}

/// Fills the palette of an 8-bit image.
void CxImageJPG::SetPalette(const jpeg_decompress_struct& library) {
    if (BitCount() != 8)
        return;
    if (!library.quantize_colors) {
        for (unsigned i = 0; i < 256; ++i) {
            const uint8_t gray = static_cast<uint8_t>(i);
            SetPaletteColor(i, {gray, gray, gray, 0});
        }
        return;
    }
    const int colors = std::min(library.actual_number_of_colors, 256);
    for (int i = 0; i < colors; ++i)
        SetPaletteColor(static_cast<uint32_t>(i), MapColor(library, i));
    // The rows follow the palette: with fewer entries they begin earlier in the block.
    header.biClrUsed = static_cast<uint32_t>(colors);
    StoreHeader();
    info.bits = RowPointer(0);
}
