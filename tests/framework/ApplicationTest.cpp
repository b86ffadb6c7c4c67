// SPDX-License-Identifier: MIT
// The application: profile, idle time, commands, threads, command line, message texts.
#include <afxpriv.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "HandleMap.h"
#include "tests/support/Pump.h"

namespace {

class App : public CWinApp {
public:
    App() : CWinApp("ApplicationTest") {}
    using CWinApp::SetRegistryKey;

    std::vector<std::string> m_boxes;
    std::vector<LONG> m_idle;
    int m_quitAfter = 0;

    int DoMessageBox(LPCTSTR text, UINT, UINT) override {
        m_boxes.push_back(text);
        return IDYES;
    }
    BOOL OnIdle(LONG count) override {
        m_idle.push_back(count);
        if (static_cast<int>(m_idle.size()) == m_quitAfter)
            ::PostQuitMessage(6);
        return CWinApp::OnIdle(count);
    }
};

// ---- Profile ------------------------------------------------------------------------------------

/// The same settings, in an INI file or in the registry.
class Profile : public testing::TestWithParam<bool> {
protected:
    static constexpr const char* Company = "FrameworkTests";

    void SetUp() override {
        if (GetParam()) {
            m_app.SetRegistryKey(Company);
            return;
        }
        char folder[MAX_PATH] = {};
        ASSERT_NE(::GetTempPath(MAX_PATH, folder), 0U);
        ASSERT_NE(::GetTempFileName(folder, "ini", 0, m_file), 0U);
        std::free(const_cast<LPTSTR>(m_app.m_pszProfileName));
        m_app.m_pszProfileName = ::_strdup(m_file);
    }
    void TearDown() override {
        if (GetParam())
            m_app.DelRegTree(HKEY_CURRENT_USER, CString("Software\\") + Company);
        else
            ::DeleteFile(m_file);
    }

    App m_app;
    char m_file[MAX_PATH] = {};
};

TEST_P(Profile, Numbers) {
    EXPECT_EQ(m_app.GetProfileInt("Look", "Shade", 42), 42U);
    for (const int value : {0, 7, -3, 2147483647}) {
        EXPECT_TRUE(m_app.WriteProfileInt("Look", "Shade", value));
        EXPECT_EQ(static_cast<int>(m_app.GetProfileInt("Look", "Shade", 42)), value);
        EXPECT_EQ(static_cast<int>(m_app.GetProfileInt("LOOK", "shade", 42)), value);
    }
}

TEST_P(Profile, Strings) {
    const auto stored = [this] { return m_app.GetProfileString("Files", "Last", "none"); };
    EXPECT_EQ(stored(), "none");
    EXPECT_EQ(m_app.GetProfileString("Files", "Last"), "");
    for (const char* const text : {"C:\\a b.txt", ""}) {
        EXPECT_TRUE(m_app.WriteProfileString("Files", "Last", text));
        EXPECT_EQ(stored(), text);
    }
    EXPECT_TRUE(m_app.WriteProfileString("Files", "Last", nullptr));
    EXPECT_EQ(stored(), "none");
    m_app.WriteProfileString("Files", "Last", "x");
    EXPECT_TRUE(m_app.WriteProfileString("Files", nullptr, nullptr));
    EXPECT_EQ(stored(), "none");
}

TEST_P(Profile, Bytes) {
    BYTE* data = nullptr;
    UINT size = 1;
    EXPECT_FALSE(m_app.GetProfileBinary("Look", "Place", &data, &size));
    EXPECT_EQ(data, nullptr);
    EXPECT_EQ(size, 0U);
    BYTE stored[] = {0x00, 0xFF, 0x1A, 0xA1};
    EXPECT_TRUE(m_app.WriteProfileBinary("Look", "Place", stored, sizeof(stored)));
    ASSERT_TRUE(m_app.GetProfileBinary("Look", "Place", &data, &size));
    const std::unique_ptr<BYTE[]> owner(data);
    ASSERT_EQ(size, sizeof(stored));
    EXPECT_EQ(std::memcmp(data, stored, size), 0);
}

TEST_P(Profile, EntriesOfAnotherKind) {
    BYTE* data = nullptr;
    UINT size = 0;
    m_app.WriteProfileString("Look", "Shade", "@ not a number or code");
    EXPECT_EQ(m_app.GetProfileInt("Look", "Shade", 42), GetParam() ? 42U : 0U);
    m_app.WriteProfileString("Look", "Hex", "0x1F");
    EXPECT_EQ(m_app.GetProfileInt("Look", "Hex", 42), GetParam() ? 42U : 31U);
    EXPECT_FALSE(m_app.GetProfileBinary("Look", "Shade", &data, &size));
}

INSTANTIATE_TEST_SUITE_P(Application, Profile, testing::Bool(), [](const auto& param) {
    return std::string(param.param ? "Registry" : "IniFile");
});

// ---- Names --------------------------------------------------------------------------------------

TEST(Application, NamesAndHandles) {
    App app;
    EXPECT_EQ(AfxGetApp(), &app);
    EXPECT_EQ(AfxGetThread(), &app);
    EXPECT_STREQ(AfxGetAppName(), "ApplicationTest");
    EXPECT_EQ(CString(app.m_pszProfileName), CString(app.m_pszExeName) + ".INI");
    EXPECT_EQ(app.m_hInstance, AfxGetInstanceHandle());
    EXPECT_EQ(app.m_nThreadID, ::GetCurrentThreadId());
    AfxSetResourceHandle(::GetModuleHandle("user32.dll"));
    EXPECT_EQ(AfxGetResourceHandle(), ::GetModuleHandle("user32.dll"));
    // A resource that is not where resources are looked for first may be in the program.
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCE(4711), RT_DIALOG), AfxGetResourceHandle());
    AfxSetResourceHandle(nullptr);
    EXPECT_EQ(AfxGetResourceHandle(), AfxGetInstanceHandle());
}

