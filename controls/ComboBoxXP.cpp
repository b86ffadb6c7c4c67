// SPDX-License-Identifier: MIT
#include "controls/ComboBoxXP.h"

#include <afxcmn.h>
#include <afxext.h>

#include <algorithm>

#include "controls/DrawButton.h"
#include "controls/HostDC.h"
#include "draw/Selectors.h"
#include "draw/Skin.h"

namespace {

/// Height of the closed combo box beyond its field: the system's frame.
constexpr UINT kFrameHeight = 6;

/// Border heights beyond field and list.  It happens to be the default number of rows, too, but does
/// not follow it.
constexpr int kBorders = 7;

/// Greater heights count as this one: a window, list included, cannot be higher than 32767 anyway.
constexpr int kGreatestHeight = 16384;

} // namespace

BEGIN_MESSAGE_MAP(CComboBoxXP, CComboBox)
    ON_WM_GETDLGCODE()
    ON_WM_WINDOWPOSCHANGING()
    ON_WM_WINDOWPOSCHANGED()
    ON_WM_PAINT()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_CONTROL_REFLECT_EX(CBN_DROPDOWN, &CComboBoxXP::OnListOpensOrCloses)
    ON_CONTROL_REFLECT_EX(CBN_CLOSEUP, &CComboBoxXP::OnListOpensOrCloses)
END_MESSAGE_MAP()

CComboBoxXP::~CComboBoxXP() {
    if (m_edit.m_hWnd != nullptr)
        m_edit.UnsubclassWindow(); // the field stays with its combo box, which may live on
}

// ---- Set-up -------------------------------------------------------------------------------------

BOOL CComboBoxXP::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    if (!CComboBox::Create(style, rect, parent, id))
        return FALSE;
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)), TRUE);
    SetUp();
    // The system has made it as high as its font.
    SetWindowPos(nullptr, 0, 0, rect.right - rect.left, rect.bottom - rect.top,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    return TRUE;
}

void CComboBoxXP::PreSubclassWindow() {
    CComboBox::PreSubclassWindow();
    SetUp();
    if (GetItemHeight(-1) <= 0) // a combo box that is just being created; Create does the rest
        return;
    // Messages do not come here yet: what OnWindowPosChanging makes of any resize is asked for directly.
    // The field keeps the height that the dialog's font gives it.
    CRect window;
    GetWindowRect(window);
    SetWindowPos(nullptr, 0, 0, window.Width(), HeightWithList(), SWP_NOMOVE | SWP_NOZORDER);
    m_fieldHeight = kNone; // a font may follow
}

void CComboBoxXP::SetUp() {
    m_hover.Attach(m_hWnd, CMouseHoverTracker::kRepaint);
    // The common controls from version 6 on go by this number, others by the window's height.
    SendMessage(CB_SETMINVISIBLE, m_visibleRows, 0);
    if (m_edit.m_hWnd != nullptr && ::GetParent(m_edit.m_hWnd) != m_hWnd)
        m_edit.UnsubclassWindow(); // the field of another combo box, which this was before
    const HWND edit = ::FindWindowExA(m_hWnd, nullptr, WC_EDITA, nullptr);
    if (edit != nullptr && m_edit.m_hWnd == nullptr && CWnd::FromHandlePermanent(edit) == nullptr)
        m_edit.SubclassWindow(edit);
}

/// The frame whose control bar this is on; null elsewhere.
CFrameWnd* CComboBoxXP::BarFrame() const {
    const auto* const bar =
        dynamic_cast<const CControlBar*>(CWnd::FromHandlePermanent(::GetParent(m_hWnd)));
    return bar != nullptr ? bar->m_pDockSite : nullptr;
}

// ---- Height -------------------------------------------------------------------------------------

void CComboBoxXP::SetVisibleRows(int rows) {
    m_visibleRows = std::clamp(rows, 1, kMostVisibleRows);
    if (m_hWnd == nullptr)
        return;
    SendMessage(CB_SETMINVISIBLE, m_visibleRows, 0);
    CRect window; // of the closed field
    GetWindowRect(window);
    SetWindowPos(nullptr, 0, 0, window.Width(), window.Height(),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

/// The window height that makes the list show the configured rows.
int CComboBoxXP::HeightWithList() {
    if (m_fieldHeight == kNone)
        m_fieldHeight = GetItemHeight(-1);
    return static_cast<int>(m_fieldHeight) + GetItemHeight(0) * m_visibleRows +
           ::GetSystemMetrics(SM_CYBORDER) * kBorders;
}

// The system answers a new size by putting the window back to the height of its closed field, and takes
// the rest for the list: a resize inside the resize, which is not to be taken for another request.
void CComboBoxXP::OnWindowPosChanging(WINDOWPOS* position) {
    if ((position->flags & SWP_NOSIZE) == 0 && m_requestedHeight == kNone) {
        m_requestedHeight = std::clamp(position->cy, 0, kGreatestHeight);
        position->cy = HeightWithList();
    }
    Default();
}

void CComboBoxXP::OnWindowPosChanged(WINDOWPOS* position) {
    Default();
    if ((position->flags & SWP_NOSIZE) == 0 && m_requestedHeight != kNone)
        ApplyRequestedHeight();
    if (m_edit.m_hWnd != nullptr && ::GetFocus() != m_edit.m_hWnd)
        m_edit.SendMessage(EM_SETSEL, static_cast<WPARAM>(-1), 0);
}

void CComboBoxXP::ApplyRequestedHeight() {
    // Setting the field's height resizes the window once more.
    if (m_appliesHeight)
        return;
    m_appliesHeight = true;
    SendMessage(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1),
                LOWORD(m_requestedHeight - kFrameHeight));
    m_appliesHeight = false;
    m_fieldHeight = kNone;
    m_requestedHeight = kNone;
}

// ---- Keyboard and focus -------------------------------------------------------------------------

UINT CComboBoxXP::OnGetDlgCode() {
    const bool enterIsDown = ::GetKeyState(VK_RETURN) < 0;
    return static_cast<UINT>(Default()) | (enterIsDown ? UINT{DLGC_WANTALLKEYS} : 0U);
}

BOOL CComboBoxXP::PreTranslateMessage(MSG* message) {
    if (message->message == WM_KEYDOWN && IsOnControlBar()) {
        const HWND window = m_hWnd;
        if (message->wParam == VK_RETURN)
            ::SendMessageA(::GetParent(window), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), 0), 0);
        else if (message->wParam == VK_ESCAPE)
            LeaveBar();
        if (CWnd::FromHandlePermanent(window) != this)
            return TRUE; // the command has destroyed the combo box, perhaps this object as well
    }
    return CComboBox::PreTranslateMessage(message);
}

