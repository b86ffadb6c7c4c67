// SPDX-License-Identifier: MIT
#pragma once

#include <afxext.h>

#include "menus/SkinnedMenus.h"
#include "menus/ToolBarXP.h"

/// A frame window whose menus are skinned: CSkinnedMenus around the base class is all it takes.
///
/// Create it on the heap; as every frame window it deletes itself with its window.
class CMenusFrame : public CSkinnedMenus<CFrameWnd> {
public:
    /// Shows the window above `owner`.
    BOOL CreateFor(CWnd& owner);

protected:
    afx_msg int OnCreate(LPCREATESTRUCT created);
    afx_msg void OnDestroy();
    afx_msg void OnToggle(UINT id);
    afx_msg void OnUnit(UINT id);
    afx_msg void OnCloseCommand();
    afx_msg void OnOther(UINT id);
    DECLARE_MESSAGE_MAP()

private:
    void SetStates();

    CToolBarXP m_toolbar; ///< its images are what the menus show
    HIMAGELIST m_images = nullptr;
};
