// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>

#include "gallery/GalleryPage.h"

/// What the gallery's frame window shows: a list of scenes and the page of the one chosen.
class CGalleryDlg : public CDialog {
public:
    CGalleryDlg();

    /// Creates the window, a child of `frame` in the size that its template gives it.
    BOOL CreateIn(CFrameWnd& frame);

    /// In pixels.
    CSize GetNaturalSize() const { return m_naturalSize; }

    int GetSceneCount() const { return static_cast<int>(m_pages.size()); }
    LPCTSTR GetSceneTitle(int scene) const { return m_pages[scene]->GetTitle(); }
    int GetScene() const { return m_scene; }

    /// @param scene  wraps around at both ends
    void ShowScene(int scene);

    CGalleryPage& GetPage() const { return *m_pages[m_scene]; }

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    // It ends with the frame only.
    void OnOK() override {}
    void OnCancel() override {}

    afx_msg void OnSceneChosen();
    DECLARE_MESSAGE_MAP()

private:
    BOOL CreatePages();

    std::vector<std::unique_ptr<CGalleryPage>> m_pages; ///< in the order of the list
    int m_scene = 0;
    CSize m_naturalSize;
    CListBox m_scenes;
    CStatic m_title;
    CFont m_titleFont;
};
