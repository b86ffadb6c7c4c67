// SPDX-License-Identifier: MIT
#pragma once

#include <afxcmn.h>

#include <memory>
#include <type_traits>

#include "decorations/LinkShell.h"

/// A static text that opens its target when it is clicked.
///
///     class CMyDialog : public CDialog {
///         CHyperLink m_home;
///         void DoDataExchange(CDataExchange* exchange) override {
///             DDX_Control(exchange, IDC_HOME, m_home);
///         }
///         BOOL OnInitDialog() override {
///             CDialog::OnInitDialog();
///             m_home.SetURL("https://example.com/");
///             return TRUE;
///         }
///     };
///
/// Subclass any text static of a dialog with it.  Its text and target stand in for each other where one
/// is empty then.  The control shrinks or grows to its text, shows the target as its tool tip, lights
/// up under the mouse, and remembers that it was opened.  Give the static SS_NOPREFIX where the text may
/// hold an "&".
///
/// A link without a target is a button: a click sends the parent WM_COMMAND with the control's
/// identifier, so ON_COMMAND handles it.  A text in the template becomes the target, so such a
/// link says SetURL("") once it is attached.
///
/// In a dialog whose template gives it WS_TABSTOP the link takes part in the keyboard's way through the
/// dialog: Tab reaches it, a focus rectangle shows that, and Enter or Space open it.  Its text is what
/// screen readers call it.
///
/// Targets are handed on as they are.  Show none that the program did not choose or check: the shell
/// runs programs and documents as readily as it opens pages.
class CHyperLink : public CStatic {
public:
    /// When the text is underlined.
    enum Underline { kUnderlineHover = -1, kUnderlineNever = 0, kUnderlineAlways = 1 };

    CHyperLink() = default;
    ~CHyperLink() override = default;

    /// @name What it is; a change shows at once
    /// @{

    /// Sets the target, which the tool tip then shows.  The text stays; the control is fitted to it.
    void SetURL(CString url);
    CString GetURL() const { return m_url; }

    /// The colours at first are those of web pages, on whatever background the scheme has.
    /// @param hover  under the mouse; -1 stands for the highlight colour of this moment
    void SetColours(COLORREF link, COLORREF visited, COLORREF hover = kHighlight);
    COLORREF GetLinkColour() const { return m_linkColour; }
    COLORREF GetVisitedColour() const { return m_visitedColour; }
    COLORREF GetHoverColour() const { return m_hoverColour; }

    void SetVisited(BOOL visited = TRUE);
    BOOL GetVisited() const { return m_visited; }

    /// @param cursor  stays the caller's; null loads the hand of the system's help program
    void SetLinkCursor(HCURSOR cursor);
    /// Null where there is no such hand: the pointer then stays as it was outside.
    HCURSOR GetLinkCursor() const { return m_linkCursor; }

    /// @param mode  one of Underline.  Attaching the control sets kUnderlineHover: choose another one
    ///              afterwards.
    void SetUnderline(int mode);
    int GetUnderline() const { return m_underlineMode; }

    /// Whether the control takes the size of its text, at the edge its alignment says.
    void SetAutoSize(BOOL adjust = TRUE);
    BOOL GetAutoSize() const { return m_adjustToFit; }

    /// Has the link opened otherwise.
    /// @param shell  not owned, must outlive the link
    void SetShell(tint::LinkShell& shell) { m_shell = &shell; }
    /// @}

    /// @name Opening
    /// @{

    /// Opens a target with the shell or, where that fails, with the program registered for ".htm"
    /// files: its command up to the placeholder ("%1", with or without quotes), a blank and the target
    /// as it is, unquoted.
    ///
    /// The program is not run when its command is empty, or when it would be 260 bytes or longer with
    /// the target.
    /// @param showCmd  how the window is to appear: SW_SHOW ...
    /// @return above 32 on success, else the error code of the last one tried
    INT_PTR OpenUrl(const char* url, int showCmd);

    /// Tells the user why a target could not be opened; waits until the message is closed.
    /// @param code  as OpenUrl returned it
    void ReportError(int code);

    /// See tint::LinkShell::GetRegistryDefault.
    LONG GetRegistryDefault(HKEY root, const char* subKey, tint::LinkShell::Text& value);
    /// @}

    void PreSubclassWindow() override;
    BOOL PreTranslateMessage(MSG* message) override;
    BOOL DestroyWindow() override;

protected:
    afx_msg HBRUSH CtlColor(CDC* dc, UINT ctlColor);
    afx_msg BOOL OnSetCursor(CWnd* window, UINT hitTest, UINT message);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnTimer(UINT_PTR timer);
    afx_msg void OnClicked();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT key, UINT repeatCount, UINT flags);
    afx_msg void OnSetFocus(CWnd* before);
    afx_msg void OnKillFocus(CWnd* after);
    DECLARE_MESSAGE_MAP()

private:
    static constexpr COLORREF kHighlight = 0xFFFFFFFF;
    static constexpr UINT_PTR kTimerId = 100;
    static constexpr UINT_PTR kToolId = 1;

    struct CursorDeleter {
        void operator()(HCURSOR cursor) const { ::DestroyCursor(cursor); }
    };
    using OwnCursor = std::unique_ptr<std::remove_pointer_t<HCURSOR>, CursorDeleter>;

    static OwnCursor LoadHand();
    void CreateFonts();
    void CreateToolTip();
    void PositionWindow();
    void RedrawIfThere();
    bool HasTabStop() const { return (GetStyle() & WS_TABSTOP) != 0; }

    COLORREF m_linkColour = RGB(0, 0, 238);
    COLORREF m_visitedColour = RGB(85, 26, 139);
    COLORREF m_hoverColour = RGB(255, 0, 0);
    BOOL m_overLink = FALSE;
    BOOL m_visited = FALSE;
    int m_underlineMode = kUnderlineHover;
    BOOL m_adjustToFit = TRUE;
    CString m_url;
    CFont m_underlineFont;
    CFont m_normalFont;
    HCURSOR m_linkCursor = nullptr; ///< the caller's, or m_hand
    OwnCursor m_hand;
    CToolTipCtrl m_toolTip;
    tint::LinkShell* m_shell = &tint::LinkShell::System();
};
