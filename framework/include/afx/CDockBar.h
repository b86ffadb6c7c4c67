// SPDX-License-Identifier: MIT
/// @file
/// CDockBar: the place along a side of a frame where bars are docked.
#pragma once

#include "afx/CControlBar.h"

#include <vector>

/// Holds docked bars in rows along its side of the frame (in columns at the left and the right).
///
/// A bar stays at the place along the row where it was dropped as long as there is room. When the
/// row becomes too short, bars move together, and those that still do not fit go to further rows
/// until there is room again.
class CDockBar : public CControlBar {
    DECLARE_DYNAMIC(CDockBar)

public:
    /// @param floating the dock bar fills a mini frame.
    explicit CDockBar(bool floating = false);
    ~CDockBar() override;

    /// @param style CBRS_ALIGN_ side. @param id AFX_IDW_DOCKBAR_ identifier.
    BOOL CreateSide(CFrameWnd* frame, DWORD style, UINT id);
    /// Takes a bar from where it is.
    /// @param place in screen coordinates, where it was dropped; null for a row of its own.
    void Dock(CControlBar* bar, LPCRECT place);
    /// Forgets a bar; its window stays where it is.
    void Remove(const CControlBar* bar);
    /// Whether a bar that stands here is visible.
    bool ShowsBars() const;
    bool IsFloatingSite() const { return m_floating; }
    /// The first bar; null when there is none.
    CControlBar* FirstBar() const;

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    CSize CalcDynamicLayout(int nLength, DWORD nMode) override;
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);

    DECLARE_MESSAGE_MAP()

private:
    struct Place {
        CControlBar* bar;
        /// Where along the row the bar begins if there is room, in pixels.
        int wish;
    };
    using Row = std::vector<Place>;
    struct Layout;

    int ItemCount() const override;
    LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
    bool Horizontal() const { return (m_dwStyle & CBRS_ORIENT_HORZ) != 0; }
    void InsertAt(CControlBar* bar, LPCRECT place);
    void LayOutRow(Layout& layout, const Row& row) const;
    int RowEnd(const Row& row) const;

    const bool m_floating;
    /// Length of the rows, given by the frame.
    int m_length;
    std::vector<Row> m_rows;
};
