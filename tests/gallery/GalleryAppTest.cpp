// SPDX-License-Identifier: MIT
#include "gallery/GalleryApp.h"

#include <gtest/gtest.h>

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

} // namespace
