// SPDX-License-Identifier: MIT
#include "decorations/HyperLink.h"

#include <windowsx.h>
// Macros of windowsx.h, and members here.
#undef SubclassWindow
#undef CopyRgn

#include "decorations/LinkPaint.h"

BEGIN_MESSAGE_MAP(CHyperLink, CStatic)
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_SETCURSOR()
    ON_WM_MOUSEMOVE()
    ON_WM_TIMER()
    ON_CONTROL_REFLECT(STN_CLICKED, &CHyperLink::OnClicked)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_MESSAGE(WM_SETTEXT, &CHyperLink::OnSetText)
    ON_WM_GETDLGCODE()
    ON_WM_KEYDOWN()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

// ---- Set-up -------------------------------------------------------------------------------------

void CHyperLink::PreSubclassWindow() {
    ModifyStyle(0, SS_NOTIFY); // clicks are reported, and the mouse is seen at all
    CString text;
    GetWindowText(text);
    if (m_url.IsEmpty())
        m_url = text;
    if (text.IsEmpty())
        SetWindowText(m_url);

    m_overLink = FALSE;
    CreateFonts();
    PositionWindow();
    if (m_linkCursor == nullptr)
        SetLinkCursor(nullptr);
    // A fresh link keeps the dialog's own font until the mouse first enters.
    SetUnderline(kUnderlineHover);
    CreateToolTip();
    CStatic::PreSubclassWindow();
}

void CHyperLink::CreateFonts() {
    auto font = reinterpret_cast<HGDIOBJ>(SendMessage(WM_GETFONT));
    if (font == nullptr)
        font = ::GetStockObject(DEFAULT_GUI_FONT);
    if (font == nullptr)
        font = ::GetStockObject(ANSI_VAR_FONT);
    LOGFONT description = {};
    ::GetObject(font, sizeof description, &description);

    // The object may have been attached to another dialog's control before.
    m_normalFont.DeleteObject();
    m_underlineFont.DeleteObject();
    m_normalFont.CreateFontIndirect(&description);
    description.lfUnderline = TRUE;
    m_underlineFont.CreateFontIndirect(&description);
}

void CHyperLink::CreateToolTip() {
    if (m_toolTip.m_hWnd != nullptr)
        m_toolTip.DestroyWindow();
    CRect client;
    GetClientRect(client);
    // An "&" in a target is no mnemonic.
    if (m_toolTip.Create(this, TTS_NOPREFIX))
        m_toolTip.AddTool(this, m_url, client, kToolId);
}

/// The hand of the system's help program: the only one that every Windows since the first has.
CHyperLink::OwnCursor CHyperLink::LoadHand() {
    char path[MAX_PATH];
    const UINT length = ::GetWindowsDirectoryA(path, sizeof path);
    if (length == 0 || length >= sizeof path)
        return nullptr;
    // As data: nothing of the program runs.
    const HMODULE module =
        ::LoadLibraryExA(CString(path) + "\\winhlp32.exe", nullptr, LOAD_LIBRARY_AS_DATAFILE);
    if (module == nullptr)
        return nullptr;
    const HCURSOR hand = ::LoadCursorA(module, MAKEINTRESOURCEA(106));
    OwnCursor copy(hand == nullptr ? nullptr : ::CopyIcon(hand)); // outlives the module
    ::FreeLibrary(module);
    return copy;
}

BOOL CHyperLink::DestroyWindow() {
    if (m_hWnd != nullptr)
        KillTimer(kTimerId);
    return CStatic::DestroyWindow();
}

BOOL CHyperLink::PreTranslateMessage(MSG* message) {
    if (m_toolTip.m_hWnd != nullptr)
        m_toolTip.RelayEvent(message);
    return CStatic::PreTranslateMessage(message);
}

// ---- What it is ---------------------------------------------------------------------------------

void CHyperLink::SetURL(CString url) {
    m_url = url;
    if (m_hWnd == nullptr)
        return;
    PositionWindow();
    if (m_toolTip.m_hWnd != nullptr)
        m_toolTip.UpdateTipText(m_url, this, kToolId);
}

void CHyperLink::SetColours(COLORREF link, COLORREF visited, COLORREF hover) {
    m_linkColour = link;
    m_visitedColour = visited;
    m_hoverColour = hover == kHighlight ? ::GetSysColor(COLOR_HIGHLIGHT) : hover;
    RedrawIfThere();
}

void CHyperLink::SetVisited(BOOL visited) {
    m_visited = visited;
    RedrawIfThere();
}

void CHyperLink::SetLinkCursor(HCURSOR cursor) {
    if (cursor != nullptr && cursor == m_hand.get())
        return; // to load another one would end it
    m_hand.reset();
    if (cursor == nullptr) {
        m_hand = LoadHand();
        cursor = m_hand.get();
    }
    m_linkCursor = cursor;
}

void CHyperLink::SetUnderline(int mode) {
    if (mode == m_underlineMode)
        return;
    m_underlineMode = mode;
    if (m_hWnd == nullptr)
        return;
    SetFont(mode == kUnderlineAlways ? &m_underlineFont : &m_normalFont);
    Invalidate();
}

void CHyperLink::SetAutoSize(BOOL adjust) {
    m_adjustToFit = adjust;
    PositionWindow();
}

