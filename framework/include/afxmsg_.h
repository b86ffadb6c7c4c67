// SPDX-License-Identifier: MIT
/// @file
/// The lines of a message map: one ON_ macro for each kind of message.
///
/// A window message calls the member of CWnd's name and signature (ON_WM_SIZE: OnSize), which is
/// checked when the map is compiled. The ..._REFLECT forms stand in the map of a control, for
/// messages that it sent to its parent and that come back to it.
#pragma once

#include "afx/MessageCracker.h"

// Windows sends one message for each kind of control; the map has one line for all of them.
#ifndef WM_CTLCOLOR
#define WM_CTLCOLOR 0x0019
#endif

namespace afx {
/// Pointer to a member of T with the given function type.
template <class T, class Signature>
using Handler = Signature T::*;
} // namespace afx

// How a line is made. The lambda stands in a static member of the class whose map it is in: so it
// may name protected handlers, and ThisClass is the class of every target it is called for.
#define AFX_ON(message, code, id, lastId, registered, ...)                                        \
    {message,                                                                                     \
     static_cast<WORD>(code),                                                                     \
     static_cast<WORD>(id),                                                                       \
     static_cast<WORD>(lastId),                                                                   \
     registered,                                                                                  \
     []([[maybe_unused]] CCmdTarget* target, [[maybe_unused]] const afx::MapCall& call) -> BOOL { \
         __VA_ARGS__                                                                              \
     }},
#define AFX_HANDLER(memberFxn, ...) \
    (static_cast<ThisClass*>(target)->*static_cast<afx::Handler<ThisClass, __VA_ARGS__>>(memberFxn))

// A window message, called through a layout of MessageCracker.h.
#define AFX_ON_WINDOW(message, registered, memberFxn, signature, layout, how) \
    AFX_ON(message, 0, 0, 0, registered,                                      \
           return afx::crack::layout::how(                                    \
               target, static_cast<afx::Handler<ThisClass, signature>>(memberFxn), call);)
#define AFX_ON_WM(message, member, signature, layout) \
    AFX_ON_WINDOW(message, nullptr, &ThisClass::member, signature, layout, Call)
#define AFX_ON_WM_REFLECT(message, member, signature, layout, how) \
    AFX_ON_WINDOW(afx::ReflectBase + message, nullptr, &ThisClass::member, signature, layout, how)

// Commands and notifications: the handler either always ends the routing or says so itself.
#define AFX_ON_CODE(message, code, id, lastId, memberFxn, parameters, arguments)                  \
    AFX_ON(message, code, id, lastId, nullptr, AFX_HANDLER(memberFxn, void parameters) arguments; \
           return TRUE;)
#define AFX_ON_CODE_EX(message, code, id, lastId, memberFxn, parameters, arguments) \
    AFX_ON(message, code, id, lastId, nullptr,                                      \
           return AFX_HANDLER(memberFxn, BOOL parameters) arguments;)

// clang-format off
// ---- Window messages ----------------------------------------------------------------------------

// Creation and destruction
#define ON_WM_CREATE() AFX_ON_WM(WM_CREATE, OnCreate, int(LPCREATESTRUCT), L_)
#define ON_WM_NCCREATE() AFX_ON_WM(WM_NCCREATE, OnNcCreate, BOOL(LPCREATESTRUCT), L_)
#define ON_WM_DESTROY() AFX_ON_WM(WM_DESTROY, OnDestroy, void(), None)
#define ON_WM_NCDESTROY() AFX_ON_WM(WM_NCDESTROY, OnNcDestroy, void(), None)
#define ON_WM_CLOSE() AFX_ON_WM(WM_CLOSE, OnClose, void(), None)
#define ON_WM_QUERYOPEN() AFX_ON_WM(WM_QUERYOPEN, OnQueryOpen, BOOL(), None)
#define ON_WM_PARENTNOTIFY() AFX_ON_WM(WM_PARENTNOTIFY, OnParentNotify, void(UINT, LPARAM), W_L)
#define ON_WM_CHILDACTIVATE() AFX_ON_WM(WM_CHILDACTIVATE, OnChildActivate, void(), None)

// Activation and focus
#define ON_WM_ACTIVATE() AFX_ON_WM(WM_ACTIVATE, OnActivate, void(UINT, CWnd*, BOOL), WLow_L_WHigh)
#define ON_WM_ACTIVATEAPP() AFX_ON_WM(WM_ACTIVATEAPP, OnActivateApp, void(BOOL, DWORD), W_L)
#define ON_WM_MDIACTIVATE() \
    AFX_ON_WM(WM_MDIACTIVATE, OnMDIActivate, void(BOOL, CWnd*, CWnd*), MdiActivate)
#define ON_WM_NCACTIVATE() AFX_ON_WM(WM_NCACTIVATE, OnNcActivate, BOOL(BOOL), W_)
#define ON_WM_MOUSEACTIVATE() \
    AFX_ON_WM(WM_MOUSEACTIVATE, OnMouseActivate, int(CWnd*, UINT, UINT), W_LLow_LHigh)
