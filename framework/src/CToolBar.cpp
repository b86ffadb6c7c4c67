// SPDX-License-Identifier: MIT
// CToolBar: creation, buttons and messages.
#include <afxext.h>

#include <afxcmn.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CToolBar, CControlBar)

BEGIN_MESSAGE_MAP(CToolBar, CControlBar)
    ON_WM_PAINT()
    ON_WM_NCPAINT()
    ON_WM_NCCALCSIZE()
    ON_WM_NCHITTEST()
    ON_WM_SYSCOLORCHANGE()
END_MESSAGE_MAP()

namespace {

constexpr int DefaultSeparatorWidth = 8;

/// The state word of a button has TBSTATE_ENABLED turned round, so that 0 is a plain button.
UINT StyleOf(const TBBUTTON& button) {
    return static_cast<UINT>(MAKELONG(button.fsStyle, button.fsState ^ TBSTATE_ENABLED));
}

void SetStyleOf(TBBUTTON& button, UINT style) {
    button.fsStyle = static_cast<BYTE>(LOWORD(style));
    button.fsState = static_cast<BYTE>(HIWORD(style) ^ TBSTATE_ENABLED);
}

TBBUTTON NewButton(UINT id, int image) {
    TBBUTTON button = {};
    button.idCommand = static_cast<int>(id);
    button.iString = -1;
    if (id == ID_SEPARATOR) {
        button.fsStyle = TBSTYLE_SEP;
        button.iBitmap = DefaultSeparatorWidth;
    } else {
        button.fsStyle = TBSTYLE_BUTTON;
        button.fsState = TBSTATE_ENABLED;
        button.iBitmap = image;
    }
    return button;
}

} // namespace

CToolBar::CToolBar() : m_buttonSize(24, 22), m_imagesModule(nullptr), m_imagesId(nullptr) {}

CToolBar::~CToolBar() {
    // The control asks its bitmap to the last.
    DestroyWindow();
}

BOOL CToolBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    return CreateEx(pParentWnd, 0, dwStyle, GetBorders(), nID);
}

BOOL CToolBar::CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, CRect rcBorders,
                        UINT nID) {
    SetBorders(rcBorders);
    m_dwStyle = dwStyle & CBRS_ALL;
    const INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_BAR_CLASSES};
    ::InitCommonControlsEx(&classes);
    // The bar is placed by its frame, not by itself.
    const DWORD style = (dwStyle & ~static_cast<DWORD>(CBRS_ALL)) | CCS_NOPARENTALIGN |
                        CCS_NOMOVEY | CCS_NODIVIDER | CCS_NORESIZE | dwCtrlStyle;
    if (!CWnd::Create(TOOLBARCLASSNAME, nullptr, style, CRect(0, 0, 0, 0), pParentWnd, nID)) {
        return FALSE;
    }
    SetOwner(pParentWnd);
    m_images.DeleteObject(); // those of a control that the bar had before
    m_imagesModule = nullptr;
    DefWindowProc(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    SetSizes(m_buttonSize, m_sizeImage);
    return TRUE;
}

void CToolBar::SetSizes(SIZE sizeButton, SIZE sizeImage) {
    m_buttonSize = sizeButton;
    m_sizeImage = sizeImage;
    if (m_hWnd != nullptr) {
        DefWindowProc(TB_SETBITMAPSIZE, 0, MAKELONG(sizeImage.cx, sizeImage.cy));
        DefWindowProc(TB_SETBUTTONSIZE, 0, MAKELONG(sizeButton.cx, sizeButton.cy));
        Invalidate();
    }
    m_bDelayedButtonLayout = TRUE;
}

// ---- Buttons ------------------------------------------------------------------------------------

BOOL CToolBar::SetButtons(const UINT* lpIDArray, int nIDCount) {
    ASSERT(nIDCount >= 0);
    for (int i = GetCount(); i-- > 0;) {
        DefWindowProc(TB_DELETEBUTTON, static_cast<WPARAM>(i), 0);
    }
    int image = 0;
    for (int i = 0; i < nIDCount; ++i) {
        TBBUTTON button = {};
        if (lpIDArray != nullptr) {
            button = NewButton(lpIDArray[i], image);
            image += lpIDArray[i] == ID_SEPARATOR ? 0 : 1;
        } else {
            button.fsState = TBSTATE_ENABLED;
            button.iString = -1;
        }
        if (!DefWindowProc(TB_INSERTBUTTON, static_cast<WPARAM>(i),
                           reinterpret_cast<LPARAM>(&button))) {
            return FALSE;
        }
    }
    m_bDelayedButtonLayout = TRUE;
    return TRUE;
}

int CToolBar::ItemCount() const {
    return m_hWnd == nullptr ? 0 : static_cast<int>(::SendMessage(m_hWnd, TB_BUTTONCOUNT, 0, 0));
}

bool CToolBar::GetButton(int index, TBBUTTON& button) const {
    button = {};
    return index >= 0 && ::SendMessage(m_hWnd, TB_GETBUTTON, static_cast<WPARAM>(index),
                                       reinterpret_cast<LPARAM>(&button)) != 0;
}

