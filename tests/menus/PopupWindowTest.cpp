// SPDX-License-Identifier: MIT
// The popup-menu window: its frame, its shadow, and what becomes of its window procedure.
#include <afxwin.h>
#include <gtest/gtest.h>

#include "automation/RealInput.h"
#include "automation/Steady.h"
#include "menus/MenuState.h"
#include "menus/OsClass.h"
#include "menus/WndMenuXP.h"
#include "tests/menus/MenuRules.h"
#include "tests/menus/MenuTesting.h"
#include "tests/support/Canvas.h"
#include "tests/support/Pump.h"

using automation::Picture;

namespace {

constexpr char kOldProc[] = "XPWndProp_OldProc";

LONG_PTR ProcOf(HWND window) {
    return ::GetWindowLongPtrA(window, GWLP_WNDPROC);
}

RECT ScreenRect(HWND window) {
    RECT rect = {};
    ::GetWindowRect(window, &rect);
    return rect;
}

/// A popup-menu window without a menu, hidden, to send messages to.
class BarePopup {
public:
    BarePopup()
        : m_window(::CreateWindowExA(0, "#32768", "", WS_POPUP, 50, 60, 100, 80, nullptr, nullptr,
                                     nullptr, nullptr)) {}
    ~BarePopup() { ::DestroyWindow(m_window); }
    BarePopup(const BarePopup&) = delete;
    BarePopup& operator=(const BarePopup&) = delete;

    operator HWND() const { return m_window; }
    CWndMenuXP* Object() const { return CMenuXP::FindMenuWindow(m_window, true); }

private:
    HWND m_window;
};

/// Pretends another system for the life of the object.
class PretendOs {
public:
    explicit PretendOs(int osClass) { tint::CachedOsClass() = osClass; }
    ~PretendOs() { tint::CachedOsClass() = 0; }
};

// --- The hook -----------------------------------------------------------------------------------

TEST(PopupHook, CatchesPopupsOfSkinnedForegroundWindowsOnly) {
    MenuWindow window({"&One"});
    {
        const BarePopup popup;
        EXPECT_TRUE(IsSubclassed(popup));
        EXPECT_EQ(ProcOf(popup), reinterpret_cast<LONG_PTR>(&CWndMenuXP::PopupWndProc));
        const CWndMenuXP* const object = popup.Object();
        ::SendMessageA(popup, 0x1E2, 0, 0);
        EXPECT_EQ(popup.Object(), object) << "once only";
    }
    EXPECT_TRUE(CMenuXP::IsMenuXPEnabled(&window));
    CMenuXP::EnableMenuXP(&window, false);
    EXPECT_FALSE(CMenuXP::IsMenuXPEnabled(&window));
    const BarePopup popup;
    EXPECT_FALSE(IsSubclassed(popup));
    EXPECT_EQ(popup.Object(), nullptr);

    CMenuXP::EnableMenuXP(&window, true);
    ::SendMessageA(popup, WM_NULL, 0, 0);
    EXPECT_FALSE(IsSubclassed(popup)) << "only creation and sizing count";
    ::SendMessageA(popup, 0x1E2, 0, 0);
    EXPECT_TRUE(IsSubclassed(popup)) << "sized before it is shown again";
    ::SendMessageA(window, 0x1E2, 0, 0);
    EXPECT_FALSE(IsSubclassed(window)) << "of another class";
}

TEST(PopupProcedure, GoesWithTheWindowOrItsHiding) {
    const MenuWindow window({"&One"});
    const BarePopup popup;
    const LONG_PTR old = reinterpret_cast<LONG_PTR>(::GetPropA(popup, kOldProc));
    ::SendMessageA(popup, WM_SHOWWINDOW, TRUE, 0);
    EXPECT_TRUE(IsSubclassed(popup));
    ::SendMessageA(popup, WM_SHOWWINDOW, FALSE, 0);
    EXPECT_FALSE(IsSubclassed(popup));
    EXPECT_EQ(ProcOf(popup), old);
    EXPECT_EQ(popup.Object(), nullptr);

    HWND gone = nullptr;
    {
        const BarePopup other;
        gone = other;
        EXPECT_NE(other.Object(), nullptr);
    }
    EXPECT_EQ(CMenuXP::FindMenuWindow(gone, true), nullptr);
    EXPECT_EQ(CWndMenuXP::PopupWndProc(popup, WM_NULL, 0, 0), 0) << "with nothing to call";
}

WNDPROC g_below = nullptr;
int g_seen = 0;

LRESULT CALLBACK Stranger(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    ++g_seen;
    return ::CallWindowProcA(g_below, window, message, wParam, lParam);
}

TEST(PopupProcedure, LeavesAStrangerInTheChainAlone) {
    const MenuWindow window({"&One"});
    const BarePopup popup;
    const auto ours = ProcOf(popup);
    g_below = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrA(popup, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Stranger)));
    CMenuXP::DestroyMenuWindow(popup);
    g_seen = 0;
    ::SendMessageA(popup, WM_NULL, 0, 0);
    EXPECT_EQ(g_seen, 1) << "still there";
    ::SetWindowLongPtrA(popup, GWLP_WNDPROC, ours); // it leaves, and puts back what it knew
    ::SendMessageA(popup, WM_NCPAINT, 1, 0);
    ::SendMessageA(popup, 0x1E2, 0, 0);
    EXPECT_NE(popup.Object(), nullptr) << "caught again";
    CMenuXP::DestroyMenuWindow(popup);
    EXPECT_FALSE(IsSubclassed(popup));
}

