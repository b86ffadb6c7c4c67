// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

namespace tint {

/// Draws on a window outside of WM_PAINT, for the life of the object.
///
/// Unlike the framework's classes of this kind it throws nothing: without a device context it holds
/// null, on which drawing calls fail and do nothing else.
class HostDC {
public:
    enum class Area { Client, WholeWindow };

    HostDC(HWND host, Area area) : m_host(host), m_dc(Open(host, area)) {}
    ~HostDC() {
        if (m_dc != nullptr)
            ::ReleaseDC(m_host, m_dc);
    }

    HostDC(const HostDC&) = delete;
    HostDC& operator=(const HostDC&) = delete;

    operator HDC() const { return m_dc; }

private:
    static HDC Open(HWND host, Area area) {
        if (host == nullptr) // which stands for the whole screen there
            return nullptr;
        return area == Area::Client ? ::GetDC(host) : ::GetWindowDC(host);
    }

    HWND m_host;
    HDC m_dc;
};

} // namespace tint
