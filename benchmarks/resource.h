// SPDX-License-Identifier: MIT
#pragma once

#define IDB_BENCH_STRIP 100
#define IDB_BENCH_FRAME 101
#define IDB_BENCH_PICTURE 102
