// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CDC.h"

/// A whole window, frame included, as a device context, released on destruction. The origin is the
/// upper left corner of the window.
class CWindowDC : public CDC {
    DECLARE_DYNAMIC(CWindowDC)

public:
    /// @param pWnd  null for the whole screen.
    /// Throws CResourceException when no device context can be had.
    explicit CWindowDC(CWnd* pWnd);
    ~CWindowDC() override;

protected:
    HWND m_hWnd;
};
