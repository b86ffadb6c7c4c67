// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

#include <functional>

/// Handles the messages of this thread, through the application's PreTranslateMessage chain, until
/// `done` holds.
/// @return false when that was not so within some seconds
bool PumpUntil(const std::function<bool()>& done);

/// Handles messages for a while: long enough for input that was sent to have been handled.
void PumpFor(DWORD milliseconds = 150);
