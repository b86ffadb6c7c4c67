// SPDX-License-Identifier: MIT
#include <afxwin.h>

#include <gtest/gtest.h>

namespace {

/// The framework expects one application object in every program.
CWinApp g_app;

} // namespace

int main(int argc, char** argv) {
    if (!AfxWinInit(::GetModuleHandleA(nullptr), nullptr, ::GetCommandLineA(), SW_SHOWNORMAL))
        return 2;
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