#define ON_WM_SETFOCUS() AFX_ON_WM(WM_SETFOCUS, OnSetFocus, void(CWnd*), W_)
#define ON_WM_KILLFOCUS() AFX_ON_WM(WM_KILLFOCUS, OnKillFocus, void(CWnd*), W_)
#define ON_WM_ENABLE() AFX_ON_WM(WM_ENABLE, OnEnable, void(BOOL), W_)
#define ON_WM_CANCELMODE() AFX_ON_WM(WM_CANCELMODE, OnCancelMode, void(), None)
#define ON_WM_CAPTURECHANGED() AFX_ON_WM(WM_CAPTURECHANGED, OnCaptureChanged, void(CWnd*), L_)
#define ON_WM_ENTERIDLE() AFX_ON_WM(WM_ENTERIDLE, OnEnterIdle, void(UINT, CWnd*), W_L)

// Size, position and style
#define ON_WM_SIZE() AFX_ON_WM(WM_SIZE, OnSize, void(UINT, int, int), W_LLow_LHigh)
#define ON_WM_SIZING() AFX_ON_WM(WM_SIZING, OnSizing, void(UINT, LPRECT), W_L)
#define ON_WM_MOVE() AFX_ON_WM(WM_MOVE, OnMove, void(int, int), LX_LY)
#define ON_WM_MOVING() AFX_ON_WM(WM_MOVING, OnMoving, void(UINT, LPRECT), W_L)
#define ON_WM_ENTERSIZEMOVE() AFX_ON_WM(WM_ENTERSIZEMOVE, OnEnterSizeMove, void(), None)
#define ON_WM_EXITSIZEMOVE() AFX_ON_WM(WM_EXITSIZEMOVE, OnExitSizeMove, void(), None)
#define ON_WM_GETMINMAXINFO() AFX_ON_WM(WM_GETMINMAXINFO, OnGetMinMaxInfo, void(MINMAXINFO*), L_)
#define ON_WM_SHOWWINDOW() AFX_ON_WM(WM_SHOWWINDOW, OnShowWindow, void(BOOL, UINT), W_L)
#define ON_WM_WINDOWPOSCHANGING() \
    AFX_ON_WM(WM_WINDOWPOSCHANGING, OnWindowPosChanging, void(WINDOWPOS*), L_)
#define ON_WM_WINDOWPOSCHANGED() \
    AFX_ON_WM(WM_WINDOWPOSCHANGED, OnWindowPosChanged, void(WINDOWPOS*), L_)
#define ON_WM_STYLECHANGING() \
    AFX_ON_WM(WM_STYLECHANGING, OnStyleChanging, void(int, LPSTYLESTRUCT), W_L)
#define ON_WM_STYLECHANGED() \
    AFX_ON_WM(WM_STYLECHANGED, OnStyleChanged, void(int, LPSTYLESTRUCT), W_L)

// Painting
#define ON_WM_PAINT() AFX_ON_WM(WM_PAINT, OnPaint, void(), None)
#define ON_WM_ERASEBKGND() AFX_ON_WM(WM_ERASEBKGND, OnEraseBkgnd, BOOL(CDC*), W_)
#define ON_WM_ICONERASEBKGND() AFX_ON_WM(WM_ICONERASEBKGND, OnIconEraseBkgnd, void(CDC*), W_)
#define ON_WM_NCPAINT() AFX_ON_WM(WM_NCPAINT, OnNcPaint, void(), None)
#define ON_WM_NCCALCSIZE() \
    AFX_ON_WM(WM_NCCALCSIZE, OnNcCalcSize, void(BOOL, NCCALCSIZE_PARAMS*), W_L)
#define ON_WM_QUERYDRAGICON() AFX_ON_WM(WM_QUERYDRAGICON, OnQueryDragIcon, HCURSOR(), None)
#define ON_WM_PALETTECHANGED() AFX_ON_WM(WM_PALETTECHANGED, OnPaletteChanged, void(CWnd*), W_)
#define ON_WM_PALETTEISCHANGING() \
    AFX_ON_WM(WM_PALETTEISCHANGING, OnPaletteIsChanging, void(CWnd*), W_)
#define ON_WM_QUERYNEWPALETTE() AFX_ON_WM(WM_QUERYNEWPALETTE, OnQueryNewPalette, BOOL(), None)

// Control colour and owner draw
#define ON_WM_CTLCOLOR() AFX_ON_WM(WM_CTLCOLOR, OnCtlColor, HBRUSH(CDC*, CWnd*, UINT), W_L_CtlType)
#define ON_WM_DRAWITEM() AFX_ON_WM(WM_DRAWITEM, OnDrawItem, void(int, LPDRAWITEMSTRUCT), W_L)
#define ON_WM_MEASUREITEM() \
    AFX_ON_WM(WM_MEASUREITEM, OnMeasureItem, void(int, LPMEASUREITEMSTRUCT), W_L)
#define ON_WM_COMPAREITEM() \
    AFX_ON_WM(WM_COMPAREITEM, OnCompareItem, int(int, LPCOMPAREITEMSTRUCT), W_L)
#define ON_WM_DELETEITEM() \
    AFX_ON_WM(WM_DELETEITEM, OnDeleteItem, void(int, LPDELETEITEMSTRUCT), W_L)
#define ON_WM_CHARTOITEM() \
    AFX_ON_WM(WM_CHARTOITEM, OnCharToItem, int(UINT, CListBox*, UINT), WLow_L_WHigh)
#define ON_WM_VKEYTOITEM() \
    AFX_ON_WM(WM_VKEYTOITEM, OnVKeyToItem, int(UINT, CListBox*, UINT), WLow_L_WHigh)

