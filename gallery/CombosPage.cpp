// SPDX-License-Identifier: MIT
#include "gallery/CombosPage.h"

#include "gallery/resource.h"

namespace {

void AddUnits(CComboBox& combo) {
    for (const LPCTSTR unit : {"millimetres", "centimetres", "metres", "inches", "feet", "points",
                               "picas", "pixels", "dialog units"})
        combo.AddString(unit);
    combo.SetCurSel(0);
}

} // namespace

BEGIN_MESSAGE_MAP(CCombosPage, CGalleryPage)
    ON_BN_CLICKED(IDC_COMBO_DISABLE, &CCombosPage::OnMakeDisabled)
END_MESSAGE_MAP()

CCombosPage::CCombosPage() : CGalleryPage(IDD_COMBOS) {}

LPCTSTR CCombosPage::GetTitle() const {
    return "Combo boxes";
}

LPCTSTR CCombosPage::GetDescription() const {
    return "Combo boxes of the dialog, each subclassed by CComboBoxXP: the system draws text and "
           "list, the control its frame and arrow.";
}

void CCombosPage::DoDataExchange(CDataExchange* exchange) {
    CGalleryPage::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_COMBO_SUBJECT, m_subject);
    for (std::size_t i = 0; i < m_skinned.size(); ++i) {
        DDX_Control(exchange, IDC_COMBO_FIRST + static_cast<int>(i), m_skinned[i]);
        DDX_Control(exchange, IDC_SYSTEM_COMBO_FIRST + static_cast<int>(i), m_system[i]);
    }
}

BOOL CCombosPage::OnInitDialog() {
    CGalleryPage::OnInitDialog();
    m_subject.SetVisibleRows(4);
    AddUnits(m_subject);
    for (CComboBoxXP& combo : m_skinned)
        AddUnits(combo);
    for (CComboBox& combo : m_system)
        AddUnits(combo);
    return TRUE;
}

void CCombosPage::OnMakeDisabled() {
    m_subject.EnableWindow(IsDlgButtonChecked(IDC_COMBO_DISABLE) != BST_CHECKED);
}
