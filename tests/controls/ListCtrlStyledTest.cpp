// SPDX-License-Identifier: MIT
#include "controls/ListCtrlStyled.h"

#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "automation/Picture.h"
#include "automation/RealInput.h"
#include "draw/Skin.h"
#include "tests/support/Canvas.h"
#include "tests/support/GdiLedger.h"
#include "tests/support/HeapCount.h"
#include "tests/support/Pump.h"

using tint::ListStyle;

namespace {

constexpr DWORD kBack = ListStyle::kHasBackColor;
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 160, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kYellow = RGB(255, 255, 0);

/// The list under test, which notes how often and with which fonts it is drawn.
class Subject : public CListCtrlStyled {
public:
    int m_paints = 0;
    /// Font bits by item and column; 16: 20 high, 32: selected
    std::map<std::pair<int, int>, DWORD> m_fonts;
    COLORREF m_text = 0; ///< of the cell drawn last
    COLORREF m_back = 0;
    std::function<void()> m_whenAskedForText = [] {};

    /// What the list view itself keeps as the parameter.
    LPARAM KeyOfFirst() {
        LVITEM item = {};
        item.mask = LVIF_PARAM;
        DefWindowProc(LVM_GETITEM, 0, reinterpret_cast<LPARAM>(&item));
        return item.lParam;
    }

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const BOOL handled = CListCtrlStyled::OnChildNotify(message, wParam, lParam, result);
        const auto& draw = *reinterpret_cast<const NMLVCUSTOMDRAW*>(lParam);
        if (message == WM_NOTIFY && draw.nmcd.hdr.code == NM_CUSTOMDRAW)
            Note(draw, *result);
        // What an item's change does in a paint under Windows; Wine leaves it out.
        if (message == WM_NOTIFY && draw.nmcd.hdr.code == LVN_ITEMCHANGED)
            Invalidate();
        if (message == WM_NOTIFY && draw.nmcd.hdr.code == LVN_GETDISPINFOA)
            m_whenAskedForText();
        return handled;
    }

private:
    void Note(const NMLVCUSTOMDRAW& draw, LRESULT answer) {
        m_paints += draw.nmcd.dwDrawStage == CDDS_PREPAINT;
        if (draw.nmcd.dwDrawStage != (CDDS_ITEMPREPAINT | CDDS_SUBITEM))
            return;
        m_text = draw.clrText;
        m_back = draw.clrTextBk;
        LOGFONT font = {};
        ::GetObject(::GetCurrentObject(draw.nmcd.hdc, OBJ_FONT), sizeof font, &font);
        m_fonts[{static_cast<int>(draw.nmcd.dwItemSpec), draw.iSubItem}] =
            (font.lfWeight >= FW_BOLD ? 1U : 0U) | (font.lfItalic != 0 ? 2U : 0U) |
            (font.lfUnderline != 0 ? 4U : 0U) | (font.lfStrikeOut != 0 ? 8U : 0U) |
            (font.lfHeight == -20 ? 16U : 0U) | (answer != 0 ? 32U : 0U);
    }
};

/// A window with a list of `rows` by `columns`, which writes down what the list tells its parent.
template <class List>
class Host : public CWnd {
public:
    Host(int rows, int columns, DWORD style = LVS_REPORT | LVS_SHOWSELALWAYS) {
        CreateEx(WS_EX_TOPMOST, AfxRegisterWndClass(0), "host", WS_POPUP | WS_VISIBLE,
                 CRect(20, 20, 420, 220), nullptr, 0);
        m_list.Create(WS_CHILD | WS_VISIBLE | style, CRect(0, 0, 400, 200), this, 5);
        for (int column = 0; column < columns; ++column)
            m_list.InsertColumn(column, "column", LVCFMT_LEFT, 50);
        for (int row = 0; row < rows; ++row)
            m_list.InsertItem(row, "M");
        m_log.clear();
    }
    ~Host() override { DestroyWindow(); }

    /// Looks at the screen; what the next two tell is of then.
    void Look() {
        m_list.UpdateWindow();
        PumpFor(80);
        m_picture = automation::CaptureWindow(m_list);
    }

    /// The background of a cell, where no text stands.
    COLORREF Back(int item, int column) {
        const CRect cell = Cell(item, column);
        return m_picture.At(cell.right - 3, cell.CenterPoint().y);
    }

