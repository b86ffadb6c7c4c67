// SPDX-License-Identifier: MIT
#pragma once

#include "controls/ButtonXP.h"
#include "gallery/GalleryPage.h"
#include "menus/SkinnedMenus.h"

/// Scene "Menus": a context menu, and a frame window with a menu bar.
class CMenusPage : public CSkinnedMenus<CGalleryPage> {
public:
    CMenusPage();

    LPCTSTR GetTitle() const override;
    LPCTSTR GetDescription() const override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;

    afx_msg void OnOpenFrame();
    afx_msg void OnContextMenu(CWnd* window, CPoint point);
    afx_msg void OnChosen(UINT id);
    DECLARE_MESSAGE_MAP()

private:
    CButtonXP m_open;
    HWND m_frame = nullptr; ///< deletes itself; to be checked before use
};
