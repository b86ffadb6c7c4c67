// SPDX-License-Identifier: MIT
#include "gallery/GalleryFrame.h"

#include <iterator>

#include "controls/ButtonXP.h"
#include "draw/DrawUtil.h"
#include "draw/Skin.h"
#include "gallery/resource.h"

namespace {

/// The arrow of a drop-down button sends the negated command.
constexpr UINT ArrowOf(int command) {
    return static_cast<WORD>(-command);
}

class CAboutDlg : public CDialog {
public:
    explicit CAboutDlg(CWnd* parent) : CDialog(IDD_ABOUT, parent) {}

protected:
    void DoDataExchange(CDataExchange* exchange) override {
        CDialog::DoDataExchange(exchange);
        DDX_Control(exchange, IDOK, m_ok);
    }

private:
    CButtonXP m_ok;
};

constexpr int kComboPlace = 2; // among the toolbar's buttons: after the arrows
constexpr int kComboWidth = 140;

constexpr UINT kDockBars[] = {AFX_IDW_DOCKBAR_TOP, AFX_IDW_DOCKBAR_LEFT, AFX_IDW_DOCKBAR_RIGHT,
                              AFX_IDW_DOCKBAR_BOTTOM};

} // namespace

BEGIN_MESSAGE_MAP(CGalleryFrame, CSkinnedMenus<CFrameWnd>)
    ON_WM_CREATE()
    ON_COMMAND(ID_SCENE_PREVIOUS, &CGalleryFrame::OnPreviousScene)
    ON_COMMAND(ID_SCENE_NEXT, &CGalleryFrame::OnNextScene)
    ON_COMMAND_RANGE(ID_SCENE_FIRST, ID_SCENE_LAST, &CGalleryFrame::OnScene)
    ON_UPDATE_COMMAND_UI_RANGE(ID_SCENE_FIRST, ID_SCENE_LAST, &CGalleryFrame::OnUpdateScene)
    ON_CBN_SELENDOK(IDC_SCENE_COMBO, &CGalleryFrame::OnSceneCombo)
    ON_UPDATE_COMMAND_UI(IDC_SCENE_COMBO, &CGalleryFrame::OnUpdateSceneCombo)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_SCENE, &CGalleryFrame::OnUpdateScenePane)
    ON_COMMAND(ID_EDIT_COPY, &CGalleryFrame::OnCopyPicture)
    ON_COMMAND(ID_VIEW_SKIN, &CGalleryFrame::OnSkin)
    ON_UPDATE_COMMAND_UI(ID_VIEW_SKIN, &CGalleryFrame::OnUpdateSkin)
    ON_COMMAND(ID_VIEW_SCHEME, &CGalleryFrame::OnNextScheme)
    ON_COMMAND(ArrowOf(ID_VIEW_SCHEME), &CGalleryFrame::OnSchemeMenu)
    ON_COMMAND_RANGE(ID_SCHEME_FIRST, ID_SCHEME_LAST, &CGalleryFrame::OnScheme)
    ON_UPDATE_COMMAND_UI_RANGE(ID_SCHEME_FIRST, ID_SCHEME_LAST, &CGalleryFrame::OnUpdateScheme)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_SCHEME, &CGalleryFrame::OnUpdateSchemePane)
    ON_COMMAND_RANGE(ID_DOCK_FIRST, ID_DOCK_LAST, &CGalleryFrame::OnDock)
    ON_UPDATE_COMMAND_UI_RANGE(ID_DOCK_FIRST, ID_DOCK_LAST, &CGalleryFrame::OnUpdateDock)
    ON_COMMAND(ID_APP_ABOUT, &CGalleryFrame::OnAbout)
END_MESSAGE_MAP()

// ---- The window ---------------------------------------------------------------------------------

BOOL CGalleryFrame::CreateGallery() {
    constexpr DWORD style = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;
    if (!LoadFrame(IDR_GALLERY_FRAME, style))
        return FALSE;
    RecalcLayout();
    CenterWindow();
    return TRUE;
}

int CGalleryFrame::OnCreate(LPCREATESTRUCT created) {
    if (CSkinnedMenus<CFrameWnd>::OnCreate(created) == -1 || !CreateToolBar() || !CreateStatusBar())
        return -1;
    m_toolBar.EnableDocking(CBRS_ALIGN_ANY);
    EnableDocking(CBRS_ALIGN_ANY);
    DockControlBar(&m_toolBar);
    AddSceneItems();
    return 0;
}

