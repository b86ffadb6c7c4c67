// SPDX-License-Identifier: MIT
#include "benchmarks/ListBench.h"

#include <chrono>

#include "benchmarks/BenchHost.h"
#include "controls/ListCtrlStyled.h"

namespace {

constexpr int kRows = 100000;
constexpr int kColumns = 8;

double Microseconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::micro> elapsed =
        std::chrono::steady_clock::now() - start;
    return elapsed.count();
}

void CreateIn(CListCtrl& list, CWnd& host, int left) {
    list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER,
                CRect(CPoint(left, 0), CSize(480, 400)), &host, 100);
    for (int column = 0; column < kColumns; ++column)
        list.InsertColumn(column, "Caption", LVCFMT_LEFT, 58);
}

void Fill(CListCtrl& list, int first, int end) {
    for (int row = first; row < end; ++row) {
        list.InsertItem(LVIF_TEXT | LVIF_PARAM, row, "Item", 0, 0, 0, row);
        for (int column = 1; column < kColumns; ++column)
            list.SetItemText(row, column, "Text");
    }
}

/// Every tenth cell, in turns with colours, with a font and with both.
void AddStyles(CListCtrlStyled& list) {
    using tint::ListStyle;
    constexpr DWORD colors = ListStyle::kHasTextColor | ListStyle::kHasBackColor;
    constexpr DWORD flags[] = {colors, ListStyle::kBold, colors | ListStyle::kItalic};
    for (int cell = 0; cell < kRows * kColumns; cell += 10) {
        const int row = cell / kColumns;
        const int column = cell % kColumns;
        list.SetCellFlags(row, column, flags[cell / 10 % 3]);
        list.SetCellTextColor(row, column, RGB(160, 0, 0));
        list.SetCellBackColor(row, column, RGB(255, 246, 214));
    }
}

Row OneRun(const char* what, double ours, double theirs) {
    return {what, "the system's own list", ours / kRows, theirs / kRows};
}

void Repaint(CListCtrl& list) {
    list.Invalidate();
    list.UpdateWindow();
}

void ScrollPage(CListCtrl& list) {
    const int page = list.GetCountPerPage();
    const int next = list.GetTopIndex() + 2 * page;
    list.EnsureVisible(next < kRows ? next : 0, FALSE);
    list.UpdateWindow();
}

} // namespace

std::vector<Row> BenchList() {
    BenchHost host(CSize(980, 420));
    CListCtrlStyled styled;
    CListCtrl plain;
    CreateIn(styled, host, 0);
    CreateIn(plain, host, 490);

    styled.SetRedraw(FALSE);
    plain.SetRedraw(FALSE);
    double styledFill = 0;
    double plainFill = 0;
    for (int row = 0; row < kRows; row += kRows / 10) { // in turns, as all that is compared
        plainFill += Microseconds([&] { Fill(plain, row, row + kRows / 10); });
        styledFill += Microseconds([&] { Fill(styled, row, row + kRows / 10); });
    }
    std::vector<Row> rows = {OneRun("insert a row of 8 cells into a list", styledFill, plainFill)};
    AddStyles(styled);
    styled.SetRedraw(TRUE);
    plain.SetRedraw(TRUE);

    const auto add = [&](const char* what, void (*work)(CListCtrl&), int rounds) {
        const auto measured = Compare(what,
                                      {{"CListCtrlStyled", [&] { work(styled); }},
                                       {"the system's own list", [&] { work(plain); }}},
                                      5, rounds);
        rows.insert(rows.end(), measured.begin(), measured.end());
    };
    add("repaint a page of a list", Repaint, 31);
    add("scroll a list by a page and repaint", ScrollPage, 31);
    const double plainEmpty = Microseconds([&] { plain.DeleteAllItems(); });
    const double styledEmpty = Microseconds([&] { styled.DeleteAllItems(); });
    rows.push_back(OneRun("delete all rows of a list, each", styledEmpty, plainEmpty));
    return rows;
}
