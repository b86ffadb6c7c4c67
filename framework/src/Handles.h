// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CDC.h"
#include "afx/CGdiObject.h"
#include "afx/CWnd.h"

namespace afx {

/// The handle of a GDI object that may be missing.
template <class H>
H HandleOf(const CGdiObject* object) {
    return object == nullptr ? nullptr : static_cast<H>(object->m_hObject);
}

/// The output handle of a device context that may be missing.
inline HDC OutputOf(const CDC* dc) {
    return dc == nullptr ? nullptr : dc->m_hDC;
}

/// The handle of a window object that may be missing. To be used instead of calling GetSafeHwnd()
/// on a pointer that may be null, which a compiler takes as proof that it is not.
inline HWND WindowOf(const CWnd* wnd) {
    return wnd == nullptr ? nullptr : wnd->m_hWnd;
}

/// Applies `set` to the output handle and, where that is another one, to the attribute handle.
/// @return what `set` gave for the attribute handle, which is the one to answer questions, or for
///         the output handle if it is the only one.
template <class SET>
auto SetOnBoth(const CDC& dc, SET set) {
    const auto previous = set(dc.m_hDC);
    if (dc.m_hAttribDC == nullptr || dc.m_hAttribDC == dc.m_hDC) {
        return previous;
    }
    return set(dc.m_hAttribDC);
}

} // namespace afx
