// SPDX-License-Identifier: MIT
// MFC wants to be the one that includes <windows.h>.
#include <afxwin.h>

#include "controls/DrawButton.h"

#include <gtest/gtest.h>

#include <functional>
#include <tuple>
#include <vector>

#include "automation/Picture.h"
#include "automation/RealInput.h"
#include "automation/SystemColors.h"
#include "draw/Hls.h"
#include "draw/Selectors.h"
#include "tests/support/Canvas.h"
#include "tests/support/GdiLedger.h"
#include "tests/support/Pump.h"

namespace {

using B = CDrawButton;
constexpr UINT kFlatDown = B::kFlat | B::kDownArrow;

COLORREF HotFace() {
    return AdjustColorLS(::GetSysColor(COLOR_HIGHLIGHT), 70, -57);
}

// ---- Pictures -----------------------------------------------------------------------------------

// The button under test lies in a rectangle of 17 x 20, away from the origin.
constexpr int kLeft = 3;
constexpr int kTop = 2;

/// A line of a glyph, relative to the rectangle; the last pixel is left out, as GDI does.
struct Line {
    int x, y, toX, toY;
};
using Lines = std::vector<Line>;

Lines Arrow(int x, int y, int size, bool down) {
    Lines lines;
    for (int i = 0; i < size; ++i)
        lines.push_back({x - i, down ? y - i : y + i, x + i + 1, down ? y - i : y + i});
    return lines;
}

Lines Both(Lines lines, const Lines& more) {
    lines.insert(lines.end(), more.begin(), more.end());
    return lines;
}

/// How a button's outline and inside are drawn: by the system, or with two colours.
struct Frame {
    UINT classic;
    int line = 0;
    COLORREF face = ::GetSysColor(COLOR_BTNFACE);
};

struct Drawing {
    UINT own;
    UINT state; ///< 0: the own flags
    Frame frame;
    std::vector<RECT> places; ///< of the frames, relative
    Lines glyph;
    COLORREF color;
    COLORREF before = Canvas::kUntouched; ///< what the device shows
};

void DrawExpected(HDC dc, const Drawing& drawing) {
    for (RECT place : drawing.places) {
        ::OffsetRect(&place, kLeft, kTop);
        if (drawing.frame.classic != 0) {
            ::DrawFrameControl(dc, &place, DFC_BUTTON, drawing.frame.classic);
            continue;
        }
        const CPenSelector line(dc, ::GetSysColor(drawing.frame.line));
        const CBrushSelector face(dc, drawing.frame.face);
        ::Rectangle(dc, place.left, place.top, place.right, place.bottom);
    }
    const CPenSelector pen(dc, drawing.color);
    for (const Line& line : drawing.glyph) {
        ::MoveToEx(dc, kLeft + line.x, kTop + line.y, nullptr);
        ::LineTo(dc, kLeft + line.toX, kTop + line.toY);
    }
}

TEST(DrawButton, DrawsEveryKindLookAndState) {
    // A scheme in which the button text is not black, as the glyph on a hot face is.
    const automation::SystemColorGuard scheme(
        automation::FindColorScheme("high-contrast-dark")->colors);
    const COLORREF text = ::GetSysColor(COLOR_BTNTEXT);
    const COLORREF gray = ::GetSysColor(COLOR_GRAYTEXT);
    constexpr COLORREF black = RGB(0, 0, 0);
    constexpr COLORREF light = RGB(0xF0, 0xF0, 0xF0);
    ASSERT_NE(text, black);

    const Frame raised = {DFCS_BUTTONPUSH};
    const Frame sunken = {DFCS_BUTTONPUSH | DFCS_PUSHED};
    const Frame window = {0, COLOR_WINDOW};
    const Frame shadow = {0, COLOR_BTNSHADOW};
    const Frame hot = {0, COLOR_HIGHLIGHT, HotFace()};
    const Frame held = {0, COLOR_HIGHLIGHT, AdjustColorLS(::GetSysColor(COLOR_HIGHLIGHT), 50, -50)};
    const RECT whole = {0, 0, 17, 20}, upper = {0, 0, 17, 10}, lower = {0, 10, 17, 20};
    const RECT flatUpper = {0, 0, 17, 11};

    constexpr UINT down = B::kDownArrow, up = B::kUpArrow, cross = B::kCross, spin = B::kSpinPair;
    constexpr UINT flat = B::kFlat, over = B::kFlat | B::kHot, bare = B::kNoRestingFrame;
    constexpr UINT out = B::kOutsideToolbar, off = B::kDisabled;
    constexpr UINT press = B::kPressed, press2 = B::kSecondPressed;

    const Lines downGlyph = Arrow(8, 11, 4, true), downSunken = Arrow(9, 12, 4, true);
    const Lines downFlat = Arrow(8, 12, 4, true), upFlat = Arrow(8, 9, 4, false);
    const Lines crossGlyph = {{4, 5, 11, 13}, {5, 5, 12, 13}, {10, 5, 3, 13}, {11, 5, 4, 13}};
    const Lines crossSunken = {{5, 6, 12, 14}, {6, 6, 13, 14}, {11, 6, 4, 14}, {12, 6, 5, 14}};
    const Lines crossFlat = {{4, 5, 12, 14}, {5, 5, 13, 14}, {11, 5, 3, 14}, {12, 5, 4, 14}};
    const Lines spinGlyph = Both(Arrow(8, 3, 3, false), Arrow(8, 16, 3, true));
    const Lines spinFlat = Both(Arrow(8, 4, 3, false), Arrow(8, 16, 3, true));

    const Drawing table[] = {
        {down, 0, raised, {whole}, downGlyph, text},
        {down, down | press, sunken, {whole}, downSunken, text},
        {down | press2, 0, sunken, {whole}, downSunken, text},
        {down | off, 0, raised, {whole}, downGlyph, gray},
        {down | B::kHot, 0, raised, {whole}, downGlyph, text}, // never hot
        {up, 0, raised, {whole}, Arrow(8, 8, 4, false), text},
        {up | press, 0, sunken, {whole}, Arrow(9, 9, 4, false), text},
        {up | off | flat, down, raised, {whole}, downGlyph, text}, // a state replaces the flags
        {cross, 0, raised, {whole}, crossGlyph, text},
        {cross | press, 0, sunken, {whole}, crossSunken, text},
        {cross | flat, 0, window, {whole}, crossFlat, text},
        {cross | over, 0, hot, {whole}, crossFlat, black},
        {down | flat, 0, window, {whole}, downFlat, text},
        {down | flat | out, 0, shadow, {whole}, downFlat, text},
        {down, down | flat | out, window, {whole}, downFlat, text}, // but not for the frame
        {down | flat, down | over, hot, {whole}, downFlat, black},
        {down | over | press, 0, held, {whole}, downFlat, light},
        {down | flat | press, 0, window, {whole}, downFlat, light},
        {down | over | off | out, 0, shadow, {whole}, downFlat, gray},
        {down | flat | bare, 0, window, {}, downFlat, text},
        {down | flat | bare, 0, window, {}, downFlat, black, HotFace()}, // the device shows it
        {down | over | bare, 0, hot, {whole}, downFlat, black},
        {up | flat, 0, window, {whole}, upFlat, text},
        {off, 0, raised, {whole}, {}, 0}, // no glyph
        {6, 0, raised, {whole}, {}, 0},
        {0xFF | flat, 0, window, {whole}, {}, 0},
        {spin, 0, raised, {upper, lower}, spinGlyph, text},
        {spin, spin | press, sunken, {upper}, Arrow(9, 4, 3, false), text},
        {spin, spin | press2, sunken, {lower}, Arrow(9, 17, 3, true), text},
        {spin | flat | out, 0, shadow, {flatUpper, lower}, spinFlat, text},
        {spin | over, 0, hot, {flatUpper, lower}, spinFlat, black},
        {spin | over | press, 0, held, {flatUpper}, Arrow(8, 4, 3, false), light},
        {spin | flat | press2, 0, window, {lower}, Arrow(8, 16, 3, true), light},
    };
    for (const Drawing& drawing : table) {
        const Canvas shown(24, 26, drawing.before);
        const Canvas expected(24, 26, drawing.before);
        B(drawing.own, {kLeft, kTop, kLeft + 17, kTop + 20}).Draw(shown.dc(), drawing.state);
        DrawExpected(expected.dc(), drawing);
        EXPECT_EQ(shown.Snapshot(), expected.Snapshot()) << "row " << &drawing - table;
    }
}

TEST(DrawButton, ClassicLines) {
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    const Canvas shown(17, 20);
    const Canvas expected(17, 20);
    B(B::kDownArrow | B::kOutsideToolbar, {0, 0, 17, 20}).Draw(shown.dc(), B::kDownArrow);
    B(B::kDownArrow, {1, 1, 17, 20}).Draw(expected.dc(), 0);
    for (int i = 0; i < 20; ++i) {
        ::SetPixel(expected.dc(), i, 0, face);
        ::SetPixel(expected.dc(), 0, i, face);
    }
    ::SetPixel(expected.dc(), 16, 0, ::GetSysColor(COLOR_3DDKSHADOW));
    EXPECT_EQ(shown.Snapshot(), expected.Snapshot()) << "above and to the left, outside a toolbar";

    const Canvas odd(17, 21);
    B(B::kSpinPair, {0, 0, 17, 21}).Draw(odd.dc(), 0);
    EXPECT_EQ(odd.Count(face, {0, 10, 17, 11}), 17) << "between halves of one height";
}

TEST(DrawButton, EllipsisIsTextThatShiftsWhenPressed) {
    constexpr UINT dots = B::kEllipsis;
    constexpr COLORREF black = RGB(0, 0, 0);
    for (const auto& [flags, left, bottom, color] :
         {std::tuple(dots, 1, 20, black), std::tuple(dots | B::kPressed, 2, 21, black),
          std::tuple(dots | B::kFlat, 2, 20, black),
          std::tuple(dots | B::kFlat | B::kPressed, 2, 20, COLORREF{0xF0F0F0})}) {
        const Canvas shown(40, 26);
        const Canvas expected(40, 26);
        B(flags, {0, 0, 30, 20}).Draw(shown.dc(), 0);
        B(flags & ~B::kKindMask, {0, 0, 30, 20}).Draw(expected.dc(), 0);
        RECT rect = {left, 0, 30, bottom};
        ::SetBkMode(expected.dc(), TRANSPARENT);
        ::SetTextColor(expected.dc(), color);
        ::DrawTextA(expected.dc(), "...", 3, &rect, DT_SINGLELINE | DT_BOTTOM);
        EXPECT_EQ(shown.Snapshot(), expected.Snapshot()) << std::hex << flags;
        EXPECT_EQ(::GetBkMode(shown.dc()), OPAQUE);
        EXPECT_EQ(::GetTextColor(shown.dc()), black);
    }
}

TEST(DrawButton, NonsenseDrawsNothingAndLosesNothing) {
    const Canvas canvas(30, 30);
    const Canvas untouched(30, 30);
    const GdiLedger ledger;
    constexpr LONG end = 0x7FFFFFFF;
    for (const RECT& rect : {RECT{-end - 1, -end - 1, end, end}, RECT{end, end, end, end},
                             RECT{0, 0, end, 20}, RECT{0, -end - 1, 17, 20}})
        for (UINT kind = 0; kind < 10; ++kind)
            B(kind | B::kOutsideToolbar, rect).Draw(canvas.dc(), 0);
    EXPECT_EQ(canvas.Snapshot(), untouched.Snapshot());
    B(kFlatDown, {20, 17, 0, 0}).Draw(canvas.dc(), ~0U); // inside out
    for (const HDC dc : {static_cast<HDC>(nullptr), reinterpret_cast<HDC>(0x12345)})
        B(kFlatDown, {0, 0, 17, 20}).Draw(dc, 0);
    EXPECT_EQ(ledger.Unreturned() + ledger.Faults(), "");
    for (UINT i = 0; i < 70000; ++i)
        B(i % 9 | (i % 2 != 0 ? B::kFlat : 0), {0, 0, 17, 20}).Draw(canvas.dc(), 0);
    EXPECT_TRUE(CPen().CreatePen(PS_SOLID, 1, RGB(0, 0, 0)));

    B button(kFlatDown, {0, 0, 17, 20});
    for (const HWND host : {static_cast<HWND>(nullptr), reinterpret_cast<HWND>(0x12345)}) {
        button.OnMouseMove(host, {1, 1});
        EXPECT_EQ(button.GetFlags(), kFlatDown) << "no timer, not hot";
        EXPECT_EQ(button.TrackClick(host, {1, 1}), 0u);
        B::OnHoverTimer(host, WM_TIMER, B::kHoverTimer, 0);
    }
}

// ---- Mouse --------------------------------------------------------------------------------------

class LoggedButton : public CDrawButton {
public:
    using CDrawButton::CDrawButton;
    void Draw(HDC dc, UINT state) const override {
        m_states.push_back(state);
        CDrawButton::Draw(dc, state);
    }
    mutable std::vector<UINT> m_states;
};

constexpr UINT_PTR kScriptTimer = 1;
constexpr UINT kRepeat = 0x00070003; // code 3 for the upper half, 7 for the lower
using Script = std::vector<std::function<void()>>;

/// A window with a button, and a script: one step is run at a time, also inside the click loop.
class Host : public CWnd {
public:
    explicit Host(UINT flags, int left = 100) : m_button(flags, {40, 4, 57, 24}) {
        const DWORD frame = (flags & B::kNonClient) != 0 ? WS_CAPTION | WS_THICKFRAME : 0;
        CreateEx(WS_EX_TOPMOST, AfxRegisterWndClass(0, nullptr, ::GetSysColorBrush(COLOR_BTNFACE)),
                 "host", WS_POPUP | WS_VISIBLE | frame, CRect(CPoint(left, 100), CSize(160, 120)),
                 nullptr, 0);
        ::SetForegroundWindow(m_hWnd);
        ::SetDoubleClickTime(1); // each press is one of its own
        Point(300, 200);
        PumpFor(30);
    }
    ~Host() override {
        automation::ReleaseMouse();
        DestroyWindow();
        ::SetDoubleClickTime(0); // the system's default
        PumpFor(30);
    }

