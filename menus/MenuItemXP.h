// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include "menus/ImgDesc.h"

/// What there is to know about one item of a converted menu: its state as the system has it now, its
/// caption and image as recorded by the conversion (CMenuXP::ConvertMenu).  Made on the stack for each
/// measuring, painting or search, and owns nothing.
class CMenuItemXP {
public:
    /// Reads an item.  One that does not exist has no state, no caption and no image.
    /// @param item        identifier of the command, or position
    /// @param byPosition  which of the two
    CMenuItemXP(HMENU menu, UINT item, bool byPosition);

    const MENUITEMINFOA& Info() const { return m_info; }
    const CImgDesc& Image() const { return m_image; }

    bool IsSeparator() const { return (m_info.fType & MFT_SEPARATOR) != 0; }
    bool IsRadio() const { return (m_info.fType & MFT_RADIOCHECK) != 0; }
    bool IsChecked() const { return (m_info.fState & MFS_CHECKED) != 0; }

    /// The default item's texts are bold.
    bool IsDefault() const { return (m_info.fState & MFS_DEFAULT) != 0; }
    /// Both bits are needed (MF_GRAYED | MF_DISABLED, as CCmdUI sets them): an item with one of them is
    /// drawn as enabled.  Deliberate.
    bool IsDisabled() const { return (m_info.fState & MFS_DISABLED) == MFS_DISABLED; }
    bool HasImage() const { return m_image.IsImage(); }

    /// The caption up to its first tab, or all of it; with its ampersands.
    CString LabelText() const;

    /// The caption after its first tab, or nothing.
    CString AcceleratorText() const;

    /// Whether the label is drawn and measured.  A label of one character before a tab counts as none:
    /// deliberate, such items are left blank.
    bool HasLabel() const;

    /// Width of the label in pixels, with its first ampersand taken off; 0 for a separator.
    /// @param dc  has the menu's font selected
    int LabelWidth(CDC& dc) const;
    int AcceleratorWidth(CDC& dc) const;

private:
    int TextWidth(CDC& dc, const CString& text) const;

    MENUITEMINFOA m_info = {};
    CString m_text;
    CImgDesc m_image;
};
