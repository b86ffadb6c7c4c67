// SPDX-License-Identifier: MIT
#include "benchmarks/ButtonBench.h"

#include <afxwin.h>

#include "benchmarks/BlitWindow.h"
#include "controls/ButtonXP.h"

namespace {

constexpr int kWidth = 96;
constexpr int kHeight = 26;
constexpr UINT kSkinnedId = 100;
constexpr UINT kSystemId = 101;

CRect PlaceAt(int top) {
    return {CPoint(10, top), CSize(kWidth, kHeight)};
}

} // namespace

std::vector<Row> BenchButton() {
    CWnd host;
    host.CreateEx(WS_EX_TOPMOST, AfxRegisterWndClass(0, nullptr, ::GetSysColorBrush(COLOR_BTNFACE)),
                  "bench", WS_POPUP | WS_VISIBLE, CRect(20, 20, 220, 180), nullptr, 0);

    constexpr DWORD style = WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON;
    CButton system;
    system.Create("Caption", style, PlaceAt(10), &host, kSystemId);
    system.SetFont(CFont::FromHandle(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT))));
    CButtonXP skinned;
    skinned.Create("Caption", style, PlaceAt(50), &host, kSkinnedId);
    BlitWindow blit;
    blit.CreateIn(host, PlaceAt(90));

    const auto rows = Compare("paint a push button",
                              {{"ButtonXP", [&] { Repaint(skinned); }},
                               {"the system's own button", [&] { Repaint(system); }},
                               {"a single blit", [&] { Repaint(blit); }}},
                              200);
    host.DestroyWindow();
    return rows;
}
