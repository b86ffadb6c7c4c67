// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CWnd.h"

/// A scroll bar that is a control of its own.
class CScrollBar : public CWnd {
    DECLARE_DYNAMIC(CScrollBar)

public:
    CScrollBar();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
};
