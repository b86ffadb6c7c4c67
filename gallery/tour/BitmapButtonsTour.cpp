// SPDX-License-Identifier: MIT
#include "automation/RealInput.h"
#include "automation/Steady.h"
#include "gallery/resource.h"
#include "gallery/tour/PictureSheet.h"
#include "gallery/tour/PictureTour.h"
#include "gallery/tour/Scenes.h"

void TourBitmapButtons(PictureTour& tour, const std::string& suffix) {
    const HWND disable = ::GetDlgItem(tour.Page(), IDC_BITMAP_DISABLE);
    constexpr int frames[] = {1, 3, 4, 6};
    PictureSheet sheet(4, 3);
    for (int id = IDC_BITMAP_FIRST; id <= IDC_BITMAP_LAST; ++id) {
        const HWND subject = ::GetDlgItem(tour.Page(), id);
        const int count = frames[id - IDC_BITMAP_FIRST];
        const auto add = [&](const char* state) {
            const std::string label =
                std::to_string(count) + (count == 1 ? " frame: " : " frames: ");
            sheet.Add(label + state, tour.PictureOf(subject));
        };
        tour.ParkMouse();
        add("normal");
        automation::MoveMouseOver(subject);
        add("hover");
        automation::PressMouse();
        add("pressed");
        tour.ParkMouse();
        automation::ReleaseMouse();
        automation::WaitUntilSteady(tour.Gallery()); // the button has let go of the mouse
        automation::Click(disable);
        tour.ParkMouse();
        add("disabled");
        automation::Click(disable);
    }
    tour.ParkMouse();
    tour.Write(sheet.Compose(), "bitmap-buttons" + suffix);
}
