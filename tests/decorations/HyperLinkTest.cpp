// SPDX-License-Identifier: MIT
#include "decorations/HyperLink.h"

#include <gtest/gtest.h>

#include <oleacc.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "automation/Picture.h"
#include "automation/RealInput.h"
#include "tests/support/DialogTemplate.h"
#include "tests/support/GdiLedger.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/Pump.h"

namespace fs = std::filesystem;
using automation::Picture;

namespace {

constexpr WORD kSubject = 101;
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
        const auto found = m_registry.find(subKey);
        if (found == m_registry.end())
            return ERROR_FILE_NOT_FOUND;
        ::lstrcpynA(value, found->second.c_str(), sizeof value);
        return ERROR_SUCCESS;
    }
    UINT Run(const char* commandLine, int) override {
        m_calls.push_back(std::string("run ") + commandLine);
        return m_ran;
    }
    void Beep() override { m_calls.push_back("beep"); }
    void ShowError(const char* text) override { m_calls.push_back(text); }

    std::vector<std::string> TakeCalls() { return std::exchange(m_calls, {}); }

    INT_PTR m_opened = 42;
    UINT m_ran = 42;
    std::map<std::string, std::string> m_registry;

private:
    std::vector<std::string> m_calls;
};

/// A dialog with two buttons and the link between them, which lets nothing out.
class LinkDialog : public CDialog {
public:
    explicit LinkDialog(const char* text = "Home page", DWORD style = 0, const char* url = "") {
        m_template.Add("BUTTON", "First", 100, BS_PUSHBUTTON | WS_TABSTOP, 10, 10, 60, 16)
            .Add("STATIC", text, kSubject, style, 10, 40, 90, 20)
            .Add("BUTTON", "OK", IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP, 10, 70, 60, 16);
        m_subject.SetURL(url);
        m_subject.SetShell(m_shell);
        ParkMouse();
        CreateIndirect(m_template.Get(), nullptr);
        ::SetForegroundWindow(m_hWnd);
        PumpFor(30);
    }
    ~LinkDialog() override { DestroyWindow(); }

    static void ParkMouse() { automation::MoveMouse({700, 500}); }

    Picture Shown() const { return automation::CaptureWindow(m_subject.m_hWnd); }

    /// Waits until the link shows text of this colour and no other, underlined or not.
    bool Shows(COLORREF color, bool underlined) const {
        return PumpUntil([&] {
            const Picture shown = Shown();
            bool line = false;
            for (int y = 0; y < shown.height; ++y) {
                int length = 0;
                for (int x = 0; x < shown.width; ++x)
                    length += shown.At(x, y) == color;
                line = line || length == shown.width;
            }
            const std::set<COLORREF> colors(shown.pixels.begin(), shown.pixels.end());
            return line == underlined &&
                   colors == std::set<COLORREF>{color, ::GetSysColor(COLOR_BTNFACE)};
        });
    }

    FakeShell m_shell;
    CHyperLink m_subject;
    std::vector<std::pair<WPARAM, LPARAM>> m_commands;

protected:
    void DoDataExchange(CDataExchange* exchange) override {
        CDialog::DoDataExchange(exchange);
        DDX_Control(exchange, kSubject, m_subject);
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        if (reinterpret_cast<HWND>(lParam) != m_subject.m_hWnd) // which is the click itself
            m_commands.push_back({wParam, lParam});
        return CDialog::OnCommand(wParam, lParam);
    }
    void OnOK() override {}

private:
    DialogTemplate m_template{"Links", 200, 120};
};

CRect PlaceOf(const CHyperLink& link) {
    CRect place;
    link.GetWindowRect(place);
    link.GetParent()->ScreenToClient(place);
    return place;
}

TEST(HyperLink, TextAndTargetStandInForEachOther) {
    const struct {
        const char* text;
        const char* url;
        const char* shownText;
        const char* target;
    } cases[] = {
        {"Home", "http://a/", "Home", "http://a/"},
        {"Home", "", "Home", "Home"},
        {"", "http://a/", "http://a/", "http://a/"},
    };
    for (const auto& c : cases) {
        const LinkDialog dialog(c.text, 0, c.url);
        CString text;
        dialog.m_subject.GetWindowText(text);
        EXPECT_STREQ(text, c.shownText);
        EXPECT_STREQ(dialog.m_subject.GetURL(), c.target);
        EXPECT_TRUE(dialog.m_subject.GetStyle() & SS_NOTIFY);
    }
}

