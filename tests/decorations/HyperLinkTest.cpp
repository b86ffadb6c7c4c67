// SPDX-License-Identifier: MIT
#include "decorations/HyperLink.h"

#include <gtest/gtest.h>

#include <oleacc.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "automation/Picture.h"
#include "tests/decorations/SubjectDialog.h"
#include "tests/support/GdiLedger.h"
#include "tests/support/ImportPatch.h"

namespace fs = std::filesystem;
using automation::Picture;
using Calls = std::vector<std::string>;

namespace {

constexpr COLORREF kFresh = 0x00EE0000;
constexpr COLORREF kVisited = 0x008B1A55;
constexpr COLORREF kHover = 0x000000FF;

/// Notes what it is asked for, and answers as told.
class FakeShell : public tint::LinkShell {
public:
    INT_PTR Open(const char* target, int showCmd) override {
        EXPECT_EQ(showCmd, SW_SHOW);
        m_calls.push_back(std::string("open ") + target);
        return m_opened;
    }
    LONG GetRegistryDefault(HKEY root, const char* subKey, Text& value) override {
        EXPECT_EQ(root, HKEY_CLASSES_ROOT);
        if (m_registry.count(subKey) == 0)
            return ERROR_FILE_NOT_FOUND;
        ::lstrcpynA(value, m_registry[subKey].c_str(), sizeof value);
        return ERROR_SUCCESS;
    }
    UINT Run(const char* commandLine, int) override {
        m_calls.push_back(std::string("run ") + commandLine);
        return m_ran;
    }
    void Beep() override { m_calls.push_back("beep"); }
    void ShowError(const char* text) override { m_calls.push_back(text); }

    Calls TakeCalls() { return std::exchange(m_calls, {}); }

    INT_PTR m_opened = 42;
    UINT m_ran = 42;
    std::map<std::string, std::string> m_registry;

private:
    Calls m_calls;
};

class LinkDialog : public SubjectDialog<CHyperLink> {
public:
    explicit LinkDialog(const char* text = "Home page", DWORD style = 0, const char* url = "") {
        m_subject.SetURL(url);
        m_subject.SetShell(m_shell);
        Open("STATIC", text, style);
    }

    Picture Shown() const { return automation::CaptureWindow(m_subject.m_hWnd); }

    CRect Place() const {
        CRect place;
        m_subject.GetWindowRect(place);
        ScreenToClient(place);
        return place;
    }

    /// Waits until the link shows text of this colour and no other, underlined or not.
    bool Shows(COLORREF color, bool underlined) const {
        return PumpUntil([&] {
            const Picture shown = Shown();
            bool line = false;
            for (int y = 0; y < shown.height; ++y) {
                const auto row = shown.pixels.begin() + y * shown.width;
                line = line || std::count(row, row + shown.width, color) == shown.width;
            }
            const std::set<COLORREF> colors(shown.pixels.begin(), shown.pixels.end());
            return line == underlined && colors == std::set{color, ::GetSysColor(COLOR_BTNFACE)};
        });
    }

    FakeShell m_shell;
    std::vector<std::pair<WPARAM, LPARAM>> m_commands;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        if (reinterpret_cast<HWND>(lParam) != m_subject.m_hWnd) // which is the click itself
            m_commands.push_back({wParam, lParam});
        return CDialog::OnCommand(wParam, lParam);
    }
    void OnOK() override {}
};

TEST(HyperLink, TextAndTargetStandInForEachOther) {
    const char* const cases[][4] = {{"Home", "http://a/", "Home", "http://a/"},
                                    {"Home", "", "Home", "Home"},
                                    {"", "http://a/", "http://a/", "http://a/"}};
    for (const auto& [text, url, shown, target] : cases) {
        const LinkDialog dialog(text, 0, url);
        CString now;
        dialog.m_subject.GetWindowText(now);
        EXPECT_STREQ(now, shown);
        EXPECT_STREQ(dialog.m_subject.GetURL(), target);
    }
}

