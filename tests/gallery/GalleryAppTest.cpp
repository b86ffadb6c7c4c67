// SPDX-License-Identifier: MIT
// The gallery when things go wrong.
#include "gallery/GalleryApp.h"

#include <gtest/gtest.h>

#include "gallery/GlyphPanel.h"
#include "tests/support/ImportPatch.h"

namespace {

HWND WINAPI RefuseWindow(DWORD, LPCSTR, LPCSTR, DWORD, int, int, int, int, HWND, HMENU, HINSTANCE,
                         LPVOID) {
    return nullptr;
}

TEST(GalleryApp, EndsWithAnErrorWhereItsWindowCannotBeMade) {
    ImportPatch patch;
    patch.Redirect("user32.dll", "CreateWindowExA", &RefuseWindow);
    const int arguments = __argc;
    __argc = 1; // those of the test program are none of the gallery's
    CGalleryApp app;
    EXPECT_FALSE(app.InitInstance());
    EXPECT_EQ(app.ExitInstance(), 1);
    __argc = arguments;
}

/// Takes its memory along when its window goes: whoever touches it then crashes.
class VanishingPanel : public CGlyphPanel {
public:
    VanishingPanel() : CGlyphPanel(CDrawButton::kFlat) {}
    static void* operator new(std::size_t size) {
        return ::VirtualAlloc(nullptr, size, MEM_COMMIT, PAGE_READWRITE);
    }
    static void operator delete(void* memory) { ::VirtualFree(memory, 0, MEM_RELEASE); }
    void PostNcDestroy() override { delete this; }
};

TEST(GlyphPanel, MayGoWhileItIsClicked) {
    for (const WORD x : {50, 80}) { // the spin pair, the arrow beside it
        const HWND window = ::CreateWindowA("STATIC", "", WS_POPUP | WS_VISIBLE, 20, 20, 300, 30,
                                            nullptr, nullptr, nullptr, nullptr);
        auto* const panel = new VanishingPanel;
        ASSERT_TRUE(panel->SubclassWindow(window));
        ::PostMessageA(window, WM_CLOSE, 0, 0);
        ::SendMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, 10));
        EXPECT_FALSE(::IsWindow(window));
    }
}

} // namespace
