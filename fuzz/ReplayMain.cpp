// SPDX-License-Identifier: MIT
//
// Runs a fuzz target without libFuzzer:
//
//     bmp_fuzz [--mutations N] FILE-OR-FOLDER...
//
// Each file is run as it is, cut at every length, and in N mutations, the same ones each time.
#include "fuzz/FuzzTarget.h"

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace {

using Bytes = std::vector<uint8_t>;
namespace fs = std::filesystem;

/// Runs the target on a block of exactly the input's size, as libFuzzer does.
void RunExactly(const Bytes& input, size_t size) {
    const Bytes exact(input.begin(), input.begin() + static_cast<ptrdiff_t>(size));
    LLVMFuzzerTestOneInput(exact.data(), exact.size());
}

/// Overwrites up to four bytes, with the values that headers are sensitive to half of the time.
void Mutate(Bytes& input, std::mt19937& random) {
    const uint8_t edges[] = {0x00, 0x01, 0x7F, 0x80, 0xFF};
    for (unsigned i = random() % 4 + 1; i > 0; --i) {
        const size_t at = random() % input.size();
        const uint8_t any = static_cast<uint8_t>(random());
        input[at] = random() % 2 ? edges[random() % std::size(edges)] : any;
    }
}

/// @return false when the file cannot be read
bool Replay(const fs::path& path, unsigned mutations) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return false;
    const Bytes input{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    for (size_t size = 0; size <= input.size(); ++size)
        RunExactly(input, size);
    std::mt19937 random; // of the standard's seed: a finding comes again
    for (unsigned i = 0; i < mutations && !input.empty(); ++i) {
        Bytes mutated = input;
        Mutate(mutated, random);
        RunExactly(mutated, mutated.size());
    }
    return true;
}

/// The files named, and those in the folders named.
std::vector<fs::path> FilesOf(const std::vector<std::string>& names) {
    std::vector<fs::path> files;
    for (const std::string& name : names) {
        if (!fs::is_directory(name)) {
            files.push_back(name);
            continue;
        }
        for (const fs::directory_entry& entry : fs::directory_iterator(name))
            files.push_back(entry.path());
    }
    return files;
}

} // namespace

int main(int argc, char** argv) {
    std::vector<std::string> names(argv + 1, argv + argc);
    unsigned mutations = 0;
    if (names.size() >= 2 && names[0] == "--mutations") {
        mutations = static_cast<unsigned>(strtoul(names[1].c_str(), nullptr, 10));
        names.erase(names.begin(), names.begin() + 2);
    }
    const std::vector<fs::path> files = FilesOf(names);
    for (const fs::path& path : files) {
        if (!Replay(path, mutations)) {
            fprintf(stderr, "%s cannot be read\n", path.string().c_str());
            return 1;
        }
    }
    if (files.empty())
        fputs("no input\n", stderr);
    return files.empty() ? 1 : 0;
}
