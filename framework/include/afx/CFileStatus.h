// SPDX-License-Identifier: MIT
/// @file
/// CFileStatus: what the system knows about a file.
#pragma once

#include "afx/CTime.h"

#include <cstdlib>

struct CFileStatus {
    /// Creation, 0 when unknown.
    CTime m_ctime;
    /// Last change of the content.
    CTime m_mtime;
    /// Last read access.
    CTime m_atime;
    /// Length in bytes.
    ULONGLONG m_size = 0;
    /// CFile::Attribute values.
    BYTE m_attribute = 0;
    /// Absolute path.
    TCHAR m_szFullName[_MAX_PATH] = {};
};
