// SPDX-License-Identifier: MIT
/// @file
/// Collections of fixed element types.
#pragma once

#include "afx.h"
#include "afx/FixedCollections.h"
