// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CWnd.h"

/// The row of captions above the columns of a list. Items count from 0 in the order of their
/// creation, whatever order they are shown in.
class CHeaderCtrl : public CWnd {
    DECLARE_DYNAMIC(CHeaderCtrl)

public:
    CHeaderCtrl();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// @return -1 on failure.
    int GetItemCount() const;
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const;
};
