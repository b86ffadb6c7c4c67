// SPDX-License-Identifier: MIT
#include "automation/Steady.h"

namespace automation {

Picture WaitUntilSteady(HWND window) {
    constexpr DWORD interval = 40; // milliseconds between two looks
    constexpr int quietLooks = 3;  // equal pictures in a row that count as rest
    constexpr int mostLooks = 100; // about four seconds

    Picture last = CaptureWindow(window);
    int quiet = 0;
    for (int look = 0; look < mostLooks && quiet < quietLooks; ++look) {
        ::Sleep(interval);
        Picture now = CaptureWindow(window);
        quiet = now == last ? quiet + 1 : 0;
        last = std::move(now);
    }
    return last;
}

} // namespace automation
