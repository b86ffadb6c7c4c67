// SPDX-License-Identifier: MIT
// MFC wants to be the one that includes <windows.h>.
#include <afxwin.h>

#include "gallery/tour/PictureSheet.h"

#include <algorithm>

#include "draw/Selectors.h"

using automation::Picture;

namespace {

constexpr int kGap = 12;
constexpr int kLabelHeight = 20;

Picture MakePicture(int width, int height, COLORREF fill) {
    return {width, height, std::vector<COLORREF>(static_cast<std::size_t>(width) * height, fill)};
}

void Paste(Picture& onto, const Picture& picture, int left, int top, int scale) {
    for (int y = 0; y < picture.height * scale; ++y)
        for (int x = 0; x < picture.width * scale; ++x)
            onto.pixels[static_cast<std::size_t>(top + y) * onto.width + left + x] =
                picture.At(x / scale, y / scale);
}

Picture DrawLabel(const std::string& text, int width) {
    CClientDC screen(nullptr);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, width, kLabelHeight);
    {
        CDC dc;
        dc.CreateCompatibleDC(&screen);
        CBitmap* const previous = dc.SelectObject(&bitmap);
        {
            const CDCObjectSaver font(dc, DEFAULT_GUI_FONT, ::GetSysColor(COLOR_BTNTEXT));
            CRect rect(0, 0, width, kLabelHeight);
            dc.FillSolidRect(rect, ::GetSysColor(COLOR_BTNFACE));
            dc.DrawText(text.c_str(), -1, rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        }
        dc.SelectObject(previous);
    }
    return automation::ReadBitmap(static_cast<HBITMAP>(bitmap.GetSafeHandle()));
}

} // namespace

void PictureSheet::Add(const std::string& label, Picture picture) {
    m_entries.push_back({label, std::move(picture)});
}

Picture PictureSheet::Compose() const {
    if (m_entries.empty())
        return {};
    const int tileWidth = m_entries.front().picture.width * m_scale;
    const int tileHeight = m_entries.front().picture.height * m_scale;
    const int count = static_cast<int>(m_entries.size());
    const int columns = std::min(m_columns, count);
    const int rows = (count + columns - 1) / columns;

    Picture sheet =
        MakePicture(kGap + columns * (tileWidth + kGap),
                    kGap + rows * (tileHeight + kLabelHeight + kGap), ::GetSysColor(COLOR_BTNFACE));
    for (int i = 0; i < count; ++i) {
        const int left = kGap + i % columns * (tileWidth + kGap);
        const int top = kGap + i / columns * (tileHeight + kLabelHeight + kGap);
        Paste(sheet, m_entries[i].picture, left, top, m_scale);
        Paste(sheet, DrawLabel(m_entries[i].label, tileWidth), left, top + tileHeight, 1);
    }
    return sheet;
}
