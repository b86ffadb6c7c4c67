// SPDX-License-Identifier: MIT
#include "afx/CDC.h"

#include "HandleMap.h"
#include "Handles.h"
#include "afx/CBitmap.h"
#include "afx/CBrush.h"
#include "afx/CFont.h"
#include "afx/CPen.h"
#include "afx/CRgn.h"
#include "afx/CWnd.h"

IMPLEMENT_DYNAMIC(CDC, CObject)

namespace {

afx::HandleMap<HDC, CDC>& ContextMap() {
    return afx::ThreadHandleMap<HDC, CDC>(&CDC::m_hDC, &CDC::m_hAttribDC);
}

/// Selects an object into both contexts; the handle it replaced.
template <class H>
H SelectOnBoth(const CDC& dc, HGDIOBJ object) {
    return afx::SetOnBoth(
        dc, [object](HDC hDC) { return static_cast<H>(::SelectObject(hDC, object)); });
}

template <class H>
H CurrentObject(HDC hDC, UINT type) {
    return static_cast<H>(::GetCurrentObject(hDC, type));
}

} // namespace

CDC::CDC() : m_hDC(nullptr), m_hAttribDC(nullptr) {}

CDC::~CDC() {
    DeleteDC();
}

CDC::operator HDC() const {
    return m_hDC;
}

HDC CDC::GetSafeHdc() const {
    // A plain test of `this` could be optimized away.
    const CDC* const volatile dc = this;
    return dc == nullptr ? nullptr : dc->m_hDC;
}

CDC* PASCAL CDC::FromHandle(HDC hDC) {
    return ContextMap().FromHandle(hDC);
}

void PASCAL CDC::DeleteTempMap() {
    ContextMap().DeleteTemp();
}

BOOL CDC::Attach(HDC hDC) {
    ASSERT(m_hDC == nullptr);
    if (hDC == nullptr) {
        return FALSE;
    }
    Detach();
    m_hDC = hDC;
    ContextMap().SetPermanent(hDC, this);
    SetAttribDC(hDC);
    return TRUE;
}

HDC CDC::Detach() {
    const HDC handle = m_hDC;
    if (handle != nullptr) {
        ContextMap().RemovePermanent(handle, this);
    }
    m_hDC = nullptr;
    ReleaseAttribDC();
    return handle;
}

void CDC::SetOutputDC(HDC hDC) {
    ASSERT(m_hDC == nullptr || ContextMap().FindPermanent(m_hDC) != this);
    ContextMap().RemovePermanent(m_hDC, this);
    m_hDC = hDC;
}

void CDC::SetAttribDC(HDC hDC) {
    m_hAttribDC = hDC;
}

void CDC::ReleaseOutputDC() {
    ASSERT(m_hDC == nullptr || ContextMap().FindPermanent(m_hDC) != this);
    ContextMap().RemovePermanent(m_hDC, this);
    m_hDC = nullptr;
}

void CDC::ReleaseAttribDC() {
    m_hAttribDC = nullptr;
}

BOOL CDC::CreateCompatibleDC(CDC* pDC) {
    return Attach(::CreateCompatibleDC(afx::OutputOf(pDC)));
}

BOOL CDC::DeleteDC() {
    return m_hDC != nullptr && ::DeleteDC(Detach());
}

int CDC::SaveDC() {
    const int state = ::SaveDC(m_hDC);
    if (m_hAttribDC != m_hDC) {
        ::SaveDC(m_hAttribDC);
    }
    return state;
}

BOOL CDC::RestoreDC(int nSavedDC) {
    const BOOL restored = ::RestoreDC(m_hDC, nSavedDC);
    if (m_hAttribDC != m_hDC) {
        ::RestoreDC(m_hAttribDC, nSavedDC);
    }
    return restored;
}

int CDC::GetDeviceCaps(int nIndex) const {
    return ::GetDeviceCaps(m_hAttribDC, nIndex);
}

CGdiObject* CDC::SelectStockObject(int nIndex) {
    return CGdiObject::FromHandle(SelectOnBoth<HGDIOBJ>(*this, ::GetStockObject(nIndex)));
}

CPen* CDC::SelectObject(CPen* pPen) {
    return CPen::FromHandle(SelectOnBoth<HPEN>(*this, afx::HandleOf<HPEN>(pPen)));
}

CBrush* CDC::SelectObject(CBrush* pBrush) {
    return CBrush::FromHandle(SelectOnBoth<HBRUSH>(*this, afx::HandleOf<HBRUSH>(pBrush)));
}

CFont* CDC::SelectObject(CFont* pFont) {
    return CFont::FromHandle(SelectOnBoth<HFONT>(*this, afx::HandleOf<HFONT>(pFont)));
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap) {
    const HGDIOBJ previous = ::SelectObject(m_hDC, afx::HandleOf<HBITMAP>(pBitmap));
    return CBitmap::FromHandle(static_cast<HBITMAP>(previous));
}

int CDC::SelectObject(CRgn* pRgn) {
    return SelectClipRgn(pRgn);
}

CGdiObject* CDC::SelectObject(CGdiObject* pObject) {
    const HGDIOBJ object = afx::HandleOf<HGDIOBJ>(pObject);
    switch (::GetObjectType(object)) {
    case OBJ_REGION: // the result would be a complexity, not a handle
        afx::SetOnBoth(*this, [object](HDC hDC) { return ::SelectObject(hDC, object); });
        return nullptr;
    case OBJ_BITMAP:
        return CGdiObject::FromHandle(::SelectObject(m_hDC, object));
    default:
        return CGdiObject::FromHandle(SelectOnBoth<HGDIOBJ>(*this, object));
    }
}

CPen* CDC::GetCurrentPen() const {
    return CPen::FromHandle(CurrentObject<HPEN>(m_hAttribDC, OBJ_PEN));
}

CBrush* CDC::GetCurrentBrush() const {
    return CBrush::FromHandle(CurrentObject<HBRUSH>(m_hAttribDC, OBJ_BRUSH));
}

CFont* CDC::GetCurrentFont() const {
    return CFont::FromHandle(CurrentObject<HFONT>(m_hAttribDC, OBJ_FONT));
}

CBitmap* CDC::GetCurrentBitmap() const {
    return CBitmap::FromHandle(CurrentObject<HBITMAP>(m_hDC, OBJ_BITMAP));
}
