// SPDX-License-Identifier: MIT
#include "afx/CTime.h"

namespace {

// A FILETIME counts 100 ns since 1601; this is 1 January 1970.
constexpr ULONGLONG unixEpoch = 116444736000000000ULL;
constexpr ULONGLONG ticksPerSecond = 10000000ULL;

} // namespace

CTime::CTime(const FILETIME& ft, int nDST) noexcept {
    UNUSED_ALWAYS(nDST);
    const ULONGLONG ticks = (ULONGLONG{ft.dwHighDateTime} << 32) | ft.dwLowDateTime;
    m_time = ticks < unixEpoch ? 0 : static_cast<__time64_t>((ticks - unixEpoch) / ticksPerSecond);
}
