// SPDX-License-Identifier: MIT
/// @file
/// CWnd: a window, and what a program does to and hears from it.
#pragma once

#include "afx/Platform.h"

#include <commctrl.h>
#include <shellapi.h>

#include "afx/CCmdTarget.h"
#include "afx/CString.h"
#include "atltypes.h"

// A macro of winuser.h, and a member here.
#undef GetNextWindow

class CBitmap;
class CDataExchange;
class CDC;
class CFont;
class CFrameWnd;
class CListBox;
class CRgn;
class CScrollBar;
struct CCreateContext;

namespace afx {
struct WndAccess;
}

// Flags of CWnd::RunModalLoop.
/// No WM_ENTERIDLE to the parent.
#define MLF_NOIDLEMSG 0x0001
/// No WM_KICKIDLE to the window itself.
#define MLF_NOKICKIDLE 0x0002
/// Show the window when the message queue becomes empty for the first time.
#define MLF_SHOWONIDLE 0x0004

/// A window. The object and the window are two things: the object can be without a window, be
/// attached to one that exists, or create one; `m_hWnd` is null when there is none.
///
/// The members that only pass their arguments on to the Windows function of the same name have no
/// comment here. Coordinates are client coordinates in pixels unless said otherwise. A pointer to
/// a window object that is returned may be temporary: it is valid until the program is idle.
class CWnd : public CCmdTarget {
    DECLARE_DYNCREATE(CWnd)

public:
    /// The handle of the window; null when there is none. Do not assign to it: use Attach().
    HWND m_hWnd;

    CWnd();
    /// Destroys the window, if there still is one. Overrides of OnDestroy() and PostNcDestroy() are
    /// no longer called then: destroy the window first.
    ~CWnd() override;

    operator HWND() const { return m_hWnd; }
    BOOL operator==(const CWnd& wnd) const { return wnd.m_hWnd == m_hWnd; }
    BOOL operator!=(const CWnd& wnd) const { return wnd.m_hWnd != m_hWnd; }

    // ---- Handles and objects --------------------------------------------------------------------

    /// The handle; null for a null pointer, too.
    HWND GetSafeHwnd() const;
    /// The object of the window: the one the program attached, else a temporary one.
    static CWnd* PASCAL FromHandle(HWND hWnd);
    /// The object the program attached to the window; null when there is none.
    static CWnd* PASCAL FromHandlePermanent(HWND hWnd);
    /// Deletes the temporary objects of this thread. Called when the program is idle.
    static void PASCAL DeleteTempMap();
    /// Connects the object with a window whose behaviour stays as it is.
    BOOL Attach(HWND hWnd);
    /// Ends the connection; the window stays. @return the handle.
    HWND Detach();

    /// Called before the window's procedure is replaced, while its messages do not come here yet.
    virtual void PreSubclassWindow();
    /// Connects the object with a window and sends the window's messages through the object. The
    /// window must not have a permanent object already.
    BOOL SubclassWindow(HWND hWnd);
    /// SubclassWindow() for the control of that identifier.
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    /// Gives the window its own procedure back and detaches it. @return its handle.
    HWND UnsubclassWindow();

    // ---- Creation and destruction ---------------------------------------------------------------

