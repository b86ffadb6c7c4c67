// SPDX-License-Identifier: MIT
// Identifiers of the gallery's resources; read by the compiler and the resource compiler.
#pragma once

#define IDR_GALLERY 100

#define IDD_GALLERY 101
#define IDD_BUTTONS 102
#define IDD_PICTURES 103
#define IDD_LIST 106

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

// The page "List"
#define IDC_LIST 1501
