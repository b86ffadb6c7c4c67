// SPDX-License-Identifier: MIT
#include "menus/OsClass.h"

namespace tint {
namespace {

int ClassOfOldLine(DWORD major, DWORD minor) {
    if (major == 4 && minor == 10)
        return 3;
    return major == 4 && minor == 90 ? 4 : 2;
}

int ClassOfNtLine(DWORD major, DWORD minor) {
    if (major == 4)
        return 6;
    if (major == 5 && minor == 0)
        return 7;
    return major == 5 && minor == 1 ? 8 : 5;
}

} // namespace

int OsClassOf(const OSVERSIONINFOA& version) {
    switch (version.dwPlatformId) {
    case VER_PLATFORM_WIN32s:
        return 1;
    case VER_PLATFORM_WIN32_NT:
        return ClassOfNtLine(version.dwMajorVersion, version.dwMinorVersion);
    default:
        return ClassOfOldLine(version.dwMajorVersion, version.dwMinorVersion);
    }
}

int& CachedOsClass() {
    static int osClass = 0;
    return osClass;
}

int GetOsClass() {
    int& osClass = CachedOsClass();
    if (osClass == 0) {
        OSVERSIONINFOA version = {};
        version.dwOSVersionInfoSize = sizeof version;
        if (::GetVersionExA(&version))
            osClass = OsClassOf(version);
    }
    return osClass;
}

} // namespace tint
