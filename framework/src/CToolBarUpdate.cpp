// SPDX-License-Identifier: MIT
// CToolBar: the state of the buttons, and their tool tips.
#include <afxext.h>

#include "CmdUIAccess.h"

namespace {

/// One button while its state is updated.
class ButtonItem : public CCmdUI {
public:
    explicit ButtonItem(CToolBar& bar) : m_bar(bar) { m_pOther = &bar; }

    void Enable(BOOL bOn) override {
        afx::CmdUIAccess::EnableChanged(*this);
        Change(TBBS_DISABLED | (bOn ? 0 : TBBS_PRESSED), bOn ? 0 : TBBS_DISABLED);
    }
    void SetCheck(int nCheck) override {
        const UINT check = nCheck == 0 ? 0 : nCheck == 1 ? TBBS_CHECKED : TBBS_INDETERMINATE;
        Change(TBBS_CHECKED | TBBS_INDETERMINATE, TBBS_CHECKBOX | check);
    }
    // A button's text is not the item's.
    void SetText(LPCTSTR) override {}

private:
    void Change(UINT remove, UINT add) {
        const auto index = static_cast<int>(m_nIndex);
        m_bar.SetButtonStyle(index, (m_bar.GetButtonStyle(index) & ~remove) | add);
    }

    CToolBar& m_bar;
};

} // namespace

void CToolBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    const int count = GetCount();
    ButtonItem item(*this);
    for (int i = 0; i < count; ++i) {
        TBBUTTON button;
        if (!GetButton(i, button) || (button.fsStyle & TBSTYLE_SEP) != 0) {
            continue;
        }
        item.m_nIndex = static_cast<UINT>(i);
        item.m_nID = static_cast<UINT>(button.idCommand);
        // The bar itself comes first: a derived class may know its own buttons.
        if (!CWnd::OnCmdMsg(item.m_nID, CN_UPDATE_COMMAND_UI, &item, nullptr)) {
            afx::CmdUIAccess::DoUpdate(item, pTarget, bDisableIfNoHndler);
        }
    }
    UpdateDialogControls(pTarget, bDisableIfNoHndler);
}

INT_PTR CToolBar::OnToolHitTest(CPoint point, TOOLINFO* pTI) const {
    const INT_PTR child = CWnd::OnToolHitTest(point, pTI);
    if (child != -1) {
        return child;
    }
    const auto index =
        static_cast<int>(::SendMessage(m_hWnd, TB_HITTEST, 0, reinterpret_cast<LPARAM>(&point)));
    TBBUTTON button;
    const bool hit = index >= 0 && GetButton(index, button) && (button.fsStyle & TBSTYLE_SEP) == 0;
    if (!hit) {
        return -1;
    }
    if (pTI != nullptr && pTI->cbSize >= TTTOOLINFOA_V1_SIZE) {
        GetItemRect(index, &pTI->rect);
        pTI->hwnd = m_hWnd;
        pTI->uId = static_cast<UINT_PTR>(button.idCommand);
        pTI->lpszText = LPSTR_TEXTCALLBACK;
    }
    return button.idCommand;
}
