// SPDX-License-Identifier: MIT
// The application: profile, idle time, commands.
#include <afxpriv.h>

#include <gtest/gtest.h>

#include <cstdlib>
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

TEST_P(Profile, KeepsNumbersAndTexts) {
    EXPECT_EQ(m_app.GetProfileInt("Look", "Shade", 42), 42U);
    for (const int value : {0, -3, 2147483647}) {
        EXPECT_TRUE(m_app.WriteProfileInt("Look", "Shade", value));
        EXPECT_EQ(static_cast<int>(m_app.GetProfileInt("LOOK", "shade", 42)), value);
    }

    const auto stored = [this] { return m_app.GetProfileString("Files", "Last", "none"); };
    EXPECT_EQ(stored(), "none");
    for (const char* const text : {"C:\\a b.txt", ""}) {
        EXPECT_TRUE(m_app.WriteProfileString("Files", "Last", text));
        EXPECT_EQ(stored(), text);
    }
    EXPECT_TRUE(m_app.WriteProfileString("Files", "Last", nullptr));
    EXPECT_EQ(stored(), "none");

    m_app.WriteProfileString("Look", "Place", "no number");
    EXPECT_EQ(m_app.GetProfileInt("Look", "Place", 42), GetParam() ? 42U : 0U);
}

INSTANTIATE_TEST_SUITE_P(Application, Profile, testing::Bool(), [](const auto& param) {
    return std::string(param.param ? "Registry" : "IniFile");
});

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

// ---- User-interface items -----------------------------------------------------------------------

class CommandTarget : public CWnd {
public:
    int m_commands = 0;
    afx_msg void OnKnown() { ++m_commands; }
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

TEST(Application, ADisabledCommandIsNotRun) {
    CommandTarget window;
    ASSERT_TRUE(window.CreateEx(0, nullptr, "", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0));
    window.SendMessage(WM_COMMAND, MAKEWPARAM(11, 1)); // as an accelerator
    EXPECT_EQ(window.m_commands, 0);
    window.SendMessage(WM_COMMAND, MAKEWPARAM(10, 1));
    EXPECT_EQ(window.m_commands, 1);
    window.DestroyWindow();
}

} // namespace