// Keyboard
#define ON_WM_GETDLGCODE() AFX_ON_WM(WM_GETDLGCODE, OnGetDlgCode, UINT(), None)
#define ON_WM_KEYDOWN() AFX_ON_WM(WM_KEYDOWN, OnKeyDown, void(UINT, UINT, UINT), W_LLow_LHigh)
#define ON_WM_KEYUP() AFX_ON_WM(WM_KEYUP, OnKeyUp, void(UINT, UINT, UINT), W_LLow_LHigh)
#define ON_WM_CHAR() AFX_ON_WM(WM_CHAR, OnChar, void(UINT, UINT, UINT), W_LLow_LHigh)
#define ON_WM_DEADCHAR() AFX_ON_WM(WM_DEADCHAR, OnDeadChar, void(UINT, UINT, UINT), W_LLow_LHigh)
#define ON_WM_UNICHAR() AFX_ON_WM(WM_UNICHAR, OnUniChar, void(UINT, UINT, UINT), W_LLow_LHigh)
#define ON_WM_SYSKEYDOWN() \
    AFX_ON_WM(WM_SYSKEYDOWN, OnSysKeyDown, void(UINT, UINT, UINT), W_LLow_LHigh)
#define ON_WM_SYSKEYUP() AFX_ON_WM(WM_SYSKEYUP, OnSysKeyUp, void(UINT, UINT, UINT), W_LLow_LHigh)
#define ON_WM_SYSCHAR() AFX_ON_WM(WM_SYSCHAR, OnSysChar, void(UINT, UINT, UINT), W_LLow_LHigh)
#define ON_WM_SYSDEADCHAR() \
    AFX_ON_WM(WM_SYSDEADCHAR, OnSysDeadChar, void(UINT, UINT, UINT), W_LLow_LHigh)
#define ON_WM_HOTKEY() AFX_ON_WM(WM_HOTKEY, OnHotKey, void(UINT, UINT, UINT), W_LLow_LHigh)
#define ON_WM_APPCOMMAND() \
    AFX_ON_WM(WM_APPCOMMAND, OnAppCommand, void(CWnd*, UINT, UINT, UINT), AppCommand_)
#define ON_WM_HELPINFO() AFX_ON_WM(WM_HELP, OnHelpInfo, BOOL(HELPINFO*), L_)
#define ON_WM_INPUTLANGCHANGE() \
    AFX_ON_WM(WM_INPUTLANGCHANGE, OnInputLangChange, void(UINT, UINT), W_L)
#define ON_WM_INPUTLANGCHANGEREQUEST() \
    AFX_ON_WM(WM_INPUTLANGCHANGEREQUEST, OnInputLangChangeRequest, void(UINT, UINT), W_L)

// Mouse in the client area
#define ON_WM_SETCURSOR() \
    AFX_ON_WM(WM_SETCURSOR, OnSetCursor, BOOL(CWnd*, UINT, UINT), W_LLow_LHigh)
#define ON_WM_MOUSEMOVE() AFX_ON_WM(WM_MOUSEMOVE, OnMouseMove, void(UINT, CPoint), W_L)
#define ON_WM_MOUSEHOVER() AFX_ON_WM(WM_MOUSEHOVER, OnMouseHover, void(UINT, CPoint), W_L)
#define ON_WM_MOUSELEAVE() AFX_ON_WM(WM_MOUSELEAVE, OnMouseLeave, void(), None)
#define ON_WM_MOUSEWHEEL() \
    AFX_ON_WM(WM_MOUSEWHEEL, OnMouseWheel, BOOL(UINT, short, CPoint), WLow_WHigh_L)
#define ON_WM_MOUSEHWHEEL() \
    AFX_ON_WM(WM_MOUSEHWHEEL, OnMouseHWheel, void(UINT, short, CPoint), WLow_WHigh_L)
#define ON_WM_LBUTTONDOWN() AFX_ON_WM(WM_LBUTTONDOWN, OnLButtonDown, void(UINT, CPoint), W_L)
#define ON_WM_LBUTTONUP() AFX_ON_WM(WM_LBUTTONUP, OnLButtonUp, void(UINT, CPoint), W_L)
#define ON_WM_LBUTTONDBLCLK() AFX_ON_WM(WM_LBUTTONDBLCLK, OnLButtonDblClk, void(UINT, CPoint), W_L)
#define ON_WM_RBUTTONDOWN() AFX_ON_WM(WM_RBUTTONDOWN, OnRButtonDown, void(UINT, CPoint), W_L)
#define ON_WM_RBUTTONUP() AFX_ON_WM(WM_RBUTTONUP, OnRButtonUp, void(UINT, CPoint), W_L)
#define ON_WM_RBUTTONDBLCLK() AFX_ON_WM(WM_RBUTTONDBLCLK, OnRButtonDblClk, void(UINT, CPoint), W_L)
#define ON_WM_MBUTTONDOWN() AFX_ON_WM(WM_MBUTTONDOWN, OnMButtonDown, void(UINT, CPoint), W_L)
#define ON_WM_MBUTTONUP() AFX_ON_WM(WM_MBUTTONUP, OnMButtonUp, void(UINT, CPoint), W_L)
#define ON_WM_MBUTTONDBLCLK() AFX_ON_WM(WM_MBUTTONDBLCLK, OnMButtonDblClk, void(UINT, CPoint), W_L)
#define ON_WM_XBUTTONDOWN() \
    AFX_ON_WM(WM_XBUTTONDOWN, OnXButtonDown, void(UINT, UINT, CPoint), WLow_WHigh_L)
