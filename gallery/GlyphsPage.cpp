// SPDX-License-Identifier: MIT
#include "gallery/GlyphsPage.h"

#include "gallery/resource.h"

CGlyphsPage::CGlyphsPage() : CGalleryPage(IDD_GLYPHS) {}

LPCTSTR CGlyphsPage::GetTitle() const {
    return "Glyphs";
}

LPCTSTR CGlyphsPage::GetDescription() const {
    return "Buttons that are not windows: CDrawButton draws them inside any window. Click "
           "them, hold the spin pair, press Escape before releasing.";
}

void CGlyphsPage::DoDataExchange(CDataExchange* exchange) {
    CGalleryPage::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_GLYPHS_FLAT, m_flat);
    DDX_Control(exchange, IDC_GLYPHS_CLASSIC, m_classic);
    DDX_Control(exchange, IDC_GLYPH_TABLE, m_table);
}
