// SPDX-License-Identifier: MIT
/// @file
/// The common controls.
#pragma once

#include <afxwin.h>
#include <commctrl.h>

#include "afx/CHeaderCtrl.h"
#include "afx/CImageList.h"
#include "afx/CListCtrl.h"
#include "afx/CRichEditCtrl.h"
#include "afx/CToolTipCtrl.h"
