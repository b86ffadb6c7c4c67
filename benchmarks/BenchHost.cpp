// SPDX-License-Identifier: MIT
#include "benchmarks/BenchHost.h"

BenchHost::BenchHost(CSize size, int background) {
    CreateEx(WS_EX_TOPMOST, AfxRegisterWndClass(0, nullptr, ::GetSysColorBrush(background)),
             "bench", WS_POPUP | WS_VISIBLE, CRect(CPoint(20, 20), size), nullptr, 0);
    UpdateWindow();
}

BenchHost::~BenchHost() {
    DestroyWindow();
}

void BenchHost::RepaintAll() {
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

CFont* DialogFont() {
    return CFont::FromHandle(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT)));
}

CString BesideBench(LPCTSTR name) {
    char program[MAX_PATH] = "";
    ::GetModuleFileName(nullptr, program, MAX_PATH);
    const CString path(program);
    return path.Left(path.ReverseFind('\\') + 1) + name;
}
