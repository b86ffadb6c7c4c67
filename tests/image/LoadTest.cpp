// SPDX-License-Identifier: MIT
//
// Loading: recognising formats, the constructors, the dispatcher.
#include "image/CxIOFile.h"
#include "tests/image/BmpBuilder.h"
#include "tests/image/ImageTesting.h"
#include "tests/image/JpegBuilder.h"
#include "tests/image/PngBuilder.h"

#include <gtest/gtest.h>

using namespace bmptest;
using namespace tint;
using imagetest::Cut;
using imagetest::Decode;
using imagetest::Picture;

namespace {

const Bytes kPng = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0, 0, 13};
const Bytes kJfif = {0xFF, 0xD8, 0xFF, 0xE0, 0x00, 0x10, 'J', 'F', 'I', 'F', 0, 1};
const Bytes kExifJpeg = {0xFF, 0xD8, 0xFF, 0xE1, 0x00, 0x10, 'E', 'x', 'i', 'f', 0, 0};
const Bytes kText = {'h', 'e', 'l', 'l', 'o', ' ', 'w', 'o', 'r', 'l', 'd', '!'};
/// Two pixels in two rows.
const Bytes kBmp = BmpFile(Make(24, 1, 2, {0xFF, 0, 0, 0, 0, 0, 0xFF, 0}));
const char kRedOverBlue[] = "FF0000 / 0000FF";

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

TEST(Formats, AreKnownBySignatureOrLowerCaseEnding) {
    const std::pair<const Bytes&, ImageFormat> inMemory[] = {{kBmp, kFormatBmp},
                                                             {kPng, kFormatPng},
                                                             {kJfif, kFormatJpeg},
                                                             {kExifJpeg, kFormatUnknown},
                                                             {kText, kFormatUnknown}};
    for (const auto& [data, format] : inMemory) {
        EXPECT_EQ(DetectFormat(data.data(), 11), format);
        EXPECT_EQ(DetectFormat(data.data(), 10), kFormatUnknown) << "too short for any";
    }
    EXPECT_EQ(DetectFormat(nullptr, 100), kFormatUnknown);
    const struct {
        const Bytes& head;
        const char* path;
        ImageFormat format;
    } cases[] = {
        {kBmp, "a.png", kFormatBmp},       {kPng, "a.BMP", kFormatPng},
        {kPng, "a.bmp", kFormatBmp},       {kPng, "a.jpg", kFormatPng},
        {kJfif, "a.txt", kFormatJpeg},     {kJfif, "a.png", kFormatPng},
        {kExifJpeg, "a.jpg", kFormatJpeg}, {kExifJpeg, "a.jpeg", kFormatUnknown},
        {kText, "bmp", kFormatBmp},        {kExifJpeg, "a.JPG", kFormatUnknown},
        {kText, "mp", kFormatUnknown},     {kText, nullptr, kFormatUnknown},
        {kJfif, nullptr, kFormatJpeg},
    };
    for (const auto& c : cases) {
        uint8_t head[kSignatureBytes];
        memcpy(head, c.head.data(), sizeof(head));
        EXPECT_EQ(DetectFileFormat(head, c.path), c.format)
            << (c.path ? c.path : "null") << ", first byte " << int{head[0]};
    }
}

TEST(Load, ReadsPicturesFromMemoryAndFiles) {
    const TemporaryFile file("picture.dat", kBmp);
    for (const IsImage& image : {FromMemory(kBmp), IsImage(file.Path())}) {
        EXPECT_EQ(Picture(image), kRedOverBlue);
        EXPECT_EQ(image.Type(), uint32_t{kFormatBmp});
        EXPECT_STREQ(image.LastErrorText(), "");
    }
    FILE* handle = tmpfile();
    ASSERT_NE(handle, nullptr);
    fwrite(kText.data(), 1, kText.size(), handle);
    fwrite(kBmp.data(), 1, kBmp.size(), handle);
    fseek(handle, static_cast<long>(kText.size()), SEEK_SET);
    IsImage image;
    EXPECT_TRUE(image.LoadFromStdioFile(handle, kFormatBmp)) << "from its position";
    EXPECT_EQ(Picture(image), kRedOverBlue);
    fclose(handle);
}

TEST(Load, AnUnknownFormatGivesAPlaceholderAndDamageNothing) {
    const TemporaryFile text("text.txt", kText), empty("empty.txt", {});
    const std::string missing = testing::TempDir() + "tintkit-missing";
    const struct {
        IsImage image;
        const char* error;
        bool placeholder;
    } cases[] = {
        {FromMemory(kText), "unknown image format", true},
        {FromMemory(kExifJpeg), "unknown image format", true},
        {IsImage(nullptr, 0), "unknown image format", true},
        {IsImage(text.Path()), "unknown image format", true},
        {IsImage(empty.Path()), "unknown image format", true},
        {IsImage((missing + ".txt").c_str()), "file cannot be opened", true},
        {IsImage((missing + ".bmp").c_str()), "file cannot be opened", false},
        {FromMemory(Cut(kBmp, 30)), "BMP data are damaged or not supported", false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.image.Width(), c.placeholder ? 100u : 0u);
        EXPECT_EQ(c.image.Height(), c.placeholder ? 60u : 0u);
        EXPECT_EQ(c.image.BitCount(), c.placeholder ? 24u : 0u);
        EXPECT_STREQ(c.image.LastErrorText(), c.error);
    }
}

TEST(Load, AFailedDecodeLeavesTheTargetAsItWas) {
    IsImage image = FromMemory(kBmp);
    image.SetTransparentIndex(3);
    for (const uint32_t type : {0u, 1u, 2u, 3u, 4u, 0xFFFFFFFFu}) {
        EXPECT_FALSE(Decode(Cut(kBmp, 20), image, type));
        EXPECT_STRNE(image.LastErrorText(), "");
    }
    EXPECT_FALSE(image.DecodeByType(kFormatBmp, nullptr));
    EXPECT_FALSE(image.LoadFromStdioFile(nullptr, kFormatBmp));
    EXPECT_EQ(Picture(image), kRedOverBlue);
    EXPECT_EQ(image.Info().transparentIndex, 3);
}

/// Settings stay; what the picture before said of itself does not.
TEST(Load, ASecondPictureBeginsAnew) {
    const std::pair<uint32_t, Bytes> pictures[] = {
        {kFormatBmp, kBmp},
        {kFormatJpeg, jpegtest::JpegFile({})},
        {kFormatPng, pngtest::PngFile(pngtest::Make(pngtest::kRgb, 8, 1, 1, {1, 2, 3}))}};
    for (const auto& [type, file] : pictures) {
        IsImage once, again = FromMemory(kText);
        again.SetJpegQuality(33);
        again.SetTransparentIndex(5);
        again.SetBackgroundColor({1, 2, 3, 0});
        again.SetHorizontalDpi(50);
        ASSERT_TRUE(Decode(file, once, type));
        ASSERT_TRUE(Decode(file, again, type)) << again.LastErrorText();
        EXPECT_EQ(again.Info().jpegQuality, 33);
        EXPECT_EQ(again.Info().transparentIndex, -1) << FormatName(type);
        EXPECT_EQ(again.Info().backgroundColor.rgbBlue, 0) << FormatName(type);
        EXPECT_EQ(again.Info().xDpi, once.Info().xDpi) << FormatName(type);
        EXPECT_STREQ(again.LastErrorText(), "");
    }
}

} // namespace
