// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include "controls/ButtonXP.h"

/// A dialog whose buttons wear the toolkit's look: one member a button, connected by DDX_Control.
class CHelloDlg : public CDialog {
public:
    CHelloDlg();

protected:
    void DoDataExchange(CDataExchange* exchange) override;

    afx_msg void OnGreet();
    afx_msg void OnSystem();
    DECLARE_MESSAGE_MAP()

private:
    CButtonXP m_greet;
    CButtonXP m_ok;
    CButtonXP m_cancel;
};