    /// Moves the mouse; from the button's upper left corner.
    void Point(int x, int y) const {
        CRect window;
        GetWindowRect(window);
        automation::MoveMouse({window.left + 40 + x, window.top + 4 + y});
    }

    /// Presses at a point of the button, then runs the steps; waits for the end of the click.
    UINT Click(int x, int y, const Script& steps) {
        Point(x, y);
        PumpFor(30);
        m_button.m_states.clear();
        m_script = steps;
        m_clicked = false;
        SetTimer(kScriptTimer, 30, nullptr);
        automation::PressMouse();
        EXPECT_TRUE(PumpUntil([this] { return m_clicked && m_script.empty(); }));
        automation::ReleaseMouse();
        PumpFor(60);
        return m_result;
    }

    LoggedButton m_button;
    UINT m_repeatTimer = 0;
    int m_keys = 0;
    int m_moves = 0;
    int m_repeats = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
        case WM_MOUSEMOVE:
        case WM_NCMOUSEMOVE:
            ++m_moves;
            m_button.OnMouseMove(m_hWnd, InWindow(lParam, message == WM_MOUSEMOVE));
            return 0;
        case WM_LBUTTONDOWN:
        case WM_NCLBUTTONDOWN:
            if (m_repeatTimer != 0)
                SetTimer(m_repeatTimer, 20, nullptr);
            m_result = m_button.TrackClick(m_hWnd, InWindow(lParam, message == WM_LBUTTONDOWN),
                                           m_repeatTimer);
            m_clicked = true;
            return 0;
        case WM_TIMER:
            m_repeats += wParam == kRepeat;
            if (wParam == kScriptTimer && !m_script.empty()) {
                const auto step = m_script.front();
                m_script.erase(m_script.begin());
                step();
            }
            return 0;
        default:
            m_keys += message == WM_KEYDOWN;
        }
        const LRESULT result = CWnd::WindowProc(message, wParam, lParam);
        if (message == WM_PAINT || message == WM_NCPAINT)
            m_button.CDrawButton::Draw(CWindowDC(this), 0);
        return result;
    }