#define ON_WM_XBUTTONUP() \
    AFX_ON_WM(WM_XBUTTONUP, OnXButtonUp, void(UINT, UINT, CPoint), WLow_WHigh_L)
#define ON_WM_XBUTTONDBLCLK() \
    AFX_ON_WM(WM_XBUTTONDBLCLK, OnXButtonDblClk, void(UINT, UINT, CPoint), WLow_WHigh_L)
#define ON_WM_INPUT() AFX_ON_WM(WM_INPUT, OnRawInput, void(UINT, HRAWINPUT), W_L)
#define ON_WM_INPUT_DEVICE_CHANGE() \
    AFX_ON_WM(WM_INPUT_DEVICE_CHANGE, OnInputDeviceChange, void(unsigned short), W_)

// Mouse in the non-client area
#define ON_WM_NCHITTEST() AFX_ON_WM(WM_NCHITTEST, OnNcHitTest, LRESULT(CPoint), L_)
#define ON_WM_NCMOUSEMOVE() AFX_ON_WM(WM_NCMOUSEMOVE, OnNcMouseMove, void(UINT, CPoint), W_L)
#define ON_WM_NCMOUSEHOVER() AFX_ON_WM(WM_NCMOUSEHOVER, OnNcMouseHover, void(UINT, CPoint), W_L)
#define ON_WM_NCMOUSELEAVE() AFX_ON_WM(WM_NCMOUSELEAVE, OnNcMouseLeave, void(), None)
#define ON_WM_NCLBUTTONDOWN() AFX_ON_WM(WM_NCLBUTTONDOWN, OnNcLButtonDown, void(UINT, CPoint), W_L)
#define ON_WM_NCLBUTTONUP() AFX_ON_WM(WM_NCLBUTTONUP, OnNcLButtonUp, void(UINT, CPoint), W_L)
#define ON_WM_NCLBUTTONDBLCLK() \
    AFX_ON_WM(WM_NCLBUTTONDBLCLK, OnNcLButtonDblClk, void(UINT, CPoint), W_L)
#define ON_WM_NCRBUTTONDOWN() AFX_ON_WM(WM_NCRBUTTONDOWN, OnNcRButtonDown, void(UINT, CPoint), W_L)
#define ON_WM_NCRBUTTONUP() AFX_ON_WM(WM_NCRBUTTONUP, OnNcRButtonUp, void(UINT, CPoint), W_L)
#define ON_WM_NCRBUTTONDBLCLK() \
    AFX_ON_WM(WM_NCRBUTTONDBLCLK, OnNcRButtonDblClk, void(UINT, CPoint), W_L)
#define ON_WM_NCMBUTTONDOWN() AFX_ON_WM(WM_NCMBUTTONDOWN, OnNcMButtonDown, void(UINT, CPoint), W_L)
#define ON_WM_NCMBUTTONUP() AFX_ON_WM(WM_NCMBUTTONUP, OnNcMButtonUp, void(UINT, CPoint), W_L)
#define ON_WM_NCMBUTTONDBLCLK() \
    AFX_ON_WM(WM_NCMBUTTONDBLCLK, OnNcMButtonDblClk, void(UINT, CPoint), W_L)
#define ON_WM_NCXBUTTONDOWN() \
    AFX_ON_WM(WM_NCXBUTTONDOWN, OnNcXButtonDown, void(short, UINT, CPoint), WLow_WHigh_L)
#define ON_WM_NCXBUTTONUP() \
    AFX_ON_WM(WM_NCXBUTTONUP, OnNcXButtonUp, void(short, UINT, CPoint), WLow_WHigh_L)
#define ON_WM_NCXBUTTONDBLCLK() \
    AFX_ON_WM(WM_NCXBUTTONDBLCLK, OnNcXButtonDblClk, void(short, UINT, CPoint), WLow_WHigh_L)

// Scrolling and timers
#define ON_WM_HSCROLL() \
    AFX_ON_WM(WM_HSCROLL, OnHScroll, void(UINT, UINT, CScrollBar*), WLow_WHigh_L)
#define ON_WM_VSCROLL() \
    AFX_ON_WM(WM_VSCROLL, OnVScroll, void(UINT, UINT, CScrollBar*), WLow_WHigh_L)
#define ON_WM_TIMER() AFX_ON_WM(WM_TIMER, OnTimer, void(UINT_PTR), W_)

// Menus and the system menu
#define ON_WM_CONTEXTMENU() AFX_ON_WM(WM_CONTEXTMENU, OnContextMenu, void(CWnd*, CPoint), W_L)
#define ON_WM_INITMENU() AFX_ON_WM(WM_INITMENU, OnInitMenu, void(CMenu*), W_)
#define ON_WM_INITMENUPOPUP() \
    AFX_ON_WM(WM_INITMENUPOPUP, OnInitMenuPopup, void(CMenu*, UINT, BOOL), W_LLow_LHigh)
#define ON_WM_UNINITMENUPOPUP() \
    AFX_ON_WM(WM_UNINITMENUPOPUP, OnUnInitMenuPopup, void(CMenu*, UINT), W_LHigh)
#define ON_WM_MENUSELECT() \
    AFX_ON_WM(WM_MENUSELECT, OnMenuSelect, void(UINT, UINT, HMENU), WLow_WHigh_L)
