// SPDX-License-Identifier: MIT
#include "afx/ToolBarLayout.h"

#include <afxext.h>

#include <algorithm>

#include "BarAccess.h"

namespace {

constexpr int Unlimited = 32767;
// The width of a separator that does not give its own.
constexpr int SeparatorWidth = 8;

bool IsHidden(const TBBUTTON& button) {
    return (button.fsState & TBSTATE_HIDDEN) != 0;
}

/// A gap between groups; one with a command keeps the place of a child window.
bool IsGap(const TBBUTTON& button) {
    return (button.fsStyle & TBSTYLE_SEP) != 0 && button.idCommand == 0;
}

int SeparatorWidthOf(const TBBUTTON& button) {
    return button.iBitmap > 0 ? button.iBitmap : SeparatorWidth;
}

bool Wraps(const TBBUTTON& button) {
    return (button.fsState & TBSTATE_WRAP) != 0;
}

} // namespace

afx::ToolBarLayout::ToolBarLayout()
    : m_bDelayedButtonLayout(TRUE), m_sizeImage(16, 15), m_floatingWidth(Unlimited) {}

// ---- Asking the control -------------------------------------------------------------------------

afx::ToolBarLayout::Buttons afx::ToolBarLayout::FetchButtons() {
    const auto count = static_cast<std::size_t>(DefWindowProc(TB_BUTTONCOUNT, 0, 0));
    Buttons buttons(count);
    for (std::size_t i = 0; i < count; ++i) {
        DefWindowProc(TB_GETBUTTON, i, reinterpret_cast<LPARAM>(&buttons[i]));
    }
    return buttons;
}

CSize afx::ToolBarLayout::ButtonSize() {
    const LRESULT size = DefWindowProc(TB_GETBUTTONSIZE, 0, 0);
    return CSize(LOWORD(size), HIWORD(size));
}

int afx::ToolBarLayout::WidthOf(const Buttons& buttons, std::size_t index) {
    if ((buttons[index].fsStyle & TBSTYLE_SEP) != 0) {
        return SeparatorWidthOf(buttons[index]);
    }
    CRect rect;
    DefWindowProc(TB_GETITEMRECT, index, reinterpret_cast<LPARAM>(static_cast<LPRECT>(rect)));
    return rect.IsRectEmpty() ? static_cast<int>(ButtonSize().cx) : rect.Width();
}

// ---- Wrapping -----------------------------------------------------------------------------------

namespace {

/// The button that ends the row when the one at `next` does not fit any more: the last gap of the
/// row, so that groups stay together, else the visible button before.
std::size_t RowEnd(const std::vector<TBBUTTON>& buttons, std::size_t begin, std::size_t next) {
    std::size_t last = begin;
    for (std::size_t i = next; i-- > begin;) {
        if (IsHidden(buttons[i])) {
            continue;
        }
        if (IsGap(buttons[i])) {
            return i;
        }
        last = (std::max)(last, i);
    }
    return last;
}

} // namespace

void afx::ToolBarLayout::Wrap(Buttons& buttons, int width) {
    std::vector<int> widths(buttons.size());
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        widths[i] = WidthOf(buttons, i);
        buttons[i].fsState &= static_cast<BYTE>(~TBSTATE_WRAP);
    }
    std::size_t begin = 0;
    int x = 0;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        if (IsHidden(buttons[i])) {
            continue;
        }
        // A gap may hang over the end of a row: nothing of it is seen there.
        if (!IsGap(buttons[i]) && x > 0 && x + widths[i] > width) {
            const std::size_t end = RowEnd(buttons, begin, i);
            buttons[end].fsState |= TBSTATE_WRAP;
            begin = end + 1;
            i = end;
            x = 0;
            continue;
        }
        x += widths[i];
    }
}

void afx::ToolBarLayout::WrapToHeight(Buttons& buttons, int height) {
    // The wider the rows, the fewer there are: the narrowest that is low enough is searched.
    Wrap(buttons, Unlimited);
    int tooNarrow = 0;
    int wide = static_cast<int>(Measure(buttons).cx);
    while (wide - tooNarrow > 1) {
        const int middle = tooNarrow + (wide - tooNarrow) / 2;
        Wrap(buttons, middle);
        (Measure(buttons).cy <= height ? wide : tooNarrow) = middle;
    }
    Wrap(buttons, wide);
}

