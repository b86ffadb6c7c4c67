// SPDX-License-Identifier: MIT
// CListCtrlStyled: the messages and notifications that touch items, columns and parameters.
#include "controls/ListCtrlStyled.h"

namespace {

/// A sort under way: the caller's comparison, to be given the caller's values.
struct SortRequest {
    tint::ListItemRecords& records;
    PFNLVCOMPARE compare;
    LPARAM data;

    LPARAM ValueOf(LPARAM key) const {
        const tint::ListItemRecord* const record = records.Find(key);
        return record != nullptr ? record->value : key;
    }
};

int CALLBACK CompareValues(LPARAM left, LPARAM right, LPARAM request) {
    const auto& sort = *reinterpret_cast<const SortRequest*>(request);
    return sort.compare(sort.ValueOf(left), sort.ValueOf(right), sort.data);
}

/// A request for the parameter of an item.
LVITEM ParameterOf(int item) {
    LVITEM request = {};
    request.mask = LVIF_PARAM;
    request.iItem = item;
    return request;
}

} // namespace

void CListCtrlStyled::PreSubclassWindow() {
    CListCtrl::PreSubclassWindow();
    m_hasBaseFont = false; // the list's font may have changed unseen
    // Messages do not come here yet: these are answered by the list view itself.
    if ((GetStyle() & LVS_OWNERDATA) != 0)
        return;
    const int count = GetItemCount();
    for (int i = 0; i < count; ++i) {
        LVITEM item = ParameterOf(i);
        GetItem(&item);
        if (m_records.Find(item.lParam) != nullptr)
            continue; // the list was here before
        item.lParam = m_records.Add(item.lParam);
        SetItem(&item);
    }
}

void CListCtrlStyled::OnDestroy() {
    SendMessage(LVM_DELETEALLITEMS); // while the parent's notifications still find the records
    CListCtrl::OnDestroy();
    m_records.Clear();
    m_columns.clear();
    m_plainCell = {};
    m_fonts = {};
    m_hasBaseFont = false;
    m_paintsSelection = false;
}

LPARAM CListCtrlStyled::KeyOf(int item) {
    LVITEM request = ParameterOf(item);
    if (m_hWnd == nullptr || !DefWindowProc(LVM_GETITEM, 0, reinterpret_cast<LPARAM>(&request)))
        return 0;
    return request.lParam;
}

// ---- Items --------------------------------------------------------------------------------------

// The structures of the A and W forms of a message differ in the text only, which is passed on.

LRESULT CListCtrlStyled::OnInsertItem(WPARAM wParam, LPARAM lParam) {
    const UINT message = GetCurrentMessage()->message;
    if (lParam == 0)
        return -1;
    if ((GetStyle() & LVS_OWNERDATA) != 0)
        return Default();
    LVITEM item = *reinterpret_cast<const LVITEM*>(lParam);
    const LPARAM key = m_records.Add((item.mask & LVIF_PARAM) != 0 ? item.lParam : 0);
    item.mask |= LVIF_PARAM;
    item.lParam = key;
    const LRESULT index = DefWindowProc(message, wParam, reinterpret_cast<LPARAM>(&item));
    if (static_cast<int>(index) < 0)
        m_records.Remove(key);
    return index;
}

LRESULT CListCtrlStyled::OnGetItem(WPARAM, LPARAM lParam) {
    if (lParam == 0)
        return FALSE;
    const LRESULT found = Default();
    auto& item = *reinterpret_cast<LVITEM*>(lParam);
    if (found != FALSE && (item.mask & LVIF_PARAM) != 0)
        GiveCallersValue(item.lParam);
    return found;
}

LRESULT CListCtrlStyled::OnSetItem(WPARAM wParam, LPARAM lParam) {
    const UINT message = GetCurrentMessage()->message;
    if (lParam == 0)
        return FALSE;
    LVITEM item = *reinterpret_cast<const LVITEM*>(lParam);
    const LPARAM key = (item.mask & LVIF_PARAM) != 0 ? KeyOf(item.iItem) : 0;
    if (m_records.Find(key) == nullptr)
        return DefWindowProc(message, wParam, lParam);

    if (item.iSubItem != 0 || m_records.Find(key)->value == item.lParam) {
        item.lParam = key; // for the list view, too, nothing changes
        return DefWindowProc(message, wParam, reinterpret_cast<LPARAM>(&item));
    }
    // Under a key of its own, so that for the list view the parameter changes and it says so; what
    // it says of the former value still finds the former record.
    const LPARAM newKey = m_records.Add(item.lParam);
    item.lParam = newKey;
    m_records.MoveStyles(key, newKey);
    const LRESULT done = DefWindowProc(message, wParam, reinterpret_cast<LPARAM>(&item));
    if (done == FALSE)
        m_records.MoveStyles(newKey, key);
    else if (m_hiddenKey == key)
        m_hiddenKey = newKey; // the item that is being painted just now
    m_records.Remove(done != FALSE ? key : newKey);
    return done;
}

