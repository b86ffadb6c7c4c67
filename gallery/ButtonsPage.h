// SPDX-License-Identifier: MIT
#pragma once

#include "controls/ButtonXP.h"
#include "gallery/GalleryPage.h"

/// Scene "Buttons": skinned push buttons beside the system's own.
class CButtonsPage : public CGalleryPage {
public:
    CButtonsPage();

    LPCTSTR GetTitle() const override;
    LPCTSTR GetDescription() const override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    afx_msg void OnSubjectClicked();
    afx_msg void OnMakeDefault();
    afx_msg void OnMakeDisabled();
    DECLARE_MESSAGE_MAP()

private:
    void ShowClicks();

    // Each of these takes over a plain push button of the dialog template.
    CButtonXP m_subject;
    CButtonXP m_ok;
    CButtonXP m_cancel;
    CButtonXP m_apply;

    int m_clicks = 0;
};