/// Whether the hook ends as it should; it cannot be had again in this process.
bool HookEndsWithTheLastUninstall() {
    const MenuWindow window({"&One"});
    const BarePopup popup;
    const LONG_PTR old = reinterpret_cast<LONG_PTR>(::GetPropA(popup, kOldProc));
    const bool counted =
        CMenuXP::InstallHook() == 3; // the environment's and the window's before it
    CMenuXP::UninstallHook();
    CMenuXP::UninstallHook();
    const bool kept = IsSubclassed(popup); // one install is left
    CMenuXP::UninstallHook();
    const bool restored = !IsSubclassed(popup) && ProcOf(popup) == old && popup.Object() == nullptr;
    CMenuXP::UninstallHook(); // without an install
    const bool onlyCounted = CMenuXP::InstallHook() == 1;
    const BarePopup later;
    return counted && kept && restored && onlyCounted && !IsSubclassed(later);
}

TEST(PopupHookDeathTest, EndsWithTheLastUninstall) {
    EXPECT_EXIT(::_exit(HookEndsWithTheLastUninstall() ? 0 : 1), testing::ExitedWithCode(0), "");
}

// --- Size and system ----------------------------------------------------------------------------

TEST(PopupSize, GrowsByTheShadowAndMovesUp) {
    const MenuWindow window({"&One"});
    for (const int osClass : {5, 8, 7}) {
        const PretendOs pretend(osClass);
        const BarePopup popup;
        const int shadow = osClass < 8 ? 4 : 0;
        WINDOWPOS position = {popup, nullptr, 30, 40, 100, 50, SWP_NOZORDER};
        ::SendMessageA(popup, WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&position));
        EXPECT_EQ(position.cx, 100 + shadow);
        EXPECT_EQ(position.cy, 50 + shadow);
        EXPECT_EQ(position.x, 30);
        EXPECT_EQ(position.y, 39);

        RECT ours = {10, 20, 110, 120};
        RECT system = ours;
        ::SendMessageA(popup, WM_NCCALCSIZE, FALSE, reinterpret_cast<LPARAM>(&ours));
        ::CallWindowProcA(reinterpret_cast<WNDPROC>(::GetPropA(popup, kOldProc)), popup,
                          WM_NCCALCSIZE, FALSE, reinterpret_cast<LPARAM>(&system));
        EXPECT_EQ(ours.left, system.left);
        EXPECT_EQ(ours.top, system.top);
        EXPECT_EQ(ours.right, system.right - shadow);
        EXPECT_EQ(ours.bottom, system.bottom - shadow);
    }
}

TEST(OsClass, IsTheFamilyOfTheVersion) {
    struct Case {
        DWORD platform, major, minor;
        int osClass;
    };
    for (const Case& c : {Case{0, 3, 10, 1}, Case{1, 4, 0, 2}, Case{1, 4, 10, 3}, Case{1, 4, 90, 4},
                          Case{1, 5, 10, 2}, Case{2, 3, 51, 5}, Case{2, 4, 0, 6}, Case{2, 5, 0, 7},
                          Case{2, 5, 1, 8}, Case{2, 5, 2, 5}, Case{2, 6, 1, 5}, Case{2, 10, 0, 5},
                          Case{3, 1, 0, 2}}) {
        OSVERSIONINFOA version = {};
        version.dwPlatformId = c.platform;
        version.dwMajorVersion = c.major;
        version.dwMinorVersion = c.minor;
        EXPECT_EQ(tint::OsClassOf(version), c.osClass) << c.platform << ' ' << c.major;
    }
    EXPECT_EQ(CWndMenuXP::GetOSClass(), 5);
}

// --- The frame ----------------------------------------------------------------------------------

