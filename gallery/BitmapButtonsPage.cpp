// SPDX-License-Identifier: MIT
#include "gallery/BitmapButtonsPage.h"

#include "gallery/resource.h"

BEGIN_MESSAGE_MAP(CBitmapButtonsPage, CGalleryPage)
    ON_BN_CLICKED(IDC_BITMAP_DISABLE, &CBitmapButtonsPage::OnDisable)
END_MESSAGE_MAP()

CBitmapButtonsPage::CBitmapButtonsPage() : CGalleryPage(IDD_BITMAP_BUTTONS) {}

LPCTSTR CBitmapButtonsPage::GetTitle() const {
    return "Bitmap buttons";
}

LPCTSTR CBitmapButtonsPage::GetDescription() const {
    return "Push buttons of the dialog that CSoftBitmapButton fills with the frames of a bitmap: "
           "normal, pressed, hover, disabled.";
}

void CBitmapButtonsPage::DoDataExchange(CDataExchange* exchange) {
    CGalleryPage::DoDataExchange(exchange);
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        DDX_Control(exchange, IDC_BITMAP_FIRST + static_cast<int>(i), m_buttons[i]);
    }
}

BOOL CBitmapButtonsPage::OnInitDialog() {
    CGalleryPage::OnInitDialog();
    constexpr UINT frames[] = {1, 3, 4, 6};
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        m_buttons[i].LoadBitmapStrip(IDB_STRIP_1 + static_cast<UINT>(i), frames[i]);
        m_buttons[i].SizeToContent();
    }
    return TRUE;
}

void CBitmapButtonsPage::OnDisable() {
    const BOOL disabled = IsDlgButtonChecked(IDC_BITMAP_DISABLE) == BST_CHECKED;
    for (CSoftBitmapButton& button : m_buttons)
        button.EnableWindow(!disabled);
}
