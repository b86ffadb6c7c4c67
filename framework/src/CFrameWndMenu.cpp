// SPDX-License-Identifier: MIT
// CFrameWnd: the items of menus, the message line, tool tips, key indicators.
#include <afxext.h>

#include "CmdUIAccess.h"
#include "afxpriv.h"

namespace {

constexpr UINT NoItem = static_cast<UINT>(-1);
constexpr UINT FirstSystemCommand = 0xF000;

} // namespace

// ---- Menu items ---------------------------------------------------------------------------------

/// Updates the item that `item` stands at. A submenu goes by the first command in it.
void CFrameWnd::UpdatePopupItem(CCmdUI& item, CMenu& popup) {
    const auto position = static_cast<int>(item.m_nIndex);
    item.m_nID = popup.GetMenuItemID(position);
    if (item.m_nID == 0) {
        return; // a separator
    }
    if (item.m_nID != NoItem) {
        item.m_pSubMenu = nullptr;
        afx::CmdUIAccess::DoUpdate(item, this,
                                   m_bAutoMenuEnable && item.m_nID < FirstSystemCommand);
        return;
    }
    item.m_pSubMenu = popup.GetSubMenu(position);
    if (item.m_pSubMenu == nullptr) {
        return;
    }
    item.m_nID = item.m_pSubMenu->GetMenuItemID(0);
    if (item.m_nID != 0 && item.m_nID != NoItem) {
        afx::CmdUIAccess::DoUpdate(item, this, FALSE);
    }
}

void CFrameWnd::OnInitMenuPopup(CMenu* pPopupMenu, UINT, BOOL bSysMenu) {
    if (bSysMenu || pPopupMenu == nullptr) {
        return;
    }
    CCmdUI item;
    item.m_pMenu = pPopupMenu;
    UINT count = pPopupMenu->GetMenuItemCount();
    for (item.m_nIndex = 0; item.m_nIndex < count && count != NoItem; ++item.m_nIndex) {
        UpdatePopupItem(item, *pPopupMenu);
        // A handler may put items in the place of its own: those need no update any more.
        const UINT after = pPopupMenu->GetMenuItemCount();
        if (after != count && after != NoItem) {
            item.m_nIndex += after - count;
            count = after;
        }
    }
}

// ---- Message line -------------------------------------------------------------------------------

void CFrameWnd::OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu) {
    const bool closed = (nFlags & 0xFFFF) == 0xFFFF && hSysMenu == nullptr;
    const bool isCommand =
        nItemID != 0 && (nFlags & (MF_SEPARATOR | MF_POPUP)) == 0 && (nFlags & MF_SYSMENU) == 0;
    const UINT message = closed ? AFX_IDS_IDLEMESSAGE : isCommand ? nItemID : 0;
    if (message != m_messageShown && GetMessageBar() != nullptr) {
        SetMessageText(message);
    }
}

CWnd* CFrameWnd::GetMessageBar() {
    return GetDescendantWindow(AFX_IDW_STATUS_BAR, TRUE);
}

void CFrameWnd::SetMessageText(LPCTSTR lpszText) {
    SendMessage(WM_SETMESSAGESTRING, 0, reinterpret_cast<LPARAM>(lpszText));
}

void CFrameWnd::SetMessageText(UINT nID) {
    SendMessage(WM_SETMESSAGESTRING, nID);
}

void CFrameWnd::GetMessageString(UINT nID, CString& rMessage) const {
    CString strings;
    if (!strings.LoadString(nID) || !AfxExtractSubString(rMessage, strings, 0)) {
        rMessage.Empty();
    }
}

LRESULT CFrameWnd::OnSetMessageString(WPARAM wParam, LPARAM lParam) {
    const UINT before = m_messageShown;
    CWnd* const line = GetMessageBar();
    if (line != nullptr) {
        CString text;
        if (lParam != 0) {
            text = reinterpret_cast<LPCTSTR>(lParam);
        } else if (wParam != 0) {
            GetMessageString(static_cast<UINT>(wParam), text);
        }
        line->SetWindowText(text);
    }
    m_messageShown = static_cast<UINT>(wParam);
    return before;
}

void CFrameWnd::OnUpdateKeyIndicator(CCmdUI* item) {
    const int key = item->m_nID == ID_INDICATOR_CAPS  ? VK_CAPITAL
                    : item->m_nID == ID_INDICATOR_NUM ? VK_NUMLOCK
                                                      : VK_SCROLL;
    item->Enable((::GetKeyState(key) & 1) != 0);
}

// ---- Tool tips ----------------------------------------------------------------------------------

BOOL CFrameWnd::OnToolTipText(UINT, NMHDR* header, LRESULT* result) {
    const bool wide = header->code == TTN_NEEDTEXTW;
    const auto flags = wide ? reinterpret_cast<TOOLTIPTEXTW*>(header)->uFlags
                            : reinterpret_cast<TOOLTIPTEXTA*>(header)->uFlags;
    UINT_PTR id = header->idFrom;
    if ((flags & TTF_IDISHWND) != 0) {
        id = static_cast<WORD>(::GetDlgCtrlID(reinterpret_cast<HWND>(header->idFrom)));
    }
    // The tool tip is what the string of the command has behind the newline.
    CString strings;
    CString tip;
    if (id == 0 || !strings.LoadString(static_cast<UINT>(id)) ||
        !AfxExtractSubString(tip, strings, 1)) {
        return FALSE;
    }
    if (wide) {
        auto* const text = reinterpret_cast<TOOLTIPTEXTW*>(header);
        text->lpszText = text->szText;
        const auto size = static_cast<int>(std::size(text->szText));
        if (::MultiByteToWideChar(CP_ACP, 0, tip, -1, text->szText, size) == 0) {
            text->szText[size - 1] = L'\0'; // cut off
        }
    } else {
        auto* const text = reinterpret_cast<TOOLTIPTEXTA*>(header);
        text->lpszText = text->szText;
        ::lstrcpyn(text->szText, tip, static_cast<int>(std::size(text->szText)));
    }
    *result = 0;
    return TRUE;
}
