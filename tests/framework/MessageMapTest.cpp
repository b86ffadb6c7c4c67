// SPDX-License-Identifier: MIT
// Message maps: which handler is called, with which arguments, and who is asked first.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace {

// ---- Window messages ----------------------------------------------------------------------------

// The parameters every window message is sent with here: four words to tell apart.
constexpr WPARAM W = 0x00120034;
constexpr LPARAM L = 0x00560078;

// clang-format off
// One line for each macro, by the number of its handler's arguments: macro, handler, result, types
// of the arguments, message, and the arguments it is to be called with (hexadecimal; a wrapper is
// shown with its class, any other pointer or handle with a p).
#define ROWS0(X) \
    X(ON_WM_DESTROY, OnDestroy, void, WM_DESTROY, "") \
    X(ON_WM_NCDESTROY, OnNcDestroy, void, WM_NCDESTROY, "") \
    X(ON_WM_CLOSE, OnClose, void, WM_CLOSE, "") \
    X(ON_WM_QUERYOPEN, OnQueryOpen, BOOL, WM_QUERYOPEN, "") \
    X(ON_WM_CHILDACTIVATE, OnChildActivate, void, WM_CHILDACTIVATE, "") \
    X(ON_WM_CANCELMODE, OnCancelMode, void, WM_CANCELMODE, "") \
    X(ON_WM_ENTERSIZEMOVE, OnEnterSizeMove, void, WM_ENTERSIZEMOVE, "") \
    X(ON_WM_EXITSIZEMOVE, OnExitSizeMove, void, WM_EXITSIZEMOVE, "") \
    X(ON_WM_PAINT, OnPaint, void, WM_PAINT, "") \
    X(ON_WM_NCPAINT, OnNcPaint, void, WM_NCPAINT, "") \
    X(ON_WM_QUERYDRAGICON, OnQueryDragIcon, HCURSOR, WM_QUERYDRAGICON, "") \
    X(ON_WM_QUERYNEWPALETTE, OnQueryNewPalette, BOOL, WM_QUERYNEWPALETTE, "") \
    X(ON_WM_GETDLGCODE, OnGetDlgCode, UINT, WM_GETDLGCODE, "") \
    X(ON_WM_MOUSELEAVE, OnMouseLeave, void, WM_MOUSELEAVE, "") \
    X(ON_WM_NCMOUSELEAVE, OnNcMouseLeave, void, WM_NCMOUSELEAVE, "") \
    X(ON_WM_QUERYUISTATE, OnQueryUIState, UINT, WM_QUERYUISTATE, "") \
    X(ON_WM_SYSCOLORCHANGE, OnSysColorChange, void, WM_SYSCOLORCHANGE, "") \
    X(ON_WM_FONTCHANGE, OnFontChange, void, WM_FONTCHANGE, "") \
    X(ON_WM_TIMECHANGE, OnTimeChange, void, WM_TIMECHANGE, "") \
    X(ON_WM_USERCHANGED, OnUserChanged, void, WM_USERCHANGED, "") \
    X(ON_WM_QUERYENDSESSION, OnQueryEndSession, BOOL, WM_QUERYENDSESSION, "") \
    X(ON_WM_DWMCOMPOSITIONCHANGED, OnCompositionChanged, void, WM_DWMCOMPOSITIONCHANGED, "") \
    X(ON_WM_CLIPBOARDUPDATE, OnClipboardUpdate, void, WM_CLIPBOARDUPDATE, "") \
    X(ON_WM_DESTROYCLIPBOARD, OnDestroyClipboard, void, WM_DESTROYCLIPBOARD, "") \
    X(ON_WM_DRAWCLIPBOARD, OnDrawClipboard, void, WM_DRAWCLIPBOARD, "") \
    X(ON_WM_RENDERALLFORMATS, OnRenderAllFormats, void, WM_RENDERALLFORMATS, "")

#define ROWS1(X) \
    X(ON_WM_CREATE, OnCreate, int, LPCREATESTRUCT, WM_CREATE, "p560078") \
    X(ON_WM_NCCREATE, OnNcCreate, BOOL, LPCREATESTRUCT, WM_NCCREATE, "p560078") \
    X(ON_WM_NCACTIVATE, OnNcActivate, BOOL, BOOL, WM_NCACTIVATE, "120034") \
    X(ON_WM_SETFOCUS, OnSetFocus, void, CWnd*, WM_SETFOCUS, "CWnd:120034") \
    X(ON_WM_KILLFOCUS, OnKillFocus, void, CWnd*, WM_KILLFOCUS, "CWnd:120034") \
    X(ON_WM_ENABLE, OnEnable, void, BOOL, WM_ENABLE, "120034") \
    X(ON_WM_CAPTURECHANGED, OnCaptureChanged, void, CWnd*, WM_CAPTURECHANGED, "CWnd:560078") \
    X(ON_WM_GETMINMAXINFO, OnGetMinMaxInfo, void, MINMAXINFO*, WM_GETMINMAXINFO, "p560078") \
    X(ON_WM_WINDOWPOSCHANGING, OnWindowPosChanging, void, WINDOWPOS*, WM_WINDOWPOSCHANGING, \
      "p560078") \
    X(ON_WM_WINDOWPOSCHANGED, OnWindowPosChanged, void, WINDOWPOS*, WM_WINDOWPOSCHANGED, \
      "p560078") \
    X(ON_WM_ERASEBKGND, OnEraseBkgnd, BOOL, CDC*, WM_ERASEBKGND, "CDC:120034") \
    X(ON_WM_ICONERASEBKGND, OnIconEraseBkgnd, void, CDC*, WM_ICONERASEBKGND, "CDC:120034") \
    X(ON_WM_PALETTECHANGED, OnPaletteChanged, void, CWnd*, WM_PALETTECHANGED, "CWnd:120034") \
    X(ON_WM_PALETTEISCHANGING, OnPaletteIsChanging, void, CWnd*, WM_PALETTEISCHANGING, \
      "CWnd:120034") \
    X(ON_WM_HELPINFO, OnHelpInfo, BOOL, HELPINFO*, WM_HELP, "p560078") \
    X(ON_WM_INPUT_DEVICE_CHANGE, OnInputDeviceChange, void, unsigned short, \
      WM_INPUT_DEVICE_CHANGE, "34") \
    X(ON_WM_NCHITTEST, OnNcHitTest, LRESULT, CPoint, WM_NCHITTEST, "(78,56)") \
    X(ON_WM_TIMER, OnTimer, void, UINT_PTR, WM_TIMER, "120034") \
    X(ON_WM_INITMENU, OnInitMenu, void, CMenu*, WM_INITMENU, "CMenu:120034") \
    X(ON_WM_MENUGETOBJECT, OnMenuGetObject, UINT, MENUGETOBJECTINFO*, WM_MENUGETOBJECT, "p560078") \
    X(ON_WM_ENTERMENULOOP, OnEnterMenuLoop, void, BOOL, WM_ENTERMENULOOP, "120034") \
    X(ON_WM_EXITMENULOOP, OnExitMenuLoop, void, BOOL, WM_EXITMENULOOP, "120034") \
    X(ON_WM_DEVMODECHANGE, OnDevModeChange, void, LPTSTR, WM_DEVMODECHANGE, "p560078") \
    X(ON_WM_COMPACTING, OnCompacting, void, UINT, WM_COMPACTING, "120034") \
    X(ON_WM_ENDSESSION, OnEndSession, void, BOOL, WM_ENDSESSION, "120034") \
    X(ON_WM_DWMNCRENDERINGCHANGED, OnNcRenderingChanged, void, BOOL, WM_DWMNCRENDERINGCHANGED, \
      "120034") \
    X(ON_WM_DWMWINDOWMAXIMIZEDCHANGE, OnWindowMaximizedChanged, void, BOOL, \
      WM_DWMWINDOWMAXIMIZEDCHANGE, "120034") \
    X(ON_WM_RENDERFORMAT, OnRenderFormat, void, UINT, WM_RENDERFORMAT, "120034") \
    X(ON_WM_DROPFILES, OnDropFiles, void, HDROP, WM_DROPFILES, "p120034")

