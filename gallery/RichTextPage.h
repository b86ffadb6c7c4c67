// SPDX-License-Identifier: MIT
#pragma once

#include "decorations/RtfEdit.h"
#include "gallery/GalleryPage.h"

/// Scene "Rich text": an RTF file in a dialog.
class CRichTextPage : public CGalleryPage {
public:
    CRichTextPage();

    LPCTSTR GetTitle() const override;
    LPCTSTR GetDescription() const override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

private:
    CRtfEdit m_text;
};
