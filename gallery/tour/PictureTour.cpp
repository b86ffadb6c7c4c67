// SPDX-License-Identifier: MIT
// MFC wants to be the one that includes <windows.h>.
#include <afxwin.h>

#include "gallery/tour/PictureTour.h"

#include <cstdio>
#include <filesystem>

#include "automation/RealInput.h"
#include "automation/Steady.h"
#include "automation/SystemColors.h"
#include "gallery/resource.h"
#include "gallery/tour/Scenes.h"

namespace {

/// The visible frame window of this process; null when none appears within some seconds.
HWND WaitForGallery() {
    for (int look = 0; look < 500; ++look) {
        HWND window = nullptr;
        while ((window = ::FindWindowExA(nullptr, window, nullptr, "TintKit Gallery")) != nullptr) {
            DWORD process = 0;
            ::GetWindowThreadProcessId(window, &process);
            if (process == ::GetCurrentProcessId() && ::IsWindowVisible(window))
                return window;
        }
        ::Sleep(20);
    }
    return nullptr;
}

} // namespace

PictureTour::PictureTour(std::string folder) : m_folder(std::move(folder)) {
    std::error_code failed;
    std::filesystem::create_directories(m_folder, failed); // writing says what is wrong
}

PictureTour::~PictureTour() {
    Finish();
}

void PictureTour::Start() {
    m_thread = std::thread([this] {
        m_gallery = WaitForGallery();
        m_complete = m_gallery != nullptr;
        if (!m_complete)
            return;
        Run();
        ::PostMessageA(m_gallery, WM_CLOSE, 0, 0);
    });
}

bool PictureTour::Finish() {
    if (m_thread.joinable())
        m_thread.join();
    return m_complete;
}

void PictureTour::Run() {
    ::SetForegroundWindow(m_gallery);
    // Where no window manager runs, nobody tells the caption that its window is the active one.
    ::SendMessageA(m_gallery, WM_NCACTIVATE, TRUE, 0);
    constexpr int visited = 3; // schemes; of the others one sheet shows enough
    for (int scheme = 0; scheme < visited; ++scheme) {
        ::SendMessageA(m_gallery, WM_COMMAND, static_cast<WPARAM>(ID_SCHEME_FIRST + scheme), 0);
        VisitScenes(automation::ColorSchemes()[scheme].name);
    }
    automation::WaitUntilSteady(m_gallery);
    ChooseScene("Colours");
    TourColors(*this);
}

void PictureTour::VisitScenes(const std::string& scheme) {
    const bool isDefault = scheme == "default";
    const std::string suffix = isDefault ? "" : "-" + scheme;
    TourBars(*this, suffix);
    ChooseScene("Buttons");
    TourButtons(*this, suffix);
    ChooseScene("Glyphs");
    TourGlyphs(*this, suffix);
    ChooseScene("Combo boxes");
    TourCombos(*this, suffix);
    ChooseScene("List");
    TourList(*this, suffix);
    ChooseScene("Menus");
    TourMenus(*this, suffix);
    ChooseScene("Pictures");
    TourPictures(*this, suffix);
    ChooseScene("Links");
    TourLinks(*this, suffix);
    ChooseScene("Bitmap buttons");
    TourBitmapButtons(*this, suffix);
    ChooseScene("Rich text");
    TourRichText(*this, suffix);

    // The whole window, with something hot in it.  Drawn afresh: Wine's check box may keep its focus
    // mark after the focus has gone.
    ChooseScene("Buttons");
    ::RedrawWindow(m_gallery, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    automation::MoveMouseOver(::GetDlgItem(Page(), IDC_SUBJECT));
    const automation::Picture window = automation::WaitUntilSteady(m_gallery);
    if (isDefault)
        Write(window, "gallery");
    Write(window, "gallery-" + scheme);

    automation::TypeKey(VK_F8); // the skin off
    Write(automation::WaitUntilSteady(m_gallery), "gallery-without-skin" + suffix);
    automation::TypeKey(VK_F8);
    ParkMouse();
    automation::WaitUntilSteady(m_gallery);
}

HWND PictureTour::Contents() const {
    return ::GetDlgItem(m_gallery, AFX_IDW_PANE_FIRST);
}

HWND PictureTour::StatusBar() const {
    return ::GetDlgItem(m_gallery, AFX_IDW_STATUS_BAR);
}

HWND PictureTour::ToolBar() const {
    // It lies in the dock bar of one of the four sides.
    HWND dockBar = nullptr;
    HWND toolBar = nullptr;
    while (toolBar == nullptr &&
           (dockBar = ::FindWindowExA(m_gallery, dockBar, nullptr, nullptr)) != nullptr)
        toolBar = ::GetDlgItem(dockBar, AFX_IDW_TOOLBAR);
    return toolBar;
}

HWND PictureTour::Page() const {
    // The pages are the child dialogs; one of them is visible.
    HWND page = nullptr;
    do
        page = ::FindWindowExA(Contents(), page, reinterpret_cast<LPCSTR>(WC_DIALOG), nullptr);
    while (page != nullptr && !::IsWindowVisible(page));
    return page;
}

void PictureTour::ChooseScene(const char* title) const {
    const HWND list = ::GetDlgItem(Contents(), IDC_SCENES);
    const LRESULT index = ::SendMessageA(list, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                         reinterpret_cast<LPARAM>(title));
    RECT item = {};
    ::SendMessageA(list, LB_GETITEMRECT, index, reinterpret_cast<LPARAM>(&item));
    POINT middle = {(item.left + item.right) / 2, (item.top + item.bottom) / 2};
    ::ClientToScreen(list, &middle);
    automation::MoveMouse(middle);
    automation::PressMouse();
    automation::ReleaseMouse();
    // On a busy machine the window may look at rest before the click has reached it.
    for (int look = 0; look < 500 && ::SendMessageA(list, LB_GETCURSEL, 0, 0) != index; ++look)
        ::Sleep(20);
    automation::WaitUntilSteady(m_gallery);
}

void PictureTour::ParkMouse() const {
    RECT gallery = {};
    ::GetWindowRect(m_gallery, &gallery);
    automation::MoveMouse({gallery.left + 1, gallery.bottom - 2});
}

automation::Picture PictureTour::PictureOf(HWND control) const {
    constexpr int margin = 4;
    automation::WaitUntilSteady(m_gallery);
    RECT rect = {};
    ::GetWindowRect(control, &rect);
    ::InflateRect(&rect, margin, margin);
    return automation::CaptureScreen(rect);
}

void PictureTour::Write(const automation::Picture& picture, const std::string& name) {
    const std::string path = m_folder + "/" + name + ".png";
    if (automation::WritePng(picture, path))
        return;
    std::fprintf(stderr, "gallery: cannot write %s\n", path.c_str());
    m_complete = false;
}
