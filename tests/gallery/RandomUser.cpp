// SPDX-License-Identifier: MIT
// MFC wants to be the one that includes <windows.h>.
#include <afxwin.h>

#include "tests/gallery/RandomUser.h"

#include <afxpriv.h>
#include <afxres.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdio>
#include <iterator>
#include <vector>

#include "automation/RealInput.h"
#include "automation/Steady.h"
#include "automation/SystemColors.h"
#include "draw/Skin.h"
#include "gallery/resource.h"

using automation::MouseButton;

namespace {

/// Text that a crash handler can print: it is there before the crash and takes no memory.
std::array<char[80], 40> g_lastInputs;
unsigned g_inputs = 0;

constexpr WORD kMark = VK_F24; // a key that nobody uses: what was sent before it has been handled
std::atomic<int> g_marks = 0;

void PrintLastInputs() {
    const HANDLE stream = ::GetStdHandle(STD_ERROR_HANDLE);
    for (unsigned i = 0; i < g_lastInputs.size(); ++i) {
        const char* const line = g_lastInputs[(g_inputs + i) % g_lastInputs.size()];
        DWORD written = 0;
        ::WriteFile(stream, line, static_cast<DWORD>(::lstrlenA(line)), &written, nullptr);
    }
}

/// Before the guard that ends the program.
LONG CALLBACK TellOnCrash(EXCEPTION_POINTERS* exception) {
    if (exception->ExceptionRecord->ExceptionCode == EXCEPTION_ACCESS_VIOLATION ||
        exception->ExceptionRecord->ExceptionCode == EXCEPTION_BREAKPOINT)
        PrintLastInputs();
    return EXCEPTION_CONTINUE_SEARCH;
}

/// The top-level windows of this process, the topmost first.
std::vector<HWND> TopWindows() {
    std::vector<HWND> windows;
    ::EnumWindows(
        [](HWND window, LPARAM found) {
            DWORD process = 0;
            ::GetWindowThreadProcessId(window, &process);
            if (process == ::GetCurrentProcessId())
                reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&windows));
    return windows;
}

std::vector<HWND> ShownWindows() {
    std::vector<HWND> windows = TopWindows();
    windows.erase(std::remove_if(windows.begin(), windows.end(),
                                 [](HWND window) { return !::IsWindowVisible(window); }),
                  windows.end());
    return windows;
}

std::string TextOf(HWND window) {
    char text[80] = "";
    ::GetWindowTextA(window, text, sizeof text);
    return text;
}

bool IsOfClass(HWND window, const char* name) {
    char text[80] = "";
    ::GetClassNameA(window, text, sizeof text);
    return ::lstrcmpiA(text, name) == 0;
}

std::string Describe(HWND window) {
    char name[80] = "";
    ::GetClassNameA(window, name, sizeof name);
    return std::string(name) + " \"" + (::IsWindow(window) ? "" : "gone") + "\" " +
           std::to_string(::GetDlgCtrlID(window)) + (::IsWindowVisible(window) ? "" : ", hidden") +
           (::IsWindowEnabled(window) ? "" : ", disabled");
}

std::string DescribeShown() {
    std::string text;
    for (const HWND window : ShownWindows()) {
        RECT rect = {};
        ::GetWindowRect(window, &rect);
        text += "  shown: " + Describe(window) + " at " + std::to_string(rect.left) + ", " +
                std::to_string(rect.top) + ", " + std::to_string(rect.right - rect.left) + "x" +
                std::to_string(rect.bottom - rect.top) + "\n";
    }
    return text;
}

/// What the window's thread is doing; asks no window.
std::string DescribeState(HWND gallery) {
    GUITHREADINFO state = {};
    state.cbSize = sizeof state;
    ::GetGUIThreadInfo(::GetWindowThreadProcessId(gallery, nullptr), &state);
    return "state " + std::to_string(state.flags) + "\n  active: " + Describe(state.hwndActive) +
           "\n  focus: " + Describe(state.hwndFocus) +
           "\n  capture: " + Describe(state.hwndCapture) +
           "\n  menu's owner: " + Describe(state.hwndMenuOwner) +
           "\n  foreground: " + Describe(::GetForegroundWindow()) + "\n" + DescribeShown();
}

bool IsMenu(HWND window) {
    return IsOfClass(window, "#32768");
}

bool IsDialog(HWND window) {
    return IsOfClass(window, "#32770");
}

} // namespace

