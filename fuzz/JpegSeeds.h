// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// One file of the seed corpus.
struct Seed {
    std::string folder; ///< that of the fuzz target
    std::string name;
    std::vector<uint8_t> data;
};

/// The seeds of the JPEG and the EXIF reader.
std::vector<Seed> JpegSeeds();
