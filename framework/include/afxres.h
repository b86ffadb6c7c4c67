// SPDX-License-Identifier: MIT
// Numbers of the standard commands, windows and resources, for sources and resource scripts.
#ifndef AFXRES_H
#define AFXRES_H

#ifdef RC_INVOKED
#include <winresrc.h>
#endif

// Fields of a dialog or bar.
#define IDC_STATIC (-1)
#define ID_SEPARATOR 0

// Resource types.
#define AFX_RT_DLGINIT 240
#define AFX_RT_TOOLBAR 241

// Strings of the application.
#define AFX_IDS_APP_TITLE 0xE000
#define AFX_IDS_IDLEMESSAGE 0xE001

// File commands.
#define ID_FILE_OPEN 0xE101

// Edit commands.
#define ID_EDIT_COPY 0xE122
#define ID_EDIT_PASTE 0xE125

// Window commands.
#define ID_WINDOW_ARRANGE 0xE131
#define ID_WINDOW_CASCADE 0xE132
#define ID_WINDOW_TILE_HORZ 0xE133
#define ID_WINDOW_TILE_VERT 0xE134

// Commands of the application.
#define ID_APP_ABOUT 0xE140
#define ID_APP_EXIT 0xE141

// Indicators of the status bar.
#define ID_INDICATOR_CAPS 0xE701
#define ID_INDICATOR_NUM 0xE702
#define ID_INDICATOR_SCRL 0xE703

// Control bars and the commands that show and hide them.
#define AFX_IDW_CONTROLBAR_FIRST 0xE800
#define AFX_IDW_TOOLBAR 0xE800
#define AFX_IDW_STATUS_BAR 0xE801
#define AFX_IDW_DOCKBAR_TOP 0xE81B
#define AFX_IDW_DOCKBAR_LEFT 0xE81C
#define AFX_IDW_DOCKBAR_RIGHT 0xE81D
#define AFX_IDW_DOCKBAR_BOTTOM 0xE81E
#define AFX_IDW_DOCKBAR_FLOAT 0xE81F
#define ID_VIEW_TOOLBAR 0xE800
#define ID_VIEW_STATUS_BAR 0xE801
#define ID_VIEW_REBAR 0xE804

// The pane that fills a frame window.
#define AFX_IDW_PANE_FIRST 0xE900

// Prompts of dialog data validation.
#define AFX_IDP_PARSE_INT 0xF110
#define AFX_IDP_PARSE_REAL 0xF111
#define AFX_IDP_PARSE_INT_RANGE 0xF112
#define AFX_IDP_PARSE_REAL_RANGE 0xF113
#define AFX_IDP_PARSE_STRING_SIZE 0xF114
#define AFX_IDP_PARSE_BYTE 0xF116
#define AFX_IDP_PARSE_UINT 0xF117

// Menus.
#define AFX_IDM_WINDOW_FIRST 0xE130
#define AFX_IDM_WINDOW_LAST 0xE13F
#define AFX_IDM_FIRST_MDICHILD 0xFF00

#endif
