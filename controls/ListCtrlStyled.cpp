// SPDX-License-Identifier: MIT
// CListCtrlStyled: the message map and the setters.
#include "controls/ListCtrlStyled.h"

using tint::ListStyle;

BEGIN_MESSAGE_MAP(CListCtrlStyled, CListCtrl)
    ON_NOTIFY_REFLECT(NM_CUSTOMDRAW, &CListCtrlStyled::OnCustomDraw)
    ON_WM_DESTROY()
    ON_MESSAGE(WM_SETFONT, &CListCtrlStyled::OnSetFont)
    ON_MESSAGE(LVM_GETITEMA, &CListCtrlStyled::OnGetItem)
    ON_MESSAGE(LVM_GETITEMW, &CListCtrlStyled::OnGetItem)
    ON_MESSAGE(LVM_SETITEMA, &CListCtrlStyled::OnSetItem)
    ON_MESSAGE(LVM_SETITEMW, &CListCtrlStyled::OnSetItem)
    ON_MESSAGE(LVM_INSERTITEMA, &CListCtrlStyled::OnInsertItem)
    ON_MESSAGE(LVM_INSERTITEMW, &CListCtrlStyled::OnInsertItem)
    ON_MESSAGE(LVM_DELETEITEM, &CListCtrlStyled::OnDeleteItem)
    ON_MESSAGE(LVM_DELETEALLITEMS, &CListCtrlStyled::OnDeleteAllItems)
    ON_MESSAGE(LVM_INSERTCOLUMNA, &CListCtrlStyled::OnInsertColumn)
    ON_MESSAGE(LVM_INSERTCOLUMNW, &CListCtrlStyled::OnInsertColumn)
    ON_MESSAGE(LVM_DELETECOLUMN, &CListCtrlStyled::OnDeleteColumn)
    ON_MESSAGE(LVM_FINDITEMA, &CListCtrlStyled::OnFindItem)
    ON_MESSAGE(LVM_FINDITEMW, &CListCtrlStyled::OnFindItem)
    ON_MESSAGE(LVM_SORTITEMS, &CListCtrlStyled::OnSortItems)
END_MESSAGE_MAP()

namespace {

ListStyle* Selected(ListStyle* style) {
    return style != nullptr ? &style->Selected() : nullptr;
}

bool PutFlags(ListStyle* style, DWORD flags) {
    if (style != nullptr)
        style->SetFlags(flags);
    return style != nullptr;
}

bool PutTextColor(ListStyle* style, COLORREF color) {
    if (style != nullptr)
        style->textColor = color;
    return style != nullptr;
}

bool PutBackColor(ListStyle* style, COLORREF color) {
    if (style != nullptr)
        style->backColor = color;
    return style != nullptr;
}

/// Asked before a style is created, which would be a change already.
bool IsFontOrNull(HFONT font) {
    return font == nullptr || ::GetObjectType(font) == OBJ_FONT;
}

bool PutFont(ListStyle* style, HFONT font) {
    return style != nullptr && style->SetFont(font);
}

} // namespace

CListCtrlStyled::CListCtrlStyled()
    : m_selectedDefaults{::GetSysColor(COLOR_HIGHLIGHTTEXT), ::GetSysColor(COLOR_HIGHLIGHT)} {}

CListCtrlStyled::~CListCtrlStyled() {
    // Here and not in the base, so that the notifications of the end still find the records.
    if (m_hWnd != nullptr)
        DestroyWindow();
}

void CListCtrlStyled::SetSelectedDefaultColors(COLORREF text, COLORREF back) {
    m_selectedDefaults = {text, back};
}

// ---- Cells --------------------------------------------------------------------------------------

bool CListCtrlStyled::SetCellFlags(int item, int column, DWORD flags) {
    return PutFlags(CellStyle(item, column), flags);
}

bool CListCtrlStyled::SetCellTextColor(int item, int column, COLORREF color) {
    return PutTextColor(CellStyle(item, column), color);
}

bool CListCtrlStyled::SetCellBackColor(int item, int column, COLORREF color) {
    return PutBackColor(CellStyle(item, column), color);
}

bool CListCtrlStyled::SetCellFont(int item, int column, HFONT font) {
    return IsFontOrNull(font) && PutFont(CellStyle(item, column), font);
}

bool CListCtrlStyled::SetSelectedCellFlags(int item, int column, DWORD flags) {
    return PutFlags(Selected(CellStyle(item, column)), flags);
}

bool CListCtrlStyled::SetSelectedCellTextColor(int item, int column, COLORREF color) {
    return PutTextColor(Selected(CellStyle(item, column)), color);
}

bool CListCtrlStyled::SetSelectedCellBackColor(int item, int column, COLORREF color) {
    return PutBackColor(Selected(CellStyle(item, column)), color);
}

