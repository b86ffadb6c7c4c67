// SPDX-License-Identifier: MIT
// MFC wants to be the one that includes <windows.h>.
#include <afxwin.h>

#include "tests/support/Pump.h"

bool PumpUntil(const std::function<bool()>& done) {
    constexpr ULONGLONG limit = 5000; // milliseconds
    const ULONGLONG start = ::GetTickCount64();
    while (!done()) {
        if (::GetTickCount64() - start > limit)
            return false;
        MSG message;
        if (::PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE))
            AfxGetThread()->PumpMessage();
        else
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
    return true;
}

void PumpFor(DWORD milliseconds) {
    const ULONGLONG end = ::GetTickCount64() + milliseconds;
    PumpUntil([end] { return ::GetTickCount64() >= end; });
}
