// SPDX-License-Identifier: MIT
/// @file
/// Extensions: bitmap buttons.
#pragma once

#include <afxwin.h>

#include "afx/CBitmapButton.h"
