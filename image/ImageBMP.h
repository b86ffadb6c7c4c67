// SPDX-License-Identifier: MIT
#pragma once

#include "image/IsImage.h"

/// Reads Windows and OS/2 bitmaps.
///
/// Decoded are depths of 1, 4, 8, 16, 24 and 32 bits, uncompressed, run-length (RLE8, RLE4) and bit
/// fields, bottom-up and top-down, from a file or from a bare DIB that starts without its file
/// header.  Pixels of 16 and 32 bits become 24-bit ones.
///
/// Some files are deliberately read in a way of our own:
/// - 16-bit samples are shifted, not scaled: full 5-bit red gives 248; masks other than 5-5-5 and 5-6-5
///   may give other colours than they say;
/// - the masks of 32-bit files are ignored: bytes 0 to 2 of a pixel are blue, green and red;
/// - headers longer than 40 bytes, but for the 64 of OS/2, are accepted only without compression and
///   with no palette stated, if their image size is exactly that of bottom-up rows;
/// - RLE8: an encoded run that passes the end of its padded row ends the decode;
/// - RLE4: a run that begins at an odd pixel starts with its second sample, and a delta moves by an even
///   number of pixels;
/// - depths other than those above give a picture of zeros, and success;
/// - a resolution of 0 is kept as 0 dpi;
/// - pixel data that end early leave the rest of the picture zero, and give success.
class CxImageBMP : public IsImage {
public:
    CxImageBMP() : IsImage(tint::kFormatBmp) {}
    ~CxImageBMP() override;

    /// Decodes a whole picture from the position of `stream`.
    ///
    /// LastErrorText is left alone, except where the picture's size is refused.
    /// @return false on any failure; the image is then empty or partly filled
    bool DecodeBmp(CxFile* stream);

    /// Reads an information header of any accepted size and puts it into the 40-byte form: the image
    /// size and the palette entries are filled in where they are 0.
    /// @return false when it is cut short or not accepted; the stream is otherwise right behind it
    static bool ReadDibInfoHeader(CxFile* stream, BITMAPINFOHEADER& header);

    /// Turns bottom-up rows of 16- or 32-bit pixels, padded to 4 bytes, into those of `image`.
    ///
    /// The last pixel of the last row is done first, so 16-bit pixels may lie in the image's own rows,
    /// packed from the first byte on; 32-bit ones lie elsewhere.
    /// @param image     created with 24 bits, otherwise nothing happens
    /// @param source    all rows of a picture of the image's size
    /// @param redMask   with the green and blue mask the samples of a 16-bit pixel, read as above;
    ///                  ignored for 32 bits
    /// @param bitCount  16 or 32, otherwise nothing happens
    static void ConvertBitfields(IsImage& image, const uint8_t* source, uint16_t redMask,
                                 uint16_t greenMask, uint16_t blueMask, uint8_t bitCount);

private:
    struct Source;
    bool CreateFromHeader(const Source& source);
    bool ReadPixels(const Source& source);
};
