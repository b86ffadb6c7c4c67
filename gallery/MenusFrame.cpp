// SPDX-License-Identifier: MIT
#include "gallery/MenusFrame.h"

#include "gallery/resource.h"

BEGIN_MESSAGE_MAP(CMenusFrame, CSkinnedMenus<CFrameWnd>)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_COMMAND_RANGE(IDM_SHOW_GRID, IDM_SNAP, &CMenusFrame::OnToggle)
    ON_COMMAND_RANGE(IDM_METRIC, IDM_INCHES, &CMenusFrame::OnUnit)
    ON_COMMAND(IDM_PROJECT_CLOSE, &CMenusFrame::OnCloseCommand)
    ON_COMMAND_RANGE(IDM_PROJECT_NEW, IDM_MENUS_LAST, &CMenusFrame::OnOther)
END_MESSAGE_MAP()

BOOL CMenusFrame::CreateFor(CWnd& owner) {
    CRect place;
    owner.GetWindowRect(place);
    const CRect rect(CPoint(place.left + 40, place.top + 60), CSize(380, 300));
    // What is disabled and checked is set here, not by update handlers.
    m_bAutoMenuEnable = FALSE;
    const LPCTSTR windowClass =
        AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW), ::GetSysColorBrush(COLOR_WINDOW),
                            AfxGetApp()->LoadIcon(IDR_GALLERY));
    return Create(windowClass, "Menus", WS_OVERLAPPEDWINDOW | WS_VISIBLE, rect, &owner,
                  MAKEINTRESOURCE(IDR_MENUS_FRAME));
}

int CMenusFrame::OnCreate(LPCREATESTRUCT created) {
    if (CSkinnedMenus<CFrameWnd>::OnCreate(created) == -1)
        return -1;
    // One button for each picture of the bitmap, in its order.
    constexpr UINT buttons[] = {IDM_PROJECT_NEW, IDM_PROJECT_OPEN, IDM_PROJECT_SAVE, IDM_SNAP,
                                IDM_CUT,         IDM_COPY,         IDM_PASTE,        IDM_LAYER_ADD};
    m_images = ::ImageList_LoadImage(::AfxGetInstanceHandle(), MAKEINTRESOURCE(IDB_MENUS_IMAGES),
                                     16, 0, RGB(255, 0, 255), IMAGE_BITMAP, LR_CREATEDIBSECTION);
    if (!m_toolbar.CreateEx(this, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP))
        return -1;
    m_toolbar.SendMessage(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(m_images));
    m_toolbar.SetButtons(buttons, static_cast<int>(sizeof buttons / sizeof buttons[0]));
    m_toolbar.SetSizes(CSize(24, 22), CSize(16, 16));
    SetStates();
    return 0;
}

void CMenusFrame::OnDestroy() {
    CSkinnedMenus<CFrameWnd>::OnDestroy();
    m_toolbar.DestroyWindow(); // before the images it draws
    ::ImageList_Destroy(m_images);
}

void CMenusFrame::SetStates() {
    CMenu* const menu = GetMenu();
    menu->GetSubMenu(0)->SetDefaultItem(IDM_PROJECT_OPEN);
    menu->CheckMenuItem(IDM_SHOW_GRID, MF_CHECKED);
    menu->CheckMenuItem(IDM_SNAP, MF_CHECKED);
    menu->CheckMenuRadioItem(IDM_METRIC, IDM_INCHES, IDM_METRIC, MF_BYCOMMAND);
    for (const UINT id : {IDM_PROJECT_SAVE, IDM_UNDO, IDM_CUT, IDM_COPY})
        menu->EnableMenuItem(id, MF_DISABLED | MF_GRAYED);
}

void CMenusFrame::OnToggle(UINT id) {
    CMenu* const menu = GetMenu();
    const bool checked = (menu->GetMenuState(id, MF_BYCOMMAND) & MF_CHECKED) != 0;
    menu->CheckMenuItem(id, checked ? MF_UNCHECKED : MF_CHECKED);
}

void CMenusFrame::OnUnit(UINT id) {
    GetMenu()->CheckMenuRadioItem(IDM_METRIC, IDM_INCHES, id, MF_BYCOMMAND);
}

void CMenusFrame::OnCloseCommand() {
    PostMessage(WM_CLOSE);
}

void CMenusFrame::OnOther(UINT) {
    // The other commands are there to be looked at.
}
