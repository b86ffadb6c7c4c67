// SPDX-License-Identifier: MIT
// Identifiers of the gallery's resources; read by the compiler and the resource compiler.
#pragma once

#define IDR_GALLERY 100

#define IDD_GALLERY 101
#define IDD_BUTTONS 102
#define IDD_PICTURES 103
#define IDD_GLYPHS 104
#define IDD_COMBOS 105
#define IDD_LIST 106
#define IDD_LINKS 107
#define IDD_BITMAP_BUTTONS 108
#define IDD_RICH_TEXT 109
#define IDD_COLORS 111

#define IDB_STRIP_1 200
#define IDB_STRIP_3 201
#define IDB_STRIP_4 202
#define IDB_STRIP_6 203

// The gallery window
#define IDC_SCENES 1001
#define IDC_TITLE 1002
#define IDC_DESCRIPTION 1003
#define IDC_PAGE 1004

// The page "Buttons"
#define IDC_SUBJECT 1101
#define IDC_MAKE_DEFAULT 1102
#define IDC_MAKE_DISABLED 1103
#define IDC_CLICKS 1104
#define IDC_SAMPLE_OK 1105
#define IDC_SAMPLE_CANCEL 1106
#define IDC_SAMPLE_APPLY 1107
#define IDC_SYSTEM_OK 1108
#define IDC_SYSTEM_CANCEL 1109
#define IDC_SYSTEM_APPLY 1110

// The page "Pictures"; the nine pictures have consecutive identifiers, row by row
#define IDC_PICTURE_FIRST 1201
#define IDC_PICTURE_LAST 1209
#define IDC_TRANSPARENT 1210
#define IDC_TILES 1211
#define IDC_UNREADABLE 1212
#define IDC_PASTED 1213
#define IDC_PASTE 1214

// The page "Glyphs"
#define IDC_GLYPHS_FLAT 1301
#define IDC_GLYPHS_CLASSIC 1302
#define IDC_GLYPH_TABLE 1303

// The page "Combo boxes"; the three skinned ones and the system's three have consecutive identifiers
#define IDC_COMBO_SUBJECT 1401
#define IDC_COMBO_STAGE 1402
#define IDC_COMBO_DISABLE 1403
#define IDC_COMBO_FIRST 1411
#define IDC_SYSTEM_COMBO_FIRST 1421

// The page "Menus" and the window it opens; commands in the order of the menus
#define IDD_MENUS 110
#define IDR_MENUS_FRAME 300
#define IDR_MENUS_CONTEXT 301
#define IDB_MENUS_IMAGES 310
#define IDC_MENUS_OPEN 1800
#define IDC_MENUS_AREA 1801
#define IDC_MENUS_CHOSEN 1802
#define IDM_PROJECT_NEW 32800
#define IDM_PROJECT_OPEN 32801
#define IDM_PROJECT_SAVE 32802
#define IDM_SHOW_GRID 32803
#define IDM_SNAP 32804
#define IDM_METRIC 32805
#define IDM_INCHES 32806
#define IDM_RECENT_FIRST 32807
#define IDM_RECENT_LAST 32809
#define IDM_PROJECT_CLOSE 32810
#define IDM_UNDO 32811
#define IDM_CUT 32812
#define IDM_COPY 32813
#define IDM_PASTE 32814
#define IDM_LAYER_ADD 32815
#define IDM_LAYER_REMOVE 32816
#define IDM_MENUS_LAST 32816

// The page "List"
#define IDC_LIST 1501

// The page "Links"
#define IDC_LINK_FRESH 1600
#define IDC_LINK_VISITED 1601
#define IDC_LINK_NEVER 1602
#define IDC_LINK_ALWAYS 1603
#define IDC_LINK_TAB 1604
#define IDC_LINK_HOVER 1605
#define IDC_LINK_BUTTON 1606
#define IDC_LINK_CLICKS 1607
#define IDC_LINK_LEFT 1608
#define IDC_LINK_CENTRED 1609
#define IDC_LINK_RIGHT 1610

// The page "Bitmap buttons"; the strips of 1, 3, 4 and 6 frames have consecutive identifiers
#define IDC_BITMAP_FIRST 1650
#define IDC_BITMAP_LAST 1653
#define IDC_BITMAP_DISABLE 1654

// The page "Rich text"
#define IDC_RTF 1700

// The page "Colours"
#define IDC_COLOR_TABLE 1850

// The frame window: menu, toolbar, accelerators and title; the panes of its status bar
#define IDR_GALLERY_FRAME 120
#define IDR_SCHEMES 121
#define IDD_ABOUT 122
#define IDC_SCENE_COMBO 1900
#define ID_SCENE_PREVIOUS 32900
#define ID_SCENE_NEXT 32901
#define ID_VIEW_SKIN 32902
#define ID_VIEW_SCHEME 32903
#define ID_INDICATOR_SCENE 32904
#define ID_INDICATOR_SCHEME 32905
#define ID_SCENE_FIRST 32910
#define ID_SCENE_LAST 32939
#define ID_SCHEME_FIRST 32940
#define ID_SCHEME_LAST 32945
#define ID_DOCK_FIRST 32950
#define ID_DOCK_LAST 32953
