// SPDX-License-Identifier: MIT
#pragma once

class CHeaderCtrl;

#include "afx/Platform.h"

namespace afx {

/// Registers the window classes of list view and header, which a program that shows no dialog has
/// not got otherwise.
void RegisterListViewClasses();

/// The object of a header control that the program attached, else a temporary one.
CHeaderCtrl* HeaderFromHandle(HWND hWnd);

} // namespace afx