// ---- Message loop and idle time -----------------------------------------------------------------

class MainWindow : public CWnd {
public:
    int m_updates = 0;
    int m_closes = 0;

protected:
    afx_msg LRESULT OnIdleUpdate(WPARAM disableIfNoHandler, LPARAM) {
        EXPECT_EQ(disableIfNoHandler, static_cast<WPARAM>(TRUE));
        return ++m_updates;
    }
    afx_msg void OnClose() { ++m_closes; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(MainWindow, CWnd)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &MainWindow::OnIdleUpdate)
    ON_WM_CLOSE()
END_MESSAGE_MAP()

class Running : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_window.CreateEx(0, nullptr, "main", WS_POPUP | WS_VISIBLE,
                                      CRect(0, 0, 50, 50), nullptr, 0));
        ASSERT_TRUE(
            m_bar.Create(nullptr, "bar", WS_CHILD | WS_VISIBLE, CRect(0, 0, 9, 9), &m_window, 1));
        PumpFor(30);
        m_app.m_pMainWnd = &m_window;
        m_app.m_idle.clear();
        m_window.m_updates = m_bar.m_updates = 0;
    }
    void TearDown() override {
        m_app.m_pMainWnd = nullptr;
        m_window.DestroyWindow();
    }

    App m_app;
    MainWindow m_window;
    MainWindow m_bar;
};

TEST_F(Running, IdleTimeUpdatesTheBarsAndEndsTemporaryObjects) {
    const HWND desktop = ::GetDesktopWindow();
    const auto& windows = afx::ThreadHandleMap<HWND, CWnd>(&CWnd::m_hWnd);
    CWnd::FromHandle(desktop);
    EXPECT_NE(windows.Find(desktop), nullptr);
    m_app.m_quitAfter = 2;
    EXPECT_EQ(m_app.Run(), 6);
    EXPECT_EQ(m_app.m_idle, (std::vector<LONG>{0, 1}));
    EXPECT_EQ(m_window.m_updates, 1);
    EXPECT_EQ(m_bar.m_updates, 1);
    EXPECT_EQ(windows.Find(desktop), nullptr);
    EXPECT_EQ(windows.Find(m_window.m_hWnd), &m_window);
}

