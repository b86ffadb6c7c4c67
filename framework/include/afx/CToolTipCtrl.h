// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CWnd.h"

/// A tool tip control: the small window with a text about the tool under the mouse.
///
/// A tool is a window, or, with an identifier that is not 0, a rectangle in the client area of one.
class CToolTipCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolTipCtrl)

public:
    CToolTipCtrl();

    /// @param pParentWnd the owner; while it is inactive, no tip shows without TTS_ALWAYSTIP.
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);

    /// @param lpszText   copied; LPSTR_TEXTCALLBACK asks the window by TTN_NEEDTEXT.
    /// @param lpRectTool in client coordinates of `pWnd`; null if and only if `nIDTool` is 0.
    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACK, LPCRECT lpRectTool = NULL,
                 UINT_PTR nIDTool = 0);
    void SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect);
    void UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);

    /// Shows the control a message of a tool's window, so that it knows where the mouse is.
    void RelayEvent(LPMSG lpMsg);
};
