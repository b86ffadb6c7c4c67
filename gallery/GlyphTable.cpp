// SPDX-License-Identifier: MIT
#include "gallery/GlyphTable.h"

#include <iterator>

#include "controls/DrawButton.h"

namespace {

struct Named {
    LPCTSTR name;
    UINT flags;
};

constexpr Named kKinds[] = {
    {"down", CDrawButton::kDownArrow},     {"up", CDrawButton::kUpArrow},
    {"spin pair", CDrawButton::kSpinPair}, {"ellipsis", CDrawButton::kEllipsis},
    {"cross", CDrawButton::kCross},        {"no glyph", CDrawButton::kNoGlyph},
};

constexpr UINT kHot = CDrawButton::kFlat | CDrawButton::kHot;

constexpr Named kStates[] = {
    {"resting", CDrawButton::kOutsideToolbar},
    {"pressed", CDrawButton::kOutsideToolbar | CDrawButton::kPressed},
    {"grey", CDrawButton::kOutsideToolbar | CDrawButton::kDisabled},
    {"resting", CDrawButton::kFlat | CDrawButton::kOutsideToolbar},
    {"on a bar", CDrawButton::kFlat},
    {"bare", CDrawButton::kFlat | CDrawButton::kNoRestingFrame},
    {"hot", kHot},
    {"pressed", kHot | CDrawButton::kPressed},
    {"grey", CDrawButton::kFlat | CDrawButton::kOutsideToolbar | CDrawButton::kDisabled},
};

constexpr int kClassicStates = 3;

constexpr int kNameWidth = 46; // all in pixels
constexpr int kLineHeight = 14;
constexpr int kColumnWidth = 40;
constexpr int kRowHeight = 28;
constexpr int kButtonWidth = 17;
constexpr int kButtonHeight = 20;
constexpr UINT kCentered = DT_CENTER | DT_VCENTER | DT_SINGLELINE;

CRect CellAt(int column, int row) {
    return {CPoint(kNameWidth + column * kColumnWidth, 2 * kLineHeight + row * kRowHeight),
            CSize(kColumnWidth, kRowHeight)};
}

void DrawHeadings(CDC& dc) {
    const int columns = static_cast<int>(std::size(kStates));
    CRect looks = CellAt(0, 0) | CellAt(kClassicStates - 1, 0);
    looks.bottom = kLineHeight;
    looks.top = 0;
    dc.DrawText("classic", -1, looks, kCentered);
    looks.left = looks.right;
    looks.right = CellAt(columns - 1, 0).right;
    dc.DrawText("flat", -1, looks, kCentered);
    for (int column = 0; column < columns; ++column) {
        CRect place = CellAt(column, 0);
        place.OffsetRect(0, -kLineHeight);
        place.bottom = place.top + kLineHeight;
        place.InflateRect(4, 0); // the widest names
        dc.DrawText(kStates[column].name, -1, place, kCentered);
    }
}

void DrawKind(CDC& dc, const Named& kind, int row) {
    CRect name = CellAt(0, row);
    name.left = 0;
    name.right = kNameWidth;
    dc.DrawText(kind.name, -1, name, DT_VCENTER | DT_SINGLELINE);
    for (int column = 0; column < static_cast<int>(std::size(kStates)); ++column) {
        const CPoint middle = CellAt(column, row).CenterPoint();
        const CRect place(middle - CSize(kButtonWidth / 2, kButtonHeight / 2),
                          CSize(kButtonWidth, kButtonHeight));
        const CDrawButton button(kind.flags | kStates[column].flags, place);
        button.Draw(dc,
                    button.GetFlags() & ~CDrawButton::kPressed); // the other half of a spin pair
        button.Draw(dc, 0);
    }
}

} // namespace

void CGlyphTable::Draw(CDC& dc, const CRect&) {
    DrawHeadings(dc);
    for (int row = 0; row < static_cast<int>(std::size(kKinds)); ++row)
        DrawKind(dc, kKinds[row], row);
}