#define ROWS2(X) \
    X(ON_WM_PARENTNOTIFY, OnParentNotify, void, UINT, LPARAM, WM_PARENTNOTIFY, "120034 560078") \
    X(ON_WM_ACTIVATEAPP, OnActivateApp, void, BOOL, DWORD, WM_ACTIVATEAPP, "120034 560078") \
    X(ON_WM_ENTERIDLE, OnEnterIdle, void, UINT, CWnd*, WM_ENTERIDLE, "120034 CWnd:560078") \
    X(ON_WM_SIZING, OnSizing, void, UINT, LPRECT, WM_SIZING, "120034 p560078") \
    X(ON_WM_MOVE, OnMove, void, int, int, WM_MOVE, "78 56") \
    X(ON_WM_MOVING, OnMoving, void, UINT, LPRECT, WM_MOVING, "120034 p560078") \
    X(ON_WM_SHOWWINDOW, OnShowWindow, void, BOOL, UINT, WM_SHOWWINDOW, "120034 560078") \
    X(ON_WM_STYLECHANGING, OnStyleChanging, void, int, LPSTYLESTRUCT, WM_STYLECHANGING, \
      "120034 p560078") \
    X(ON_WM_STYLECHANGED, OnStyleChanged, void, int, LPSTYLESTRUCT, WM_STYLECHANGED, \
      "120034 p560078") \
    X(ON_WM_NCCALCSIZE, OnNcCalcSize, void, BOOL, NCCALCSIZE_PARAMS*, WM_NCCALCSIZE, \
      "120034 p560078") \
    X(ON_WM_DRAWITEM, OnDrawItem, void, int, LPDRAWITEMSTRUCT, WM_DRAWITEM, "120034 p560078") \
    X(ON_WM_MEASUREITEM, OnMeasureItem, void, int, LPMEASUREITEMSTRUCT, WM_MEASUREITEM, \
      "120034 p560078") \
    X(ON_WM_COMPAREITEM, OnCompareItem, int, int, LPCOMPAREITEMSTRUCT, WM_COMPAREITEM, \
      "120034 p560078") \
    X(ON_WM_DELETEITEM, OnDeleteItem, void, int, LPDELETEITEMSTRUCT, WM_DELETEITEM, \
      "120034 p560078") \
    X(ON_WM_INPUTLANGCHANGE, OnInputLangChange, void, UINT, UINT, WM_INPUTLANGCHANGE, \
      "120034 560078") \
    X(ON_WM_INPUTLANGCHANGEREQUEST, OnInputLangChangeRequest, void, UINT, UINT, \
      WM_INPUTLANGCHANGEREQUEST, "120034 560078") \
    X(ON_WM_MOUSEMOVE, OnMouseMove, void, UINT, CPoint, WM_MOUSEMOVE, "120034 (78,56)") \
    X(ON_WM_MOUSEHOVER, OnMouseHover, void, UINT, CPoint, WM_MOUSEHOVER, "120034 (78,56)") \
    X(ON_WM_LBUTTONDOWN, OnLButtonDown, void, UINT, CPoint, WM_LBUTTONDOWN, "120034 (78,56)") \
    X(ON_WM_LBUTTONUP, OnLButtonUp, void, UINT, CPoint, WM_LBUTTONUP, "120034 (78,56)") \
    X(ON_WM_LBUTTONDBLCLK, OnLButtonDblClk, void, UINT, CPoint, WM_LBUTTONDBLCLK, \
      "120034 (78,56)") \
    X(ON_WM_RBUTTONDOWN, OnRButtonDown, void, UINT, CPoint, WM_RBUTTONDOWN, "120034 (78,56)") \
    X(ON_WM_RBUTTONUP, OnRButtonUp, void, UINT, CPoint, WM_RBUTTONUP, "120034 (78,56)") \
    X(ON_WM_RBUTTONDBLCLK, OnRButtonDblClk, void, UINT, CPoint, WM_RBUTTONDBLCLK, \
      "120034 (78,56)") \
    X(ON_WM_MBUTTONDOWN, OnMButtonDown, void, UINT, CPoint, WM_MBUTTONDOWN, "120034 (78,56)") \
    X(ON_WM_MBUTTONUP, OnMButtonUp, void, UINT, CPoint, WM_MBUTTONUP, "120034 (78,56)") \
    X(ON_WM_MBUTTONDBLCLK, OnMButtonDblClk, void, UINT, CPoint, WM_MBUTTONDBLCLK, \
      "120034 (78,56)") \
    X(ON_WM_INPUT, OnRawInput, void, UINT, HRAWINPUT, WM_INPUT, "120034 p560078") \
    X(ON_WM_NCMOUSEMOVE, OnNcMouseMove, void, UINT, CPoint, WM_NCMOUSEMOVE, "120034 (78,56)") \
    X(ON_WM_NCMOUSEHOVER, OnNcMouseHover, void, UINT, CPoint, WM_NCMOUSEHOVER, "120034 (78,56)") \
    X(ON_WM_NCLBUTTONDOWN, OnNcLButtonDown, void, UINT, CPoint, WM_NCLBUTTONDOWN, \
      "120034 (78,56)") \
    X(ON_WM_NCLBUTTONUP, OnNcLButtonUp, void, UINT, CPoint, WM_NCLBUTTONUP, "120034 (78,56)") \
    X(ON_WM_NCLBUTTONDBLCLK, OnNcLButtonDblClk, void, UINT, CPoint, WM_NCLBUTTONDBLCLK, \
      "120034 (78,56)") \
    X(ON_WM_NCRBUTTONDOWN, OnNcRButtonDown, void, UINT, CPoint, WM_NCRBUTTONDOWN, \
      "120034 (78,56)") \
    X(ON_WM_NCRBUTTONUP, OnNcRButtonUp, void, UINT, CPoint, WM_NCRBUTTONUP, "120034 (78,56)") \
    X(ON_WM_NCRBUTTONDBLCLK, OnNcRButtonDblClk, void, UINT, CPoint, WM_NCRBUTTONDBLCLK, \
      "120034 (78,56)") \
    X(ON_WM_NCMBUTTONDOWN, OnNcMButtonDown, void, UINT, CPoint, WM_NCMBUTTONDOWN, \
      "120034 (78,56)") \
    X(ON_WM_NCMBUTTONUP, OnNcMButtonUp, void, UINT, CPoint, WM_NCMBUTTONUP, "120034 (78,56)") \
    X(ON_WM_NCMBUTTONDBLCLK, OnNcMButtonDblClk, void, UINT, CPoint, WM_NCMBUTTONDBLCLK, \
      "120034 (78,56)") \
    X(ON_WM_CONTEXTMENU, OnContextMenu, void, CWnd*, CPoint, WM_CONTEXTMENU, \
      "CWnd:120034 (78,56)") \
    X(ON_WM_UNINITMENUPOPUP, OnUnInitMenuPopup, void, CMenu*, UINT, WM_UNINITMENUPOPUP, \
      "CMenu:120034 56") \
    X(ON_WM_MENUDRAG, OnMenuDrag, UINT, UINT, CMenu*, WM_MENUDRAG, "120034 CMenu:560078") \
    X(ON_WM_MENURBUTTONUP, OnMenuRButtonUp, void, UINT, CMenu*, WM_MENURBUTTONUP, \
      "120034 CMenu:560078") \
    X(ON_WM_NEXTMENU, OnNextMenu, void, UINT, LPMDINEXTMENU, WM_NEXTMENU, "120034 p560078") \
    X(ON_WM_SYSCOMMAND, OnSysCommand, void, UINT, LPARAM, WM_SYSCOMMAND, "120034 560078") \
    X(ON_WM_CHANGEUISTATE, OnChangeUIState, void, UINT, UINT, WM_CHANGEUISTATE, "34 12") \
    X(ON_WM_UPDATEUISTATE, OnUpdateUIState, void, UINT, UINT, WM_UPDATEUISTATE, "34 12") \
    X(ON_WM_SETTINGCHANGE, OnSettingChange, void, UINT, LPCTSTR, WM_SETTINGCHANGE, \
      "120034 p560078") \
    X(ON_WM_DEVICECHANGE, OnDeviceChange, BOOL, UINT, DWORD_PTR, WM_DEVICECHANGE, "120034 560078") \
    X(ON_WM_SPOOLERSTATUS, OnSpoolerStatus, void, UINT, UINT, WM_SPOOLERSTATUS, "120034 78") \
    X(ON_WM_POWERBROADCAST, OnPowerBroadcast, UINT, UINT, UINT, WM_POWERBROADCAST, \
      "120034 560078") \
    X(ON_WM_WTSSESSION_CHANGE, OnSessionChange, void, UINT, UINT, WM_WTSSESSION_CHANGE, \
      "120034 560078") \
    X(ON_WM_DWMCOLORIZATIONCOLORCHANGED, OnColorizationColorChanged, void, DWORD, BOOL, \
      WM_DWMCOLORIZATIONCOLORCHANGED, "120034 560078") \
    X(ON_WM_ASKCBFORMATNAME, OnAskCbFormatName, void, UINT, LPTSTR, WM_ASKCBFORMATNAME, \
      "120034 p560078") \
    X(ON_WM_CHANGECBCHAIN, OnChangeCbChain, void, HWND, HWND, WM_CHANGECBCHAIN, "p120034 p560078") \
    X(ON_WM_PAINTCLIPBOARD, OnPaintClipboard, void, CWnd*, HGLOBAL, WM_PAINTCLIPBOARD, \
      "CWnd:120034 p560078") \
    X(ON_WM_SIZECLIPBOARD, OnSizeClipboard, void, CWnd*, HGLOBAL, WM_SIZECLIPBOARD, \
      "CWnd:120034 p560078") \
    X(ON_WM_COPYDATA, OnCopyData, BOOL, CWnd*, COPYDATASTRUCT*, WM_COPYDATA, \
      "CWnd:120034 p560078") \
    X(ON_WM_NOTIFYFORMAT, OnNotifyFormat, UINT, CWnd*, UINT, WM_NOTIFYFORMAT, \
      "CWnd:120034 560078") \
    X(ON_WM_TCARD, OnTCard, void, UINT, DWORD, WM_TCARD, "120034 560078")

