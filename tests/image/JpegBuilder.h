// SPDX-License-Identifier: MIT
#pragma once

#include "image/CxMemFile.h"
#include "image/JpegErrors.h"
#include "image/JpegStream.h"
#include "tests/image/Bytes.h"

#include <cstdlib>
#include <string>

/// @file
/// JPEG files for tests and as seeds for the fuzzers: encoded by the library through our own
/// destination, with marker sections put in byte by byte.

namespace jpegtest {

using imagetest::Append;
using imagetest::Bytes;
using imagetest::Number;
using imagetest::With;

/// What a made-up picture is to be; its samples are a smooth slope, or all `sample`.
struct Picture {
    uint32_t width = 16;
    uint32_t height = 16;
    int components = 3; ///< 1 grey, 3 colour, 4 inverted CMYK, 2 of no known meaning
    int sample = -1;
    bool progressive = false;
    bool arithmetic = false;
    bool ycck = false;     ///< stores four components as YCCK
    bool separate = false; ///< a scan for each component
    int scansMore = 0;     ///< scans that repeat one bit of refinement, progressive only
    int sampling = 1;      ///< luma samples per chroma sample along each axis
    int restartRows = 0;   ///< rows of blocks between restart markers
    int densityUnit = -1;  ///< JFIF unit, -1 for no JFIF header
    uint16_t xDensity = 1;
    uint16_t yDensity = 1;
};

/// An encoder run over one picture; owned outside of the step that the library's errors leave.
struct Encoder {
    Picture picture;
    tint::JpegErrors errors;
    tint::JpegStream stream;
    jpeg_compress_struct library = {};
    Bytes row;
    std::vector<jpeg_scan_info> scans;

    Encoder(const Picture& what, CxFile& target) : picture(what), stream(target) {}
    ~Encoder() { jpeg_destroy_compress(&library); }
    Encoder(const Encoder&) = delete;
    Encoder& operator=(const Encoder&) = delete;
};

inline uint8_t SampleAt(const Picture& picture, uint32_t x, uint32_t y, int component) {
    if (picture.sample >= 0)
        return static_cast<uint8_t>(picture.sample);
    return static_cast<uint8_t>(x * 5 + y * 3 + static_cast<uint32_t>(component) * 50);
}

/// The scans of the picture where the library's own script is not meant.
inline std::vector<jpeg_scan_info> ScansOf(const Picture& picture) {
    std::vector<jpeg_scan_info> scans;
    if (picture.separate) {
        for (int i = 0; i < picture.components; ++i)
            scans.push_back({1, {i}, 0, 63, 0, 0});
    }
    if (picture.scansMore > 0) {
        // First the mean of the blocks, then single coefficients of the first component.
        jpeg_scan_info first = {picture.components, {0, 1, 2, 3}, 0, 0, 0, 0};
        scans.push_back(first);
        for (int i = 1; i <= picture.scansMore; ++i)
            scans.push_back({1, {0}, i, i, 0, 0});
    }
    return scans;
}

inline void EncodeStep(void* context) {
    Encoder& encoder = *static_cast<Encoder*>(context);
    const Picture& picture = encoder.picture;
    jpeg_compress_struct& library = encoder.library;
    library.err = &encoder.errors;
    jpeg_create_compress(&library);
    encoder.stream.AttachTo(library);
    library.image_width = picture.width;
    library.image_height = picture.height;
    library.input_components = picture.components;
    const J_COLOR_SPACE spaces[] = {JCS_UNKNOWN, JCS_GRAYSCALE, JCS_UNKNOWN, JCS_RGB, JCS_CMYK};
    library.in_color_space = spaces[picture.components];
    jpeg_set_defaults(&library);
    if (picture.ycck)
        jpeg_set_colorspace(&library, JCS_YCCK);
    jpeg_set_quality(&library, 90, TRUE);
    library.comp_info[0].h_samp_factor = picture.sampling;
    library.comp_info[0].v_samp_factor = picture.sampling;
    library.arith_code = picture.arithmetic;
    library.restart_in_rows = picture.restartRows;
    library.write_JFIF_header = picture.densityUnit >= 0;
    library.density_unit = static_cast<uint8_t>(picture.densityUnit);
    library.X_density = picture.xDensity;
    library.Y_density = picture.yDensity;
    if (picture.progressive)
        jpeg_simple_progression(&library);
    if (!encoder.scans.empty()) {
        library.scan_info = encoder.scans.data();
        library.num_scans = static_cast<int>(encoder.scans.size());
    }
    jpeg_start_compress(&library, TRUE);
    for (uint32_t y = 0; y < picture.height; ++y) {
        for (uint32_t i = 0; i < encoder.row.size(); ++i) {
            const uint32_t samples = static_cast<uint32_t>(picture.components);
            encoder.row[i] = SampleAt(picture, i / samples, y, static_cast<int>(i % samples));
        }
        JSAMPROW row = encoder.row.data();
        jpeg_write_scanlines(&library, &row, 1);
    }
    jpeg_finish_compress(&library);
}

/// Encodes into `target`.  @return "" or the library's error text
inline std::string Encode(const Picture& picture, CxFile& target) {
    Encoder encoder(picture, target);
    encoder.row.resize(size_t{picture.width} * static_cast<size_t>(picture.components));
    encoder.scans = ScansOf(picture);
    return encoder.errors.Run(EncodeStep, &encoder) ? "" : encoder.errors.Text();
}

/// A JPEG file; empty where the library cannot encode it.
inline Bytes JpegFile(const Picture& picture) {
    CxMemFile target;
    target.Open();
    if (!Encode(picture, target).empty())
        return {};
    const uint8_t* data = target.GetBuffer(false);
    return Bytes(data, data + target.Size());
}

/// A marker section with its two length bytes.
inline Bytes Section(uint8_t marker, const Bytes& content) {
    Bytes out = {0xFF, marker};
    Append(out, Number(content.size() + 2, 2, true));
    Append(out, content);
    return out;
}

/// `file` with sections, or any bytes, behind its first two.
inline Bytes WithSections(const Bytes& file, const std::vector<Bytes>& sections) {
    Bytes out = imagetest::Cut(file, 2);
    for (const Bytes& section : sections)
        Append(out, section);
    Append(out, Bytes(file.begin() + 2, file.end()));
    return out;
}

/// Changes the size that the frame header states, of a file from JpegFile.
inline Bytes WithFrameSize(Bytes file, uint16_t width, uint16_t height) {
    for (size_t i = 2; i + 9 < file.size();) {
        const uint8_t marker = file[i + 1];
        if (marker >= 0xC0 && marker <= 0xCA && marker != 0xC4 && marker != 0xC8) {
            const Bytes sides = Number(uint32_t{height} << 16 | width, 4, true);
            std::copy(sides.begin(), sides.end(), file.begin() + static_cast<ptrdiff_t>(i) + 5);
            return file;
        }
        i += 2u + (file[i + 2] << 8 | file[i + 3]);
    }
    return {};
}

} // namespace jpegtest
