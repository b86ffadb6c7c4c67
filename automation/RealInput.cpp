// SPDX-License-Identifier: MIT
#include "automation/RealInput.h"

namespace automation {
namespace {

void SendMouse(DWORD flags) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    ::SendInput(1, &input, sizeof input);
}

void SendKey(WORD key, DWORD flags) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(::MapVirtualKeyA(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags;
    ::SendInput(1, &input, sizeof input);
}

/// Absolute positions run from 0 to 65535 over the primary screen; rounding up lands on the pixel.
LONG ToAbsolute(LONG pixel, int screenSize) {
    return static_cast<LONG>((static_cast<LONGLONG>(pixel) * 65536 + screenSize - 1) / screenSize);
}

} // namespace

void MoveMouse(POINT screen) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dx = ToAbsolute(screen.x, ::GetSystemMetrics(SM_CXSCREEN));
    input.mi.dy = ToAbsolute(screen.y, ::GetSystemMetrics(SM_CYSCREEN));
    input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    ::SendInput(1, &input, sizeof input);
}

void MoveMouseOver(HWND window) {
    RECT rect = {};
    ::GetWindowRect(window, &rect);
    MoveMouse({(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2});
}

void PressMouse(MouseButton button) {
    SendMouse(button == MouseButton::Left ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN);
}

void ReleaseMouse(MouseButton button) {
    SendMouse(button == MouseButton::Left ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP);
}

void Click(HWND window, MouseButton button) {
    MoveMouseOver(window);
    PressMouse(button);
    ReleaseMouse(button);
}

void PressKey(WORD key) {
    SendKey(key, 0);
}

void ReleaseKey(WORD key) {
    SendKey(key, KEYEVENTF_KEYUP);
}

void TypeKey(WORD key, WORD modifier) {
    if (modifier != 0)
        PressKey(modifier);
    PressKey(key);
    ReleaseKey(key);
    if (modifier != 0)
        ReleaseKey(modifier);
}

} // namespace automation
