// SPDX-License-Identifier: MIT
#include "gallery/LinksPage.h"

#include "gallery/resource.h"

BEGIN_MESSAGE_MAP(CLinksPage, CGalleryPage)
    ON_COMMAND(IDC_LINK_BUTTON, &CLinksPage::OnButtonLink)
END_MESSAGE_MAP()

CLinksPage::CLinksPage() : CGalleryPage(IDD_LINKS) {}

LPCTSTR CLinksPage::GetTitle() const {
    return "Links";
}

LPCTSTR CLinksPage::GetDescription() const {
    return "Texts of the dialog, each subclassed by CHyperLink. Point at one for its target; "
           "a click opens it.";
}

void CLinksPage::DoDataExchange(CDataExchange* exchange) {
    CGalleryPage::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_LINK_FRESH, m_fresh);
    DDX_Control(exchange, IDC_LINK_VISITED, m_visited);
    DDX_Control(exchange, IDC_LINK_NEVER, m_never);
    DDX_Control(exchange, IDC_LINK_ALWAYS, m_always);
    DDX_Control(exchange, IDC_LINK_TAB, m_tab);
    DDX_Control(exchange, IDC_LINK_HOVER, m_hover);
    DDX_Control(exchange, IDC_LINK_BUTTON, m_button);
    for (std::size_t i = 0; i < m_aligned.size(); ++i) {
        DDX_Control(exchange, IDC_LINK_LEFT + static_cast<int>(i), m_aligned[i]);
    }
}

BOOL CLinksPage::OnInitDialog() {
    CGalleryPage::OnInitDialog();

    // Few systems still have the hand that a link looks for by itself.
    const HCURSOR hand = AfxGetApp()->LoadStandardCursor(IDC_HAND);
    for (CHyperLink* link : {&m_fresh, &m_visited, &m_never, &m_always, &m_tab, &m_hover, &m_button,
                             &m_aligned[0], &m_aligned[1], &m_aligned[2]}) {
        link->SetURL("https://example.com/tintkit");
        link->SetLinkCursor(hand);
    }
    m_visited.SetVisited();
    m_never.SetUnderline(CHyperLink::kUnderlineNever);
    m_always.SetUnderline(CHyperLink::kUnderlineAlways);
    m_button.SetURL(""); // a click is a command of the dialog
    ShowClicks();
    return TRUE;
}

void CLinksPage::OnButtonLink() {
    ++m_clicks;
    ShowClicks();
}

void CLinksPage::ShowClicks() {
    CString text;
    text.Format("%d so far", m_clicks);
    SetDlgItemText(IDC_LINK_CLICKS, text);
}
