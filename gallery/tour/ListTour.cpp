// SPDX-License-Identifier: MIT
#include "gallery/tour/PictureTour.h"
#include "gallery/tour/Scenes.h"

void TourList(PictureTour& tour, const std::string& suffix) {
    tour.ParkMouse();
    tour.Write(tour.PictureOf(tour.Page()), "list" + suffix);
}
