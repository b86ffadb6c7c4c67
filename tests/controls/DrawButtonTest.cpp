// SPDX-License-Identifier: MIT
#include "controls/DrawButton.h"

#include <gtest/gtest.h>

#include <afxwin.h>

#include <functional>
#include <string>
#include <vector>

#include "automation/Picture.h"
#include "automation/RealInput.h"
#include "automation/SystemColors.h"
#include "draw/Hls.h"
#include "tests/support/Canvas.h"
#include "tests/support/GdiLedger.h"
#include "tests/support/Pump.h"

namespace {

using B = CDrawButton;
constexpr UINT kFlatDown = B::kFlat | B::kDownArrow;

// ---- Pictures -----------------------------------------------------------------------------------

// The button under test lies in a rectangle of 17 x 20, moved away from the origin.
constexpr int kLeft = 3;
constexpr int kTop = 2;

COLORREF HotFace() {
    return AdjustColorLS(::GetSysColor(COLOR_HIGHLIGHT), 70, -57);
}

/// A line of a glyph, relative to the rectangle; the last pixel is left out, as GDI does.
struct Line {
    int x, y, toX, toY;
};

std::vector<Line> Arrow(int x, int y, int size, bool down) {
    std::vector<Line> lines;
    for (int i = 0; i < size; ++i) {
        const int row = down ? y - i : y + i;
        lines.push_back({x - i, row, x + i + 1, row});
    }
    return lines;
}

std::vector<Line> Both(std::vector<Line> lines, const std::vector<Line>& more) {
    lines.insert(lines.end(), more.begin(), more.end());
    return lines;
}

enum class Frame { None, Raised, Pushed, Window, Shadow, Hot, HotPressed };

struct Part {
    Frame frame;
    RECT rect; ///< relative
};

struct Drawing {
    const char* name;
    UINT own;
    UINT state; ///< 0: the own flags
    std::vector<Part> frames;
    std::vector<Line> glyph;
    COLORREF color;
    int dividerAt = -1;                 ///< row of a face-coloured line
    COLORREF fill = Canvas::kUntouched; ///< what the device shows before
};

void DrawPart(HDC dc, Part part) {
    ::OffsetRect(&part.rect, kLeft, kTop);
    const COLORREF highlight = ::GetSysColor(COLOR_HIGHLIGHT);
    COLORREF line = highlight;
    COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    switch (part.frame) {
    case Frame::None:
        return;
    case Frame::Raised:
    case Frame::Pushed:
        ::DrawFrameControl(dc, &part.rect, DFC_BUTTON,
                           DFCS_BUTTONPUSH | (part.frame == Frame::Pushed ? DFCS_PUSHED : 0));
        return;
    case Frame::Window:
        line = ::GetSysColor(COLOR_WINDOW);
        break;
    case Frame::Shadow:
        line = ::GetSysColor(COLOR_BTNSHADOW);
        break;
    case Frame::Hot:
        face = HotFace();
        break;
    case Frame::HotPressed:
        face = AdjustColorLS(highlight, 50, -50);
        break;
    }
    const HBRUSH outer = ::CreateSolidBrush(line);
    const HBRUSH inner = ::CreateSolidBrush(face);
    ::FillRect(dc, &part.rect, outer);
    ::InflateRect(&part.rect, -1, -1);
    ::FillRect(dc, &part.rect, inner);
    ::DeleteObject(outer);
    ::DeleteObject(inner);
}

void DrawExpected(HDC dc, const Drawing& drawing) {
    for (const Part& part : drawing.frames)
        DrawPart(dc, part);
    for (int x = 0; drawing.dividerAt >= 0 && x < 17; ++x)
        ::SetPixel(dc, kLeft + x, kTop + drawing.dividerAt, ::GetSysColor(COLOR_BTNFACE));
    const HPEN pen = ::CreatePen(PS_SOLID, 1, drawing.color);
    const HGDIOBJ previous = ::SelectObject(dc, pen);
    for (const Line& line : drawing.glyph) {
        ::MoveToEx(dc, kLeft + line.x, kTop + line.y, nullptr);
        ::LineTo(dc, kLeft + line.toX, kTop + line.toY);
    }
    ::SelectObject(dc, previous);
    ::DeleteObject(pen);
}

void ExpectDrawing(const Drawing& drawing) {
    SCOPED_TRACE(drawing.name);
    constexpr UINT odd = 0x80000000; // marks the cases 21 high
    const int height = (drawing.own & odd) != 0 ? 21 : 20;
    const Canvas shown(24, 26, drawing.fill);
    const Canvas expected(24, 26, drawing.fill);
    const B button(drawing.own & ~odd, {kLeft, kTop, kLeft + 17, kTop + height});
    button.Draw(shown.dc(), drawing.state);
    DrawExpected(expected.dc(), drawing);
    EXPECT_EQ(shown.Snapshot(), expected.Snapshot());
}

TEST(DrawButton, DrawsEveryKindLookAndState) {
    // A scheme in which the button text is not black, as the glyph on a hot face is.
    const automation::SystemColorGuard scheme(
        automation::FindColorScheme("high-contrast-dark")->colors);
    const COLORREF text = ::GetSysColor(COLOR_BTNTEXT);
    const COLORREF gray = ::GetSysColor(COLOR_GRAYTEXT);
    const COLORREF black = RGB(0, 0, 0);
    const COLORREF pressedGlyph = RGB(0xF0, 0xF0, 0xF0);
    ASSERT_NE(text, black);

    constexpr UINT flat = B::kFlat;
    constexpr UINT hot = B::kFlat | B::kHot;
    constexpr UINT out = B::kOutsideToolbar;
    constexpr UINT odd = 0x80000000;
    const RECT whole = {0, 0, 17, 20};
    const auto single = [&](Frame frame) { return std::vector<Part>{{frame, whole}}; };

    const auto raisedDown = Arrow(8, 11, 4, true);
    const auto flatDown = Arrow(8, 12, 4, true);
    const auto flatUp = Arrow(8, 9, 4, false);
    const std::vector<Line> raisedCross = {
        {4, 5, 11, 13}, {5, 5, 12, 13}, {10, 5, 3, 13}, {11, 5, 4, 13}};
    const std::vector<Line> sunkenCross = {
        {5, 6, 12, 14}, {6, 6, 13, 14}, {11, 6, 4, 14}, {12, 6, 5, 14}};
    const std::vector<Line> flatCross = {
        {4, 5, 12, 14}, {5, 5, 13, 14}, {11, 5, 3, 14}, {12, 5, 4, 14}};

    const RECT upper = {0, 0, 17, 10};
    const RECT lower = {0, 10, 17, 20};
    const RECT flatUpper = {0, 0, 17, 11};
    const auto spin = [&](Frame frame) {
        return std::vector<Part>{{frame, flatUpper}, {frame, lower}};
    };
    const auto raisedSpin = Both(Arrow(8, 3, 3, false), Arrow(8, 16, 3, true));
    const auto flatSpin = Both(Arrow(8, 4, 3, false), Arrow(8, 16, 3, true));

    const Drawing table[] = {
        {"classic down", B::kDownArrow, 0, single(Frame::Raised), raisedDown, text},
        {"classic down, pressed", B::kDownArrow, B::kDownArrow | B::kPressed, single(Frame::Pushed),
         Arrow(9, 12, 4, true), text},
        {"classic down, second pressed state", B::kDownArrow | B::kSecondPressed, 0,
         single(Frame::Pushed), Arrow(9, 12, 4, true), text},
        {"classic down, disabled", B::kDownArrow | B::kDisabled, 0, single(Frame::Raised),
         raisedDown, gray},
        {"classic down is never hot", B::kDownArrow | B::kHot, 0, single(Frame::Raised), raisedDown,
         text},
        {"classic up", B::kUpArrow, 0, single(Frame::Raised), Arrow(8, 8, 4, false), text},
        {"classic up, pressed", B::kUpArrow | B::kPressed, 0, single(Frame::Pushed),
         Arrow(9, 9, 4, false), text},
        {"a state replaces the flags", B::kUpArrow | B::kDisabled | flat, B::kDownArrow,
         single(Frame::Raised), raisedDown, text},
        {"classic cross", B::kCross, 0, single(Frame::Raised), raisedCross, text},
        {"classic cross, pressed", B::kCross | B::kPressed, 0, single(Frame::Pushed), sunkenCross,
         text},
        {"flat cross", B::kCross | flat, 0, single(Frame::Window), flatCross, text},
        {"flat cross, hot", B::kCross | hot, 0, single(Frame::Hot), flatCross, black},
        {"flat down", kFlatDown, 0, single(Frame::Window), flatDown, text},
        {"flat down, outside", kFlatDown | out, 0, single(Frame::Shadow), flatDown, text},
        {"the frame follows the own flags", B::kDownArrow, kFlatDown | out, single(Frame::Window),
         flatDown, text},
        {"flat down, hot", kFlatDown, kFlatDown | hot, single(Frame::Hot), flatDown, black},
        {"flat down, hot and pressed", kFlatDown | hot | B::kPressed, 0, single(Frame::HotPressed),
         flatDown, pressedGlyph},
        {"flat down, pressed", kFlatDown | B::kPressed, 0, single(Frame::Window), flatDown,
         pressedGlyph},
        {"flat down, disabled", kFlatDown | B::kDisabled | hot | out, 0, single(Frame::Shadow),
         flatDown, gray},
        {"flat down, frameless", kFlatDown | B::kNoRestingFrame, 0, {}, flatDown, text},
        {"frameless on a hot face",
         kFlatDown | B::kNoRestingFrame,
         0,
         {},
         flatDown,
         black,
         -1,
         HotFace()},
        {"frameless, hot", kFlatDown | B::kNoRestingFrame | hot, 0, single(Frame::Hot), flatDown,
         black},
        {"flat up", B::kUpArrow | flat, 0, single(Frame::Window), flatUp, text},
        {"flat up, pressed", B::kUpArrow | flat | B::kPressed, 0, single(Frame::Window), flatUp,
         pressedGlyph},
        {"no glyph", B::kNoGlyph | B::kDisabled, 0, single(Frame::Raised), {}, 0},
        {"unknown kind", 6, 0, single(Frame::Raised), {}, 0},
        {"unknown kind, flat", 0xFF | flat, 0, single(Frame::Window), {}, 0},
        {"classic spin",
         B::kSpinPair,
         0,
         {{Frame::Raised, upper}, {Frame::Raised, lower}},
         raisedSpin,
         text},
        {"classic spin, odd height",
         B::kSpinPair | odd,
         0,
         {{Frame::Raised, upper}, {Frame::Raised, {0, 11, 17, 21}}},
         raisedSpin,
         text,
         10},
        {"classic spin, upper pressed",
         B::kSpinPair,
         B::kSpinPair | B::kPressed,
         {{Frame::Pushed, upper}},
         Arrow(9, 4, 3, false),
         text},
        {"classic spin, lower pressed",
         B::kSpinPair,
         B::kSpinPair | B::kSecondPressed,
         {{Frame::Pushed, lower}},
         Arrow(9, 17, 3, true),
         text},
        {"flat spin", B::kSpinPair | flat | out, 0, spin(Frame::Shadow), flatSpin, text},
        {"flat spin, hot", B::kSpinPair | hot, 0, spin(Frame::Hot), flatSpin, black},
        {"flat spin, upper pressed",
         B::kSpinPair | hot | B::kPressed,
         0,
         {{Frame::HotPressed, flatUpper}},
         Arrow(8, 4, 3, false),
         pressedGlyph},
        {"flat spin, lower pressed",
         B::kSpinPair | flat | B::kSecondPressed,
         0,
         {{Frame::Window, lower}},
         Arrow(8, 16, 3, true),
         pressedGlyph},
    };
    for (const Drawing& drawing : table)
        ExpectDrawing(drawing);
}

TEST(DrawButton, ClassicOutsideAToolbarHasALineAboveAndToTheLeft) {
    const Canvas shown(17, 20);
    const Canvas expected(17, 20);
    B(B::kDownArrow | B::kOutsideToolbar, {0, 0, 17, 20}).Draw(shown.dc(), B::kDownArrow);
    B(B::kDownArrow, {1, 1, 17, 20}).Draw(expected.dc(), 0);
    for (int i = 0; i < 20; ++i) {
        ::SetPixel(expected.dc(), i, 0, ::GetSysColor(COLOR_BTNFACE));
        ::SetPixel(expected.dc(), 0, i, ::GetSysColor(COLOR_BTNFACE));
    }
    ::SetPixel(expected.dc(), 16, 0, ::GetSysColor(COLOR_3DDKSHADOW));
    EXPECT_EQ(shown.Snapshot(), expected.Snapshot());
}

TEST(DrawButton, EllipsisIsTextThatShiftsWhenPressed) {
    struct Place {
        UINT flags;
        int left, bottom;
        COLORREF color;
    };
    const COLORREF text = ::GetSysColor(COLOR_BTNTEXT);
    const Place table[] = {{B::kEllipsis, 1, 20, text},
                           {B::kEllipsis | B::kPressed, 2, 21, text},
                           {B::kEllipsis | B::kFlat, 2, 20, text},
                           {B::kEllipsis | B::kFlat | B::kPressed, 2, 20, 0x00F0F0F0}};
    for (const Place& place : table) {
        const Canvas shown(40, 26);
        const Canvas expected(40, 26);
        B(place.flags, {0, 0, 30, 20}).Draw(shown.dc(), 0);
        B(place.flags & ~B::kKindMask, {0, 0, 30, 20}).Draw(expected.dc(), 0);
        RECT rect = {place.left, 0, 30, place.bottom};
        ::SetBkMode(expected.dc(), TRANSPARENT);
        ::SetTextColor(expected.dc(), place.color);
        ::DrawTextA(expected.dc(), "...", 3, &rect, DT_SINGLELINE | DT_BOTTOM);
        EXPECT_EQ(shown.Snapshot(), expected.Snapshot()) << std::hex << place.flags;
        EXPECT_EQ(::GetBkMode(shown.dc()), OPAQUE);
        EXPECT_EQ(::GetTextColor(shown.dc()), RGB(0, 0, 0));
    }
}

TEST(DrawButton, NonsenseDrawsNothingAndLosesNothing) {
    const Canvas canvas(30, 30);
    const Canvas untouched(30, 30);
    const GdiLedger ledger;
    constexpr LONG far_ = 0x7FFFFFFF;
    for (const RECT& rect : {RECT{-far_ - 1, -far_ - 1, far_, far_}, RECT{far_, far_, far_, far_},
                             RECT{0, 0, far_, 20}, RECT{0, -far_ - 1, 17, 20}})
        for (UINT kind = 0; kind < 10; ++kind)
            B(kind | B::kOutsideToolbar, rect).Draw(canvas.dc(), 0);
    EXPECT_EQ(canvas.Snapshot(), untouched.Snapshot());
    B(kFlatDown, {20, 17, 0, 0}).Draw(canvas.dc(), ~0U); // inside out
    for (const HDC dc : {static_cast<HDC>(nullptr), reinterpret_cast<HDC>(0x12345)})
        B(kFlatDown, {0, 0, 17, 20}).Draw(dc, 0);
    EXPECT_EQ(ledger.Unreturned(), "");
    EXPECT_EQ(ledger.Faults(), "");

    B button(kFlatDown, {0, 0, 17, 20});
    for (const HWND host : {static_cast<HWND>(nullptr), reinterpret_cast<HWND>(0x12345)}) {
        button.OnMouseMove(host, {1, 1});
        EXPECT_EQ(button.GetFlags(), kFlatDown) << "no timer, not hot";
        EXPECT_EQ(button.TrackClick(host, {1, 1}), 0u);
        B::OnHoverTimer(host, WM_TIMER, B::kHoverTimer, 0);
    }
}

TEST(DrawButton, SeventyThousandPaintsLoseNothing) {
    const Canvas canvas(30, 30);
    for (UINT i = 0; i < 70000; ++i)
        B(i % 9 | (i % 2 != 0 ? B::kFlat : 0), {0, 0, 17, 20}).Draw(canvas.dc(), 0);
    const HPEN pen = ::CreatePen(PS_SOLID, 1, 0);
    EXPECT_NE(pen, nullptr);
    ::DeleteObject(pen);
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
constexpr UINT kRepeat = 0x00070003; // lower code 7, upper code 3

/// A window with a button, and a script: one step is run at a time, also inside the click loop.
class Host : public CWnd {
public:
    explicit Host(UINT flags, DWORD style = WS_POPUP, int left = 100)
        : m_button(flags,
                   (flags & B::kNonClient) != 0 ? RECT{40, 4, 57, 24} : RECT{20, 10, 37, 30}) {
        CreateEx(WS_EX_TOPMOST, AfxRegisterWndClass(0, nullptr, ::GetSysColorBrush(COLOR_BTNFACE)),
                 "host", style | WS_VISIBLE, CRect(CPoint(left, 100), CSize(160, 120)), nullptr, 0);
        ::SetForegroundWindow(m_hWnd);
        SetFocus();
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

    /// Moves the mouse, in the button's coordinates from its upper left corner.
    void Point(int x, int y) const {
        CRect window;
        GetWindowRect(window);
        automation::MoveMouse(
            {window.left + m_button.GetRect().left + x, window.top + m_button.GetRect().top + y});
    }

    /// Presses at a point of the button, then runs the steps; waits for the end of the click.
    UINT Click(int x, int y, const std::vector<std::function<void()>>& steps) {
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

    COLORREF At(int x, int y) const {
        return automation::CaptureWindow(m_hWnd).At(m_button.GetRect().left + x,
                                                    m_button.GetRect().top + y);
    }

    LoggedButton m_button;
    UINT m_repeatTimer = 0;
    UINT m_result = 0;
    bool m_clicked = false;
    int m_keys = 0;
    int m_repeats = 0;

protected:
    afx_msg void OnPaint() {
        CPaintDC dc(this);
        if ((m_button.GetFlags() & B::kNonClient) == 0)
            m_button.CDrawButton::Draw(dc, 0);
    }
    afx_msg void OnNcPaint() {
        Default();
        if ((m_button.GetFlags() & B::kNonClient) != 0) {
            CWindowDC dc(this);
            m_button.CDrawButton::Draw(dc, 0);
        }
    }
    afx_msg void OnMouseMove(UINT, CPoint point) {
        m_button.OnMouseMove(m_hWnd, FromClient(point));
    }
    afx_msg void OnNcMouseMove(UINT, CPoint point) {
        m_button.OnMouseMove(m_hWnd, FromScreen(point));
    }
    afx_msg void OnLButtonDown(UINT, CPoint point) { Track(FromClient(point)); }
    afx_msg void OnNcLButtonDown(UINT, CPoint point) { Track(FromScreen(point)); }
    afx_msg void OnKeyDown(UINT, UINT, UINT) { ++m_keys; }
    afx_msg void OnTimer(UINT_PTR timer) {
        if (timer == kRepeat) {
            ++m_repeats;
        } else if (timer == kScriptTimer && !m_script.empty()) {
            const auto step = m_script.front();
            m_script.erase(m_script.begin());
            step();
        } else {
            Default();
        }
    }
    DECLARE_MESSAGE_MAP()

private:
    CPoint FromScreen(CPoint point) const {
        CRect window;
        GetWindowRect(window);
        return point - window.TopLeft();
    }
    CPoint FromClient(CPoint point) const {
        if ((m_button.GetFlags() & B::kNonClient) == 0)
            return point;
        ClientToScreen(&point);
        return FromScreen(point);
    }
    void Track(CPoint point) {
        if (m_repeatTimer != 0)
            SetTimer(m_repeatTimer, 20, nullptr);
        m_result = m_button.TrackClick(m_hWnd, point, m_repeatTimer);
        m_clicked = true;
    }

    std::vector<std::function<void()>> m_script;
};

BEGIN_MESSAGE_MAP(Host, CWnd)
    ON_WM_PAINT()
    ON_WM_NCPAINT()
    ON_WM_MOUSEMOVE()
    ON_WM_NCMOUSEMOVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_KEYDOWN()
    ON_WM_TIMER()
END_MESSAGE_MAP()

TEST(DrawButton, ClickLoopEndsAsThePersonEndsIt) {
    for (const UINT place : {0U, B::kNonClient}) {
        const UINT own = B::kDownArrow | place;
        const UINT down = own | B::kPressed;
        const UINT clicked = B::kDownArrow | B::kPressed;
        Host other(0, WS_POPUP, 500);
        Host host(own, WS_POPUP | (place != 0 ? WS_CAPTION | WS_THICKFRAME : 0));
        const auto release = [] { automation::ReleaseMouse(); };
        const auto out = [&] { host.Point(-9, 5); };
        const auto in = [&] { host.Point(5, 5); };

        struct Row {
            const char* name;
            POINT press;
            std::vector<std::function<void()>> steps;
            UINT result;
            std::vector<UINT> states;
        };
        const Row table[] = {
            {"released inside", {5, 5}, {release}, clicked, {down, 0}},
            {"released outside", {5, 5}, {out, release}, 0, {down, own}},
            {"out and in again", {5, 5}, {out, in, release}, clicked, {down, own, down, 0}},
            {"pressed outside", {-9, 5}, {in, release}, clicked, {down, 0}},
            {"the last row and column", {16, 19}, {release}, clicked, {down, 0}},
            {"right of the last column", {17, 19}, {release}, 0, {}},
            {"escape", {5, 5}, {[] { automation::TypeKey(VK_ESCAPE); }}, 0, {down, 0}},
            {"another key",
             {5, 5},
             {[] { automation::PressKey('A'); }, release},
             clicked,
             {down, 0}},
            {"right button",
             {5, 5},
             {[] { automation::PressMouse(automation::MouseButton::Right); }},
             0,
             {down, 0}},
            {"cancelled", {5, 5}, {[&] { host.PostMessage(WM_CANCELMODE); }}, 0, {down, 0}},
            {"cancelled by the system",
             {5, 5},
             {[&] { host.SendMessage(WM_CANCELMODE); }},
             0,
             {down, 0}},
            {"capture stolen", {5, 5}, {[&] { other.SetCapture(); }}, 0, {down, 0}},
        };
        for (const Row& row : table) {
            SCOPED_TRACE(std::string(row.name) + (place != 0 ? ", in the frame" : ""));
            EXPECT_EQ(host.Click(row.press.x, row.press.y, row.steps), row.result);
            EXPECT_EQ(host.m_button.m_states, row.states);
            const HWND captured = ::GetCapture();
            EXPECT_EQ(captured, row.name == std::string("capture stolen") ? other.m_hWnd : nullptr);
            ::ReleaseCapture();
            automation::ReleaseMouse(automation::MouseButton::Right);
            automation::ReleaseKey('A');
        }
        EXPECT_EQ(host.m_keys, 0) << "keys are swallowed";
    }
}

TEST(DrawButton, NoClickOfADisabledButtonOrACapturedMouse) {
    Host host(B::kDownArrow | B::kDisabled);
    EXPECT_EQ(host.Click(5, 5, {}), 0u);
    host.m_button.SetFlags(B::kDownArrow);
    host.SetCapture();
    EXPECT_EQ(host.m_button.TrackClick(host, {25, 15}), 0u);
    EXPECT_EQ(::GetCapture(), host.m_hWnd) << "the capture stays where it was";
    ::ReleaseCapture();
    EXPECT_TRUE(host.m_button.m_states.empty());
}

TEST(DrawButton, HostMayGoInTheClickLoop) {
    Host host(B::kDownArrow);
    host.Point(5, 5);
    EXPECT_EQ(host.Click(5, 5, {[&] { host.DestroyWindow(); }}), 0u);
    EXPECT_EQ(host.m_button.m_states.size(), 1u) << "not drawn without a window";
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST(DrawButton, QuitInTheClickLoopReachesTheOuterLoop) {
    Host host(B::kDownArrow);
    ::PostQuitMessage(7);
    EXPECT_EQ(host.m_button.TrackClick(host, {25, 15}), 0u);
    MSG message = {};
    EXPECT_TRUE(::PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 7u);
}

TEST(DrawButton, SpinHalvesAreButtonsOfTheirOwn) {
    Host host(B::kSpinPair);
    const UINT own = B::kSpinPair;
    const auto release = [] { automation::ReleaseMouse(); };
    const auto toUpper = [&] { host.Point(5, 9); };
    const auto toLower = [&] { host.Point(5, 10); };
    EXPECT_EQ(host.Click(5, 9, {release}), own | B::kPressed);
    EXPECT_EQ(host.m_button.m_states, (std::vector<UINT>{own | B::kPressed, 0}));
    EXPECT_EQ(host.Click(5, 10, {toUpper, toLower, release}), own | B::kSecondPressed);
    EXPECT_EQ(host.m_button.m_states,
              (std::vector<UINT>{own | B::kSecondPressed, own, own | B::kSecondPressed, 0}));
    EXPECT_EQ(host.Click(5, 5, {toLower, release}), 0u) << "the other half is outside";

    host.m_repeatTimer = kRepeat;
    int atLeaving = 0;
    const auto leave = [&] { host.Point(-9, 5); };
    const auto idle = [] {};
    const auto note = [&] { atLeaving = host.m_repeats; };
    host.Click(5, 5, {idle, idle, idle, idle, leave, note, idle, idle, idle, release});
    EXPECT_EQ(B::RepeatCode(), 3);
    EXPECT_GT(atLeaving, 0) << "repeats over the half";
    EXPECT_LE(host.m_repeats, atLeaving + 1) << "and nowhere else";
    const int atEnd = host.m_repeats;
    PumpFor(100);
    EXPECT_EQ(host.m_repeats, atEnd) << "the timer has been stopped";
    host.Click(5, 15, {release});
    EXPECT_EQ(B::RepeatCode(), 7);
}

TEST(DrawButton, FollowsTheMouseInTheFlatLook) {
    for (const UINT place : {0U, B::kNonClient}) {
        SCOPED_TRACE(place);
        Host host(kFlatDown | place, WS_POPUP | (place != 0 ? WS_CAPTION | WS_THICKFRAME : 0));
        const COLORREF resting = ::GetSysColor(COLOR_BTNFACE);
        const auto comesToShow = [&](COLORREF color) {
            return PumpUntil([&] { return host.At(1, 1) == color; });
        };
        EXPECT_TRUE(comesToShow(resting));
        host.Point(5, 5);
        EXPECT_TRUE(comesToShow(HotFace()));
        EXPECT_EQ(host.m_button.GetFlags(), kFlatDown | place | B::kHot);
        EXPECT_EQ(host.m_button.m_states, std::vector<UINT>{0}) << "drawn at once, and once";
        host.Point(9, 9);
        PumpFor(60);
        host.Point(300, 200); // another window: only the timer tells
        EXPECT_TRUE(comesToShow(resting));
        EXPECT_EQ(host.m_button.GetFlags(), kFlatDown | place);
        EXPECT_FALSE(::KillTimer(host, B::kHoverTimer)) << "the timer has gone";
    }
    Host classic(B::kDownArrow);
    classic.Point(5, 5);
    PumpFor();
    EXPECT_EQ(classic.m_button.GetFlags(), B::kDownArrow);
}

} // namespace
