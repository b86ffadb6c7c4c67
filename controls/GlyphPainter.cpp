// SPDX-License-Identifier: MIT
#include "controls/GlyphPainter.h"

#include "controls/DrawButton.h"
#include "draw/DrawUtil.h"
#include "draw/Hls.h"

namespace {

/// Glyph on a pressed face: a little off white, as the text of a pressed push button.
constexpr COLORREF kPressedGlyph = RGB(0xF0, 0xF0, 0xF0);

constexpr int kArrowRows = 4;
constexpr int kSpinArrowRows = 3;

/// GDI's device space is 2^27 units in each direction.
constexpr LONG kFarthest = 1L << 27;

constexpr bool IsNear(LONG coordinate) {
    return coordinate >= -kFarthest && coordinate <= kFarthest;
}

void DrawLine(HDC dc, int fromX, int fromY, int toX, int toY) {
    ::MoveToEx(dc, fromX, fromY, nullptr);
    ::LineTo(dc, toX, toY);
}

int MiddleX(const RECT& rect) {
    return (rect.left + rect.right) / 2;
}

int MiddleY(const RECT& rect) {
    return (rect.top + rect.bottom) / 2;
}

struct CrossCorners {
    int left;
    int top;
    int right;
    int bottom;
};

CrossCorners CornersIn(const RECT& rect) {
    return {(rect.right + 2 * rect.left) / 3 - 1, (rect.bottom + 2 * rect.top) / 3 - 1,
            (rect.left + 2 * rect.right) / 3, (rect.top + 2 * rect.bottom) / 3 - 1};
}

/// Puts back what CDCObjectSaver does not cover: the mode in which text is drawn.
class TransparentText {
public:
    TransparentText(HDC dc, COLORREF color)
        : m_dc(dc), m_color(::SetTextColor(dc, color)), m_mode(::SetBkMode(dc, TRANSPARENT)) {}
    ~TransparentText() {
        ::SetBkMode(m_dc, m_mode);
        ::SetTextColor(m_dc, m_color);
    }

    TransparentText(const TransparentText&) = delete;
    TransparentText& operator=(const TransparentText&) = delete;

private:
    HDC m_dc;
    COLORREF m_color;
    int m_mode;
};

} // namespace

