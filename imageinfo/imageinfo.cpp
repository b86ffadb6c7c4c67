// SPDX-License-Identifier: MIT
//
// imageinfo: what the image layer sees in a file, as one JSON object a line.
#include "image/CxIOFile.h"
#include "image/CxMemFile.h"
#include "image/Formats.h"
#include "image/IsImage.h"
#include "imageinfo/ExifJson.h"
#include "imageinfo/Json.h"
#include "imageinfo/ResampleOption.h"

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

const char kUsage[] =
    "usage: imageinfo [--memory] [--resample WxH[,INTERPOLATION[,OVERFLOW]]] [--ppm OUT] FILE...\n"
    "  --memory    load from a memory buffer instead of the path\n"
    "  --resample  change the size of each decoded picture, by interpolation method 0 to 15 (5)\n"
    "              and overflow method 0 to 5 (5); what is printed stays that of the file\n"
    "  --ppm OUT   write the picture of the one FILE as a binary PPM\n";

struct Options {
    bool memory = false;
    ResampleOption resample;
    std::string ppm;
    std::vector<std::string> files;
};

struct FileCloser {
    void operator()(FILE* file) const { fclose(file); }
};
using FilePointer = std::unique_ptr<FILE, FileCloser>;

bool ParseOptions(int argc, char** argv, Options& options) {
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument == "--memory") {
            options.memory = true;
        } else if (argument == "--ppm" && i + 1 < argc) {
            options.ppm = argv[++i];
        } else if (argument == "--resample" && i + 1 < argc) {
            if (!ParseResample(argv[++i], options.resample)) {
                fprintf(stderr, "imageinfo: --resample cannot be %s\n", argv[i]);
                return false;
            }
        } else if (argument.compare(0, 2, "--") == 0) {
            fprintf(stderr, "imageinfo: unknown or incomplete option %s\n", argv[i]);
            return false;
        } else {
            options.files.push_back(argument);
        }
    }
    return !options.files.empty() && (options.ppm.empty() || options.files.size() == 1);
}

/// Whether a file is larger than a memory stream can address; false where its size is not known.
bool IsTooLarge(FILE* file) {
    if (fseek(file, 0, SEEK_END) != 0)
        return false; // a pipe: its size shows while it is read
    const long size = ftell(file);
    rewind(file);
    return size < 0 || size > INT32_MAX; // negative where 32 bits do not hold it
}

/// Reads a file whole; empty when it cannot be read.  @return false when it is too large for that
bool ReadWhole(const std::string& path, std::vector<uint8_t>& data) {
    const FilePointer file(fopen(path.c_str(), "rb"));
    if (file && IsTooLarge(file.get()))
        return false;
    uint8_t piece[65536];
    size_t got = 0;
    while (file && (got = fread(piece, 1, sizeof(piece), file.get())) > 0) {
        if (data.size() + got > INT32_MAX)
            return false;
        data.insert(data.end(), piece, piece + got);
    }
    return true;
}

/// The format by which a file is read, decodable or not.
tint::ImageFormat FormatOf(const std::string& path) {
    uint8_t head[tint::kSignatureBytes] = {};
    const FilePointer file(fopen(path.c_str(), "rb"));
    if (!file || fread(head, 1, sizeof(head), file.get()) == 0)
        memset(head, 0, sizeof(head));
    return tint::DetectFileFormat(head, path.c_str());
}

