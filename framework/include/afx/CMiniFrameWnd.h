// SPDX-License-Identifier: MIT
/// @file
/// CMiniFrameWnd: a small frame, as around floating bars.
#pragma once

#include "afx/CFrameWnd.h"

/// A popup frame with a small caption, without menu and message line.
class CMiniFrameWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMiniFrameWnd)

public:
    CMiniFrameWnd();

    virtual BOOL Create(LPCTSTR lpClassName, LPCTSTR lpWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd = NULL, UINT nID = 0);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpClassName, LPCTSTR lpWindowName, DWORD dwStyle,
                          const RECT& rect, CWnd* pParentWnd = NULL, UINT nID = 0);
};
