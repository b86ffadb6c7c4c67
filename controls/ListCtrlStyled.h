// SPDX-License-Identifier: MIT
#pragma once

#include <afxcmn.h>

#include <memory>
#include <vector>

#include "controls/ListFonts.h"
#include "controls/ListItemRecords.h"
#include "controls/ListStyle.h"

/// A report list whose cells, rows and columns can each have a text colour, a background colour and
/// a font, and others for selected items.  The system's list draws it; this class tells it how.
///
///     m_list.SetRowFlags(2, tint::ListStyle::kBold | tint::ListStyle::kHasTextColor);
///     m_list.SetRowTextColor(2, RGB(160, 0, 0));
///
/// | level  | not selected                                | selected                           |
/// |--------|---------------------------------------------|------------------------------------|
/// | cell   | SetCellFlags(item, column, flags)           | SetSelectedCellFlags(...)          |
/// |        | SetCellTextColor(item, column, color)       | SetSelectedCellTextColor(...)      |
/// |        | SetCellBackColor(item, column, color)       | SetSelectedCellBackColor(...)      |
/// |        | SetCellFont(item, column, font)             | SetSelectedCellFont(...)           |
/// | row    | SetRowFlags(item, flags), and so on         | SetSelectedRowFlags(...), ...      |
/// | column | SetColumnFlags(column, flags, redraw), ...  | SetSelectedColumnFlags(...), ...   |
///
/// - The flags (tint::ListStyle::Flag) are set as one word, and a colour counts only together with
///   its flag: set both.
/// - A font set whole goes before the font bits of the flags; it is copied and may go afterwards.
///   Null takes it away.  For a selected item set the flags first: flags without a font bit say that
///   the normal font applies.
/// - Each returns false, and changes nothing, when there is no such item or column (columns and
///   items come first, styles after) or the font is none.
/// - Cells and rows show a change when they are painted next; the column setters repaint at once
///   when `redraw` is true.
/// - Which level wins and what the blocking flags do: tint::ResolveColors, tint::ResolveFont,
///   tint::UseOf.  A font of the row or the column reaches a cell after the first column only where
///   the cell has a style of its own, even an empty one (SetCellFlags(item, column, 0)); the other
///   cells take the font of the row's first cell.
///
/// An item's parameter (GetItemData, LVITEM.lParam, the comparison of SortItems, LVN_ notifications)
/// is the caller's own, through members and messages alike, although the list view itself keeps a
/// key there.  Therefore subclass the list for good: after UnsubclassWindow() the keys would show.
/// A virtual list (LVS_OWNERDATA) has no parameters and so no styles for items.
///
/// An item without styles costs 24 bytes (and what a growing vector holds in reserve), the first style
/// in its row about 110 more, each further one about 80.  Cells that look alike share one GDI font.
///
/// tint::EnableSkin(list, false) shows the plain list; the styles stay and come back with the skin.
///
/// While a selected item is painted it is not selected for the list view, which would draw its own
/// highlight; neither the message map of the parent nor the update region notice.  (A parent that
/// looks at WM_NOTIFY before the framework reflects it sees the list view's side: keys and changes.)
class CListCtrlStyled : public CListCtrl {
public:
    CListCtrlStyled();
    ~CListCtrlStyled() override;

    CListCtrlStyled(const CListCtrlStyled&) = delete;
    CListCtrlStyled& operator=(const CListCtrlStyled&) = delete;

    bool SetCellFlags(int item, int column, DWORD flags);
    bool SetCellTextColor(int item, int column, COLORREF color);
    bool SetCellBackColor(int item, int column, COLORREF color);
    bool SetCellFont(int item, int column, HFONT font);
    bool SetSelectedCellFlags(int item, int column, DWORD flags);
    bool SetSelectedCellTextColor(int item, int column, COLORREF color);
    bool SetSelectedCellBackColor(int item, int column, COLORREF color);
    bool SetSelectedCellFont(int item, int column, HFONT font);