void CComboBoxXP::LeaveBar() {
    if (GetDroppedState()) {
        ShowDropDown(FALSE);
        return;
    }
    if (CFrameWnd* const frame = BarFrame())
        frame->GetActiveFrame()->SetFocus(); // a frame hands it on to its active view
}

void CComboBoxXP::OnSetFocus(CWnd* oldFocus) {
    CComboBox::OnSetFocus(oldFocus);
    RepaintOnBar();
}

void CComboBoxXP::OnKillFocus(CWnd*) {
    Default();
    RepaintOnBar();
}

void CComboBoxXP::RepaintOnBar() {
    if (IsOnControlBar())
        Invalidate(TRUE);
}

bool CComboBoxXP::HasFocusWithin() const {
    const HWND focus = ::GetFocus();
    return focus != nullptr && (focus == m_hWnd || ::GetParent(focus) == m_hWnd);
}

// ---- Mouse --------------------------------------------------------------------------------------

void CComboBoxXP::OnMouseMove(UINT, CPoint) {
    Default();
    m_hover.OnMouseMove(m_hWnd);
}

void CComboBoxXP::OnMouseLeave() {
    if (!tint::IsSkinEnabled(m_hWnd))
        Default(); // the system's own combo box has a hot state too
    m_hover.OnMouseLeave(m_hWnd);
}

// The system may leave the arrow as it is, for instance when the list is closed by a key; here it tells
// whether the list is open.
BOOL CComboBoxXP::OnListOpensOrCloses() {
    Invalidate(FALSE);
    return FALSE; // the parent is told, too
}

// ---- Painting -----------------------------------------------------------------------------------

void CComboBoxXP::OnPaint() {
    if (!tint::IsSkinEnabled(m_hWnd)) {
        Default();
        return;
    }
    CRect client;
    GetClientRect(client);
    CRect arrow = client;
    arrow.left = arrow.right - ::GetSystemMetrics(SM_CXVSCROLL);
    ValidateRect(arrow); // the system leaves it alone then
    Default();
    DrawSkin(client, arrow);
}

void CComboBoxXP::DrawSkin(const CRect& client, const CRect& arrow) {
    const bool onBar = IsOnControlBar();
    const bool enabled = IsWindowEnabled() != FALSE;
    const bool dropped = GetDroppedState() != FALSE;
    const bool lit = m_hover.IsHover() || (onBar && HasFocusWithin());

    UINT flags = CDrawButton::kFlat | CDrawButton::kDownArrow;
    if (!enabled)
        flags |= CDrawButton::kDisabled;
    if (!onBar)
        flags |= CDrawButton::kOutsideToolbar;
    if (lit)
        flags |= CDrawButton::kHot;
    if (dropped)
        flags |= CDrawButton::kHot | CDrawButton::kPressed;

    const tint::HostDC dc(m_hWnd, tint::HostDC::Area::Client);
    CDrawButton(flags, arrow).Draw(dc, 0);

    const int resting = onBar ? COLOR_WINDOW : COLOR_BTNSHADOW;
    CPenSelector pen(dc, ::GetSysColor(lit || dropped ? COLOR_HIGHLIGHT : resting));
    const CBrushSelector hollow(dc, tint::kNoColor);
    ::Rectangle(dc, client.left, client.top, client.right, client.bottom);

    pen.SetColor(::GetSysColor(enabled ? COLOR_WINDOW : COLOR_BTNFACE));
    CRect inner = client;
    inner.DeflateRect(1, 1);
    inner.right -= arrow.Width();
    ::Rectangle(dc, inner.left, inner.top, inner.right, inner.bottom);
    ::MoveToEx(dc, inner.right, inner.top, nullptr); // between text and arrow
    ::LineTo(dc, inner.right, inner.bottom);
}
