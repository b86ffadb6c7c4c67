// SPDX-License-Identifier: MIT
#pragma once

#include "gallery/GalleryPage.h"
#include "gallery/GlyphPanel.h"
#include "gallery/GlyphTable.h"

/// Scene "Glyphs": buttons that are not windows, live and in a table of all their looks.
class CGlyphsPage : public CGalleryPage {
public:
    CGlyphsPage();

    LPCTSTR GetTitle() const override;
    LPCTSTR GetDescription() const override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;

private:
    CGlyphPanel m_flat{CDrawButton::kFlat};
    CGlyphPanel m_classic{0};
    CGlyphTable m_table;
};
