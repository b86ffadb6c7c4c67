// SPDX-License-Identifier: MIT
#include "image/ImagePNG.h"

#include "image/CxFile.h"
#include "image/Resolution.h"

#include <png.h>

#include <algorithm>
#include <cmath>
#include <new>
#include <stdexcept>

using namespace tint;

namespace {

constexpr png_uint_16 kBackgroundGrey = 192;

/// The most memory one chunk may take.  Releases of libpng that refuse longer ones, even those only
/// passed over, are to let the frames of animations through.
constexpr png_alloc_size_t kMaxChunkBytes = 64u * 1024 * 1024;

/// How long a row may be whatever the file holds, and what one byte of a file can become at most.
constexpr uint64_t kRowBytesFree = 1024 * 1024;
constexpr uint64_t kBytesPerDeflatedByte = 1032;

/// What leaves libpng instead of a long jump, so that everything on the way is released.
class PngError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A sample of `bits` bits, at most 8, widened to 8.
uint8_t Widen(uint32_t sample, int bits) {
    const uint32_t highest = (1u << bits) - 1;
    return static_cast<uint8_t>((sample & highest) * 255 / highest);
}

} // namespace

/// libpng's structures for one picture, and what the picture is made of.
class CxImagePNG::Reader {
public:
    /// @throws PngError when memory is out
    Reader() : png(png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr)) {
        if (!png)
            throw PngError("Failed to create PNG structure");
        info = png_create_info_struct(png);
        if (!info) {
            png_destroy_read_struct(&png, nullptr, nullptr);
            throw PngError("Failed to initialize PNG info structure");
        }
    }
    ~Reader() { png_destroy_read_struct(&png, &info, nullptr); }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    void SetLimits();
    void ReadHeader();
    void CheckRowBytes(CxFile& stream) const;
    bool HasColor() const { return (colorType & PNG_COLOR_MASK_COLOR) != 0; }
    bool HasAlpha() const { return (colorType & PNG_COLOR_MASK_ALPHA) != 0; }
    bool HasTransparency() const { return png_get_valid(png, info, PNG_INFO_tRNS) != 0; }
    const png_color_16* NamedBackground() const;
    void RequestComposition();
    void RequestTransformations(bool toRgb);

    png_structp png;
    png_infop info;
    int colorType = 0;
    int bitDepth = 0;
    int pixelDepth = 0; ///< bits a pixel has in the file
};