TEST(HyperLink, FitsItsTextAtTheEdgeItsStyleSays) {
    for (const DWORD border : {DWORD{0}, DWORD{WS_BORDER}}) {
        for (const DWORD style :
             std::initializer_list<DWORD>{0, SS_CENTER, SS_RIGHT, SS_CENTERIMAGE,
                                          SS_CENTER | SS_CENTERIMAGE, SS_RIGHT | SS_CENTERIMAGE}) {
            LinkDialog dialog("Home page", style | border);
            CRect given(10, 40, 100, 60);
            dialog.MapDialogRect(given);
            CFont* const font = dialog.GetFont();
            CClientDC dc(&dialog);
            CFont* const previous = dc.SelectObject(font);
            CRect frame(0, 0, 0, 0);
            ::AdjustWindowRectEx(frame, dialog.m_subject.GetStyle(), FALSE,
                                 dialog.m_subject.GetExStyle());
            EXPECT_EQ(frame.IsRectNull(), border == 0);
            const CSize size = dc.GetTextExtent("Home page", 9) + frame.Size();
            dc.SelectObject(previous);

            CRect fitted = given;
            if (style & SS_CENTERIMAGE)
                fitted.DeflateRect(0, (given.Height() - size.cy) / 2);
            else
                fitted.bottom = fitted.top + size.cy;
            if ((style & SS_TYPEMASK) == SS_CENTER)
                fitted.DeflateRect((given.Width() - size.cx) / 2, 0);
            else if ((style & SS_TYPEMASK) == SS_RIGHT)
                fitted.left = fitted.right - size.cx;
            else
                fitted.right = fitted.left + size.cx;
            EXPECT_EQ(PlaceOf(dialog.m_subject), fitted) << style << ' ' << border;

            dialog.m_subject.SetAutoSize(FALSE);
            dialog.m_subject.SetWindowText("A much longer text than before");
            dialog.m_subject.SetURL("x");
            EXPECT_EQ(PlaceOf(dialog.m_subject), fitted) << "not fitted now";
            dialog.m_subject.SetAutoSize();
            EXPECT_GT(PlaceOf(dialog.m_subject).Width(), fitted.Width());
        }
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
    ImportPatch patch;
    g_setTimer = patch.Redirect("user32.dll", "SetTimer", &TenTimesASecond);
    CHyperLink& link = dialog.m_subject;
    EXPECT_EQ(link.GetUnderline(), -1);
    const Picture atFirst = dialog.Shown();
    for (const int mode : {-1, 0, 1}) {
        link.SetUnderline(mode);
        for (const bool visited : {false, true}) {
            link.SetVisited(visited);
            EXPECT_TRUE(dialog.Shows(visited ? kVisited : kFresh, mode == 1)) << mode;
            automation::MoveMouseOver(link.m_hWnd);
            EXPECT_TRUE(dialog.Shows(kHover, mode != 0)) << mode;
            LinkDialog::ParkMouse();
            EXPECT_TRUE(dialog.Shows(visited ? kVisited : kFresh, mode == 1)) << mode;
        }
    }
    link.SetUnderline(-1);
    link.SetVisited(FALSE);
    EXPECT_TRUE(dialog.Shows(kFresh, false));
    EXPECT_TRUE(dialog.Shown() == atFirst) << "nothing is left of the line and the other colours";

    link.SetColours(RGB(1, 2, 3), RGB(4, 5, 6), static_cast<COLORREF>(-1));
    EXPECT_TRUE(dialog.Shows(RGB(1, 2, 3), false));
    EXPECT_EQ(link.GetHoverColour(), ::GetSysColor(COLOR_HIGHLIGHT));
    link.SetVisited();
    EXPECT_TRUE(dialog.Shows(RGB(4, 5, 6), false));
    link.SetWindowText("Page home");
    EXPECT_TRUE(dialog.Shows(RGB(4, 5, 6), false)) << "the new text covers the old one";
}

/// The tip of the link, null while there is none on the screen.
HWND VisibleTip() {
    HWND tip = nullptr;
    while ((tip = ::FindWindowExA(nullptr, tip, TOOLTIPS_CLASSA, nullptr)) != nullptr) {
        if (::IsWindowVisible(tip))
            return tip;
    }
    return nullptr;
}

TEST(HyperLink, TheToolTipShowsTheTargetOfTheMoment) {
    LinkDialog dialog("Home page", 0, "http://first/?a=1&b=2");
    const std::string large = "http://large/" + std::string(600, 'l');
    for (const std::string& target : {std::string("http://first/?a=1&b=2"), large}) {
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

using Calls = std::vector<std::string>;

TEST(HyperLink, AClickOpensTheTargetOrSaysWhyNot) {
    LinkDialog dialog("Home page", 0, "http://a/");
    automation::Click(dialog.m_subject.m_hWnd);
    EXPECT_TRUE(PumpUntil([&] { return dialog.m_subject.GetVisited(); }));
    EXPECT_EQ(dialog.m_shell.TakeCalls(), Calls{"open http://a/"});
    LinkDialog::ParkMouse();
    EXPECT_TRUE(dialog.Shows(kVisited, false));
    EXPECT_TRUE(dialog.m_commands.empty());

    const std::string title = "Unable to open hyperlink:\n\n";
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
        const auto known = texts.find(code);
        const std::string text = known != texts.end()
                                     ? known->second
                                     : "Unknown Error (" + std::to_string(code) + ") occurred.";
        dialog.m_shell.m_opened = code;
        dialog.m_subject.SetVisited(TRUE);
        dialog.m_subject.SendMessage(WM_LBUTTONDOWN, 0, 0);
        EXPECT_EQ(dialog.m_shell.TakeCalls(), (Calls{"open http://a/", "beep", title + text}));
        EXPECT_FALSE(dialog.m_subject.GetVisited());
    }
}

TEST(HyperLink, FallsBackToTheProgramForPages) {
    CHyperLink link;
    FakeShell shell;
    link.SetShell(shell);
    shell.m_opened = 31;
    const auto opens = [&](const std::string& command, const std::string& url) {
        shell.m_registry = {{".htm", "page"}, {"page\\shell\\open\\command", command}};
        const INT_PTR result = link.OpenUrl(url.c_str(), SW_SHOW);
        Calls calls = shell.TakeCalls();
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
    for (const std::string& fileClass : {longest, longest + "c"}) {
        shell.m_registry = {{".htm", fileClass}, {fileClass + "\\shell\\open\\command", "b"}};
        EXPECT_EQ(link.OpenUrl("u", SW_SHOW), fileClass == longest ? 42 : 31);
    }
    shell.m_registry = {{".htm", "page"}};
    EXPECT_EQ(link.OpenUrl("u", SW_SHOW), 31) << "no command";
    shell.m_registry.clear();
    EXPECT_EQ(link.OpenUrl("u", SW_SHOW), 31) << "no class";
    shell.m_registry = {{".htm", "page"}, {"page\\shell\\open\\command", "b"}};
    shell.m_ran = 2;
    EXPECT_EQ(link.OpenUrl("u", SW_SHOW), 2) << "the program's failure counts";
}

TEST(HyperLink, WithoutATargetItIsAButton) {
    LinkDialog dialog;
    dialog.m_subject.SetURL("");
    automation::Click(dialog.m_subject.m_hWnd);
    EXPECT_TRUE(PumpUntil([&] { return !dialog.m_commands.empty(); }));
    EXPECT_EQ(dialog.m_commands, (std::vector<std::pair<WPARAM, LPARAM>>{{kSubject, 0}}));
    EXPECT_EQ(dialog.m_shell.TakeCalls(), Calls());
    EXPECT_FALSE(dialog.m_subject.GetVisited());
}

TEST(HyperLink, WithATabStopTheKeyboardReachesIt) {
    LinkDialog dialog("Home page", WS_TABSTOP, "http://a/");
    const Picture without = dialog.Shown();
    automation::TypeKey(VK_TAB);
    ASSERT_TRUE(PumpUntil([&] { return ::GetFocus() == dialog.m_subject.m_hWnd; }));
    PumpFor(50);
    const Picture with = dialog.Shown();
    int dots = 0;
    for (int x = 0; x < with.width; ++x)
        dots += with.At(x, 0) != without.At(x, 0);
    EXPECT_NEAR(dots, with.width / 2, 1) << "every other pixel of the focus rectangle";
    for (const WORD key : {WORD{VK_RETURN}, WORD{VK_SPACE}}) {
        automation::PressKey(key);
        automation::PressKey(key); // held down
        automation::ReleaseKey(key);
        PumpFor();
        EXPECT_EQ(dialog.m_shell.TakeCalls(), Calls{"open http://a/"}) << key;
    }
    EXPECT_TRUE(dialog.m_commands.empty()) << "Enter was not for the default button";
    automation::TypeKey(VK_TAB);
    ASSERT_TRUE(PumpUntil([&] { return ::GetFocus() == dialog.GetDlgItem(IDOK)->m_hWnd; }));
    dialog.m_subject.SetVisited(FALSE);
    PumpFor(50);
    EXPECT_TRUE(dialog.Shown() == without);

    IAccessible* accessible = nullptr;
    ASSERT_EQ(::AccessibleObjectFromWindow(dialog.m_subject.m_hWnd, OBJID_CLIENT,
                                           __uuidof(IAccessible),
                                           reinterpret_cast<void**>(&accessible)),
              S_OK);
    VARIANT self = {};
    self.vt = VT_I4;
    BSTR name = nullptr;
    EXPECT_EQ(accessible->get_accName(self, &name), S_OK);
    EXPECT_STREQ(name, L"Home page");
    ::SysFreeString(name);
    accessible->Release();
}

TEST(HyperLink, WithoutATabStopTheKeyboardPassesBy) {
    LinkDialog dialog;
    const Picture before = dialog.Shown();
    automation::TypeKey(VK_TAB);
    EXPECT_TRUE(PumpUntil([&] { return ::GetFocus() == dialog.GetDlgItem(IDOK)->m_hWnd; }));
    dialog.m_subject.SetFocus();
    for (const WORD key : {WORD{VK_RETURN}, WORD{VK_SPACE}})
        automation::TypeKey(key);
    PumpFor();
    EXPECT_EQ(dialog.m_shell.TakeCalls(), Calls());
    EXPECT_EQ(dialog.m_commands.size(), 1u) << "Enter is the default button's";
    EXPECT_TRUE(dialog.Shown() == before);
}

/// A value of HKEY_CLASSES_ROOT, gone with the object; one that was there comes back.
class ClassValue {
public:
    ClassValue(const std::string& key, const std::string& value) : m_key(key) {
        LONG size = sizeof m_before;
        m_existed = ::RegQueryValueA(HKEY_CLASSES_ROOT, key.c_str(), m_before, &size) == 0;
        ::RegSetValueA(HKEY_CLASSES_ROOT, key.c_str(), REG_SZ, value.c_str(), 0);
    }
    ~ClassValue() {
        if (m_existed)
            ::RegSetValueA(HKEY_CLASSES_ROOT, m_key.c_str(), REG_SZ, m_before, 0);
        else
            ::RegDeleteTreeA(HKEY_CLASSES_ROOT, m_key.c_str());
    }

private:
    std::string m_key;
    char m_before[1024] = "";
    bool m_existed = false;
};

std::string Bytes(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(HyperLink, TheSystemStartsTheProgramThatIsRegistered) {
    const fs::path out = fs::temp_directory_path() / "tintkit-link.txt";
    const std::string program = "cmd.exe /c echo>" + out.string() + " ";
    CHyperLink link;
    const auto opens = [&](const char* url) {
        fs::remove(out);
        EXPECT_GT(link.OpenUrl(url, SW_HIDE), 32);
        EXPECT_TRUE(PumpUntil([&] { return Bytes(out).find('\n') != std::string::npos; }));
        return Bytes(out);
    };
    {
        const ClassValue scheme("tintkit-test", "URL:test");
        ::RegSetKeyValueA(HKEY_CLASSES_ROOT, "tintkit-test", "URL Protocol", REG_SZ, "", 1);
        const ClassValue command("tintkit-test\\shell\\open\\command", program + "by-shell %1");
        EXPECT_EQ(opens("tintkit-test:page?a=1").substr(0, 30), "by-shell tintkit-test:page?a=1");
    }
    const ClassValue page(".htm", "tintkit-page");
    const ClassValue command("tintkit-page\\shell\\open\\command", program + "by-command \"%1\"");
    EXPECT_EQ(opens("tintkit-none:page").substr(0, 29), "by-command  tintkit-none:page");

    const ClassValue tooLong(".htm", std::string(400, 'c'));
    tint::LinkShell::Text value = "x";
    EXPECT_EQ(link.GetRegistryDefault(HKEY_CLASSES_ROOT, ".htm", value), ERROR_SUCCESS);
    EXPECT_STREQ(value, "") << "does not fit";
    EXPECT_LE(link.OpenUrl("tintkit-none:page", SW_HIDE), 32);
    ::lstrcpyA(value, "x");
    EXPECT_NE(link.GetRegistryDefault(HKEY_CLASSES_ROOT, "tintkit-missing", value), ERROR_SUCCESS);
    EXPECT_STREQ(value, "x") << "untouched";
    fs::remove(out);
}

std::string g_windows;
decltype(&::LoadCursorA) g_loadCursor = nullptr;

UINT WINAPI WindowsFolder(LPSTR path, UINT) {
    ::lstrcpyA(path, g_windows.c_str());
    return static_cast<UINT>(g_windows.size());
}

/// A help program with a hand in it, as the system has it no more.
HCURSOR WINAPI HandOfHelp(HINSTANCE module, LPCSTR name) {
    if (name != MAKEINTRESOURCEA(106))
        return g_loadCursor(module, name);
    EXPECT_NE(module, nullptr);
    return g_loadCursor(nullptr, IDC_HAND);
}

TEST(HyperLink, TheHandIsThatOfTheHelpProgram) {
    HCURSOR hand = nullptr;
    ICONINFO info = {};
    const fs::path folder = fs::temp_directory_path() / "tintkit-windows";
    fs::create_directories(folder);
    g_windows = folder.string();
    char self[MAX_PATH];
    ::GetModuleFileNameA(nullptr, self, sizeof self);
    fs::copy_file(self, folder / "winhlp32.exe", fs::copy_options::overwrite_existing);
    {
        ImportPatch patch;
        patch.Redirect("kernel32.dll", "GetWindowsDirectoryA", &WindowsFolder);
        g_loadCursor = patch.Redirect("user32.dll", "LoadCursorA", &HandOfHelp);
        LinkDialog dialog;
        hand = dialog.m_subject.GetLinkCursor();
        ASSERT_NE(hand, nullptr);
        EXPECT_NE(hand, g_loadCursor(nullptr, IDC_HAND)) << "a copy";
        automation::MoveMouseOver(dialog.m_subject.m_hWnd);
        EXPECT_TRUE(PumpUntil([&] { return ::GetCursor() == hand; }));
        EXPECT_TRUE(::GetIconInfo(hand, &info));
        ::DeleteObject(info.hbmMask);
        ::DeleteObject(info.hbmColor);
    }
    EXPECT_FALSE(::GetIconInfo(hand, &info)) << "gone with the link";
    EXPECT_EQ(fs::remove_all(folder), 2u) << "the program is not held open";

    LinkDialog dialog;
    EXPECT_EQ(dialog.m_subject.GetLinkCursor(), nullptr) << "nothing stands in for the hand";
    EXPECT_EQ(dialog.m_subject.SendMessage(WM_SETCURSOR, 0, HTCLIENT), 0);
    const HCURSOR cross = ::LoadCursorA(nullptr, IDC_CROSS);
    dialog.m_subject.SetLinkCursor(cross);
    EXPECT_EQ(dialog.m_subject.SendMessage(WM_SETCURSOR, 0, HTCLIENT), TRUE);
    EXPECT_EQ(::GetCursor(), cross);
}

TEST(HyperLink, GivesEverythingBack) {
    const GdiLedger ledger;
    {
        CHyperLink link;
        FakeShell shell;
        link.SetShell(shell);
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
    EXPECT_EQ(ledger.Unreturned(), "");
    EXPECT_EQ(ledger.Faults(), "");
}

} // namespace