#define ON_WM_MENUCHAR() \
    AFX_ON_WM(WM_MENUCHAR, OnMenuChar, LRESULT(UINT, UINT, CMenu*), WLow_WHigh_L)
#define ON_WM_MENUDRAG() AFX_ON_WM(WM_MENUDRAG, OnMenuDrag, UINT(UINT, CMenu*), W_L)
#define ON_WM_MENUGETOBJECT() \
    AFX_ON_WM(WM_MENUGETOBJECT, OnMenuGetObject, UINT(MENUGETOBJECTINFO*), L_)
#define ON_WM_MENURBUTTONUP() AFX_ON_WM(WM_MENURBUTTONUP, OnMenuRButtonUp, void(UINT, CMenu*), W_L)
#define ON_WM_NEXTMENU() AFX_ON_WM(WM_NEXTMENU, OnNextMenu, void(UINT, LPMDINEXTMENU), W_L)
#define ON_WM_ENTERMENULOOP() AFX_ON_WM(WM_ENTERMENULOOP, OnEnterMenuLoop, void(BOOL), W_)
#define ON_WM_EXITMENULOOP() AFX_ON_WM(WM_EXITMENULOOP, OnExitMenuLoop, void(BOOL), W_)
#define ON_WM_SYSCOMMAND() AFX_ON_WM(WM_SYSCOMMAND, OnSysCommand, void(UINT, LPARAM), W_L)

// State of the user interface (focus rectangles, underlined letters)
#define ON_WM_CHANGEUISTATE() \
    AFX_ON_WM(WM_CHANGEUISTATE, OnChangeUIState, void(UINT, UINT), WLow_WHigh)
#define ON_WM_UPDATEUISTATE() \
    AFX_ON_WM(WM_UPDATEUISTATE, OnUpdateUIState, void(UINT, UINT), WLow_WHigh)
#define ON_WM_QUERYUISTATE() AFX_ON_WM(WM_QUERYUISTATE, OnQueryUIState, UINT(), None)

// Changes of the system
#define ON_WM_SYSCOLORCHANGE() AFX_ON_WM(WM_SYSCOLORCHANGE, OnSysColorChange, void(), None)
#define ON_WM_SETTINGCHANGE() AFX_ON_WM(WM_SETTINGCHANGE, OnSettingChange, void(UINT, LPCTSTR), W_L)
#define ON_WM_WININICHANGE() AFX_ON_WM(WM_WININICHANGE, OnWinIniChange, void(LPCTSTR), L_)
#define ON_WM_FONTCHANGE() AFX_ON_WM(WM_FONTCHANGE, OnFontChange, void(), None)
#define ON_WM_DEVMODECHANGE() AFX_ON_WM(WM_DEVMODECHANGE, OnDevModeChange, void(LPTSTR), L_)
#define ON_WM_DEVICECHANGE() AFX_ON_WM(WM_DEVICECHANGE, OnDeviceChange, BOOL(UINT, DWORD_PTR), W_L)
#define ON_WM_TIMECHANGE() AFX_ON_WM(WM_TIMECHANGE, OnTimeChange, void(), None)
#define ON_WM_COMPACTING() AFX_ON_WM(WM_COMPACTING, OnCompacting, void(UINT), W_)
#define ON_WM_SPOOLERSTATUS() AFX_ON_WM(WM_SPOOLERSTATUS, OnSpoolerStatus, void(UINT, UINT), W_LLow)
#define ON_WM_POWERBROADCAST() AFX_ON_WM(WM_POWERBROADCAST, OnPowerBroadcast, UINT(UINT, UINT), W_L)
#define ON_WM_USERCHANGED() AFX_ON_WM(WM_USERCHANGED, OnUserChanged, void(), None)
#define ON_WM_WTSSESSION_CHANGE() \
    AFX_ON_WM(WM_WTSSESSION_CHANGE, OnSessionChange, void(UINT, UINT), W_L)
#define ON_WM_QUERYENDSESSION() AFX_ON_WM(WM_QUERYENDSESSION, OnQueryEndSession, BOOL(), None)
#define ON_WM_ENDSESSION() AFX_ON_WM(WM_ENDSESSION, OnEndSession, void(BOOL), W_)
#define ON_WM_DWMCOMPOSITIONCHANGED() \
    AFX_ON_WM(WM_DWMCOMPOSITIONCHANGED, OnCompositionChanged, void(), None)
#define ON_WM_DWMNCRENDERINGCHANGED() \
    AFX_ON_WM(WM_DWMNCRENDERINGCHANGED, OnNcRenderingChanged, void(BOOL), W_)
#define ON_WM_DWMCOLORIZATIONCOLORCHANGED() \
    AFX_ON_WM(WM_DWMCOLORIZATIONCOLORCHANGED, OnColorizationColorChanged, void(DWORD, BOOL), W_L)
#define ON_WM_DWMWINDOWMAXIMIZEDCHANGE() \
    AFX_ON_WM(WM_DWMWINDOWMAXIMIZEDCHANGE, OnWindowMaximizedChanged, void(BOOL), W_)

// Clipboard, files and other programs
#define ON_WM_ASKCBFORMATNAME() \
    AFX_ON_WM(WM_ASKCBFORMATNAME, OnAskCbFormatName, void(UINT, LPTSTR), W_L)
