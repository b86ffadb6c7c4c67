// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CWnd.h"

/// A scroll bar that is a control of its own.
class CScrollBar : public CWnd {
    DECLARE_DYNAMIC(CScrollBar)

public:
    CScrollBar();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetScrollPos() const;
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE);
    void GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const;
    void SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    void ShowScrollBar(BOOL bShow = TRUE);
    BOOL EnableScrollBar(UINT nArrowFlags = ESB_ENABLE_BOTH);
    BOOL SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    BOOL GetScrollBarInfo(PSCROLLBARINFO pScrollInfo) const;
    /// The largest position the scroll box can be moved to.
    int GetScrollLimit();
};
