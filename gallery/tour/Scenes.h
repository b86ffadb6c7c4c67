// SPDX-License-Identifier: MIT
#pragma once

#include <string>

class PictureTour;

/// The buttons in each of their states.
/// @param suffix  appended to the names of the pictures: empty, or a hyphen and the scheme
void TourButtons(PictureTour& tour, const std::string& suffix);

/// Menus of a frame window and a context menu, opened by keys and mouse.
void TourMenus(PictureTour& tour, const std::string& suffix);

/// The list with its styles.
void TourList(PictureTour& tour, const std::string& suffix);

/// The pictures, with one pasted from the clipboard.
void TourPictures(PictureTour& tour, const std::string& suffix);

/// The glyph buttons: every kind, look and state.
void TourGlyphs(PictureTour& tour, const std::string& suffix);

/// The combo box in each of its states.
void TourCombos(PictureTour& tour, const std::string& suffix);

/// The links, one of them under the mouse.
void TourLinks(PictureTour& tour, const std::string& suffix);

/// The bitmap buttons in each of their states.
void TourBitmapButtons(PictureTour& tour, const std::string& suffix);

/// The rich text.
void TourRichText(PictureTour& tour, const std::string& suffix);

/// The page of colours and a menu, in all schemes on one sheet.
void TourColors(PictureTour& tour);

/// The toolbar in each of its states, docked at the top and at the left, and the status bar.
void TourBars(PictureTour& tour, const std::string& suffix);