    /// Creates a child window.
    /// @param lpszClassName a registered class; null for the framework's own.
    /// @param rect          in client coordinates of the parent.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                        const RECT& rect, CWnd* pParentWnd, UINT nID,
                        CCreateContext* pContext = NULL);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                          DWORD dwStyle, int x, int y, int nWidth, int nHeight, HWND hWndParent,
                          HMENU nIDorHMenu, LPVOID lpParam = NULL);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                          DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID,
                          LPVOID lpParam = NULL);
    /// Called with the arguments of the creation, which it may change. FALSE cancels the creation.
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual BOOL DestroyWindow();

    // ---- State and style ------------------------------------------------------------------------

    DWORD GetStyle() const;
    DWORD GetExStyle() const;
    /// @param nFlags SWP_ flags for a SetWindowPos() that makes the change visible; 0 for none.
    /// @return zero when nothing changed.
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    BOOL EnableWindow(BOOL bEnable = TRUE);
    BOOL IsWindowEnabled() const;
    BOOL IsWindowVisible() const;
    BOOL IsIconic() const;
    BOOL IsZoomed() const;
    BOOL ShowWindow(int nCmdShow);

    // ---- Text, font, icon, identifier -----------------------------------------------------------

    void SetWindowText(LPCTSTR lpszString);
    void GetWindowText(CString& rString) const;
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);
    CFont* GetFont() const;
    int GetDlgCtrlID() const;
    int SetDlgCtrlID(int nID);

    // ---- Size and position ----------------------------------------------------------------------

    void GetWindowRect(LPRECT lpRect) const;
    void GetClientRect(LPRECT lpRect) const;
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE);
    void MoveWindow(LPCRECT lpRect, BOOL bRepaint = TRUE);
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    void BringWindowToTop();
    /// What RepositionBars() is to do.
    enum RepositionFlags { reposDefault = 0, reposQuery = 1, reposExtra = 2 };
    /// Lets the control bars among the children take their parts of the client area.
    /// @param nIDFirst, nIDLast  identifiers of the children that take part.
    /// @param nIDLeftOver  the child that fills what is left.
    /// @param nFlag        reposQuery: moves nothing, `lpRectParam` receives what would be left;
    ///                     reposExtra: `lpRectParam` is taken off the child that fills the rest.
    /// @param lpRectClient the area to lay out; null for the client area.
    /// @param bStretch     FALSE with reposQuery: receives the size of the bars instead.
    void RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag = reposDefault,
                        LPRECT lpRectParam = NULL, LPCRECT lpRectClient = NULL,
                        BOOL bStretch = TRUE);
    /// Centres the window on its parent, its owner or the given window, inside the monitor's work
    /// area (a child: inside its parent).
    void CenterWindow(CWnd* pAlternateOwner = NULL);
    /// How CalcWindowRect() treats a client edge.
    enum AdjustType { adjustBorder = 0, adjustOutside = 1 };
    virtual void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder);
    void ClientToScreen(LPPOINT lpPoint) const;
    void ClientToScreen(LPRECT lpRect) const;
    void ScreenToClient(LPPOINT lpPoint) const;
    void ScreenToClient(LPRECT lpRect) const;
    void MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const;

    // ---- Painting -------------------------------------------------------------------------------

    void Invalidate(BOOL bErase = TRUE);
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE);
    void InvalidateRgn(CRgn* pRgn, BOOL bErase = TRUE);
    void ValidateRect(LPCRECT lpRect);
    BOOL GetUpdateRect(LPRECT lpRect, BOOL bErase = FALSE);
    int GetUpdateRgn(CRgn* pRgn, BOOL bErase = FALSE);
    void UpdateWindow();
    BOOL RedrawWindow(LPCRECT lpRectUpdate = NULL, CRgn* prgnUpdate = NULL,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    void SetRedraw(BOOL bRedraw = TRUE);

    // ---- Scrolling and timers -------------------------------------------------------------------

    /// The control that serves as the window's scroll bar; null here.
    virtual CScrollBar* GetScrollBarCtrl(int nBar) const;
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse,
                      void(CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD));
    BOOL KillTimer(UINT_PTR nIDEvent);

    // ---- Focus, capture, activation, caret, clipboard -------------------------------------------

    static CWnd* PASCAL GetFocus();
    CWnd* SetFocus();
    static CWnd* PASCAL GetCapture();
    CWnd* SetCapture();
    static CWnd* PASCAL GetForegroundWindow();
    BOOL SetForegroundWindow();
    BOOL OpenClipboard();

    // ---- Relatives ------------------------------------------------------------------------------

    CWnd* GetParent() const;
    CWnd* SetParent(CWnd* pWndNewParent);
    /// The window commands and notifications go to: the one set, else the parent.
    CWnd* GetOwner() const;
    void SetOwner(CWnd* pOwnerWnd);
    /// The nearest frame window up the chain of parents.
    CFrameWnd* GetParentFrame() const;
    /// The outermost parent, a window without WS_CHILD.
    CWnd* GetTopLevelParent() const;
    /// The outermost window, owners included.
    CWnd* GetTopLevelOwner() const;
    /// The window a dialog or message box should be owned by.
    /// @param pParent where to start; null for the main window.
    /// @param pWndTop if not null: receives the top-level window that was disabled here and is to
    ///                be enabled afterwards, or null.
    static CWnd* PASCAL GetSafeOwner(CWnd* pParent = NULL, HWND* pWndTop = NULL);
    BOOL IsChild(const CWnd* pWnd) const;
    CWnd* GetWindow(UINT nCmd) const;
    CWnd* GetNextWindow(UINT nFlag = GW_HWNDNEXT) const;

    // ---- Items of a dialog ----------------------------------------------------------------------

    CWnd* GetDlgItem(int nID) const;
    void GetDlgItem(int nID, HWND* phWnd) const;
    /// The child with that identifier, at any depth.
    CWnd* GetDescendantWindow(int nID, BOOL bOnlyPerm = FALSE) const;
    int GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const;
    int GetDlgItemText(int nID, CString& rString) const;
    void SetDlgItemText(int nID, LPCTSTR lpszString);
    void CheckDlgButton(int nIDButton, UINT nCheck);
    UINT IsDlgButtonChecked(int nIDButton) const;
    LRESULT SendDlgItemMessage(int nID, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL IsDialogMessage(LPMSG lpMsg);
    /// Sends the messages of an RT_DLGINIT resource to the controls.
    BOOL ExecuteDlgInit(LPCTSTR lpszResourceName);
    BOOL ExecuteDlgInit(LPVOID lpResource);
    /// Moves data between the controls and the members, through DoDataExchange().
    /// @param bSaveAndValidate TRUE from the controls to the members.
    /// @return zero when the data was refused.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);
    /// Updates the enabled state of the controls through the target's update handlers.
    void UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);

    // ---- Menus ----------------------------------------------------------------------------------

    CMenu* GetMenu() const;
    BOOL SetMenu(CMenu* pMenu);
    void DrawMenuBar();

    // ---- Messages -------------------------------------------------------------------------------

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0,
                                  BOOL bDeep = TRUE, BOOL bOnlyPerm = FALSE);
    /// Sees a message before it is dispatched. Nonzero when the message is done with.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Gives the current message of the parent to this control, which may handle it.
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = NULL);

    // ---- Modal state ----------------------------------------------------------------------------

    /// Handles messages until ContinueModal() says no. @param dwFlags MLF_ flags.
    /// @return what EndModalLoop() was given; -1 when the program is to end.
    int RunModalLoop(DWORD dwFlags = 0);
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int nResult);
    virtual void BeginModalState();
    virtual void EndModalState();

    // ---- Tool tips ------------------------------------------------------------------------------

    /// Takes the tool tip away. @param bKeys also the text in the status bar.
    static void PASCAL CancelToolTips(BOOL bKeys = FALSE);
    /// Shows and hides the tool tip by the messages of mouse and keyboard.
    void FilterToolTipMessage(MSG* pMsg);
    /// Finds the tool under a point, here the child window. @return its identifier, or -1.
    virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const;

