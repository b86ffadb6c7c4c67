// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include "decorations/HyperLink.h"
#include "gallery/GalleryPage.h"

/// Scene "Links": hyperlinks in each of their states, and one that serves as a button.
class CLinksPage : public CGalleryPage {
public:
    CLinksPage();

    LPCTSTR GetTitle() const override;
    LPCTSTR GetDescription() const override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    afx_msg void OnButtonLink();
    DECLARE_MESSAGE_MAP()

private:
    void ShowClicks();

    // Each of these takes over a text of the dialog template.
    CHyperLink m_fresh;
    CHyperLink m_visited;
    CHyperLink m_never;
    CHyperLink m_always;
    CHyperLink m_tab;
    CHyperLink m_hover;
    CHyperLink m_button;
    std::array<CHyperLink, 3> m_aligned;

    int m_clicks = 0;
};
