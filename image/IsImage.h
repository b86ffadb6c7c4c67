// SPDX-License-Identifier: MIT
#pragma once

#include "image/DibTypes.h"
#include "image/Formats.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>

class CxFile;
class IsImage;

namespace tint {

/// What an image knows beside its pixels; copied as one unit.
struct ImageInfo {
    uint32_t effectiveWidth;  ///< stride: bytes from one row to the next
    uint8_t* bits;            ///< first pixel row, null while the image is empty
    IsImage* ghostOf;         ///< the image whose buffers this one shares, null when it has its own
    uint32_t type;            ///< format code
    int32_t transparentIndex; ///< palette index shown as transparent, -1 for none
    RGBQUAD backgroundColor;  ///< transparent colour of a 24-bit image with a transparent index
    uint8_t jpegQuality;
    uint8_t jpegScale;   ///< JPEG pictures are decoded at 1/jpegScale of their size; 1, 2, 4 or 8
    uint8_t orientation; ///< how the picture is to be turned, 1 to 8; 0 when not stated
    uint32_t xDpi;       ///< dots per inch
    uint32_t yDpi;
    uint8_t enabled;          ///< 1 unless switched off
    uint32_t formatValues[4]; ///< one value per format code, for the codecs
};

} // namespace tint

/// A picture in memory, laid out as a device-independent bitmap.
///
///     IsImage image("picture.bmp");           // or IsImage image(data, size)
///     if (*image.LastErrorText())
///         Report(image.LastErrorText());      // an unknown format gives a placeholder picture
///     const RGBQUAD corner = image.GetPixelColor(0, 0); // lower left
///
/// One heap block holds the 40-byte information header, the palette (2, 16, 256 or no entries for
/// 1, 4, 8 or 24 bits per pixel) and the rows: bottom-up, so row 0 is the lowest, each padded to 4
/// bytes, colours as blue, green, red.  The block can be handed to the system's DIB calls as it is.
///
/// An image owns its block unless it is a ghost, a view of another image's buffers (Ghost); a ghost
/// must not outlive its source, nor be used after the source's content was replaced.
///
/// No operation throws: failures are false, null or 0, and loading leaves a text for the user in
/// LastErrorText.  What a picture may cost is bounded by tint::DecodeLimits.
class IsImage {
public:
    /// An empty image.
    explicit IsImage(uint32_t type = tint::kFormatUnknown);
    /// The same; keeps a literal 0 from being taken for a path.
    explicit IsImage(int type) : IsImage(static_cast<uint32_t>(type)) {}
    /// Loads from memory; the format is found by tint::DetectFormat.
    ///
    /// A known format that cannot be decoded leaves the image empty.  An unknown one gives a black
    /// 24-bit placeholder of 100 x 60 pixels.  LastErrorText is set in both cases.
    /// @param data  read during the call only
    IsImage(const uint8_t* data, uint32_t size);
    /// Loads a file; the format is found by tint::DetectFileFormat.  Failures as above.
    /// @param path  narrow path
    explicit IsImage(const char* path);
    /// Copies as Copy does.
    IsImage(const IsImage& source);
    IsImage& operator=(const IsImage& source);
    virtual ~IsImage();

    // Loading

    /// Decodes from `file` at its position; the handle stays the caller's.
    bool LoadFromStdioFile(FILE* file, uint32_t type);
    /// Decodes a picture of a known format.
    ///
    /// On success it replaces the content, with its resolution, transparent index and background
    /// colour; on failure the image stays as it was but for LastErrorText.
    /// @param type  format code; there is no detection
    bool DecodeByType(uint32_t type, CxFile* stream);
    /// Replaces the content by a packed DIB: information header, colour masks, palette and pixels in
    /// one block, as on the clipboard (`CF_DIB`).
    ///
    /// Readable are uncompressed pixels of 1, 4, 8, 16, 24 and 32 bits, bit fields of 16 and 32 bits
    /// and run lengths (RLE4, RLE8), bottom-up or top-down, also under an OS/2 core header.  Pixels
    /// missing at the end are black, or index 0.
    /// @return false with the image empty and LastErrorText set
    bool CreateFromPackedDib(const uint8_t* data, size_t size);
#ifdef _WIN32
    /// Decodes a resource.  @param module  null for the program itself
    bool LoadFromResource(HRSRC resource, uint32_t type, HMODULE module);
    /// CreateFromPackedDib from a movable global memory block, which stays the caller's.
    bool CreateFromGlobalDib(HGLOBAL handle);
#endif
    /// Why the last load or creation failed, at most 255 characters; "" after a success.
    const char* LastErrorText() const {
        return lastError;
    }

    // Content