/// Only what the picture is made of is looked at.  The other chunks are read past: nothing is
/// allocated or inflated for them, whatever they claim.
void CxImagePNG::Reader::SetLimits() {
    png_set_keep_unknown_chunks(png, PNG_HANDLE_CHUNK_NEVER, nullptr, -1);
    png_set_keep_unknown_chunks(png, PNG_HANDLE_CHUNK_AS_DEFAULT,
                                reinterpret_cast<png_const_bytep>("bKGD\0gAMA\0pHYs\0sRGB"), 4);
    png_set_chunk_cache_max(png, 16);
    png_set_chunk_malloc_max(png, kMaxChunkBytes);
    // The size is left to CreateImage, which refuses it by name; until then no row is allocated.
    png_set_user_limits(png, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
}

void CxImagePNG::Reader::ReadHeader() {
    png_read_info(png, info);
    colorType = png_get_color_type(png, info);
    bitDepth = png_get_bit_depth(png, info);
    pixelDepth = bitDepth * png_get_channels(png, info);
}

/// Ends the reading where even a single row is longer than what is left of the stream can hold:
/// libpng clears several rows of memory before it reads the first.
void CxImagePNG::Reader::CheckRowBytes(CxFile& stream) const {
    const int32_t size = stream.Size();
    const int32_t position = stream.Tell();
    if (position < 0 || size < position)
        return; // a length there is no knowing
    const uint64_t left = static_cast<uint64_t>(size - position);
    if (png_get_rowbytes(png, info) > kRowBytesFree + kBytesPerDeflatedByte * left)
        png_error(png, "Read Error");
}

/// The bKGD colour, null without one.
const png_color_16* CxImagePNG::Reader::NamedBackground() const {
    png_color_16p color = nullptr;
    return png_get_bKGD(png, info, &color) ? color : nullptr;
}

/// Has pixels that are not opaque mixed with the background.
void CxImagePNG::Reader::RequestComposition() {
    if (const png_color_16* named = NamedBackground()) {
        png_set_background(png, named, PNG_BACKGROUND_GAMMA_FILE, 1, 1.0);
        return;
    }
    // In units of the 8-bit result; libpng widens it for samples of 16 bits.
    const png_color_16 grey = {0, kBackgroundGrey, kBackgroundGrey, kBackgroundGrey,
                               kBackgroundGrey};
    png_set_background(png, &grey, PNG_BACKGROUND_GAMMA_SCREEN, 0, 1.0);
}

/// Turns the file's pixels into those of a 24-bit image (`toRgb`), or leaves them packed indices.
void CxImagePNG::Reader::RequestTransformations(bool toRgb) {
    if (!toRgb)
        return; // transparency of palette and grey levels is a matter of the palette
    if (pixelDepth != 32 && (HasAlpha() || HasTransparency()))
        RequestComposition();
    if (bitDepth == 16)
        png_set_strip_16(png);
    if (!HasColor())
        png_set_gray_to_rgb(png);
    if (pixelDepth == 32 || colorType == PNG_COLOR_TYPE_RGB_ALPHA)
        png_set_strip_alpha(png);
    png_set_bgr(png);
}

CxImagePNG::~CxImagePNG() = default;

void CxImagePNG::PngReadCallback(png_struct_def* png, uint8_t* buffer, size_t length) {
    CxFile* stream = static_cast<CxFile*>(png_get_io_ptr(png));
    if (stream->Read(buffer, 1, length) != length)
        png_error(png, "Read Error");
}

void CxImagePNG::PngErrorCallback(png_struct_def* png, const char* message) {
    static_cast<CxImagePNG*>(png_get_error_ptr(png))->SetErrorText(message);
    throw PngError(message);
}

bool CxImagePNG::DecodePng(CxFile* stream) {
    if (!stream)
        return false;
    try {
        Reader reader;
        png_set_read_fn(reader.png, stream, PngReadCallback);
        png_set_error_fn(reader.png, this, PngErrorCallback, nullptr);
        return ReadPicture(reader, *stream);
    } catch (const PngError& error) {
        SetErrorText(error.what());
    } catch (const std::bad_alloc&) {
        SetErrorText("out of memory");
    }
    return false;
}

bool CxImagePNG::ReadPicture(Reader& reader, CxFile& stream) {
    reader.SetLimits();
    reader.ReadHeader();
    if (!BeginPicture(png_get_image_width(reader.png, reader.info),
                      png_get_image_height(reader.png, reader.info),
                      static_cast<uint32_t>(reader.pixelDepth), kFormatPng))
        return false;
    reader.CheckRowBytes(stream);
    ReadResolution(reader);
    ReadBackground(reader);
    if (reader.colorType == PNG_COLOR_TYPE_PALETTE)
        ReadPalette(reader);
    else if (PaletteEntries() > 0)
        MakeGreyPalette(reader);
    if (!ReadRows(reader))
        return false;
    png_read_end(reader.png, nullptr);
    return true;
}

void CxImagePNG::ReadResolution(Reader& reader) {
    png_uint_32 x = 0, y = 0;
    int unit = PNG_RESOLUTION_UNKNOWN;
    png_get_pHYs(reader.png, reader.info, &x, &y, &unit);
    const auto toDpi = [unit](png_uint_32 value) {
        const double dpi =
            unit == PNG_RESOLUTION_METER ? std::floor(value * 254.0 / 10000.0 + 0.5) : value;
        return dpi < INT32_MAX ? static_cast<int32_t>(dpi) : INT32_MAX;
    };
    SetHorizontalDpi(toDpi(x));
    SetVerticalDpi(toDpi(y));
}

/// Keeps the background of a picture whose alpha values are dropped.
void CxImagePNG::ReadBackground(Reader& reader) {
    const png_color_16* color = reader.NamedBackground();
    if (!color || reader.pixelDepth != 32)
        return;
    const int shift = reader.bitDepth == 16 ? 8 : 0;
    info.backgroundColor.rgbBlue = static_cast<uint8_t>(color->blue >> shift);
    info.backgroundColor.rgbGreen = static_cast<uint8_t>(color->green >> shift);
    info.backgroundColor.rgbRed = static_cast<uint8_t>(color->red >> shift);
}

void CxImagePNG::ReadPalette(Reader& reader) {
    RGBQUAD* const palette = Palette();
    const int capacity = static_cast<int>(PaletteEntries());
    png_colorp colors = nullptr;
    int entries = 0;
    png_get_PLTE(reader.png, reader.info, &colors, &entries);
    for (int i = 0; i < std::min(entries, capacity); ++i)
        palette[i] = {colors[i].blue, colors[i].green, colors[i].red, 0};

    png_bytep alpha = nullptr;
    int alphas = 0;
    png_get_tRNS(reader.png, reader.info, &alpha, &alphas, nullptr);
    if (!alpha || alphas < 1)
        return;
    for (int i = 0; i < std::min(alphas, capacity); ++i)
        palette[i].rgbReserved = alpha[i];
    if (alphas == 1 && alpha[0] == 0) {
        info.transparentIndex = 0;
        return;
    }
    for (int i = alphas; i < capacity; ++i)
        palette[i].rgbReserved = 255;
}

/// One entry a level, the transparent level's showing the background.
void CxImagePNG::MakeGreyPalette(Reader& reader) {
    const int bits = reader.bitDepth;
    for (uint32_t i = 0; i < 1u << bits; ++i) {
        const uint8_t level = Widen(i, bits);
        SetPaletteColor(i, {level, level, level, 0});
    }
    png_color_16p transparent = nullptr;
    if (!png_get_tRNS(reader.png, reader.info, nullptr, nullptr, &transparent) || !transparent)
        return;
    const png_color_16* named = reader.NamedBackground();
    const uint8_t level = named ? Widen(named->gray, bits) : uint8_t{kBackgroundGrey};
    SetPaletteColor(transparent->gray & ((1u << bits) - 1), {level, level, level, 0});
}

bool CxImagePNG::ReadRows(Reader& reader) {
    const bool toRgb = BitCount() == 24;
    reader.RequestTransformations(toRgb);
    const int passes = png_set_interlace_handling(reader.png);
    png_read_update_info(reader.png, reader.info);
    const uint64_t pixelBits = toRgb ? 24u : static_cast<uint64_t>(reader.bitDepth);
    if (png_get_rowbytes(reader.png, reader.info) != (Width() * pixelBits + 7) / 8) {
        SetErrorText("PNG rows have an unexpected size");
        return false;
    }
    // Rows go straight to where they are stored: the image's rows are as long, and libpng leaves
    // alone what a pass does not give.
    for (int pass = 0; pass < passes; ++pass) {
        for (uint32_t y = Height(); y-- > 0;) {
            uint8_t* const row = RowPointer(y);
            png_read_row(reader.png, row, nullptr);
            if (reader.bitDepth == 2 && pass == passes - 1)
                ExpandTwoBitRow(*this, row);
        }
    }
    return true;
}

void CxImagePNG::ExpandTwoBitRow(const IsImage& image, uint8_t* row) {
    // The last pixel first: what is written lies at or behind what is still to be read.
    for (uint32_t x = image.Width(); x-- > 0;) {
        const uint32_t value = row[x / 4] >> (3 - x % 4) * 2 & 3;
        const uint32_t shift = (1 - x % 2) * 4;
        row[x / 2] = static_cast<uint8_t>((row[x / 2] & ~(15u << shift)) | value << shift);
    }
}
