// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CCmdTarget.h"

namespace afx {

/// Lets the framework's own user-interface items at the private part of CCmdUI.
struct CmdUIAccess {
    static BOOL DoUpdate(CCmdUI& ui, CCmdTarget* target, BOOL disableIfNoHandler) {
        return ui.DoUpdate(target, disableIfNoHandler);
    }
    static void SetItemCount(CCmdUI& ui, UINT count) { ui.m_itemCount = count; }
    static UINT ItemCount(const CCmdUI& ui) { return ui.m_itemCount; }
    static void SetParentMenu(CCmdUI& ui, CMenu* menu) { ui.m_pParentMenu = menu; }
    /// An override of CCmdUI::Enable says so here.
    static void EnableChanged(CCmdUI& ui) { ui.m_enableChanged = true; }
    static void StartRouting(CCmdUI& ui) { ui.m_continueRouting = false; }
    static bool ContinuesRouting(const CCmdUI& ui) { return ui.m_continueRouting; }
};

} // namespace afx