    /// Resets all fields to those of an empty image without freeing anything: for an image that is
    /// empty, or whose buffers someone else has taken.
    void Startup(uint32_t type);
    /// Replaces the content by a picture of zeros with a palette of zeros.
    ///
    /// A size is refused when a side is 0 or beyond 31 bits, a row has 2^32 bits or more, or the block
    /// exceeds 2 GiB - 1 or one of the tint::DecodeLimits.
    /// @param bitCount  depth asked for: up to 1 is stored as 1, up to 4 as 4, up to 8 as 8, more as 24
    /// @return the block; null with LastErrorText set when the size is refused or memory is out, which
    ///         leaves the image empty, and for a ghost, which stays as it is
    uint8_t* CreateImage(uint32_t width, uint32_t height, uint32_t bitCount,
                         uint32_t type = tint::kFormatUnknown);
    /// Frees the content.  @return false for a ghost, which is left as it is
    bool DestroyImage();
    /// Frees this image's content and makes it a view of `source`; null is ignored.
    void Ghost(IsImage* source);
    /// Moves the content of `source` here and leaves `source` empty.
    /// @return false when this image is a ghost or `source` shares its buffers
    bool Transfer(IsImage& source);
    /// Makes this an independent copy of `source` and its settings.  The side buffer, whose meaning
    /// only its owner knows, is left out.
    /// @return false with this image unchanged when it is a ghost or memory is out
    bool Copy(const IsImage& source);
    /// Takes over the settings of `source` (type, transparency, quality, resolution, format values)
    /// while this image is empty; does nothing otherwise, nor for a ghost.
    void CopyInfo(const IsImage& source);
    /// Reverses the order of the rows in place.  @return false for an empty image
    bool FlipRows();
    /// Turns and mirrors the picture as its orientation (Info) asks, which is 1 afterwards.
    ///
    /// The orientation says where the stored top row and left column belong: 1 top and left, 2 top
    /// and right, 3 bottom and right, 4 bottom and left, 5 left and top, 6 right and top, 7 right and
    /// bottom, 8 left and bottom.  From 5 on width and height change places.  0 changes nothing.
    /// Loading never turns a picture.
    /// @return false, with the image as it was, for an empty image or a ghost, or when memory is out
    bool ApplyOrientation();
    /// Changes the size in pixels, with the depth, palette and settings kept.
    ///
    /// Colours between pixels are found by `interpolation`.  Unless averaging is disabled, a picture
    /// that shrinks takes the mean over the area that each new pixel covers instead, which keeps the
    /// mean brightness; an axis that grows meanwhile is interpolated.  Pixels of an image with a
    /// palette become the entry nearest to their colour.
    /// @param newWidth       pixels, at least 1
    /// @param interpolation  a tint::Interpolation (ResampleKernels.h)
    /// @param overflow       what lies beyond the edges, a tint::Overflow (Resample.h)
    /// @param target         receives the result; null replaces this image's own content
    /// @return false, with LastErrorText set and both images as they were, for an empty image, a size
    ///         below 1 or refused (CreateImage), a ghost that would receive the result, or when
    ///         memory is out
    bool Resample(int32_t newWidth, int32_t newHeight, int32_t interpolation, int32_t overflow,
                  IsImage* target = nullptr, bool disableAveraging = false);

#ifdef _WIN32
    // Drawing; what the system's calls return is not looked at.

    /// Draws the whole picture, scaled, into a rectangle of a device context, in its logical units.
    ///
    /// A picture without a transparent index leaves the stretch mode of `dc` at COLORONCOLOR.  Of
    /// one with it the pixels of that palette entry, or of the background colour in a 24-bit image,
    /// are left out; the stretch mode stays and the background colour of `dc` is white afterwards,
    /// but nothing at all is done to `dc` when the rectangle is not visible.
    /// @param cx  negative for the picture's own width
    /// @param cy  negative for the picture's own height
    /// @return false, with nothing drawn, for an empty or disabled image, a null `dc`, and when `cx`
    ///         or `cy` is 0
    bool DrawImage(HDC dc, int32_t x, int32_t y, int32_t cx, int32_t cy) const;
    /// DrawImage into `rect`; sides longer than 31 bits can say are cut to that.
    bool DrawImageInRect(HDC dc, const RECT& rect) const;
    /// Draws the whole picture, scaled, with a raster operation and regardless of transparency.
    /// @return false for an empty image and a null `dc`
    bool StretchImage(HDC dc, int32_t x, int32_t y, int32_t cx, int32_t cy, uint32_t rop) const;
    /// Fills the rectangle of the picture's size at the origin of `dc` with the picture as a brush
    /// pattern, which is aligned to the brush origin of `dc`.
    /// @param area  not used
    /// @return false for an empty or disabled image and a null `dc`
    bool TileImage(HDC dc, const RECT& area) const;
#endif

    // Geometry

