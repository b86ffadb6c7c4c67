// SPDX-License-Identifier: MIT
/// @file
/// Extensions: bitmap buttons and control bars.
#pragma once

#include <afxwin.h>

#include "afx/CBitmapButton.h"
#include "afx/CControlBar.h"
#include "afx/CStatusBar.h"
#include "afx/CToolBar.h"
