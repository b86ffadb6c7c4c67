// SPDX-License-Identifier: MIT
#include "automation/RealInput.h"
#include "gallery/resource.h"
#include "gallery/tour/PictureTour.h"
#include "gallery/tour/Scenes.h"

void TourLinks(PictureTour& tour, const std::string& suffix) {
    automation::Click(::GetDlgItem(tour.Page(), IDC_LINK_BUTTON));
    RECT link = {};
    ::GetWindowRect(::GetDlgItem(tour.Page(), IDC_LINK_HOVER), &link);
    automation::MoveMouse({link.left + 12, (link.top + link.bottom) / 2});
    ::Sleep(1500); // until the tool tip is there
    tour.Write(tour.PictureOf(tour.Page()), "hyperlinks" + suffix);
    tour.ParkMouse();
}
