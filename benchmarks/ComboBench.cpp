// SPDX-License-Identifier: MIT
#include "benchmarks/ComboBench.h"

#include "benchmarks/BenchHost.h"
#include "benchmarks/BlitWindow.h"
#include "controls/ComboBoxXP.h"

namespace {

CRect PlaceAt(int top, int height) {
    return {CPoint(10, top), CSize(120, height)};
}

void ShowText(CComboBox& combo) {
    combo.AddString("Text");
    combo.SetCurSel(0);
}

} // namespace

std::vector<Row> BenchCombo() {
    BenchHost host(CSize(200, 160));

    constexpr DWORD style = WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST;
    CComboBox system;
    system.Create(style, PlaceAt(10, 120), &host, 100); // its height is that of the list
    system.SetFont(DialogFont());
    ShowText(system);
    CRect size;
    system.GetWindowRect(size);
    CComboBoxXP skinned;
    skinned.Create(style, PlaceAt(50, size.Height()), &host, 101);
    ShowText(skinned);
    BlitWindow blit;
    blit.CreateIn(host, PlaceAt(90, size.Height()));

    return Compare("paint a combo box",
                   {{"ComboBoxXP", [&] { Repaint(skinned); }},
                    {"the system's own combo box", [&] { Repaint(system); }},
                    {"a single blit", [&] { Repaint(blit); }}},
                   200);
}
