// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CDC.h"

/// The part of a window's client area that needs painting; for the handling of WM_PAINT only. The
/// constructor begins the painting, which validates the area, and the destructor ends it.
class CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)

public:
    /// Throws CResourceException when no device context can be had.
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;

    /// What the beginning of the painting reported.
    PAINTSTRUCT m_ps;

protected:
    HWND m_hWnd;
};
