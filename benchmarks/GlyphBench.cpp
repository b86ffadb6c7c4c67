// SPDX-License-Identifier: MIT
#include "benchmarks/GlyphBench.h"

#include <afxwin.h>

#include "controls/DrawButton.h"

namespace {

/// A bitmap to draw on.
class Surface {
public:
    explicit Surface(CSize size) {
        CClientDC screen(nullptr);
        m_bitmap.CreateCompatibleBitmap(&screen, size.cx, size.cy);
        m_dc.CreateCompatibleDC(&screen);
        m_previous = m_dc.SelectObject(&m_bitmap);
    }
    ~Surface() { m_dc.SelectObject(m_previous); }

    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    CDC& dc() { return m_dc; }

private:
    CBitmap m_bitmap;
    CDC m_dc;
    CBitmap* m_previous;
};

} // namespace

std::vector<Row> BenchGlyph() {
    CRect place(0, 0, 17, 20);
    Surface target(place.Size());
    Surface picture(place.Size());
    CDC& dc = target.dc();
    const CDrawButton button(
        CDrawButton::kFlat | CDrawButton::kDownArrow | CDrawButton::kOutsideToolbar, place);

    return Compare(
        "draw a glyph button",
        {{"DrawButton", [&] { button.Draw(dc, 0); }},
         {"the system's own arrow",
          [&] { dc.DrawFrameControl(place, DFC_SCROLL, DFCS_SCROLLCOMBOBOX); }},
         {"a single blit",
          [&] { dc.BitBlt(0, 0, place.Width(), place.Height(), &picture.dc(), 0, 0, SRCCOPY); }}},
        2000);
}
