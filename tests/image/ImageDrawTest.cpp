// SPDX-License-Identifier: MIT
//
// Painting on device contexts.
#include "image/IsImage.h"
#include "tests/support/Canvas.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

/// A canvas that tells its pixels by letters: one each, rows separated by "/", "." where untouched.
class Surface : public Canvas {
public:
    using Canvas::Canvas;
    operator HDC() const { return dc(); }

    std::string Letters() const {
        const std::map<COLORREF, char> letters = {{kUntouched, '.'},      {RGB(0, 0, 0), 'k'},
                                                  {RGB(255, 0, 0), 'r'},  {RGB(0, 255, 0), 'g'},
                                                  {RGB(0, 0, 255), 'b'},  {RGB(255, 255, 255), 'w'},
                                                  {RGB(0, 255, 255), 'c'}};
        const automation::Picture picture = Snapshot();
        std::string text;
        for (size_t i = 0; i < picture.pixels.size(); ++i) {
            const auto letter = letters.find(picture.pixels[i]);
            text += i > 0 && i % static_cast<size_t>(picture.width) == 0 ? "/" : "";
            text += letter == letters.end() ? '?' : letter->second;
        }
        return text;
    }
};

const RGBQUAD kRed = {0, 0, 255, 0};
const RGBQUAD kGreen = {0, 255, 0, 0};
const RGBQUAD kBlue = {255, 0, 0, 0};
const RGBQUAD kBlack = {};

/// "rg/bk": each pixel of its own colour, so that a turned or shifted picture shows.
IsImage FourColors(uint32_t bitCount) {
    IsImage image;
    image.CreateImage(2, 2, bitCount);
    const RGBQUAD colors[] = {kBlue, kBlack, kRed, kGreen}; // from the lower left on
    for (uint32_t i = 0; i < 4; ++i) {
        image.SetPaletteColor(i, colors[i]);
        image.SetPixelColor(i % 2, i / 2, colors[i]);
    }
    return image;
}

TEST(DrawImage, PutsThePictureIntoTheRectangle) {
    const struct {
        int32_t x, y, cx, cy;
        const char* letters;
    } cases[] = {
        {0, 0, 2, 2, "rg../bk../..../...."}, {1, 1, -1, -1, "..../.rg./.bk./...."},
        {0, 0, 4, 4, "rrgg/rrgg/bbkk/bbkk"}, {0, 1, 4, -5, "..../rrgg/bbkk/...."},
        {3, 3, 2, 2, "..../..../..../...r"}, {-1, -1, 2, 2, "k.../..../..../...."},
    };
    for (const uint32_t bitCount : {4u, 8u, 24u}) {
        const IsImage image = FourColors(bitCount);
        for (const auto& c : cases) {
            const Surface surface(4, 4);
            EXPECT_TRUE(image.DrawImage(surface, c.x, c.y, c.cx, c.cy));
            EXPECT_EQ(surface.Letters(), c.letters) << bitCount << " bits";
            EXPECT_EQ(GetStretchBltMode(surface), COLORONCOLOR) << "deliberately left so";
        }
    }
    const Surface surface(4, 4);
    EXPECT_TRUE(FourColors(24).DrawImageInRect(surface, RECT{1, 0, 3, 4}));
    EXPECT_EQ(surface.Letters(), ".rg./.rg./.bk./.bk.");
}

TEST(DrawImage, LeavesOutTheTransparentColor) {
    const struct {
        uint32_t bitCount;
        int32_t index;
        const char* natural;
        const char* doubled;
    } cases[] = {
        {8, 2, ".g../bk../..../....", "..gg/..gg/bbkk/bbkk"},
        {4, 1, "rg../b.../..../....", "rrgg/rrgg/bb../bb.."},
        {24, 7, "r.../bk../..../....", "rr../rr../bbkk/bbkk"},
    };
    for (const auto& c : cases) {
        IsImage image = FourColors(c.bitCount);
        image.SetTransparentIndex(c.index);
        image.SetBackgroundColor(kGreen); // counts in 24-bit images
        for (const bool doubled : {false, true}) {
            const Surface surface(4, 4);
            // Colours that a monochrome source would be painted with.
            SetTextColor(surface, RGB(1, 2, 3));
            SetBkColor(surface, RGB(4, 5, 6));
            SetStretchBltMode(surface, BLACKONWHITE);
            EXPECT_TRUE(image.DrawImage(surface, 0, 0, doubled ? 4 : -1, doubled ? 4 : -1));
            EXPECT_EQ(surface.Letters(), doubled ? c.doubled : c.natural);
            EXPECT_EQ(GetTextColor(surface), RGB(1, 2, 3));
            EXPECT_EQ(GetBkColor(surface), RGB(255, 255, 255)) << "deliberately";
            EXPECT_EQ(GetStretchBltMode(surface), BLACKONWHITE);
        }
    }
}