CSize afx::ToolBarLayout::Measure(const Buttons& buttons) {
    const int rowHeight = static_cast<int>(ButtonSize().cy);
    int x = 0;
    int y = 0;
    int widest = 0;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        if (IsHidden(buttons[i])) {
            continue;
        }
        const bool gap = IsGap(buttons[i]);
        const bool wraps = Wraps(buttons[i]);
        x += gap && wraps ? 0 : WidthOf(buttons, i);
        widest = (std::max)(widest, x);
        if (wraps) {
            // The control leaves two thirds of a separator's width between the two rows.
            const bool separator = (buttons[i].fsStyle & TBSTYLE_SEP) != 0;
            y += rowHeight + (separator ? SeparatorWidthOf(buttons[i]) * 2 / 3 : 0);
            x = 0;
        }
    }
    return CSize(widest, y + rowHeight);
}

void afx::ToolBarLayout::Commit(const Buttons& buttons) {
    bool changed = false;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        TBBUTTONINFO info = {};
        info.cbSize = sizeof(info);
        info.dwMask = TBIF_BYINDEX | TBIF_STATE;
        if (DefWindowProc(TB_GETBUTTONINFO, i, reinterpret_cast<LPARAM>(&info)) == -1) {
            continue;
        }
        // Only this one bit: the other states may be what a derived class made of them.
        const BYTE wrap = buttons[i].fsState & TBSTATE_WRAP;
        if ((info.fsState & TBSTATE_WRAP) != wrap) {
            info.fsState = static_cast<BYTE>((info.fsState & ~TBSTATE_WRAP) | wrap);
            DefWindowProc(TB_SETBUTTONINFO, i, reinterpret_cast<LPARAM>(&info));
            changed = true;
        }
    }
    if (changed) {
        DefWindowProc(TB_AUTOSIZE, 0, 0);
        Invalidate();
    }
}

// ---- Layout -------------------------------------------------------------------------------------

CSize afx::ToolBarLayout::LayOut(int length, DWORD mode) {
    const bool horizontal = (mode & LM_HORZ) != 0;
    const bool dynamic = (m_dwStyle & CBRS_SIZE_DYNAMIC) != 0;
    const bool asFloating = dynamic && (mode & LM_MRUWIDTH) != 0;
    CRect inset(0, 0, 0, 0);
    CalcInsideRect(inset, horizontal);
    const CSize borders(inset.left - inset.right, inset.top - inset.bottom);

    Buttons buttons = FetchButtons();
    if ((m_dwStyle & CBRS_SIZE_FIXED) == 0) {
        if (asFloating) {
            Wrap(buttons, m_floatingWidth);
        } else if ((mode & LM_HORZDOCK) != 0) {
            Wrap(buttons, Unlimited);
        } else if ((mode & LM_VERTDOCK) != 0) {
            Wrap(buttons, 0);
        } else if (dynamic && length != -1 && (mode & LM_LENGTHY) != 0) {
            WrapToHeight(buttons, length - static_cast<int>(borders.cy));
        } else if (dynamic && length != -1 && (mode & LM_STRETCH) == 0) {
            Wrap(buttons, length - static_cast<int>(borders.cx));
        } else {
            Wrap(buttons, horizontal ? Unlimited : 0);
        }
    }
    CSize size = buttons.empty() ? ButtonSize() : Measure(buttons);
    if ((mode & LM_COMMIT) != 0) {
        const bool docked = (mode & (LM_HORZDOCK | LM_VERTDOCK)) != 0;
        if (dynamic && !docked) {
            m_floatingWidth = static_cast<int>(size.cx);
        }
        m_bDelayedButtonLayout = FALSE;
        Commit(buttons);
    }
    size += borders;
    const CSize stretched =
        CControlBar::CalcFixedLayout((mode & LM_STRETCH) != 0, static_cast<BOOL>(horizontal));
    return CSize((std::max)(size.cx, stretched.cx), (std::max)(size.cy, stretched.cy));
}

CSize afx::ToolBarLayout::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    return LayOut(-1, (bStretch ? static_cast<DWORD>(LM_STRETCH) : 0) |
                          (bHorz ? static_cast<DWORD>(LM_HORZ) : 0));
}

CSize afx::ToolBarLayout::CalcDynamicLayout(int nLength, DWORD nMode) {
    return LayOut(nLength, nMode);
}

void afx::ToolBarLayout::Layout() {
    m_bDelayedButtonLayout = FALSE;
    const bool floating = (m_dwStyle & CBRS_FLOATING) != 0 && (m_dwStyle & CBRS_SIZE_DYNAMIC) != 0;
    const DWORD mode =
        floating ? LM_HORZ | LM_MRUWIDTH : afx::DockedMode((m_dwStyle & CBRS_ORIENT_HORZ) != 0);
    CalcDynamicLayout(-1, mode | LM_COMMIT);
}
