// SPDX-License-Identifier: MIT
/// @file
/// The common controls.
#pragma once

#include <afxwin.h>
#include <commctrl.h>

#include "afx/CRichEditCtrl.h"
#include "afx/CToolTipCtrl.h"
