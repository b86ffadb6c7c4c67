// SPDX-License-Identifier: MIT
#include "gallery/MenusPage.h"

#include "gallery/MenusFrame.h"
#include "gallery/resource.h"

BEGIN_MESSAGE_MAP(CMenusPage, CSkinnedMenus<CGalleryPage>)
    ON_WM_CONTEXTMENU()
    ON_BN_CLICKED(IDC_MENUS_OPEN, &CMenusPage::OnOpenFrame)
    ON_COMMAND_RANGE(IDM_PROJECT_NEW, IDM_MENUS_LAST, &CMenusPage::OnChosen)
END_MESSAGE_MAP()

CMenusPage::CMenusPage() : CSkinnedMenus<CGalleryPage>(IDD_MENUS) {}

LPCTSTR CMenusPage::GetTitle() const {
    return "Menus";
}

LPCTSTR CMenusPage::GetDescription() const {
    return "Windows whose class derives from CSkinnedMenus: their menus are measured and "
           "painted by the toolkit, frame and shadow included.";
}

void CMenusPage::DoDataExchange(CDataExchange* exchange) {
    CSkinnedMenus<CGalleryPage>::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_MENUS_OPEN, m_open);
}

void CMenusPage::OnOpenFrame() {
    if (::IsWindow(m_frame)) {
        ::SetForegroundWindow(m_frame);
        return;
    }
    auto* const frame = new CMenusFrame; // deletes itself with its window
    m_frame = frame->CreateFor(*GetParent()) ? frame->m_hWnd : nullptr;
}

void CMenusPage::OnContextMenu(CWnd* window, CPoint point) {
    if (window != GetDlgItem(IDC_MENUS_AREA))
        return;
    CMenu menu;
    menu.LoadMenu(IDR_MENUS_CONTEXT);
    CMenu* const popup = menu.GetSubMenu(0);
    popup->SetDefaultItem(IDM_PASTE);
    popup->CheckMenuItem(IDM_SNAP, MF_CHECKED);
    popup->TrackPopupMenu(TPM_LEFTALIGN | TPM_RIGHTBUTTON, point.x, point.y, this);
}

void CMenusPage::OnChosen(UINT id) {
    CString text;
    text.Format("You chose command %u.", id);
    SetDlgItemText(IDC_MENUS_CHOSEN, text);
}
