// SPDX-License-Identifier: MIT
#include "automation/RealInput.h"
#include "gallery/resource.h"
#include "gallery/tour/PictureSheet.h"
#include "gallery/tour/PictureTour.h"
#include "gallery/tour/Scenes.h"

void TourGlyphs(PictureTour& tour, const std::string& suffix) {
    PictureSheet sheet(1, 2);
    tour.ParkMouse();
    sheet.Add("Glyph buttons: every kind, look and state",
              tour.PictureOf(::GetDlgItem(tour.Page(), IDC_GLYPH_TABLE)));
    tour.Write(sheet.Compose(), "glyphs" + suffix);
}