TEST(HyperLink, FitsItsTextAtTheEdgeItsStyleSays) {
    for (int bits = 0; bits < 12; ++bits) {
        const DWORD alignment = bits % 3; // left, SS_CENTER, SS_RIGHT
        const bool middle = (bits / 3 & 1) != 0;
        const DWORD border = bits >= 6 ? WS_BORDER : 0;
        LinkDialog dialog("Home page", alignment | border | (middle ? SS_CENTERIMAGE : 0));
        CRect frame(0, 0, 0, 0);
        ::AdjustWindowRectEx(frame, dialog.m_subject.GetStyle(), FALSE,
                             dialog.m_subject.GetExStyle());
        CClientDC dc(&dialog);
        CFont* const previous = dc.SelectObject(dialog.GetFont());
        const CSize size = dc.GetTextExtent("Home page", 9) + frame.Size();
        dc.SelectObject(previous);

        CRect fitted(10, 40, 100, 60);
        dialog.MapDialogRect(fitted);
        if (middle)
            fitted.DeflateRect(0, (fitted.Height() - size.cy) / 2);
        else
            fitted.bottom = fitted.top + size.cy;
        if (alignment == SS_CENTER)
            fitted.DeflateRect((fitted.Width() - size.cx) / 2, 0);
        else if (alignment == SS_RIGHT)
            fitted.left = fitted.right - size.cx;
        else
            fitted.right = fitted.left + size.cx;
        EXPECT_EQ(dialog.Place(), fitted) << bits;

        dialog.m_subject.SetAutoSize(FALSE);
        dialog.m_subject.SetWindowText("A much longer text than before");
        dialog.m_subject.SetURL("x");
        EXPECT_EQ(dialog.Place(), fitted) << "not fitted now";
        dialog.m_subject.SetAutoSize();
        EXPECT_GT(dialog.Place().Width(), fitted.Width());
    }
}

decltype(&::SetTimer) g_setTimer = nullptr;

UINT_PTR WINAPI TenTimesASecond(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC procedure) {
    EXPECT_EQ(id, 100u);
    EXPECT_EQ(milliseconds, 100u);
    return g_setTimer(window, id, milliseconds, procedure);
}

TEST(HyperLink, ColoursAndUnderlineFollowTheMouseInEveryMode) {
    LinkDialog dialog;
    CHyperLink& link = dialog.m_subject;
    ImportPatch patch;
    g_setTimer = patch.Redirect("user32.dll", "SetTimer", &TenTimesASecond);
    const Picture atFirst = dialog.Shown();
    for (const int mode : {-1, 0, 1}) {
        link.SetUnderline(mode);
        for (const bool visited : {false, true}) {
            link.SetVisited(visited);
            ASSERT_TRUE(dialog.Shows(visited ? kVisited : kFresh, mode == 1)) << mode;
            automation::MoveMouseOver(link.m_hWnd);
            ASSERT_TRUE(dialog.Shows(kHover, mode != 0)) << mode;
            LinkDialog::ParkMouse();
            ASSERT_TRUE(dialog.Shows(visited ? kVisited : kFresh, mode == 1)) << mode;
        }
    }
    link.SetUnderline(-1);
    link.SetVisited(FALSE);
    EXPECT_TRUE(dialog.Shows(kFresh, false));
    EXPECT_TRUE(dialog.Shown() == atFirst) << "nothing is left of the line and the other colours";

    link.SetColours(RGB(1, 2, 3), RGB(4, 5, 6), static_cast<COLORREF>(-1));
    EXPECT_TRUE(dialog.Shows(RGB(1, 2, 3), false));
    EXPECT_EQ(link.GetHoverColour(), ::GetSysColor(COLOR_HIGHLIGHT));
    link.SetWindowText("Page home");
    EXPECT_TRUE(dialog.Shows(RGB(1, 2, 3), false)) << "the new text covers the old one";
}

HWND VisibleTip() {
    HWND tip = nullptr;
    do
        tip = ::FindWindowExA(nullptr, tip, TOOLTIPS_CLASSA, nullptr);
    while (tip != nullptr && !::IsWindowVisible(tip));
    return tip;
}

TEST(HyperLink, TheToolTipShowsTheTargetOfTheMoment) {
    LinkDialog dialog("Home page", 0, "http://first/?a=1&b=2");
    for (const std::string& target :
         {std::string("http://first/?a=1&b=2"), "http://large/" + std::string(600, 'l')}) {
        dialog.m_subject.SetURL(target.c_str());
        automation::MoveMouseOver(dialog.m_subject.m_hWnd);
        EXPECT_TRUE(PumpUntil([] { return VisibleTip() != nullptr; })) << target.size();
        wchar_t text[1024] = L""; // the narrow message gives 80 bytes at most
        TOOLINFOW tool = {};
        tool.cbSize = TTTOOLINFOW_V2_SIZE;
        tool.hwnd = dialog.m_subject.m_hWnd;
        tool.uId = 1;
        tool.lpszText = text;
        ::SendMessageW(VisibleTip(), TTM_GETTEXTW, 1024, reinterpret_cast<LPARAM>(&tool));
        EXPECT_EQ(text, std::wstring(target.begin(), target.end()));
        LinkDialog::ParkMouse();
        EXPECT_TRUE(PumpUntil([] { return VisibleTip() == nullptr; }));
    }
}

