// SPDX-License-Identifier: MIT
//
// tintkit_bench: what painting in windows takes.
#include <afxwin.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "benchmarks/ButtonBench.h"
#include "benchmarks/ComboBench.h"
#include "benchmarks/DecorationsBench.h"
#include "benchmarks/DialogBench.h"
#include "benchmarks/GlyphBench.h"
#include "benchmarks/ListBench.h"
#include "benchmarks/MenuBench.h"
#include "benchmarks/MenuOpenBench.h"
#include "benchmarks/Report.h"
#include "benchmarks/ToolBarBench.h"

namespace {

CWinApp g_app;

struct Subject {
    const char* name;
    std::vector<Row> (*bench)();
};

constexpr Subject kSubjects[] = {
    {"button", BenchButton},
    {"glyph", BenchGlyph},
    {"combo", BenchCombo},
    {"link", BenchLink},
    {"bitmap-button", BenchBitmapButton},
    {"picture", BenchPicture},
    {"list", BenchList},
    {"toolbar", BenchToolBar},
    {"menu", BenchMenus},
    {"popup", BenchMenuOpen},
    {"dialog", BenchDialog},
};

/// Everything the command line names is a subject's name.
bool AreSubjects(const std::vector<std::string>& names) {
    return std::all_of(names.begin(), names.end(), [](const std::string& name) {
        return std::any_of(std::begin(kSubjects), std::end(kSubjects),
                           [&](const Subject& subject) { return name == subject.name; });
    });
}

} // namespace

int main(int argc, char** argv) {
    std::vector<std::string> wanted(argv + 1, argv + argc);
    const bool json = !wanted.empty() && wanted.front() == "--json";
    if (json)
        wanted.erase(wanted.begin());
    if (!AreSubjects(wanted)) {
        std::fputs("usage: tintkit_bench [--json] [SUBJECT...]\nsubjects:", stderr);
        for (const Subject& subject : kSubjects)
            std::fprintf(stderr, " %s", subject.name);
        std::fputs("\n", stderr);
        return 2;
    }
    if (!AfxWinInit(::GetModuleHandleA(nullptr), nullptr, ::GetCommandLineA(), SW_SHOWNORMAL))
        return 1;

    std::vector<Row> rows;
    for (const Subject& subject : kSubjects) {
        if (!wanted.empty() &&
            std::find(wanted.begin(), wanted.end(), subject.name) == wanted.end())
            continue;
        const std::vector<Row> more = subject.bench();
        rows.insert(rows.end(), more.begin(), more.end());
    }
    std::fputs((json ? FormatJson(rows) : FormatTable(rows)).c_str(), stdout);
    return 0;
}