#define ROWS3(X) \
    X(ON_WM_ACTIVATE, OnActivate, void, UINT, CWnd*, BOOL, WM_ACTIVATE, "34 CWnd:560078 12") \
    X(ON_WM_MDIACTIVATE, OnMDIActivate, void, BOOL, CWnd*, CWnd*, WM_MDIACTIVATE, \
      "0 CWnd:560078 CWnd:120034") \
    X(ON_WM_MOUSEACTIVATE, OnMouseActivate, int, CWnd*, UINT, UINT, WM_MOUSEACTIVATE, \
      "CWnd:120034 78 56") \
    X(ON_WM_SIZE, OnSize, void, UINT, int, int, WM_SIZE, "120034 78 56") \
    X(ON_WM_CTLCOLOR, OnCtlColor, HBRUSH, CDC*, CWnd*, UINT, WM_CTLCOLORSTATIC, \
      "CDC:120034 CWnd:560078 6") \
    X(ON_WM_CHARTOITEM, OnCharToItem, int, UINT, CListBox*, UINT, WM_CHARTOITEM, \
      "34 CListBox:560078 12") \
    X(ON_WM_VKEYTOITEM, OnVKeyToItem, int, UINT, CListBox*, UINT, WM_VKEYTOITEM, \
      "34 CListBox:560078 12") \
    X(ON_WM_KEYDOWN, OnKeyDown, void, UINT, UINT, UINT, WM_KEYDOWN, "120034 78 56") \
    X(ON_WM_KEYUP, OnKeyUp, void, UINT, UINT, UINT, WM_KEYUP, "120034 78 56") \
    X(ON_WM_CHAR, OnChar, void, UINT, UINT, UINT, WM_CHAR, "120034 78 56") \
    X(ON_WM_DEADCHAR, OnDeadChar, void, UINT, UINT, UINT, WM_DEADCHAR, "120034 78 56") \
    X(ON_WM_UNICHAR, OnUniChar, void, UINT, UINT, UINT, WM_UNICHAR, "120034 78 56") \
    X(ON_WM_SYSKEYDOWN, OnSysKeyDown, void, UINT, UINT, UINT, WM_SYSKEYDOWN, "120034 78 56") \
    X(ON_WM_SYSKEYUP, OnSysKeyUp, void, UINT, UINT, UINT, WM_SYSKEYUP, "120034 78 56") \
    X(ON_WM_SYSCHAR, OnSysChar, void, UINT, UINT, UINT, WM_SYSCHAR, "120034 78 56") \
    X(ON_WM_SYSDEADCHAR, OnSysDeadChar, void, UINT, UINT, UINT, WM_SYSDEADCHAR, "120034 78 56") \
    X(ON_WM_HOTKEY, OnHotKey, void, UINT, UINT, UINT, WM_HOTKEY, "120034 78 56") \
    X(ON_WM_SETCURSOR, OnSetCursor, BOOL, CWnd*, UINT, UINT, WM_SETCURSOR, "CWnd:120034 78 56") \
    X(ON_WM_MOUSEWHEEL, OnMouseWheel, BOOL, UINT, short, CPoint, WM_MOUSEWHEEL, "34 12 (78,56)") \
    X(ON_WM_MOUSEHWHEEL, OnMouseHWheel, void, UINT, short, CPoint, WM_MOUSEHWHEEL, \
      "34 12 (78,56)") \
    X(ON_WM_XBUTTONDOWN, OnXButtonDown, void, UINT, UINT, CPoint, WM_XBUTTONDOWN, "34 12 (78,56)") \
    X(ON_WM_XBUTTONUP, OnXButtonUp, void, UINT, UINT, CPoint, WM_XBUTTONUP, "34 12 (78,56)") \
    X(ON_WM_XBUTTONDBLCLK, OnXButtonDblClk, void, UINT, UINT, CPoint, WM_XBUTTONDBLCLK, \
      "34 12 (78,56)") \
    X(ON_WM_NCXBUTTONDOWN, OnNcXButtonDown, void, short, UINT, CPoint, WM_NCXBUTTONDOWN, \
      "34 12 (78,56)") \
    X(ON_WM_NCXBUTTONUP, OnNcXButtonUp, void, short, UINT, CPoint, WM_NCXBUTTONUP, \
      "34 12 (78,56)") \
    X(ON_WM_NCXBUTTONDBLCLK, OnNcXButtonDblClk, void, short, UINT, CPoint, WM_NCXBUTTONDBLCLK, \
      "34 12 (78,56)") \
    X(ON_WM_HSCROLL, OnHScroll, void, UINT, UINT, CScrollBar*, WM_HSCROLL, \
      "34 12 CScrollBar:560078") \
    X(ON_WM_VSCROLL, OnVScroll, void, UINT, UINT, CScrollBar*, WM_VSCROLL, \
      "34 12 CScrollBar:560078") \
    X(ON_WM_INITMENUPOPUP, OnInitMenuPopup, void, CMenu*, UINT, BOOL, WM_INITMENUPOPUP, \
      "CMenu:120034 78 56") \
    X(ON_WM_MENUSELECT, OnMenuSelect, void, UINT, UINT, HMENU, WM_MENUSELECT, "34 12 p560078") \
    X(ON_WM_MENUCHAR, OnMenuChar, LRESULT, UINT, UINT, CMenu*, WM_MENUCHAR, "34 12 CMenu:560078") \
    X(ON_WM_HSCROLLCLIPBOARD, OnHScrollClipboard, void, CWnd*, UINT, UINT, \
      WM_HSCROLLCLIPBOARD, "CWnd:120034 78 56") \
    X(ON_WM_VSCROLLCLIPBOARD, OnVScrollClipboard, void, CWnd*, UINT, UINT, \
      WM_VSCROLLCLIPBOARD, "CWnd:120034 78 56")