TEST(HyperLink, AClickOpensTheTargetOrSaysWhyNot) {
    LinkDialog dialog("Home page", 0, "http://a/");
    automation::Click(dialog.m_subject.m_hWnd);
    EXPECT_TRUE(PumpUntil([&] { return dialog.m_subject.GetVisited(); }));
    EXPECT_EQ(dialog.m_shell.TakeCalls(), Calls{"open http://a/"});
    LinkDialog::ParkMouse();
    EXPECT_TRUE(dialog.Shows(kVisited, false));

    const std::map<int, std::string> texts = {
        {0, "The operating system is out\nof memory or resources."},
        {2, "The specified file was not found."},
        {3, "The specified path was not found."},
        {5, "The operating system denied\naccess to the specified file."},
        {8, "There was not enough memory to complete the operation."},
        {11, "The .EXE file is invalid\n(non-Win32 .EXE or error in .EXE image)."},
        {27, "The filename association is\nincomplete or invalid."},
        {28, "The DDE transaction could not\nbe completed because the request timed out."},
        {29, "The DDE transaction failed."},
        {30, "The DDE transaction could not\nbe completed because other DDE transactions\nwere "
             "being processed."},
        {31, "There is no application associated\nwith the given filename extension."},
        {32, "The specified dynamic-link library was not found."},
    };
    for (int code = -1; code <= 32; ++code) {
        const std::string text = texts.count(code) != 0
                                     ? texts.at(code)
                                     : "Unknown Error (" + std::to_string(code) + ") occurred.";
        dialog.m_shell.m_opened = code;
        dialog.m_subject.SetVisited(TRUE);
        dialog.m_subject.SendMessage(WM_LBUTTONDOWN, 0, 0);
        EXPECT_EQ(dialog.m_shell.TakeCalls(),
                  (Calls{"open http://a/", "beep", "Unable to open hyperlink:\n\n" + text}));
        EXPECT_FALSE(dialog.m_subject.GetVisited());
    }

    dialog.m_subject.SetURL(""); // a button now
    dialog.m_subject.SendMessage(WM_LBUTTONDOWN, 0, 0);
    EXPECT_EQ(dialog.m_commands, (std::vector<std::pair<WPARAM, LPARAM>>{{kSubject, 0}}));
    EXPECT_EQ(dialog.m_shell.TakeCalls(), Calls());
}

TEST(HyperLink, FallsBackToTheProgramForPages) {
    CHyperLink link;
    FakeShell shell;
    link.SetShell(shell);
    shell.m_opened = 31;
    const auto opens = [&](const std::string& command, const std::string& url,
                           const std::string& fileClass = "page") {
        shell.m_registry = {{".htm", fileClass}, {fileClass + "\\shell\\open\\command", command}};
        const INT_PTR result = link.OpenUrl(url.c_str(), SW_SHOW);
        const Calls calls = shell.TakeCalls();
        EXPECT_EQ(calls.front(), "open " + url);
        EXPECT_EQ(result, calls.size() == 2 ? 42 : 31);
        return calls.size() == 2 ? calls[1] : "";
    };
    EXPECT_EQ(opens("C:\\b.exe \"%1\" -x", "u"), "run C:\\b.exe  u") << "quoted, blank kept";
    EXPECT_EQ(opens("C:\\b.exe -f%1 -x", "u"), "run C:\\b.exe -f u") << "bare";
    EXPECT_EQ(opens("C:\\b.exe %1 \"%1\"", "u"), "run C:\\b.exe %1  u") << "the quoted one wins";
    EXPECT_EQ(opens("C:\\b.exe", "u"), "run C:\\b.exe u") << "none";
    for (const char* nothing : {"", "  ", "\"%1\"", " %1"})
        EXPECT_EQ(opens(nothing, "calc.exe"), "") << "the target is no program to run";

    const std::string fits(259 - 9, 'u'); // "C:\b.exe " takes nine
    EXPECT_EQ(opens("C:\\b.exe", fits), "run C:\\b.exe " + fits);
    EXPECT_EQ(opens("C:\\b.exe", fits + "u"), "") << "260 bytes with its end are too many";
    EXPECT_EQ(opens("C:\\b.exe", std::string(100000, 'u')), "");
    const std::string longest(259 - 19, 'c'); // "\shell\open\command" takes nineteen
    EXPECT_EQ(opens("b", "u", longest), "run b u");
    EXPECT_EQ(opens("b", "u", longest + "c"), "");

    shell.m_ran = 2;
    shell.m_registry = {{".htm", "page"}, {"page\\shell\\open\\command", "b"}};
    EXPECT_EQ(link.OpenUrl("u", SW_SHOW), 2) << "the program's failure counts";
    shell.m_registry.erase(".htm");
    EXPECT_EQ(link.OpenUrl("u", SW_SHOW), 31) << "no class";
    shell.m_registry = {{".htm", "page"}};
    EXPECT_EQ(link.OpenUrl("u", SW_SHOW), 31) << "no command";
}