/// @param error  "" for a picture that was decoded
void PrintInfo(const std::string& path, tint::ImageFormat format, const IsImage& image,
               const char* error, const std::string& exif) {
    const bool ok = *error == '\0';
    // A placeholder is nothing of the file's.
    const IsImage nothing;
    const IsImage& shown = ok ? image : nothing;
    const tint::ImageInfo& info = shown.Info();
    printf("{\"file\": %s, \"ok\": %s, \"error\": %s, \"format\": \"%s\", ",
           JsonString(path).c_str(), ok ? "true" : "false", JsonString(error).c_str(),
           tint::FormatName(format));
    printf("\"width\": %u, \"height\": %u, \"bitCount\": %u, \"paletteEntries\": %u, ",
           static_cast<unsigned>(shown.Width()), static_cast<unsigned>(shown.Height()),
           static_cast<unsigned>(shown.BitCount()), static_cast<unsigned>(shown.PaletteEntries()));
    printf("\"xDpi\": %u, \"yDpi\": %u, \"transparentIndex\": %d, ",
           static_cast<unsigned>(info.xDpi), static_cast<unsigned>(info.yDpi),
           static_cast<int>(info.transparentIndex));
    printf("\"backgroundColor\": \"#%02x%02x%02x\"", info.backgroundColor.rgbRed,
           info.backgroundColor.rgbGreen, info.backgroundColor.rgbBlue);
    printf("%s%s}\n", exif.empty() ? "" : ", \"exif\": ", exif.c_str());
}

/// What a JPEG file says beside its picture, as a JSON object.
std::string ExifOf(const std::string& path, std::vector<uint8_t>& data, bool memory) {
    CxImageJPG image;
    if (memory) {
        CxMemFile stream(data.data(), static_cast<uint32_t>(data.size()));
        image.ReadExif(&stream);
    } else {
        CxIOFile stream;
        if (stream.Open(path.c_str(), "rb"))
            image.ReadExif(&stream);
    }
    return ExifJson(image);
}

/// Writes the picture top row first, 3 bytes a pixel.
bool WritePpm(const std::string& path, const IsImage& image) {
    const FilePointer file(fopen(path.c_str(), "wb"));
    if (!file)
        return false;
    fprintf(file.get(), "P6\n%u %u\n255\n", static_cast<unsigned>(image.Width()),
            static_cast<unsigned>(image.Height()));
    std::vector<uint8_t> row(static_cast<size_t>(image.Width()) * 3);
    for (uint32_t y = image.Height(); y-- > 0;) {
        for (uint32_t x = 0; x < image.Width(); ++x) {
            const RGBQUAD color = image.GetPixelColor(x, y);
            uint8_t* pixel = &row[static_cast<size_t>(x) * 3];
            pixel[0] = color.rgbRed;
            pixel[1] = color.rgbGreen;
            pixel[2] = color.rgbBlue;
        }
        if (fwrite(row.data(), 1, row.size(), file.get()) != row.size())
            return false;
    }
    return fflush(file.get()) == 0;
}

/// Loads and reports one file.  @return whether it was decoded, and resampled and written where
/// that was asked
bool Report(const std::string& path, const Options& options) {
    std::vector<uint8_t> data;
    if (options.memory && !ReadWhole(path, data)) {
        PrintInfo(path, tint::kFormatUnknown, IsImage(), "file is too large for memory", "");
        return false;
    }
    IsImage image = options.memory ? IsImage(data.data(), static_cast<uint32_t>(data.size()))
                                   : IsImage(path.c_str());
    const tint::ImageFormat format =
        options.memory ? tint::DetectFormat(data.data(), data.size()) : FormatOf(path);
    PrintInfo(path, format, image, image.LastErrorText(),
              format == tint::kFormatJpeg ? ExifOf(path, data, options.memory) : std::string());
    if (*image.LastErrorText())
        return false;
    const ResampleOption& size = options.resample;
    if (size.width > 0 &&
        !image.Resample(size.width, size.height, size.interpolation, size.overflow)) {
        fprintf(stderr, "imageinfo: %s cannot be resampled: %s\n", path.c_str(),
                image.LastErrorText());
        return false;
    }
    if (options.ppm.empty() || WritePpm(options.ppm, image))
        return true;
    fprintf(stderr, "imageinfo: %s cannot be written\n", options.ppm.c_str());
    return false;
}

} // namespace

int main(int argc, char** argv) {
    Options options;
    if (!ParseOptions(argc, argv, options)) {
        fputs(kUsage, stderr);
        return 1;
    }
    bool all = true;
    for (const std::string& path : options.files)
        all = Report(path, options) && all;
    return all ? 0 : 1;
}
