// SPDX-License-Identifier: MIT
#pragma once

#define IDD_HELLO 100

#define IDC_GREET 1000
#define IDC_GREETING 1001
#define IDC_SYSTEM 1002
