// SPDX-License-Identifier: MIT
#include <afxext.h>

#include <afxcmn.h>

#include <algorithm>

#include "CmdUIAccess.h"

IMPLEMENT_DYNAMIC(CStatusBar, CControlBar)

BEGIN_MESSAGE_MAP(CStatusBar, CControlBar)
    ON_WM_PAINT()
    ON_WM_SIZE()
    ON_WM_NCHITTEST()
    ON_MESSAGE(SB_SETMINHEIGHT, &CStatusBar::OnSetMinHeight)
    ON_MESSAGE(WM_SETTEXT, &CStatusBar::OnSetText)
    ON_MESSAGE(WM_GETTEXT, &CStatusBar::OnGetText)
    ON_MESSAGE(WM_GETTEXTLENGTH, &CStatusBar::OnGetTextLength)
END_MESSAGE_MAP()

namespace {

// Room at both sides of a pane's text, with the pane's border.
constexpr int TextRoom = 3;
// The control takes no more panes than that.
constexpr int MaxPanes = 255;

/// The part of a pane's style that the control knows.
UINT ControlStyle(UINT style) {
    return style & (SBPS_NOBORDERS | SBPS_POPOUT | SBPS_OWNERDRAW);
}

} // namespace

CStatusBar::CStatusBar() : m_minHeight(0) {
    SetBorders();
}

CStatusBar::~CStatusBar() {
    DestroyWindow();
}

BOOL CStatusBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    return CreateEx(pParentWnd, 0, dwStyle, nID);
}

BOOL CStatusBar::CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, UINT nID) {
    // The control draws its own edges.
    m_dwStyle = dwStyle & CBRS_ALL & ~static_cast<DWORD>(CBRS_BORDER_ANY);
    const INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_BAR_CLASSES};
    ::InitCommonControlsEx(&classes);
    const DWORD style = (dwStyle & ~static_cast<DWORD>(CBRS_ALL)) | CCS_NOPARENTALIGN |
                        CCS_NOMOVEY | CCS_NODIVIDER | CCS_NORESIZE | dwCtrlStyle;
    if (!CWnd::Create(STATUSCLASSNAME, nullptr, style, CRect(0, 0, 0, 0), pParentWnd, nID)) {
        return FALSE;
    }
    SetOwner(pParentWnd);
    return TRUE;
}

// ---- Panes --------------------------------------------------------------------------------------

int CStatusBar::ItemCount() const {
    return static_cast<int>(m_panes.size());
}

bool CStatusBar::Has(int index) const {
    return index >= 0 && index < ItemCount();
}

int CStatusBar::TextWidth(const CString& text) const {
    CClientDC dc(const_cast<CStatusBar*>(this));
    const auto font = reinterpret_cast<HFONT>(::SendMessage(m_hWnd, WM_GETFONT, 0, 0));
    const HGDIOBJ previous = font == nullptr ? nullptr : ::SelectObject(dc.m_hDC, font);
    const int width = static_cast<int>(dc.GetTextExtent(text).cx);
    if (previous != nullptr) {
        ::SelectObject(dc.m_hDC, previous);
    }
    return width;
}

BOOL CStatusBar::SetIndicators(const UINT* lpIDArray, int nIDCount) {
    if (nIDCount < 1 || nIDCount > MaxPanes) {
        return FALSE;
    }
    std::vector<Pane> panes(static_cast<std::size_t>(nIDCount));
    for (std::size_t i = 0; lpIDArray != nullptr && i < panes.size(); ++i) {
        Pane& pane = panes[i];
        pane.id = lpIDArray[i];
        if (pane.id != 0) {
            if (!pane.text.LoadString(pane.id)) {
                return FALSE;
            }
            pane.width = TextWidth(pane.text);
            continue;
        }
        pane.width = ::GetSystemMetrics(SM_CXSCREEN) / 4;
        if (i == 0) {
            pane.style = SBPS_STRETCH | SBPS_NOBORDERS;
        }
    }
    m_panes = std::move(panes);
    LayOutPanes();
    for (int i = 0; i < nIDCount; ++i) {
        ShowPane(i);
    }
    return TRUE;
}

