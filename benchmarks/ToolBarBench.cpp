// SPDX-License-Identifier: MIT
#include "benchmarks/ToolBarBench.h"

#include <afxcmn.h>
#include <afxext.h>

#include <numeric>

#include "benchmarks/BenchHost.h"
#include "benchmarks/BlitWindow.h"
#include "menus/ToolBarXP.h"

namespace {

constexpr int kButtons = 20;
constexpr UINT kFirstCommand = 100;

CRect PlaceAt(int top) {
    return {CPoint(10, top), CSize(kButtons * 23 + 10, 30)};
}

void SetUp(CToolBar& bar, CWnd& host, int top, HIMAGELIST images) {
    bar.CreateEx(&host, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP);
    UINT commands[kButtons];
    std::iota(std::begin(commands), std::end(commands), kFirstCommand);
    bar.SetButtons(commands, kButtons);
    bar.SetSizes(CSize(23, 22), CSize(16, 16));
    bar.SendMessage(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images));
    for (int i = 0; i < kButtons; ++i)
        bar.SetButtonInfo(i, commands[i], i == 4 ? TBBS_CHECKED : i == 8 ? TBBS_DISABLED : 0, 0);
    bar.MoveWindow(PlaceAt(top));
}

} // namespace

std::vector<Row> BenchToolBar() {
    BenchHost host(CSize(520, 160));
    CImageList images;
    images.Create(16, 16, ILC_COLOR32 | ILC_MASK, 1, 0);
    images.Add(::LoadIcon(nullptr, IDI_INFORMATION));
    CToolBarXP skinned;
    SetUp(skinned, host, 10, images);
    CToolBar system;
    SetUp(system, host, 50, images);
    BlitWindow blit;
    blit.CreateIn(host, PlaceAt(90));

    return Compare("paint a toolbar of 20 buttons",
                   {{"ToolBarXP", [&] { Repaint(skinned); }},
                    {"the system's own toolbar", [&] { Repaint(system); }},
                    {"a single blit", [&] { Repaint(blit); }}},
                   40);
}
