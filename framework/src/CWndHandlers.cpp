// SPDX-License-Identifier: MIT
// CWnd: the default handlers that only let the window do what it would have done.
#include <afxwin.h>

// clang-format off

// Creation and destruction.
int CWnd::OnCreate(LPCREATESTRUCT) { return static_cast<int>(Default()); }
BOOL CWnd::OnNcCreate(LPCREATESTRUCT) { return Default() != 0; }
void CWnd::OnDestroy() { Default(); }
void CWnd::OnClose() { Default(); }
BOOL CWnd::OnQueryOpen() { return Default() != 0; }
void CWnd::OnChildActivate() { Default(); }

// Activation and focus.
void CWnd::OnActivate(UINT, CWnd*, BOOL) { Default(); }
void CWnd::OnActivateApp(BOOL, DWORD) { Default(); }
void CWnd::OnMDIActivate(BOOL, CWnd*, CWnd*) { Default(); }
BOOL CWnd::OnNcActivate(BOOL) { return Default() != 0; }
int CWnd::OnMouseActivate(CWnd*, UINT, UINT) { return static_cast<int>(Default()); }
void CWnd::OnSetFocus(CWnd*) { Default(); }
void CWnd::OnKillFocus(CWnd*) { Default(); }
void CWnd::OnEnable(BOOL) { Default(); }
void CWnd::OnCancelMode() { Default(); }
void CWnd::OnCaptureChanged(CWnd*) { Default(); }
void CWnd::OnEnterIdle(UINT, CWnd*) { Default(); }

// Size, position and style.
void CWnd::OnSize(UINT, int, int) { Default(); }
void CWnd::OnSizing(UINT, LPRECT) { Default(); }
void CWnd::OnMove(int, int) { Default(); }
void CWnd::OnMoving(UINT, LPRECT) { Default(); }
void CWnd::OnEnterSizeMove() { Default(); }
void CWnd::OnExitSizeMove() { Default(); }
void CWnd::OnGetMinMaxInfo(MINMAXINFO*) { Default(); }
void CWnd::OnShowWindow(BOOL, UINT) { Default(); }
void CWnd::OnWindowPosChanging(WINDOWPOS*) { Default(); }
void CWnd::OnWindowPosChanged(WINDOWPOS*) { Default(); }
void CWnd::OnStyleChanging(int, LPSTYLESTRUCT) { Default(); }
void CWnd::OnStyleChanged(int, LPSTYLESTRUCT) { Default(); }

// Painting.
void CWnd::OnPaint() { Default(); }
BOOL CWnd::OnEraseBkgnd(CDC*) { return Default() != 0; }
void CWnd::OnIconEraseBkgnd(CDC*) { Default(); }
void CWnd::OnNcPaint() { Default(); }
void CWnd::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*) { Default(); }
HCURSOR CWnd::OnQueryDragIcon() { return reinterpret_cast<HCURSOR>(Default()); }
void CWnd::OnPaletteChanged(CWnd*) { Default(); }
void CWnd::OnPaletteIsChanging(CWnd*) { Default(); }
BOOL CWnd::OnQueryNewPalette() { return Default() != 0; }

// Control colour and owner draw.

// Keyboard.
UINT CWnd::OnGetDlgCode() { return static_cast<UINT>(Default()); }
void CWnd::OnKeyDown(UINT, UINT, UINT) { Default(); }
void CWnd::OnKeyUp(UINT, UINT, UINT) { Default(); }
void CWnd::OnChar(UINT, UINT, UINT) { Default(); }
void CWnd::OnDeadChar(UINT, UINT, UINT) { Default(); }
void CWnd::OnUniChar(UINT, UINT, UINT) { Default(); }
void CWnd::OnSysKeyDown(UINT, UINT, UINT) { Default(); }
void CWnd::OnSysKeyUp(UINT, UINT, UINT) { Default(); }
void CWnd::OnSysChar(UINT, UINT, UINT) { Default(); }
void CWnd::OnSysDeadChar(UINT, UINT, UINT) { Default(); }
void CWnd::OnHotKey(UINT, UINT, UINT) { Default(); }
void CWnd::OnAppCommand(CWnd*, UINT, UINT, UINT) { Default(); }
BOOL CWnd::OnHelpInfo(HELPINFO*) { return Default() != 0; }
void CWnd::OnInputLangChange(UINT, UINT) { Default(); }
void CWnd::OnInputLangChangeRequest(UINT, UINT) { Default(); }

// Mouse in the client area.
BOOL CWnd::OnSetCursor(CWnd*, UINT, UINT) { return Default() != 0; }
void CWnd::OnMouseMove(UINT, CPoint) { Default(); }
void CWnd::OnMouseHover(UINT, CPoint) { Default(); }
void CWnd::OnMouseLeave() { Default(); }
BOOL CWnd::OnMouseWheel(UINT, short, CPoint) { return Default() != 0; }
void CWnd::OnMouseHWheel(UINT, short, CPoint) { Default(); }
void CWnd::OnLButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnLButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnLButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnRButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnRButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnRButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnMButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnMButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnMButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnXButtonDown(UINT, UINT, CPoint) { Default(); }
void CWnd::OnXButtonUp(UINT, UINT, CPoint) { Default(); }
void CWnd::OnXButtonDblClk(UINT, UINT, CPoint) { Default(); }
void CWnd::OnRawInput(UINT, HRAWINPUT) { Default(); }
void CWnd::OnInputDeviceChange(unsigned short) { Default(); }

