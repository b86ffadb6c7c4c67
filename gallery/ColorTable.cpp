// SPDX-License-Identifier: MIT
#include "gallery/ColorTable.h"

#include "draw/Selectors.h"
#include "gallery/ColorPairs.h"

namespace {

constexpr int kColumns = 2;
constexpr int kGap = 4; // pixels, between the samples
constexpr int kColumnGap = 16;
constexpr int kRatioWidth = 34;

/// The place of a sample and its ratio.
CRect CellAt(const CRect& client, int index, int rows) {
    const int width = (client.Width() + kColumnGap) / kColumns;
    const int height = client.Height() / rows;
    return {CPoint(index / rows * width, index % rows * height),
            CSize(width - kColumnGap, height - kGap)};
}

void DrawPair(CDC& dc, const ColorPair& pair, const CRect& cell) {
    CRect sample = cell;
    sample.right -= kRatioWidth;
    {
        const CPenSelector pen(dc, ::GetSysColor(COLOR_BTNSHADOW));
        const CBrushSelector brush(dc, pair.background);
        dc.Rectangle(sample);
    }
    sample.DeflateRect(8, 0);
    dc.SetTextColor(pair.text);
    dc.DrawText(pair.name, -1, sample, DT_LEFT | DT_VCENTER | DT_SINGLELINE);

    CRect place = cell;
    CString ratio;
    ratio.Format("%.1f", ContrastRatio(pair.text, pair.background));
    dc.SetTextColor(::GetSysColor(COLOR_BTNTEXT));
    dc.DrawText(ratio, -1, place, DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
}

} // namespace

void CColorTable::Draw(CDC& dc, const CRect& client) {
    const auto pairs = ColorPairs();
    const int count = static_cast<int>(pairs.size());
    for (int i = 0; i < count; ++i)
        DrawPair(dc, pairs[i], CellAt(client, i, (count + kColumns - 1) / kColumns));
}
