// SPDX-License-Identifier: MIT
#include <algorithm>

#include "automation/RealInput.h"
#include "automation/Steady.h"
#include "gallery/resource.h"
#include "gallery/tour/PictureTour.h"
#include "gallery/tour/Scenes.h"

namespace {

bool IsShownByUs(HWND window) {
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    return process == ::GetCurrentProcessId() && ::IsWindowVisible(window);
}

/// Waits until that many windows of a class and title are shown, and the last opened is at rest.
HWND WaitForWindow(const char* windowClass, const char* title, int count) {
    for (int look = 0; look < 500; ++look) {
        int shown = 0;
        HWND topmost = nullptr;
        HWND window = nullptr;
        while ((window = ::FindWindowExA(nullptr, window, windowClass, title)) != nullptr) {
            if (!IsShownByUs(window))
                continue;
            if (shown++ == 0)
                topmost = window;
        }
        if (shown == count) {
            if (topmost != nullptr)
                automation::WaitUntilSteady(topmost);
            return topmost;
        }
        ::Sleep(20);
    }
    return nullptr;
}

/// The page's button, once the page is shown: on a busy machine the gallery looks at rest before.
HWND WaitForOpenButton(const PictureTour& tour) {
    HWND button = nullptr;
    for (int look = 0; look < 500 && button == nullptr; ++look) {
        ::Sleep(20);
        button = ::GetDlgItem(tour.Page(), IDC_MENUS_OPEN);
    }
    automation::WaitUntilSteady(tour.Gallery());
    return button;
}

HWND WaitForPopups(int count) {
    return WaitForWindow("#32768", nullptr, count);
}

/// What the screen shows from the upper left corner of a window on: the popups over it, too.
automation::Picture PictureFrom(HWND window, int width, int height) {
    RECT rect = {};
    ::GetWindowRect(window, &rect);
    return automation::CaptureScreen({rect.left, rect.top, rect.left + width, rect.top + height});
}

/// @param levels  one for each popup and one for the bar: Escape too many would close a dialog
void CloseMenus(int levels) {
    for (int i = 0; i < levels; ++i)
        automation::TypeKey(VK_ESCAPE);
    WaitForPopups(0);
}

void TourFrame(PictureTour& tour, HWND frame, const std::string& suffix) {
    ::SetForegroundWindow(frame);
    ::SendMessageA(frame, WM_NCACTIVATE, TRUE, 0); // no window manager may be there to tell it
    automation::WaitUntilSteady(frame);

    automation::TypeKey('P', VK_MENU);
    WaitForPopups(1);
    automation::TypeKey(VK_UP);   // away from the first item ...
    automation::TypeKey(VK_DOWN); // ... and back: selected, its image lifted
    automation::WaitUntilSteady(frame);
    tour.Write(PictureFrom(frame, 260, 290), "menu" + suffix);

    automation::TypeKey('R');
    WaitForPopups(2);
    automation::TypeKey(VK_DOWN);
    automation::WaitUntilSteady(frame);
    tour.Write(PictureFrom(frame, 330, 310), "menu-cascade" + suffix);
    CloseMenus(3);

    automation::TypeKey('E', VK_MENU);
    WaitForPopups(1);
    automation::WaitUntilSteady(frame);
    tour.Write(PictureFrom(frame, 260, 190), "menu-disabled-gradient" + suffix);
    CloseMenus(2);

    // At the right edge of the screen the popup moves to the left, away from its bar item.
    RECT rect = {};
    ::GetWindowRect(frame, &rect);
    const int screen = ::GetSystemMetrics(SM_CXSCREEN);
    ::SetWindowPos(frame, nullptr, screen - 140, rect.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    automation::WaitUntilSteady(frame);
    automation::TypeKey('L', VK_MENU);
    WaitForPopups(1);
    automation::WaitUntilSteady(frame);
    tour.Write(automation::CaptureScreen({screen - 200, rect.top, screen, rect.top + 150}),
               "menu-right-edge" + suffix);
    CloseMenus(2);
    ::PostMessageA(frame, WM_CLOSE, 0, 0);
}

void TourContextMenu(PictureTour& tour, const std::string& suffix) {
    const HWND area = ::GetDlgItem(tour.Page(), IDC_MENUS_AREA);
    automation::Click(area, automation::MouseButton::Right);
    const HWND popup = WaitForPopups(1);
    if (popup == nullptr) {
        tour.Write({}, "menu-context" + suffix); // says that it is missing
        return;
    }
    automation::TypeKey(VK_DOWN);
    automation::TypeKey(VK_DOWN);
    automation::WaitUntilSteady(popup);
    tour.Write(automation::WaitUntilSteady(tour.Gallery()), "menu-context" + suffix);
    CloseMenus(1);
}

} // namespace

void TourMenus(PictureTour& tour, const std::string& suffix) {
    automation::Click(WaitForOpenButton(tour));
    tour.ParkMouse();
    const HWND frame = WaitForWindow(nullptr, "Menus", 1);
    if (frame == nullptr) {
        tour.Write({}, "menu" + suffix); // says that it is missing
        return;
    }
    TourFrame(tour, frame, suffix);
    WaitForWindow(nullptr, "Menus", 0);
    ::SetForegroundWindow(tour.Gallery());
    ::SendMessageA(tour.Gallery(), WM_NCACTIVATE, TRUE, 0);
    automation::WaitUntilSteady(tour.Gallery());
    TourContextMenu(tour, suffix);
    tour.ParkMouse();
}
