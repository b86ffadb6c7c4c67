// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <map>
#include <memory>

namespace tint {

/// Reads the description of a font, with zeros after the face name, so that equal fonts have equal
/// bytes.
/// @return false when `font` is not a font
bool DescribeFont(HGDIOBJ font, LOGFONT& description);

/// A GDI font and what it was made from.
class ListFont {
public:
    explicit ListFont(const LOGFONT& description);

    bool IsMadeFrom(const LOGFONT& description) const;
    HFONT handle() const { return m_font; }

private:
    LOGFONT m_description;
    CFont m_font;
};

/// Shares the fonts of a list, so that a thousand bold cells take one GDI object and not a thousand
/// (a process may have 10,000).  A font lives as long as a style record holds it.
class ListFonts {
public:
    /// The font of that description, from DescribeFont() or derived from one.
    /// @return null when GDI cannot make it
    std::shared_ptr<const ListFont> Get(const LOGFONT& description);

private:
    struct Less {
        bool operator()(const LOGFONT& left, const LOGFONT& right) const;
    };

    void DropUnused();

    std::map<LOGFONT, std::weak_ptr<const ListFont>, Less> m_fonts;
    std::size_t m_dropAt = 16; ///< so many entries, and those no record holds any more are dropped
};

} // namespace tint
