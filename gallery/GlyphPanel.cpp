// SPDX-License-Identifier: MIT
#include "gallery/GlyphPanel.h"

#include <algorithm>

#include "draw/Selectors.h"

namespace {

constexpr int kNumberWidth = 44; // all in pixels
constexpr int kButtonWidth = 21;
constexpr int kGap = 8;

constexpr UINT kKinds[] = {CDrawButton::kSpinPair, CDrawButton::kUpArrow, CDrawButton::kDownArrow,
                           CDrawButton::kEllipsis, CDrawButton::kCross};

// What the timer of a held spin pair stands for: a code for each half.
constexpr WORD kUp = 1;
constexpr WORD kDown = 2;
constexpr UINT kRepeatTimer = kUp | kDown << 16;
constexpr UINT kRepeatPeriod = 150; // milliseconds

} // namespace

BEGIN_MESSAGE_MAP(CGlyphPanel, CBufferedStatic)
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_TIMER()
END_MESSAGE_MAP()

CGlyphPanel::CGlyphPanel(UINT look) {
    for (std::size_t i = 0; i < m_buttons.size(); ++i)
        m_buttons[i].SetFlags(kKinds[i] | look | CDrawButton::kOutsideToolbar);
}

void CGlyphPanel::PreSubclassWindow() {
    CBufferedStatic::PreSubclassWindow();
    ModifyStyle(0, SS_NOTIFY); // without it a static lets the mouse through
    CRect client;
    GetClientRect(client);
    CRect place(kNumberWidth, client.top, kNumberWidth + kButtonWidth, client.bottom);
    for (CDrawButton& button : m_buttons) {
        button.SetRect(place);
        place.OffsetRect(kButtonWidth + kGap, 0);
    }
}

void CGlyphPanel::Draw(CDC& dc, const CRect&) {
    for (const CDrawButton& button : m_buttons)
        button.Draw(dc, 0);

    const CPenSelector frame(dc, ::GetSysColor(COLOR_BTNSHADOW));
    const CBrushSelector face(dc, ::GetSysColor(COLOR_WINDOW));
    CRect place = NumberPlace();
    dc.Rectangle(place);
    dc.SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
    CString text;
    text.Format("%d", m_number);
    place.DeflateRect(4, 0);
    dc.DrawText(text, place, DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
}

void CGlyphPanel::OnMouseMove(UINT, CPoint point) {
    // The buttons of a window share its hover timer: the one that stops it comes before the one that
    // starts it.
    for (CDrawButton& button : m_buttons)
        if ((button.GetFlags() & CDrawButton::kHot) != 0)
            button.OnMouseMove(m_hWnd, point);
    for (CDrawButton& button : m_buttons)
        button.OnMouseMove(m_hWnd, point);
}

void CGlyphPanel::OnLButtonDown(UINT, CPoint point) {
    CDrawButton& spinPair = m_buttons.front();
    if (::PtInRect(&spinPair.GetRect(), point)) {
        ClickSpinPair(spinPair, point);
        return;
    }
    const auto button =
        std::find_if(m_buttons.begin() + 1, m_buttons.end(), [point](const CDrawButton& other) {
            return ::PtInRect(&other.GetRect(), point) != FALSE;
        });
    // The panel may be destroyed in the loop of the click: nothing may follow it but what was clicked.
    if (button != m_buttons.end() && button->TrackClick(m_hWnd, point) != 0)
        Click(*button);
}

void CGlyphPanel::OnLButtonDblClk(UINT flags, CPoint point) {
    OnLButtonDown(flags, point); // two quick clicks are two clicks
}

void CGlyphPanel::ClickSpinPair(CDrawButton& button, CPoint point) {
    m_hasRepeated = false;
    SetTimer(kRepeatTimer, kRepeatPeriod, nullptr); // TrackClick stops it
    const UINT clicked = button.TrackClick(m_hWnd, point, kRepeatTimer);
    if (clicked != 0 && !m_hasRepeated)
        ChangeBy((clicked & CDrawButton::kPressed) != 0 ? 1 : -1);
}

void CGlyphPanel::OnTimer(UINT_PTR timer) {
    if (timer != kRepeatTimer) {
        Default(); // the hover timer has a procedure of its own
        return;
    }
    m_hasRepeated = true;
    ChangeBy(CDrawButton::RepeatCode() == kUp ? 1 : -1);
}

void CGlyphPanel::Click(const CDrawButton& button) {
    switch (button.GetFlags() & CDrawButton::kKindMask) {
    case CDrawButton::kUpArrow:
        ChangeBy(10);
        break;
    case CDrawButton::kDownArrow:
        ChangeBy(-10);
        break;
    case CDrawButton::kEllipsis:
        ChangeBy(100);
        break;
    default:
        ChangeBy(-m_number);
        break;
    }
}

void CGlyphPanel::ChangeBy(int difference) {
    constexpr int greatest = 9999;
    m_number = (m_number + difference) % (greatest + 1);
    InvalidateRect(NumberPlace(), FALSE);
}

CRect CGlyphPanel::NumberPlace() const {
    CRect place;
    GetClientRect(place);
    place.right = kNumberWidth;
    return place;
}
