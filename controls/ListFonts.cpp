// SPDX-License-Identifier: MIT
#include "controls/ListFonts.h"

#include <algorithm>
#include <cstring>

namespace tint {

bool DescribeFont(HGDIOBJ font, LOGFONT& description) {
    description = {};
    if (::GetObjectType(font) != OBJ_FONT ||
        ::GetObject(font, sizeof description, &description) != sizeof description)
        return false;
    char* const end = description.lfFaceName + LF_FACESIZE;
    std::fill(std::find(description.lfFaceName, end, '\0'), end, '\0');
    return true;
}

ListFont::ListFont(const LOGFONT& description) : m_description(description) {
    m_font.CreateFontIndirect(&description);
}

bool ListFont::IsMadeFrom(const LOGFONT& description) const {
    return std::memcmp(&m_description, &description, sizeof description) == 0;
}

bool ListFonts::Less::operator()(const LOGFONT& left, const LOGFONT& right) const {
    return std::memcmp(&left, &right, sizeof left) < 0;
}

std::shared_ptr<const ListFont> ListFonts::Get(const LOGFONT& description) {
    const auto known = m_fonts.find(description);
    if (known != m_fonts.end())
        if (auto font = known->second.lock())
            return font;

    auto font = std::make_shared<const ListFont>(description);
    if (font->handle() == nullptr)
        return nullptr;
    DropUnused();
    m_fonts[description] = font;
    return font;
}

void ListFonts::DropUnused() {
    if (m_fonts.size() < m_dropAt)
        return;
    for (auto entry = m_fonts.begin(); entry != m_fonts.end();)
        entry = entry->second.expired() ? m_fonts.erase(entry) : std::next(entry);
    // Twice the number in use: looking through them then costs no more than making them did.
    m_dropAt = std::max<std::size_t>(16, 2 * m_fonts.size());
}

} // namespace tint