    bool HasText(int item, int column, COLORREF color) {
        const CRect cell = Cell(item, column);
        for (int y = cell.top; y < cell.bottom; ++y)
            for (int x = cell.left; x < cell.right - 8; ++x)
                if (m_picture.At(x, y) == color)
                    return true;
        return false;
    }

    List m_list;
    std::vector<std::string> m_log;
    int m_searches = 0; ///< that a virtual list asks its parent for

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const BOOL handled =
            CWnd::OnNotify(wParam, lParam, result); // what the list keeps to itself
        const auto& change = *reinterpret_cast<const NMLISTVIEW*>(lParam);
        const int code = static_cast<int>(change.hdr.code);
        m_searches += change.hdr.code == LVN_ODFINDITEMA || change.hdr.code == LVN_ODFINDITEMW;
        if (!handled && change.hdr.hwndFrom == m_list.m_hWnd && code <= -100 && code > -104)
            Log("told", code, change.iItem, change.lParam);
        return handled;
    }

public:
    template <class... Numbers>
    void Log(const char* what, Numbers... numbers) {
        std::string line = what;
        ((line += ' ' + std::to_string(numbers)), ...);
        m_log.push_back(line);
    }

private:
    CRect Cell(int item, int column) {
        CRect cell;
        CRect place;
        m_list.GetItemRect(item, &cell, LVIR_BOUNDS);
        m_list.GetHeaderCtrl()->GetItemRect(column, &place);
        cell.left = place.left;
        cell.right = place.right;
        return cell;
    }

    automation::Picture m_picture;
};

// ---- Parameters ---------------------------------------------------------------------------------

int CALLBACK Ascending(LPARAM left, LPARAM right, LPARAM sign) {
    return static_cast<int>((left - right) * sign);
}

