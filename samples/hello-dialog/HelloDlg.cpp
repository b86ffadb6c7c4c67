// SPDX-License-Identifier: MIT
#include "HelloDlg.h"

#include "draw/Skin.h"
#include "resource.h"

BEGIN_MESSAGE_MAP(CHelloDlg, CDialog)
    ON_BN_CLICKED(IDC_GREET, &CHelloDlg::OnGreet)
    ON_BN_CLICKED(IDC_SYSTEM, &CHelloDlg::OnSystem)
END_MESSAGE_MAP()

CHelloDlg::CHelloDlg() : CDialog(IDD_HELLO) {}

void CHelloDlg::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_GREET, m_greet);
    DDX_Control(exchange, IDOK, m_ok);
    DDX_Control(exchange, IDCANCEL, m_cancel);
}

void CHelloDlg::OnGreet() {
    SetDlgItemText(IDC_GREETING, "Hello!");
}

void CHelloDlg::OnSystem() {
    const bool skinned = IsDlgButtonChecked(IDC_SYSTEM) != BST_CHECKED;
    for (const CButtonXP* button : {&m_greet, &m_ok, &m_cancel})
        tint::EnableSkin(button->m_hWnd, skinned);
}
