// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>

#include "controls/ButtonXP.h"
#include "gallery/GalleryPage.h"

/// The gallery window: a list of scenes and the page of the one chosen.
class CGalleryDlg : public CDialog {
public:
    CGalleryDlg();

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    afx_msg void OnSceneChosen();
    DECLARE_MESSAGE_MAP()

private:
    void ShowPage(CGalleryPage& page);

    std::vector<std::unique_ptr<CGalleryPage>> m_pages; ///< in the order of the list
    CGalleryPage* m_shown = nullptr;
    CListBox m_scenes;
    CStatic m_title;
    CButtonXP m_close;
    CFont m_titleFont;
};
