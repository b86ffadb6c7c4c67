// SPDX-License-Identifier: MIT
#include "benchmarks/PeakMemory.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <string>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

/// A field of /proc/self/status in kilobytes.
double StatusKilobytes(const std::string& field) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.compare(0, field.size(), field) == 0)
            return std::atof(line.c_str() + field.size() + 1);
    }
    return 0;
}

} // namespace

double PeakMegabytes(const std::function<void()>& run) {
#ifdef __GLIBC__
    malloc_trim(0); // what was freed before must not be found again unseen
#endif
    std::ofstream clear("/proc/self/clear_refs");
    if (!(clear << "5" << std::flush)) // sets the peak back
        return 0;
    const double before = StatusKilobytes("VmRSS:");
    run();
    return std::max(0.0, StatusKilobytes("VmHWM:") - before) / 1024;
}
