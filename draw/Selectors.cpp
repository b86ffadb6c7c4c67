// SPDX-License-Identifier: MIT
#include "draw/Selectors.h"

#include <mbstring.h>

namespace {

/// Reads the font that is selected in `dc`.
bool GetCurrentLogFont(HDC dc, LOGFONTA& font) {
    const HGDIOBJ current = ::GetCurrentObject(dc, OBJ_FONT);
    return current != nullptr && ::GetObjectA(current, sizeof font, &font) != 0;
}

bool SameFaceName(LPCTSTR left, LPCTSTR right) {
    return _mbsicmp(reinterpret_cast<const unsigned char*>(left),
                    reinterpret_cast<const unsigned char*>(right)) == 0;
}

} // namespace

// --- CFontWeightSelector ------------------------------------------------------------------------

CFontWeightSelector::CFontWeightSelector(HDC dc, bool bold) : m_selection(dc) {
    LOGFONTA font;
    if (!GetCurrentLogFont(dc, font) || (font.lfWeight == FW_BOLD) == bold)
        return;
    font.lfWeight = bold ? FW_BOLD : FW_NORMAL;
    CreateFontIndirect(&font);
    m_selection.Select(GetSafeHandle());
}

// --- CBrushSelector -----------------------------------------------------------------------------

CBrushSelector::CBrushSelector(HDC dc, COLORREF color) : m_selection(dc) {
    SetColor(color);
}

void CBrushSelector::SetColor(COLORREF color) {
    m_selection.Undo();
    DeleteObject();
    if (color == tint::kNoColor)
        CreateStockObject(NULL_BRUSH);
    else
        CreateSolidBrush(color);
    m_selection.Select(GetSafeHandle());
}

COLORREF CBrushSelector::GetColor() const {
    LOGBRUSH brush = {};
    ::GetObjectA(GetSafeHandle(), sizeof brush, &brush);
    return brush.lbColor;
}

// --- CPenSelector -------------------------------------------------------------------------------

CPenSelector::CPenSelector(HDC dc, COLORREF color) : m_selection(dc) {
    SetColor(color);
}

void CPenSelector::SetColor(COLORREF color) {
    m_selection.Undo();
    DeleteObject();
    CreatePen(PS_SOLID, 1, color);
    m_selection.Select(GetSafeHandle());
}

COLORREF CPenSelector::GetColor() const {
    LOGPEN pen = {};
    ::GetObjectA(GetSafeHandle(), sizeof pen, &pen);
    return pen.lopnColor;
}

// --- CDCObjectSaver -----------------------------------------------------------------------------

CDCObjectSaver::CDCObjectSaver(HDC dc, int stockObject, COLORREF textColor) : m_selection(dc) {
    SelectStockObject(stockObject);
    ApplyTextColor(textColor);
}

CDCObjectSaver::CDCObjectSaver(HDC dc, HGDIOBJ object, COLORREF textColor) : m_selection(dc) {
    SelectObject(object);
    ApplyTextColor(textColor);
}

CDCObjectSaver::CDCObjectSaver(HDC dc, LPCTSTR faceName, COLORREF textColor) : m_selection(dc) {
    SetFaceName(faceName);
    ApplyTextColor(textColor);
}

CDCObjectSaver::~CDCObjectSaver() {
    UndoSelection();
    if (m_savedTextColor != tint::kNoColor)
        ::SetTextColor(m_selection.dc(), m_savedTextColor);
}

void CDCObjectSaver::SelectStockObject(int stockObject) {
    SelectObject(::GetStockObject(stockObject));
}

void CDCObjectSaver::SelectObject(HGDIOBJ object) {
    UndoSelection();
    m_object = object;
    m_selection.Select(object);
}

void CDCObjectSaver::SetFaceName(LPCTSTR faceName) {
    LOGFONTA font;
    if (faceName == nullptr || !GetCurrentLogFont(m_selection.dc(), font) ||
        SameFaceName(font.lfFaceName, faceName))
        return;
    // The copy is made of the font read above, so undoing the selection may delete that font.
    ::lstrcpynA(font.lfFaceName, faceName, LF_FACESIZE);
    SelectObject(::CreateFontIndirectA(&font));
}

CString CDCObjectSaver::GetFaceName() const {
    LOGFONTA font;
    return GetCurrentLogFont(m_selection.dc(), font) ? CString(font.lfFaceName) : CString();
}

void CDCObjectSaver::SetTextColor(COLORREF color) {
    const COLORREF previous = ::SetTextColor(m_selection.dc(), color);
    if (m_savedTextColor == tint::kNoColor)
        m_savedTextColor = previous;
}

COLORREF CDCObjectSaver::GetTextColor() const {
    return ::GetTextColor(m_selection.dc());
}

void CDCObjectSaver::ApplyTextColor(COLORREF color) {
    if (color != tint::kKeepTextColor)
        SetTextColor(color);
}

void CDCObjectSaver::UndoSelection() {
    m_selection.Undo();
    if (m_object != nullptr)
        ::DeleteObject(m_object);
    m_object = nullptr;
}
