// SPDX-License-Identifier: MIT
#include <afxext.h>

#include <algorithm>

#include "BarAccess.h"
#include "afxpriv.h"

IMPLEMENT_DYNAMIC(CDockBar, CControlBar)

BEGIN_MESSAGE_MAP(CDockBar, CControlBar)
    ON_WM_ERASEBKGND()
    ON_MESSAGE(WM_SIZEPARENT, &CDockBar::OnSizeParent)
END_MESSAGE_MAP()

namespace {

constexpr int Unlimited = 32767;

// Rows and columns are the same thing looked at from two sides: "along" runs along the dock bar's
// side of the frame, "across" away from it.

LONG Along(const CSize& size, bool horizontal) {
    return horizontal ? size.cx : size.cy;
}

LONG Across(const CSize& size, bool horizontal) {
    return horizontal ? size.cy : size.cx;
}

} // namespace

CDockBar::CDockBar(bool floating) : m_floating(floating), m_length(Unlimited) {
    SetBorders();
}

CDockBar::~CDockBar() {
    DestroyWindow();
    for (const Row& row : m_rows) {
        for (const Place& place : row) {
            place.bar->m_pDockBar = nullptr;
        }
    }
}

BOOL CDockBar::CreateSide(CFrameWnd* frame, DWORD style, UINT id) {
    m_dwStyle = style;
    return Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, CRect(0, 0, 0, 0),
                  frame, id);
}

int CDockBar::ItemCount() const {
    int count = 0;
    for (const Row& row : m_rows) {
        count += static_cast<int>(row.size());
    }
    return count;
}

CControlBar* CDockBar::FirstBar() const {
    return m_rows.empty() ? nullptr : m_rows.front().front().bar;
}

bool CDockBar::ShowsBars() const {
    return std::any_of(m_rows.begin(), m_rows.end(), [](const Row& row) {
        return std::any_of(row.begin(), row.end(),
                           [](const Place& place) { return afx::BarAccess::IsShown(*place.bar); });
    });
}

// ---- Docking ------------------------------------------------------------------------------------

void CDockBar::Dock(CControlBar* bar, LPCRECT place) {
    if (bar->m_pDockBar != nullptr) {
        bar->m_pDockBar->Remove(bar);
    }
    InsertAt(bar, place);
    bar->m_pDockBar = this;
    if (::GetParent(bar->m_hWnd) != m_hWnd) {
        bar->SetParent(this);
    }
}

void CDockBar::Remove(const CControlBar* bar) {
    for (auto row = m_rows.begin(); row != m_rows.end(); ++row) {
        const auto found = std::find_if(row->begin(), row->end(),
                                        [bar](const Place& place) { return place.bar == bar; });
        if (found != row->end()) {
            row->erase(found);
            if (row->empty()) {
                m_rows.erase(row);
            }
            return;
        }
    }
}

/// Where the row ends across, as it lies on the screen now; 0 when nothing of it is visible.
int CDockBar::RowEnd(const Row& row) const {
    int end = 0;
    for (const Place& place : row) {
        if (afx::BarAccess::IsShown(*place.bar)) {
            CRect rect;
            place.bar->GetWindowRect(rect);
            ScreenToClient(rect);
            end = (std::max)(end, static_cast<int>(Horizontal() ? rect.bottom : rect.right));
        }
    }
    return end;
}

void CDockBar::InsertAt(CControlBar* bar, LPCRECT place) {
    if (place == nullptr) {
        m_rows.push_back({{bar, 0}});
        return;
    }
    CRect rect = *place;
    ScreenToClient(rect);
    const int wish = (std::max)(static_cast<int>(Horizontal() ? rect.left : rect.top), 0);
    const CPoint center = rect.CenterPoint();
    const int across = static_cast<int>(Horizontal() ? center.y : center.x);
    if (across < 0) {
        m_rows.insert(m_rows.begin(), {{bar, wish}});
        return;
    }
    for (Row& row : m_rows) {
        if (across < RowEnd(row)) {
            const auto next = std::find_if(row.begin(), row.end(),
                                           [wish](const Place& p) { return p.wish > wish; });
            row.insert(next, {bar, wish});
            return;
        }
    }
    m_rows.push_back({{bar, wish}});
}

// ---- Layout -------------------------------------------------------------------------------------

/// One layout that is going on.
struct CDockBar::Layout {
    struct Item {
        HWND bar; // the object may be gone once the next one has laid itself out
        CSize size;
        int begin;
    };

    bool horizontal;
    bool commit;
    int length;
    /// The line being filled, and where it begins across.
    std::vector<Item> line;
    int across = 0;
    int longest = 0;

