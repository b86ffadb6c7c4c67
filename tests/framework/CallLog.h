// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <sstream>
#include <string>
#include <type_traits>
#include <utility>

/// Notes calls and their arguments as text: "first 1 2, second (3,4)". A wrapper is shown with its
/// class and handle, another pointer or handle with a p.
class CallLog {
public:
    /// @param hexadecimal  numbers are shown as the bits they have
    explicit CallLog(bool hexadecimal = false) : m_hexadecimal(hexadecimal) {}

    template <class... A>
    void Add(const char* what, A... arguments) {
        std::ostringstream line;
        line << (m_text.empty() ? "" : ", ") << what;
        if (m_hexadecimal)
            line << std::hex;
        ((line << ' ', Show(line, arguments)), ...);
        m_text += line.str();
    }

    /// What was noted since the last time.
    std::string Take() { return std::exchange(m_text, {}); }

private:
    static HANDLE HandleOf(const CWnd& wnd) { return wnd.m_hWnd; }
    static HANDLE HandleOf(const CDC& dc) { return dc.m_hDC; }
    static HANDLE HandleOf(const CMenu& menu) { return menu.m_hMenu; }

    template <class T>
    void Show(std::ostream& out, T value) const {
        if constexpr (std::is_convertible_v<T, const CObject*>) {
            out << std::remove_pointer_t<T>::GetThisClass()->m_lpszClassName << ':'
                << reinterpret_cast<UINT_PTR>(HandleOf(*value));
        } else if constexpr (std::is_same_v<T, CPoint>) {
            out << '(' << value.x << ',' << value.y << ')';
        } else if constexpr (std::is_pointer_v<T>) {
            out << 'p' << reinterpret_cast<UINT_PTR>(value);
        } else if constexpr (std::is_integral_v<T>) {
            if (m_hexadecimal)
                out << static_cast<std::make_unsigned_t<T>>(value);
            else
                out << value;
        } else {
            out << value;
        }
    }

    bool m_hexadecimal;
    std::string m_text;
};
