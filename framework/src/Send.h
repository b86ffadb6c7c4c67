// SPDX-License-Identifier: MIT
#pragma once

#include <type_traits>

#include "afx/CWnd.h"

namespace afx {

/// A message parameter from, or a result as, an integer, an enumerator or a pointer.
template <class To, class From>
To ConvertParam(From value) {
    if constexpr (std::is_void_v<To>) {
        return;
    } else if constexpr (std::is_same_v<From, std::nullptr_t>) {
        return To{};
    } else if constexpr (std::is_pointer_v<To> || std::is_pointer_v<From>) {
        return reinterpret_cast<To>(value);
    } else {
        return static_cast<To>(value);
    }
}

/// Sends a message to a control and gives the result as an R.
template <class R = LRESULT, class WParam = int, class LParam = int>
R Send(const CWnd& wnd, UINT message, WParam wParam = {}, LParam lParam = {}) {
    return ConvertParam<R>(::SendMessage(wnd.m_hWnd, message, ConvertParam<WPARAM>(wParam),
                                         ConvertParam<LPARAM>(lParam)));
}

} // namespace afx
