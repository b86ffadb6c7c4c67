// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "automation/Picture.h"

/// Puts pictures of the same size side by side, each enlarged and labelled.
class PictureSheet {
public:
    PictureSheet(int columns, int scale) : m_columns(columns), m_scale(scale) {}

    void Add(const std::string& label, automation::Picture picture);

    /// The sheet, on the system's button-face colour.
    automation::Picture Compose() const;

private:
    struct Entry {
        std::string label;
        automation::Picture picture;
    };

    int m_columns;
    int m_scale; ///< each pixel becomes a square of this size, so that it can be seen
    std::vector<Entry> m_entries;
};
