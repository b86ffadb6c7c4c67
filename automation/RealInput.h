// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

/// Mouse and keyboard input that enters the system where a device's would (SendInput), so that capture,
/// hit testing, focus and hover behave as for a person.  Nothing here waits: input is handled when the
/// thread that owns the window under test next looks at its queue.
namespace automation {

enum class MouseButton { Left, Right };

/// Moves the pointer to a point in screen coordinates.
void MoveMouse(POINT screen);

/// Moves the pointer to the middle of a window.
void MoveMouseOver(HWND window);

void PressMouse(MouseButton button = MouseButton::Left);
void ReleaseMouse(MouseButton button = MouseButton::Left);

/// Moves over the middle of a window, presses and releases.
void Click(HWND window, MouseButton button = MouseButton::Left);

/// Presses or releases one key.
/// @param key  a virtual-key code
void PressKey(WORD key);
void ReleaseKey(WORD key);

/// Presses and releases a key while `modifier` (0: none) is held.
void TypeKey(WORD key, WORD modifier = 0);

} // namespace automation
