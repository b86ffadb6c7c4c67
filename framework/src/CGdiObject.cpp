// SPDX-License-Identifier: MIT
#include "afx/CGdiObject.h"

#include "GdiObjectMap.h"
#include "afx/CBitmap.h"
#include "afx/CBrush.h"
#include "afx/CFont.h"
#include "afx/CPalette.h"
#include "afx/CPen.h"
#include "afx/CRgn.h"

IMPLEMENT_DYNAMIC(CGdiObject, CObject)

CGdiObject::CGdiObject() : m_hObject(nullptr) {}

CGdiObject::~CGdiObject() {
    // GDI itself ignores the request for stock objects and for the system's brushes.
    DeleteObject();
}

CGdiObject::operator HGDIOBJ() const {
    return m_hObject;
}

HGDIOBJ CGdiObject::GetSafeHandle() const {
    // A plain test of `this` could be optimized away.
    const CGdiObject* const volatile object = this;
    return object == nullptr ? nullptr : object->m_hObject;
}

BOOL CGdiObject::Attach(HGDIOBJ hObject) {
    ASSERT(m_hObject == nullptr);
    if (hObject == nullptr) {
        return FALSE;
    }
    Detach();
    m_hObject = hObject;
    afx::GdiObjectMap().SetPermanent(hObject, this);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach() {
    const HGDIOBJ handle = m_hObject;
    if (handle != nullptr) {
        afx::GdiObjectMap().RemovePermanent(handle, this);
        m_hObject = nullptr;
    }
    return handle;
}

BOOL CGdiObject::DeleteObject() {
    return m_hObject != nullptr && ::DeleteObject(Detach());
}

BOOL CGdiObject::CreateStockObject(int nIndex) {
    return Attach(::GetStockObject(nIndex));
}

int CGdiObject::GetObject(int nCount, LPVOID lpObject) const {
    return ::GetObject(m_hObject, nCount, lpObject);
}

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ hObject) {
    if (CGdiObject* const attached = afx::GdiObjectMap().FindPermanent(hObject)) {
        return attached;
    }
    // Callers know what they asked for and cast down, as after CDC::SelectStockObject().
    switch (::GetObjectType(hObject)) {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return CPen::FromHandle(static_cast<HPEN>(hObject));
    case OBJ_BRUSH:
        return CBrush::FromHandle(static_cast<HBRUSH>(hObject));
    case OBJ_FONT:
        return CFont::FromHandle(static_cast<HFONT>(hObject));
    case OBJ_BITMAP:
        return CBitmap::FromHandle(static_cast<HBITMAP>(hObject));
    case OBJ_REGION:
        return CRgn::FromHandle(static_cast<HRGN>(hObject));
    case OBJ_PAL:
        return CPalette::FromHandle(static_cast<HPALETTE>(hObject));
    default:
        return afx::GdiObjectMap().FromHandle(hObject);
    }
}

void PASCAL CGdiObject::DeleteTempMap() {
    afx::TemporaryGdiObjects<CPen>().DeleteTemp();
    afx::TemporaryGdiObjects<CBrush>().DeleteTemp();
    afx::TemporaryGdiObjects<CFont>().DeleteTemp();
    afx::TemporaryGdiObjects<CBitmap>().DeleteTemp();
    afx::TemporaryGdiObjects<CRgn>().DeleteTemp();
    afx::TemporaryGdiObjects<CPalette>().DeleteTemp();
    afx::GdiObjectMap().DeleteTemp();
}