    bool IsEmpty() const {
        return dib == nullptr;
    }
    uint32_t Width() const {
        return static_cast<uint32_t>(header.biWidth);
    }
    uint32_t Height() const {
        return static_cast<uint32_t>(header.biHeight);
    }
    uint32_t BitCount() const {
        return header.biBitCount;
    }
    /// Bytes from one row to the next.
    uint32_t EffectiveWidth() const {
        return info.effectiveWidth;
    }
    /// The whole block, null while empty.
    const uint8_t* Dib() const {
        return dib;
    }
    const BITMAPINFOHEADER& Header() const {
        return header;
    }
    /// Bytes of the block: header, palette and rows.
    uint32_t BlockSize() const;
    /// Bytes of the palette.
    uint32_t PaletteBytes() const;
    /// Row `row`, counted from the lowest; null when it is not below the height.
    uint8_t* RowPointer(uint32_t row);
    const uint8_t* RowPointer(uint32_t row) const;

    // Pixels; (0, 0) is the lower left corner.

    /// Palette index of a pixel; 0 outside the picture and in 24-bit images.
    uint8_t GetPixelIndex(uint32_t x, uint32_t y) const;
    /// @return false outside the picture, for 24-bit images and for an index beyond the palette
    bool SetPixelIndex(uint32_t x, uint32_t y, uint8_t index);
    /// Colour of a pixel, black outside the picture.
    RGBQUAD GetPixelColor(uint32_t x, uint32_t y) const;
    /// Sets a pixel to `color`, or to the palette entry nearest to it.
    /// @return false outside the picture
    bool SetPixelColor(uint32_t x, uint32_t y, RGBQUAD color);

    // Palette

    /// The palette, null when the image is empty or has none.
    RGBQUAD* Palette();
    const RGBQUAD* Palette() const;
    uint32_t PaletteEntries() const {
        return header.biClrUsed;
    }
    /// Palette entry `index`, black beyond the palette.
    RGBQUAD GetPaletteColor(uint32_t index) const;
    /// Sets an entry; its reserved byte becomes 0.  @return false beyond the palette
    bool SetPaletteColor(uint32_t index, RGBQUAD color);
    /// Index of the entry nearest to `color` by the sum of squared channel differences, the first of
    /// equals; 0 without a palette.
    uint8_t GetNearestIndex(RGBQUAD color) const;

    // Settings

    const tint::ImageInfo& Info() const {
        return info;
    }
    uint32_t Type() const {
        return info.type;
    }
    /// Sets the resolution; anything below 1 means 96 dpi.
    void SetHorizontalDpi(int32_t dpi);
    void SetVerticalDpi(int32_t dpi);
    /// @param index  palette index shown as transparent, -1 for none
    void SetTransparentIndex(int32_t index) {
        info.transparentIndex = index;
    }
    void SetBackgroundColor(RGBQUAD color) {
        info.backgroundColor = color;
    }
    void SetJpegQuality(uint8_t quality) {
        info.jpegQuality = quality;
    }
    /// @param scale  JPEG pictures are decoded at 1/scale of their size: 1, 2, 4 or 8
    void SetJpegScale(uint8_t scale) {
        info.jpegScale = scale;
    }
    void Enable(bool enable) {
        info.enabled = enable ? 1 : 0;
    }
    /// The value kept for a format code; 0 means the image's own format.  0 for a code above 3.
    uint32_t FormatValue(uint32_t format) const;
    /// Keeps a value for a format code, as FormatValue; a code above 3 is ignored.
    void SetFormatValue(uint32_t format, uint32_t value);

protected:
    /// Keeps the first 255 characters of `text`; null clears.
    void SetErrorText(const char* text);
    /// Writes `header` to the start of the block, after a change.
    void StoreHeader();
    /// CreateImage for a decoder: forgets the transparent index and the background colour too, which
    /// a picture before may have left.  Its resolution is for the decoder to set.
    bool BeginPicture(uint32_t width, uint32_t height, uint32_t bitCount, uint32_t type);

    uint8_t* dib;            ///< the block, null while empty
    BITMAPINFOHEADER header; ///< copy of the block's header
    tint::ImageInfo info;
    uint8_t* sideBuffer; ///< second block, from `malloc`, owned with the first; null by default

private:
    template <class Codec>
    bool DecodeWith(bool (Codec::*decode)(CxFile*), const char* failure, CxFile* stream);
    bool ReadPackedDib(const uint8_t* data, size_t size);
    bool CreateLike(const IsImage& source, uint32_t width, uint32_t height);
    bool SharesBuffers(const IsImage& other) const;
    bool TransposePixels();
    void LoadPath(const char* path);
    void MakePlaceholder();
#ifdef _WIN32
    void DrawTransparent(HDC dc, int32_t x, int32_t y, int32_t cx, int32_t cy) const;
#endif

    char lastError[256];
};
