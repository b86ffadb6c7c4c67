// SPDX-License-Identifier: MIT
#include "gallery/GalleryDlg.h"

#include "gallery/BitmapButtonsPage.h"
#include "gallery/ButtonsPage.h"
#include "gallery/ColorsPage.h"
#include "gallery/CombosPage.h"
#include "gallery/GalleryLog.h"
#include "gallery/GlyphsPage.h"
#include "gallery/LinksPage.h"
#include "gallery/ListPage.h"
#include "gallery/MenusPage.h"
#include "gallery/PicturesPage.h"
#include "gallery/RichTextPage.h"
#include "gallery/resource.h"

BEGIN_MESSAGE_MAP(CGalleryDlg, CDialog)
    ON_LBN_SELCHANGE(IDC_SCENES, &CGalleryDlg::OnSceneChosen)
END_MESSAGE_MAP()

CGalleryDlg::CGalleryDlg() : CDialog(IDD_GALLERY) {
    m_pages.push_back(std::make_unique<CButtonsPage>());
    m_pages.push_back(std::make_unique<CGlyphsPage>());
    m_pages.push_back(std::make_unique<CCombosPage>());
    m_pages.push_back(std::make_unique<CListPage>());
    m_pages.push_back(std::make_unique<CMenusPage>());
    m_pages.push_back(std::make_unique<CPicturesPage>());
    m_pages.push_back(std::make_unique<CLinksPage>());
    m_pages.push_back(std::make_unique<CBitmapButtonsPage>());
    m_pages.push_back(std::make_unique<CRichTextPage>());
    m_pages.push_back(std::make_unique<CColorsPage>());
}

BOOL CGalleryDlg::CreateIn(CFrameWnd& frame) {
    if (!Create(IDD_GALLERY, &frame))
        return FALSE;
    SetDlgCtrlID(AFX_IDW_PANE_FIRST); // what the bars leave is its place
    CRect client;
    GetClientRect(client);
    m_naturalSize = client.Size();
    return TRUE;
}

void CGalleryDlg::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_SCENES, m_scenes);
    DDX_Control(exchange, IDC_TITLE, m_title);
}

BOOL CGalleryDlg::OnInitDialog() {
    CDialog::OnInitDialog();

    LOGFONT font;
    GetFont()->GetLogFont(&font);
    font.lfWeight = FW_BOLD;
    m_titleFont.CreateFontIndirect(&font);
    m_title.SetFont(&m_titleFont);

    for (const auto& page : m_pages) {
        m_scenes.AddString(page->GetTitle());
        page->CreateOver(*GetDlgItem(IDC_PAGE), *this);
    }
    ShowScene(0);
    return TRUE;
}

void CGalleryDlg::OnSceneChosen() {
    const int chosen = m_scenes.GetCurSel();
    if (chosen != LB_ERR)
        ShowScene(chosen);
}

void CGalleryDlg::ShowScene(int scene) {
    // Or a hidden control would keep the focus.
    const CWnd* const focus = GetFocus();
    if (focus != nullptr && GetPage().IsChild(focus))
        m_scenes.SetFocus();
    GetPage().ShowWindow(SW_HIDE);
    m_scene = (scene + GetSceneCount()) % GetSceneCount();
    m_scenes.SetCurSel(m_scene);
    GalleryLog().Log("Scene %s\n", GetPage().GetTitle());
    m_title.SetWindowText(GetPage().GetTitle());
    SetDlgItemText(IDC_DESCRIPTION, GetPage().GetDescription());
    GetPage().ShowWindow(SW_SHOW);
}

BOOL CGalleryDlg::PreTranslateMessage(MSG* message) {
    // Or the dialog would take the keys of the frame's accelerators for itself.
    CFrameWnd* const frame = GetParentFrame();
    return (frame != nullptr && frame->PreTranslateMessage(message)) ||
           (!CGalleryPage::IsForHiddenControl(*message) && CDialog::PreTranslateMessage(message));
}
