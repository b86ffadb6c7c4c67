// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

class CComboBoxXP;

/// The edit field of a CComboBoxXP: lets the mouse over the text count as over the combo box.  The combo
/// box has one as a member and attaches it; outside of one it is a plain edit control.
class CComboEditXP : public CEdit {
protected:
    afx_msg void OnKillFocus(CWnd* newFocus);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    DECLARE_MESSAGE_MAP()

private:
    CComboBoxXP* ComboBox() const;
};
