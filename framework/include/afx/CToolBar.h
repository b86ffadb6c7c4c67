// SPDX-License-Identifier: MIT
/// @file
/// CToolBar: a control bar of buttons with images.
#pragma once

#include "afx/CBitmap.h"
#include "afx/ToolBarLayout.h"
#include "afxres.h"

/// A toolbar: its window is a toolbar control ("ToolbarWindow32").
///
/// The images of all buttons stand side by side in one bitmap. The standard greys of a bitmap that
/// is loaded become the system's button colours, so that its background shows as transparent.
class CToolBar : public afx::ToolBarLayout {
    DECLARE_DYNAMIC(CToolBar)

public:
    CToolBar();
    ~CToolBar() override;

    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_TOP,
                        UINT nID = AFX_IDW_TOOLBAR);
    /// @param dwCtrlStyle TBSTYLE_ styles of the control.
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = TBSTYLE_FLAT,
                          DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_ALIGN_TOP,
                          CRect rcBorders = CRect(0, 0, 0, 0), UINT nID = AFX_IDW_TOOLBAR);

    /// Sets buttons, sizes and images from an RT_TOOLBAR resource and the bitmap of the same name.
    BOOL LoadToolBar(LPCTSTR lpszResourceName);
    BOOL LoadToolBar(UINT nIDResource);
    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource);
    /// The bitmap becomes the toolbar's, also on failure.
    BOOL SetBitmap(HBITMAP hbmImageWell);
    /// In pixels; a button needs 7 more than its image in width and 6 in height.
    void SetSizes(SIZE sizeButton, SIZE sizeImage);
    /// @param lpIDArray commands, ID_SEPARATOR for separators; null for empty buttons.
    BOOL SetButtons(const UINT* lpIDArray, int nIDCount);

    /// @return -1 when there is no such button.
    int CommandToIndex(UINT nIDFind) const;
    UINT GetItemID(int nIndex) const;
    /// In client coordinates; empty for a button that is hidden or missing.
    virtual void GetItemRect(int nIndex, LPRECT lpRect) const;
    /// @param nStyle receives TBBS_ styles. @param iImage image, or width of a separator.
    void GetButtonInfo(int nIndex, UINT& nID, UINT& nStyle, int& iImage) const;
    void SetButtonInfo(int nIndex, UINT nID, UINT nStyle, int iImage);
    UINT GetButtonStyle(int nIndex) const;
    void SetButtonStyle(int nIndex, UINT nStyle);

    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const override;
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;

protected:
    afx_msg void OnPaint();
    afx_msg void OnNcPaint();
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnSysColorChange();

    DECLARE_MESSAGE_MAP()

private:
    int ItemCount() const override;
    bool GetButton(int index, TBBUTTON& button) const;
    void SetButton(int index, const TBBUTTON& button);

    CSize m_buttonSize;
    /// The images the control shows; it keeps asking the bitmap.
    CBitmap m_images;
    /// Where the images were loaded from, to do it again when the system's colours change.
    HINSTANCE m_imagesModule;
    LPCTSTR m_imagesId;
    CString m_imagesName;
};
