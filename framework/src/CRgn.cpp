// SPDX-License-Identifier: MIT
#include "afx/CRgn.h"

#include "GdiObjectMap.h"

IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

CRgn::CRgn() = default;

CRgn::operator HRGN() const {
    return static_cast<HRGN>(m_hObject);
}

BOOL CRgn::CreateRectRgn(int x1, int y1, int x2, int y2) {
    return Attach(::CreateRectRgn(x1, y1, x2, y2));
}

CRgn* PASCAL CRgn::FromHandle(HRGN hRgn) {
    return afx::GdiObjectFromHandle<CRgn>(hRgn);
}
