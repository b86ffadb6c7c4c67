// SPDX-License-Identifier: MIT
#pragma once

#include "gallery/ColorTable.h"
#include "gallery/GalleryPage.h"

/// Scene "Colours": what the toolkit makes of the system's colours.
class CColorsPage : public CGalleryPage {
public:
    CColorsPage();

    LPCTSTR GetTitle() const override;
    LPCTSTR GetDescription() const override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;

private:
    CColorTable m_table;
};
