// SPDX-License-Identifier: MIT
#include "controls/ListStyle.h"

#include <mbstring.h>

#include <cstring>

namespace tint {

namespace {

constexpr LONG LOGFONT::*kNumbers[] = {&LOGFONT::lfHeight, &LOGFONT::lfWidth,
                                       &LOGFONT::lfEscapement, &LOGFONT::lfOrientation,
                                       &LOGFONT::lfWeight};

constexpr BYTE LOGFONT::*kBytes[] = {&LOGFONT::lfItalic,       &LOGFONT::lfUnderline,
                                     &LOGFONT::lfStrikeOut,    &LOGFONT::lfCharSet,
                                     &LOGFONT::lfOutPrecision, &LOGFONT::lfClipPrecision,
                                     &LOGFONT::lfQuality,      &LOGFONT::lfPitchAndFamily};

bool SameFace(const LOGFONT& left, const LOGFONT& right) {
    const auto bytes = [](const LOGFONT& font) {
        return reinterpret_cast<const unsigned char*>(font.lfFaceName);
    };
    return ::_mbsnbcmp(bytes(left), bytes(right), LF_FACESIZE) == 0;
}

bool Has(const ListStyle* style, DWORD flag) {
    return style != nullptr && (style->flags & flag) != 0;
}

bool BlocksNothing(const ListStyleUse& use) {
    return use.row && use.column;
}

/// The style that decides on what `flag` stands for; null: none does.
const ListStyle* FirstWith(const ListStyleLevels& levels, const ListStyleUse& use, DWORD flag) {
    if (Has(levels.cell, flag))
        return levels.cell;
    if (use.row && Has(levels.row, flag))
        return levels.row;
    if (use.column && Has(levels.column, flag))
        return levels.column;
    return nullptr;
}

ListStyle* Variant(const ListStyle* style) {
    return style != nullptr ? style->selected.get() : nullptr;
}

ListStyle* VariantWithFont(ListStyle* style) {
    ListStyle* const variant = Variant(style);
    return variant != nullptr && variant->ownFont ? variant : style;
}

} // namespace

void ListStyle::SetFlags(DWORD newFlags) {
    flags = newFlags;
    ownFont = (newFlags & kFontBits) != 0;
}

bool ListStyle::SetFont(HFONT font) {
    std::unique_ptr<const LOGFONT> description;
    if (font != nullptr) {
        LOGFONT read;
        if (!DescribeFont(font, read))
            return false;
        description = std::make_unique<const LOGFONT>(read);
    }
    fontObject = std::move(description);
    ownFont = fontObject != nullptr || (flags & kFontBits) != 0;
    for (auto& cached : merged)
        cached.reset();
    return true;
}

ListStyle& ListStyle::Selected() {
    if (selected == nullptr)
        selected = std::make_unique<ListStyle>();
    return *selected;
}

bool ListStyle::GetFont(const LOGFONT& base, LOGFONT& font) const {
    if (fontObject != nullptr) {
        font = *fontObject;
        return true;
    }
    if ((flags & kFontBits) == 0)
        return false;
    font = base;
    font.lfWeight = (flags & kBold) != 0 ? FW_BOLD : FW_NORMAL;
    font.lfItalic = (flags & kItalic) != 0;
    font.lfUnderline = (flags & kUnderline) != 0;
    font.lfStrikeOut = (flags & kStrikeOut) != 0;
    return true;
}

ListStyleLevels ListStyleLevels::ForSelectedColors() const {
    return {Variant(cell), Variant(row), Variant(column)};
}

ListStyleLevels ListStyleLevels::ForSelectedFont() const {
    return {VariantWithFont(cell), VariantWithFont(row), VariantWithFont(column)};
}

ListStyleUse UseOf(const ListStyleLevels& levels) {
    ListStyleUse use;
    use.column = !Has(levels.cell, ListStyle::kBlocksColumns);
    use.row = !Has(levels.cell, ListStyle::kBlocksRows);
    if (BlocksNothing(use))
        use.column = !Has(levels.row, ListStyle::kBlocksColumns);
    if (BlocksNothing(use))
        use.row = !Has(levels.column, ListStyle::kBlocksRows);
    return use;
}

ListColors ResolveColors(const ListStyleLevels& levels, const ListColors& defaults) {
    const ListStyleUse use = UseOf(levels);
    const ListStyle* const text = FirstWith(levels, use, ListStyle::kHasTextColor);
    const ListStyle* const back = FirstWith(levels, use, ListStyle::kHasBackColor);
    return {text != nullptr ? text->textColor : defaults.text,
            back != nullptr ? back->backColor : defaults.back};
}

bool ResolveFont(const ListStyleLevels& levels, const LOGFONT& base, LOGFONT& merged) {
    if (levels.cell == nullptr)
        return false;
    const ListStyleUse use = UseOf(levels);
    const ListStyle* const inOrder[] = {use.column ? levels.column : nullptr,
                                        use.row ? levels.row : nullptr, levels.cell};
    bool any = false;
    LOGFONT font;
    merged = base;
    for (const ListStyle* const level : inOrder) {
        if (level != nullptr && level->GetFont(base, font)) {
            ApplyFont(merged, font, base);
            any = true;
        }
    }
    return any;
}

void ApplyFont(LOGFONT& result, const LOGFONT& font, const LOGFONT& base) {
    for (const auto field : kNumbers)
        if (font.*field != base.*field)
            result.*field = font.*field;
    for (const auto field : kBytes)
        if (font.*field != base.*field)
            result.*field = font.*field;
    if (!SameFace(font, base))
        std::memcpy(result.lfFaceName, font.lfFaceName, sizeof result.lfFaceName);
}

} // namespace tint