TEST_F(Running, SomeMessagesAreNotWorthAnIdleCall) {
    const struct {
        UINT message;
        POINT point;
        BOOL idle;
    } rows[] = {
        {WM_LBUTTONDOWN, {0, 0}, TRUE}, {WM_PAINT, {0, 0}, FALSE},
        {WM_MOUSEMOVE, {5, 6}, TRUE},   {WM_MOUSEMOVE, {5, 6}, FALSE}, // the mouse has not moved
        {WM_MOUSEMOVE, {5, 7}, TRUE},
    };
    for (const auto& row : rows) {
        MSG msg = {nullptr, row.message, 0, 0, 0, row.point};
        EXPECT_EQ(m_app.IsIdleMessage(&msg), row.idle) << row.message;
    }
}

TEST_F(Running, TheMainWindowSeesTheMessagesOfWindowsBesideIt) {
    class Asked : public MainWindow {
    public:
        int m_asked = 0;
        BOOL PreTranslateMessage(MSG* msg) override {
            m_asked += msg->message == WM_APP + 9 ? 1 : 0;
            return FALSE;
        }
    } main;
    ASSERT_TRUE(main.CreateEx(0, nullptr, "", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0));
    m_app.m_pMainWnd = &main;
    MSG msg = {};
    msg.hwnd = m_window.m_hWnd;
    msg.message = WM_APP + 9;
    EXPECT_FALSE(m_app.PreTranslateMessage(&msg));
    EXPECT_EQ(main.m_asked, 1);
    m_app.m_pMainWnd = nullptr;
}