#define ROWS4(X) \
    X(ON_WM_APPCOMMAND, OnAppCommand, void, CWnd*, UINT, UINT, UINT, WM_APPCOMMAND, \
      "CWnd:120034 56 0 78")

// clang-format on

template <class T>
void Write(std::ostream& out, T value) {
    if constexpr (std::is_pointer_v<T>) {
        out << 'p' << std::hex << reinterpret_cast<UINT_PTR>(value);
    } else {
        out << std::hex << static_cast<std::make_unsigned_t<T>>(value);
    }
}
void Write(std::ostream& out, CPoint point) {
    out << '(' << std::hex << point.x << ',' << point.y << ')';
}
void Write(std::ostream& out, CWnd* wnd) {
    out << "CWnd:" << std::hex << reinterpret_cast<UINT_PTR>(wnd->m_hWnd);
}
void Write(std::ostream& out, CScrollBar* bar) {
    out << "CScrollBar:" << std::hex << reinterpret_cast<UINT_PTR>(bar->m_hWnd);
}
void Write(std::ostream& out, CListBox* list) {
    out << "CListBox:" << std::hex << reinterpret_cast<UINT_PTR>(list->m_hWnd);
}
void Write(std::ostream& out, CDC* dc) {
    out << "CDC:" << std::hex << reinterpret_cast<UINT_PTR>(dc->m_hDC);
}
void Write(std::ostream& out, CMenu* menu) {
    out << "CMenu:" << std::hex << reinterpret_cast<UINT_PTR>(menu->m_hMenu);
}

template <class... Arg>
std::string Show(const char* name, Arg... arg) {
    std::ostringstream text;
    text << name;
    ((text << ' ', Write(text, arg)), ...);
    return text.str();
}

constexpr LRESULT Answer = 7;

template <class R>
R AnswerAs() {
    if constexpr (std::is_void_v<R>) {
        return;
    } else if constexpr (std::is_pointer_v<R>) {
        return reinterpret_cast<R>(Answer);
    } else {
        return static_cast<R>(Answer);
    }
}

