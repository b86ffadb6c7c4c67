// SPDX-License-Identifier: MIT
// CListCtrlStyled: painting.
#include "controls/ListCtrlStyled.h"

#include <utility>

#include "draw/Skin.h"

using tint::ListStyleLevels;

// ---- Stages of a paint --------------------------------------------------------------------------

void CListCtrlStyled::OnCustomDraw(NMHDR* header, LRESULT* result) {
    auto& draw = *reinterpret_cast<NMLVCUSTOMDRAW*>(header);
    *result = CDRF_DODEFAULT;
    switch (draw.nmcd.dwDrawStage) {
    case CDDS_PREPAINT:
        *result = OnControlPrePaint();
        break;
    case CDDS_ITEMPREPAINT:
        *result = OnItemPrePaint(draw);
        break;
    case CDDS_ITEMPOSTPAINT:
        OnItemPostPaint(draw);
        break;
    case CDDS_ITEMPREPAINT | CDDS_SUBITEM:
        *result = OnCellPrePaint(draw);
        break;
    case CDDS_ITEMPOSTPAINT | CDDS_SUBITEM:
        m_cellFont.Restore(draw.nmcd.hdc);
        break;
    default:
        break;
    }
}

LRESULT CListCtrlStyled::OnControlPrePaint() {
    m_rowFont.Forget();
    m_cellFont.Forget();
    GiveSelectionBack(); // that a paint broken off has kept
    if (!tint::IsSkinEnabled(m_hWnd))
        return CDRF_DODEFAULT; // and no other stage follows
    m_colors = {static_cast<COLORREF>(DefWindowProc(LVM_GETTEXTCOLOR, 0, 0)),
                static_cast<COLORREF>(DefWindowProc(LVM_GETTEXTBKCOLOR, 0, 0))};
    return CDRF_NOTIFYITEMDRAW;
}

LRESULT CListCtrlStyled::OnItemPrePaint(NMLVCUSTOMDRAW& draw) {
    const auto item = static_cast<int>(draw.nmcd.dwItemSpec);
    LRESULT answer = CDRF_NOTIFYSUBITEMDRAW;
    m_rowFont.Forget();
    GiveSelectionBack();
    RememberBaseFont(draw.nmcd.hdc);
    if (DefWindowProc(LVM_GETITEMSTATE, draw.nmcd.dwItemSpec, LVIS_SELECTED) != 0) {
        HideSelection(item);
        draw.nmcd.uItemState &= ~static_cast<UINT>(CDIS_SELECTED); // was read before this call
        answer |= CDRF_NOTIFYPOSTPAINT;
    }
    if (m_rowFont.Select(draw.nmcd.hdc, ResolveStyle(draw, 0)))
        answer |= CDRF_NEWFONT | CDRF_NOTIFYPOSTPAINT;
    return answer;
}

void CListCtrlStyled::OnItemPostPaint(const NMLVCUSTOMDRAW& draw) {
    m_rowFont.Restore(draw.nmcd.hdc);
    GiveSelectionBack();
}

LRESULT CListCtrlStyled::OnCellPrePaint(NMLVCUSTOMDRAW& draw) {
    m_cellFont.Forget();
    FontPointer font = ResolveStyle(draw, draw.iSubItem);
    if (font == nullptr)
        font = m_rowFont.font;
    if (m_cellFont.Select(draw.nmcd.hdc, std::move(font)))
        return CDRF_NEWFONT | CDRF_NOTIFYPOSTPAINT;
    return CDRF_DODEFAULT;
}

// ---- The look of one cell -----------------------------------------------------------------------

CListCtrlStyled::FontPointer CListCtrlStyled::ResolveStyle(NMLVCUSTOMDRAW& draw, int column) {
    const ListStyleLevels levels = LevelsAt(draw.nmcd.lItemlParam, column);
    const tint::ListColors colors =
        m_paintsSelection ? tint::ResolveColors(levels.ForSelectedColors(), m_selectedDefaults)
                          : tint::ResolveColors(levels, m_colors);
    draw.clrText = colors.text;
    draw.clrTextBk = colors.back;

    const ListStyleLevels fontLevels = m_paintsSelection ? levels.ForSelectedFont() : levels;
    LOGFONT wanted;
    if (!m_hasBaseFont || !tint::ResolveFont(fontLevels, m_baseFont, wanted))
        return nullptr;
    FontPointer& merged = fontLevels.cell->merged[m_paintsSelection ? 1 : 0];
    if (merged == nullptr || !merged->IsMadeFrom(wanted))
        merged = m_fonts.Get(wanted);
    return merged;
}

ListStyleLevels CListCtrlStyled::LevelsAt(LPARAM key, int column) {
    ListStyleLevels levels = {column == 0 ? &m_plainCell : nullptr, nullptr, nullptr};
    const auto index = static_cast<std::size_t>(column);
    if (index < m_columns.size())
        levels.column = m_columns[index].get();
    const tint::ListItemRecord* const record = m_records.Find(key);
    if (record != nullptr && record->styles != nullptr) {
        levels.cell = record->styles->Cell(column);
        levels.row = record->styles->row.get();
    }
    return levels;
}

// ---- Fonts --------------------------------------------------------------------------------------

void CListCtrlStyled::RememberBaseFont(HDC dc) {
    if (!m_hasBaseFont)
        m_hasBaseFont = tint::DescribeFont(::GetCurrentObject(dc, OBJ_FONT), m_baseFont);
}

LRESULT CListCtrlStyled::OnSetFont(WPARAM, LPARAM) {
    m_hasBaseFont = false; // the next paint shows the new one
    return Default();
}

bool CListCtrlStyled::SelectedFont::Select(HDC dc, FontPointer newFont) {
    if (newFont == nullptr)
        return false;
    // A cell in the font of its row finds that one selected, and to select a font is the dearest part
    // of drawing a cell.
    const bool there = ::GetCurrentObject(dc, OBJ_FONT) == newFont->handle();
    if (!there)
        replaced = ::SelectObject(dc, newFont->handle());
    if (!there && replaced == nullptr)
        return false;
    font = std::move(newFont);
    return true;
}

void CListCtrlStyled::SelectedFont::Restore(HDC dc) {
    if (replaced != nullptr)
        ::SelectObject(dc, replaced);
    Forget();
}

// ---- The selection ------------------------------------------------------------------------------

void CListCtrlStyled::HideSelection(int item) {
    m_paintsSelection = true;
    m_hiddenItem = item;
    m_hiddenKey = KeyOf(item);
    SetSelectedQuietly(item, false);
}

void CListCtrlStyled::GiveSelectionBack() {
    if (!m_paintsSelection)
        return;
    m_paintsSelection = false;
    // A program that is asked for a text may have deleted items since.
    if (KeyOf(m_hiddenItem) == m_hiddenKey)
        SetSelectedQuietly(m_hiddenItem, true);
}

void CListCtrlStyled::SetSelectedQuietly(int item, bool selected) {
    if (m_updateRegion.m_hObject == nullptr)
        m_updateRegion.CreateRectRgn(0, 0, 0, 0);
    LVITEM state = {};
    state.stateMask = LVIS_SELECTED;
    state.state = selected ? LVIS_SELECTED : 0;

    // The list invalidates an item whose state changes.  Left so by a paint, this would make it
    // paint again, and so on for ever.
    const int invalid = GetUpdateRgn(&m_updateRegion);
    m_quiet = true;
    DefWindowProc(LVM_SETITEMSTATE, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&state));
    m_quiet = false;
    ValidateRect(nullptr);
    if (invalid != NULLREGION && invalid != ERROR)
        InvalidateRgn(&m_updateRegion);
}
