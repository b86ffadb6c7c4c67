// SPDX-License-Identifier: MIT
#include <cstring>

#include "automation/RealInput.h"
#include "gallery/tour/PictureTour.h"
#include "gallery/tour/Scenes.h"

namespace {

/// Puts a picture on the clipboard as another program would: eight colour bars, from top to bottom.
void CopyColorBars() {
    constexpr int width = 32;
    constexpr int height = 16;
    const HGLOBAL block =
        ::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, sizeof(BITMAPINFOHEADER) + width * height * 4);
    if (block == nullptr)
        return;
    auto* const bytes = static_cast<BYTE*>(::GlobalLock(block));
    BITMAPINFOHEADER header = {};
    header.biSize = sizeof header;
    header.biWidth = width;
    header.biHeight = height;
    header.biPlanes = 1;
    header.biBitCount = 32;
    std::memcpy(bytes, &header, sizeof header);
    BYTE* pixel = bytes + sizeof header;
    for (int i = 0; i < width * height; ++i, pixel += 4) {
        const int bar = i % width * 8 / width;
        for (int channel = 0; channel < 3; ++channel)
            pixel[channel] = (bar >> channel & 1) != 0 ? 0x40 : 0xF0;
    }
    ::GlobalUnlock(block);

    if (::OpenClipboard(nullptr)) {
        ::EmptyClipboard();
        if (::SetClipboardData(CF_DIB, block) == nullptr)
            ::GlobalFree(block);
        ::CloseClipboard();
    } else {
        ::GlobalFree(block);
    }
}

} // namespace

void TourPictures(PictureTour& tour, const std::string& suffix) {
    CopyColorBars();
    tour.ParkMouse();
    automation::TypeKey('A', VK_MENU); // "Paste"
    tour.Write(tour.PictureOf(tour.Page()), "pictures" + suffix);
}