void CHyperLink::RedrawIfThere() {
    if (m_hWnd != nullptr)
        Invalidate();
}

// ---- Size ---------------------------------------------------------------------------------------

void CHyperLink::PositionWindow() {
    if (m_hWnd == nullptr || !m_adjustToFit)
        return;
    CRect window;
    CRect client;
    GetWindowRect(window);
    GetClientRect(client);
    if (CWnd* const parent = GetParent())
        parent->ScreenToClient(window);

    CString text;
    GetWindowText(text);
    CSize extent;
    {
        CClientDC dc(this);
        CFont* const previous = dc.SelectObject(&m_underlineFont);
        extent = dc.GetTextExtent(text, text.GetLength());
        dc.SelectObject(previous);
    }
    extent += window.Size() - client.Size(); // its frame

    const DWORD style = GetStyle();
    if ((style & SS_CENTERIMAGE) != 0)
        window.DeflateRect(0, (window.Height() - extent.cy) / 2);
    else
        window.bottom = window.top + extent.cy;

    const DWORD alignment = style & SS_TYPEMASK;
    if (alignment == SS_CENTER)
        window.DeflateRect((window.Width() - extent.cx) / 2, 0);
    else if (alignment == SS_RIGHT)
        window.left = window.right - extent.cx;
    else
        window.right = window.left + extent.cx;
    SetWindowPos(nullptr, window.left, window.top, window.Width(), window.Height(), SWP_NOZORDER);

    if (m_toolTip.m_hWnd != nullptr) {
        GetClientRect(client);
        m_toolTip.SetToolRect(this, kToolId, client);
    }
}

// ---- Mouse --------------------------------------------------------------------------------------

void CHyperLink::OnMouseMove(UINT, CPoint) {
    if (!m_overLink) {
        m_overLink = TRUE;
        if (m_underlineMode == kUnderlineHover)
            SetFont(&m_underlineFont);
        Invalidate();
        SetTimer(kTimerId, 100, nullptr);
    }
    Default();
}

void CHyperLink::OnTimer(UINT_PTR) {
    const DWORD position = ::GetMessagePos();
    CPoint point(GET_X_LPARAM(position), GET_Y_LPARAM(position));
    ScreenToClient(&point);
    CRect client;
    GetClientRect(client);
    if (!client.PtInRect(point)) {
        m_overLink = FALSE;
        KillTimer(kTimerId);
        if (m_underlineMode != kUnderlineAlways)
            SetFont(&m_normalFont);
        client.bottom += 10; // the strip below the text too, on purpose
        InvalidateRect(client);
    }
    Default();
}

BOOL CHyperLink::OnSetCursor(CWnd*, UINT, UINT) {
    if (m_linkCursor == nullptr)
        return FALSE;
    ::SetCursor(m_linkCursor);
    return TRUE;
}

// ---- Keyboard -----------------------------------------------------------------------------------

namespace {

bool Opens(WPARAM key) {
    return key == VK_RETURN || key == VK_SPACE;
}

} // namespace

UINT CHyperLink::OnGetDlgCode() {
    const auto code = static_cast<UINT>(Default());
    // The dialog keeps Enter for its default button, and looks for a mnemonic in a blank.
    const auto* const message = reinterpret_cast<const MSG*>(GetCurrentMessage()->lParam);
    const bool ours = HasTabStop() && message != nullptr &&
                      (message->message == WM_KEYDOWN || message->message == WM_CHAR) &&
                      Opens(message->wParam);
    return ours ? code | DLGC_WANTMESSAGE : code;
}

void CHyperLink::OnKeyDown(UINT key, UINT, UINT flags) {
    if (!HasTabStop() || !Opens(key))
        Default();
    else if ((flags & KF_REPEAT) == 0) // a key that is held down opens one target, not dozens
        OnClicked();
}

void CHyperLink::OnSetFocus(CWnd*) {
    Default();
    Invalidate();
}

void CHyperLink::OnKillFocus(CWnd*) {
    Default();
    Invalidate();
}

// ---- Painting -----------------------------------------------------------------------------------

HBRUSH CHyperLink::CtlColor(CDC* dc, UINT) {
    dc->SetTextColor(m_overLink ? m_hoverColour : m_visited ? m_visitedColour : m_linkColour);
    dc->SetBkMode(TRANSPARENT);
    return static_cast<HBRUSH>(::GetStockObject(NULL_BRUSH));
}

BOOL CHyperLink::OnEraseBkgnd(CDC*) {
    return TRUE;
}

// The text is drawn by the static control as ever, but on a fresh background: it has none of its own,
// and in a new colour or without its underline the text does not cover what was there.
void CHyperLink::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(client);
    tint::PaintOnParent(*this, dc, client, [&](CDC& target) {
        DefWindowProc(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(target.m_hDC), PRF_CLIENT);
        if (HasTabStop() && ::GetFocus() == m_hWnd) {
            target.SetTextColor(RGB(0, 0, 0)); // the dots invert what is below them
            target.SetBkColor(RGB(255, 255, 255));
            target.DrawFocusRect(client);
        }
    });
}

// The static control paints a new text at once, over the old one.
LRESULT CHyperLink::OnSetText(WPARAM, LPARAM) {
    const LRESULT result = Default();
    Invalidate();
    return result;
}
