// SPDX-License-Identifier: MIT
#include "afx/CPalette.h"

#include "GdiObjectMap.h"

IMPLEMENT_DYNAMIC(CPalette, CGdiObject)

CPalette::CPalette() = default;

CPalette::operator HPALETTE() const {
    return static_cast<HPALETTE>(m_hObject);
}

CPalette* PASCAL CPalette::FromHandle(HPALETTE hPalette) {
    return afx::GdiObjectFromHandle<CPalette>(hPalette);
}