    bool SetRowFlags(int item, DWORD flags);
    bool SetRowTextColor(int item, COLORREF color);
    bool SetRowBackColor(int item, COLORREF color);
    bool SetRowFont(int item, HFONT font);
    bool SetSelectedRowFlags(int item, DWORD flags);
    bool SetSelectedRowTextColor(int item, COLORREF color);
    bool SetSelectedRowBackColor(int item, COLORREF color);
    bool SetSelectedRowFont(int item, HFONT font);

    bool SetColumnFlags(int column, DWORD flags, bool redraw = false);
    bool SetColumnTextColor(int column, COLORREF color, bool redraw = false);
    bool SetColumnBackColor(int column, COLORREF color, bool redraw = false);
    bool SetColumnFont(int column, HFONT font, bool redraw = false);
    bool SetSelectedColumnFlags(int column, DWORD flags, bool redraw = false);
    bool SetSelectedColumnTextColor(int column, COLORREF color, bool redraw = false);
    bool SetSelectedColumnBackColor(int column, COLORREF color, bool redraw = false);
    bool SetSelectedColumnFont(int column, HFONT font, bool redraw = false);

    /// The colours of selected cells that no style colours: until this is called, the system's
    /// highlight colours at construction.
    void SetSelectedDefaultColors(COLORREF text, COLORREF back);

    /// Takes over the items that the list has already.
    void PreSubclassWindow() override;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    afx_msg void OnCustomDraw(NMHDR* header, LRESULT* result);
    afx_msg void OnDestroy();
    afx_msg LRESULT OnSetFont(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnInsertItem(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetItem(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetItem(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDeleteItem(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDeleteAllItems(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnInsertColumn(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDeleteColumn(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnFindItem(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSortItems(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    using FontPointer = std::shared_ptr<const tint::ListFont>;

    /// A font selected from one notification of a paint to another one.
    struct SelectedFont {
        FontPointer font;           ///< kept alive while it is selected
        HGDIOBJ replaced = nullptr; ///< null: nothing is selected

        bool Select(HDC dc, FontPointer newFont);
        void Restore(HDC dc);
        void Forget() { *this = {}; }
    };

    // Styles by level, created empty at first use; null: no such item or column
    tint::ListItemStyles* ItemStyles(int item);
    tint::ListStyle* CellStyle(int item, int column);
    tint::ListStyle* RowStyle(int item);
    tint::ListStyle* ColumnStyle(int column);
    bool Redraw(bool changed, bool wanted);

    int ColumnCount();
    bool HasColumn(int column) { return column >= 0 && column < ColumnCount(); }

    // Items
    LPARAM KeyOf(int item);
    void GiveCallersValue(LPARAM& parameter);
    void GiveCallersValue(NMHDR& notification);

    // Painting
    LRESULT OnControlPrePaint();
    LRESULT OnItemPrePaint(NMLVCUSTOMDRAW& draw);
    void OnItemPostPaint(const NMLVCUSTOMDRAW& draw);
    LRESULT OnCellPrePaint(NMLVCUSTOMDRAW& draw);
    FontPointer ResolveStyle(NMLVCUSTOMDRAW& draw, int column);
    tint::ListStyleLevels LevelsAt(LPARAM key, int column);
    void RememberBaseFont(HDC dc);
    void HideSelection(int item);
    void GiveSelectionBack();
    void SetSelectedQuietly(int item, bool selected);

    LOGFONT m_baseFont = {}; ///< what all style fonts are made from
    bool m_hasBaseFont = false;

    bool m_paintsSelection = false; ///< the item being painted is selected, and hidden as such
    bool m_quiet = false;           ///< nobody is told of a change of state
    int m_hiddenItem = -1;
    LPARAM m_hiddenKey = 0;
    CRgn m_updateRegion; ///< what was invalid before a quiet change

    SelectedFont m_rowFont;
    SelectedFont m_cellFont;

    std::vector<std::unique_ptr<tint::ListStyle>> m_columns; ///< null or past the end: no style
    tint::ListColors m_colors = {};                          ///< the list's own, read once a paint
    tint::ListColors m_selectedDefaults;
    tint::ListFonts m_fonts;
    tint::ListItemRecords m_records;
    tint::ListStyle
        m_plainCell; ///< first cell of all items without styles: holds their merged font
};