#define ON_WM_CHANGECBCHAIN() AFX_ON_WM(WM_CHANGECBCHAIN, OnChangeCbChain, void(HWND, HWND), W_L)
#define ON_WM_CLIPBOARDUPDATE() AFX_ON_WM(WM_CLIPBOARDUPDATE, OnClipboardUpdate, void(), None)
#define ON_WM_DESTROYCLIPBOARD() AFX_ON_WM(WM_DESTROYCLIPBOARD, OnDestroyClipboard, void(), None)
#define ON_WM_DRAWCLIPBOARD() AFX_ON_WM(WM_DRAWCLIPBOARD, OnDrawClipboard, void(), None)
#define ON_WM_HSCROLLCLIPBOARD() \
    AFX_ON_WM(WM_HSCROLLCLIPBOARD, OnHScrollClipboard, void(CWnd*, UINT, UINT), W_LLow_LHigh)
#define ON_WM_VSCROLLCLIPBOARD() \
    AFX_ON_WM(WM_VSCROLLCLIPBOARD, OnVScrollClipboard, void(CWnd*, UINT, UINT), W_LLow_LHigh)
#define ON_WM_PAINTCLIPBOARD() \
    AFX_ON_WM(WM_PAINTCLIPBOARD, OnPaintClipboard, void(CWnd*, HGLOBAL), W_L)
#define ON_WM_SIZECLIPBOARD() \
    AFX_ON_WM(WM_SIZECLIPBOARD, OnSizeClipboard, void(CWnd*, HGLOBAL), W_L)
#define ON_WM_RENDERALLFORMATS() AFX_ON_WM(WM_RENDERALLFORMATS, OnRenderAllFormats, void(), None)
#define ON_WM_RENDERFORMAT() AFX_ON_WM(WM_RENDERFORMAT, OnRenderFormat, void(UINT), W_)
#define ON_WM_COPYDATA() AFX_ON_WM(WM_COPYDATA, OnCopyData, BOOL(CWnd*, COPYDATASTRUCT*), W_L)
#define ON_WM_DROPFILES() AFX_ON_WM(WM_DROPFILES, OnDropFiles, void(HDROP), W_)
#define ON_WM_NOTIFYFORMAT() AFX_ON_WM(WM_NOTIFYFORMAT, OnNotifyFormat, UINT(CWnd*, UINT), W_L)
#define ON_WM_TCARD() AFX_ON_WM(WM_TCARD, OnTCard, void(UINT, DWORD), W_L)

// ---- Window messages that come back to the control ----------------------------------------------

#define ON_WM_CTLCOLOR_REFLECT() \
    AFX_ON_WM_REFLECT(WM_CTLCOLOR, CtlColor, HBRUSH(CDC*, UINT), W_CtlType, CallUnlessNull)
#define ON_WM_DRAWITEM_REFLECT() \
    AFX_ON_WM_REFLECT(WM_DRAWITEM, DrawItem, void(LPDRAWITEMSTRUCT), L_, Call)
#define ON_WM_MEASUREITEM_REFLECT() \
    AFX_ON_WM_REFLECT(WM_MEASUREITEM, MeasureItem, void(LPMEASUREITEMSTRUCT), L_, Call)
#define ON_WM_COMPAREITEM_REFLECT() \
    AFX_ON_WM_REFLECT(WM_COMPAREITEM, CompareItem, int(LPCOMPAREITEMSTRUCT), L_, Call)
#define ON_WM_DELETEITEM_REFLECT() \
    AFX_ON_WM_REFLECT(WM_DELETEITEM, DeleteItem, void(LPDELETEITEMSTRUCT), L_, Call)
#define ON_WM_CHARTOITEM_REFLECT() \
    AFX_ON_WM_REFLECT(WM_CHARTOITEM, CharToItem, int(UINT, UINT), WLow_WHigh, Call)
#define ON_WM_VKEYTOITEM_REFLECT() \
    AFX_ON_WM_REFLECT(WM_VKEYTOITEM, VKeyToItem, int(UINT, UINT), WLow_WHigh, Call)
#define ON_WM_HSCROLL_REFLECT() \
    AFX_ON_WM_REFLECT(WM_HSCROLL, HScroll, void(UINT, UINT), WLow_WHigh, Call)
#define ON_WM_VSCROLL_REFLECT() \
    AFX_ON_WM_REFLECT(WM_VSCROLL, VScroll, void(UINT, UINT), WLow_WHigh, Call)
#define ON_WM_PARENTNOTIFY_REFLECT() \
    AFX_ON_WM_REFLECT(WM_PARENTNOTIFY, ParentNotify, void(UINT, LPARAM), W_L, Call)

// ---- Messages of the program --------------------------------------------------------------------

// LRESULT memberFxn(WPARAM, LPARAM)
#define ON_MESSAGE(message, memberFxn) \
    AFX_ON_WINDOW(message, nullptr, memberFxn, LRESULT(WPARAM, LPARAM), W_L, Call)
// nMessageVariable: the variable that RegisterWindowMessage() was assigned to.
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn) \
    AFX_ON_WINDOW(afx::RegisteredMessage, &nMessageVariable, memberFxn, LRESULT(WPARAM, \
                  LPARAM), W_L, Call)

// Messages posted to a thread: void memberFxn(WPARAM, LPARAM) in the map of a CWinThread.
#define ON_THREAD_MESSAGE(message, memberFxn) \
    AFX_ON(message, 0, 0, 0, nullptr, \
           AFX_HANDLER(memberFxn, void(WPARAM, LPARAM))(call.wParam, call.lParam); return TRUE;)
