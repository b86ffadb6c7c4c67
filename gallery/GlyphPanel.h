// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include "controls/DrawButton.h"
#include "gallery/BufferedStatic.h"

/// A number and glyph buttons that change it: what a host of CDrawButton does.
class CGlyphPanel : public CBufferedStatic {
public:
    /// @param look  flags of all buttons: CDrawButton::kFlat, or 0 for the classic look
    explicit CGlyphPanel(UINT look);

    void PreSubclassWindow() override;

protected:
    void Draw(CDC& dc, const CRect& client) override;

    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnTimer(UINT_PTR timer);
    DECLARE_MESSAGE_MAP()

private:
    void Click(const CDrawButton& button);
    void ClickSpinPair(CDrawButton& button, CPoint point);
    void ChangeBy(int difference);
    CRect NumberPlace() const;

    std::array<CDrawButton, 5> m_buttons; ///< the first is the spin pair, beside the number
    int m_number = 0;
    bool m_hasRepeated = false;
};
