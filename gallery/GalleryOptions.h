// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "automation/SystemColors.h"

/// The command line of the gallery.
struct GalleryOptions {
    std::string pictures;                            ///< folder for pictures; empty: none wanted
    const automation::ColorScheme* scheme = nullptr; ///< null: the user's own colours
    std::string error;                               ///< what is wrong; empty: nothing

    /// @param arguments  without the program's name
    static GalleryOptions Parse(const std::vector<std::string>& arguments);
};
