// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include "menus/MenuXP.h"

namespace tint {

/// What CSkinnedMenus does for its window, in a form that is no template.
class MenuSkin {
public:
    MenuSkin() = default;
    ~MenuSkin();

    MenuSkin(const MenuSkin&) = delete;
    MenuSkin& operator=(const MenuSkin&) = delete;

    /// Sees each message before the window does.
    /// @param result  the answer, when there is one
    /// @return true when the message is answered
    bool OnMessage(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);

    /// Sees each message after the window, which may not exist any more.
    static void AfterMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

private:
    void Install(CWnd& window);
    void Uninstall();
    void FollowSwitches(CWnd& window);

    HWND m_window = nullptr; ///< the window that is skinned; null: none is
    bool m_skinned = false;  ///< whether its menus are, as both switches stood when last looked at
};

} // namespace tint

/// Skins every menu of a window: its menu bar, the popups that open from it, context menus it tracks
/// and its system menu.  Write it around the base class, in the class and in its message map:
///
///     class CMainFrame : public CSkinnedMenus<CFrameWnd> { ... };
///
///     BEGIN_MESSAGE_MAP(CMainFrame, CSkinnedMenus<CFrameWnd>)
///
/// The base may be a frame window (SDI or MDI), a dialog, or any other window.  Handlers of the window
/// work as ever; items that WM_INITMENUPOPUP adds or changes are skinned too.  Menus of a child window
/// are framed while its top-level window is skinned as well.
///
/// tint::EnableSkin (draw/Skin.h) turns the skin of the window's menus off and on.  Where the user asks
/// for high contrast they are the system's own as well: tints of its colours would not have it.
///
/// The skin comes with the window's first message and goes with its last.  When the last such window
/// of the process has gone, the hook cannot be had again (CMenuXP::InstallHook): a program whose main
/// window has plain menus calls InstallHook() in its InitInstance.
template <class Base>
class CSkinnedMenus : public Base {
public:
    using Base::Base;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        const HWND window = this->m_hWnd;
        LRESULT result = 0;
        if (m_skin.OnMessage(*this, message, wParam, lParam, result))
            return result;
        result = Base::WindowProc(message, wParam, lParam);
        // This object may be gone by now.
        tint::MenuSkin::AfterMessage(window, message, wParam, lParam);
        return result;
    }

private:
    tint::MenuSkin m_skin;
};
