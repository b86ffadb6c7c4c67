// SPDX-License-Identifier: MIT
#pragma once

#include "controls/ListCtrlStyled.h"
#include "gallery/GalleryPage.h"

/// Scene "List": a list with styles for cells, rows and columns.
class CListPage : public CGalleryPage {
public:
    CListPage();

    LPCTSTR GetTitle() const override;
    LPCTSTR GetDescription() const override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    afx_msg void OnSysColorChange();
    afx_msg void OnColumnClicked(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()

private:
    void StyleColumns();
    void StyleRows();
    void StyleCells();
    void StyleSelection();

    CListCtrlStyled m_list; ///< takes over the list of the dialog template
    bool m_descending = false;
};
