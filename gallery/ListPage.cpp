// SPDX-License-Identifier: MIT
#include "gallery/ListPage.h"

#include "gallery/resource.h"

using tint::ListStyle;

namespace {

constexpr DWORD kBothColors = ListStyle::kHasTextColor | ListStyle::kHasBackColor;

constexpr COLORREF kInk = RGB(32, 32, 32); // on all of the light backgrounds below
constexpr COLORREF kSand = RGB(255, 246, 214);
constexpr COLORREF kMint = RGB(214, 240, 220);
constexpr COLORREF kRose = RGB(250, 214, 214);
constexpr COLORREF kOrange = RGB(240, 140, 40);
constexpr COLORREF kPlum = RGB(110, 50, 120);

enum Row {
    kPlain,
    kBold,
    kTinted,
    kCells,
    kBlockedCell,
    kBlockedColumn,
    kOwnFont,
    kOwnSelection,
    kSelected
};

struct Line {
    LPCTSTR texts[4];
};

constexpr Line kLines[] = {
    {{"No style", "as the list", "as the list", "4.20"}},
    {{"A bold row", "bold", "bold", "18.00"}},
    {{"A row with colours", "tinted", "tinted", "7.35"}},
    {{"Cells", "italic", "struck out", "112.50"}},
    {{"A cell that blocks its row", "tinted", "blocked", "9.99"}},
    {{"A row that blocks columns", "no column", "no column", "31.40"}},
    {{"A font set whole", "small", "small", "0.80"}},
    {{"Selected, own colours", "own", "a cell's own", "64.00"}},
    {{"Selected, no style", "highlight", "highlight", "2.50"}},
};

int CALLBACK CompareNumbers(LPARAM left, LPARAM right, LPARAM descending) {
    return static_cast<int>(descending != 0 ? right - left : left - right);
}

} // namespace

BEGIN_MESSAGE_MAP(CListPage, CGalleryPage)
    ON_WM_SYSCOLORCHANGE()
    ON_NOTIFY(LVN_COLUMNCLICK, IDC_LIST, &CListPage::OnColumnClicked)
END_MESSAGE_MAP()

CListPage::CListPage() : CGalleryPage(IDD_LIST) {}

LPCTSTR CListPage::GetTitle() const {
    return "List";
}

LPCTSTR CListPage::GetDescription() const {
    return "A list of the dialog, subclassed by CListCtrlStyled. Select rows; click a column's "
           "caption to turn the order round.";
}

void CListPage::DoDataExchange(CDataExchange* exchange) {
    CGalleryPage::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_LIST, m_list);
}

BOOL CListPage::OnInitDialog() {
    CGalleryPage::OnInitDialog();

    m_list.SetExtendedStyle(LVS_EX_FULLROWSELECT);
    constexpr LPCTSTR captions[] = {"Row", "Style", "Status", "Amount"};
    constexpr int widths[] = {160, 86, 86, 66};
    for (int column = 0; column < 4; ++column)
        m_list.InsertColumn(column, captions[column], column == 3 ? LVCFMT_RIGHT : LVCFMT_LEFT,
                            widths[column]);
    int row = 0;
    for (const Line& line : kLines) {
        m_list.InsertItem(LVIF_TEXT | LVIF_PARAM, row, line.texts[0], 0, 0, 0, row);
        for (int column = 1; column < 4; ++column)
            m_list.SetItemText(row, column, line.texts[column]);
        ++row;
    }

    StyleColumns();
    StyleRows();
    StyleCells();
    StyleSelection();
    return TRUE;
}

void CListPage::StyleColumns() {
    m_list.SetColumnFlags(3, kBothColors | ListStyle::kBold);
    m_list.SetColumnTextColor(3, kPlum);
    m_list.SetColumnBackColor(3, kSand);
    // The column's bold shows in cells that have a style, if an empty one.
    m_list.SetCellFlags(kPlain, 3, 0);
}

void CListPage::StyleRows() {
    m_list.SetRowFlags(kBold, ListStyle::kBold);
    for (const int row : {kTinted, kBlockedCell}) {
        m_list.SetRowFlags(row, kBothColors);
        m_list.SetRowTextColor(row, kInk);
        m_list.SetRowBackColor(row, kMint);
    }
    m_list.SetRowFlags(kBlockedColumn, ListStyle::kBlocksColumns);

    LOGFONT font = {};
    m_list.GetFont()->GetLogFont(&font);
    font.lfHeight = font.lfHeight * 4 / 5;
    CFont smaller;
    smaller.CreateFontIndirect(&font);
    m_list.SetRowFont(kOwnFont, smaller);
}

void CListPage::StyleCells() {
    m_list.SetCellFlags(kCells, 1, ListStyle::kItalic | kBothColors);
    m_list.SetCellTextColor(kCells, 1, kInk);
    m_list.SetCellBackColor(kCells, 1, kRose);
    m_list.SetCellFlags(kCells, 2, ListStyle::kStrikeOut);
    m_list.SetCellFlags(kCells, 3, ListStyle::kUnderline); // and bold, by the column
    m_list.SetCellFlags(kBlockedCell, 2, ListStyle::kBlocksRows);
}

void CListPage::StyleSelection() {
    m_list.SetSelectedRowFlags(kOwnSelection, kBothColors | ListStyle::kBold);
    m_list.SetSelectedRowTextColor(kOwnSelection, kInk);
    m_list.SetSelectedRowBackColor(kOwnSelection, kOrange);
    m_list.SetSelectedCellFlags(kOwnSelection, 2, kBothColors);
    m_list.SetSelectedCellTextColor(kOwnSelection, 2, RGB(255, 255, 255));
    m_list.SetSelectedCellBackColor(kOwnSelection, 2, kPlum);
    for (const int row : {kOwnSelection, kSelected})
        m_list.SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
}

void CListPage::OnSysColorChange() {
    CGalleryPage::OnSysColorChange();
    m_list.SetBkColor(::GetSysColor(COLOR_WINDOW));
    m_list.SetSelectedDefaultColors(::GetSysColor(COLOR_HIGHLIGHTTEXT),
                                    ::GetSysColor(COLOR_HIGHLIGHT));
}

void CListPage::OnColumnClicked(NMHDR*, LRESULT* result) {
    m_descending = !m_descending;
    m_list.SortItems(CompareNumbers, m_descending);
    *result = 0;
}
