// SPDX-License-Identifier: MIT
#include <afxwin.h>

#include <cstdio>
#include <string>

#include "benchmarks/ButtonBench.h"
#include "benchmarks/ComboBench.h"
#include "benchmarks/GlyphBench.h"
#include "benchmarks/ListBench.h"
#include "benchmarks/MenuBench.h"
#include "benchmarks/Report.h"
#include "benchmarks/ToolBarBench.h"

namespace {

CWinApp g_app;

} // namespace

int main(int argc, char** argv) {
    const bool json = argc == 2 && std::string(argv[1]) == "--json";
    if (argc > 1 && !json) {
        std::fprintf(stderr, "usage: tintkit_bench [--json]\n");
        return 2;
    }
    if (!AfxWinInit(::GetModuleHandleA(nullptr), nullptr, ::GetCommandLineA(), SW_SHOWNORMAL))
        return 1;

    std::vector<Row> rows = BenchButton();
    for (const auto& bench : {BenchGlyph, BenchCombo, BenchList, BenchMenus, BenchToolBar}) {
        const std::vector<Row> more = bench();
        rows.insert(rows.end(), more.begin(), more.end());
    }
    std::fputs((json ? FormatJson(rows) : FormatTable(rows)).c_str(), stdout);
    return 0;
}