/// Does all that touches parameters, and returns what a caller and its parent window see of it.
template <class List>
std::vector<std::string> UseParameters() {
    Host<List> host(0, 2);
    List& list = host.m_list;
    const auto send = [&](UINT message, WPARAM wParam, const void* data) {
        return static_cast<int>(
            ::SendMessageA(list, message, wParam, reinterpret_cast<LPARAM>(data)));
    };
    const auto logAll = [&](const char* what) {
        host.Log(what, list.GetItemCount());
        for (int i = -1; i <= list.GetItemCount(); ++i)
            host.Log("data", i, list.GetItemData(i));
    };
    list.InsertItem(LVIF_TEXT | LVIF_PARAM, 0, "a", 0, 0, 0, 30);
    LVITEMW wide = {};
    wide.mask = LVIF_TEXT | LVIF_PARAM;
    wide.pszText = const_cast<LPWSTR>(L"wide");
    wide.lParam = 10;
    host.Log("wide", send(LVM_INSERTITEMW, 0, &wide), wide.lParam);
    list.InsertItem(2, "without");
    wide.iSubItem = 1;
    wide.lParam = 11; // subitems have none
    host.Log("as subitem", send(LVM_INSERTITEMW, 0, &wide), send(LVM_SETITEMW, 0, &wide));
    logAll("inserted");

    host.Log("set", list.SetItemData(2, 0xFFFFFFFFFFFFFFF0), list.SetItemData(9, 1));
    wide.iSubItem = 0;
    wide.lParam = 20;
    host.Log("set wide", send(LVM_SETITEMW, 0, &wide));
    wide.mask = LVIF_PARAM;
    wide.lParam = 0;
    host.Log("get wide", send(LVM_GETITEMW, 0, &wide), wide.lParam);
    logAll("set");

    for (const LPARAM value : {20LL, 30LL, 77LL, 0x100000000LL})
        for (const int start : {-1, 0, 1, 5}) {
            LVFINDINFO search = {};
            search.flags = LVFI_PARAM;
            search.lParam = value;
            host.Log("find", value, start, list.FindItem(&search, start));
        }
    LVFINDINFO text = {};
    text.flags = LVFI_STRING;
    text.psz = "without";
    host.Log("text", list.FindItem(&text));

    list.SetItemState(1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    for (const int sign : {1, -1}) {
        host.Log("sort", list.SortItems(Ascending, static_cast<DWORD_PTR>(sign)));
        logAll("sorted");
    }
    host.Log("delete", list.DeleteItem(1), list.DeleteItem(7), list.DeleteItem(-1));
    logAll("deleted");
    host.Log("delete all", list.DeleteAllItems());
    list.InsertItem(LVIF_PARAM, 0, nullptr, 0, 0, 0, 50);
    list.DestroyWindow();
    return host.m_log;
}

TEST(ListCtrlStyled, ParametersAreTheCallersAsInThePlainList) {
    const auto styled = UseParameters<CListCtrlStyled>();
    const auto plain = UseParameters<CListCtrl>();
    EXPECT_GT(plain.size(), 60U);
    ASSERT_EQ(styled.size(), plain.size());
    for (std::size_t i = 0; i < plain.size(); ++i)
        EXPECT_EQ(styled[i], plain[i]) << i;
}

/// The parameter that the parent sees in a notification.
template <class Notification, class Field>
LPARAM SeenByParent(Host<Subject>& host, UINT code, Field parameter) {
    Notification notification = {};
    notification.hdr = {host.m_list, 5, code};
    parameter(notification) = host.m_list.KeyOfFirst();
    host.SendMessage(WM_NOTIFY, 5, reinterpret_cast<LPARAM>(&notification));
    return parameter(notification);
}

TEST(ListCtrlStyled, EveryNotificationCarriesTheCallersValue) {
    Host<Subject> host(1, 1);
    host.m_list.SetItemData(0, 42);
    ASSERT_NE(host.m_list.KeyOfFirst(), 42);
    for (const UINT code : {LVN_ITEMCHANGING, LVN_ITEMCHANGED, LVN_INSERTITEM, LVN_DELETEITEM,
                            LVN_BEGINDRAG, LVN_BEGINRDRAG, LVN_ITEMACTIVATE, LVN_HOTTRACK, NM_CLICK,
                            NM_DBLCLK, NM_RCLICK, NM_RDBLCLK})
        EXPECT_EQ((SeenByParent<NMLISTVIEW>(
                      host, code, [](auto& n) -> auto& { return n.lParam; })),
                  42)
            << static_cast<int>(code);
    for (const UINT code :
         {LVN_GETDISPINFOA, LVN_GETDISPINFOW, LVN_SETDISPINFOA, LVN_SETDISPINFOW,
          LVN_BEGINLABELEDITA, LVN_BEGINLABELEDITW, LVN_ENDLABELEDITA, LVN_ENDLABELEDITW})
        EXPECT_EQ((SeenByParent<NMLVDISPINFO>(
                      host, code, [](auto& n) -> auto& { return n.item.lParam; })),
                  42)
            << static_cast<int>(code);
    for (const UINT code : {LVN_GETINFOTIPA, LVN_GETINFOTIPW})
        EXPECT_EQ((SeenByParent<NMLVGETINFOTIP>(
                      host, code, [](auto& n) -> auto& { return n.lParam; })),
                  42)
            << static_cast<int>(code);
}

TEST(ListCtrlStyled, TakesOverTheItemsOfAListThatIsThere) {
    Host<CListCtrl> host(1, 2);
    host.m_list.SetItemData(0, 42);
    Subject list;
    list.SubclassWindow(host.m_list.UnsubclassWindow());
    EXPECT_EQ(list.GetItemData(0), 42U);
    EXPECT_TRUE(list.SetCellFlags(0, 1, kBack));
}

// ---- Painting -----------------------------------------------------------------------------------

TEST(ListCtrlStyled, PaintsTheCascade) {
    Host<Subject> host(6, 4);
    Subject& list = host.m_list;
    list.SetColumnFlags(2, kBack);
    list.SetColumnBackColor(2, kBlue);
    for (const int row : {1, 4, 5}) {
        list.SetRowFlags(row, kBack);
        list.SetRowBackColor(row, kGreen);
    }
    list.SetRowFlags(2, ListStyle::kBlocksColumns);
    list.SetCellFlags(1, 3, kBack | ListStyle::kHasTextColor);
    list.SetCellBackColor(1, 3, kRed);
    list.SetCellTextColor(1, 3, kYellow);
    list.SetItemText(1, 3, "M");
    list.SetCellFlags(4, 2, ListStyle::kBlocksRows | ListStyle::kBlocksColumns);
    list.SetItemState(5, LVIS_SELECTED, LVIS_SELECTED);
    list.SetSelectedRowFlags(5, kBack);
    list.SetSelectedRowBackColor(5, kYellow);
    list.SetSelectedCellFlags(5, 3, kBack | ListStyle::kHasTextColor);
    list.SetSelectedCellBackColor(5, 3, kRed);

    const COLORREF none = ::GetSysColor(COLOR_WINDOW);
    const COLORREF expected[6][4] = {
        {none, none, kBlue, none}, {kGreen, kGreen, kGreen, kRed}, {none, none, none, none},
        {none, none, kBlue, none}, {kGreen, kGreen, none, kGreen}, {none, kYellow, kYellow, kRed}};
    host.Look();
    for (int row = 0; row < 6; ++row)
        for (int column = row == 5 ? 1 : 0; column < 4; ++column)
            EXPECT_EQ(host.Back(row, column), expected[row][column]) << row << ' ' << column;
    EXPECT_TRUE(host.HasText(1, 3, kYellow));

    list.SetColumnBackColor(2, kRed, true);
    EXPECT_FALSE(list.GetUpdateRect(nullptr)) << "repainted at once";
    host.Look();
    EXPECT_EQ(host.Back(0, 2), kRed);
}

TEST(ListCtrlStyled, SelectionHasItsOwnColorsAndIsGivenBack) {
    Host<Subject> host(3, 3);
    Subject& list = host.m_list;
    ::SetForegroundWindow(host);
    list.SetSelectedColumnFlags(1, kBack);
    list.SetSelectedColumnBackColor(1, kYellow);
    list.SetSelectedCellFlags(1, 0, kBack | ListStyle::kHasTextColor);
    list.SetSelectedCellBackColor(1, 0, kGreen);
    list.SetSelectedCellTextColor(1, 0, kRed);
    list.SetExtendedStyle(LVS_EX_FULLROWSELECT);
    CRect row;
    list.GetItemRect(1, &row, LVIR_BOUNDS);
    list.ClientToScreen(&row);
    automation::MoveMouse(row.CenterPoint());
    automation::PressMouse();
    automation::ReleaseMouse();
    ASSERT_TRUE(PumpUntil([&] { return list.GetItemState(1, LVIS_SELECTED) != 0; }));
    automation::MoveMouse({700, 500});
    host.Look();

    EXPECT_EQ(host.Back(1, 0), kGreen);
    EXPECT_EQ(host.Back(1, 1), kYellow);
    EXPECT_EQ(host.Back(1, 2), ::GetSysColor(COLOR_HIGHLIGHT)) << "no style: the default";
    EXPECT_TRUE(host.HasText(1, 0, kRed));
    list.SetSelectedDefaultColors(kRed, kBlue);
    host.m_log.clear();
    list.m_paints = 0;
    list.Invalidate();
    host.Look();
    EXPECT_EQ(host.Back(1, 2), kBlue) << "nor is the system's highlight ever drawn";
    EXPECT_EQ(list.GetItemState(1, LVIS_SELECTED), UINT{LVIS_SELECTED});
    EXPECT_EQ(list.GetSelectedCount(), 1U);
    PumpFor();
    EXPECT_EQ(list.m_paints, 1) << "one paint does not lead to another";
    EXPECT_EQ(host.m_log.size(), 0U) << host.m_log.front();

    tint::EnableSkin(list, false);
    host.Look();
    for (int column = 0; column < 3; ++column)
        EXPECT_EQ(host.Back(1, column), ::GetSysColor(COLOR_HIGHLIGHT)) << "without its skin";
    EXPECT_FALSE(host.HasText(1, 0, kRed));
    tint::EnableSkin(list, true);
    host.Look();
    EXPECT_EQ(host.Back(1, 1), kYellow);

    DWORD_PTR data = 0; // what a program finds out for the text it may keep with the item
    list.m_whenAskedForText = [&] { data < 7 ? list.SetItemData(1, ++data) : FALSE; };
    list.SetItemText(1, 2, LPSTR_TEXTCALLBACK);
    host.Look();
    EXPECT_EQ(list.GetItemData(1), 7U);
    EXPECT_EQ(list.GetItemState(1, LVIS_SELECTED), UINT{LVIS_SELECTED});

    const CRect invalid(7, 30, 40, 50);
    list.InvalidateRect(&invalid, FALSE);
    Canvas canvas(400, 200);
    list.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.dc()), PRF_CLIENT);
    CRect still;
    EXPECT_TRUE(list.GetUpdateRect(&still));
    EXPECT_EQ(still, invalid) << "painting elsewhere leaves the update region alone";
}