void CStatusBar::LayOutPanes() {
    if (m_panes.empty()) {
        return;
    }
    int borders[3] = {};
    DefWindowProc(SB_GETBORDERS, 0, reinterpret_cast<LPARAM>(borders));
    const int gap = borders[2];
    CRect client;
    GetClientRect(client);
    // There is no gap behind the last pane.
    int room = client.Width() - borders[0] + gap;
    for (const Pane& pane : m_panes) {
        room -= pane.width + 2 * TextRoom + gap;
    }
    std::vector<int> ends;
    int end = borders[0];
    for (const Pane& pane : m_panes) {
        end += pane.width + 2 * TextRoom;
        if ((pane.style & SBPS_STRETCH) != 0 && room > 0) {
            end += room;
            room = 0;
        }
        ends.push_back(end);
        end += gap;
    }
    DefWindowProc(SB_SETPARTS, ends.size(), reinterpret_cast<LPARAM>(ends.data()));
}

void CStatusBar::ShowPane(int index) {
    Pane& pane = m_panes[static_cast<std::size_t>(index)];
    pane.stale = false;
    LPCTSTR const text = (pane.style & SBPS_DISABLED) != 0 ? "" : static_cast<LPCTSTR>(pane.text);
    DefWindowProc(SB_SETTEXT, static_cast<WPARAM>(index) | ControlStyle(pane.style),
                  reinterpret_cast<LPARAM>(text));
}

int CStatusBar::CommandToIndex(UINT nIDFind) const {
    const auto found = std::find_if(m_panes.begin(), m_panes.end(),
                                    [nIDFind](const Pane& pane) { return pane.id == nIDFind; });
    return found == m_panes.end() ? -1 : static_cast<int>(found - m_panes.begin());
}

UINT CStatusBar::GetItemID(int nIndex) const {
    return Has(nIndex) ? m_panes[static_cast<std::size_t>(nIndex)].id : 0;
}

void CStatusBar::GetItemRect(int nIndex, LPRECT lpRect) const {
    if (!::SendMessage(m_hWnd, SB_GETRECT, static_cast<WPARAM>(nIndex),
                       reinterpret_cast<LPARAM>(lpRect))) {
        ::SetRectEmpty(lpRect);
    }
}

void CStatusBar::GetPaneInfo(int nIndex, UINT& nID, UINT& nStyle, int& cxWidth) const {
    const Pane pane = Has(nIndex) ? m_panes[static_cast<std::size_t>(nIndex)] : Pane();
    nID = pane.id;
    nStyle = pane.style;
    cxWidth = pane.width;
}

void CStatusBar::SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth) {
    if (!Has(nIndex)) {
        return;
    }
    Pane& pane = m_panes[static_cast<std::size_t>(nIndex)];
    pane.id = nID;
    if (pane.style != nStyle) {
        pane.style = nStyle;
        ShowPane(nIndex);
    }
    pane.width = cxWidth;
    LayOutPanes();
}

UINT CStatusBar::GetPaneStyle(int nIndex) const {
    return Has(nIndex) ? m_panes[static_cast<std::size_t>(nIndex)].style : 0;
}

void CStatusBar::SetPaneStyle(int nIndex, UINT nStyle) {
    // On every idle update: nothing is drawn again that stays the same.
    if (Has(nIndex) && GetPaneStyle(nIndex) != nStyle) {
        const bool stretch = ((GetPaneStyle(nIndex) ^ nStyle) & SBPS_STRETCH) != 0;
        m_panes[static_cast<std::size_t>(nIndex)].style = nStyle;
        ShowPane(nIndex);
        if (stretch) {
            LayOutPanes();
        }
    }
}

CString CStatusBar::GetPaneText(int nIndex) const {
    return Has(nIndex) ? m_panes[static_cast<std::size_t>(nIndex)].text : CString();
}

BOOL CStatusBar::SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate) {
    if (!Has(nIndex)) {
        return FALSE;
    }
    Pane& pane = m_panes[static_cast<std::size_t>(nIndex)];
    const CString text = lpszNewText == nullptr ? "" : lpszNewText;
    pane.stale = pane.stale || pane.text != text;
    pane.text = text;
    if (pane.stale && bUpdate) {
        ShowPane(nIndex);
    }
    return TRUE;
}

// ---- Layout and painting ------------------------------------------------------------------------

