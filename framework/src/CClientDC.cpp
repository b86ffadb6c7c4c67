// SPDX-License-Identifier: MIT
#include "afx/CClientDC.h"

#include "afx/CWnd.h"

IMPLEMENT_DYNAMIC(CClientDC, CDC)

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(pWnd == nullptr ? nullptr : pWnd->m_hWnd) {
    if (!Attach(::GetDC(m_hWnd))) {
        AfxThrowResourceException();
    }
}

CClientDC::~CClientDC() {
    // A context got from a window is given back to it, not deleted.
    ::ReleaseDC(m_hWnd, Detach());
}
