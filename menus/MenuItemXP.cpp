// SPDX-License-Identifier: MIT
#include "menus/MenuItemXP.h"

#include "draw/Selectors.h"
#include "menus/MenuRecords.h"

CMenuItemXP::CMenuItemXP(HMENU menu, UINT item, bool byPosition) {
    m_info.cbSize = sizeof m_info;
    // Without a buffer for it, no text is returned.
    m_info.fMask = MIIM_STATE | MIIM_ID | MIIM_SUBMENU | MIIM_TYPE | MIIM_DATA;
    if (!::GetMenuItemInfoA(menu, item, byPosition, &m_info)) {
        m_info = {};
        return;
    }
    if (IsSeparator())
        return;
    const auto& records = tint::MenuRecords::Get();
    m_text = records.Text(m_info);
    m_image = records.Image(m_info);
}

CString CMenuItemXP::LabelText() const {
    const int tab = m_text.Find('\t');
    return tab < 0 ? m_text : m_text.Left(tab);
}

CString CMenuItemXP::AcceleratorText() const {
    const int tab = m_text.Find('\t');
    return tab < 0 ? CString() : m_text.Mid(tab + 1);
}

bool CMenuItemXP::HasLabel() const {
    const int tab = m_text.Find('\t');
    const int count = tab < 0 ? m_text.GetLength() : tab - 1; // one less: see the declaration
    return count > 0;
}

int CMenuItemXP::LabelWidth(CDC& dc) const {
    if (IsSeparator() || !HasLabel())
        return 0;
    CString label = LabelText();
    const int ampersand = label.Find('&');
    if (ampersand >= 0)
        label.Delete(ampersand);
    return TextWidth(dc, label);
}

int CMenuItemXP::AcceleratorWidth(CDC& dc) const {
    return IsSeparator() ? 0 : TextWidth(dc, AcceleratorText());
}

int CMenuItemXP::TextWidth(CDC& dc, const CString& text) const {
    if (text.IsEmpty())
        return 0;
    const CFontWeightSelector weight(dc, IsDefault());
    SIZE size = {};
    ::GetTextExtentPoint32A(dc.m_hAttribDC, text, text.GetLength(), &size);
    return size.cx;
}
