// SPDX-License-Identifier: MIT
// Random inputs by the thousand: the whole gallery is used without sense, and must be as before.
// MFC wants to be the one that includes <windows.h>.
#include <afxwin.h>
#include <afxcmn.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <set>
#include <thread>

#include "automation/RealInput.h"
#include "automation/Steady.h"
#include "decorations/HyperLink.h"
#include "gallery/GalleryFrame.h"
#include "gallery/resource.h"
#include "tests/gallery/RandomUser.h"
#include "tests/support/GdiLedger.h"

namespace {

/// Opens nothing, so that no input leaves the program.
class NoShell : public tint::LinkShell {
public:
    INT_PTR Open(const char*, int) override { return 33; }
    LONG GetRegistryDefault(HKEY, const char*, Text&) override { return ERROR_FILE_NOT_FOUND; }
    UINT Run(const char*, int) override { return 33; }
    void Beep() override {}
    void ShowError(const char*) override {}
};

NoShell g_noShell;

/// A gallery that cannot be closed by the inputs.
class CEndlessGallery : public CGalleryFrame {
public:
    static constexpr UINT kEnd = WM_APP;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_CLOSE)
            return 0;
        if (message == kEnd)
            message = WM_CLOSE;
        return CGalleryFrame::WindowProc(message, wParam, lParam);
    }
};

/// Keeps away the commands of system menus that open a program of the system's.
LRESULT CALLBACK WatchMessages(int code, WPARAM remove, LPARAM data) {
    MSG& message = *reinterpret_cast<MSG*>(data);
    RandomUser::OnMessage(message);
    if (code == HC_ACTION && message.message == WM_SYSCOMMAND && message.wParam >= SC_TASKLIST)
        message.message = WM_NULL; // Wine's "About Wine" among them
    return ::CallNextHookEx(nullptr, code, remove, data);
}

BOOL CALLBACK GiveNoShell(HWND window, LPARAM) {
    if (auto* const link = dynamic_cast<CHyperLink*>(CWnd::FromHandlePermanent(window)))
        link->SetShell(g_noShell);
    return TRUE;
}

// ---- What is compared ---------------------------------------------------------------------------

int CALLBACK AddProperty(HWND, LPSTR name, HANDLE value, ULONG_PTR names) {
    const std::string text = reinterpret_cast<ULONG_PTR>(name) <= 0xFFFF
                                 ? "#" + std::to_string(reinterpret_cast<ULONG_PTR>(name))
                                 : name;
    reinterpret_cast<std::set<std::string>*>(names)->insert(text);
    static_cast<void>(value);
    return TRUE;
}

/// What can be left on a window: its procedure and its properties.
struct Traces {
    LONG_PTR procedure;
    std::set<std::string> properties;

    bool operator==(const Traces& other) const {
        return procedure == other.procedure && properties == other.properties;
    }
};

BOOL CALLBACK AddTraces(HWND window, LPARAM all) {
    Traces traces = {::GetWindowLongPtrA(window, GWLP_WNDPROC), {}};
    ::EnumPropsExA(window, &AddProperty, reinterpret_cast<LPARAM>(&traces.properties));
    (*reinterpret_cast<std::map<HWND, Traces>*>(all))[window] = traces;
    return TRUE;
}

std::map<HWND, Traces> TracesOfAllWindows(DWORD thread) {
    std::map<HWND, Traces> all;
    const auto data = reinterpret_cast<LPARAM>(&all);
    ::EnumThreadWindows(
        thread,
        [](HWND window, LPARAM found) {
            AddTraces(window, found);
            ::EnumChildWindows(window, &AddTraces, found);
            return TRUE;
        },
        data);
    return all;
}

std::string Describe(HWND window, const Traces& traces) {
    char name[80] = "";
    char title[80] = "";
    ::GetClassNameA(window, name, sizeof name);
    ::GetWindowTextA(window, title, sizeof title);
    std::string text = std::string(name) + " \"" + title + "\":";
    for (const std::string& property : traces.properties)
        text += " " + property;
    return text;
}

bool IsToolTip(HWND window) {
    char name[80] = "";
    ::GetClassNameA(window, name, sizeof name);
    return std::string(name) == TOOLTIPS_CLASSA;
}