TEST_F(Running, CommandsOfTheApplicationAndTheirFailure) {
    EXPECT_TRUE(m_app.OnCmdMsg(ID_APP_EXIT, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(m_window.m_closes, 1);
    MSG msg = {};
    const struct {
        CException* exception;
        UINT message;
        LRESULT answer;
        const char* box;
    } rows[] = {
        {new CNotSupportedException, WM_COMMAND, TRUE, "Command failed."},
        {new CNotSupportedException, WM_TIMER, 0, "Internal application error."},
        {new CUserException, WM_COMMAND, TRUE, ""},
        {new CNotSupportedException, WM_CREATE, -1, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.message);
        m_app.m_boxes.clear();
        msg.message = row.message;
        EXPECT_EQ(m_app.ProcessWndProcException(row.exception, &msg), row.answer);
        EXPECT_EQ(m_app.m_boxes.empty() ? "" : m_app.m_boxes[0], row.box);
        row.exception->Delete();
    }
}

TEST(Application, WaitCursorsNest) {
    App app;
    const HCURSOR arrow = ::LoadCursor(nullptr, IDC_ARROW);
    const HCURSOR wait = ::LoadCursor(nullptr, IDC_WAIT);
    ::SetCursor(arrow);
    {
        CWaitCursor outer;
        EXPECT_EQ(::GetCursor(), wait);
        { CWaitCursor inner; }
        EXPECT_EQ(::GetCursor(), wait);
        ::SetCursor(arrow);
        outer.Restore();
        EXPECT_EQ(::GetCursor(), wait);
    }
    EXPECT_EQ(::GetCursor(), arrow);
}

// ---- User-interface items -----------------------------------------------------------------------

class CommandTarget : public CWnd {
public:
    afx_msg void OnKnown() {}
    afx_msg void OnUpdateOff(CCmdUI* ui) { ui->Enable(FALSE); }
    afx_msg void OnUpdateText(CCmdUI* ui) {
        ui->SetText("told");
        ui->SetCheck(1);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CommandTarget, CWnd)
    ON_COMMAND(10, &CommandTarget::OnKnown)
    ON_COMMAND(11, &CommandTarget::OnKnown)
    ON_UPDATE_COMMAND_UI(11, &CommandTarget::OnUpdateOff)
    ON_UPDATE_COMMAND_UI(13, &CommandTarget::OnUpdateText)
END_MESSAGE_MAP()

TEST_F(Running, ControlsFollowTheirCommands) {
    CommandTarget target;
    CButton buttons[4];
    for (UINT i = 0; i < 4; ++i) {
        const DWORD type = i == 3 ? BS_AUTOCHECKBOX : BS_PUSHBUTTON;
        ASSERT_TRUE(buttons[i].Create("", WS_CHILD | type, CRect(0, 0, 5, 5), &m_window, 10 + i));
    }
    m_window.UpdateDialogControls(&target, TRUE);
    EXPECT_TRUE(buttons[0].IsWindowEnabled());
    EXPECT_FALSE(buttons[1].IsWindowEnabled()) << "its update handler says so";
    EXPECT_FALSE(buttons[2].IsWindowEnabled()) << "nobody handles it";
    EXPECT_TRUE(buttons[3].IsWindowEnabled()) << "only push buttons are disabled";
    EXPECT_EQ(buttons[3].GetCheck(), BST_CHECKED);
    CString text;
    buttons[3].GetWindowText(text);
    EXPECT_EQ(text, "told");
    buttons[2].EnableWindow();
    m_window.UpdateDialogControls(&target, FALSE);
    EXPECT_TRUE(buttons[2].IsWindowEnabled());
}

TEST(Application, MenuItemsAsUserInterface) {
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    menu.AppendMenu(MF_STRING, 20, "first");
    menu.AppendMenu(MF_STRING, 21, "second");
    CCmdUI ui;
    ui.m_pMenu = &menu;
    ui.m_nIndex = 1;
    ui.m_nID = 21;
    ui.Enable(FALSE);
    EXPECT_TRUE((menu.GetMenuState(21, MF_BYCOMMAND) & MF_GRAYED) != 0);
    ui.Enable();
    ui.SetRadio();
    ui.SetText("renamed");
    EXPECT_EQ(menu.GetMenuState(21, MF_BYCOMMAND) & (MF_GRAYED | MF_CHECKED),
              static_cast<UINT>(MF_CHECKED));
    CString text;
    menu.GetMenuString(1, text, MF_BYPOSITION);
    EXPECT_EQ(text, "renamed");
}

TEST(Application, ADisabledCommandIsNotRun) {
    class Counting : public CommandTarget {
    public:
        int m_commands = 0;
        BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
            m_commands += code == CN_COMMAND ? 1 : 0;
            return CommandTarget::OnCmdMsg(id, code, extra, info);
        }
    } window;
    ASSERT_TRUE(window.CreateEx(0, nullptr, "", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0));
    window.SendMessage(WM_COMMAND, MAKEWPARAM(11, 1)); // as an accelerator
    EXPECT_EQ(window.m_commands, 0);
    window.SendMessage(WM_COMMAND, MAKEWPARAM(10, 1));
    EXPECT_EQ(window.m_commands, 1);
    window.DestroyWindow();
}

// ---- Threads ------------------------------------------------------------------------------------

UINT AFX_CDECL Worker(LPVOID parameter) {
    auto* const seen = static_cast<CWinThread**>(parameter);
    *seen = AfxGetThread();
    return 5;
}

TEST(Application, WorkerThreads) {
    CWinThread* seen = nullptr;
    CWinThread* const thread =
        AfxBeginThread(&Worker, &seen, THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    ASSERT_NE(thread, nullptr);
    thread->m_bAutoDelete = FALSE;
    const std::unique_ptr<CWinThread> owner(thread);
    thread->ResumeThread();
    ASSERT_EQ(::WaitForSingleObject(thread->m_hThread, 5000), static_cast<DWORD>(WAIT_OBJECT_0));
    EXPECT_EQ(seen, thread);
    DWORD code = 0;
    ::GetExitCodeThread(thread->m_hThread, &code);
    EXPECT_EQ(code, 5U);
}

class LoopThread : public CWinThread {
    DECLARE_DYNCREATE(LoopThread)

public:
    static HWND s_window;
    static bool s_ended;

    BOOL InitInstance() override {
        m_window.CreateEx(0, nullptr, "", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0);
        m_pMainWnd = &m_window;
        s_window = m_window.m_hWnd;
        return TRUE;
    }
    int ExitInstance() override {
        s_ended = true;
        return CWinThread::ExitInstance();
    }

private:
    CWnd m_window;
};
HWND LoopThread::s_window;
bool LoopThread::s_ended;
IMPLEMENT_DYNCREATE(LoopThread, CWinThread)

TEST(Application, AThreadEndsWithItsMainWindow) {
    LoopThread::s_window = nullptr;
    LoopThread::s_ended = false;
    CWinThread* const thread =
        AfxBeginThread(RUNTIME_CLASS(LoopThread), THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    ASSERT_NE(thread, nullptr);
    HANDLE handle = nullptr;
    ASSERT_TRUE(::DuplicateHandle(::GetCurrentProcess(), thread->m_hThread, ::GetCurrentProcess(),
                                  &handle, SYNCHRONIZE, FALSE, 0));
    thread->ResumeThread(); // the object deletes itself from here on
    ASSERT_TRUE(PumpUntil([] { return LoopThread::s_window != nullptr; }));
    // Objects belong to their thread: here the window is a stranger's.
    EXPECT_EQ(CWnd::FromHandlePermanent(LoopThread::s_window), nullptr);
    ::PostMessage(LoopThread::s_window, WM_CLOSE, 0, 0);
    EXPECT_EQ(::WaitForSingleObject(handle, 5000), static_cast<DWORD>(WAIT_OBJECT_0));
    EXPECT_TRUE(LoopThread::s_ended);
    ::CloseHandle(handle);
    EXPECT_EQ(AfxBeginThread(RUNTIME_CLASS(CWnd)), nullptr) << "a window class is no thread class";
}

// ---- Command line and texts ---------------------------------------------------------------------

TEST(Application, CommandLines) {
    const struct {
        std::vector<const char*> arguments;
        int command;
        const char* file;
        const char* printer;
    } rows[] = {
        {{}, CCommandLineInfo::FileNew, "", ""},
        {{"a.txt"}, CCommandLineInfo::FileOpen, "a.txt", ""},
        {{"/p", "a.txt"}, CCommandLineInfo::FilePrint, "a.txt", ""},
        {{"-pt", "a.txt", "laser", "drv", "lpt1"}, CCommandLineInfo::FilePrintTo, "a.txt", "laser"},
        {{"/dde"}, CCommandLineInfo::FileDDE, "", ""},
        {{"/Register"}, CCommandLineInfo::AppRegister, "", ""},
        {{"/unregserver"}, CCommandLineInfo::AppUnregister, "", ""},
    };
    for (const auto& row : rows) {
        CCommandLineInfo info;
        for (size_t i = 0; i < row.arguments.size(); ++i) {
            const char* const argument = row.arguments[i];
            const bool flag = argument[0] == '/' || argument[0] == '-';
            info.ParseParam(flag ? argument + 1 : argument, flag, i + 1 == row.arguments.size());
        }
        SCOPED_TRACE(row.file);
        EXPECT_EQ(info.m_nShellCommand, row.command);
        EXPECT_EQ(info.m_strFileName, row.file);
        EXPECT_EQ(info.m_strPrinterName, row.printer);
        EXPECT_TRUE(info.m_bShowSplash);
    }
    CCommandLineInfo automation;
    automation.ParseParam("Automation", TRUE, TRUE);
    EXPECT_TRUE(automation.m_bRunAutomated);
    EXPECT_FALSE(automation.m_bShowSplash);
}

TEST(Application, MessageBoxesGoThroughTheApplication) {
    App app;
    EXPECT_EQ(AfxMessageBox("question"), IDYES);
    EXPECT_EQ(AfxMessageBox(static_cast<UINT>(4711)), IDYES);
    EXPECT_EQ(app.m_boxes, (std::vector<std::string>{"question", ""}));
}

TEST(Application, PartsOfAText) {
    CString part = "unchanged";
    EXPECT_FALSE(AfxExtractSubString(part, nullptr, 0));
    EXPECT_EQ(part, "unchanged");
    const struct {
        const char* text;
        int index;
        const char* part; ///< null: there is none
    } rows[] = {{"a\nbc\n", 0, "a"},     {"a\nbc\n", 1, "bc"}, {"a\nbc\n", 2, ""},
                {"a\nbc\n", 3, nullptr}, {"", 0, ""},          {"", 1, nullptr}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.index);
        EXPECT_EQ(AfxExtractSubString(part, row.text, row.index), row.part != nullptr);
        EXPECT_EQ(part, row.part == nullptr ? "" : row.part);
    }
}

} // namespace
