// SPDX-License-Identifier: MIT
#include "decorations/HyperLink.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "automation/Picture.h"
#include "tests/support/SubjectDialog.h"
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
        if (m_while)
            m_while();
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
    std::function<void()> m_while; ///< what happens while it opens
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
    bool m_patterned = false; ///< hatched, with a stripe at the left

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (!m_patterned || message != WM_ERASEBKGND)
            return SubjectDialog::WindowProc(message, wParam, lParam);
        CDC* const dc = CDC::FromHandle(reinterpret_cast<HDC>(wParam));
        CBrush hatch;
        hatch.CreateHatchBrush(HS_BDIAGONAL, RGB(0, 200, 0));
        dc->FillRect(CRect(0, 0, 500, 500), &hatch);
        dc->FillSolidRect(0, 0, 30, 500, RGB(200, 200, 0));
        return TRUE;
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        if (reinterpret_cast<HWND>(lParam) != m_subject.m_hWnd) // which is the click itself
            m_commands.push_back({wParam, lParam});
        return CDialog::OnCommand(wParam, lParam);
    }
    void OnOK() override {}
};

TEST(HyperLink, FitsItsTextAtTheEdgeItsStyleSays) {
    const char* const texts[][3] = {
        {"Home", "http://a/", "Home"}, {"Home", "", "Home"}, {"", "http://a/", "http://a/"}};
    for (int bits = 0; bits < 12; ++bits) {
        const DWORD alignment = bits % 3; // left, SS_CENTER, SS_RIGHT
        const bool middle = (bits / 3 & 1) != 0;
        const DWORD border = bits >= 6 ? WS_BORDER : 0;
        const auto& [text, url, shown] = texts[bits / 2 % 3];
        LinkDialog dialog(text, alignment | border | (middle ? SS_CENTERIMAGE : 0), url);
        CHyperLink& link = dialog.m_subject;
        CString now;
        link.GetWindowText(now);
        EXPECT_STREQ(now, shown);
        EXPECT_STREQ(link.GetURL(), *url == '\0' ? text : url) << "each stands in for the other";

        CRect frame(0, 0, 0, 0);
        ::AdjustWindowRectEx(frame, link.GetStyle(), FALSE, link.GetExStyle());
        CClientDC dc(&dialog);
        CFont* const previous = dc.SelectObject(dialog.GetFont());
        const CSize size = dc.GetTextExtent(shown, ::lstrlen(shown)) + frame.Size();
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
        const auto place = [&] {
            CRect rect;
            link.GetWindowRect(rect);
            dialog.ScreenToClient(rect);
            return rect;
        };
        EXPECT_EQ(place(), fitted) << bits;
        link.SetAutoSize(FALSE);
        link.SetWindowText("A much longer text than before");
        link.SetURL("x");
        EXPECT_EQ(place(), fitted) << "not fitted now";
        link.SetAutoSize();
        EXPECT_GT(place().Width(), fitted.Width());
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
    PumpFor(50);
    const Picture renamed = dialog.Shown();
    link.Invalidate();
    PumpFor(50);
    EXPECT_TRUE(dialog.Shown() == renamed) << "nothing of the old text was left";
}

TEST(HyperLink, TheBackgroundOfTheDialogGoesOnBehindTheText) {
    LinkDialog dialog;
    dialog.m_patterned = true;
    dialog.m_subject.SetWindowPos(nullptr, 13, 54, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    const auto look = [&](int show) {
        dialog.m_subject.ShowWindow(show);
        dialog.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
        PumpFor(50);
        return dialog.Shown();
    };
    const Picture behind = look(SW_HIDE);
    const Picture shown = look(SW_SHOW);
    int text = 0;
    for (std::size_t i = 0; i < shown.pixels.size(); ++i) {
        text += shown.pixels[i] == kFresh;
        ASSERT_TRUE(shown.pixels[i] == kFresh || shown.pixels[i] == behind.pixels[i]) << i;
    }
    EXPECT_GT(text, 0);
}

HWND VisibleTip() {
    HWND tip = nullptr;
    do
        tip = ::FindWindowExA(nullptr, tip, TOOLTIPS_CLASSA, nullptr);
    while (tip != nullptr && !::IsWindowVisible(tip));
    return tip;
}

TEST(HyperLink, TheToolTipShowsTheTargetOfTheMoment) {
    LinkDialog dialog("Home page", 0, "http://first/");
    const std::string target = "http://large/?a=1&b=2" + std::string(600, 'l');
    dialog.m_subject.SetWindowText("A much longer text than before"); // the tip grows with the link
    dialog.m_subject.SetURL(target.c_str());
    automation::MoveMouseOver(dialog.m_subject.m_hWnd);
    EXPECT_TRUE(PumpUntil([] { return VisibleTip() != nullptr; }));
    wchar_t text[1024] = L""; // the narrow message gives 80 bytes at most
    TOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.hwnd = dialog.m_subject.m_hWnd;
    tool.uId = 1;
    tool.lpszText = text;
    ::SendMessageW(VisibleTip(), TTM_GETTEXTW, 1024, reinterpret_cast<LPARAM>(&tool));
    EXPECT_EQ(text, std::wstring(target.begin(), target.end()));
}

TEST(HyperLink, AClickOpensTheTargetOrSaysWhyNot) {
    LinkDialog dialog("Home page", 0, "http://a/");
    automation::Click(dialog.m_subject.m_hWnd);
    EXPECT_TRUE(PumpUntil([&] { return dialog.m_subject.GetVisited(); }));
    EXPECT_EQ(dialog.m_shell.TakeCalls(), Calls{"open http://a/"});
    LinkDialog::ParkMouse();
    EXPECT_TRUE(dialog.Shows(kVisited, false));

    const std::map<int, std::string> texts = {
        {2, "The specified file was not found."},
        {11, "The .EXE file is invalid\n(non-Win32 .EXE or error in .EXE image)."},
        {26, "Unknown Error (26) occurred."},
        {31, "There is no application associated\nwith the given filename extension."},
    };
    for (const auto& [code, text] : texts) {
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

    dialog.m_subject.SetURL("http://a/");
    // While the shell tries a target, the link may get another one, or lose its window.
    dialog.m_shell.m_opened = 31;
    dialog.m_shell.m_registry = {{".htm", "page"}, {"page\\shell\\open\\command", "b"}};
    dialog.m_shell.m_while = [&] { dialog.m_subject.SetURL(std::string(300, 'u').c_str()); };
    dialog.m_subject.SendMessage(WM_LBUTTONDOWN, 0, 0);
    EXPECT_EQ(dialog.m_shell.TakeCalls(), (Calls{"open http://a/", "run b http://a/"}));
    dialog.m_shell.m_registry.clear();
    dialog.m_subject.SetURL("http://a/");
    dialog.m_shell.m_while = [&] { dialog.m_subject.DestroyWindow(); };
    dialog.m_subject.SendMessage(WM_LBUTTONDOWN, 0, 0);
    EXPECT_EQ(dialog.m_shell.TakeCalls(), Calls{"open http://a/"}) << "nobody is left to be told";
}

TEST(HyperLink, FallsBackToTheProgramForPages) {
    CHyperLink link;
    FakeShell shell;
    link.SetShell(shell);
    shell.m_opened = 31;
    const std::string fits(259 - 9, 'u');     // "C:\b.exe " takes nine
    const std::string longest(259 - 19, 'c'); // "\shell\open\command" takes nineteen
    const struct {
        std::string command, url, run; // nothing is run where that is empty
        std::string fileClass = "page";
    } cases[] = {
        {"C:\\b.exe \"%1\" -x", "u", "C:\\b.exe  u"},    // quoted, blank kept
        {"C:\\b.exe -f%1 -x", "u", "C:\\b.exe -f u"},    // bare
        {"C:\\b.exe %1 \"%1\"", "u", "C:\\b.exe %1  u"}, // the quoted one wins
        {"C:\\b.exe", fits, "C:\\b.exe " + fits},        // none
        {"C:\\b.exe", fits + "u", ""},                   // 260 bytes with its end are too many
        {"b", "u", "b u", longest},
        {"b", "u", "", longest + "c"},
        {"", "calc.exe", ""}, // the target is no program to run
        {"  ", "calc.exe", ""},
        {" \"%1\"", "calc.exe", ""},
    };
    for (const auto& c : cases) {
        shell.m_registry = {{".htm", c.fileClass},
                            {c.fileClass + "\\shell\\open\\command", c.command}};
        EXPECT_EQ(link.OpenUrl(c.url.c_str(), SW_SHOW), c.run.empty() ? 31 : 42) << c.command;
        Calls expected{"open " + c.url};
        if (!c.run.empty())
            expected.push_back("run " + c.run);
        EXPECT_EQ(shell.TakeCalls(), expected);
    }
    shell.m_ran = 2;
    shell.m_registry = {{".htm", "page"}, {"page\\shell\\open\\command", "b"}};
    EXPECT_EQ(link.OpenUrl("u", SW_SHOW), 2) << "the program's failure counts";
    for (const char* key : {"page\\shell\\open\\command", ".htm"}) {
        shell.m_registry.erase(key);
        EXPECT_EQ(link.OpenUrl("u", SW_SHOW), 31) << "without " << key;
    }
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
    }
}

TEST(HyperLink, TheSystemStartsTheProgramThatIsRegistered) {
    const auto setClass = [](const char* key, const std::string& value) {
        ::RegSetValueA(HKEY_CLASSES_ROOT, key, REG_SZ, value.c_str(), 0);
    };
    const fs::path out = fs::temp_directory_path() / "tintkit-link.txt";
    const std::string program = "cmd.exe /c echo>" + out.string() + " ";
    char pageClass[1024] = "";
    LONG size = sizeof pageClass;
    ::RegQueryValueA(HKEY_CLASSES_ROOT, ".htm", pageClass, &size);
    setClass("tintkit-test", "URL:test");
    ::RegSetKeyValueA(HKEY_CLASSES_ROOT, "tintkit-test", "URL Protocol", REG_SZ, "", 1);
    setClass("tintkit-test\\shell\\open\\command", program + "by-shell %1");
    setClass(".htm", "tintkit-page");
    setClass("tintkit-page\\shell\\open\\command", program + "by-command \"%1\"");

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
    setClass(".htm", std::string(400, 'c'));
    EXPECT_EQ(link.GetRegistryDefault(HKEY_CLASSES_ROOT, ".htm", value), ERROR_SUCCESS);
    EXPECT_STREQ(value, "") << "does not fit";

    setClass(".htm", pageClass);
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
        dialog.m_subject.SetLinkCursor(dialog.m_subject.GetLinkCursor());
        EXPECT_TRUE(::GetIconInfo(hand, &info)) << "set again, it stays";
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
