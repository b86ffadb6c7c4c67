// SPDX-License-Identifier: MIT
#include "automation/SystemColors.h"

namespace automation {
namespace {

void Apply(const std::vector<SystemColor>& colors) {
    if (colors.empty())
        return;
    std::vector<int> indices;
    std::vector<COLORREF> values;
    for (const SystemColor& entry : colors) {
        indices.push_back(entry.index);
        values.push_back(entry.color);
    }
    ::SetSysColors(static_cast<int>(indices.size()), indices.data(), values.data());
}

std::vector<SystemColor> HighContrastDark() {
    constexpr COLORREF black = RGB(0, 0, 0);
    constexpr COLORREF white = RGB(255, 255, 255);
    constexpr COLORREF yellow = RGB(255, 255, 0);
    constexpr COLORREF green = RGB(0, 255, 0);
    constexpr COLORREF violet = RGB(128, 0, 255);
    return {
        {COLOR_WINDOW, black},
        {COLOR_WINDOWTEXT, white},
        {COLOR_WINDOWFRAME, white},
        {COLOR_BTNFACE, black},
        {COLOR_BTNTEXT, white},
        {COLOR_BTNSHADOW, RGB(128, 128, 128)},
        {COLOR_BTNHIGHLIGHT, RGB(192, 192, 192)},
        {COLOR_3DDKSHADOW, white},
        {COLOR_3DLIGHT, white},
        {COLOR_GRAYTEXT, green},
        {COLOR_HIGHLIGHT, violet},
        {COLOR_HIGHLIGHTTEXT, white},
        {COLOR_MENU, black},
        {COLOR_MENUTEXT, white},
        {COLOR_MENUBAR, black},
        {COLOR_MENUHILIGHT, violet},
        {COLOR_ACTIVECAPTION, violet},
        {COLOR_CAPTIONTEXT, white},
        {COLOR_GRADIENTACTIVECAPTION, violet},
        {COLOR_INACTIVECAPTION, RGB(0, 128, 0)},
        {COLOR_INACTIVECAPTIONTEXT, white},
        {COLOR_GRADIENTINACTIVECAPTION, RGB(0, 128, 0)},
        {COLOR_ACTIVEBORDER, yellow},
        {COLOR_INACTIVEBORDER, green},
        {COLOR_APPWORKSPACE, black},
        {COLOR_BACKGROUND, black},
        {COLOR_SCROLLBAR, black},
        {COLOR_INFOBK, black},
        {COLOR_INFOTEXT, yellow},
        {COLOR_HOTLIGHT, RGB(128, 128, 255)},
    };
}

std::vector<SystemColor> Warm() {
    constexpr COLORREF face = RGB(236, 226, 208);
    constexpr COLORREF brown = RGB(74, 48, 28);
    constexpr COLORREF rust = RGB(184, 84, 32);
    return {
        {COLOR_WINDOW, RGB(255, 252, 244)},
        {COLOR_WINDOWTEXT, brown},
        {COLOR_WINDOWFRAME, brown},
        {COLOR_BTNFACE, face},
        {COLOR_BTNTEXT, brown},
        {COLOR_BTNSHADOW, RGB(176, 158, 130)},
        {COLOR_BTNHIGHLIGHT, RGB(255, 250, 240)},
        {COLOR_3DDKSHADOW, RGB(110, 88, 62)},
        {COLOR_3DLIGHT, RGB(244, 236, 222)},
        {COLOR_GRAYTEXT, RGB(150, 132, 108)},
        {COLOR_HIGHLIGHT, rust},
        {COLOR_HIGHLIGHTTEXT, RGB(255, 250, 240)},
        {COLOR_MENU, RGB(250, 244, 232)},
        {COLOR_MENUTEXT, brown},
        {COLOR_MENUBAR, face},
        {COLOR_MENUHILIGHT, rust},
        {COLOR_ACTIVECAPTION, RGB(140, 60, 20)},
        {COLOR_CAPTIONTEXT, RGB(255, 246, 230)},
        {COLOR_GRADIENTACTIVECAPTION, RGB(206, 132, 72)},
        {COLOR_INACTIVECAPTION, RGB(190, 170, 140)},
        {COLOR_INACTIVECAPTIONTEXT, face},
        {COLOR_GRADIENTINACTIVECAPTION, RGB(214, 198, 172)},
        {COLOR_ACTIVEBORDER, face},
        {COLOR_INACTIVEBORDER, face},
        {COLOR_APPWORKSPACE, RGB(176, 158, 130)},
        {COLOR_BACKGROUND, RGB(120, 96, 70)},
        {COLOR_SCROLLBAR, face},
        {COLOR_INFOBK, RGB(255, 246, 214)},
        {COLOR_INFOTEXT, brown},
        {COLOR_HOTLIGHT, RGB(160, 64, 16)},
    };
}

/// All the colours of a scheme from the few that make it.
struct Essence {
    COLORREF window, text, face, faceText, shadow, light, grey, highlight, highlightText, caption,
        captionText, link;
};

std::vector<SystemColor> FromEssence(const Essence& e) {
    return {
        {COLOR_WINDOW, e.window},
        {COLOR_WINDOWTEXT, e.text},
        {COLOR_WINDOWFRAME, e.text},
        {COLOR_BTNFACE, e.face},
        {COLOR_BTNTEXT, e.faceText},
        {COLOR_BTNSHADOW, e.shadow},
        {COLOR_BTNHIGHLIGHT, e.light},
        {COLOR_3DDKSHADOW, e.faceText},
        {COLOR_3DLIGHT, e.light},
        {COLOR_GRAYTEXT, e.grey},
        {COLOR_HIGHLIGHT, e.highlight},
        {COLOR_HIGHLIGHTTEXT, e.highlightText},
        {COLOR_MENU, e.face},
        {COLOR_MENUTEXT, e.faceText},
        {COLOR_MENUBAR, e.face},
        {COLOR_MENUHILIGHT, e.highlight},
        {COLOR_ACTIVECAPTION, e.caption},
        {COLOR_CAPTIONTEXT, e.captionText},
        {COLOR_GRADIENTACTIVECAPTION, e.caption},
        {COLOR_INACTIVECAPTION, e.face},
        {COLOR_INACTIVECAPTIONTEXT, e.faceText},
        {COLOR_GRADIENTINACTIVECAPTION, e.face},
        {COLOR_ACTIVEBORDER, e.face},
        {COLOR_INACTIVEBORDER, e.face},
        {COLOR_APPWORKSPACE, e.shadow},
        {COLOR_BACKGROUND, e.window},
        {COLOR_SCROLLBAR, e.face},
        {COLOR_INFOBK, e.window},
        {COLOR_INFOTEXT, e.text},
        {COLOR_HOTLIGHT, e.link},
    };
}

constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);

// The two as Windows 10 has them.
constexpr Essence kHighContrastBlack = {
    kBlack,               kWhite, kBlack,           kWhite, RGB(128, 128, 128), RGB(192, 192, 192),
    RGB(63, 242, 63),     RGB(26, 235, 255), kBlack, kBlack, kWhite,            RGB(255, 255, 0)};
constexpr Essence kHighContrastWhite = {
    kWhite,        kBlack,          kWhite, kBlack, RGB(128, 128, 128), RGB(192, 192, 192),
    RGB(96, 0, 0), RGB(55, 0, 110), kWhite, kWhite, kBlack,             RGB(0, 0, 159)};

constexpr Essence kSlate = {
    RGB(24, 32, 48),    RGB(226, 232, 240), RGB(38, 50, 72),  RGB(226, 232, 240),
    RGB(84, 100, 128),  RGB(70, 86, 112),   RGB(140, 152, 172), RGB(88, 148, 216),
    RGB(12, 18, 28),    RGB(20, 28, 44),    RGB(226, 232, 240), RGB(140, 190, 255)};

} // namespace

const std::vector<ColorScheme>& ColorSchemes() {
    static const std::vector<ColorScheme> schemes = {
        {"default", {}},
        {"high-contrast-dark", HighContrastDark()},
        {"warm", Warm()},
        {"high-contrast-black", FromEssence(kHighContrastBlack)},
        {"high-contrast-white", FromEssence(kHighContrastWhite)},
        {"slate", FromEssence(kSlate)},
    };
    return schemes;
}

const ColorScheme* FindColorScheme(std::string_view name) {
    for (const ColorScheme& scheme : ColorSchemes())
        if (name == scheme.name)
            return &scheme;
    return nullptr;
}

SystemColorGuard::SystemColorGuard(const std::vector<SystemColor>& colors) {
    for (const SystemColor& entry : colors)
        m_former.push_back({entry.index, ::GetSysColor(entry.index)});
    Apply(colors);
}

SystemColorGuard::~SystemColorGuard() {
    Apply(m_former);
}

} // namespace automation
