// SPDX-License-Identifier: MIT
#include "automation/RealInput.h"
#include "gallery/resource.h"
#include "gallery/tour/PictureSheet.h"
#include "gallery/tour/PictureTour.h"
#include "gallery/tour/Scenes.h"

void TourButtons(PictureTour& tour, const std::string& suffix) {
    const HWND subject = ::GetDlgItem(tour.Page(), IDC_SUBJECT);
    const HWND makeDefault = ::GetDlgItem(tour.Page(), IDC_MAKE_DEFAULT);
    const HWND makeDisabled = ::GetDlgItem(tour.Page(), IDC_MAKE_DISABLED);
    PictureSheet sheet(4, 2);
    const auto add = [&](const char* label) { sheet.Add(label, tour.PictureOf(subject)); };

    tour.ParkMouse();
    add("Resting");
    automation::MoveMouseOver(subject);
    add("Hot");
    automation::PressMouse();
    add("Pressed");
    tour.ParkMouse(); // released outside: no click
    automation::ReleaseMouse();
    automation::TypeKey(VK_TAB);
    automation::TypeKey(VK_TAB, VK_SHIFT);
    add("Focused by Tab");

    automation::Click(makeDefault);
    tour.ParkMouse();
    add("Default");
    automation::Click(makeDefault);
    automation::Click(makeDisabled);
    tour.ParkMouse();
    add("Disabled");
    automation::MoveMouseOver(subject);
    add("Disabled, under the mouse");
    automation::Click(makeDefault);
    tour.ParkMouse();
    add("Disabled default");

    automation::Click(makeDefault);
    automation::Click(makeDisabled);
    tour.ParkMouse();
    tour.Write(sheet.Compose(), "buttons" + suffix);
}
