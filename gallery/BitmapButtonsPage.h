// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include "decorations/SoftBitmapButton.h"
#include "gallery/GalleryPage.h"

/// Scene "Bitmap buttons": buttons made of strips with 1, 3, 4 and 6 frames.
class CBitmapButtonsPage : public CGalleryPage {
public:
    CBitmapButtonsPage();

    LPCTSTR GetTitle() const override;
    LPCTSTR GetDescription() const override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    afx_msg void OnDisable();
    DECLARE_MESSAGE_MAP()

private:
    std::array<CSoftBitmapButton, 4> m_buttons;
};
