// SPDX-License-Identifier: MIT
// CHyperLink: what a click does.
#include "decorations/HyperLink.h"

namespace {

/// What the shell's error codes mean, for the user.
constexpr struct {
    int code;
    const char* text;
} kErrors[] = {
    {0, "The operating system is out\nof memory or resources."},
    {ERROR_FILE_NOT_FOUND, "The specified file was not found."},
    {ERROR_PATH_NOT_FOUND, "The specified path was not found."},
    {SE_ERR_ACCESSDENIED, "The operating system denied\naccess to the specified file."},
    {SE_ERR_OOM, "There was not enough memory to complete the operation."},
    {ERROR_BAD_FORMAT, "The .EXE file is invalid\n(non-Win32 .EXE or error in .EXE image)."},
    // A sharing violation (26) is left out on purpose: it is reported by its number, like any code
    // that is not listed.
    {SE_ERR_ASSOCINCOMPLETE, "The filename association is\nincomplete or invalid."},
    {SE_ERR_DDETIMEOUT,
     "The DDE transaction could not\nbe completed because the request timed out."},
    {SE_ERR_DDEFAIL, "The DDE transaction failed."},
    {SE_ERR_DDEBUSY, "The DDE transaction could not\nbe completed because other DDE "
                     "transactions\nwere being processed."},
    {SE_ERR_NOASSOC, "There is no application associated\nwith the given filename extension."},
    {SE_ERR_DLLNOTFOUND, "The specified dynamic-link library was not found."},
};

CString ErrorText(int code) {
    for (const auto& error : kErrors) {
        if (error.code == code)
            return error.text;
    }
    CString text;
    text.Format("Unknown Error (%d) occurred.", code);
    return text;
}

/// A registered command, cut at its placeholder, with the target in its place.
/// @return empty when there is no program to run, or the whole is too long
CString CommandLineFor(const CString& command, const CString& url) {
    int cut = command.Find("\"%1\"");
    if (cut < 0)
        cut = command.Find("%1");
    const CString program = cut < 0 ? command : command.Left(cut);
    // Without a program, the target itself would be run as one.
    if (CString(program).TrimLeft().IsEmpty())
        return CString();
    const CString line = program + " " + url;
    const bool fits = line.GetLength() < static_cast<int>(tint::LinkShell::kTextSize);
    return fits ? line : CString();
}

} // namespace

void CHyperLink::OnClicked() {
    if (m_url.IsEmpty()) {
        if (CWnd* const parent = GetParent())
            parent->SendMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), 0), 0);
        return;
    }
    m_overLink = FALSE;
    // The shell may run a message loop, and handlers there may change the target or end the dialog.
    const HWND window = m_hWnd;
    const CString url = m_url;
    const INT_PTR result = OpenUrl(url, SW_SHOW);
    if (FromHandlePermanent(window) != this)
        return;
    m_visited = result > 32;
    if (m_visited) {
        SetVisited(TRUE);
    } else {
        m_shell->Beep();
        ReportError(static_cast<int>(result));
    }
}

INT_PTR CHyperLink::OpenUrl(const char* url, int showCmd) {
    tint::LinkShell& shell = *m_shell; // the link itself may be gone once a target was tried
    const INT_PTR opened = shell.Open(url, showCmd);
    if (opened > 32)
        return opened;

    tint::LinkShell::Text fileClass;
    tint::LinkShell::Text command;
    if (shell.GetRegistryDefault(HKEY_CLASSES_ROOT, ".htm", fileClass) != ERROR_SUCCESS)
        return opened;
    const CString key = CString(fileClass) + "\\shell\\open\\command";
    if (key.GetLength() >= static_cast<int>(sizeof fileClass) ||
        shell.GetRegistryDefault(HKEY_CLASSES_ROOT, key, command) != ERROR_SUCCESS)
        return opened;
    const CString line = CommandLineFor(command, url);
    if (line.IsEmpty())
        return opened;
    return static_cast<INT_PTR>(shell.Run(line, showCmd));
}

void CHyperLink::ReportError(int code) {
    m_shell->ShowError("Unable to open hyperlink:\n\n" + ErrorText(code));
}

LONG CHyperLink::GetRegistryDefault(HKEY root, const char* subKey, tint::LinkShell::Text& value) {
    return m_shell->GetRegistryDefault(root, subKey, value);
}
