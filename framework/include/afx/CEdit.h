// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CWnd.h"

/// An edit control. Character positions count from 0 at the start of the text.
class CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)

public:
    CEdit();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
};
