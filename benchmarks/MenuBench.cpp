// SPDX-License-Identifier: MIT
#include "benchmarks/MenuBench.h"

#include <afxwin.h>

#include <algorithm>

#include "benchmarks/BenchHost.h"
#include "draw/BufferDC.h"
#include "menus/MenuItemData.h"
#include "menus/MenuPaint.h"
#include "menus/MenuXP.h"

namespace {

constexpr RECT kPopup = {0, 0, 220, 320};
constexpr RECT kItem = {3, 3, 213, 25};
constexpr UINT kCommand = 100;

void ShadePixel(HDC dc, int x, int y, int row, int column) {
    constexpr int rounded[3][4] = {{0, 0, 0, 0}, {0, 0, 1, 1}, {0, 1, 2, 2}};
    const int percent = (3 - (row < 3 ? rounded[row][column] : column)) * 5 + 78;
    const COLORREF color = ::GetPixel(dc, x, y);
    ::SetPixel(dc, x, y,
               RGB(GetRValue(color) * percent / 100, GetGValue(color) * percent / 100,
                   GetBValue(color) * percent / 100));
}

/// What DrawMenuShadow draws, one GetPixel and one SetPixel each.
void ShadeByPixel(HDC dc, int right, int bottom) {
    for (int i = 0; i < right - 1; ++i) {
        const int end = i > right - 8 ? right - 4 - i : 4;
        for (int j = i >= 2 ? std::max(i - right + 7, 0) : 2 - i; j < end; ++j)
            ShadePixel(dc, i + 4, bottom - j - 1, i, j);
    }
    for (int column = 0; column < 4; ++column) {
        const int end = bottom - column - 4 - (column < 1 ? 2 : 1);
        for (int j = column < 2 ? 2 - column : 0; j < end; ++j)
            ShadePixel(dc, right - column - 1, j + 4, j, column);
    }
}

} // namespace

std::vector<Row> BenchMenus() {
    BenchHost host(CSize(240, 340), COLOR_WINDOW);
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, kCommand, "&Open...\tCtrl+O");
    CMenuXP::ConvertMenu(nullptr, menu, true, false);

    std::vector<Row> rows;
    {
        CClientDC dc(&host);
        rows = Compare("shade a popup of 220 x 320",
                       {{"DrawMenuShadow", [&] { DrawMenuShadow(dc, dc, kPopup); }},
                        {"pixel by pixel", [&] { ShadeByPixel(dc, kPopup.right, kPopup.bottom); }}},
                       5, 11);

        DRAWITEMSTRUCT request = {};
        request.CtlType = ODT_MENU;
        request.itemID = kCommand;
        request.hwndItem = reinterpret_cast<HWND>(menu.m_hMenu);
        request.hDC = dc;
        request.rcItem = kItem;
        request.itemData = tint::MenuItemData::PopupItem(22, 40, 60).Word();
        const auto items =
            Compare("paint a menu item",
                    {{"OnDrawItem", [&] { CMenuXP::OnDrawItem(&request, host.m_hWnd); }},
                     {"a buffered fill",
                      [&] {
                          CBufferDC buffer(dc, &kItem);
                          buffer.FillSolidRect(&kItem, RGB(255, 255, 255));
                      }}},
                    200);
        rows.insert(rows.end(), items.begin(), items.end());
    }
    return rows;
}
