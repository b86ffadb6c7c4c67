// SPDX-License-Identifier: MIT
#include "afx/CWindowDC.h"

#include "afx/CWnd.h"

IMPLEMENT_DYNAMIC(CWindowDC, CDC)

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(pWnd == nullptr ? nullptr : pWnd->m_hWnd) {
    if (!Attach(::GetWindowDC(m_hWnd))) {
        AfxThrowResourceException();
    }
}

CWindowDC::~CWindowDC() {
    // A context got from a window is given back to it, not deleted.
    ::ReleaseDC(m_hWnd, Detach());
}
