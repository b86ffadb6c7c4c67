// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

/// One popup-menu window of the system, with a flat frame in place of its raised border and a soft
/// shadow on its right and bottom.  A popup that hangs below an open bar item opens its frame to it.
///
/// The window is made four pixels larger each way, which its client area does not get: there lies the
/// shadow.  It is placed a pixel higher, onto the bottom line of the open bar item.
///
/// Made by the hook of CMenuXP and owned by CMenuXP's map of popups.
class CWndMenuXP {
public:
    /// @param popup  of the class "#32768"; not owned
    explicit CWndMenuXP(HWND popup);

    /// Gives the window its own procedure back.
    ~CWndMenuXP();

    CWndMenuXP(const CWndMenuXP&) = delete;
    CWndMenuXP& operator=(const CWndMenuXP&) = delete;

    /// Puts PopupWndProc in front of the window's procedure, once.
    /// @return false when the window does not let it
    static bool Subclass(HWND popup);

    /// Takes the window's procedure as it was before.  A window that somebody else has subclassed in
    /// the meantime keeps both until it is destroyed: PopupWndProc then only passes messages on.
    static void Unsubclass(HWND popup);

    /// The procedure of subclassed popups.
    static LRESULT CALLBACK PopupWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    /// The family of the system; see tint::OsClassOf.
    static int GetOSClass();

private:
    void OnWindowPosChanging(WINDOWPOS& position);
    void OnEraseBackground();
    void CaptureBackground(SIZE size);
    void PaintNonClient();
    void PaintOverClient();
    void Print(HDC target, bool joined);

    CRect FrameAtOrigin() const;
    void RememberPosition();
    void DrawFrame(CDC& dc, CRect frame, bool join) const;
    void DrawJoin(CDC& dc) const;
    void PrintShadow(CDC& dc, const CRect& frame);
    void RestoreBackground(CDC& dc, const CRect& frame);

    HWND m_window;
    CRect m_lastFrame; ///< the window at the origin, when its frame was last painted
    int m_x = -65535;  ///< where the window is on the screen, as last seen
    int m_y = -65535;
    CBitmap m_background; ///< what the screen showed under the popup before it came
};
