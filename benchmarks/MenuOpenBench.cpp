// SPDX-License-Identifier: MIT
#include "benchmarks/MenuOpenBench.h"

#include <cstdio>
#include <cstdlib>

#include "benchmarks/BenchHost.h"
#include "menus/SkinnedMenus.h"

namespace {

/// Ends a menu as soon as it is painted and waits for the user.
template <class Base>
class MenuCloser : public Base {
public:
    using Base::Base;
    int m_opened = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_ENTERIDLE && wParam == MSGF_MENU) {
            ++m_opened;
            ::EndMenu();
        }
        return Base::WindowProc(message, wParam, lParam);
    }
};

using PlainHost = MenuCloser<BenchHost>;
using SkinnedHost = MenuCloser<CSkinnedMenus<BenchHost>>;

void FillMenu(CMenu& menu) {
    menu.CreatePopupMenu();
    UINT command = 100;
    for (const char* caption :
         {"&New\tCtrl+N", "&Open...\tCtrl+O", "&Save\tCtrl+S", "Save &as...", "", "Cu&t\tCtrl+X",
          "&Copy\tCtrl+C", "&Paste\tCtrl+V", "", "&Toolbar", "St&atus bar", "E&xit"})
        menu.AppendMenu(*caption == '\0' ? MF_SEPARATOR : MF_STRING, command++, caption);
    menu.CheckMenuItem(109, MF_CHECKED);
    menu.EnableMenuItem(107, MF_GRAYED);
}

/// The window must be in front: menus of others are not framed.
void OpenAndClose(CWnd& host, CMenu& menu) {
    host.SetForegroundWindow();
    menu.TrackPopupMenu(TPM_LEFTALIGN, 300, 300, &host);
}

} // namespace

std::vector<Row> BenchMenuOpen() {
    PlainHost plain(CSize(200, 160));
    SkinnedHost skinned(CSize(200, 160));
    CMenu plainMenu;
    CMenu skinnedMenu; // one of its own, as its items are converted
    FillMenu(plainMenu);
    FillMenu(skinnedMenu);
    const auto rows = Compare("open and close a popup of 12 items",
                              {{"SkinnedMenus", [&] { OpenAndClose(skinned, skinnedMenu); }},
                               {"the system's own menu", [&] { OpenAndClose(plain, plainMenu); }}},
                              10);
    if (plain.m_opened != skinned.m_opened || plain.m_opened == 0) {
        std::fprintf(stderr, "tintkit_bench: a menu did not open\n");
        std::exit(1);
    }
    return rows;
}