TEST(HyperLink, OnlyATabStopLetsTheKeyboardIn) {
    for (const DWORD tabStop : {DWORD{0}, DWORD{WS_TABSTOP}}) {
        LinkDialog dialog("Home page", tabStop, "http://a/");
        const Picture before = dialog.Shown();
        const HWND next = tabStop ? dialog.m_subject.m_hWnd : dialog.GetDlgItem(IDOK)->m_hWnd;
        automation::TypeKey(VK_TAB);
        EXPECT_TRUE(PumpUntil([&] { return ::GetFocus() == next; }));
        dialog.m_subject.SetFocus();
        PumpFor(50);
        const Picture focused = dialog.Shown();
        int dots = 0;
        for (int x = 0; x < focused.width; ++x)
            dots += focused.At(x, 0) != before.At(x, 0);
        EXPECT_NEAR(dots, tabStop ? focused.width / 2 : 0, 1) << "of the focus rectangle";
        for (const WORD key : {WORD{VK_RETURN}, WORD{VK_SPACE}}) {
            automation::PressKey(key);
            automation::PressKey(key); // held down
            automation::ReleaseKey(key);
            PumpFor();
            EXPECT_EQ(dialog.m_shell.TakeCalls(), tabStop ? Calls{"open http://a/"} : Calls())
                << key;
        }
        EXPECT_EQ(dialog.m_commands.empty(), tabStop != 0) << "else the default button's Enter";
        dialog.GetDlgItem(IDOK)->SetFocus();
        dialog.m_subject.SetVisited(FALSE);
        PumpFor(50);
        EXPECT_TRUE(dialog.Shown() == before);

        IAccessible* accessible = nullptr;
        ::AccessibleObjectFromWindow(dialog.m_subject.m_hWnd, OBJID_CLIENT, __uuidof(IAccessible),
                                     reinterpret_cast<void**>(&accessible));
        ASSERT_NE(accessible, nullptr);
        VARIANT self = {};
        self.vt = VT_I4;
        BSTR name = nullptr;
        EXPECT_EQ(accessible->get_accName(self, &name), S_OK);
        EXPECT_STREQ(name, L"Home page");
        ::SysFreeString(name);
        accessible->Release();
    }
}

void SetClass(const char* key, const std::string& value) {
    ::RegSetValueA(HKEY_CLASSES_ROOT, key, REG_SZ, value.c_str(), 0);
}

