// SPDX-License-Identifier: MIT
/// @file
/// CTime: a point in time with a resolution of one second.
#pragma once

#include "afx/Types.h"

/// Seconds since 1 January 1970 00:00 UTC.
class CTime {
public:
    CTime() noexcept = default;
    CTime(__time64_t time) noexcept : m_time(time) {}
    /// From coordinated universal time; fractions of a second are cut off. Times before 1970
    /// give 0.
    /// @param nDST accepted for the interface's sake: universal time knows no daylight saving.
    CTime(const FILETIME& ft, int nDST = -1) noexcept;

    __time64_t GetTime() const noexcept { return m_time; }

    bool operator==(CTime time) const noexcept { return m_time == time.m_time; }
    bool operator!=(CTime time) const noexcept { return m_time != time.m_time; }
    bool operator<(CTime time) const noexcept { return m_time < time.m_time; }
    bool operator>(CTime time) const noexcept { return m_time > time.m_time; }
    bool operator<=(CTime time) const noexcept { return m_time <= time.m_time; }
    bool operator>=(CTime time) const noexcept { return m_time >= time.m_time; }

private:
    __time64_t m_time = 0;
};
