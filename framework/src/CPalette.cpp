// SPDX-License-Identifier: MIT
#include "afx/CPalette.h"

#include "GdiObjectMap.h"
#include "Handles.h"

IMPLEMENT_DYNAMIC(CPalette, CGdiObject)

CPalette::CPalette() = default;

CPalette::operator HPALETTE() const {
    return static_cast<HPALETTE>(m_hObject);
}

BOOL CPalette::CreatePalette(LPLOGPALETTE lpLogPalette) {
    return Attach(::CreatePalette(lpLogPalette));
}

BOOL CPalette::CreateHalftonePalette(CDC* pDC) {
    return Attach(::CreateHalftonePalette(afx::OutputOf(pDC)));
}

int CPalette::GetEntryCount() {
    WORD count = 0;
    GetObject(sizeof count, &count);
    return count;
}

UINT CPalette::GetPaletteEntries(UINT nStartIndex, UINT nNumEntries,
                                 LPPALETTEENTRY lpPaletteColors) const {
    return ::GetPaletteEntries(*this, nStartIndex, nNumEntries, lpPaletteColors);
}

UINT CPalette::SetPaletteEntries(UINT nStartIndex, UINT nNumEntries,
                                 LPPALETTEENTRY lpPaletteColors) {
    return ::SetPaletteEntries(*this, nStartIndex, nNumEntries, lpPaletteColors);
}

void CPalette::AnimatePalette(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) {
    ::AnimatePalette(*this, nStartIndex, nNumEntries, lpPaletteColors);
}

UINT CPalette::GetNearestPaletteIndex(COLORREF crColor) const {
    return ::GetNearestPaletteIndex(*this, crColor);
}

BOOL CPalette::ResizePalette(UINT nNumEntries) {
    return ::ResizePalette(*this, nNumEntries);
}

CPalette* PASCAL CPalette::FromHandle(HPALETTE hPalette) {
    return afx::GdiObjectFromHandle<CPalette>(hPalette);
}
