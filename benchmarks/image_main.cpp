// SPDX-License-Identifier: MIT
//
// tintkit_image_bench: what the image layer takes, natively.
#include "benchmarks/ImageBench.h"
#include "benchmarks/PeakMemory.h"
#include "benchmarks/Report.h"

#include <cstdio>
#include <string>

std::vector<Row> CompareImages(const std::string& what, const std::vector<Contender>& contenders) {
    const double peak = PeakMegabytes(contenders.front().run);
    std::vector<Row> rows = Compare(what, contenders, 1, kImageRounds);
    for (Row& row : rows)
        row.peakMegabytes = peak;
    return rows;
}

int main(int argc, char** argv) {
    const bool json = argc == 2 && std::string(argv[1]) == "--json";
    if (argc > 1 && !json) {
        std::fprintf(stderr, "usage: tintkit_image_bench [--json]\n");
        return 2;
    }
    std::vector<Row> rows;
    for (const auto bench : {BenchBmp, BenchJpeg, BenchPng, BenchResample}) {
        const std::vector<Row> more = bench();
        rows.insert(rows.end(), more.begin(), more.end());
    }
    std::fputs((json ? FormatJson(rows) : FormatTable(rows)).c_str(), stdout);
    return 0;
}