/// The frame and shadow of a popup by the rule, over what `picture` shows where it lies.
void PutFrame(Picture& picture, int shadow) {
    const int right = picture.width - shadow;
    const int bottom = picture.height - shadow;
    const auto put = [&](int x, int y, COLORREF color) {
        picture.pixels[static_cast<std::size_t>(y) * picture.width + x] = color;
    };
    for (int line = 0; line < 3; ++line) {
        const COLORREF color = line == 0 ? System(COLOR_3DDKSHADOW) : Face(75);
        for (int x = line; x < right - line; ++x) {
            put(x, line, color);
            put(x, bottom - 1 - line, color);
        }
        for (int y = line; y < bottom - line; ++y) {
            put(line, y, color);
            put(right - 1 - line, y, color);
        }
    }
    if (shadow != 0)
        ForShadow(picture.width, picture.height, [&](int x, int y, int row, int column) {
            put(x, y, Shaded(picture.At(x, y), row, column));
        });
}

/// What lies inside the three lines of the frame.
RECT InsideOf(const Picture& popup, int shadow) {
    return {3, 3, popup.width - shadow - 3, popup.height - shadow - 3};
}

Picture Crop(const Picture& screen, const RECT& rect) {
    Picture part{rect.right - rect.left, rect.bottom - rect.top, {}};
    for (LONG y = rect.top; y < rect.bottom; ++y)
        for (LONG x = rect.left; x < rect.right; ++x)
            part.pixels.push_back(screen.At(x, y));
    return part;
}

TEST(PopupFrame, IsFlatWithAShadowAndOpensToTheBarItem) {
    for (const int osClass : {5, 8}) {
        const PretendOs pretend(osClass);
        const int shadow = osClass < 8 ? 4 : 0;
        MenuWindow window({"&New\tCtrl+N", "-", "&Open"});
        PumpFor();
        const Picture before = automation::CaptureScreen({0, 0, 500, 400});
        EXPECT_TRUE(WhileMenusRun([&] {
            automation::TypeKey('F', VK_MENU);
            const HWND popup = WaitForPopup();
            const Picture have = automation::CaptureWindow(popup);
            const RECT rect = ScreenRect(popup);
            const RECT item = tint::GetMenuState().openBarItem;
            EXPECT_EQ(item.bottom, rect.top + 1) << "it hangs from the bar";
            Picture want = Crop(before, rect);
            PutFrame(want, shadow);
            const LONG left = item.left - rect.left;
            const LONG right = item.right - rect.left;
            std::fill(want.pixels.begin() + std::max(left - 3, 0L), want.pixels.begin() + right - 5,
                      Face(20));
            EXPECT_EQ(FirstDifference(have, want, InsideOf(want, shadow)), "") << osClass;
            CloseMenus();
        }));
        EXPECT_TRUE(::IsRectEmpty(&tint::GetMenuState().openBarItem)) << "the bar is closed";
    }
}

TEST(PopupFrame, IsClosedAwayFromTheBarAndPaintedOncePerSize) {
    const MenuWindow window({"&One"});
    const BarePopup popup;
    ::SetWindowPos(popup, HWND_TOPMOST, 250, 250, 100, 80, SWP_SHOWWINDOW | SWP_NOACTIVATE);
    const HDC dc = ::GetWindowDC(popup);
    for (int x = 0; x < 100; ++x)
        ASSERT_EQ(::GetPixel(dc, x, 0), System(COLOR_3DDKSHADOW)) << x;

    ::SetPixel(dc, 0, 0, RGB(1, 2, 3));
    ::SendMessageA(popup, WM_NCPAINT, 1, 0);
    EXPECT_EQ(::GetPixel(dc, 0, 0), RGB(1, 2, 3)) << "the same rectangle is not painted again";
    ::SetWindowPos(popup, nullptr, 0, 0, 120, 80, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    ::SendMessageA(popup, WM_NCPAINT, 1, 0);
    EXPECT_EQ(::GetPixel(dc, 0, 0), System(COLOR_3DDKSHADOW));
    ::ReleaseDC(popup, dc);
}

TEST(PopupFrame, PrintsOverTheBackgroundTakenBefore) {
    for (const int osClass : {5, 8}) {
        const PretendOs pretend(osClass);
        const int shadow = osClass < 8 ? 4 : 0;
        const MenuWindow window({"&One"});
        const BarePopup popup;
        ::SetWindowPos(popup, nullptr, 150, 150, 100, 80, SWP_NOZORDER | SWP_NOACTIVATE);
        const RECT rect = ScreenRect(popup);
        const Picture under = automation::CaptureScreen(rect);
        const Canvas canvas(under.width, under.height);
        ::SendMessageA(popup, WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.dc()), 0);
        tint::GetMenuState().openBarItem = {rect.left + 10, 0, rect.left + 40, rect.top + 1};
        ::SendMessageA(popup, WM_PRINT, reinterpret_cast<WPARAM>(canvas.dc()), PRF_NONCLIENT);
        Picture want = under;
        PutFrame(want, shadow); // not joined: no item was painted meanwhile
        EXPECT_EQ(FirstDifference(canvas.Snapshot(), want, InsideOf(want, shadow)), "") << osClass;
        ::SetRectEmpty(&tint::GetMenuState().openBarItem);
    }
}

} // namespace