TEST(ListCtrlStyled, Fonts) {
    Host<Subject> host(4, 3);
    Subject& list = host.m_list;
    list.SetColumnFlags(0, ListStyle::kUnderline);
    list.SetColumnFlags(2, ListStyle::kStrikeOut);
    list.SetRowFlags(1, ListStyle::kBold);
    list.SetCellFlags(1, 1, ListStyle::kItalic);
    list.SetCellFlags(2, 2, 0);
    list.SetSelectedRowFlags(3, ListStyle::kItalic);
    list.SetItemState(3, LVIS_SELECTED, LVIS_SELECTED);
    const DWORD expected[4][3] = {{4, 4, 4}, {5, 3, 5}, {4, 4, 8}, {6, 6, 6}};
    const auto expectAll = [&](DWORD base) {
        list.m_fonts.clear();
        list.Invalidate();
        list.UpdateWindow();
        for (int row = 0; row < 4; ++row)
            for (int column = 0; column < 3; ++column)
                EXPECT_EQ((list.m_fonts[{row, column}]), expected[row][column] | base)
                    << row << ' ' << column;
    };
    CFont fonts[2]; // a new font of the list is the base of all others from then on
    for (const int large : {0, 1}) {
        fonts[large].CreateFont(large != 0 ? -20 : -11, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0,
                                "Tahoma");
        list.SetFont(&fonts[large]);
        expectAll(32 | large * 16U);
    }
    const HWND window = list.UnsubclassWindow(); // what happens meanwhile goes unseen
    ::SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(fonts[0].m_hObject), 0);
    list.SubclassWindow(window);
    expectAll(32);
    list.SetFont(nullptr);
}

