// SPDX-License-Identifier: MIT
/// @file
/// The string class.
#pragma once

#include "afx/CString.h"
