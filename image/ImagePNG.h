// SPDX-License-Identifier: MIT
#pragma once

#include "image/IsImage.h"

#include <cstddef>
#include <cstdint>

struct png_struct_def;

/// Reads PNG pictures of every colour type, depth and interlacing through libpng.
///
/// The container has no alpha plane, so what a picture says about transparency ends up in one of
/// these places:
/// - palette: the alpha values go into the reserved bytes of the palette entries, the colours stay as
///   they are; a single alpha value of 0 makes index 0 the transparent index;
/// - grey of up to 8 bits with a transparent level: the palette entry of that level becomes the
///   background;
/// - grey with alpha of 8 bits, RGB with alpha of 16 bits, grey of 16 bits and RGB with a transparent
///   colour: mixed with the background;
/// - RGB with alpha of 8 bits, grey with alpha of 16 bits: the alpha values are dropped, and a
///   background that the file names is kept as the image's background colour.
///
/// The background is the one the file names, else grey 192.  Grey of more than 8 bits or with alpha
/// is stored with 24 bits a pixel, samples of 16 bits by their high byte, 2-bit pixels with 4 bits.
class CxImagePNG : public IsImage {
public:
    CxImagePNG() : IsImage(tint::kFormatPng) {}
    ~CxImagePNG() override;

    /// Decodes a whole picture from the position of `stream`, up to its last chunk.
    ///
    /// A damaged picture gives libpng's message in LastErrorText, one that is cut short "Read Error".
    /// @return false on any failure; the image is then empty or partly filled
    bool DecodePng(CxFile* stream);

    /// Widens a row of 2-bit pixels, packed from the first byte on, to 4-bit ones in place.
    /// @param image  gives the pixels a row has
    /// @param row    a row of `image`
    static void ExpandTwoBitRow(const IsImage& image, uint8_t* row);

private:
    class Reader;
    static void PngReadCallback(png_struct_def* png, uint8_t* buffer, size_t length);
    [[noreturn]] static void PngErrorCallback(png_struct_def* png, const char* message);

    bool ReadPicture(Reader& reader, CxFile& stream);
    void ReadResolution(Reader& reader);
    void ReadBackground(Reader& reader);
    void ReadPalette(Reader& reader);
    void MakeGreyPalette(Reader& reader);
    bool ReadRows(Reader& reader);
};
