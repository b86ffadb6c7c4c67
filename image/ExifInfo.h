// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// What a JPEG file says about its picture outside the pixels: EXIF fields, comment, frame.
///
/// A field the file does not state is 0 or "".  Texts are in the file's own encoding, usually ASCII.
struct ExifInfo {
    char exifVersion[5] = "";     ///< four digits, "0221"
    char cameraMake[32] = "";     ///< cut to 31 characters
    char cameraModel[40] = "";    ///< cut to 39 characters
    char dateTime[20] = "";       ///< when it was taken, "2008:05:30 15:56:01"
    int32_t height = 0;           ///< pixels, of the coded picture
    int32_t width = 0;            ///< pixels, of the coded picture
    int32_t orientation = 0;      ///< 1 to 8, see IsImage::ApplyOrientation
    int32_t isColor = 0;          ///< 1 for a picture of three components
    int32_t process = 0;          ///< marker of the coding process, 0xC0 is baseline
    int32_t flashUsed = 0;        ///< 1 when the flash fired or its return light was looked for
    float focalLength = 0;        ///< millimetres
    float exposureTime = 0;       ///< seconds
    float apertureFNumber = 0;    ///< f-number
    float subjectDistance = 0;    ///< metres; negative where the file means infinity
    float ccdWidth = 0;           ///< width of the sensor in the unit of the focal plane
    float exposureBias = 0;       ///< EV
    int32_t lightSource = 0;      ///< EXIF code
    int32_t meteringMode = 0;     ///< EXIF code
    int32_t exposureProgram = 0;  ///< EXIF code
    int32_t isoEquivalent = 0;    ///< film speed
    int32_t compressionLevel = 0; ///< bits per pixel, whole part
    float focalPlaneXRes = 0;     ///< pixels per unit of the focal plane
    float focalPlaneYRes = 0;     ///< pixels per unit of the focal plane
    float focalPlaneUnits = 0;    ///< the unit in inches: 1 for inches, 0.394 for centimetres
    float xResolution = 0;        ///< pixels per resolution unit
    float yResolution = 0;        ///< pixels per resolution unit
    float resolutionUnit = 0;     ///< the unit in inches
    float brightness = 0;         ///< APEX
    char comments[1000] = "";     ///< the file's comment, or the user comment of the EXIF fields
    const uint8_t* thumbnailData =
        nullptr;                ///< inside a section of the reader, whose lifetime it has
    uint32_t thumbnailSize = 0; ///< bytes at `thumbnailData`
    bool isExif = false;        ///< whether EXIF fields were found and sound
};
