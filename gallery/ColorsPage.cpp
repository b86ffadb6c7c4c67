// SPDX-License-Identifier: MIT
#include "gallery/ColorsPage.h"

#include "gallery/resource.h"

CColorsPage::CColorsPage() : CGalleryPage(IDD_COLORS) {}

LPCTSTR CColorsPage::GetTitle() const {
    return "Colours";
}

LPCTSTR CColorsPage::GetDescription() const {
    return "Text colours on what lies under them, derived from the system's. Beside each its "
           "contrast ratio, from 1 to 21. The toolbar changes the scheme.";
}

void CColorsPage::DoDataExchange(CDataExchange* exchange) {
    CGalleryPage::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_COLOR_TABLE, m_table);
}
