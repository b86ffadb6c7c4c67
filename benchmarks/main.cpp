// SPDX-License-Identifier: MIT
#include <afxwin.h>

#include <cstdio>
#include <string>

#include "benchmarks/ButtonBench.h"
#include "benchmarks/ListBench.h"
#include "benchmarks/Report.h"

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
    for (const Row& row : BenchList())
        rows.push_back(row);
    std::fputs((json ? FormatJson(rows) : FormatTable(rows)).c_str(), stdout);
    return 0;
}