LRESULT CListCtrlStyled::OnDeleteItem(WPARAM wParam, LPARAM) {
    const LPARAM key = KeyOf(static_cast<int>(wParam));
    const LRESULT deleted = Default();
    if (deleted != FALSE)
        m_records.Remove(key); // after the parent has been told, which may ask for the value
    return deleted;
}

LRESULT CListCtrlStyled::OnDeleteAllItems(WPARAM, LPARAM) {
    // In one go: deleting the first item as often as there are items takes quadratic time.
    const LRESULT deleted = Default();
    if (GetItemCount() == 0) // the parent may have inserted one while it was told
        m_records.Clear();
    return deleted;
}

LRESULT CListCtrlStyled::OnFindItem(WPARAM wParam, LPARAM lParam) {
    if (lParam == 0)
        return -1;
    const auto& search = *reinterpret_cast<const LVFINDINFO*>(lParam);
    if ((search.flags & LVFI_PARAM) == 0 || (GetStyle() & LVS_OWNERDATA) != 0)
        return Default(); // a virtual list asks its parent
    const int count = GetItemCount();
    const int start = static_cast<int>(wParam);
    for (int item = start < 0 ? 0 : start; item < count; ++item) {
        if (item == start)
            continue;
        const tint::ListItemRecord* const record = m_records.Find(KeyOf(item));
        if (record != nullptr && record->value == search.lParam)
            return item;
    }
    return -1;
}

LRESULT CListCtrlStyled::OnSortItems(WPARAM wParam, LPARAM lParam) {
    if (lParam == 0)
        return FALSE;
    // Of this sort alone, so that a comparison may sort another list.
    const SortRequest request = {m_records, reinterpret_cast<PFNLVCOMPARE>(lParam),
                                 static_cast<LPARAM>(wParam)};
    return DefWindowProc(LVM_SORTITEMS, reinterpret_cast<WPARAM>(&request),
                         reinterpret_cast<LPARAM>(&CompareValues));
}

// ---- Columns ------------------------------------------------------------------------------------

LRESULT CListCtrlStyled::OnInsertColumn(WPARAM, LPARAM lParam) {
    if (lParam == 0)
        return -1;
    const LRESULT column = Default();
    const auto index = static_cast<int>(column);
    if (index >= 0) {
        if (static_cast<std::size_t>(index) < m_columns.size())
            m_columns.insert(m_columns.begin() + index, nullptr);
        m_records.InsertColumn(index);
    }
    return column;
}

LRESULT CListCtrlStyled::OnDeleteColumn(WPARAM wParam, LPARAM lParam) {
    const auto column = static_cast<int>(wParam);
    if (!HasColumn(column))
        return FALSE;
    // An item without any column has nothing to show.
    const bool last = column == 0 && ColumnCount() < 2;
    if (last)
        DeleteAllItems();
    const LRESULT deleted = DefWindowProc(LVM_DELETECOLUMN, wParam, lParam);
    if (deleted != FALSE) {
        if (static_cast<std::size_t>(column) < m_columns.size())
            m_columns.erase(m_columns.begin() + column);
        m_records.DeleteColumn(column);
    }
    return deleted;
}

// ---- Notifications ------------------------------------------------------------------------------

void CListCtrlStyled::GiveCallersValue(LPARAM& parameter) {
    if (const tint::ListItemRecord* const record = m_records.Find(parameter))
        parameter = record->value;
}

void CListCtrlStyled::GiveCallersValue(NMHDR& notification) {
    switch (notification.code) {
    case LVN_ITEMCHANGING:
    case LVN_ITEMCHANGED:
    case LVN_INSERTITEM:
    case LVN_DELETEITEM:
    case LVN_BEGINDRAG:
    case LVN_BEGINRDRAG:
    case LVN_ITEMACTIVATE:
    case LVN_HOTTRACK:
    case NM_CLICK:
    case NM_DBLCLK:
    case NM_RCLICK:
    case NM_RDBLCLK:
        GiveCallersValue(reinterpret_cast<NMLISTVIEW&>(notification).lParam);
        break;
    case LVN_GETDISPINFOA:
    case LVN_GETDISPINFOW:
    case LVN_SETDISPINFOA:
    case LVN_SETDISPINFOW:
    case LVN_BEGINLABELEDITA:
    case LVN_BEGINLABELEDITW:
    case LVN_ENDLABELEDITA:
    case LVN_ENDLABELEDITW:
        GiveCallersValue(reinterpret_cast<NMLVDISPINFO&>(notification).item.lParam);
        break;
    case LVN_GETINFOTIPA:
    case LVN_GETINFOTIPW:
        GiveCallersValue(reinterpret_cast<NMLVGETINFOTIP&>(notification).lParam);
        break;
    default:
        break;
    }
}

BOOL CListCtrlStyled::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message == WM_NOTIFY) {
        auto& notification = *reinterpret_cast<NMHDR*>(lParam);
        if (m_quiet &&
            (notification.code == LVN_ITEMCHANGING || notification.code == LVN_ITEMCHANGED)) {
            if (pResult != nullptr)
                *pResult = FALSE; // no objection
            return TRUE;
        }
        GiveCallersValue(notification);
    }
    return CListCtrl::OnChildNotify(message, wParam, lParam, pResult);
}
