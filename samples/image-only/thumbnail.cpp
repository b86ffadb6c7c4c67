// SPDX-License-Identifier: MIT
//
// thumbnail: says what a picture file holds, and makes a small picture of it.
#include "image/DecodeLimits.h"
#include "image/IsImage.h"
#include "image/Resample.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

constexpr int kDefaultSize = 128;
constexpr int kLargestSize = 4096;

struct FileCloser {
    void operator()(FILE* file) const { std::fclose(file); }
};
using FilePointer = std::unique_ptr<FILE, FileCloser>;

void PutLittleEndian(uint8_t* bytes, uint32_t value) {
    for (int i = 0; i < 4; ++i)
        bytes[i] = static_cast<uint8_t>(value >> (8 * i));
}

/// An image's block is a bitmap file but for the 14 bytes before it.
bool WriteBitmapFile(const char* path, const IsImage& image) {
    constexpr uint32_t kFileHeader = 14;
    uint8_t head[kFileHeader] = {'B', 'M'};
    PutLittleEndian(head + 2, kFileHeader + image.BlockSize());
    PutLittleEndian(head + 10, kFileHeader + image.Header().biSize + image.PaletteBytes());

    const FilePointer file(std::fopen(path, "wb"));
    return file && std::fwrite(head, sizeof head, 1, file.get()) == 1 &&
           std::fwrite(image.Dib(), image.BlockSize(), 1, file.get()) == 1 &&
           std::fflush(file.get()) == 0;
}

/// Brings the longer side to `size` and keeps the proportions; a smaller picture stays as it is.
bool Shrink(IsImage& image, int size) {
    const uint64_t width = image.Width();
    const uint64_t height = image.Height();
    const uint64_t longer = std::max(width, height);
    if (longer <= static_cast<uint64_t>(size))
        return true;
    const auto scaled = [&](uint64_t side) {
        return std::max<int32_t>(1, static_cast<int32_t>((side * size + longer / 2) / longer));
    };
    return image.Resample(scaled(width), scaled(height), tint::kBilinear, tint::kOverflowRepeat);
}

int Fail(const char* path, const char* why) {
    std::fprintf(stderr, "thumbnail: %s: %s\n", path, why);
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    const int size = argc > 3 ? std::atoi(argv[3]) : kDefaultSize;
    if (argc < 2 || argc > 4 || size < 1 || size > kLargestSize) {
        std::fprintf(stderr,
                     "usage: thumbnail PICTURE [OUT.bmp [SIZE]]\n"
                     "  SIZE  of the longer side in pixels, 1 to %d (%d)\n",
                     kLargestSize, kDefaultSize);
        return 2;
    }

    // Anybody's files: nothing of ours takes more than a hundred megapixels.
    tint::DecodeLimits limits = tint::GetDecodeLimits();
    limits.maxPixels = 100'000'000;
    tint::SetDecodeLimits(limits);

    IsImage image(argv[1]);
    if (*image.LastErrorText() != '\0')
        return Fail(argv[1], image.LastErrorText());
    std::printf("%s: %s, %u x %u pixels, %u bits\n", argv[1], tint::FormatName(image.Type()),
                static_cast<unsigned>(image.Width()), static_cast<unsigned>(image.Height()),
                static_cast<unsigned>(image.BitCount()));
    if (argc == 2)
        return 0;

    image.ApplyOrientation(); // as the photographer held the camera
    if (!Shrink(image, size))
        return Fail(argv[1], image.LastErrorText());
    if (!WriteBitmapFile(argv[2], image))
        return Fail(argv[2], "cannot be written");
    return 0;
}
