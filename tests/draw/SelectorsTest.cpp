// SPDX-License-Identifier: MIT
#include "draw/Selectors.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <tuple>

#include "tests/support/Canvas.h"
#include "tests/support/GdiLedger.h"

namespace {

/// What a selector must put back.
auto StateOf(HDC dc) {
    return std::tuple(::GetCurrentObject(dc, OBJ_PEN), ::GetCurrentObject(dc, OBJ_BRUSH),
                      ::GetCurrentObject(dc, OBJ_FONT), ::GetTextColor(dc));
}

LOGFONTA CurrentFont(HDC dc) {
    LOGFONTA font = {};
    ::GetObjectA(::GetCurrentObject(dc, OBJ_FONT), sizeof font, &font);
    return font;
}

HFONT MakeFont(LONG weight) {
    LOGFONTA font = {};
    font.lfHeight = -13;
    font.lfWeight = weight;
    ::lstrcpynA(font.lfFaceName, "Tahoma", LF_FACESIZE);
    return ::CreateFontIndirectA(&font);
}

TEST(Selectors, LeaveTheContextAsFound) {
    const std::function<void(HDC)> scenarios[] = {
        [](HDC dc) {
            CPenSelector pen(dc, RGB(1, 2, 3));
            pen.SetColor(tint::kNoColor);
            CPenSelector inner(dc, RGB(2, 2, 2));
        },
        [](HDC dc) {
            CBrushSelector brush(dc, RGB(1, 2, 3));
            brush.SetColor(tint::kNoColor);
            brush.SetColor(RGB(4, 5, 6));
        },
        [](HDC dc) {
            CDCObjectSaver font(dc, DEFAULT_GUI_FONT, RGB(9, 9, 9));
            CFontWeightSelector bold(dc, true);
        },
        [](HDC dc) {
            CDCObjectSaver saver(dc, MakeFont(400), RGB(9, 9, 9));
            saver.SelectObject(::CreatePen(PS_SOLID, 1, RGB(7, 7, 7)));
            saver.SelectStockObject(GRAY_BRUSH);
            saver.SetTextColor(RGB(8, 8, 8));
        },
        [](HDC dc) {
            CDCObjectSaver saver(dc, "Tahoma");
            saver.SetFaceName("Courier New");
        },
    };
    const Canvas canvas(10, 10);
    const auto found = StateOf(canvas.dc());
    const GdiLedger ledger;
    for (const HDC dc : {canvas.dc(), HDC{}, reinterpret_cast<HDC>(0x12345)})
        for (const auto& scenario : scenarios) {
            SCOPED_TRACE(&scenario - scenarios);
            scenario(dc);
            EXPECT_TRUE(StateOf(canvas.dc()) == found);
            EXPECT_EQ(ledger.Unreturned() + ledger.Faults(), "");
        }
}

TEST(BrushSelector, FillsOrLeavesHollow) {
    Canvas canvas(5, 5);
    CPenSelector pen(canvas.dc(), RGB(40, 50, 60));
    CBrushSelector brush(canvas.dc(), tint::kNoColor);
    ::Rectangle(canvas.dc(), 0, 0, 5, 5);
    EXPECT_EQ(canvas.Count(Canvas::kUntouched, {0, 0, 5, 5}), 9);
    brush.SetColor(RGB(10, 20, 30));
    pen.SetColor(RGB(70, 80, 90));
    ::Rectangle(canvas.dc(), 0, 0, 5, 5);
    EXPECT_EQ(canvas.Count(RGB(10, 20, 30), {0, 0, 5, 5}), 9);
    EXPECT_EQ(canvas.Count(RGB(70, 80, 90), {0, 0, 5, 5}), 16);
    EXPECT_EQ(brush.GetColor(), RGB(10, 20, 30));
    EXPECT_EQ(pen.GetColor(), RGB(70, 80, 90));
}

// Only the exact weight 700 is bold.
TEST(FontWeightSelector, ChangesTheWeightOnlyWhereItDiffers) {
    struct {
        LONG weight;
        bool bold;
        LONG selected;
    } const cases[] = {{400, true, 700},  {700, true, 700},  {600, true, 700},  {900, true, 700},
                       {400, false, 400}, {700, false, 400}, {600, false, 600}, {900, false, 900}};
    for (const auto& c : cases) {
        Canvas canvas(1, 1);
        const CDCObjectSaver base(canvas.dc(), MakeFont(c.weight));
        const HGDIOBJ before = ::GetCurrentObject(canvas.dc(), OBJ_FONT);
        const CFontWeightSelector selector(canvas.dc(), c.bold);
        const LOGFONTA font = CurrentFont(canvas.dc());
        EXPECT_EQ(font.lfWeight, c.selected) << c.weight << ' ' << c.bold;
        EXPECT_STREQ(font.lfFaceName, "Tahoma");
        EXPECT_EQ(::GetCurrentObject(canvas.dc(), OBJ_FONT) == before, c.weight == c.selected)
            << "a font of the right weight is not copied";
    }
}

TEST(DCObjectSaver, OwnsWhatItSelectsAndCopiesTheFontForAFace) {
    const Canvas canvas(1, 1);
    const auto current = [&] { return ::GetCurrentObject(canvas.dc(), OBJ_FONT); };
    const HFONT first = MakeFont(400);
    CDCObjectSaver base(canvas.dc(), first);
    EXPECT_EQ(current(), first);
    base.SelectObject(MakeFont(600));
    EXPECT_EQ(::GetObjectType(first), 0u) << "the replaced object is deleted at once";

    CDCObjectSaver saver(canvas.dc(), "Courier New");
    EXPECT_EQ(saver.GetFaceName(), "Courier New");
    EXPECT_EQ(CurrentFont(canvas.dc()).lfWeight, 600);
    EXPECT_EQ(CurrentFont(canvas.dc()).lfHeight, -13);
    const HGDIOBJ copy = current();
    saver.SetFaceName("COURIER NEW"); // the same face
    saver.SetFaceName(nullptr);
    EXPECT_EQ(current(), copy);
    const std::string tooLong(100, 'x');
    saver.SetFaceName(tooLong.c_str());
    EXPECT_EQ(saver.GetFaceName(), tooLong.substr(0, 31).c_str());
}

} // namespace
