// SPDX-License-Identifier: MIT
#include "draw/Selectors.h"

#include <gtest/gtest.h>

#include <functional>

#include "tests/support/Canvas.h"
#include "tests/support/GdiLedger.h"

namespace {

/// What a selector must put back.
struct ContextState {
    explicit ContextState(HDC dc)
        : pen(::GetCurrentObject(dc, OBJ_PEN)), brush(::GetCurrentObject(dc, OBJ_BRUSH)),
          font(::GetCurrentObject(dc, OBJ_FONT)), textColor(::GetTextColor(dc)) {}

    bool operator==(const ContextState& other) const {
        return pen == other.pen && brush == other.brush && font == other.font &&
               textColor == other.textColor;
    }

    HGDIOBJ pen;
    HGDIOBJ brush;
    HGDIOBJ font;
    COLORREF textColor;
};

LOGFONTA CurrentFont(HDC dc) {
    LOGFONTA font = {};
    ::GetObjectA(::GetCurrentObject(dc, OBJ_FONT), sizeof font, &font);
    return font;
}

HFONT MakeFont(LONG weight, const char* face = "Tahoma") {
    LOGFONTA font = {};
    font.lfHeight = -13;
    font.lfWeight = weight;
    ::lstrcpynA(font.lfFaceName, face, LF_FACESIZE);
    return ::CreateFontIndirectA(&font);
}

struct Scenario {
    const char* name;
    std::function<void(HDC)> run;
};

const Scenario kScenarios[] = {
    {"pen set twice",
     [](HDC dc) {
         CPenSelector pen(dc, RGB(1, 2, 3));
         pen.SetColor(RGB(4, 5, 6));
         pen.SetColor(tint::kNoColor);
     }},
    {"brush to hollow and back",
     [](HDC dc) {
         CBrushSelector brush(dc, RGB(1, 2, 3));
         brush.SetColor(tint::kNoColor);
         brush.SetColor(RGB(4, 5, 6));
     }},
    {"bold font", [](HDC dc) { CFontWeightSelector font(dc, true); }},
    {"stock object and text colour",
     [](HDC dc) { CDCObjectSaver saver(dc, DEFAULT_GUI_FONT, RGB(9, 9, 9)); }},
    {"own objects of several kinds",
     [](HDC dc) {
         CDCObjectSaver saver(dc, MakeFont(400), RGB(9, 9, 9));
         saver.SelectObject(::CreatePen(PS_SOLID, 1, RGB(7, 7, 7)));
         saver.SelectStockObject(GRAY_BRUSH);
         saver.SetTextColor(RGB(8, 8, 8));
         saver.SetTextColor(RGB(7, 8, 9));
     }},
    {"face name twice",
     [](HDC dc) {
         CDCObjectSaver saver(dc, "Tahoma");
         saver.SetFaceName("Courier New");
     }},
    {"nested",
     [](HDC dc) {
         CDCObjectSaver font(dc, DEFAULT_GUI_FONT);
         CFontWeightSelector bold(dc, true);
         CPenSelector outer(dc, RGB(1, 1, 1));
         CPenSelector inner(dc, RGB(2, 2, 2));
         CBrushSelector brush(dc, tint::kNoColor);
     }},
};

TEST(Selectors, LeaveTheContextAsFound) {
    GdiLedger ledger;
    Canvas canvas(10, 10);
    const std::string before = ledger.Unreturned();
    const ContextState found(canvas.dc());
    for (const Scenario& scenario : kScenarios) {
        scenario.run(canvas.dc());
        EXPECT_TRUE(ContextState(canvas.dc()) == found) << scenario.name;
        EXPECT_EQ(ledger.Unreturned(), before) << scenario.name;
        EXPECT_EQ(ledger.Faults(), "") << scenario.name;
    }
}

TEST(Selectors, WithoutADeviceContextTheyReleaseWhatTheyMade) {
    GdiLedger ledger;
    for (const HDC dc : {static_cast<HDC>(nullptr), reinterpret_cast<HDC>(0x12345)})
        for (const Scenario& scenario : kScenarios)
            scenario.run(dc);
    EXPECT_EQ(ledger.Unreturned(), "");
    EXPECT_EQ(ledger.Faults(), "");
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

TEST(DCObjectSaver, OwnsWhatItSelects) {
    Canvas canvas(1, 1);
    const HPEN first = ::CreatePen(PS_SOLID, 1, RGB(1, 1, 1));
    const HPEN second = ::CreatePen(PS_SOLID, 1, RGB(2, 2, 2));
    {
        CDCObjectSaver saver(canvas.dc(), first);
        EXPECT_EQ(::GetCurrentObject(canvas.dc(), OBJ_PEN), first);
        saver.SelectObject(second);
        EXPECT_EQ(::GetObjectType(first), 0u) << "the replaced object is deleted at once";
        EXPECT_EQ(::GetCurrentObject(canvas.dc(), OBJ_PEN), second);
    }
    EXPECT_EQ(::GetObjectType(second), 0u);
    EXPECT_EQ(::GetCurrentObject(canvas.dc(), OBJ_PEN), ::GetStockObject(BLACK_PEN));
}

TEST(DCObjectSaver, FaceNameIsCopiedFromTheCurrentFont) {
    Canvas canvas(1, 1);
    const CDCObjectSaver base(canvas.dc(), MakeFont(600));
    CDCObjectSaver saver(canvas.dc(), "Courier New");
    EXPECT_EQ(saver.GetFaceName(), "Courier New");
    EXPECT_EQ(CurrentFont(canvas.dc()).lfWeight, 600);
    EXPECT_EQ(CurrentFont(canvas.dc()).lfHeight, -13);

    const HGDIOBJ current = ::GetCurrentObject(canvas.dc(), OBJ_FONT);
    saver.SetFaceName("COURIER NEW"); // the same face
    saver.SetFaceName(nullptr);
    EXPECT_EQ(::GetCurrentObject(canvas.dc(), OBJ_FONT), current);

    const std::string tooLong(100, 'x');
    saver.SetFaceName(tooLong.c_str());
    EXPECT_EQ(saver.GetFaceName(), tooLong.substr(0, 31).c_str());
}

} // namespace
