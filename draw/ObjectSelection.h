// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

namespace tint {

/// One GDI object selected into a device context; what was selected before comes back at the end.
///
/// Owns neither the object nor the device context.  A class that owns the object keeps it in a base
/// class, or in a member declared before this one, and so deletes it only when it is selected out.
class ObjectSelection {
public:
    explicit ObjectSelection(HDC dc) : m_dc(dc) {}
    ~ObjectSelection() { Undo(); }

    ObjectSelection(const ObjectSelection&) = delete;
    ObjectSelection& operator=(const ObjectSelection&) = delete;

    HDC dc() const { return m_dc; }

    /// Selects `object` in place of the one selected here before.  One that cannot be selected leaves
    /// the device context as it was.
    void Select(HGDIOBJ object) {
        Undo();
        m_previous = ::SelectObject(m_dc, object);
    }

    /// Puts back what was selected before this object existed.
    void Undo() {
        if (m_previous != nullptr)
            ::SelectObject(m_dc, m_previous);
        m_previous = nullptr;
    }

private:
    HDC m_dc;
    HGDIOBJ m_previous = nullptr; ///< null: nothing is selected here
};

} // namespace tint
