// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include "controls/ButtonXP.h"
#include "decorations/ImageStatic.h"
#include "gallery/GalleryPage.h"
#include "image/IsImage.h"

/// Scene "Pictures": picture files in statics of several sizes, tiles, and the clipboard.
class CPicturesPage : public CGalleryPage {
public:
    CPicturesPage();

    LPCTSTR GetTitle() const override;
    LPCTSTR GetDescription() const override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    afx_msg void OnPaste();
    afx_msg void OnUpdatePaste(CCmdUI* item);
    DECLARE_MESSAGE_MAP()

private:
    CRect PlaceOf(UINT id) const;

    std::array<CImageStatic, 9> m_pictures; ///< a row for each format, a column for each size
    CImageStatic m_transparent;
    CImageStatic m_unreadable;
    CButtonXP m_paste;
    IsImage m_tile;
    IsImage m_pasted; ///< empty until something was pasted
};
