// SPDX-License-Identifier: MIT
/// @file
/// Collections of any element type.
#pragma once

#include "afx.h"
#include "afx/CollectionHelpers.h"
#include "afx/CList.h"
#include "afx/CMap.h"