TEST(ListCtrlStyled, EachSetterReachesItsLevelAndState) {
    constexpr DWORD colored = kBack | ListStyle::kHasTextColor;
    CFont large;
    large.CreateFont(-20, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, "Tahoma");
    using List = CListCtrlStyled;
    const std::function<bool(List&)> cases[][2] = {
        {[&](List& l) {
             return l.SetCellFlags(0, 1, colored) && l.SetCellTextColor(0, 1, kRed) &&
                    l.SetCellBackColor(0, 1, kBlue) && l.SetCellFont(0, 1, large);
         },
         [&](List& l) {
             return l.SetSelectedCellFlags(0, 1, colored) &&
                    l.SetSelectedCellTextColor(0, 1, kRed) &&
                    l.SetSelectedCellBackColor(0, 1, kBlue) && l.SetSelectedCellFont(0, 1, large);
         }},
        {[&](List& l) {
             return l.SetRowFlags(0, colored) && l.SetRowTextColor(0, kRed) &&
                    l.SetRowBackColor(0, kBlue) && l.SetRowFont(0, large);
         },
         [&](List& l) {
             return l.SetSelectedRowFlags(0, colored) && l.SetSelectedRowTextColor(0, kRed) &&
                    l.SetSelectedRowBackColor(0, kBlue) && l.SetSelectedRowFont(0, large);
         }},
        {[&](List& l) {
             return l.SetColumnFlags(1, colored) && l.SetColumnTextColor(1, kRed) &&
                    l.SetColumnBackColor(1, kBlue) && l.SetColumnFont(1, large);
         },
         [&](List& l) {
             return l.SetSelectedColumnFlags(1, colored) && l.SetSelectedColumnTextColor(1, kRed) &&
                    l.SetSelectedColumnBackColor(1, kBlue) && l.SetSelectedColumnFont(1, large);
         }},
    };
    for (const auto& states : cases)
        for (const bool ofSelected : {false, true}) {
            SCOPED_TRACE(2 * (&states - cases) + ofSelected);
            Host<Subject> host(1, 2);
            host.m_list.SetCellFlags(0, 1, 0); // which lets the fonts of row and column through
            EXPECT_TRUE(states[ofSelected](host.m_list));
            for (const bool selected : {false, true}) {
                host.m_list.SetItemState(0, selected ? LVIS_SELECTED : 0, LVIS_SELECTED);
                host.m_list.RedrawWindow();
                const bool shown = selected == ofSelected;
                const COLORREF text =
                    selected ? ::GetSysColor(COLOR_HIGHLIGHTTEXT) : host.m_list.GetTextColor();
                const COLORREF back =
                    selected ? ::GetSysColor(COLOR_HIGHLIGHT) : host.m_list.GetTextBkColor();
                EXPECT_EQ(host.m_list.m_text, shown ? kRed : text) << selected;
                EXPECT_EQ(host.m_list.m_back, shown ? kBlue : back) << selected;
                EXPECT_EQ((host.m_list.m_fonts[{0, 1}] & 16U) != 0, shown || !ofSelected);
            }
        }
}

