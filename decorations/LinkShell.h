// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <cstddef>

namespace tint {

/// What a link asks of the system, in one place: derive from it to have links opened otherwise (a
/// browser of the program's own, a test that only looks) and hand it to CHyperLink::SetShell.
class LinkShell {
public:
    /// Room for any name, value or command line that is looked up or run, with its end.
    static constexpr std::size_t kTextSize = 260;
    using Text = char[kTextSize];

    virtual ~LinkShell() = default;

    /// Opens a file or address as a double click would (ShellExecute).
    /// @param showCmd  how its window is to appear: SW_SHOW ...
    /// @return above 32 on success, else the shell's error code
    virtual INT_PTR Open(const char* target, int showCmd);

    /// Reads the default value of a registry key.
    /// @param value  receives it when the key can be opened, empty where the key has none that fits
    /// @return the result of opening the key: 0 on success
    virtual LONG GetRegistryDefault(HKEY root, const char* subKey, Text& value);

    /// Starts a program (WinExec).
    /// @return above 31 on success
    virtual UINT Run(const char* commandLine, int showCmd);

    /// Sounds the warning that goes with ShowError.
    virtual void Beep();

    /// Shows a message box and waits until it is closed.
    virtual void ShowError(const char* text);

    /// The shell of links that were given no other.
    static LinkShell& System();
};

} // namespace tint