private:
    CPoint InWindow(LPARAM lParam, bool ofClient) const {
        CPoint point(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
        if (ofClient)
            ClientToScreen(&point);
        CRect window;
        GetWindowRect(window);
        return point - window.TopLeft();
    }

    Script m_script;
    UINT m_result = 0;
    bool m_clicked = false;
};

class DrawButtonIn : public testing::TestWithParam<UINT> {};

TEST_P(DrawButtonIn, ClickLoopEndsAsThePersonEndsIt) {
    const UINT own = B::kDownArrow | GetParam();
    const UINT down = own | B::kPressed;
    const UINT clicked = B::kDownArrow | B::kPressed;
    Host other(0, 500);
    Host host(own);
    const auto release = [] { automation::ReleaseMouse(); };
    const auto out = [&] { host.Point(-9, 5); };
    const auto in = [&] { host.Point(5, 5); };
    const auto escape = [] { automation::TypeKey(VK_ESCAPE); };
    const auto key = [] { automation::PressKey('A'); };
    const auto right = [] { automation::PressMouse(automation::MouseButton::Right); };
    const auto cancel = [&] { host.PostMessage(WM_CANCELMODE); };
    const auto systemCancel = [&] { host.SendMessage(WM_CANCELMODE); };
    const auto moveOfOther = [&] { other.PostMessage(WM_MOUSEMOVE, 0, MAKELPARAM(900, 900)); };
    const auto steal = [&] { other.SetCapture(); };

    struct Row {
        POINT press;
        Script steps;
        UINT result;
        std::vector<UINT> states;
    };
    const Row table[] = {
        {{5, 5}, {release}, clicked, {down, 0}},
        {{5, 5}, {out, release}, 0, {down, own}},
        {{5, 5}, {out, in, release}, clicked, {down, own, down, 0}},
        {{-9, 5}, {in, release}, clicked, {down, 0}},
        {{16, 19}, {release}, clicked, {down, 0}},
        {{17, 19}, {release}, 0, {}},
        {{5, 5}, {escape}, 0, {down, 0}},
        {{5, 5}, {key, release}, clicked, {down, 0}},
        {{5, 5}, {right}, 0, {down, 0}},
        {{5, 5}, {cancel}, 0, {down, 0}},
        {{5, 5}, {systemCancel}, 0, {down, 0}},
        {{5, 5}, {moveOfOther, release}, clicked, {down, 0}},
        {{5, 5}, {steal}, 0, {down, 0}},
    };
    for (const Row& row : table) {
        SCOPED_TRACE(&row - table);
        EXPECT_EQ(host.Click(row.press.x, row.press.y, row.steps), row.result);
        EXPECT_EQ(host.m_button.m_states, row.states);
        EXPECT_EQ(::GetCapture(), &row == std::end(table) - 1 ? other.m_hWnd : nullptr);
        ::ReleaseCapture();
        automation::ReleaseMouse(automation::MouseButton::Right);
        automation::ReleaseKey('A');
    }
    EXPECT_EQ(host.m_keys, 0) << "keys are swallowed";
}