// Mouse in the non-client area.
LRESULT CWnd::OnNcHitTest(CPoint) { return Default(); }
void CWnd::OnNcMouseMove(UINT, CPoint) { Default(); }
void CWnd::OnNcMouseHover(UINT, CPoint) { Default(); }
void CWnd::OnNcMouseLeave() { Default(); }
void CWnd::OnNcLButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnNcLButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnNcLButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnNcRButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnNcRButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnNcRButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnNcMButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnNcMButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnNcMButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnNcXButtonDown(short, UINT, CPoint) { Default(); }
void CWnd::OnNcXButtonUp(short, UINT, CPoint) { Default(); }
void CWnd::OnNcXButtonDblClk(short, UINT, CPoint) { Default(); }

// Scrolling and timers.
void CWnd::OnTimer(UINT_PTR) { Default(); }

// Menus and the system menu.
void CWnd::OnContextMenu(CWnd*, CPoint) { Default(); }
void CWnd::OnInitMenu(CMenu*) { Default(); }
void CWnd::OnInitMenuPopup(CMenu*, UINT, BOOL) { Default(); }
void CWnd::OnUnInitMenuPopup(CMenu*, UINT) { Default(); }
void CWnd::OnMenuSelect(UINT, UINT, HMENU) { Default(); }
LRESULT CWnd::OnMenuChar(UINT, UINT, CMenu*) { return Default(); }
UINT CWnd::OnMenuDrag(UINT, CMenu*) { return static_cast<UINT>(Default()); }
UINT CWnd::OnMenuGetObject(MENUGETOBJECTINFO*) { return static_cast<UINT>(Default()); }
void CWnd::OnMenuRButtonUp(UINT, CMenu*) { Default(); }
void CWnd::OnNextMenu(UINT, LPMDINEXTMENU) { Default(); }
void CWnd::OnEnterMenuLoop(BOOL) { Default(); }
void CWnd::OnExitMenuLoop(BOOL) { Default(); }
void CWnd::OnSysCommand(UINT, LPARAM) { Default(); }

// State of the user interface (focus rectangles, underlined letters).
void CWnd::OnChangeUIState(UINT, UINT) { Default(); }
void CWnd::OnUpdateUIState(UINT, UINT) { Default(); }
UINT CWnd::OnQueryUIState() { return static_cast<UINT>(Default()); }

// Changes of the system.
void CWnd::OnSettingChange(UINT, LPCTSTR) { Default(); }
void CWnd::OnWinIniChange(LPCTSTR) { Default(); }
void CWnd::OnFontChange() { Default(); }
void CWnd::OnDevModeChange(LPTSTR) { Default(); }
BOOL CWnd::OnDeviceChange(UINT, DWORD_PTR) { return Default() != 0; }
void CWnd::OnTimeChange() { Default(); }
void CWnd::OnCompacting(UINT) { Default(); }
void CWnd::OnSpoolerStatus(UINT, UINT) { Default(); }
UINT CWnd::OnPowerBroadcast(UINT, UINT) { return static_cast<UINT>(Default()); }
void CWnd::OnUserChanged() { Default(); }
void CWnd::OnSessionChange(UINT, UINT) { Default(); }
BOOL CWnd::OnQueryEndSession() { return Default() != 0; }
void CWnd::OnEndSession(BOOL) { Default(); }
void CWnd::OnCompositionChanged() { Default(); }
void CWnd::OnNcRenderingChanged(BOOL) { Default(); }
void CWnd::OnColorizationColorChanged(DWORD, BOOL) { Default(); }
void CWnd::OnWindowMaximizedChanged(BOOL) { Default(); }

// Clipboard, files and other programs.
void CWnd::OnAskCbFormatName(UINT, LPTSTR) { Default(); }
void CWnd::OnChangeCbChain(HWND, HWND) { Default(); }
void CWnd::OnClipboardUpdate() { Default(); }
void CWnd::OnDestroyClipboard() { Default(); }
void CWnd::OnDrawClipboard() { Default(); }
void CWnd::OnHScrollClipboard(CWnd*, UINT, UINT) { Default(); }
void CWnd::OnVScrollClipboard(CWnd*, UINT, UINT) { Default(); }
void CWnd::OnPaintClipboard(CWnd*, HGLOBAL) { Default(); }
void CWnd::OnSizeClipboard(CWnd*, HGLOBAL) { Default(); }
void CWnd::OnRenderAllFormats() { Default(); }
void CWnd::OnRenderFormat(UINT) { Default(); }
BOOL CWnd::OnCopyData(CWnd*, COPYDATASTRUCT*) { return Default() != 0; }
void CWnd::OnDropFiles(HDROP) { Default(); }
UINT CWnd::OnNotifyFormat(CWnd*, UINT) { return static_cast<UINT>(Default()); }
void CWnd::OnTCard(UINT, DWORD) { Default(); }
// clang-format on
