// SPDX-License-Identifier: MIT
#pragma once

#include "image/ExifInfo.h"
#include "image/IsImage.h"

#include <cstdint>
#include <memory>

class ExifReader;
struct jpeg_decompress_struct;

namespace tint {

/// How JPEG pictures are decoded; a combination of these is the image's format value:
///
///     image.SetFormatValue(tint::kFormatJpeg, tint::kJpegGrayscale);
enum JpegOption : uint32_t {
    kJpegGrayscale = 0x80,    ///< brightness only, 8 bits a pixel
    kJpegQuantize = 0x100,    ///< 8 bits and a palette of as many colours as jpegQuality says
    kJpegDither = 0x200,      ///< quantize with the dither mode, see CxImageJPG::SetDitherMode
    kJpegOnePass = 0x400,     ///< quantize to an even palette instead of the picture's own
    kJpegNoSmoothing = 0x800, ///< enlarge colour planes by repeating their samples: faster
};

} // namespace tint

/// Reads JPEG pictures: baseline and progressive, grey, colour, CMYK and YCCK, Huffman and
/// arithmetic coding, and what they say in their EXIF fields.
///
///     CxImageJPG picture;
///     if (picture.DecodeJpeg(&stream))
///         Show(picture, picture.CameraModel(), picture.ExposureTime());
///
/// Colours come out in 24 bits, grey in 8 with a grey palette.  The picture is stored as the file has
/// it: its orientation is told (IsImage::Info), and IsImage::ApplyOrientation turns it.  A file that
/// ends early gives the picture up to there, and a success; only one of several scans is refused when
/// it claims a picture far beyond what its data can fill.
///
/// The resolution is that of the EXIF fields, else the density of the JFIF header as it stands, also
/// where that is a ratio of sides; a density per centimetre is deliberately put into the formula for
/// metres and gives a hundredth of the dots.
class CxImageJPG : public IsImage {
public:
    CxImageJPG();
    ~CxImageJPG() override;

    /// Decodes a whole picture from the position of `stream`, and reads its EXIF fields.
    /// @return false with LastErrorText set; the image is then empty or partly filled
    bool DecodeJpeg(CxFile* stream);

    /// Reads only what the file says about its picture, into Exif, and leaves the stream where it
    /// was.
    /// @return whether there are EXIF fields; Exif may hold a comment and the frame's size anyway
    bool ReadExif(CxFile* stream);

    /// The last failure or oddity that ReadExif met, "" if there was none.  An oddity is no failure.
    const char* ExifErrorText() const;
    /// Where the thumbnail begins in the stream, -1 when there is none.
    int32_t ThumbnailPosition() const;

    /// @param mode  0 no dithering, 1 ordered, 2 by error diffusion; others leave the choice to the
    ///              library.  Takes effect with tint::kJpegDither.
    void SetDitherMode(uint32_t mode) { ditherMode = mode; }
    uint32_t DitherMode() const { return ditherMode; }

    /// All that was read; its thumbnail is this object's until it reads again.
    const ExifInfo& Exif() const { return exifInfo; }

    // The fields of Exif one by one.

    bool HasExif() const { return exifInfo.isExif; }
    const char* ExifVersion() const { return exifInfo.exifVersion; }
    const char* CameraMake() const { return exifInfo.cameraMake; }
    const char* CameraModel() const { return exifInfo.cameraModel; }
    const char* DateTime() const { return exifInfo.dateTime; }
    int32_t FrameHeight() const { return exifInfo.height; }
    int32_t FrameWidth() const { return exifInfo.width; }
    int32_t Orientation() const { return exifInfo.orientation; }
    bool IsColor() const { return exifInfo.isColor != 0; }
    int32_t Process() const { return exifInfo.process; }
    bool FlashUsed() const { return exifInfo.flashUsed != 0; }
    float FocalLength() const { return exifInfo.focalLength; }
    float ExposureTime() const { return exifInfo.exposureTime; }
    float ApertureFNumber() const { return exifInfo.apertureFNumber; }
    float SubjectDistance() const { return exifInfo.subjectDistance; }
    float CcdWidth() const { return exifInfo.ccdWidth; }
    float ExposureBias() const { return exifInfo.exposureBias; }
    int32_t LightSource() const { return exifInfo.lightSource; }
    int32_t MeteringMode() const { return exifInfo.meteringMode; }
    int32_t ExposureProgram() const { return exifInfo.exposureProgram; }
    int32_t IsoEquivalent() const { return exifInfo.isoEquivalent; }
    int32_t CompressionLevel() const { return exifInfo.compressionLevel; }
    float FocalPlaneXRes() const { return exifInfo.focalPlaneXRes; }
    float FocalPlaneYRes() const { return exifInfo.focalPlaneYRes; }
    float FocalPlaneUnits() const { return exifInfo.focalPlaneUnits; }
    float XResolution() const { return exifInfo.xResolution; }
    float YResolution() const { return exifInfo.yResolution; }
    float ResolutionUnit() const { return exifInfo.resolutionUnit; }
    float Brightness() const { return exifInfo.brightness; }
    const char* Comments() const { return exifInfo.comments; }
    const uint8_t* ThumbnailData() const { return exifInfo.thumbnailData; }
    uint32_t ThumbnailSize() const { return exifInfo.thumbnailSize; }

private:
    bool CreateFor(jpeg_decompress_struct& library, bool hasExif);
    void ApplySettings(jpeg_decompress_struct& library) const;
    void SetPalette(const jpeg_decompress_struct& library);

    std::unique_ptr<ExifReader> exifReader; ///< keeps the sections that `exifInfo` points into
    ExifInfo exifInfo;
    uint32_t ditherMode;
};