TEST(ListCtrlStyled, StylesGoWithTheirItems) {
    Host<Subject> host(0, 2);
    Subject& list = host.m_list;
    const COLORREF colors[] = {kRed, kGreen, kBlue, kYellow};
    for (int row = 0; row < 4; ++row) {
        list.InsertItem(LVIF_PARAM, 0, nullptr, 0, 0, 0, row); // each before the others
        list.SetRowFlags(0, kBack);
        list.SetRowBackColor(0, colors[row]);
    }
    const auto expect = [&](const std::vector<int>& order) {
        list.Invalidate();
        host.Look();
        for (int row = 0; row < static_cast<int>(order.size()); ++row)
            EXPECT_EQ(host.Back(row, 1), colors[order[row]]) << row;
    };
    expect({3, 2, 1, 0});
    list.DeleteItem(1);
    list.SetItemData(0, 7); // as the new value, too
    expect({3, 1, 0});
    list.SortItems(Ascending, 1);
    expect({0, 1, 3});
    list.SortItems(Ascending, static_cast<DWORD_PTR>(-1));
    expect({3, 1, 0});
}

// ---- Columns ------------------------------------------------------------------------------------

TEST(ListCtrlStyled, StylesGoWithTheirColumns) {
    struct Case {
        int insertAt, deleteAt;
        std::string cells;   ///< the colours of the row after it, as their numbers; -: none
        std::string columns; ///< the same of a row without styles of its own
    };
    // Before it the cells are "0123", the columns "----" but for column 2.
    const Case cases[] = {
        {-1, 3, "012", "--2"},     {-1, 1, "023", "-2-"},     {-1, 0, "023", "-2-"},
        {1, -1, "0-123", "---2-"}, {0, -1, "0-123", "---2-"}, {4, -1, "0123-", "--2--"},
        {2, 2, "0123", "--2-"},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(&test - cases);
        Host<Subject> host(2, 4);
        Subject& list = host.m_list;
        const auto colorOf = [](int column) { return RGB(10 + 60 * column, 100, 200); };
        for (int column = 0; column < 4; ++column) {
            list.SetCellFlags(0, column, kBack);
            list.SetCellBackColor(0, column, colorOf(column));
        }
        list.SetColumnFlags(2, kBack);
        list.SetColumnBackColor(2, colorOf(2));
        if (test.insertAt >= 0)
            list.InsertColumn(test.insertAt, "new", LVCFMT_LEFT, 40);
        if (test.deleteAt >= 0)
            list.DeleteColumn(test.deleteAt);
        const auto colors = [&](int row) {
            std::string found;
            list.Invalidate();
            host.Look();
            for (int i = 0; i < list.GetHeaderCtrl()->GetItemCount(); ++i) {
                const COLORREF back = host.Back(row, i);
                found +=
                    GetGValue(back) == 100 ? static_cast<char>('0' + GetRValue(back) / 60) : '-';
            }
            return found;
        };
        EXPECT_EQ(colors(0), test.cells);
        EXPECT_EQ(colors(1), test.columns);
        std::vector<int> order; // columns that are moved take their looks with them
        for (int i = list.GetHeaderCtrl()->GetItemCount(); i > 0; --i)
            order.push_back(i - 1);
        EXPECT_TRUE(list.SetColumnOrderArray(static_cast<int>(order.size()), order.data()));
        EXPECT_EQ(colors(0), test.cells);
    }
}

// ---- Limits -------------------------------------------------------------------------------------

