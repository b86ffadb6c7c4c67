// SPDX-License-Identifier: MIT
/// @file
/// The classes of the framework: drawing, windows, dialogs, controls, application.
#pragma once

#include <afx.h>
#include <atltypes.h>
#include <commctrl.h>
#include <afxcoll.h>
#include <afxres.h>

// Drawing and menus.
#include "afx/CGdiObject.h"
#include "afx/CPen.h"
#include "afx/CBrush.h"
#include "afx/CFont.h"
#include "afx/CBitmap.h"
#include "afx/CPalette.h"
#include "afx/CRgn.h"
#include "afx/CDC.h"
#include "afx/CMenu.h"

// Command targets, windows, application.
#include "afx/CCmdTarget.h"
#include "afx/CWnd.h"
#include "afx/CClientDC.h"
#include "afx/CWindowDC.h"
#include "afx/CPaintDC.h"
#include "afx/CDialog.h"
#include "afx/Ddx.h"
#include "afx/CWinThread.h"
#include "afx/CWinApp.h"

// Frame windows.
#include "afx/CFrameWnd.h"
#include "afx/CMiniFrameWnd.h"
#include "afx/CMDIFrameWnd.h"
#include "afx/CMDIChildWnd.h"

// Controls.
#include "afx/CStatic.h"
#include "afx/CButton.h"
#include "afx/CEdit.h"
#include "afx/CListBox.h"
#include "afx/CComboBox.h"
#include "afx/CScrollBar.h"

#include <afxmsg_.h>
