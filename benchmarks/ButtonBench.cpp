// SPDX-License-Identifier: MIT
#include "benchmarks/ButtonBench.h"

#include <afxwin.h>

#include "benchmarks/BenchHost.h"
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
    BenchHost host(CSize(200, 160));

    constexpr DWORD style = WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON;
    CButton system;
    system.Create("Caption", style, PlaceAt(10), &host, kSystemId);
    system.SetFont(DialogFont());
    CButtonXP skinned;
    skinned.Create("Caption", style, PlaceAt(50), &host, kSkinnedId);
    BlitWindow blit;
    blit.CreateIn(host, PlaceAt(90));

    return Compare("paint a push button",
                   {{"ButtonXP", [&] { Repaint(skinned); }},
                    {"the system's own button", [&] { Repaint(system); }},
                    {"a single blit", [&] { Repaint(blit); }}},
                   200);
}