    int LineLength() const {
        int sum = 0;
        for (const Item& item : line) {
            sum += static_cast<int>(Along(item.size, horizontal));
        }
        return sum;
    }
    void EndLine();
    void Place(const Item& item) const;
};

void CDockBar::Layout::Place(const Item& item) const {
    const CPoint at = horizontal ? CPoint(item.begin, across) : CPoint(across, item.begin);
    const CRect place(at, item.size);
    CRect present;
    ::GetWindowRect(item.bar, present);
    ::MapWindowPoints(nullptr, ::GetParent(item.bar),
                      reinterpret_cast<LPPOINT>(static_cast<LPRECT>(present)), 2);
    if (place != present) {
        ::SetWindowPos(item.bar, nullptr, place.left, place.top, place.Width(), place.Height(),
                       SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void CDockBar::Layout::EndLine() {
    int end = length;
    for (auto item = line.rbegin(); item != line.rend(); ++item) {
        // Bars wished too far along the line move back, together with those before them.
        const int size = static_cast<int>(Along(item->size, horizontal));
        item->begin = (std::min)(item->begin, end - size);
        end = item->begin;
    }
    int begin = 0;
    LONG thickness = 0;
    for (Item& item : line) {
        item.begin = (std::max)(item.begin, begin);
        begin = item.begin + static_cast<int>(Along(item.size, horizontal));
        thickness = (std::max)(thickness, Across(item.size, horizontal));
        if (commit) {
            Place(item);
        }
    }
    longest = (std::max)(longest, begin);
    across += static_cast<int>(thickness);
    line.clear();
}

void CDockBar::LayOutRow(Layout& layout, const Row& row) const {
    const DWORD mode = afx::DockedMode(layout.horizontal);
    const auto standsHere = [this](const CControlBar* bar) {
        return std::any_of(m_rows.begin(), m_rows.end(), [bar](const Row& present) {
            return std::any_of(present.begin(), present.end(),
                               [bar](const Place& place) { return place.bar == bar; });
        });
    };
    for (const Place& place : row) {
        if (!standsHere(place.bar) || !afx::BarAccess::IsShown(*place.bar)) {
            continue;
        }
        const HWND window = place.bar->m_hWnd;
        const bool dynamic = (place.bar->m_dwStyle & CBRS_SIZE_DYNAMIC) != 0;
        DWORD barMode = m_floating && dynamic ? LM_HORZ | LM_MRUWIDTH : mode;
        if (layout.commit) {
            barMode |= LM_COMMIT;
        }
        const CSize size = place.bar->CalcDynamicLayout(-1, barMode);
        const int wish = m_floating ? 0 : place.wish;
        const int along = static_cast<int>(Along(size, layout.horizontal));
        if (!layout.line.empty() && layout.LineLength() + along > layout.length) {
            layout.EndLine();
        }
        layout.line.push_back({window, size, wish});
    }
    layout.EndLine();
}

CSize CDockBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    return CalcDynamicLayout(-1, (bStretch ? static_cast<DWORD>(LM_STRETCH) : 0) |
                                     afx::DockedMode(bHorz != FALSE));
}

CSize CDockBar::CalcDynamicLayout(int, DWORD nMode) {
    Layout layout = {};
    layout.horizontal = Horizontal();
    layout.commit = (nMode & LM_COMMIT) != 0;
    layout.length = m_floating ? Unlimited : m_length;
    // A bar that lays itself out may come to change the rows, or to destroy another bar.
    const std::vector<Row> rows = m_rows;
    for (const Row& row : rows) {
        LayOutRow(layout, row);
    }
    const int along = (nMode & LM_STRETCH) != 0 ? Unlimited : layout.longest;
    return layout.horizontal ? CSize(along, layout.across) : CSize(layout.across, along);
}

LRESULT CDockBar::OnSizeParent(WPARAM wParam, LPARAM lParam) {
    const auto& layout = *reinterpret_cast<const AFX_SIZEPARENTPARAMS*>(lParam);
    const CRect& left = static_cast<const CRect&>(layout.rect);
    m_length = Horizontal() ? left.Width() : left.Height();
    return CControlBar::OnSizeParent(wParam, lParam);
}

// ---- Messages -----------------------------------------------------------------------------------

void CDockBar::OnUpdateCmdUI(CFrameWnd*, BOOL) {
    // The bars in it are asked one by one.
}

BOOL CDockBar::OnEraseBkgnd(CDC* pDC) {
    CRect rect;
    pDC->GetClipBox(rect);
    ::FillRect(pDC->m_hDC, rect, ::GetSysColorBrush(COLOR_BTNFACE));
    return TRUE;
}
