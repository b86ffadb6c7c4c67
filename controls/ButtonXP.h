// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include "draw/MouseHoverTracker.h"

/// A flat push button whose colours follow the system's: a light face at rest, a tinted one under the
/// mouse, a stronger tint while pressed, a dark frame when it is the default button or has the focus.
///
///     class CMyDialog : public CDialog {
///         CButtonXP m_ok;
///         void DoDataExchange(CDataExchange* exchange) override { DDX_Control(exchange, IDOK, m_ok); }
///     };
///
/// Subclass any push button of a dialog with it; nothing else about the button changes.  It shows text
/// only, on one line.  tint::EnableSkin turns it into the system's own button and back.
///
/// | condition          | frame                              | face                          | text        |
/// |--------------------|------------------------------------|-------------------------------|-------------|
/// | pressed            | highlight                          | highlight, lighter and greyer | near-white  |
/// | hot                | highlight                          | highlight, much lighter       | black       |
/// | focused or default | 3-D dark shadow                    | button face, a little lighter | button text |
/// | resting            | button shadow                      | button face, a little lighter | button text |
/// | disabled           | as focused/default or resting      | button face, a little lighter | grey text   |
class CButtonXP : public CButton {
public:
    void PreSubclassWindow() override;
    void DrawItem(LPDRAWITEMSTRUCT item) override;

protected:
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg LRESULT OnSkinSwitch(WPARAM enabled, LPARAM unused);
    DECLARE_MESSAGE_MAP()

private:
    struct Look {
        COLORREF frame;
        COLORREF face;
        COLORREF text;
    };

    Look LookFor(UINT itemState) const;
    bool IsDialogDefault() const;

    CMouseHoverTracker m_hover;
};