TEST(DrawImage, DoesNothingWhereATransparentPictureIsNotVisible) {
    IsImage image = FourColors(8);
    image.SetTransparentIndex(0);
    const Surface surface(4, 4);
    SetBkColor(surface, RGB(4, 5, 6));
    IntersectClipRect(surface, 0, 0, 1, 1);
    EXPECT_TRUE(image.DrawImage(surface, 2, 2, 2, 2));
    EXPECT_TRUE(image.DrawImage(surface, INT32_MAX, INT32_MAX, INT32_MAX, INT32_MAX));
    EXPECT_EQ(GetBkColor(surface), RGB(4, 5, 6));
    EXPECT_EQ(GetStretchBltMode(surface), BLACKONWHITE) << "that of a new device context";
    EXPECT_EQ(surface.Letters(), "..../..../..../....");
    // Sides beyond 31 bits are cut to that; wrapped, both would mean the picture's own size.
    EXPECT_TRUE(image.DrawImageInRect(surface, RECT{-1000, -1000, INT32_MAX, INT32_MAX}));
    EXPECT_EQ(GetBkColor(surface), RGB(255, 255, 255)) << "found visible";
}

TEST(Drawing, IsRefusedWithoutPictureOrTarget) {
    const RECT area = {0, 0, 4, 4};
    IsImage image = FourColors(24), disabled = image;
    disabled.Enable(false);
    const struct {
        IsImage image;
        bool target;
        int32_t cx, cy;
        bool stretches, others;
    } cases[] = {{IsImage(), true, 2, 2, false, false}, {image, false, 2, 2, false, false},
                 {image, true, 0, 2, true, false},      {image, true, 2, 0, true, false},
                 {disabled, true, 2, 2, true, false},   {image, true, 2, 2, true, true}};
    for (const auto& c : cases) {
        const Surface surface(4, 4);
        const HDC dc = c.target ? surface.dc() : nullptr;
        EXPECT_EQ(c.image.DrawImage(dc, 0, 0, c.cx, c.cy), c.others);
        EXPECT_EQ(surface.Letters(), c.others ? "rg../bk../..../...." : "..../..../..../....");
        EXPECT_EQ(c.image.TileImage(dc, area), c.others || c.cx * c.cy == 0);
        EXPECT_EQ(c.image.StretchImage(dc, 0, 0, c.cx, c.cy, SRCCOPY), c.stretches);
    }
}

TEST(StretchImage, UsesTheRasterOperationAndNoTransparency) {
    IsImage image = FourColors(8);
    image.SetTransparentIndex(0);
    const Surface surface(3, 2);
    EXPECT_TRUE(image.StretchImage(surface, 0, 0, 2, 2, NOTSRCCOPY));
    EXPECT_EQ(surface.Letters().substr(0, 1), "c") << "the opposite of red";
    EXPECT_TRUE(image.StretchImage(surface, 1, 0, 2, 2, SRCCOPY));
    EXPECT_EQ(surface.Letters().substr(1, 2), "rg");
    EXPECT_EQ(surface.Letters().substr(5, 2), "bk");
}

TEST(TileImage, FillsThePicturesSizeAtTheOrigin) {
    const Surface surface(4, 4);
    const IsImage image = FourColors(8);
    EXPECT_TRUE(image.TileImage(surface, RECT{0, 0, 4, 4}));
    EXPECT_EQ(surface.Letters(), "rg../bk../..../....");
    SetBrushOrgEx(surface, 1, 0, nullptr);
    EXPECT_TRUE(image.TileImage(surface, RECT{0, 0, 4, 4}));
    EXPECT_EQ(surface.Letters(), "gr../kb../..../....") << "aligned to the brush origin";
}

} // namespace
