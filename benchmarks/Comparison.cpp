// SPDX-License-Identifier: MIT
#include "benchmarks/Comparison.h"

#include <algorithm>
#include <chrono>

namespace {

double TimeOnce(const Contender& contender, int batch) {
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < batch; ++i)
        contender.run();
    const std::chrono::duration<double, std::micro> elapsed =
        std::chrono::steady_clock::now() - start;
    return elapsed.count() / batch;
}

double Median(std::vector<double>& times) {
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

} // namespace

std::vector<double> MedianTimes(const std::vector<Contender>& contenders, int batch, int rounds) {
    std::vector<std::vector<double>> times(contenders.size());
    for (const Contender& contender : contenders)
        TimeOnce(contender, batch); // caches, fonts and surfaces are warm afterwards
    for (int round = 0; round < rounds; ++round)
        for (std::size_t i = 0; i < contenders.size(); ++i)
            times[i].push_back(TimeOnce(contenders[i], batch));

    std::vector<double> medians;
    for (auto& series : times)
        medians.push_back(Median(series));
    return medians;
}

std::vector<Row> Compare(const std::string& what, const std::vector<Contender>& contenders,
                         int batch, int rounds) {
    const std::vector<double> times = MedianTimes(contenders, batch, rounds);
    std::vector<Row> rows;
    for (std::size_t i = 1; i < contenders.size(); ++i)
        rows.push_back({what, contenders[i].name, times.front(), times[i]});
    return rows;
}
