// SPDX-License-Identifier: MIT
/// @file
/// CCmdTarget: everything that can handle commands; CCmdUI: one item of the user interface.
#pragma once

#include "afx/CObject.h"
#include "afx/MessageMap.h"

class CMenu;
class CWnd;

namespace afx {
struct CmdUIAccess;
}

/// Command code of a command itself; also the code of BN_CLICKED.
#define CN_COMMAND 0
/// Command code of a request to update the item of a command.
#define CN_UPDATE_COMMAND_UI (static_cast<int>(-1))

/// What CCmdTarget::OnCmdMsg is given for WM_NOTIFY.
struct AFX_NOTIFY {
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

/// Who would handle a command, see CCmdTarget::OnCmdMsg.
struct AFX_CMDHANDLERINFO {
    CCmdTarget* pTarget;
    /// Always null here: a map line holds a thunk, not a pointer to the member.
    void (AFX_MSG_CALL CCmdTarget::*pmf)();
};

/// Base of the classes with a message map: applications, threads, windows.
class CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)

public:
    CCmdTarget();
    ~CCmdTarget() override;

    /// Offers a command, a notification or an update request to the object's message map. Override
    /// it to route commands to further objects.
    /// @param nCode  CN_COMMAND, CN_UPDATE_COMMAND_UI, a notification code of WM_COMMAND, or
    ///               MAKELONG(code, WM_NOTIFY). What comes back to a control has afx::ReflectFlag.
    /// @param pExtra the CCmdUI of an update request, the AFX_NOTIFY of WM_NOTIFY, else null.
    /// @param pHandlerInfo if not null, it is filled in and no handler is called.
    /// @return nonzero when a handler was found and did not pass the message on.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    DECLARE_MESSAGE_MAP()
};

/// One item of the user interface (menu item, bar button, control) while its state is updated.
class CCmdUI {
public:
    CCmdUI();
    virtual ~CCmdUI() = default;

    /// Lets the search for an update handler go on as if this one did not exist.
    void ContinueRouting();

    virtual void Enable(BOOL bOn = TRUE);
    /// @param nCheck 0 unchecked, 1 checked, 2 indeterminate.
    virtual void SetCheck(int nCheck = 1);
    /// As SetCheck, with the mark of a group of which one is chosen.
    virtual void SetRadio(BOOL bOn = TRUE);
    virtual void SetText(LPCTSTR lpszText);

    /// Identifier of the command.
    UINT m_nID;
    /// Position of the item in its menu or bar.
    UINT m_nIndex;
    /// The menu the item stands in; null for other items.
    CMenu* m_pMenu;
    /// The popup menu that is the item itself; its commands stand in it, not here.
    CMenu* m_pSubMenu;
    /// The window the item is or stands in; null for menu items.
    CWnd* m_pOther;

private:
    friend struct afx::CmdUIAccess;
    CCmdUI(const CCmdUI&) = delete;
    CCmdUI& operator=(const CCmdUI&) = delete;

    /// Updates the item through the target's handlers. An item without an update handler is
    /// enabled when its command has a handler and, if asked for, disabled when it has none.
    BOOL DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHandler);

    bool m_enableChanged;
    bool m_continueRouting;
};
