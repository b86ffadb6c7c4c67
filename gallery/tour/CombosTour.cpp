// SPDX-License-Identifier: MIT
#include <functional>

#include "automation/RealInput.h"
#include "gallery/resource.h"
#include "gallery/tour/PictureSheet.h"
#include "gallery/tour/PictureTour.h"
#include "gallery/tour/Scenes.h"

namespace {

/// Waits until the gallery has handled its input, which a loaded machine may do late.
void WaitFor(const std::function<bool()>& condition) {
    for (int look = 0; look < 200 && !condition(); ++look)
        ::Sleep(20);
}

} // namespace

void TourCombos(PictureTour& tour, const std::string& suffix) {
    const HWND subject = ::GetDlgItem(tour.Page(), IDC_COMBO_SUBJECT);
    const HWND stage = ::GetDlgItem(tour.Page(), IDC_COMBO_STAGE); // the subject and its list
    const HWND disable = ::GetDlgItem(tour.Page(), IDC_COMBO_DISABLE);
    const auto isEnabled = [&] { return ::IsWindowEnabled(subject) != FALSE; };
    const auto isOpen = [&] { return ::SendMessageA(subject, CB_GETDROPPEDSTATE, 0, 0) != 0; };

    tour.ParkMouse();
    const automation::Picture resting = tour.PictureOf(stage);
    const auto isResting = [&] { return tour.PictureOf(stage) == resting; };

    automation::Click(disable);
    WaitFor([&] { return !isEnabled() && !isResting(); });
    const automation::Picture disabled = tour.PictureOf(stage);
    automation::Click(disable);
    WaitFor([&] { return isEnabled() && isResting(); });

    automation::MoveMouseOver(subject);
    WaitFor([&] { return !isResting(); });
    const automation::Picture hot = tour.PictureOf(stage);
    tour.ParkMouse();

    automation::TypeKey(VK_TAB, VK_SHIFT);
    automation::TypeKey(VK_F4);
    WaitFor(isOpen);
    const automation::Picture open = tour.PictureOf(stage);
    automation::TypeKey(VK_F4);
    WaitFor([&] { return !isOpen(); });
    automation::TypeKey(VK_END); // the text is no longer selected

    PictureSheet sheet(2, 2);
    sheet.Add("Resting", resting);
    sheet.Add("Hot", hot);
    sheet.Add("Disabled", disabled);
    sheet.Add("List open", open);
    tour.Write(sheet.Compose(), "combos" + suffix);
}