TEST(HyperLink, TheSystemStartsTheProgramThatIsRegistered) {
    const fs::path out = fs::temp_directory_path() / "tintkit-link.txt";
    const std::string program = "cmd.exe /c echo>" + out.string() + " ";
    char pageClass[1024] = "";
    LONG size = sizeof pageClass;
    ::RegQueryValueA(HKEY_CLASSES_ROOT, ".htm", pageClass, &size);
    SetClass("tintkit-test", "URL:test");
    ::RegSetKeyValueA(HKEY_CLASSES_ROOT, "tintkit-test", "URL Protocol", REG_SZ, "", 1);
    SetClass("tintkit-test\\shell\\open\\command", program + "by-shell %1");
    SetClass(".htm", "tintkit-page");
    SetClass("tintkit-page\\shell\\open\\command", program + "by-command \"%1\"");

    CHyperLink link;
    const std::pair<const char*, std::string> cases[] = {
        {"tintkit-test:page?a=1", "by-shell tintkit-test:page?a=1"},
        {"tintkit-none:page", "by-command  tintkit-none:page"}};
    for (const auto& [url, expected] : cases) {
        fs::remove(out);
        EXPECT_GT(link.OpenUrl(url, SW_HIDE), 32);
        std::string line;
        EXPECT_TRUE(PumpUntil([&] {
            std::ifstream file(out);
            return std::getline(file, line) && !file.eof();
        }));
        EXPECT_EQ(line.substr(0, expected.size()), expected);
    }
    tint::LinkShell::Text value = "x";
    EXPECT_NE(link.GetRegistryDefault(HKEY_CLASSES_ROOT, "tintkit-none", value), ERROR_SUCCESS);
    EXPECT_STREQ(value, "x") << "untouched";
    SetClass(".htm", std::string(400, 'c'));
    EXPECT_EQ(link.GetRegistryDefault(HKEY_CLASSES_ROOT, ".htm", value), ERROR_SUCCESS);
    EXPECT_STREQ(value, "") << "does not fit";
    EXPECT_LE(link.OpenUrl("tintkit-none:page", SW_HIDE), 32);

    SetClass(".htm", pageClass);
    ::RegDeleteTreeA(HKEY_CLASSES_ROOT, "tintkit-test");
    ::RegDeleteTreeA(HKEY_CLASSES_ROOT, "tintkit-page");
    fs::remove(out);
}

decltype(&::LoadCursorA) g_loadCursor = nullptr;

// A help program with a hand in it, which the system has no more: this program stands in for it.
HMODULE WINAPI HelpProgram(LPCSTR path, HANDLE, DWORD flags) {
    EXPECT_EQ(::lstrcmpiA(path, "C:\\windows\\winhlp32.exe"), 0) << path;
    EXPECT_EQ(flags, DWORD{LOAD_LIBRARY_AS_DATAFILE});
    return ::LoadLibraryA(__argv[0]);
}
HCURSOR WINAPI HandOfHelp(HINSTANCE module, LPCSTR name) {
    const bool hand = module == ::GetModuleHandleA(nullptr) && name == MAKEINTRESOURCEA(106);
    return g_loadCursor(hand ? nullptr : module, hand ? IDC_HAND : name);
}

TEST(HyperLink, TheHandIsThatOfTheHelpProgram) {
    HCURSOR hand = nullptr;
    ICONINFO info = {};
    {
        ImportPatch patch;
        patch.Redirect("kernel32.dll", "LoadLibraryExA", &HelpProgram);
        g_loadCursor = patch.Redirect("user32.dll", "LoadCursorA", &HandOfHelp);
        LinkDialog dialog;
        hand = dialog.m_subject.GetLinkCursor();
        EXPECT_NE(hand, g_loadCursor(nullptr, IDC_HAND)) << "a copy";
        automation::MoveMouseOver(dialog.m_subject.m_hWnd);
        EXPECT_TRUE(PumpUntil([&] { return ::GetCursor() == hand; }));
        EXPECT_TRUE(::GetIconInfo(hand, &info));
    }
    EXPECT_FALSE(::GetIconInfo(hand, &info)) << "gone with the link";

    LinkDialog dialog;
    EXPECT_EQ(dialog.m_subject.GetLinkCursor(), nullptr) << "nothing stands in for the hand";
    EXPECT_EQ(dialog.m_subject.SendMessage(WM_SETCURSOR, 0, HTCLIENT), 0);
}

TEST(HyperLink, GivesEverythingBack) {
    const GdiLedger ledger;
    {
        CHyperLink link;
        for (int dialog = 0; dialog < 2; ++dialog) { // attached once more after the first is gone
            DialogTemplate layout("Links", 100, 60);
            layout.Add("STATIC", "Home", kSubject, WS_TABSTOP, 10, 10, 60, 20);
            CDialog parent;
            parent.CreateIndirect(layout.Get(), nullptr);
            ASSERT_TRUE(link.SubclassDlgItem(kSubject, &parent));
            link.SetFocus();
            PumpFor(50);
            const int made = ledger.Made();
            link.Invalidate();
            link.UpdateWindow();
            EXPECT_EQ(ledger.Made() - made, 3) << "the paint's context, and a buffer of two";
            parent.DestroyWindow();
        }
    }
    EXPECT_EQ(ledger.Unreturned() + ledger.Faults(), "");
}

} // namespace
