// SPDX-License-Identifier: MIT
#pragma once

#include <afxext.h>

#include <optional>

#include "automation/SystemColors.h"
#include "controls/ComboBoxXP.h"
#include "gallery/GalleryDlg.h"
#include "menus/SkinnedMenus.h"
#include "menus/StatusBarXP.h"
#include "menus/ToolBarXP.h"

/// The gallery window: skinned menus, a toolbar that docks at any side, a status bar, and the scenes.
///
/// Create it on the heap; as every frame window it deletes itself with its window.
class CGalleryFrame : public CSkinnedMenus<CFrameWnd> {
public:
    /// Creates the window with its bars, hidden, as large as what it shows.
    BOOL CreateGallery();

    /// Sets the system colours until the window ends or another scheme is chosen.
    /// @param scheme  its position in automation::ColorSchemes()
    void ChooseScheme(int scheme);

    /// The frame keeps the size of its contents: it grows and shrinks with the bars around them.
    void RecalcLayout(BOOL notify = TRUE) override;

    /// Commands go to the page that is shown, then to the frame.
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handler) override;

protected:
    BOOL OnCreateClient(LPCREATESTRUCT created, CCreateContext* context) override;

    afx_msg int OnCreate(LPCREATESTRUCT created);

    afx_msg void OnPreviousScene();
    afx_msg void OnNextScene();
    afx_msg void OnScene(UINT id);
    afx_msg void OnUpdateScene(CCmdUI* item);
    afx_msg void OnSceneCombo();
    afx_msg void OnUpdateSceneCombo(CCmdUI* item);
    afx_msg void OnUpdateScenePane(CCmdUI* item);

    afx_msg void OnCopyPicture();

    afx_msg void OnSkin();
    afx_msg void OnUpdateSkin(CCmdUI* item);
    afx_msg void OnNextScheme();
    afx_msg void OnSchemeMenu();
    afx_msg void OnScheme(UINT id);
    afx_msg void OnUpdateScheme(CCmdUI* item);
    afx_msg void OnUpdateSchemePane(CCmdUI* item);
    afx_msg void OnDock(UINT id);
    afx_msg void OnUpdateDock(CCmdUI* item);

    afx_msg void OnAbout();
    DECLARE_MESSAGE_MAP()

private:
    BOOL CreateToolBar();
    BOOL CreateStatusBar();
    void AddSceneItems();

    CGalleryDlg m_contents;
    CToolBarXP m_toolBar;
    CComboBoxXP m_sceneCombo; ///< on the toolbar
    CStatusBarXP m_statusBar;
    int m_scheme = 0;
    std::optional<automation::SystemColorGuard> m_colors; ///< none: the user's own
};
