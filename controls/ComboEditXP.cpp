// SPDX-License-Identifier: MIT
#include "controls/ComboEditXP.h"

#include "controls/ComboBoxXP.h"

BEGIN_MESSAGE_MAP(CComboEditXP, CEdit)
    ON_WM_KILLFOCUS()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
END_MESSAGE_MAP()

CComboBoxXP* CComboEditXP::ComboBox() const {
    return dynamic_cast<CComboBoxXP*>(CWnd::FromHandlePermanent(::GetParent(m_hWnd)));
}

void CComboEditXP::OnKillFocus(CWnd*) {
    Default();
    if (CComboBoxXP* const combo = ComboBox())
        combo->RepaintOnBar();
}

void CComboEditXP::OnMouseMove(UINT, CPoint) {
    Default();
    if (CComboBoxXP* const combo = ComboBox())
        combo->GetHoverTracker().OnMouseMove(m_hWnd);
}

void CComboEditXP::OnMouseLeave() {
    if (CComboBoxXP* const combo = ComboBox())
        combo->GetHoverTracker().OnMouseLeave(m_hWnd);
}
