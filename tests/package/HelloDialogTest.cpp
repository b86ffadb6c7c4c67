// SPDX-License-Identifier: MIT
//
// The sample hello-dialog, built against the installed toolkit, as its user meets it: another process.
#include "samples/hello-dialog/resource.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "automation/Picture.h"
#include "automation/RealInput.h"
#include "draw/Hls.h"
#include "tests/support/Pump.h"

namespace {

/// Where the build of the sample puts it, seen from this program's folder.
constexpr char kProgram[] = "hello-dialog\\hello-dialog.exe";

/// The running sample; ended by force if it does not end by itself.
class Sample {
public:
    Sample() {
        STARTUPINFOA startup = {};
        startup.cb = sizeof startup;
        ::CreateProcessA(kProgram, nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                         &m_process);
    }
    ~Sample() {
        ::TerminateProcess(m_process.hProcess, 1);
        ::CloseHandle(m_process.hThread);
        ::CloseHandle(m_process.hProcess);
    }
    Sample(const Sample&) = delete;
    Sample& operator=(const Sample&) = delete;

    bool WaitUntilIdle() const { return ::WaitForInputIdle(m_process.hProcess, 30'000) == 0; }

    /// How it ended, STILL_ACTIVE if it has not within some seconds.
    DWORD ExitCode() const {
        ::WaitForSingleObject(m_process.hProcess, 10'000);
        DWORD code = STILL_ACTIVE;
        ::GetExitCodeProcess(m_process.hProcess, &code);
        return code;
    }

private:
    PROCESS_INFORMATION m_process = {};
};

/// Waits for a button with or without the toolkit's frame and face.
bool ComesToShowSkin(HWND button, bool skinned) {
    const COLORREF face = AdjustColorLS(::GetSysColor(COLOR_BTNFACE), 15, 0);
    return PumpUntil([&] {
        const automation::Picture picture = automation::CaptureWindow(button);
        if (picture.pixels.empty())
            return false;
        return (picture.At(0, 0) == ::GetSysColor(COLOR_BTNSHADOW) && picture.At(1, 1) == face) ==
               skinned;
    });
}

TEST(HelloDialog, AppearsPaintedAndAnswers) {
    automation::MoveMouse({1, 1});
    const Sample sample;
    ASSERT_TRUE(sample.WaitUntilIdle());
    HWND dialog = nullptr;
    ASSERT_TRUE(PumpUntil([&] {
        dialog = ::FindWindowA("#32770", "Hello");
        return ::IsWindowVisible(dialog) != FALSE;
    }));
    const HWND cancel = ::GetDlgItem(dialog, IDCANCEL);
    EXPECT_TRUE(ComesToShowSkin(cancel, true));

    automation::Click(::GetDlgItem(dialog, IDC_GREET));
    EXPECT_TRUE(PumpUntil([&] {
        char text[40] = "";
        ::SendMessageA(::GetDlgItem(dialog, IDC_GREETING), WM_GETTEXT, sizeof text,
                       reinterpret_cast<LPARAM>(text));
        return std::string(text) == "Hello!";
    }));

    automation::Click(::GetDlgItem(dialog, IDC_SYSTEM));
    EXPECT_TRUE(ComesToShowSkin(cancel, false)) << "the system's own";
    automation::Click(::GetDlgItem(dialog, IDC_SYSTEM));
    EXPECT_TRUE(ComesToShowSkin(cancel, true)) << "ours again";

    automation::TypeKey(VK_ESCAPE);
    EXPECT_EQ(sample.ExitCode(), 0u);
}

} // namespace