#define DECLARE0(macro, name, R, message, text) \
    afx_msg R name() {                          \
        m_called = Show(#name);                 \
        return AnswerAs<R>();                   \
    }
#define DECLARE1(macro, name, R, A, message, text) \
    afx_msg R name(A a) {                          \
        m_called = Show(#name, a);                 \
        return AnswerAs<R>();                      \
    }
#define DECLARE2(macro, name, R, A, B, message, text) \
    afx_msg R name(A a, B b) {                        \
        m_called = Show(#name, a, b);                 \
        return AnswerAs<R>();                         \
    }
#define DECLARE3(macro, name, R, A, B, C, message, text) \
    afx_msg R name(A a, B b, C c) {                      \
        m_called = Show(#name, a, b, c);                 \
        return AnswerAs<R>();                            \
    }
#define DECLARE4(macro, name, R, A, B, C, D, message, text) \
    afx_msg R name(A a, B b, C c, D d) {                    \
        m_called = Show(#name, a, b, c, d);                 \
        return AnswerAs<R>();                               \
    }
#define MAP0(macro, name, R, message, text) macro()
#define MAP1(macro, name, R, A, message, text) macro()
#define MAP2(macro, name, R, A, B, message, text) macro()
#define MAP3(macro, name, R, A, B, C, message, text) macro()
#define MAP4(macro, name, R, A, B, C, D, message, text) macro()
#define LINE0(macro, name, R, message, text) {message, #name, text, std::is_void_v<R>},
#define LINE1(macro, name, R, A, message, text) {message, #name, text, std::is_void_v<R>},
#define LINE2(macro, name, R, A, B, message, text) {message, #name, text, std::is_void_v<R>},
#define LINE3(macro, name, R, A, B, C, message, text) {message, #name, text, std::is_void_v<R>},
#define LINE4(macro, name, R, A, B, C, D, message, text) {message, #name, text, std::is_void_v<R>},

/// Handles every window message and notes what it was called with.
class Recorder : public CWnd {
public:
    using CWnd::OnWndMsg;
    std::string m_called;

protected:
    ROWS0(DECLARE0)
    ROWS1(DECLARE1)
    ROWS2(DECLARE2)
    ROWS3(DECLARE3)
    ROWS4(DECLARE4)
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Recorder, CWnd)
    ROWS0(MAP0)
    ROWS1(MAP1)
    ROWS2(MAP2)
    ROWS3(MAP3)
    ROWS4(MAP4)
END_MESSAGE_MAP()

struct WindowMessage {
    UINT message;
    std::string handler;
    std::string arguments;
    bool isVoid;
};

const WindowMessage windowMessages[] = {ROWS0(LINE0) ROWS1(LINE1) ROWS2(LINE2) ROWS3(LINE3)
                                            ROWS4(LINE4)};

/// What Windows is told about a message whose handler returns nothing.
LRESULT AnswerOfVoid(UINT message) {
    const bool wantsTrue = message == WM_DRAWITEM || message == WM_MEASUREITEM ||
                           message == WM_DELETEITEM || message == WM_APPCOMMAND;
    return wantsTrue ? TRUE : 0;
}

TEST(MessageMap, EachWindowMessageReachesItsHandlerUnpacked) {
    for (const WindowMessage& row : windowMessages) {
        SCOPED_TRACE(row.handler);
        Recorder recorder;
        LRESULT result = -1;
        EXPECT_TRUE(recorder.OnWndMsg(row.message, W, L, &result));
        const std::string separator = row.arguments.empty() ? "" : " ";
        EXPECT_EQ(recorder.m_called, row.handler + separator + row.arguments);
        EXPECT_EQ(result, row.isVoid ? AnswerOfVoid(row.message) : Answer);
    }
    CWnd::DeleteTempMap();
    CMenu::DeleteTempMap();
    CDC::DeleteTempMap();
}

/// The handlers whose coordinates may lie left of or above the origin.
class SignedRecorder : public CWnd {
public:
    using CWnd::OnWndMsg;
    std::string m_called;

protected:
    afx_msg void OnMove(int x, int y) { Note(x, y); }
    afx_msg void OnMouseMove(UINT, CPoint point) { Note(point.x, point.y); }
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point) {
        Note(point.x, point.y);
        m_called += " " + std::to_string(flags) + " " + std::to_string(delta);
        return TRUE;
    }
    afx_msg void OnSize(UINT, int cx, int cy) { Note(cx, cy); }
    afx_msg void OnWinIniChange(LPCTSTR section) { m_called = section; }
    DECLARE_MESSAGE_MAP()

private:
    void Note(LONG x, LONG y) { m_called = std::to_string(x) + " " + std::to_string(y); }
};

BEGIN_MESSAGE_MAP(SignedRecorder, CWnd)
    ON_WM_MOVE()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_SIZE()
    ON_WM_WININICHANGE()
END_MESSAGE_MAP()

TEST(MessageMap, CoordinatesAreSignedAndSizesAreNot) {
    const LPARAM negative = MAKELPARAM(-3, -5);
    SignedRecorder recorder;
    recorder.OnWndMsg(WM_MOVE, 0, negative, nullptr);
    EXPECT_EQ(recorder.m_called, "-3 -5");
    recorder.OnWndMsg(WM_MOUSEMOVE, 0, negative, nullptr);
    EXPECT_EQ(recorder.m_called, "-3 -5");
    recorder.OnWndMsg(WM_MOUSEWHEEL, MAKEWPARAM(MK_SHIFT, -120), negative, nullptr);
    EXPECT_EQ(recorder.m_called, "-3 -5 4 -120");
    recorder.OnWndMsg(WM_SIZE, 0, MAKELPARAM(0xFFF0, 2), nullptr);
    EXPECT_EQ(recorder.m_called, "65520 2");
    recorder.OnWndMsg(WM_WININICHANGE, 0, reinterpret_cast<LPARAM>("colors"), nullptr);
    EXPECT_EQ(recorder.m_called, "colors");
}

TEST(MessageMap, MdiActivateTellsWhetherItIsThisWindow) {
    class Child : public CWnd {
    public:
        using CWnd::OnWndMsg;
        BOOL m_activated = -1;
        static const AFX_MSGMAP* PASCAL GetThisMessageMap() {
            using ThisClass = Child;
            static const AFX_MSGMAP_ENTRY entries[] = {
                ON_WM_MDIACTIVATE(){0, 0, 0, 0, nullptr, nullptr}};
            static const AFX_MSGMAP map = {nullptr, entries};
            return &map;
        }
        const AFX_MSGMAP* GetMessageMap() const override { return GetThisMessageMap(); }
        afx_msg void OnMDIActivate(BOOL activate, CWnd*, CWnd*) { m_activated = activate; }
    } child;
    child.OnWndMsg(WM_MDIACTIVATE, 0x11, 0, nullptr);
    EXPECT_EQ(child.m_activated, TRUE);
    child.OnWndMsg(WM_MDIACTIVATE, 0, 0x11, nullptr);
    EXPECT_EQ(child.m_activated, FALSE);
    CWnd::DeleteTempMap();
}

// ---- Commands and notifications -----------------------------------------------------------------

constexpr UINT WM_OWN = WM_USER + 5;
const UINT WM_NAMED = ::RegisterWindowMessage("MessageMapTest");

/// A command target with one line of each kind.
class Target : public CWnd {
public:
    using CWnd::OnWndMsg;
    std::vector<std::string> m_log;
    /// What the handlers that may decline return.
    BOOL m_take = TRUE;

    std::string Take() {
        std::string all;
        for (const std::string& line : m_log) {
            all += (all.empty() ? "" : ", ") + line;
        }
        m_log.clear();
        return all;
    }

protected:
    void Note(const char* what, UINT number = 0) {
        m_log.push_back(number == 0 ? what : what + (" " + std::to_string(number)));
    }
    afx_msg void OnPlain() { Note("plain"); }
    afx_msg BOOL OnEx(UINT id) {
        Note("ex", id);
        return m_take;
    }
    afx_msg void OnRange(UINT id) { Note("range", id); }
    afx_msg BOOL OnExRange(UINT id) {
        Note("exrange", id);
        return m_take;
    }
    afx_msg void OnUpdate(CCmdUI* ui) {
        Note("update", ui->m_nID);
        if (!m_take) {
            ui->ContinueRouting();
        }
    }
    afx_msg void OnChange() { Note("change"); }
    afx_msg void OnControlRange(UINT id) { Note("controlrange", id); }
    afx_msg void OnNotifyPlain(NMHDR* header, LRESULT* result) {
        Note("notify", static_cast<UINT>(header->idFrom));
        *result = 11;
    }
    afx_msg void OnNotifyRange(UINT id, NMHDR*, LRESULT* result) {
        Note("notifyrange", id);
        *result = 12;
    }
    afx_msg BOOL OnNotifyEx(UINT id, NMHDR*, LRESULT* result) {
        Note("notifyex", id);
        *result = 13;
        return m_take;
    }
    afx_msg LRESULT OnOwn(WPARAM wParam, LPARAM lParam) {
        Note("own", static_cast<UINT>(wParam) + static_cast<UINT>(lParam));
        return 21;
    }
    afx_msg LRESULT OnNamed(WPARAM wParam, LPARAM) {
        Note("named", static_cast<UINT>(wParam));
        return 22;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Target, CWnd)
    ON_COMMAND(100, &Target::OnPlain)
    ON_COMMAND_EX(101, &Target::OnEx)
    ON_COMMAND_RANGE(110, 112, &Target::OnRange)
    ON_COMMAND_EX_RANGE(120, 122, &Target::OnExRange)
    ON_UPDATE_COMMAND_UI(100, &Target::OnUpdate)
    ON_UPDATE_COMMAND_UI_RANGE(110, 112, &Target::OnUpdate)
    ON_EN_CHANGE(130, &Target::OnChange)
    ON_CONTROL_RANGE(BN_DOUBLECLICKED, 131, 133, &Target::OnControlRange)
    ON_NOTIFY(NM_CLICK, 140, &Target::OnNotifyPlain)
    ON_NOTIFY_RANGE(LVN_ITEMCHANGED, 141, 143, &Target::OnNotifyRange)
    ON_NOTIFY_EX(NM_RCLICK, 144, &Target::OnNotifyEx)
    ON_NOTIFY_EX_RANGE(NM_RCLICK, 145, 146, &Target::OnNotifyEx)
    ON_MESSAGE(WM_OWN, &Target::OnOwn)
    ON_REGISTERED_MESSAGE(WM_NAMED, &Target::OnNamed)
END_MESSAGE_MAP()

struct CommandRow {
    UINT id;
    int code;
    const char* called; ///< empty: nobody
};

TEST(MessageMap, CommandsAndNotificationsFindTheirLine) {
    const CommandRow rows[] = {
        {100, CN_COMMAND, "plain"},
        {101, CN_COMMAND, "ex 101"},
        {109, CN_COMMAND, ""},
        {110, CN_COMMAND, "range 110"},
        {112, CN_COMMAND, "range 112"},
        {113, CN_COMMAND, ""},
        {120, CN_COMMAND, "exrange 120"},
        {122, CN_COMMAND, "exrange 122"},
        {130, EN_CHANGE, "change"},
        {130, EN_UPDATE, ""},
        {131, EN_CHANGE, ""},
        {131, BN_DOUBLECLICKED, "controlrange 131"},
        {133, BN_DOUBLECLICKED, "controlrange 133"},
    };
    for (const CommandRow& row : rows) {
        SCOPED_TRACE(row.id);
        Target target;
        EXPECT_EQ(target.OnCmdMsg(row.id, row.code, nullptr, nullptr), *row.called != '\0');
        EXPECT_EQ(target.Take(), row.called);
    }
}

TEST(MessageMap, NotificationsThroughWmNotify) {
    const struct {
        UINT id;
        UINT code;
        const char* called;
        LRESULT result;
    } rows[] = {
        {140, NM_CLICK, "notify 140", 11},
        {141, NM_CLICK, "", 0},
        {141, LVN_ITEMCHANGED, "notifyrange 141", 12},
        {143, LVN_ITEMCHANGED, "notifyrange 143", 12},
        {144, NM_RCLICK, "notifyex 144", 13},
        {146, NM_RCLICK, "notifyex 146", 13},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.id);
        Target target;
        NMHDR header = {nullptr, row.id, row.code};
        LRESULT result = 0;
        AFX_NOTIFY notify = {&result, &header};
        target.OnCmdMsg(row.id, static_cast<int>(MAKELONG(row.code, WM_NOTIFY)), &notify, nullptr);
        EXPECT_EQ(target.Take(), row.called);
        EXPECT_EQ(result, row.result);
    }
}

TEST(MessageMap, DeclinedMessagesGoOn) {
    Target target;
    target.m_take = FALSE;
    EXPECT_FALSE(target.OnCmdMsg(101, CN_COMMAND, nullptr, nullptr));
    EXPECT_FALSE(target.OnCmdMsg(120, CN_COMMAND, nullptr, nullptr));
    CCmdUI ui;
    ui.m_nID = 111;
    EXPECT_FALSE(target.OnCmdMsg(111, CN_UPDATE_COMMAND_UI, &ui, nullptr));
    EXPECT_EQ(target.Take(), "ex 101, exrange 120, update 111");
    target.m_take = TRUE;
    EXPECT_TRUE(target.OnCmdMsg(111, CN_UPDATE_COMMAND_UI, &ui, nullptr));
}

TEST(MessageMap, HandlerInfoFindsWithoutCalling) {
    Target target;
    AFX_CMDHANDLERINFO info = {};
    EXPECT_TRUE(target.OnCmdMsg(100, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &target);
    info.pTarget = nullptr;
    EXPECT_FALSE(target.OnCmdMsg(99, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, nullptr);
    EXPECT_EQ(target.Take(), "");
}

TEST(MessageMap, OwnAndRegisteredMessages) {
    Target target;
    LRESULT result = 0;
    EXPECT_TRUE(target.OnWndMsg(WM_OWN, 3, 4, &result));
    EXPECT_EQ(result, 21);
    EXPECT_TRUE(target.OnWndMsg(WM_NAMED, 5, 0, &result));
    EXPECT_EQ(result, 22);
    EXPECT_FALSE(target.OnWndMsg(WM_NAMED + 1, 5, 0, &result));
    EXPECT_FALSE(target.OnWndMsg(WM_OWN + 1, 5, 0, &result));
    EXPECT_EQ(target.Take(), "own 7, named 5");
}

// ---- Inheritance --------------------------------------------------------------------------------

class Derived : public Target {
protected:
    afx_msg void OnPlainDerived() { Note("derived"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Derived, Target)
    ON_COMMAND(100, &Derived::OnPlainDerived)
END_MESSAGE_MAP()

template <class Base>
class Mixed : public Base {
protected:
    afx_msg void OnMixed() { this->Note("mixed"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_TEMPLATE_MESSAGE_MAP(Mixed, Base, Base)
    ON_COMMAND(101, &Mixed<Base>::OnMixed)
END_MESSAGE_MAP()

TEST(MessageMap, TheDerivedClassComesFirst) {
    Mixed<Derived> target;
    for (const UINT id : {100, 101, 110}) {
        EXPECT_TRUE(target.OnCmdMsg(id, CN_COMMAND, nullptr, nullptr));
    }
    EXPECT_EQ(target.Take(), "derived, mixed, range 110");
}

// ---- Thread messages ----------------------------------------------------------------------------

class Thread : public CWinThread {
public:
    std::string m_called;

protected:
    afx_msg void OnOwn(WPARAM wParam, LPARAM lParam) {
        m_called = std::to_string(wParam) + " " + std::to_string(lParam);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Thread, CWinThread)
    ON_THREAD_MESSAGE(WM_OWN, &Thread::OnOwn)
    ON_REGISTERED_THREAD_MESSAGE(WM_NAMED, &Thread::OnOwn)
END_MESSAGE_MAP()

TEST(MessageMap, MessagesPostedToAThread) {
    Thread thread;
    MSG msg = {};
    msg.message = WM_OWN;
    msg.wParam = 1;
    msg.lParam = 2;
    EXPECT_TRUE(thread.PreTranslateMessage(&msg));
    EXPECT_EQ(thread.m_called, "1 2");
    msg.message = WM_NAMED;
    msg.wParam = 3;
    EXPECT_TRUE(thread.PreTranslateMessage(&msg));
    EXPECT_EQ(thread.m_called, "3 2");
    msg.message = WM_OWN + 1;
    EXPECT_FALSE(thread.PreTranslateMessage(&msg));
}

// ---- Reflection ---------------------------------------------------------------------------------

/// Who was asked, in this order.
std::vector<std::string> g_order;

class Control : public CWnd {
public:
    BOOL m_take = TRUE;
    HBRUSH m_brush = nullptr;

protected:
    void Note(const std::string& what) { g_order.push_back("control " + what); }
    afx_msg HBRUSH CtlColor(CDC* dc, UINT type) {
        Note("color " + std::to_string(type) + (dc->m_hDC != nullptr ? "" : " without dc"));
        return m_brush;
    }
    afx_msg void DrawItem(LPDRAWITEMSTRUCT item) { Note("draw " + std::to_string(item->itemID)); }
    afx_msg void MeasureItem(LPMEASUREITEMSTRUCT item) {
        Note("measure " + std::to_string(item->itemID));
    }
    afx_msg int CompareItem(LPCOMPAREITEMSTRUCT item) {
        Note("compare " + std::to_string(item->itemID1));
        return -1;
    }
    afx_msg void DeleteItem(LPDELETEITEMSTRUCT item) {
        Note("delete " + std::to_string(item->itemID));
    }
    afx_msg int CharToItem(UINT key, UINT index) {
        Note("char " + std::to_string(key) + " " + std::to_string(index));
        return 3;
    }
    afx_msg int VKeyToItem(UINT key, UINT index) {
        Note("key " + std::to_string(key) + " " + std::to_string(index));
        return 4;
    }
    afx_msg void HScroll(UINT code, UINT pos) {
        Note("hscroll " + std::to_string(code) + " " + std::to_string(pos));
    }
    afx_msg void VScroll(UINT code, UINT pos) {
        Note("vscroll " + std::to_string(code) + " " + std::to_string(pos));
    }
    afx_msg void ParentNotify(UINT message, LPARAM) {
        Note("parentnotify " + std::to_string(LOWORD(message)));
    }
    afx_msg void OnClicked() { Note("clicked"); }
    afx_msg BOOL OnDoubleClicked() {
        Note("doubleclicked");
        return m_take;
    }
    afx_msg void OnNotifyClick(NMHDR*, LRESULT* result) {
        Note("notify");
        *result = 31;
    }
    afx_msg BOOL OnNotifyRightClick(NMHDR*, LRESULT* result) {
        Note("notifyex");
        *result = 32;
        return m_take;
    }
    afx_msg void OnUpdate(CCmdUI* ui) {
        Note("update " + std::to_string(ui->m_nID));
        ui->Enable(FALSE);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Control, CWnd)
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_DRAWITEM_REFLECT()
    ON_WM_MEASUREITEM_REFLECT()
    ON_WM_COMPAREITEM_REFLECT()
    ON_WM_DELETEITEM_REFLECT()
    ON_WM_CHARTOITEM_REFLECT()
    ON_WM_VKEYTOITEM_REFLECT()
    ON_WM_HSCROLL_REFLECT()
    ON_WM_VSCROLL_REFLECT()
    ON_WM_PARENTNOTIFY_REFLECT()
    ON_CONTROL_REFLECT(BN_CLICKED, &Control::OnClicked)
    ON_CONTROL_REFLECT_EX(BN_DOUBLECLICKED, &Control::OnDoubleClicked)
    ON_NOTIFY_REFLECT(NM_CLICK, &Control::OnNotifyClick)
    ON_NOTIFY_REFLECT_EX(NM_RCLICK, &Control::OnNotifyRightClick)
    ON_UPDATE_COMMAND_UI_REFLECT(&Control::OnUpdate)
END_MESSAGE_MAP()

constexpr UINT ControlId = 40;

class Parent : public CWnd {
protected:
    afx_msg void OnClicked() { g_order.push_back("parent clicked"); }
    afx_msg void OnDoubleClicked() { g_order.push_back("parent doubleclicked"); }
    afx_msg void OnNotifyClick(NMHDR*, LRESULT* result) {
        g_order.push_back("parent notify");
        *result = 41;
    }
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* wnd, UINT type) {
        g_order.push_back("parent color");
        return CWnd::OnCtlColor(dc, wnd, type);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Parent, CWnd)
    ON_BN_CLICKED(ControlId, &Parent::OnClicked)
    ON_BN_DOUBLECLICKED(ControlId, &Parent::OnDoubleClicked)
    ON_NOTIFY(NM_CLICK, ControlId, &Parent::OnNotifyClick)
    ON_NOTIFY(NM_RCLICK, ControlId, &Parent::OnNotifyClick)
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

class Reflection : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(
            m_parent.CreateEx(0, nullptr, "parent", WS_POPUP, CRect(0, 0, 90, 90), nullptr, 0));
        ASSERT_TRUE(m_control.Create(nullptr, "control", WS_CHILD, CRect(0, 0, 9, 9), &m_parent,
                                     ControlId));
        g_order.clear();
    }
    void TearDown() override { m_parent.DestroyWindow(); }

    /// Sends the parent a message and tells who was asked.
    std::string Send(UINT message, WPARAM wParam, LPARAM lParam) {
        g_order.clear();
        m_result = m_parent.SendMessage(message, wParam, lParam);
        std::string all;
        for (const std::string& line : g_order) {
            all += (all.empty() ? "" : ", ") + line;
        }
        return all;
    }
    LPARAM ControlHandle() const { return reinterpret_cast<LPARAM>(m_control.m_hWnd); }

    Parent m_parent;
    Control m_control;
    LRESULT m_result = 0;
};

TEST_F(Reflection, CommandNotificationsGoToTheControlFirst) {
    EXPECT_EQ(Send(WM_COMMAND, MAKEWPARAM(ControlId, BN_CLICKED), ControlHandle()),
              "control clicked");
    EXPECT_EQ(Send(WM_COMMAND, MAKEWPARAM(ControlId, BN_DOUBLECLICKED), ControlHandle()),
              "control doubleclicked");
    m_control.m_take = FALSE;
    EXPECT_EQ(Send(WM_COMMAND, MAKEWPARAM(ControlId, BN_DOUBLECLICKED), ControlHandle()),
              "control doubleclicked, parent doubleclicked");
}

TEST_F(Reflection, NotifyGoesToTheControlFirst) {
    NMHDR header = {m_control.m_hWnd, ControlId, static_cast<UINT>(NM_CLICK)};
    const auto lParam = reinterpret_cast<LPARAM>(&header);
    EXPECT_EQ(Send(WM_NOTIFY, ControlId, lParam), "control notify");
    EXPECT_EQ(m_result, 31);
    header.code = static_cast<UINT>(NM_RCLICK);
    EXPECT_EQ(Send(WM_NOTIFY, ControlId, lParam), "control notifyex");
    EXPECT_EQ(m_result, 32);
    m_control.m_take = FALSE;
    EXPECT_EQ(Send(WM_NOTIFY, ControlId, lParam), "control notifyex, parent notify");
    EXPECT_EQ(m_result, 41);
}

TEST_F(Reflection, OtherMessagesComeBackThroughTheParentsDefaultHandler) {
    DRAWITEMSTRUCT draw = {};
    draw.CtlType = ODT_BUTTON;
    draw.itemID = 1;
    draw.hwndItem = m_control.m_hWnd;
    EXPECT_EQ(Send(WM_DRAWITEM, ControlId, reinterpret_cast<LPARAM>(&draw)), "control draw 1");
    EXPECT_EQ(m_result, TRUE);
    MEASUREITEMSTRUCT measure = {};
    measure.CtlType = ODT_LISTBOX;
    measure.CtlID = ControlId;
    measure.itemID = 2;
    EXPECT_EQ(Send(WM_MEASUREITEM, ControlId, reinterpret_cast<LPARAM>(&measure)),
              "control measure 2");
    COMPAREITEMSTRUCT compare = {};
    compare.hwndItem = m_control.m_hWnd;
    compare.itemID1 = 3;
    EXPECT_EQ(Send(WM_COMPAREITEM, ControlId, reinterpret_cast<LPARAM>(&compare)),
              "control compare 3");
    EXPECT_EQ(m_result, -1);
    DELETEITEMSTRUCT deleted = {};
    deleted.hwndItem = m_control.m_hWnd;
    deleted.itemID = 4;
    EXPECT_EQ(Send(WM_DELETEITEM, ControlId, reinterpret_cast<LPARAM>(&deleted)),
              "control delete 4");
    EXPECT_EQ(Send(WM_CHARTOITEM, MAKEWPARAM('a', 5), ControlHandle()), "control char 97 5");
    EXPECT_EQ(m_result, 3);
    EXPECT_EQ(Send(WM_VKEYTOITEM, MAKEWPARAM(VK_F2, 6), ControlHandle()), "control key 113 6");
    EXPECT_EQ(m_result, 4);
    EXPECT_EQ(Send(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 7), ControlHandle()),
              "control hscroll 4 7");
    EXPECT_EQ(Send(WM_VSCROLL, MAKEWPARAM(SB_LINEDOWN, 8), ControlHandle()), "control vscroll 1 8");
    EXPECT_EQ(Send(WM_PARENTNOTIFY, MAKEWPARAM(WM_CREATE, ControlId), ControlHandle()),
              "control parentnotify 1");
    // The mouse buttons of WM_PARENTNOTIFY come with a point, not with a window.
    EXPECT_EQ(Send(WM_PARENTNOTIFY, WM_LBUTTONDOWN, ControlHandle()), "");
}

TEST_F(Reflection, AControlWithoutABrushLeavesTheColourToTheParent) {
    CClientDC dc(&m_control);
    const auto wParam = reinterpret_cast<WPARAM>(dc.m_hDC);
    m_control.m_brush = reinterpret_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH));
    EXPECT_EQ(Send(WM_CTLCOLORSTATIC, wParam, ControlHandle()), "parent color, control color 6");
    EXPECT_EQ(m_result, reinterpret_cast<LRESULT>(m_control.m_brush));
    m_control.m_brush = nullptr;
    EXPECT_EQ(Send(WM_CTLCOLOREDIT, wParam, ControlHandle()), "parent color, control color 1");
    EXPECT_NE(m_result, 0); // the system's own brush
}

TEST_F(Reflection, TheControlUpdatesItself) {
    m_parent.UpdateDialogControls(&m_parent, FALSE);
    ASSERT_EQ(g_order.size(), 1U);
    EXPECT_EQ(g_order[0], "control update 40");
    EXPECT_FALSE(m_control.IsWindowEnabled());
}

} // namespace
