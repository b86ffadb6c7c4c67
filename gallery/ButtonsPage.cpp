// SPDX-License-Identifier: MIT
#include "gallery/ButtonsPage.h"

#include "gallery/resource.h"

BEGIN_MESSAGE_MAP(CButtonsPage, CGalleryPage)
    ON_BN_CLICKED(IDC_SUBJECT, &CButtonsPage::OnSubjectClicked)
    ON_BN_CLICKED(IDC_MAKE_DEFAULT, &CButtonsPage::OnMakeDefault)
    ON_BN_CLICKED(IDC_MAKE_DISABLED, &CButtonsPage::OnMakeDisabled)
END_MESSAGE_MAP()

CButtonsPage::CButtonsPage() : CGalleryPage(IDD_BUTTONS) {}

LPCTSTR CButtonsPage::GetTitle() const {
    return "Buttons";
}

LPCTSTR CButtonsPage::GetDescription() const {
    return "Push buttons of the dialog, each subclassed by CButtonXP. Move the mouse over them, "
           "press and hold, walk through them with Tab.";
}

void CButtonsPage::DoDataExchange(CDataExchange* exchange) {
    CGalleryPage::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_SUBJECT, m_subject);
    DDX_Control(exchange, IDC_SAMPLE_OK, m_ok);
    DDX_Control(exchange, IDC_SAMPLE_CANCEL, m_cancel);
    DDX_Control(exchange, IDC_SAMPLE_APPLY, m_apply);
}

BOOL CButtonsPage::OnInitDialog() {
    CGalleryPage::OnInitDialog();
    ShowClicks();
    return TRUE;
}

void CButtonsPage::OnSubjectClicked() {
    ++m_clicks;
    ShowClicks();
}

void CButtonsPage::OnMakeDefault() {
    const BOOL subject = IsDlgButtonChecked(IDC_MAKE_DEFAULT) == BST_CHECKED;
    SetDefID(subject ? IDC_SUBJECT : IDC_SAMPLE_OK);
    // An owner-drawn button is not told that it has become or ceased to be the default one.
    m_subject.Invalidate(FALSE);
    m_ok.Invalidate(FALSE);
}

void CButtonsPage::OnMakeDisabled() {
    m_subject.EnableWindow(IsDlgButtonChecked(IDC_MAKE_DISABLED) != BST_CHECKED);
}

void CButtonsPage::ShowClicks() {
    CString text;
    text.Format("Clicked %d times.", m_clicks);
    SetDlgItemText(IDC_CLICKS, text);
}