TEST_P(DrawButtonIn, FollowsTheMouseInTheFlatLook) {
    const UINT flags = kFlatDown | GetParam();
    Host host(flags);
    const auto comesToShow = [&](COLORREF color) {
        return PumpUntil([&] { return automation::CaptureWindow(host).At(41, 5) == color; });
    };
    EXPECT_TRUE(comesToShow(::GetSysColor(COLOR_BTNFACE)));
    host.Point(5, 5);
    EXPECT_TRUE(comesToShow(HotFace()));
    EXPECT_EQ(host.m_button.GetFlags(), flags | B::kHot);
    host.Point(9, 9);
    PumpFor(60);
    EXPECT_EQ(host.m_button.m_states, std::vector<UINT>{0}) << "drawn once";
    host.m_moves = 0;
    PumpFor(2 * 300);
    EXPECT_EQ(host.m_moves, 0) << "the timer tells only of having left";
    host.Point(300, 200); // another window: only the timer tells
    EXPECT_TRUE(comesToShow(::GetSysColor(COLOR_BTNFACE)));
    EXPECT_EQ(host.m_button.GetFlags(), flags);
    EXPECT_FALSE(::KillTimer(host, B::kHoverTimer)) << "the timer has gone";
}

INSTANTIATE_TEST_SUITE_P(Places, DrawButtonIn, testing::Values(0U, B::kNonClient),
                         [](const auto& info) { return info.param == 0 ? "Client" : "Frame"; });

