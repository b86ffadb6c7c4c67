// SPDX-License-Identifier: MIT
//
// Loading: recognising formats, the constructors, the dispatcher.
#include "image/CxIOFile.h"
#include "tests/image/BmpBuilder.h"
#include "tests/image/ImageTesting.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>

using namespace bmptest;
using namespace tint;
using imagetest::LimitsGuard;
using imagetest::Picture;

namespace {

const Bytes kPng = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0, 0, 13};
const Bytes kJfif = {0xFF, 0xD8, 0xFF, 0xE0, 0x00, 0x10, 'J', 'F', 'I', 'F', 0, 1};
const Bytes kExifJpeg = {0xFF, 0xD8, 0xFF, 0xE1, 0x00, 0x10, 'E', 'x', 'i', 'f', 0, 0};
const Bytes kText = {'h', 'e', 'l', 'l', 'o', ' ', 'w', 'o', 'r', 'l', 'd', '!'};

/// Two pixels in two rows: red over blue.
Bitmap RedOverBlue() {
    Bitmap bitmap;
    bitmap.height = 2;
    bitmap.pixels = {0xFF, 0, 0, 0, 0, 0, 0xFF, 0};
    return bitmap;
}

/// A file with `content` that is removed with this object.
class TemporaryFile {
public:
    TemporaryFile(const std::string& name, const Bytes& content)
        : m_path(testing::TempDir() + "tintkit-" + name) {
        CxIOFile file;
        EXPECT_TRUE(file.Open(m_path.c_str(), "wb")) << m_path;
        file.Write(content.data(), 1, content.size());
    }
    ~TemporaryFile() { remove(m_path.c_str()); }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    const char* Path() const { return m_path.c_str(); }

private:
    std::string m_path;
};

IsImage FromMemory(const Bytes& data) {
    return IsImage(data.data(), static_cast<uint32_t>(data.size()));
}

void ExpectPlaceholder(const IsImage& image) {
    EXPECT_EQ(image.Width(), 100u);
    EXPECT_EQ(image.Height(), 60u);
    EXPECT_EQ(image.BitCount(), 24u);
    EXPECT_EQ(image.Type(), uint32_t{kFormatBmp});
    EXPECT_STREQ(image.LastErrorText(), "unknown image format");
}

TEST(FormatsTest, MemoryIsKnownByItsFirstBytes) {
    Bytes bmp = kText;
    bmp[0] = 'B';
    bmp[1] = 'M';
    const struct {
        const Bytes& data;
        ImageFormat format;
    } cases[] = {{bmp, kFormatBmp},
                 {kPng, kFormatPng},
                 {kJfif, kFormatJpeg},
                 {kExifJpeg, kFormatUnknown},
                 {kText, kFormatUnknown}};
    for (const auto& c : cases) {
        EXPECT_EQ(DetectFormat(c.data.data(), 12), c.format);
        EXPECT_EQ(DetectFormat(c.data.data(), 11), c.format);
        EXPECT_EQ(DetectFormat(c.data.data(), 10), kFormatUnknown) << "too short for any";
    }
    EXPECT_EQ(DetectFormat(nullptr, 100), kFormatUnknown);
}

TEST(FormatsTest, FilesAreKnownBySignatureOrLowerCaseEnding) {
    const Bytes bmp = BmpFile(RedOverBlue());
    const struct {
        const Bytes& head;
        const char* path;
        ImageFormat format;
    } cases[] = {
        {bmp, "a.txt", kFormatBmp},
        {bmp, "a.png", kFormatBmp},
        {kPng, "a.BMP", kFormatPng},
        {kPng, "a.bmp", kFormatBmp},
        {kPng, "a.jpg", kFormatPng},
        {kJfif, "a.txt", kFormatJpeg},
        {kJfif, "a.png", kFormatPng},
        {kExifJpeg, "a.jpg", kFormatJpeg},
        {kExifJpeg, "a.jpeg", kFormatUnknown},
        {kExifJpeg, "a.JPG", kFormatUnknown},
        {kText, "bmp", kFormatBmp},
        {kText, "mp", kFormatUnknown},
        {kText, "", kFormatUnknown},
        {kText, nullptr, kFormatUnknown},
        {kJfif, nullptr, kFormatJpeg},
    };
    for (const auto& c : cases) {
        uint8_t head[kSignatureBytes];
        memcpy(head, c.head.data(), sizeof(head));
        EXPECT_EQ(DetectFileFormat(head, c.path), c.format)
            << (c.path ? c.path : "null") << ", first byte " << int{head[0]};
    }
}

TEST(LoadTest, ReadsPicturesFromMemoryAndFiles) {
    const Bytes data = BmpFile(RedOverBlue());
    const TemporaryFile file("picture.dat", data);
    for (const IsImage& image : {FromMemory(data), IsImage(file.Path())}) {
        EXPECT_EQ(Picture(image), "FF0000 / 0000FF");
        EXPECT_EQ(image.Type(), uint32_t{kFormatBmp});
        EXPECT_STREQ(image.LastErrorText(), "");
    }
}

