// SPDX-License-Identifier: MIT
#include "decorations/LinkShell.h"

#include <shellapi.h>

namespace tint {

INT_PTR LinkShell::Open(const char* target, int showCmd) {
    return reinterpret_cast<INT_PTR>(
        ::ShellExecuteA(nullptr, "open", target, nullptr, nullptr, showCmd));
}

LONG LinkShell::GetRegistryDefault(HKEY root, const char* subKey, Text& value) {
    HKEY key = nullptr;
    const LONG opened = ::RegOpenKeyExA(root, subKey, 0, KEY_QUERY_VALUE, &key);
    if (opened != ERROR_SUCCESS)
        return opened;
    LONG size = sizeof value;
    if (::RegQueryValueA(key, nullptr, value, &size) != ERROR_SUCCESS)
        value[0] = '\0';
    value[sizeof value - 1] = '\0'; // what was written there need not end
    ::RegCloseKey(key);
    return opened;
}

UINT LinkShell::Run(const char* commandLine, int showCmd) {
    return ::WinExec(commandLine, static_cast<UINT>(showCmd));
}

void LinkShell::Beep() {
    ::MessageBeep(MB_ICONEXCLAMATION);
}

void LinkShell::ShowError(const char* text) {
    AfxMessageBox(text, MB_ICONEXCLAMATION);
}

LinkShell& LinkShell::System() {
    static LinkShell shell;
    return shell;
}

} // namespace tint
