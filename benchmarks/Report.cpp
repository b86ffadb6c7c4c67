// SPDX-License-Identifier: MIT
#include "benchmarks/Report.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

std::string FormatTable(const std::vector<Row>& rows) {
    // Wide enough for all that is measured anywhere, so that two programs' rows make one table.
    std::size_t whatWidth = 40;
    std::size_t againstWidth = 29;
    for (const Row& row : rows) {
        whatWidth = std::max(whatWidth, row.what.size());
        againstWidth = std::max(againstWidth, row.against.size());
    }

    std::ostringstream out;
    const auto line = [&](const auto& what, const auto& against) -> std::ostream& {
        return out << std::left << std::setw(static_cast<int>(whatWidth)) << what << "  "
                   << std::setw(static_cast<int>(againstWidth)) << against << "  " << std::right;
    };
    line("measured", "against") << "   ours (us)  theirs (us)  ratio  our peak (MB)\n";
    out << std::fixed << std::setprecision(2);
    for (const Row& row : rows) {
        line(row.what, row.against) << std::setw(12) << row.ours << "  " << std::setw(11)
                                    << row.theirs << "  " << std::setw(5) << row.Ratio();
        if (row.peakMegabytes > 0)
            out << "  " << std::setw(13) << row.peakMegabytes;
        out << '\n';
    }
    return out.str();
}

std::string FormatJson(const std::vector<Row>& rows) {
    // The names are our own and hold nothing that JSON would want escaped.
    std::ostringstream out;
    out << std::fixed << std::setprecision(3) << "[";
    const char* separator = "\n";
    for (const Row& row : rows) {
        out << separator << "  {\"what\": \"" << row.what << "\", \"against\": \"" << row.against
            << "\", \"oursMicroseconds\": " << row.ours
            << ", \"theirsMicroseconds\": " << row.theirs << ", \"ratio\": " << row.Ratio();
        if (row.peakMegabytes > 0)
            out << ", \"peakMegabytes\": " << row.peakMegabytes;
        out << "}";
        separator = ",\n";
    }
    out << "\n]\n";
    return out.str();
}