void CToolBar::SetButton(int index, const TBBUTTON& button) {
    TBBUTTON present = {};
    if (!GetButton(index, present)) {
        return;
    }
    const bool sameLook = present.fsState == button.fsState && present.fsStyle == button.fsStyle;
    if (sameLook && present.iBitmap == button.iBitmap && present.idCommand == button.idCommand) {
        return;
    }
    TBBUTTONINFO info = {};
    info.cbSize = sizeof(info);
    info.dwMask = TBIF_BYINDEX | TBIF_COMMAND | TBIF_IMAGE | TBIF_STATE | TBIF_STYLE;
    info.idCommand = button.idCommand;
    info.iImage = button.iBitmap;
    info.fsState = button.fsState;
    info.fsStyle = button.fsStyle;
    ::SendMessage(m_hWnd, TB_SETBUTTONINFO, static_cast<WPARAM>(index),
                  reinterpret_cast<LPARAM>(&info));
    constexpr BYTE placing = TBSTATE_HIDDEN | TBSTATE_WRAP;
    if (((present.fsState ^ button.fsState) & placing) != 0 || present.fsStyle != button.fsStyle ||
        present.iBitmap != button.iBitmap) {
        m_bDelayedButtonLayout = TRUE;
    }
    CRect rect;
    ::SendMessage(m_hWnd, TB_GETITEMRECT, static_cast<WPARAM>(index),
                  reinterpret_cast<LPARAM>(static_cast<LPRECT>(rect)));
    InvalidateRect(rect);
}

int CToolBar::CommandToIndex(UINT nIDFind) const {
    return static_cast<int>(::SendMessage(m_hWnd, TB_COMMANDTOINDEX, nIDFind, 0));
}

UINT CToolBar::GetItemID(int nIndex) const {
    TBBUTTON button;
    GetButton(nIndex, button);
    return static_cast<UINT>(button.idCommand);
}

void CToolBar::GetItemRect(int nIndex, LPRECT lpRect) const {
    // Being asked where a button is makes it be somewhere.
    if (m_bDelayedButtonLayout) {
        const_cast<CToolBar*>(this)->Layout();
    }
    TBBUTTON button;
    const bool shown = GetButton(nIndex, button) && (button.fsState & TBSTATE_HIDDEN) == 0;
    if (!shown || !::SendMessage(m_hWnd, TB_GETITEMRECT, static_cast<WPARAM>(nIndex),
                                 reinterpret_cast<LPARAM>(lpRect))) {
        ::SetRectEmpty(lpRect);
    }
}

void CToolBar::GetButtonInfo(int nIndex, UINT& nID, UINT& nStyle, int& iImage) const {
    TBBUTTON button;
    GetButton(nIndex, button);
    nID = static_cast<UINT>(button.idCommand);
    nStyle = StyleOf(button);
    iImage = button.iBitmap;
}

void CToolBar::SetButtonInfo(int nIndex, UINT nID, UINT nStyle, int iImage) {
    TBBUTTON button;
    if (GetButton(nIndex, button)) {
        button.idCommand = static_cast<int>(nID);
        button.iBitmap = iImage;
        SetStyleOf(button, nStyle);
        SetButton(nIndex, button);
    }
}

UINT CToolBar::GetButtonStyle(int nIndex) const {
    TBBUTTON button;
    GetButton(nIndex, button);
    return StyleOf(button);
}

void CToolBar::SetButtonStyle(int nIndex, UINT nStyle) {
    TBBUTTON button;
    if (GetButton(nIndex, button)) {
        SetStyleOf(button, nStyle);
        SetButton(nIndex, button);
    }
}

// ---- Messages -----------------------------------------------------------------------------------

void CToolBar::OnPaint() {
    if (m_bDelayedButtonLayout) {
        Layout();
    }
    Default();
}

void CToolBar::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS* lpncsp) {
    Default();
    CRect rect = lpncsp->rgrc[0];
    CalcInsideRect(rect, (m_dwStyle & CBRS_ORIENT_HORZ) != 0);
    rect.right = (std::max)(rect.right, rect.left);
    rect.bottom = (std::max)(rect.bottom, rect.top);
    lpncsp->rgrc[0] = rect;
}

LRESULT CToolBar::OnNcHitTest(CPoint) {
    // Borders and gripper are where the bar is taken hold of: their clicks are to come, too.
    return HTCLIENT;
}

void CToolBar::OnNcPaint() {
    CWindowDC dc(this);
    CRect client;
    GetClientRect(client);
    ClientToScreen(client);
    CRect window;
    GetWindowRect(window);
    client.OffsetRect(-window.left, -window.top);
    window.OffsetRect(-window.left, -window.top);
    dc.ExcludeClipRect(client);
    CRect inside = window;
    DrawBorders(&dc, inside);
    dc.IntersectClipRect(inside);
    SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC));
    DrawGripper(&dc, inside);
}