namespace tint {

bool GlyphPainter::CanDraw(const RECT& rect) {
    return IsNear(rect.left) && IsNear(rect.top) && IsNear(rect.right) && IsNear(rect.bottom);
}

GlyphPainter::GlyphPainter(HDC dc, UINT ownFlags, UINT state, const RECT& rect)
    : m_dc(dc), m_ownFlags(ownFlags), m_state(state), m_rect(rect),
      m_pressedFace(AdjustColorLS(::GetSysColor(COLOR_HIGHLIGHT), 50, -50)),
      m_hotFace(AdjustColorLS(::GetSysColor(COLOR_HIGHLIGHT), 70, -57)),
      m_pen(dc, ::GetSysColor(COLOR_BTNFACE)), m_brush(dc, ::GetSysColor(COLOR_BTNFACE)) {}

void GlyphPainter::Draw() {
    if ((m_ownFlags & CDrawButton::kOutsideToolbar) != 0 && !IsFlat())
        DrawClassicBorder();
    const UINT kind = m_state & CDrawButton::kKindMask;
    if (kind == CDrawButton::kSpinPair) {
        DrawSpinPair();
    } else {
        DrawFrame(m_rect, IsPressed());
        DrawSingle(kind);
    }
}

bool GlyphPainter::IsPressed() const {
    return Has(CDrawButton::kAnyPressed);
}

bool GlyphPainter::IsFlat() const {
    return Has(CDrawButton::kFlat);
}

void GlyphPainter::DrawClassicBorder() {
    DrawLine(m_dc, m_rect.right - 1, m_rect.top, m_rect.left, m_rect.top);
    DrawLine(m_dc, m_rect.left, m_rect.top, m_rect.left, m_rect.bottom);
    ::SetPixel(m_dc, m_rect.right - 1, m_rect.top, ::GetSysColor(COLOR_3DDKSHADOW));
    ++m_rect.left;
    ++m_rect.top;
}

void GlyphPainter::DrawFrame(const RECT& rect, bool pushed) {
    if (IsFlat()) {
        DrawFlatFrame(rect);
        return;
    }
    RECT frame = rect; // the system takes it writable
    const UINT style = DFCS_BUTTONPUSH | (pushed ? UINT{DFCS_PUSHED} : 0U);
    ::DrawFrameControl(m_dc, &frame, DFC_BUTTON, style);
}

void GlyphPainter::DrawFlatFrame(const RECT& rect) {
    if (Has(CDrawButton::kHot) && !Has(CDrawButton::kDisabled)) {
        m_pen.SetColor(::GetSysColor(COLOR_HIGHLIGHT));
        m_brush.SetColor(IsPressed() ? m_pressedFace : m_hotFace);
    } else if (!Has(CDrawButton::kNoRestingFrame)) {
        const bool visible = (m_ownFlags & CDrawButton::kOutsideToolbar) != 0;
        m_pen.SetColor(::GetSysColor(visible ? COLOR_BTNSHADOW : COLOR_WINDOW));
    } else {
        return;
    }
    ::Rectangle(m_dc, rect.left, rect.top, rect.right, rect.bottom);
}

COLORREF GlyphPainter::GlyphColor(POINT probe) const {
    const bool disabled = Has(CDrawButton::kDisabled);
    if (!IsFlat())
        return ::GetSysColor(disabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT);
    if (IsPressed())
        return kPressedGlyph;
    if (disabled)
        return ::GetSysColor(COLOR_GRAYTEXT);
    // What the device shows decides and not the state, so that the glyph is black on a hot face also
    // when that face was drawn before.
    const bool onHotFace = ::GetPixel(m_dc, probe.x, probe.y) == m_hotFace;
    return onHotFace ? RGB(0, 0, 0) : ::GetSysColor(COLOR_BTNTEXT);
}

void GlyphPainter::DrawSingle(UINT kind) {
    switch (kind) {
    case CDrawButton::kUpArrow:
    case CDrawButton::kDownArrow:
        DrawArrow(kind == CDrawButton::kDownArrow);
        break;
    case CDrawButton::kEllipsis:
        DrawEllipsis();
        break;
    case CDrawButton::kCross:
        DrawCross();
        break;
    default: // the bare frame
        break;
    }
}

void GlyphPainter::DrawArrow(bool down) {
    m_pen.SetColor(GlyphColor({m_rect.left + 1, m_rect.top + 1}));
    const int x = MiddleX(m_rect) + (IsSunken() ? 1 : 0);
    const int y = MiddleY(m_rect) + (IsRaised() ? 1 : 2) - (down ? 0 : 3);
    DrawArrowTriangle(m_dc, x, y, kArrowRows, down);
}

void GlyphPainter::DrawEllipsis() {
    const TransparentText text(m_dc, GlyphColor({m_rect.left + 1, m_rect.top + 1}));
    RECT place = m_rect;
    place.left += IsRaised() ? 1 : 2;
    place.bottom += IsSunken() ? 1 : 0;
    ::DrawTextA(m_dc, "...", 3, &place, DT_SINGLELINE | DT_BOTTOM);
}

void GlyphPainter::DrawCross() {
    const CrossCorners corners = CornersIn(m_rect);
    m_pen.SetColor(GlyphColor({corners.left, corners.top + 1}));
    const int sunk = IsSunken() ? 1 : 0;
    const int longer = IsRaised() ? 0 : 1;
    const int x1 = corners.left + sunk;
    const int y1 = corners.top + sunk;
    const int x2 = corners.right + longer;
    const int y2 = corners.bottom + longer + 1; // a line leaves out its last pixel

    // Two strokes, each two pixels wide.
    DrawLine(m_dc, x1, y1, x2, y2);
    DrawLine(m_dc, x1 + 1, y1, x2 + 1, y2);
    DrawLine(m_dc, x2 - 1, y1, x1 - 1, y2);
    DrawLine(m_dc, x2, y1, x1, y2);
}

void GlyphPainter::DrawSpinPair() {
    const bool upperPressed = Has(CDrawButton::kPressed);
    const bool lowerPressed = Has(CDrawButton::kSecondPressed);
    const int middle = MiddleX(m_rect);

    // While one half is pressed, the other one is not drawn at all.
    if (!lowerPressed)
        DrawFrame(UpperHalf(), upperPressed);
    if (IsRaised())
        DrawLine(m_dc, m_rect.left, MiddleY(m_rect), m_rect.right, MiddleY(m_rect));
    if (!upperPressed)
        DrawFrame(LowerHalf(), lowerPressed);

    m_pen.SetColor(GlyphColor({m_rect.left + 1, m_rect.top + 1}));
    if (!lowerPressed) {
        const int x = middle + (!IsFlat() && upperPressed ? 1 : 0);
        const int lift = IsFlat() || upperPressed ? 1 : 2;
        DrawArrowTriangle(m_dc, x, (3 * m_rect.top + m_rect.bottom) / 4 - lift, kSpinArrowRows,
                          false);
    }
    if (!upperPressed) {
        const int shift = !IsFlat() && lowerPressed ? 1 : 0;
        DrawArrowTriangle(m_dc, middle + shift, (m_rect.top + 3 * m_rect.bottom) / 4 + shift + 1,
                          kSpinArrowRows, true);
    }
}

RECT GlyphPainter::UpperHalf() const {
    // In the flat look the halves share the line between them.
    const int shared = IsFlat() ? 1 : 0;
    return {m_rect.left, m_rect.top, m_rect.right, MiddleY(m_rect) + shared};
}

RECT GlyphPainter::LowerHalf() const {
    const bool odd = (m_rect.bottom - m_rect.top) % 2 != 0;
    // In the classic look both halves are of one height; an odd row is the line between them.
    const int skipped = !IsFlat() && odd ? 1 : 0;
    return {m_rect.left, MiddleY(m_rect) + skipped, m_rect.right, m_rect.bottom};
}

} // namespace tint
