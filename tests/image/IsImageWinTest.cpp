// SPDX-License-Identifier: MIT
//
// Loading from module resources and global memory.
#include "tests/image/BmpBuilder.h"
#include "tests/image/ImageTesting.h"

#include <gtest/gtest.h>

#include <cstring>

using imagetest::Picture;

namespace {

HRSRC FindPicture() {
    return FindResourceA(nullptr, MAKEINTRESOURCEA(101), MAKEINTRESOURCEA(10)); // RT_RCDATA
}

TEST(LoadFromResource, DecodesTheFormatTheCallerNames) {
    const HRSRC resource = FindPicture();
    ASSERT_NE(resource, nullptr);
    IsImage image;
    EXPECT_TRUE(image.LoadFromResource(resource, tint::kFormatBmp, nullptr));
    EXPECT_EQ(Picture(image), "030201");
    EXPECT_FALSE(image.LoadFromResource(resource, tint::kFormatUnknown, nullptr));
    EXPECT_STREQ(image.LastErrorText(), "unknown image format");
    EXPECT_FALSE(image.LoadFromResource(nullptr, tint::kFormatBmp, nullptr));
    EXPECT_STREQ(image.LastErrorText(), "resource cannot be loaded");
    EXPECT_EQ(Picture(image), "030201") << "what failed left the picture alone";
}

TEST(CreateFromGlobalDib, ReadsAMovableBlockAndLeavesItUnlocked) {
    bmptest::Bitmap bitmap;
    bitmap.bitCount = 32;
    bitmap.pixels = {1, 2, 3, 0};
    const bmptest::Bytes data = bmptest::PackedDib(bitmap);
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, data.size());
    ASSERT_NE(block, nullptr);
    memcpy(GlobalLock(block), data.data(), data.size());
    GlobalUnlock(block);

    IsImage image;
    EXPECT_TRUE(image.CreateFromGlobalDib(block));
    EXPECT_EQ(Picture(image), "030201");
    EXPECT_EQ(GlobalFlags(block) & GMEM_LOCKCOUNT, 0u);
    EXPECT_EQ(GlobalFree(block), nullptr) << "still the caller's";

    EXPECT_FALSE(image.CreateFromGlobalDib(nullptr));
    EXPECT_TRUE(image.IsEmpty());
}

} // namespace