protected:
    // ---- The way of a message -------------------------------------------------------------------

    /// Receives every message of the window: OnWndMsg(), and DefWindowProc() for what it leaves.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// Looks for the handler of a message and calls it.
    /// @param pResult receives the result; may be null.
    /// @return zero when nothing handled the message.
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// Calls the procedure the window had before it was subclassed, or that of the system.
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// DefWindowProc() with the message that is being handled.
    LRESULT Default();
    /// The message that is being handled; only to be called by a handler.
    static const MSG* PASCAL GetCurrentMessage();

    /// WM_COMMAND: gives a notification to the control it came from, then routes the command.
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    /// WM_NOTIFY: gives the notification to the control it came from, then routes it.
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// Called in a control for a message it sent to its parent. Nonzero when it is done with.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// Looks for a reflecting handler (ON_..._REFLECT) of the message and calls it.
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// SendChildNotifyLastMsg() of the window's object, if it is a permanent one.
    static BOOL PASCAL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = NULL);

    /// Called after the last message of the window; the object may delete itself here.
    virtual void PostNcDestroy();
    /// Moves data between controls and members; see Ddx.h. Call it through UpdateData().
    virtual void DoDataExchange(CDataExchange* pDX);

    // ---- Default handlers -----------------------------------------------------------------------
    // Each does what the window would do without it. Called by an override, it uses the parameters
    // of the message, not the ones it is given.

    // Creation and destruction.
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnNcDestroy();
    afx_msg void OnClose();
    afx_msg BOOL OnQueryOpen();
    afx_msg void OnParentNotify(UINT message, LPARAM lParam);
    afx_msg void OnChildActivate();
    // Activation and focus.
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg void OnActivateApp(BOOL bActive, DWORD dwThreadID);
    afx_msg void OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd);
    afx_msg BOOL OnNcActivate(BOOL bActive);
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnCancelMode();
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnEnterIdle(UINT nWhy, CWnd* pWho);
    // Size, position and style.
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSizing(UINT nSide, LPRECT lpRect);
    afx_msg void OnMove(int x, int y);
    afx_msg void OnMoving(UINT nSide, LPRECT lpRect);
    afx_msg void OnEnterSizeMove();
    afx_msg void OnExitSizeMove();
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI);
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg void OnWindowPosChanging(WINDOWPOS* lpWndPos);
    afx_msg void OnWindowPosChanged(WINDOWPOS* lpWndPos);
    afx_msg void OnStyleChanging(int nStyleType, LPSTYLESTRUCT lpStyleStruct);
    afx_msg void OnStyleChanged(int nStyleType, LPSTYLESTRUCT lpStyleStruct);
    // Painting.
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnIconEraseBkgnd(CDC* pDC);
    afx_msg void OnNcPaint();
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp);
    afx_msg HCURSOR OnQueryDragIcon();
    afx_msg void OnPaletteChanged(CWnd* pFocusWnd);
    afx_msg void OnPaletteIsChanging(CWnd* pRealizeWnd);
    afx_msg BOOL OnQueryNewPalette();
    // Control colour and owner draw.
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    afx_msg int OnCompareItem(int nIDCtl, LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    afx_msg void OnDeleteItem(int nIDCtl, LPDELETEITEMSTRUCT lpDeleteItemStruct);
    afx_msg int OnCharToItem(UINT nChar, CListBox* pListBox, UINT nIndex);
    afx_msg int OnVKeyToItem(UINT nKey, CListBox* pListBox, UINT nIndex);
    // Keyboard.
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnDeadChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnUniChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysDeadChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnHotKey(UINT nHotKeyId, UINT nKey1, UINT nKey2);
    afx_msg void OnAppCommand(CWnd* pWnd, UINT nCmd, UINT nDevice, UINT nKey);
    afx_msg BOOL OnHelpInfo(HELPINFO* lpHelpInfo);
    afx_msg void OnInputLangChange(UINT nCharSet, UINT nLocaleId);
    afx_msg void OnInputLangChangeRequest(UINT nFlags, UINT nLocaleId);
    // Mouse in the client area.
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseHover(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnMouseHWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnMButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnMButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnMButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnXButtonDown(UINT nFlags, UINT nButton, CPoint point);
    afx_msg void OnXButtonUp(UINT nFlags, UINT nButton, CPoint point);
    afx_msg void OnXButtonDblClk(UINT nFlags, UINT nButton, CPoint point);
    afx_msg void OnRawInput(UINT nInputCode, HRAWINPUT hRawInput);
    afx_msg void OnInputDeviceChange(unsigned short nFlags);
    // Mouse in the non-client area.
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnNcMouseMove(UINT nHitTest, CPoint point);
    afx_msg void OnNcMouseHover(UINT nHitTest, CPoint point);
    afx_msg void OnNcMouseLeave();
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonUp(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT nHitTest, CPoint point);
    afx_msg void OnNcRButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcRButtonUp(UINT nHitTest, CPoint point);
    afx_msg void OnNcRButtonDblClk(UINT nHitTest, CPoint point);
    afx_msg void OnNcMButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcMButtonUp(UINT nHitTest, CPoint point);
    afx_msg void OnNcMButtonDblClk(UINT nHitTest, CPoint point);
    afx_msg void OnNcXButtonDown(short nHitTest, UINT nButton, CPoint point);
    afx_msg void OnNcXButtonUp(short nHitTest, UINT nButton, CPoint point);
    afx_msg void OnNcXButtonDblClk(short nHitTest, UINT nButton, CPoint point);
    // Scrolling and timers.
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    // Menus and the system menu.
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos);
    afx_msg void OnInitMenu(CMenu* pMenu);
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg void OnUnInitMenuPopup(CMenu* pPopupMenu, UINT nFlags);
    afx_msg void OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu);
    afx_msg LRESULT OnMenuChar(UINT nChar, UINT nFlags, CMenu* pMenu);
    afx_msg UINT OnMenuDrag(UINT nPos, CMenu* pMenu);
    afx_msg UINT OnMenuGetObject(MENUGETOBJECTINFO* pMenuGetObjectInfo);
    afx_msg void OnMenuRButtonUp(UINT nPos, CMenu* pMenu);
    afx_msg void OnNextMenu(UINT nKey, LPMDINEXTMENU lpMdiNextMenu);
    afx_msg void OnEnterMenuLoop(BOOL bIsTrackPopupMenu);
    afx_msg void OnExitMenuLoop(BOOL bIsTrackPopupMenu);
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
    // State of the user interface (focus rectangles, underlined letters).
    afx_msg void OnChangeUIState(UINT nAction, UINT nUIElement);
    afx_msg void OnUpdateUIState(UINT nAction, UINT nUIElement);
    afx_msg UINT OnQueryUIState();
    // Changes of the system.
    afx_msg void OnSysColorChange();
    afx_msg void OnSettingChange(UINT uFlags, LPCTSTR lpszSection);
    afx_msg void OnWinIniChange(LPCTSTR lpszSection);
    afx_msg void OnFontChange();
    afx_msg void OnDevModeChange(LPTSTR lpDeviceName);
    afx_msg BOOL OnDeviceChange(UINT nEventType, DWORD_PTR dwData);
    afx_msg void OnTimeChange();
    afx_msg void OnCompacting(UINT nCpuTime);
    afx_msg void OnSpoolerStatus(UINT nStatus, UINT nJobs);
    afx_msg UINT OnPowerBroadcast(UINT nPowerEvent, UINT nEventData);
    afx_msg void OnUserChanged();
    afx_msg void OnSessionChange(UINT nSessionState, UINT nId);
    afx_msg BOOL OnQueryEndSession();
    afx_msg void OnEndSession(BOOL bEnding);
    afx_msg void OnCompositionChanged();
    afx_msg void OnNcRenderingChanged(BOOL bIsRendering);
    afx_msg void OnColorizationColorChanged(DWORD dwColorizationColor, BOOL bOpacity);
    afx_msg void OnWindowMaximizedChanged(BOOL bIsMaximized);
    // Clipboard, files and other programs.
    afx_msg void OnAskCbFormatName(UINT nMaxCount, LPTSTR lpszString);
    afx_msg void OnChangeCbChain(HWND hWndRemove, HWND hWndAfter);
    afx_msg void OnClipboardUpdate();
    afx_msg void OnDestroyClipboard();
    afx_msg void OnDrawClipboard();
    afx_msg void OnHScrollClipboard(CWnd* pClipAppWnd, UINT nSBCode, UINT nPos);
    afx_msg void OnVScrollClipboard(CWnd* pClipAppWnd, UINT nSBCode, UINT nPos);
    afx_msg void OnPaintClipboard(CWnd* pClipAppWnd, HGLOBAL hPaintStruct);
    afx_msg void OnSizeClipboard(CWnd* pClipAppWnd, HGLOBAL hRect);
    afx_msg void OnRenderAllFormats();
    afx_msg void OnRenderFormat(UINT nFormat);
    afx_msg BOOL OnCopyData(CWnd* pWnd, COPYDATASTRUCT* pCopyDataStruct);
    afx_msg void OnDropFiles(HDROP hDropInfo);
    afx_msg UINT OnNotifyFormat(CWnd* pWnd, UINT nCommand);
    afx_msg void OnTCard(UINT idAction, DWORD dwActionData);

    DECLARE_MESSAGE_MAP()

