// SPDX-License-Identifier: MIT
#include "afx/CPaintDC.h"

#include "afx/CWnd.h"

IMPLEMENT_DYNAMIC(CPaintDC, CDC)

CPaintDC::CPaintDC(CWnd* pWnd) : m_ps(), m_hWnd(pWnd == nullptr ? nullptr : pWnd->m_hWnd) {
    if (!Attach(::BeginPaint(m_hWnd, &m_ps))) {
        AfxThrowResourceException();
    }
}

CPaintDC::~CPaintDC() {
    Detach();
    ::EndPaint(m_hWnd, &m_ps);
}
