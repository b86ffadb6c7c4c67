// SPDX-License-Identifier: MIT
#include "gallery/GalleryDlg.h"

#include "gallery/BitmapButtonsPage.h"
#include "gallery/ButtonsPage.h"
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
}

void CGalleryDlg::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_SCENES, m_scenes);
    DDX_Control(exchange, IDC_TITLE, m_title);
    DDX_Control(exchange, IDCANCEL, m_close);
}

BOOL CGalleryDlg::OnInitDialog() {
    CDialog::OnInitDialog();

    const HICON icon = AfxGetApp()->LoadIcon(IDR_GALLERY);
    SetIcon(icon, TRUE);
    SetIcon(icon, FALSE);

    LOGFONT font;
    GetFont()->GetLogFont(&font);
    font.lfWeight = FW_BOLD;
    m_titleFont.CreateFontIndirect(&font);
    m_title.SetFont(&m_titleFont);

    for (const auto& page : m_pages) {
        m_scenes.AddString(page->GetTitle());
        page->CreateOver(*GetDlgItem(IDC_PAGE), *this);
    }
    m_scenes.SetCurSel(0);
    ShowPage(*m_pages.front());
    return TRUE;
}

void CGalleryDlg::OnSceneChosen() {
    const int chosen = m_scenes.GetCurSel();
    if (chosen != LB_ERR)
        ShowPage(*m_pages[chosen]);
}

void CGalleryDlg::ShowPage(CGalleryPage& page) {
    if (m_shown != nullptr)
        m_shown->ShowWindow(SW_HIDE);
    m_shown = &page;
    GalleryLog().Log("Scene %s\n", page.GetTitle());
    m_title.SetWindowText(page.GetTitle());
    SetDlgItemText(IDC_DESCRIPTION, page.GetDescription());
    page.ShowWindow(SW_SHOW);
}
