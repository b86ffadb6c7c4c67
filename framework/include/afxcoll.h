// SPDX-License-Identifier: MIT
/// @file
/// Collections of a fixed element type.
#pragma once

#include "afx.h"
#include "afx/CPtrList.h"
