// SPDX-License-Identifier: MIT
#include "gallery/tour/PictureSheet.h"

#include <gtest/gtest.h>

#include <algorithm>

using automation::Picture;

namespace {

Picture Filled(int width, int height, COLORREF color) {
    return {width, height, std::vector<COLORREF>(static_cast<std::size_t>(width) * height, color)};
}

int Count(const Picture& picture, COLORREF color) {
    return static_cast<int>(std::count(picture.pixels.begin(), picture.pixels.end(), color));
}

TEST(PictureSheet, HoldsEveryPictureEnlarged) {
    constexpr COLORREF colors[] = {RGB(255, 0, 1), RGB(255, 0, 2), RGB(255, 0, 3)};
    PictureSheet sheet(2, 3);
    for (const COLORREF color : colors)
        sheet.Add("", Filled(10, 4, color));
    const Picture composed = sheet.Compose();
    for (const COLORREF color : colors)
        EXPECT_EQ(Count(composed, color), 10 * 4 * 3 * 3);
    EXPECT_EQ(composed.At(0, 0), ::GetSysColor(COLOR_BTNFACE));
    EXPECT_GT(composed.width, 2 * 30) << "two columns";
    EXPECT_LT(composed.width, 3 * 30 + 12);
}

TEST(PictureSheet, LabelsStandBelow) {
    PictureSheet plain(1, 1);
    plain.Add("", Filled(60, 10, RGB(255, 0, 1)));
    PictureSheet labelled(1, 1);
    labelled.Add("Label", Filled(60, 10, RGB(255, 0, 1)));
    EXPECT_EQ(Count(plain.Compose(), ::GetSysColor(COLOR_BTNTEXT)), 0);
    EXPECT_GT(Count(labelled.Compose(), ::GetSysColor(COLOR_BTNTEXT)), 0);
}

TEST(PictureSheet, WithoutPicturesIsEmpty) {
    EXPECT_TRUE(PictureSheet(4, 2).Compose().pixels.empty());
}

} // namespace