private:
    friend class CDialog;
    friend struct afx::WndAccess;

    /// Null unless the window is a frame window, which returns itself.
    virtual CFrameWnd* AsFrameWnd() { return nullptr; }
    /// Called when the mouse comes to another tool. @param tool its identifier; -1 for none.
    virtual void ShowStatusTextOfTool(INT_PTR tool) { UNUSED_ALWAYS(tool); }
    BOOL CreateHandle(CREATESTRUCT& cs);
    void ForgetAsMainWindow();

    /// The procedure of the window before it was subclassed; null for the framework's own.
    WNDPROC m_superProc;
    HWND m_ownerHandle;
    /// A modal loop is to go on.
    bool m_modal;
    int m_modalResult;
};

/// The window procedure of every window with a permanent object.
LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
/// Calls CWnd::WindowProc. Framework exceptions end here: CWinThread::ProcessWndProcException
/// answers the message then.
LRESULT AFXAPI AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam = 0,
                              LPARAM lParam = 0);
/// Registers a window class with a name made from the arguments; the same arguments give the same
/// class. Throws CResourceException when the class cannot be registered.
/// @return the name, valid until the next call.
LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = 0, HBRUSH hbrBackground = 0,
                                   HICON hIcon = 0);
/// Registers a window class. TRUE, too, when the class is registered already.
BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass);
