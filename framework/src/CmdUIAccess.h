// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CCmdTarget.h"

namespace afx {

/// Gives the framework's own user-interface items access to the private part of CCmdUI.
struct CmdUIAccess {
    static BOOL DoUpdate(CCmdUI& ui, CCmdTarget* target, BOOL disableIfNoHandler) {
        return ui.DoUpdate(target, disableIfNoHandler);
    }
    /// An override of CCmdUI::Enable says so here.
    static void EnableChanged(CCmdUI& ui) { ui.m_enableChanged = true; }
    static void StartRouting(CCmdUI& ui) { ui.m_continueRouting = false; }
    static bool ContinuesRouting(const CCmdUI& ui) { return ui.m_continueRouting; }
};

} // namespace afx
