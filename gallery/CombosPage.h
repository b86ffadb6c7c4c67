// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include "controls/ComboBoxXP.h"
#include "gallery/GalleryPage.h"

/// Scene "Combo boxes": skinned combo boxes beside the system's own.
class CCombosPage : public CGalleryPage {
public:
    CCombosPage();

    LPCTSTR GetTitle() const override;
    LPCTSTR GetDescription() const override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    afx_msg void OnMakeDisabled();
    DECLARE_MESSAGE_MAP()

private:
    CComboBoxXP m_subject;
    std::array<CComboBoxXP, 3> m_skinned;
    std::array<CComboBox, 3> m_system; ///< the same, as the system draws them
};