#define ON_REGISTERED_THREAD_MESSAGE(nMessageVariable, memberFxn) \
    AFX_ON(afx::RegisteredMessage, 0, 0, 0, &nMessageVariable, \
           AFX_HANDLER(memberFxn, void(WPARAM, LPARAM))(call.wParam, call.lParam); return TRUE;)

// ---- Commands -----------------------------------------------------------------------------------

// void memberFxn()
#define ON_COMMAND(nID, memberFxn) AFX_ON_CODE(WM_COMMAND, CN_COMMAND, nID, nID, memberFxn, (), ())
// void memberFxn(UINT nID)
#define ON_COMMAND_RANGE(nID, nIDLast, memberFxn) \
    AFX_ON_CODE(WM_COMMAND, CN_COMMAND, nID, nIDLast, memberFxn, (UINT), (call.id))
// BOOL memberFxn(UINT nID): FALSE lets the routing go on
#define ON_COMMAND_EX(nID, memberFxn) \
    AFX_ON_CODE_EX(WM_COMMAND, CN_COMMAND, nID, nID, memberFxn, (UINT), (call.id))
#define ON_COMMAND_EX_RANGE(nID, nIDLast, memberFxn) \
    AFX_ON_CODE_EX(WM_COMMAND, CN_COMMAND, nID, nIDLast, memberFxn, (UINT), (call.id))
#define ON_COMMAND_RANGE_EX(nID, nIDLast, memberFxn) ON_COMMAND_EX_RANGE(nID, nIDLast, memberFxn)

// void memberFxn(CCmdUI* pCmdUI)
#define ON_UPDATE_COMMAND_UI(nID, memberFxn) \
    AFX_ON_CODE(WM_COMMAND, CN_UPDATE_COMMAND_UI, nID, nID, memberFxn, (CCmdUI*), (call.ui))
#define ON_UPDATE_COMMAND_UI_RANGE(nID, nIDLast, memberFxn) \
    AFX_ON_CODE(WM_COMMAND, CN_UPDATE_COMMAND_UI, nID, nIDLast, memberFxn, (CCmdUI*), (call.ui))
#define ON_UPDATE_COMMAND_UI_REFLECT(memberFxn) \
    AFX_ON_CODE(afx::ReflectBase + WM_COMMAND, CN_UPDATE_COMMAND_UI, 0, 0, memberFxn, (CCmdUI*), \
                (call.ui))

// ---- Notifications of controls through WM_COMMAND -----------------------------------------------

// void memberFxn()
#define ON_CONTROL(wNotifyCode, nID, memberFxn) \
    AFX_ON_CODE(WM_COMMAND, wNotifyCode, nID, nID, memberFxn, (), ())
// void memberFxn(UINT nID)
#define ON_CONTROL_RANGE(wNotifyCode, nID, nIDLast, memberFxn) \
    AFX_ON_CODE(WM_COMMAND, wNotifyCode, nID, nIDLast, memberFxn, (UINT), (call.id))
// In the control's own map: void memberFxn(); the parent is not told any more.
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn) \
    AFX_ON_CODE(afx::ReflectBase + WM_COMMAND, wNotifyCode, 0, 0, memberFxn, (), ())
// BOOL memberFxn(): FALSE leaves the notification to the parent
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn) \
    AFX_ON_CODE_EX(afx::ReflectBase + WM_COMMAND, wNotifyCode, 0, 0, memberFxn, (), ())

#define ON_STN_CLICKED(nID, memberFxn) ON_CONTROL(STN_CLICKED, nID, memberFxn)
#define ON_STN_DBLCLK(nID, memberFxn) ON_CONTROL(STN_DBLCLK, nID, memberFxn)
#define ON_STN_ENABLE(nID, memberFxn) ON_CONTROL(STN_ENABLE, nID, memberFxn)
#define ON_STN_DISABLE(nID, memberFxn) ON_CONTROL(STN_DISABLE, nID, memberFxn)

#define ON_BN_CLICKED(nID, memberFxn) ON_CONTROL(BN_CLICKED, nID, memberFxn)
#define ON_BN_DOUBLECLICKED(nID, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, nID, memberFxn)
#define ON_BN_SETFOCUS(nID, memberFxn) ON_CONTROL(BN_SETFOCUS, nID, memberFxn)
#define ON_BN_KILLFOCUS(nID, memberFxn) ON_CONTROL(BN_KILLFOCUS, nID, memberFxn)
#define ON_BN_PAINT(nID, memberFxn) ON_CONTROL(BN_PAINT, nID, memberFxn)
#define ON_BN_HILITE(nID, memberFxn) ON_CONTROL(BN_HILITE, nID, memberFxn)
#define ON_BN_UNHILITE(nID, memberFxn) ON_CONTROL(BN_UNHILITE, nID, memberFxn)
#define ON_BN_DISABLE(nID, memberFxn) ON_CONTROL(BN_DISABLE, nID, memberFxn)

