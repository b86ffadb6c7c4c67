// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <memory>

#include "controls/ListFonts.h"

/// @file
/// The styles of a list's cells, rows and columns, and the rules that make one look of the three.
/// Knows neither window nor device context.

namespace tint {

/// What is set for one cell, row or column.
struct ListStyle {
    /// Bits of `flags`.
    enum Flag : DWORD {
        kBold = 1,
        kItalic = 2,
        kUnderline = 4,
        kStrikeOut = 8,
        kHasTextColor = 16,  ///< `textColor` counts
        kHasBackColor = 32,  ///< `backColor` counts
        kBlocksColumns = 64, ///< in a cell or row: the column's style does not count here
        kBlocksRows = 128,   ///< in a cell or column: the row's style does not count here
        kFontBits = kBold | kItalic | kUnderline | kStrikeOut,
    };

    DWORD flags = 0;
    bool ownFont = false; ///< in a selected variant: its font counts, not the normal style's
    COLORREF textColor = 0;
    COLORREF backColor = 0;
    std::unique_ptr<ListStyle> selected;       ///< the variant for selected items, null: none
    std::unique_ptr<const LOGFONT> fontObject; ///< a font that was set whole; goes before the bits

    /// In a cell: the merge of its three levels' fonts as last painted, not selected and selected.
    std::shared_ptr<const ListFont> merged[2];

    /// Replaces the flags word.  The own-font flag follows the font bits.
    void SetFlags(DWORD newFlags);

    /// Sets a font whole: its description is copied, so the font may go afterwards.  Null takes the
    /// font away, and the own-font flag follows the font bits again.
    /// @return false, and nothing is changed, when `font` is not a font
    bool SetFont(HFONT font);

    /// The selected variant; created empty at the first call.
    ListStyle& Selected();

    /// The font of this level alone.  Made from bits it has the weight 700 or 400, nothing between: over a
    /// base of another weight (as 0, which leaves it open) a cell's italic takes its row's bold away.
    /// @param base  the list's own font
    /// @return false when this level sets none
    bool GetFont(const LOGFONT& base, LOGFONT& font) const;
};

/// The styles that meet in one cell; null where there is none.
struct ListStyleLevels {
    ListStyle* cell;
    ListStyle* row;
    ListStyle* column;

    /// The selected variants, null where a level has none: what colours a selected item.
    ListStyleLevels ForSelectedColors() const;

    /// The selected variants that have a font of their own, else the normal styles: what gives a
    /// selected item its font.
    ListStyleLevels ForSelectedFont() const;
};

/// Which levels besides the cell's own count in a cell.
struct ListStyleUse {
    bool row = true;
    bool column = true;
};

/// Which levels the blocking bits leave.
///
/// The first that blocks decides: the cell; where it blocks nothing the row; and where that blocks
/// nothing the column, which can block the row.
ListStyleUse UseOf(const ListStyleLevels& levels);

struct ListColors {
    COLORREF text;
    COLORREF back;
};

/// The colours of a cell: for each, the first of cell, row and column that has one and is not
/// blocked, else the default.
/// @param levels  as they are painted: for a selected item the selected variants
ListColors ResolveColors(const ListStyleLevels& levels, const ListColors& defaults);

/// The font of a cell: the base, changed by the column's font, then the row's, then the cell's.
///
/// A cell without a style record has no font of its own whatever its row and column say (deliberate;
/// the list then goes on with the font of the row's first cell).
/// @return false when there is no such record, or no level sets a font
bool ResolveFont(const ListStyleLevels& levels, const LOGFONT& base, LOGFONT& merged);

/// Copies into `result` each field of `font` that differs from the base.
///
/// A field equal to the base changes nothing, so a cell cannot switch back what its row switched on
/// (deliberate: a level says only what is special about it).
void ApplyFont(LOGFONT& result, const LOGFONT& font, const LOGFONT& base);

} // namespace tint
