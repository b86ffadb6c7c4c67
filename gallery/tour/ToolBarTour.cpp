// SPDX-License-Identifier: MIT
// MFC wants to be the one that includes <windows.h>.
#include <afxwin.h>
#include <afxcmn.h>

#include "automation/RealInput.h"
#include "automation/Steady.h"
#include "gallery/resource.h"
#include "gallery/tour/PictureSheet.h"
#include "gallery/tour/PictureTour.h"
#include "gallery/tour/Scenes.h"

namespace {

/// Some buttons of the toolbar, by their index; the combo box takes one.
enum Button { kPrevious = 0, kPaste = 5, kSkin = 7, kSchemes = 9 };

/// In screen coordinates.
RECT ButtonRect(HWND toolBar, int index) {
    // The rectangle comes back by the window's thread, which is of this process.
    RECT rect = {};
    ::SendMessageA(toolBar, TB_GETITEMRECT, index, reinterpret_cast<LPARAM>(&rect));
    ::MapWindowPoints(toolBar, nullptr, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

void MoveMouseToLeftOf(const RECT& button) {
    automation::MoveMouse({button.left + 8, (button.top + button.bottom) / 2});
}

void MoveMouseToArrowOf(const RECT& button) {
    automation::MoveMouse({button.right - 6, (button.top + button.bottom) / 2});
}

/// A menu that is open, once it is at rest; null when none opens.
HWND WaitForMenu() {
    for (int look = 0; look < 200; ++look) {
        const HWND menu = ::FindWindowA("#32768", nullptr);
        if (menu != nullptr && ::IsWindowVisible(menu)) {
            automation::WaitUntilSteady(menu);
            return menu;
        }
        ::Sleep(20);
    }
    return nullptr;
}

/// The upper part of the gallery window, with what is open over it.
automation::Picture UpperPart(const PictureTour& tour, int height) {
    RECT rect = {};
    ::GetWindowRect(tour.Gallery(), &rect);
    rect.bottom = rect.top + height;
    return automation::CaptureScreen(rect);
}

void TourStates(PictureTour& tour, const std::string& suffix) {
    const HWND bar = tour.ToolBar();
    const HWND combo = ::GetDlgItem(bar, IDC_SCENE_COMBO);
    PictureSheet sheet(1, 2);
    const auto add = [&](const char* label) { sheet.Add(label, automation::WaitUntilSteady(bar)); };

    tour.ParkMouse();
    add("Resting: two checked buttons, one disabled");
    MoveMouseToLeftOf(ButtonRect(bar, kPrevious));
    add("Hot");
    automation::PressMouse();
    add("Pressed");
    tour.ParkMouse(); // released outside: no command
    automation::ReleaseMouse();
    MoveMouseToLeftOf(ButtonRect(bar, kSkin));
    add("Checked and hot");
    MoveMouseToLeftOf(ButtonRect(bar, kPaste));
    add("Under the mouse, but disabled");
    automation::MoveMouseOver(combo);
    add("The combo box among the buttons, hot");

    MoveMouseToLeftOf(ButtonRect(bar, kSchemes));
    add("A drop-down button, hot");
    automation::PressMouse();
    add("Its button half pressed");
    tour.ParkMouse();
    automation::ReleaseMouse();
    automation::WaitUntilSteady(tour.Gallery());
    MoveMouseToArrowOf(ButtonRect(bar, kSchemes));
    automation::PressMouse();
    automation::ReleaseMouse();
    if (WaitForMenu() != nullptr) {
        automation::TypeKey(VK_DOWN);
        add("Its menu open");
        tour.Write(UpperPart(tour, 150), "toolbar-menu" + suffix);
        automation::TypeKey(VK_ESCAPE);
    }
    tour.ParkMouse();
    tour.Write(sheet.Compose(), "toolbar" + suffix);
}

void TourComboAndMenu(PictureTour& tour, const std::string& suffix) {
    const HWND combo = ::GetDlgItem(tour.ToolBar(), IDC_SCENE_COMBO);
    automation::Click(combo);
    automation::WaitUntilSteady(tour.Gallery());
    tour.Write(UpperPart(tour, 230), "toolbar-combo" + suffix);
    automation::TypeKey(VK_ESCAPE); // closes the list ...
    automation::TypeKey(VK_ESCAPE); // ... and leaves the bar
    tour.ParkMouse();

    automation::TypeKey('S', VK_MENU);
    if (WaitForMenu() != nullptr) {
        automation::TypeKey(VK_DOWN);
        automation::WaitUntilSteady(tour.Gallery());
        tour.Write(UpperPart(tour, 320), "gallery-menu" + suffix);
        automation::TypeKey(VK_ESCAPE);
        automation::TypeKey(VK_ESCAPE);
    }
    automation::WaitUntilSteady(tour.Gallery());
}

/// Chooses an item of View, Dock the toolbar.
void Dock(PictureTour& tour, WORD letter) {
    automation::TypeKey('V', VK_MENU);
    WaitForMenu();
    automation::TypeKey('D');
    ::Sleep(300);
    automation::TypeKey(letter);
    automation::WaitUntilSteady(tour.Gallery());
}

} // namespace

void TourBars(PictureTour& tour, const std::string& suffix) {
    TourStates(tour, suffix);
    TourComboAndMenu(tour, suffix);

    MoveMouseToLeftOf(ButtonRect(tour.ToolBar(), kSkin)); // its text is in the status bar
    PictureSheet status(1, 2);
    status.Add("The text of the button under the mouse, and panes",
               automation::WaitUntilSteady(tour.StatusBar()));
    tour.Write(status.Compose(), "statusbar" + suffix);
    tour.ParkMouse();

    Dock(tour, 'L');
    tour.Write(automation::WaitUntilSteady(tour.Gallery()), "toolbar-vertical" + suffix);
    Dock(tour, 'T');
    automation::WaitUntilSteady(tour.Gallery());
}