bool CListCtrlStyled::SetSelectedCellFont(int item, int column, HFONT font) {
    return IsFontOrNull(font) && PutFont(Selected(CellStyle(item, column)), font);
}

// ---- Rows ---------------------------------------------------------------------------------------

bool CListCtrlStyled::SetRowFlags(int item, DWORD flags) {
    return PutFlags(RowStyle(item), flags);
}

bool CListCtrlStyled::SetRowTextColor(int item, COLORREF color) {
    return PutTextColor(RowStyle(item), color);
}

bool CListCtrlStyled::SetRowBackColor(int item, COLORREF color) {
    return PutBackColor(RowStyle(item), color);
}

bool CListCtrlStyled::SetRowFont(int item, HFONT font) {
    return IsFontOrNull(font) && PutFont(RowStyle(item), font);
}

bool CListCtrlStyled::SetSelectedRowFlags(int item, DWORD flags) {
    return PutFlags(Selected(RowStyle(item)), flags);
}

bool CListCtrlStyled::SetSelectedRowTextColor(int item, COLORREF color) {
    return PutTextColor(Selected(RowStyle(item)), color);
}

bool CListCtrlStyled::SetSelectedRowBackColor(int item, COLORREF color) {
    return PutBackColor(Selected(RowStyle(item)), color);
}

bool CListCtrlStyled::SetSelectedRowFont(int item, HFONT font) {
    return IsFontOrNull(font) && PutFont(Selected(RowStyle(item)), font);
}

// ---- Columns ------------------------------------------------------------------------------------

bool CListCtrlStyled::SetColumnFlags(int column, DWORD flags, bool redraw) {
    return Redraw(PutFlags(ColumnStyle(column), flags), redraw);
}

bool CListCtrlStyled::SetColumnTextColor(int column, COLORREF color, bool redraw) {
    return Redraw(PutTextColor(ColumnStyle(column), color), redraw);
}

bool CListCtrlStyled::SetColumnBackColor(int column, COLORREF color, bool redraw) {
    return Redraw(PutBackColor(ColumnStyle(column), color), redraw);
}

bool CListCtrlStyled::SetColumnFont(int column, HFONT font, bool redraw) {
    return Redraw(IsFontOrNull(font) && PutFont(ColumnStyle(column), font), redraw);
}

bool CListCtrlStyled::SetSelectedColumnFlags(int column, DWORD flags, bool redraw) {
    return Redraw(PutFlags(Selected(ColumnStyle(column)), flags), redraw);
}

bool CListCtrlStyled::SetSelectedColumnTextColor(int column, COLORREF color, bool redraw) {
    return Redraw(PutTextColor(Selected(ColumnStyle(column)), color), redraw);
}

bool CListCtrlStyled::SetSelectedColumnBackColor(int column, COLORREF color, bool redraw) {
    return Redraw(PutBackColor(Selected(ColumnStyle(column)), color), redraw);
}

bool CListCtrlStyled::SetSelectedColumnFont(int column, HFONT font, bool redraw) {
    return Redraw(IsFontOrNull(font) && PutFont(Selected(ColumnStyle(column)), font), redraw);
}

// ---- Where the styles are -----------------------------------------------------------------------

tint::ListItemStyles* CListCtrlStyled::ItemStyles(int item) {
    tint::ListItemRecord* const record = m_records.Find(KeyOf(item));
    if (record == nullptr)
        return nullptr;
    if (record->styles == nullptr)
        record->styles = std::make_unique<tint::ListItemStyles>();
    return record->styles.get();
}

ListStyle* CListCtrlStyled::CellStyle(int item, int column) {
    if (!HasColumn(column))
        return nullptr;
    tint::ListItemStyles* const styles = ItemStyles(item);
    return styles != nullptr ? &styles->MakeCell(column) : nullptr;
}

ListStyle* CListCtrlStyled::RowStyle(int item) {
    tint::ListItemStyles* const styles = ItemStyles(item);
    if (styles == nullptr)
        return nullptr;
    if (styles->row == nullptr)
        styles->row = std::make_unique<ListStyle>();
    return styles->row.get();
}

ListStyle* CListCtrlStyled::ColumnStyle(int column) {
    if (!HasColumn(column))
        return nullptr;
    const auto index = static_cast<std::size_t>(column);
    if (index >= m_columns.size())
        m_columns.resize(index + 1);
    if (m_columns[index] == nullptr)
        m_columns[index] = std::make_unique<ListStyle>();
    return m_columns[index].get();
}

bool CListCtrlStyled::Redraw(bool changed, bool wanted) {
    if (changed && wanted) {
        RedrawItems(0, GetItemCount());
        UpdateWindow();
    }
    return changed;
}

int CListCtrlStyled::ColumnCount() {
    if (m_hWnd == nullptr)
        return 0;
    const CHeaderCtrl* const header = GetHeaderCtrl();
    return header != nullptr ? header->GetItemCount() : 0;
}
