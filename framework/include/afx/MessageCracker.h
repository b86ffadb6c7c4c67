// SPDX-License-Identifier: MIT
/// @file
/// Unpacks the two parameters of a window message into the arguments of its handler.
///
/// A layout names, argument by argument, which part of the message each one comes from; its type
/// comes from the handler. So `W_LLow_LHigh` calls OnSize(UINT, int, int) with wParam and both
/// words of lParam, and OnSetCursor(CWnd*, UINT, UINT) with the window whose handle is wParam.
#pragma once

#include <type_traits>

#include "afx/CMenu.h"
#include "afx/CDC.h"
#include "afx/CListBox.h"
#include "afx/CScrollBar.h"
#include "afx/CWnd.h"
#include "atltypes.h"

namespace afx {

/// The wrapper of a scroll bar; a temporary one unless the program attached a CScrollBar to it.
CScrollBar* ScrollBarFromHandle(HWND hWnd);
/// The wrapper of a list box; a temporary one unless the program attached a CListBox to it.
CListBox* ListBoxFromHandle(HWND hWnd);

namespace crack {

/// Turns a part of a message into an argument of type T.
template <class T>
T ToArgument(ULONG_PTR value) {
    if constexpr (std::is_same_v<T, CWnd*>) {
        return CWnd::FromHandle(reinterpret_cast<HWND>(value));
    } else if constexpr (std::is_same_v<T, CDC*>) {
        return CDC::FromHandle(reinterpret_cast<HDC>(value));
    } else if constexpr (std::is_same_v<T, CMenu*>) {
        return CMenu::FromHandle(reinterpret_cast<HMENU>(value));
    } else if constexpr (std::is_same_v<T, CScrollBar*>) {
        return ScrollBarFromHandle(reinterpret_cast<HWND>(value));
    } else if constexpr (std::is_same_v<T, CListBox*>) {
        return ListBoxFromHandle(reinterpret_cast<HWND>(value));
    } else if constexpr (std::is_same_v<T, CPoint>) {
        return CPoint(GET_X_LPARAM(value), GET_Y_LPARAM(value));
    } else if constexpr (std::is_pointer_v<T>) {
        return reinterpret_cast<T>(value);
    } else {
        return static_cast<T>(value);
    }
}

/// Turns what a handler returned into the result of the message.
template <class R>
LRESULT ToResult(R value) {
    if constexpr (std::is_pointer_v<R>) {
        return reinterpret_cast<LRESULT>(value);
    } else {
        return static_cast<LRESULT>(value);
    }
}

// The parts of a message.
struct W {
    static ULONG_PTR Get(const CWnd*, const MapCall& call) { return call.wParam; }
};
struct L {
    static ULONG_PTR Get(const CWnd*, const MapCall& call) {
        return static_cast<ULONG_PTR>(call.lParam);
    }
};
struct WLow {
    static ULONG_PTR Get(const CWnd*, const MapCall& call) { return LOWORD(call.wParam); }
};
struct WHigh {
    static ULONG_PTR Get(const CWnd*, const MapCall& call) { return HIWORD(call.wParam); }
};
struct LLow {
    static ULONG_PTR Get(const CWnd*, const MapCall& call) { return LOWORD(call.lParam); }
};
struct LHigh {
    static ULONG_PTR Get(const CWnd*, const MapCall& call) { return HIWORD(call.lParam); }
};
struct LX {
    static ULONG_PTR Get(const CWnd*, const MapCall& call) {
        return static_cast<ULONG_PTR>(static_cast<LONG_PTR>(GET_X_LPARAM(call.lParam)));
    }
};
struct LY {
    static ULONG_PTR Get(const CWnd*, const MapCall& call) {
        return static_cast<ULONG_PTR>(static_cast<LONG_PTR>(GET_Y_LPARAM(call.lParam)));
    }
};
struct AppCommand {
    static ULONG_PTR Get(const CWnd*, const MapCall& call) {
        return static_cast<ULONG_PTR>(GET_APPCOMMAND_LPARAM(call.lParam));
    }
};
struct AppDevice {
    static ULONG_PTR Get(const CWnd*, const MapCall& call) {
        return static_cast<ULONG_PTR>(GET_DEVICE_LPARAM(call.lParam));
    }
};
/// True for the window that WM_MDIACTIVATE activates.
struct Activating {
    static ULONG_PTR Get(const CWnd* self, const MapCall& call) {
        return reinterpret_cast<HWND>(call.lParam) == self->GetSafeHwnd() ? TRUE : FALSE;
    }
};
/// The CTLCOLOR_ type that the number of a control-colour message stands for.
struct CtlType {
    static ULONG_PTR Get(const CWnd*, const MapCall& call) {
        return call.message - WM_CTLCOLORMSGBOX;
    }
};

/// Calls a handler with the given parts of the message as its arguments.
template <class... Part>
struct Layout {
    template <class T, class R, class... Arg>
    static BOOL Call(CCmdTarget* target, R (T::*handler)(Arg...), const MapCall& call) {
        T* const self = static_cast<T*>(target);
        if constexpr (std::is_void_v<R>) {
            (self->*handler)(ToArgument<Arg>(Part::Get(self, call))...);
            *call.result = 0;
        } else {
            *call.result = ToResult((self->*handler)(ToArgument<Arg>(Part::Get(self, call))...));
        }
        return TRUE;
    }

    /// As Call, but a null result leaves the message to the parent window.
    template <class T, class R, class... Arg>
    static BOOL CallUnlessNull(CCmdTarget* target, R (T::*handler)(Arg...), const MapCall& call) {
        return Call(target, handler, call) && *call.result != 0;
    }
};

using None = Layout<>;
using W_ = Layout<W>;
using L_ = Layout<L>;
using W_L = Layout<W, L>;
using LX_LY = Layout<LX, LY>;
using W_LLow = Layout<W, LLow>;
using W_LHigh = Layout<W, LHigh>;
using W_LLow_LHigh = Layout<W, LLow, LHigh>;
using WLow_WHigh = Layout<WLow, WHigh>;
using WLow_WHigh_L = Layout<WLow, WHigh, L>;
using WLow_L_WHigh = Layout<WLow, L, WHigh>;
using MdiActivate = Layout<Activating, L, W>;
using AppCommand_ = Layout<W, AppCommand, AppDevice, LLow>;
using W_CtlType = Layout<W, CtlType>;
using W_L_CtlType = Layout<W, L, CtlType>;

} // namespace crack
} // namespace afx
