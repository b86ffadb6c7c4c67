// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

/// One scene of the gallery: a child dialog that shows one piece of the toolkit.
class CGalleryPage : public CDialog {
public:
    /// Creates the window, hidden, where `placeholder` stands in the gallery window.
    BOOL CreateOver(CWnd& placeholder, CWnd& gallery);

    /// The name in the list of scenes.
    virtual LPCTSTR GetTitle() const = 0;

    /// What to look for, in a sentence or two.
    virtual LPCTSTR GetDescription() const = 0;

    BOOL PreTranslateMessage(MSG* message) override;

    /// A key may still be on its way to a control when its page is hidden.  No dialog may handle it: the
    /// system's search for the next control, or for the one with that letter, does not end when it
    /// starts in a hidden page.
    static bool IsForHiddenControl(const MSG& message);

protected:
    explicit CGalleryPage(UINT dialogId) : m_dialogId(dialogId) {}

    // A page is not closed by itself.
    void OnOK() override {}
    void OnCancel() override {}

private:
    UINT m_dialogId;
};