BOOL CGalleryFrame::OnCreateClient(LPCREATESTRUCT, CCreateContext*) {
    return m_contents.CreateIn(*this);
}

BOOL CGalleryFrame::CreateToolBar() {
    if (!m_toolBar.CreateEx(this, TBSTYLE_FLAT,
                            WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_GRIPPER | CBRS_TOOLTIPS |
                                CBRS_FLYBY | CBRS_SIZE_DYNAMIC) ||
        !m_toolBar.LoadToolBar(IDR_GALLERY_FRAME))
        return FALSE;
    m_toolBar.SetWindowText("Toolbar");
    m_toolBar.SetButtonStyle(m_toolBar.CommandToIndex(ID_VIEW_SCHEME), TBSTYLE_DROPDOWN);

    if (!m_sceneCombo.Create(WS_CHILD | WS_TABSTOP | CBS_DROPDOWNLIST, CRect(0, 0, kComboWidth, 22),
                             &m_toolBar, IDC_SCENE_COMBO))
        return FALSE;
    for (int scene = 0; scene < m_contents.GetSceneCount(); ++scene)
        m_sceneCombo.AddString(m_contents.GetSceneTitle(scene));
    m_sceneCombo.SetVisibleRows(m_contents.GetSceneCount());
    return m_toolBar.InsertControl(kComboPlace, m_sceneCombo);
}

BOOL CGalleryFrame::CreateStatusBar() {
    constexpr UINT panes[] = {ID_SEPARATOR, ID_INDICATOR_SCENE, ID_INDICATOR_SCHEME,
                              ID_INDICATOR_CAPS, ID_INDICATOR_NUM};
    if (!m_statusBar.Create(this) ||
        !m_statusBar.SetIndicators(panes, static_cast<int>(std::size(panes))))
        return FALSE;
    // What the other panes leave, however little that is.
    m_statusBar.SetPaneInfo(0, ID_SEPARATOR, m_statusBar.GetPaneStyle(0), 0);
    return TRUE;
}

/// Fills the Scene menu with one item a scene, above its last separator.
void CGalleryFrame::AddSceneItems() {
    CMenu* const scenes = GetMenu()->GetSubMenu(0);
    for (int scene = 0; scene < m_contents.GetSceneCount(); ++scene) {
        CString text(m_contents.GetSceneTitle(scene));
        if (scene < 9)
            text.AppendFormat("\tCtrl+%d", scene + 1);
        scenes->InsertMenu(scenes->GetMenuItemCount() - 2, MF_BYPOSITION | MF_STRING,
                           ID_SCENE_FIRST + scene, text);
    }
    scenes->SetDefaultItem(ID_SCENE_NEXT);
}