TEST(LoadTest, AnUnknownFormatGivesAPlaceholder) {
    ExpectPlaceholder(FromMemory(kText));
    ExpectPlaceholder(FromMemory(kExifJpeg));
    ExpectPlaceholder(FromMemory(Bytes(10, 'B')));
    ExpectPlaceholder(IsImage(nullptr, 0));
    const TemporaryFile text("text.txt", kText);
    ExpectPlaceholder(IsImage(text.Path()));
    const TemporaryFile empty("empty.txt", {});
    ExpectPlaceholder(IsImage(empty.Path()));
}

TEST(LoadTest, AFileThatCannotBeOpenedIsNamedAsTheReason) {
    const std::string missing = testing::TempDir() + "tintkit-missing";
    const IsImage known((missing + ".bmp").c_str());
    EXPECT_TRUE(known.IsEmpty());
    EXPECT_STREQ(known.LastErrorText(), "file cannot be opened");
    const IsImage unknown((missing + ".txt").c_str());
    EXPECT_EQ(unknown.Width(), 100u);
    EXPECT_STREQ(unknown.LastErrorText(), "file cannot be opened");
}

TEST(LoadTest, ADamagedPictureLeavesTheImageEmptyWithAText) {
    Bytes data = BmpFile(RedOverBlue());
    data.resize(30);
    const IsImage image = FromMemory(data);
    EXPECT_TRUE(image.IsEmpty());
    EXPECT_STRNE(image.LastErrorText(), "");
}

TEST(LoadTest, ARefusedSizeNamesTheLimitToTheCaller) {
    const LimitsGuard guard;
    DecodeLimits limits;
    limits.maxPixels = 2;
    SetDecodeLimits(limits);
    EXPECT_STREQ(FromMemory(BmpFile(RedOverBlue())).LastErrorText(), "");
    limits.maxPixels = 1;
    SetDecodeLimits(limits);
    const IsImage image = FromMemory(BmpFile(RedOverBlue()));
    EXPECT_TRUE(image.IsEmpty());
    EXPECT_NE(strstr(image.LastErrorText(), "maxPixels"), nullptr) << image.LastErrorText();
}

TEST(LoadTest, AFailedDecodeLeavesTheTargetAsItWas) {
    IsImage image = FromMemory(BmpFile(RedOverBlue()));
    image.SetJpegQuality(33);
    Bytes broken = BmpFile(RedOverBlue());
    broken.resize(20);
    for (const uint32_t type : {0u, 1u, 4u, 0xFFFFFFFFu}) {
        CxMemFile stream(broken.data(), static_cast<uint32_t>(broken.size()));
        EXPECT_FALSE(image.DecodeByType(type, &stream));
        EXPECT_STRNE(image.LastErrorText(), "");
    }
    EXPECT_FALSE(image.DecodeByType(kFormatBmp, nullptr));
    EXPECT_FALSE(image.LoadFromStdioFile(nullptr, kFormatBmp));
    EXPECT_EQ(Picture(image), "FF0000 / 0000FF");
    EXPECT_EQ(image.Info().jpegQuality, 33);

    IsImage ghost;
    ghost.Ghost(&image);
    Bytes sound = BmpFile(RedOverBlue());
    CxMemFile stream(sound.data(), static_cast<uint32_t>(sound.size()));
    EXPECT_FALSE(ghost.DecodeByType(kFormatBmp, &stream));
    EXPECT_EQ(ghost.Info().ghostOf, &image);
}

TEST(LoadTest, ASuccessfulDecodeKeepsSettingsAndClearsTheText) {
    IsImage image = FromMemory(kText);
    image.DestroyImage();
    image.SetJpegQuality(33);
    Bytes data = BmpFile(RedOverBlue());
    CxMemFile stream(data.data(), static_cast<uint32_t>(data.size()));
    EXPECT_TRUE(image.DecodeByType(kFormatBmp, &stream));
    EXPECT_EQ(image.Info().jpegQuality, 33);
    EXPECT_STREQ(image.LastErrorText(), "");
}

TEST(LoadTest, StdioFilesAreReadFromTheirPosition) {
    Bytes data = kText;
    Append(data, BmpFile(RedOverBlue()));
    const std::unique_ptr<FILE, int (*)(FILE*)> file(tmpfile(), fclose);
    fwrite(data.data(), 1, data.size(), file.get());
    fseek(file.get(), static_cast<long>(kText.size()), SEEK_SET);
    IsImage image;
    EXPECT_TRUE(image.LoadFromStdioFile(file.get(), kFormatBmp));
    EXPECT_EQ(Picture(image), "FF0000 / 0000FF");
}

} // namespace
