// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

namespace tint {

/// Which family of Windows this is, as far as drawing the border of a popup goes:
///
/// | class | system                                                       |
/// |-------|--------------------------------------------------------------|
/// | 0     | unknown                                                      |
/// | 1     | Win32s                                                       |
/// | 2     | Windows 95, or any of its line but the next two              |
/// | 3, 4  | Windows 98 (4.10), Windows Me (4.90)                         |
/// | 5     | the NT line, but the next three: also every later version    |
/// | 6     | NT 4                                                         |
/// | 7, 8  | Windows 2000 (5.0), Windows XP (5.1)                         |
///
/// Only class 8 casts a shadow of its own under menus in the way that this look wants, so all others
/// get theirs from us; that versions after XP count among the others is deliberate.
int OsClassOf(const OSVERSIONINFOA& version);

/// The class of this system, asked for once; 0, to be asked again, where the system does not tell.
int GetOsClass();

/// What GetOsClass() keeps; 0 makes it ask again.  Tests put another system's class here.
int& CachedOsClass();

} // namespace tint
