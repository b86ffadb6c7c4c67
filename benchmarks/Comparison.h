// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

/// One thing to measure: `run` does it once.
struct Contender {
    std::string name;
    std::function<void()> run;
};

/// One row of the report: our time as a ratio of another's, both from the same run.
struct Row {
    std::string what; ///< what was measured
    std::string
        against; ///< the peer (what a user would pick instead) or the floor (what cannot be beaten)
    double ours; ///< microseconds each
    double theirs;            ///< microseconds each
    double peakMegabytes = 0; ///< memory that ours takes at most, 0 when it was not measured
    double Ratio() const { return ours / theirs; }
};

/// Measures contenders in turns, so that whatever else the machine does hits all of them alike.
/// @param batch   how often each runs between two looks at the clock
/// @param rounds  how often each is timed; odd, so that the median is a time that was measured
/// @return the median time of each in microseconds, in their order
std::vector<double> MedianTimes(const std::vector<Contender>& contenders, int batch,
                                int rounds = 31);

/// Compares the first contender with each of the others.
std::vector<Row> Compare(const std::string& what, const std::vector<Contender>& contenders,
                         int batch, int rounds = 31);