TEST(ListCtrlStyled, RefusesWhatIsNotThere) {
    Host<Subject> host(2, 2);
    Subject& list = host.m_list;
    for (const int bad : {-1, 2, 3, INT_MAX, INT_MIN}) {
        for (const auto& [item, column] : {std::pair(bad, 0), std::pair(0, bad)})
            EXPECT_FALSE(list.SetCellFlags(item, column, 1) ||
                         list.SetCellTextColor(item, column, 1) ||
                         list.SetSelectedCellFont(item, column, nullptr))
                << bad;
        EXPECT_FALSE(list.SetRowFlags(bad, 1) || list.SetSelectedRowTextColor(bad, 1)) << bad;
        EXPECT_FALSE(list.SetColumnFlags(bad, 1) || list.DeleteColumn(bad)) << bad;
    }
    EXPECT_FALSE(list.SetCellFont(0, 0, reinterpret_cast<HFONT>(0x1234)));
    for (const UINT message :
         {LVM_INSERTITEMA, LVM_INSERTITEMW, LVM_GETITEMA, LVM_GETITEMW, LVM_SETITEMA, LVM_SETITEMW,
          LVM_INSERTCOLUMNA, LVM_INSERTCOLUMNW, LVM_FINDITEMA, LVM_FINDITEMW, LVM_SORTITEMS})
        EXPECT_LE(list.SendMessage(message, 0, 0), 0) << message;

    Host<Subject> virtualHost(0, 2, LVS_REPORT | LVS_OWNERDATA);
    virtualHost.m_list.SetItemCount(5);
    virtualHost.Look();
    EXPECT_FALSE(virtualHost.m_list.SetRowFlags(0, 1));
    LVFINDINFO search = {};
    search.flags = LVFI_PARAM;
    virtualHost.m_list.FindItem(&search);
    EXPECT_EQ(virtualHost.m_searches, 1) << "the parent knows";
    EXPECT_NE(virtualHost.Back(0, 1), kRed) << "painted all the same";
    Host<Subject> oneColumn(3, 1);
    EXPECT_TRUE(oneColumn.m_list.DeleteColumn(0));
    EXPECT_EQ(oneColumn.m_list.GetItemCount(), 0) << "nothing is left to show them";
    EXPECT_FALSE(oneColumn.m_list.DeleteColumn(0));
    CListCtrlStyled unattached;
    EXPECT_FALSE(unattached.SetRowFlags(0, 1) || unattached.SetColumnFlags(0, 1));
}

TEST(ListCtrlStyled, EmptyingAndEndingFreesEverything) {
    const GdiLedger ledger;
    {
        Host<Subject> host(0, 3);
        Subject& list = host.m_list;
        const auto fill = [&](int rows) {
            for (int row = 0; row < rows; ++row) {
                list.InsertItem(LVIF_TEXT | LVIF_PARAM, row, "M", 0, 0, 0, row);
                list.SetCellFlags(row, row % 3, ListStyle::kBold | kBack);
                list.SetSelectedRowFlags(row, ListStyle::kItalic);
            }
            list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
            list.UpdateWindow();
        };
        const auto liveAfter = [&](bool ending) {
            if (ending)
                list.DestroyWindow();
            list.m_fonts.clear();
            host.m_log.clear();
            host.m_log.shrink_to_fit();
            return HeapCount::Now().live;
        };
        long long before = 0;
        for (int i = 0; i < 110; ++i) {
            fill(60);
            EXPECT_TRUE(list.DeleteItem(59) && list.SetItemData(3, 4));
            EXPECT_TRUE(i % 2 != 0 ? list.DeleteAllItems() : list.DeleteColumn(0));
            while (list.DeleteColumn(0))
                continue;
            for (int column = 0; column < 3; ++column)
                list.InsertColumn(column, "column", LVCFMT_LEFT, 20);
            if (i == 9)
                before = liveAfter(false);
        }
        EXPECT_EQ(liveAfter(false), before);
        fill(60);
        EXPECT_LE(liveAfter(true), before) << "at the end of the window, not of the object";
    }
    EXPECT_EQ(ledger.Unreturned() + ledger.Faults(), "");
}

TEST(ListCtrlStyled, PaintsMakeNothing) {
    Host<CListCtrlStyled> host(1, 2);
    CListCtrlStyled& list = host.m_list;
    list.SetRowFlags(0, ListStyle::kBold);
    list.SetSelectedCellFlags(0, 1, ListStyle::kItalic | kBack);
    list.SetColumnFlags(0, ListStyle::kUnderline);
    list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    Canvas canvas(90, 40);
    const auto paint = [&](int times) {
        for (int i = 0; i < times; ++i)
            list.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.dc()), PRF_CLIENT);
    };
    paint(10);
    const long long allocations = HeapCount::Now().made;
    paint(100);
    EXPECT_EQ(HeapCount::Now().made, allocations);
    const GdiLedger ledger;
    paint(100);
    EXPECT_EQ(ledger.Made(), 0);
    EXPECT_EQ(ledger.Faults(), "");
    EXPECT_NE(canvas.Count(::GetSysColor(COLOR_HIGHLIGHT), {0, 0, 90, 40}), 0);
}

} // namespace
