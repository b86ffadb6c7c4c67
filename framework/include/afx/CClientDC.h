// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CDC.h"

/// The client area of a window as a device context, released on destruction.
class CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)

public:
    /// @param pWnd  null for the whole screen.
    /// Throws CResourceException when no device context can be had.
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};