TEST(DrawButton, NoClickWhereThereCanBeNone) {
    Host host(B::kDownArrow | B::kDisabled);
    EXPECT_EQ(host.Click(5, 5, {}), 0u) << "disabled";
    host.m_button.SetFlags(B::kDownArrow);
    host.SetCapture();
    EXPECT_EQ(host.m_button.TrackClick(host, {45, 9}), 0u) << "captured already";
    EXPECT_EQ(::GetCapture(), host.m_hWnd) << "and it stays so";
    ::ReleaseCapture();
    EXPECT_TRUE(host.m_button.m_states.empty());

    ::PostQuitMessage(7);
    EXPECT_EQ(host.m_button.TrackClick(host, {45, 9}), 0u);
    MSG message = {};
    EXPECT_TRUE(::PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) << "passed on";
    EXPECT_EQ(message.wParam, 7u);

    EXPECT_EQ(host.Click(5, 5, {[&] { host.DestroyWindow(); }}), 0u);
    EXPECT_EQ(host.m_button.m_states.size(), 1u) << "not drawn without a window";
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST(DrawButton, SpinHalvesAreButtonsOfTheirOwn) {
    Host host(B::kSpinPair);
    const UINT own = B::kSpinPair;
    const UINT lower = own | B::kSecondPressed;
    const auto release = [] { automation::ReleaseMouse(); };
    const auto toUpper = [&] { host.Point(5, 9); };
    const auto toLower = [&] { host.Point(5, 10); };
    EXPECT_EQ(host.Click(5, 9, {release}), own | B::kPressed);
    EXPECT_EQ(host.Click(5, 10, {toUpper, toLower, release}), lower);
    EXPECT_EQ(host.m_button.m_states, (std::vector<UINT>{lower, own, lower, 0}));

    host.m_repeatTimer = kRepeat;
    int atLeaving = 0;
    const auto idle = [] {};
    const auto note = [&] { atLeaving = host.m_repeats; };
    host.Click(5, 5, {idle, idle, idle, idle, toLower, note, idle, idle, idle, release});
    EXPECT_EQ(B::RepeatCode(), 3);
    EXPECT_GT(atLeaving, 0) << "repeats over the half";
    EXPECT_LE(host.m_repeats, atLeaving + 1) << "and nowhere else";
    const int atEnd = host.m_repeats;
    PumpFor(100);
    EXPECT_EQ(host.m_repeats, atEnd) << "the timer has been stopped";
    host.Click(5, 15, {release});
    EXPECT_EQ(B::RepeatCode(), 7);
}

} // namespace
