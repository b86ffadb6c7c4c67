// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

#include <string>
#include <vector>

/// Builds a dialog template in memory, so that a test shows in one place what its dialog holds.
/// Positions and sizes are in dialog units; the font is the 8-point dialog font.
class DialogTemplate {
public:
    DialogTemplate(const std::string& title, int width, int height,
                   DWORD style = WS_POPUP | WS_VISIBLE | DS_MODALFRAME);

    /// Adds a control.
    /// @param styles  WS_CHILD | WS_VISIBLE are always added
    DialogTemplate& Add(const std::string& windowClass, const std::string& text, WORD id,
                        DWORD styles, int x, int y, int width, int height);

    /// Valid while this object lives and nothing is added.
    LPCDLGTEMPLATE Get() const { return reinterpret_cast<LPCDLGTEMPLATE>(m_data.data()); }

private:
    void Word(WORD value) { m_data.push_back(value); }
    void Text(const std::string& text);

    std::vector<WORD> m_data; ///< the allocator aligns it as a template must be
};
