// SPDX-License-Identifier: MIT
#include "gallery/RichTextPage.h"

#include "gallery/GalleryLog.h"
#include "gallery/ProgramFolder.h"
#include "gallery/resource.h"

CRichTextPage::CRichTextPage() : CGalleryPage(IDD_RICH_TEXT) {}

LPCTSTR CRichTextPage::GetTitle() const {
    return "Rich text";
}

LPCTSTR CRichTextPage::GetDescription() const {
    return "A rich edit control of the dialog, subclassed by CRtfEdit, shows the file "
           "documents\\about.rtf beside the program.";
}

void CRichTextPage::DoDataExchange(CDataExchange* exchange) {
    CGalleryPage::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_RTF, m_text);
}

BOOL CRichTextPage::OnInitDialog() {
    CGalleryPage::OnInitDialog();
    const CString path = BesideProgram("documents\\about.rtf");
    GalleryLog().Log("Rich text from %s\n", static_cast<LPCTSTR>(path));
    m_text.SetAutoURLDetect();
    m_text.LoadRtfFile(path);
    return TRUE;
}