// ---- What it does -------------------------------------------------------------------------------

void RandomUser::Act() {
    static const PVOID handler = ::AddVectoredExceptionHandler(TRUE, TellOnCrash);
    static_cast<void>(handler);
    constexpr struct {
        Deed deed;
        int weight;
    } deeds[] = {
        {&RandomUser::Move, 30},          {&RandomUser::ClickSomewhere, 22},
        {&RandomUser::RightClick, 4},     {&RandomUser::DoubleClick, 3},
        {&RandomUser::Drag, 6},           {&RandomUser::Wheel, 4},
        {&RandomUser::TypeSomething, 30}, {&RandomUser::OpenMenu, 8},
        {&RandomUser::Command, 6},        {&RandomUser::ChangeScheme, 1},
        {&RandomUser::TellOfChange, 2},   {&RandomUser::Resize, 3},
        {&RandomUser::DragToolBar, 1},    {&RandomUser::OpenMenusFrame, 1},
    };
    int sum = 0;
    for (const auto& entry : deeds)
        sum += entry.weight;
    int chosen = Below(sum);
    const auto* entry = deeds;
    for (; chosen >= entry->weight; ++entry)
        chosen -= entry->weight;
    (this->*entry->deed)();
    ExpectAnswer();
}

void RandomUser::Move() {
    MoveTo(SomewhereIn(AnyWindow()));
}

void RandomUser::ClickSomewhere() {
    Move();
    Note("click");
    automation::PressMouse();
    automation::ReleaseMouse();
}

void RandomUser::RightClick() {
    Move();
    Note("right click");
    automation::PressMouse(MouseButton::Right);
    automation::ReleaseMouse(MouseButton::Right);
}

void RandomUser::DoubleClick() {
    ClickSomewhere();
    automation::PressMouse();
    automation::ReleaseMouse();
}

void RandomUser::Drag() {
    Move();
    Note("press");
    automation::PressMouse();
    Move();
    Move();
    Note("release");
    automation::ReleaseMouse();
}

void RandomUser::Wheel() {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = MOUSEEVENTF_WHEEL;
    input.mi.mouseData = static_cast<DWORD>(Below(2) == 0 ? WHEEL_DELTA : -WHEEL_DELTA);
    Note("wheel " + std::to_string(static_cast<int>(input.mi.mouseData)));
    ::SendInput(1, &input, sizeof input);
}

void RandomUser::TypeSomething() {
    constexpr WORD keys[] = {VK_TAB,  VK_TAB,   VK_SPACE, VK_RETURN, VK_ESCAPE, VK_UP,   VK_DOWN,
                             VK_LEFT, VK_RIGHT, VK_PRIOR, VK_NEXT,   VK_HOME,   VK_END,  VK_DELETE,
                             VK_BACK, VK_F4,    VK_F6,    VK_F8,     VK_F10,    VK_APPS, VK_MENU,
                             'A',     'C',      'D',      'P',       'V',       '1',     '5'};
    constexpr WORD modifiers[] = {0, 0, 0, 0, VK_SHIFT, VK_CONTROL};
    const WORD key = keys[Below(std::size(keys))];
    const WORD modifier = modifiers[Below(std::size(modifiers))];
    Note("key " + std::to_string(key) + " with " + std::to_string(modifier));
    automation::TypeKey(key, modifier);
}

void RandomUser::OpenMenu() {
    constexpr WORD letters[] = {'S', 'E', 'V', 'H', 'P', 'L', VK_SPACE};
    const WORD letter = letters[Below(std::size(letters))];
    Note("menu " + std::to_string(letter));
    automation::TypeKey(letter, VK_MENU);
}

