// SPDX-License-Identifier: MIT
#include "automation/RealInput.h"
#include "automation/Steady.h"
#include "automation/SystemColors.h"
#include "gallery/resource.h"
#include "gallery/tour/PictureSheet.h"
#include "gallery/tour/PictureTour.h"
#include "gallery/tour/Scenes.h"

namespace {

/// The whole window, with a menu open over it.
automation::Picture PictureWithMenu(const PictureTour& tour) {
    automation::TypeKey('E', VK_MENU);
    for (int look = 0; look < 100 && ::FindWindowA("#32768", nullptr) == nullptr; ++look)
        ::Sleep(20);
    automation::TypeKey(VK_UP);
    automation::Picture picture = automation::WaitUntilSteady(tour.Gallery());
    automation::TypeKey(VK_ESCAPE);
    automation::TypeKey(VK_ESCAPE);
    automation::WaitUntilSteady(tour.Gallery());
    return picture;
}

} // namespace

void TourColors(PictureTour& tour) {
    PictureSheet sheet(2, 1);
    WPARAM command = ID_SCHEME_FIRST;
    for (const automation::ColorScheme& scheme : automation::ColorSchemes()) {
        ::SendMessageA(tour.Gallery(), WM_COMMAND, command++, 0);
        tour.ParkMouse();
        sheet.Add(scheme.name, PictureWithMenu(tour));
    }
    ::SendMessageA(tour.Gallery(), WM_COMMAND, ID_SCHEME_FIRST, 0);
    tour.Write(sheet.Compose(), "colours");
}