void CGalleryFrame::RecalcLayout(BOOL notify) {
    CSkinnedMenus<CFrameWnd>::RecalcLayout(notify);
    if (m_contents.m_hWnd == nullptr || IsIconic())
        return;
    CRect place;
    m_contents.GetWindowRect(place);
    const CSize missing = m_contents.GetNaturalSize() - place.Size();
    if (missing == CSize(0, 0))
        return;
    CRect window;
    GetWindowRect(window);
    // Lays out once more by WM_SIZE; then nothing is missing.
    SetWindowPos(nullptr, 0, 0, window.Width() + missing.cx, window.Height() + missing.cy,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

BOOL CGalleryFrame::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handler) {
    // Not by the virtual function: a dialog hands commands that it has no handler for to its parent.
    if (m_contents.m_hWnd != nullptr &&
        m_contents.GetPage().CCmdTarget::OnCmdMsg(id, code, extra, handler))
        return TRUE;
    return CSkinnedMenus<CFrameWnd>::OnCmdMsg(id, code, extra, handler);
}

// ---- Scenes -------------------------------------------------------------------------------------

void CGalleryFrame::OnPreviousScene() {
    m_contents.ShowScene(m_contents.GetScene() - 1);
}

void CGalleryFrame::OnNextScene() {
    m_contents.ShowScene(m_contents.GetScene() + 1);
}

void CGalleryFrame::OnScene(UINT id) {
    m_contents.ShowScene(static_cast<int>(id) - ID_SCENE_FIRST);
}

void CGalleryFrame::OnUpdateScene(CCmdUI* item) {
    item->SetRadio(static_cast<int>(item->m_nID) - ID_SCENE_FIRST == m_contents.GetScene());
}

void CGalleryFrame::OnSceneCombo() {
    const int chosen = m_sceneCombo.GetCurSel();
    if (chosen != CB_ERR)
        m_contents.ShowScene(chosen);
}

void CGalleryFrame::OnUpdateSceneCombo(CCmdUI*) {
    if (!m_sceneCombo.GetDroppedState() && m_sceneCombo.GetCurSel() != m_contents.GetScene())
        m_sceneCombo.SetCurSel(m_contents.GetScene());
}

void CGalleryFrame::OnUpdateScenePane(CCmdUI* item) {
    CString text;
    text.Format("Scene %d of %d", m_contents.GetScene() + 1, m_contents.GetSceneCount());
    item->SetText(text);
}

void CGalleryFrame::OnCopyPicture() {
    CRect rect;
    m_contents.GetWindowRect(rect);
    const HBITMAP picture = ::CopyScreenToBitmap(rect);
    bool taken = false;
    if (picture != nullptr && OpenClipboard()) {
        ::EmptyClipboard();
        taken = ::SetClipboardData(CF_BITMAP, picture) != nullptr; // the clipboard's from now on
        ::CloseClipboard();
    }
    if (!taken) {
        ::DeleteObject(picture);
        ::MessageBeep(MB_ICONEXCLAMATION);
    }
}

// ---- The look -----------------------------------------------------------------------------------

namespace {

BOOL CALLBACK SwitchSkin(HWND window, LPARAM enabled) {
    tint::EnableSkin(window, enabled != FALSE);
    return TRUE;
}

void SwitchSkinOfAll(HWND window, LPARAM enabled) {
    ::EnumChildWindows(window, &SwitchSkin, enabled);
    SwitchSkin(window, enabled);
}

} // namespace

void CGalleryFrame::OnSkin() {
    const LPARAM enabled = !tint::IsSkinEnabled(m_hWnd);
    SwitchSkinOfAll(m_hWnd, enabled);
    if (!IsChild(&m_toolBar)) // it floats
        SwitchSkinOfAll(m_toolBar, enabled);
}

void CGalleryFrame::OnUpdateSkin(CCmdUI* item) {
    item->SetCheck(tint::IsSkinEnabled(m_hWnd));
}

void CGalleryFrame::ChooseScheme(int scheme) {
    m_scheme = scheme % static_cast<int>(automation::ColorSchemes().size());
    m_colors.reset(); // the user's own colours are what comes back at the end
    m_colors.emplace(automation::ColorSchemes()[m_scheme].colors);
}

void CGalleryFrame::OnNextScheme() {
    ChooseScheme(m_scheme + 1);
}

void CGalleryFrame::OnSchemeMenu() {
    CMenu menu;
    menu.LoadMenu(IDR_SCHEMES);
    m_toolBar.TrackDropDownMenu(ID_VIEW_SCHEME, menu.GetSubMenu(0)->m_hMenu);
}

void CGalleryFrame::OnScheme(UINT id) {
    ChooseScheme(static_cast<int>(id) - ID_SCHEME_FIRST);
}

void CGalleryFrame::OnUpdateScheme(CCmdUI* item) {
    item->SetRadio(static_cast<int>(item->m_nID) - ID_SCHEME_FIRST == m_scheme);
}

void CGalleryFrame::OnUpdateSchemePane(CCmdUI* item) {
    CString strings;
    CString name; // stands where other commands have their tool tip
    strings.LoadString(ID_SCHEME_FIRST + m_scheme);
    AfxExtractSubString(name, strings, 1);
    item->SetText(name);
}

void CGalleryFrame::OnDock(UINT id) {
    ShowControlBar(&m_toolBar, TRUE, FALSE);
    DockControlBar(&m_toolBar, kDockBars[id - ID_DOCK_FIRST]);
}

void CGalleryFrame::OnUpdateDock(CCmdUI* item) {
    const CWnd* const place = m_toolBar.GetParent();
    const UINT dockBar = kDockBars[item->m_nID - ID_DOCK_FIRST];
    item->SetRadio(place != nullptr && place->GetDlgCtrlID() == static_cast<int>(dockBar));
}

void CGalleryFrame::OnAbout() {
    CAboutDlg(this).DoModal();
}