void RandomUser::Command() {
    constexpr struct {
        WORD first, last;
    } ranges[] = {
        {ID_SCENE_FIRST, ID_SCENE_LAST},    {ID_SCENE_FIRST, ID_SCENE_FIRST + 9},
        {ID_DOCK_FIRST, ID_DOCK_LAST},      {ID_VIEW_SKIN, ID_VIEW_SKIN},
        {ID_VIEW_TOOLBAR, ID_VIEW_TOOLBAR}, {ID_VIEW_STATUS_BAR, ID_VIEW_STATUS_BAR},
        {ID_EDIT_COPY, ID_EDIT_COPY},       {ID_EDIT_PASTE, ID_EDIT_PASTE},
        {ID_APP_ABOUT, ID_APP_ABOUT},
    };
    const auto& range = ranges[Below(std::size(ranges))];
    const int command = range.first + Below(range.last - range.first + 1);
    if (!IsBusy())
        Post(WM_COMMAND, static_cast<WPARAM>(command));
}

void RandomUser::ChangeScheme() {
    const int schemes = static_cast<int>(automation::ColorSchemes().size());
    Post(WM_COMMAND, static_cast<WPARAM>(ID_SCHEME_FIRST + Below(schemes)));
}

void RandomUser::TellOfChange() {
    constexpr UINT messages[] = {WM_SYSCOLORCHANGE, WM_THEMECHANGED, WM_DISPLAYCHANGE,
                                 WM_SETTINGCHANGE, WM_CANCELMODE};
    const UINT message = messages[Below(std::size(messages))];
    const LPARAM size =
        MAKELPARAM(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    Post(message, message == WM_DISPLAYCHANGE ? 32 : 0, message == WM_DISPLAYCHANGE ? size : 0);
}

void RandomUser::Resize() {
    const HWND window = AnyWindow();
    const int width = Below(900);
    const int height = Below(700);
    Note("resize " + TextOf(window) + " to " + std::to_string(width) + "x" +
         std::to_string(height));
    ::SetWindowPos(window, nullptr, 0, 0, width, height,
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_ASYNCWINDOWPOS);
}

void RandomUser::DragToolBar() {
    // The toolbar's grip, wherever it is docked.
    HWND dockBar = nullptr;
    HWND toolBar = nullptr;
    while (toolBar == nullptr &&
           (dockBar = ::FindWindowExA(m_gallery, dockBar, nullptr, nullptr)) != nullptr)
        toolBar = ::GetDlgItem(dockBar, AFX_IDW_TOOLBAR);
    if (toolBar == nullptr)
        return;
    RECT bar = {};
    ::GetWindowRect(toolBar, &bar);
    RECT window = {};
    ::GetWindowRect(m_gallery, &window);
    const POINT sides[] = {{(window.left + window.right) / 2, window.top + 50},
                           {(window.left + window.right) / 2, window.bottom - 8},
                           {window.left + 8, (window.top + window.bottom) / 2},
                           {window.right - 8, (window.top + window.bottom) / 2},
                           {window.right + 60, window.bottom + 60}};
    MoveTo({bar.left + 4, bar.top + 4});
    Note("drag the toolbar");
    automation::PressMouse();
    MoveTo(sides[Below(std::size(sides))]);
    ::Sleep(10);
    MoveTo(sides[Below(std::size(sides))]);
    automation::ReleaseMouse();
}

void RandomUser::OpenMenusFrame() {
    if (IsBusy())
        return;
    const HWND contents = ::GetDlgItem(m_gallery, AFX_IDW_PANE_FIRST);
    HWND page = nullptr;
    while ((page = ::FindWindowExA(contents, page, reinterpret_cast<LPCSTR>(WC_DIALOG), nullptr)) !=
           nullptr) {
        if (const HWND open = ::GetDlgItem(page, IDC_MENUS_OPEN)) {
            Note("open the window of menus");
            ::PostMessageA(open, BM_CLICK, 0, 0);
        }
    }
}

// ---- Back to rest -------------------------------------------------------------------------------

void RandomUser::CalmDown() {
    WaitUntilHandled();
    const std::string lastInputs = LastInputs();
    constexpr int most = 40;
    for (int look = 0; look <= most; ++look) {
        if (look == most)
            m_surprises += "it does not calm down: " + DescribeState(m_gallery) + lastInputs;
        const std::vector<HWND> shown = ShownWindows();
        bool open = IsBusy();
        for (const HWND window : shown) {
            open = open || IsMenu(window);
            const std::string title = TextOf(window); // empty while it comes or goes
            if (IsDialog(window) && !title.empty() && title != "About TintKit Gallery")
                m_surprises += "\"" + title + "\"\n";
        }
        if (!open && look > 1)
            break;
        // Keys go to the menu or the dialog that is open, even when another window is active.
        for (const HWND window : shown)
            if (IsDialog(window))
                ::SetForegroundWindow(window);
        Note("Escape");
        automation::TypeKey(VK_ESCAPE);
        ::Sleep(20);
        ExpectAnswer();
    }
    ::ShowWindowAsync(m_gallery, SW_SHOWNORMAL);
    ::SetWindowPos(m_gallery, nullptr, 300, 200, 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER | SWP_ASYNCWINDOWPOS);
    ::SetForegroundWindow(m_gallery);
    ExpectAnswer();
    WaitUntilHandled();
}

void RandomUser::Settle() {
    CalmDown();
    for (const HWND window : TopWindows()) // it may be hidden: the gallery was minimized
        if (window != m_gallery && (::GetWindowLongA(window, GWL_STYLE) & WS_CAPTION) != 0 &&
            TextOf(window) == "Menus")
            ::SendMessageA(window, WM_CLOSE, 0, 0);
    if (!tint::IsSkinEnabled(m_gallery))
        ::SendMessageA(m_gallery, WM_COMMAND, ID_VIEW_SKIN, 0);
    ::SendMessageA(m_gallery, WM_COMMAND, ID_SCHEME_FIRST, 0);
    ::SendMessageA(m_gallery, WM_COMMAND, ID_DOCK_FIRST, 0); // shows it, too
    if (!::IsWindowVisible(::GetDlgItem(m_gallery, AFX_IDW_STATUS_BAR)))
        ::SendMessageA(m_gallery, WM_COMMAND, ID_VIEW_STATUS_BAR, 0);
    ::SetForegroundWindow(m_gallery);
    ::SendMessageA(m_gallery, WM_NCACTIVATE, TRUE, 0); // where no window manager tells it
}

automation::Picture RandomUser::PictureOf(const char* scene) {
    const HWND contents = ::GetDlgItem(m_gallery, AFX_IDW_PANE_FIRST);
    const HWND scenes = ::GetDlgItem(contents, IDC_SCENES);
    const LRESULT index = ::SendMessageA(scenes, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                         reinterpret_cast<LPARAM>(scene));
    ::SendMessageA(m_gallery, WM_COMMAND, static_cast<WPARAM>(ID_SCENE_FIRST + index), 0);
    HWND page = nullptr;
    while ((page = ::FindWindowExA(contents, page, reinterpret_cast<LPCSTR>(WC_DIALOG), nullptr)) !=
           nullptr) {
        ::SetDlgItemTextA(page, IDC_MENUS_CHOSEN, "");
        if (::IsDlgButtonChecked(page, IDC_BITMAP_DISABLE) == BST_CHECKED)
            ::SendDlgItemMessageA(page, IDC_BITMAP_DISABLE, BM_CLICK, 0, 0);
    }
    ::SendMessageA(contents, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(scenes), TRUE);
    ::SendMessageA(scenes, LB_SETTOPINDEX, 0, 0);
    // Whether keys or the mouse were used last shows in marks of focus and underlined letters.
    ::SendMessageA(m_gallery, WM_CHANGEUISTATE,
                   MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS | UISF_HIDEACCEL), 0);
    ::SendMessageA(m_gallery, WM_SETMESSAGESTRING, AFX_IDS_IDLEMESSAGE, 0);
    RECT window = {};
    ::GetWindowRect(m_gallery, &window);
    MoveTo({window.left + 1, window.bottom - 2});
    ::PostMessageA(m_gallery, WM_NULL, 0, 0); // so that the loop goes idle and updates the bars
    automation::WaitUntilSteady(m_gallery);
    // The system keeps one request to be told at a time: a pointer this fast can lose one.
    ::EnumChildWindows(
        m_gallery, [](HWND window, LPARAM) { return ::PostMessageA(window, WM_MOUSELEAVE, 0, 0); },
        0);
    ::RedrawWindow(m_gallery, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    return automation::WaitUntilSteady(m_gallery);
}

// ---- Parts --------------------------------------------------------------------------------------

/// In a menu or a dialog, where nobody can give commands.  Asks when all input has been handled: a
/// command that meets a menu just opening would open a window within the menu's loop, and Wine leaves
/// a popup behind when a second menu is used in there.
bool RandomUser::IsBusy() {
    WaitUntilHandled();
    GUITHREADINFO state = {};
    state.cbSize = sizeof state;
    ::GetGUIThreadInfo(::GetWindowThreadProcessId(m_gallery, nullptr), &state);
    return !::IsWindowEnabled(m_gallery) || (state.flags & (GUI_INMENUMODE | GUI_INMOVESIZE)) != 0;
}

int RandomUser::Below(int limit) {
    return static_cast<int>(m_random() % static_cast<unsigned>(limit));
}

POINT RandomUser::SomewhereIn(HWND window) {
    RECT rect = {};
    ::GetWindowRect(window, &rect);
    return {rect.left + Below(std::max<int>(1, rect.right - rect.left)),
            rect.top + Below(std::max<int>(1, rect.bottom - rect.top))};
}

/// Mostly what lies on top: a menu, a list, a dialog.
HWND RandomUser::AnyWindow() {
    const std::vector<HWND> shown = ShownWindows();
    if (shown.empty() || Below(3) == 0)
        return m_gallery;
    return shown[Below(2) == 0 ? 0 : Below(static_cast<int>(shown.size()))];
}

void RandomUser::MoveTo(POINT point) {
    Note("move to " + std::to_string(point.x) + ", " + std::to_string(point.y));
    automation::MoveMouse(point);
}

void RandomUser::Post(UINT message, WPARAM wParam, LPARAM lParam) {
    Note("message " + std::to_string(message) + " with " + std::to_string(wParam));
    ::PostMessageA(m_gallery, message, wParam, lParam);
}

void RandomUser::ExpectAnswer() {
    constexpr UINT limit = 20000; // milliseconds
    DWORD_PTR result = 0;
    if (::SendMessageTimeoutA(m_gallery, WM_NULL, 0, 0, SMTO_NORMAL, limit, &result) != 0)
        return;
    std::fprintf(stderr, "The gallery does not answer any more: %s The last inputs were\n",
                 DescribeState(m_gallery).c_str());
    std::fflush(stderr);
    PrintLastInputs();
    ::TerminateProcess(::GetCurrentProcess(), 4);
}

void RandomUser::OnMessage(const MSG& message) {
    if ((message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN) &&
        message.wParam == kMark)
        ++g_marks;
}

void RandomUser::WaitUntilHandled() {
    const int before = g_marks;
    automation::TypeKey(kMark);
    for (int look = 0; look < 5000 && g_marks == before; ++look)
        ::Sleep(1);
    ExpectAnswer();
}

void RandomUser::Note(const std::string& input) {
    auto& line = g_lastInputs[g_inputs % g_lastInputs.size()];
    std::snprintf(line, sizeof line, "  %u: %s\n", g_inputs, input.c_str());
    ++g_inputs;
}

std::string RandomUser::LastInputs() {
    std::string text;
    for (unsigned i = 0; i < g_lastInputs.size(); ++i)
        text += g_lastInputs[(g_inputs + i) % g_lastInputs.size()];
    return text;
}