/// The differences, one a line.
std::string Compare(const std::map<HWND, Traces>& before, const std::map<HWND, Traces>& after) {
    std::string text;
    for (const auto& [window, traces] : after) {
        const auto former = before.find(window);
        if (former == before.end() && IsToolTip(window))
            continue; // made when it is first needed
        if (former == before.end())
            text += "new window " + Describe(window, traces) + "\n";
        else if (!(former->second == traces))
            text += "changed window " + Describe(window, traces) + "\n";
    }
    return text;
}

/// Empty when the pictures are the same; else both are written into the folder of temporary files.
std::string DifferenceOf(const automation::Picture& before, const automation::Picture& after,
                         const std::string& scene) {
    if (before == after)
        return "";
    char folder[MAX_PATH] = "";
    ::GetTempPathA(sizeof folder, folder);
    const std::string path = folder + ("endurance-" + scene);
    automation::WritePng(before, path + "-before.png");
    automation::WritePng(after, path + "-after.png");
    return scene + ": see " + path + "-before.png and -after.png\n";
}

int FromEnvironment(const char* name, int otherwise) {
    const char* const value = std::getenv(name);
    return value == nullptr ? otherwise : std::atoi(value);
}

TEST(Endurance, TheGalleryIsAsBeforeAfterTenThousandRandomInputs) {
    const unsigned seed = FromEnvironment("TINTKIT_ENDURANCE_SEED", 1);
    const int inputs = FromEnvironment("TINTKIT_ENDURANCE_INPUTS", 10000);
    std::printf("seed %u, %d inputs (TINTKIT_ENDURANCE_SEED, TINTKIT_ENDURANCE_INPUTS)\n", seed,
                inputs);
    AfxInitRichEdit2();
    const GdiLedger ledger;

    auto* const gallery = new CEndlessGallery; // deletes itself with its window
    ASSERT_TRUE(gallery->CreateGallery());
    AfxGetApp()->m_pMainWnd = gallery;
    const HWND window = *gallery;
    ::EnumChildWindows(window, &GiveNoShell, 0);
    gallery->ShowWindow(SW_SHOWNORMAL);

    const DWORD thread = ::GetCurrentThreadId();
    const HHOOK hook = ::SetWindowsHookExA(WH_GETMESSAGE, &WatchMessages, nullptr, thread);
    std::string surprises, traces, changedPictures;
    const char* const scenes[] = {"Menus", "Bitmap buttons", "Colours"};
    std::thread driver([&] {
        RandomUser user(window, seed);
        user.Settle();
        const auto before = TracesOfAllWindows(thread);
        std::vector<automation::Picture> pictures;
        for (const char* scene : scenes)
            pictures.push_back(user.PictureOf(scene));
        for (int i = 0; i < inputs && user.Surprises().empty(); ++i) {
            user.Act();
            if (i % 250 == 249)
                user.CalmDown();
        }
        user.Settle();
        for (std::size_t i = 0; i < pictures.size(); ++i)
            changedPictures += DifferenceOf(pictures[i], user.PictureOf(scenes[i]), scenes[i]);
        traces = Compare(before, TracesOfAllWindows(thread));
        surprises = user.Surprises();
        ::PostMessageA(window, CEndlessGallery::kEnd, 0, 0);
    });
    AfxGetApp()->Run();
    driver.join();
    ::UnhookWindowsHookEx(hook);

    EXPECT_EQ(surprises, "") << "dialogs that nobody asked for";
    EXPECT_EQ(traces, "");
    EXPECT_EQ(changedPictures, "");
    // The memory that is kept for the shadow of the next popup.
    EXPECT_EQ(ledger.Unreturned(), "CreateCompatibleDC x1\nCreateDIBSection x1\n");
    EXPECT_EQ(ledger.Faults(), "");
    EXPECT_TRUE(TracesOfAllWindows(thread).empty());
    std::printf("%d GDI objects made\n", ledger.Made());
    if (HasFailure())
        std::printf("the last inputs:\n%s", RandomUser::LastInputs().c_str());
}

} // namespace
