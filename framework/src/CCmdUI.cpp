// SPDX-License-Identifier: MIT
#include <afxwin.h>

CCmdUI::CCmdUI()
    : m_nID(0), m_nIndex(0), m_pMenu(nullptr), m_pSubMenu(nullptr), m_pOther(nullptr),
      m_enableChanged(false), m_continueRouting(false) {}

void CCmdUI::ContinueRouting() {
    m_continueRouting = true;
}

void CCmdUI::Enable(BOOL bOn) {
    m_enableChanged = true;
    if (m_pMenu != nullptr) {
        // A popup menu is enabled and disabled by the handler itself, if at all.
        if (m_pSubMenu == nullptr) {
            m_pMenu->EnableMenuItem(m_nIndex,
                                    MF_BYPOSITION | (bOn ? MF_ENABLED : MF_DISABLED | MF_GRAYED));
        }
        return;
    }
    if (m_pOther == nullptr) {
        return;
    }
    // A disabled window with the focus would leave the keyboard without a receiver.
    if (!bOn && ::GetFocus() == m_pOther->m_hWnd) {
        ::SendMessage(::GetParent(m_pOther->m_hWnd), WM_NEXTDLGCTL, 0, FALSE);
    }
    m_pOther->EnableWindow(bOn);
}

void CCmdUI::SetCheck(int nCheck) {
    if (m_pMenu != nullptr) {
        if (m_pSubMenu == nullptr) {
            m_pMenu->CheckMenuItem(m_nIndex,
                                   MF_BYPOSITION | (nCheck != 0 ? MF_CHECKED : MF_UNCHECKED));
        }
        return;
    }
    if (m_pOther != nullptr && (m_pOther->SendMessage(WM_GETDLGCODE) & DLGC_BUTTON) != 0) {
        m_pOther->SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck));
    }
}

void CCmdUI::SetRadio(BOOL bOn) {
    SetCheck(bOn ? 1 : 0);
    if (m_pMenu == nullptr || m_pSubMenu != nullptr) {
        return;
    }
    MENUITEMINFO item = {};
    item.cbSize = sizeof(item);
    item.fMask = MIIM_FTYPE;
    if (m_pMenu->GetMenuItemInfo(m_nIndex, &item, TRUE)) {
        item.fType |= MFT_RADIOCHECK;
        m_pMenu->SetMenuItemInfo(m_nIndex, &item, TRUE);
    }
}

void CCmdUI::SetText(LPCTSTR lpszText) {
    if (m_pMenu != nullptr) {
        if (m_pSubMenu == nullptr) {
            MENUITEMINFO item = {};
            item.cbSize = sizeof(item);
            item.fMask = MIIM_STRING;
            item.dwTypeData = const_cast<LPTSTR>(lpszText);
            m_pMenu->SetMenuItemInfo(m_nIndex, &item, TRUE);
        }
        return;
    }
    if (m_pOther == nullptr) {
        return;
    }
    // An unchanged text is not set again, so that nothing flickers on every idle update.
    CString present;
    m_pOther->GetWindowText(present);
    if (present != lpszText) {
        m_pOther->SetWindowText(lpszText);
    }
}

BOOL CCmdUI::DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHandler) {
    if (m_nID == 0 || LOWORD(m_nID) == 0xFFFF) {
        return TRUE;
    }
    m_enableChanged = false;
    const BOOL handled = pTarget->OnCmdMsg(m_nID, CN_UPDATE_COMMAND_UI, this, nullptr);
    if (bDisableIfNoHandler && !m_enableChanged) {
        AFX_CMDHANDLERINFO info = {};
        Enable(pTarget->OnCmdMsg(m_nID, CN_COMMAND, this, &info));
    }
    return handled;
}