#define ON_EN_SETFOCUS(nID, memberFxn) ON_CONTROL(EN_SETFOCUS, nID, memberFxn)
#define ON_EN_KILLFOCUS(nID, memberFxn) ON_CONTROL(EN_KILLFOCUS, nID, memberFxn)
#define ON_EN_CHANGE(nID, memberFxn) ON_CONTROL(EN_CHANGE, nID, memberFxn)
#define ON_EN_UPDATE(nID, memberFxn) ON_CONTROL(EN_UPDATE, nID, memberFxn)
#define ON_EN_ERRSPACE(nID, memberFxn) ON_CONTROL(EN_ERRSPACE, nID, memberFxn)
#define ON_EN_MAXTEXT(nID, memberFxn) ON_CONTROL(EN_MAXTEXT, nID, memberFxn)
#define ON_EN_HSCROLL(nID, memberFxn) ON_CONTROL(EN_HSCROLL, nID, memberFxn)
#define ON_EN_VSCROLL(nID, memberFxn) ON_CONTROL(EN_VSCROLL, nID, memberFxn)

#define ON_LBN_ERRSPACE(nID, memberFxn) ON_CONTROL(LBN_ERRSPACE, nID, memberFxn)
#define ON_LBN_SELCHANGE(nID, memberFxn) ON_CONTROL(LBN_SELCHANGE, nID, memberFxn)
#define ON_LBN_DBLCLK(nID, memberFxn) ON_CONTROL(LBN_DBLCLK, nID, memberFxn)
#define ON_LBN_SELCANCEL(nID, memberFxn) ON_CONTROL(LBN_SELCANCEL, nID, memberFxn)
#define ON_LBN_SETFOCUS(nID, memberFxn) ON_CONTROL(LBN_SETFOCUS, nID, memberFxn)
#define ON_LBN_KILLFOCUS(nID, memberFxn) ON_CONTROL(LBN_KILLFOCUS, nID, memberFxn)

#define ON_CBN_ERRSPACE(nID, memberFxn) ON_CONTROL(CBN_ERRSPACE, nID, memberFxn)
#define ON_CBN_SELCHANGE(nID, memberFxn) ON_CONTROL(CBN_SELCHANGE, nID, memberFxn)
#define ON_CBN_DBLCLK(nID, memberFxn) ON_CONTROL(CBN_DBLCLK, nID, memberFxn)
#define ON_CBN_SETFOCUS(nID, memberFxn) ON_CONTROL(CBN_SETFOCUS, nID, memberFxn)
#define ON_CBN_KILLFOCUS(nID, memberFxn) ON_CONTROL(CBN_KILLFOCUS, nID, memberFxn)
#define ON_CBN_EDITCHANGE(nID, memberFxn) ON_CONTROL(CBN_EDITCHANGE, nID, memberFxn)
#define ON_CBN_EDITUPDATE(nID, memberFxn) ON_CONTROL(CBN_EDITUPDATE, nID, memberFxn)
#define ON_CBN_DROPDOWN(nID, memberFxn) ON_CONTROL(CBN_DROPDOWN, nID, memberFxn)
#define ON_CBN_CLOSEUP(nID, memberFxn) ON_CONTROL(CBN_CLOSEUP, nID, memberFxn)
#define ON_CBN_SELENDOK(nID, memberFxn) ON_CONTROL(CBN_SELENDOK, nID, memberFxn)
#define ON_CBN_SELENDCANCEL(nID, memberFxn) ON_CONTROL(CBN_SELENDCANCEL, nID, memberFxn)

// ---- Notifications of controls through WM_NOTIFY ------------------------------------------------

// void memberFxn(NMHDR* pNotifyStruct, LRESULT* result)
#define ON_NOTIFY(wNotifyCode, nID, memberFxn) \
    AFX_ON_CODE(WM_NOTIFY, wNotifyCode, nID, nID, memberFxn, (NMHDR*, LRESULT*), \
                (call.notify, call.result))
// void memberFxn(UINT id, NMHDR* pNotifyStruct, LRESULT* result)
#define ON_NOTIFY_RANGE(wNotifyCode, nID, nIDLast, memberFxn) \
    AFX_ON_CODE(WM_NOTIFY, wNotifyCode, nID, nIDLast, memberFxn, (UINT, NMHDR*, LRESULT*), \
                (call.id, call.notify, call.result))
// BOOL memberFxn(UINT id, NMHDR* pNotifyStruct, LRESULT* result): FALSE lets the routing go on
#define ON_NOTIFY_EX(wNotifyCode, nID, memberFxn) \
    AFX_ON_CODE_EX(WM_NOTIFY, wNotifyCode, nID, nID, memberFxn, (UINT, NMHDR*, LRESULT*), \
                   (call.id, call.notify, call.result))
#define ON_NOTIFY_EX_RANGE(wNotifyCode, nID, nIDLast, memberFxn) \
    AFX_ON_CODE_EX(WM_NOTIFY, wNotifyCode, nID, nIDLast, memberFxn, (UINT, NMHDR*, LRESULT*), \
                   (call.id, call.notify, call.result))
// In the control's own map: void memberFxn(NMHDR* pNotifyStruct, LRESULT* result)
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn) \
    AFX_ON_CODE(afx::ReflectBase + WM_NOTIFY, wNotifyCode, 0, 0, memberFxn, (NMHDR*, LRESULT*), \
                (call.notify, call.result))
// BOOL memberFxn(NMHDR* pNotifyStruct, LRESULT* result): FALSE leaves it to the parent
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn) \
    AFX_ON_CODE_EX(afx::ReflectBase + WM_NOTIFY, wNotifyCode, 0, 0, memberFxn, (NMHDR*, LRESULT*), \
                   (call.notify, call.result))
// clang-format on