CSize CStatusBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    CClientDC dc(this);
    const auto font = reinterpret_cast<HFONT>(::SendMessage(m_hWnd, WM_GETFONT, 0, 0));
    const HGDIOBJ previous = font == nullptr ? nullptr : ::SelectObject(dc.m_hDC, font);
    TEXTMETRIC metrics = {};
    ::GetTextMetrics(dc.m_hDC, &metrics);
    if (previous != nullptr) {
        ::SelectObject(dc.m_hDC, previous);
    }
    int borders[3] = {};
    DefWindowProc(SB_GETBORDERS, 0, reinterpret_cast<LPARAM>(borders));
    // An edge and a free line above and below the text, and the control's own border.
    constexpr int aroundText = 4;
    const int content = (std::max)(static_cast<int>(metrics.tmHeight) + aroundText, m_minHeight);
    CSize size = CControlBar::CalcFixedLayout(bStretch, bHorz);
    const LONG height = content + 2 * borders[1];
    size.cy = bHorz ? height : (std::max)(size.cy, height);
    return size;
}

void CStatusBar::OnPaint() {
    // The control paints its panes; there are no borders to draw around them.
    Default();
}

void CStatusBar::OnSize(UINT, int, int) {
    Default();
    LayOutPanes();
}

LRESULT CStatusBar::OnNcHitTest(CPoint) {
    const LRESULT hit = Default();
    // A maximized frame cannot be sized by the grip.
    const CWnd* const top = GetTopLevelParent();
    const bool fixed =
        top != nullptr && (top->IsZoomed() || (top->GetStyle() & WS_THICKFRAME) == 0);
    return hit == HTBOTTOMRIGHT && fixed ? HTCLIENT : hit;
}

// ---- Messages -----------------------------------------------------------------------------------

LRESULT CStatusBar::OnSetMinHeight(WPARAM wParam, LPARAM) {
    m_minHeight = static_cast<int>(wParam);
    return Default();
}

LRESULT CStatusBar::OnSetText(WPARAM, LPARAM lParam) {
    // The window's text is the message line.
    const int index = CommandToIndex(0);
    return index == -1 ? FALSE : SetPaneText(index, reinterpret_cast<LPCTSTR>(lParam));
}

LRESULT CStatusBar::OnGetText(WPARAM wParam, LPARAM lParam) {
    auto* const buffer = reinterpret_cast<LPTSTR>(lParam);
    if (buffer == nullptr || wParam == 0) {
        return 0;
    }
    const CString text = GetPaneText(CommandToIndex(0));
    ::lstrcpyn(buffer, text, static_cast<int>((std::min)(wParam, WPARAM{INT_MAX})));
    return ::lstrlen(buffer);
}

LRESULT CStatusBar::OnGetTextLength(WPARAM, LPARAM) {
    return GetPaneText(CommandToIndex(0)).GetLength();
}

void CStatusBar::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CStatusBar::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message == WM_DRAWITEM) {
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return TRUE;
    }
    return CControlBar::OnChildNotify(message, wParam, lParam, pResult);
}

// ---- Update -------------------------------------------------------------------------------------

namespace {

/// One pane while its state is updated.
class PaneItem : public CCmdUI {
public:
    explicit PaneItem(CStatusBar& bar) : m_bar(bar) { m_pOther = &bar; }

    void Enable(BOOL bOn) override {
        afx::CmdUIAccess::EnableChanged(*this);
        Change(SBPS_DISABLED, bOn ? 0 : SBPS_DISABLED);
    }
    void SetCheck(int nCheck) override { Change(SBPS_POPOUT, nCheck != 0 ? SBPS_POPOUT : 0); }
    void SetText(LPCTSTR lpszText) override {
        m_bar.SetPaneText(static_cast<int>(m_nIndex), lpszText);
    }

private:
    void Change(UINT remove, UINT add) {
        const auto index = static_cast<int>(m_nIndex);
        m_bar.SetPaneStyle(index, (m_bar.GetPaneStyle(index) & ~remove) | add);
    }

    CStatusBar& m_bar;
};

} // namespace

void CStatusBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    PaneItem item(*this);
    // By number, not by iterator: a handler may change the panes.
    for (int i = 0; i < ItemCount(); ++i) {
        item.m_nIndex = static_cast<UINT>(i);
        item.m_nID = GetItemID(i);
        if (!CWnd::OnCmdMsg(item.m_nID, CN_UPDATE_COMMAND_UI, &item, nullptr)) {
            // A pane without a handler is not disabled: its text may be set in other ways.
            afx::CmdUIAccess::DoUpdate(item, pTarget, FALSE);
        }
    }
    UpdateDialogControls(pTarget, bDisableIfNoHndler);
}
