// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include "draw/ColorMarkers.h"
#include "draw/ObjectSelection.h"

/// @file
/// Scope-bound selection of GDI objects: each class puts something into a device context and puts
/// back what was there before when it goes out of scope, also when an exception unwinds through a
/// paint.
///
///     CBufferDC dc(item->hDC, nullptr);                  // declared first, destroyed last
///     CPenSelector pen(dc, ::GetSysColor(COLOR_HIGHLIGHT));
///     CBrushSelector brush(dc, tint::kNoColor);          // hollow
///     dc.Rectangle(&item->rcItem);
///
/// Declare them after the device context they work on, and let them nest like the scopes they stand
/// in.  None of them owns the device context.  No GDI result is reported: where an object cannot be
/// made or selected, the one selected before stays and drawing goes on with it.

/// Makes the font of a device context bold or normal.
///
/// Changes nothing where the font has the wanted weight already.  Only the weight 700 counts as bold:
/// asking for normal leaves a font of weight 600 as it is (deliberate; a semibold dialog font is the
/// user's choice).
class CFontWeightSelector : public CFont {
public:
    [[nodiscard]] CFontWeightSelector(HDC dc, bool bold);

private:
    tint::ObjectSelection m_selection; ///< undone before the base deletes the font
};

/// Selects a solid brush; tint::kNoColor selects the stock hollow brush.
class CBrushSelector : public CBrush {
public:
    [[nodiscard]] CBrushSelector(HDC dc, COLORREF color);

    /// Replaces the brush by one of another colour (or the hollow one).
    void SetColor(COLORREF color);

    /// The colour of the current brush; 0 when there is none.
    COLORREF GetColor() const;

private:
    tint::ObjectSelection m_selection; ///< undone before the base deletes the brush
};

/// Selects a solid pen one pixel wide.  There is no hollow case: every value is handed to GDI as a
/// colour.
class CPenSelector : public CPen {
public:
    [[nodiscard]] CPenSelector(HDC dc, COLORREF color);

    /// Replaces the pen by one of another colour.
    void SetColor(COLORREF color);

    /// The colour of the current pen; 0 when there is none.
    COLORREF GetColor() const;

private:
    tint::ObjectSelection m_selection; ///< undone before the base deletes the pen
};

/// Selects any pen, brush, font or bitmap (not a region) and sets the text colour; restores both.
///
/// Owns what it selects: the object is deleted when it is replaced and at the end.  That includes
/// stock objects, for which the system defines deletion as harmless, so one rule covers all.
class CDCObjectSaver {
public:
    /// Selects a stock object.
    /// @param stockObject  an index of GetStockObject: DEFAULT_GUI_FONT, NULL_BRUSH ...
    /// @param textColor    tint::kKeepTextColor leaves the text colour as it is
    [[nodiscard]] CDCObjectSaver(HDC dc, int stockObject,
                                 COLORREF textColor = tint::kKeepTextColor);

    /// Selects `object` and takes ownership of it.
    [[nodiscard]] CDCObjectSaver(HDC dc, HGDIOBJ object, COLORREF textColor = tint::kKeepTextColor);

    /// Selects a copy of the current font with another face name; see SetFaceName.
    [[nodiscard]] CDCObjectSaver(HDC dc, LPCTSTR faceName,
                                 COLORREF textColor = tint::kKeepTextColor);

    /// Puts back the object that was selected before this one existed, deletes the own object, then
    /// puts back the text colour if it was ever set here.
    ~CDCObjectSaver();

    CDCObjectSaver(const CDCObjectSaver&) = delete;
    CDCObjectSaver& operator=(const CDCObjectSaver&) = delete;

    /// Undoes the previous selection, then selects the stock object.
    void SelectStockObject(int stockObject);

    /// Undoes the previous selection, then selects `object` and takes ownership of it.
    void SelectObject(HGDIOBJ object);

    /// Selects a copy of the current font with another face.  Does nothing when the face is the same
    /// (compared as multi-byte text, ignoring case) or the name is null.
    /// @param faceName  cut to 31 bytes, which is all that a LOGFONT holds
    void SetFaceName(LPCTSTR faceName);

    /// The face name that the current font was asked for with; empty when there is no font.
    CString GetFaceName() const;

    /// Sets the text colour; the first call remembers the one to put back.
    void SetTextColor(COLORREF color);

    COLORREF GetTextColor() const;

private:
    void ApplyTextColor(COLORREF color);
    void UndoSelection();

    HGDIOBJ m_object = nullptr;
    tint::ObjectSelection m_selection;
    COLORREF m_savedTextColor = tint::kNoColor;
};
