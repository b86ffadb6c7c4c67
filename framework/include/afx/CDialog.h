// SPDX-License-Identifier: MIT
/// @file
/// CDialog: a dialog made from a template, modal or modeless.
#pragma once

#include "afx/CWnd.h"

/// A dialog.
///
/// Modal: construct it with the template's identifier and call DoModal(). Modeless: derive a class,
/// construct it without arguments and call Create(); override OnOK() and OnCancel() so that they
/// call DestroyWindow().
class CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)

public:
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = NULL);
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = NULL);
    CDialog();

    /// Creates the window and returns.
    /// @param pParentWnd the owner; null for the main window.
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = NULL);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = NULL);
    /// @param lpDialogInit an RT_DLGINIT resource, or null.
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = NULL,
                                void* lpDialogInit = NULL);
    virtual BOOL CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = NULL);

    /// Prepares DoModal() with a template in memory, which must stay until then.
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = NULL,
                           void* lpDialogInit = NULL);
    /// Shows the dialog and handles messages until it ends. Its owner is disabled meanwhile.
    /// @return what EndDialog() was given; -1 when the dialog could not be created, IDABORT when
    ///         something else went wrong.
    virtual INT_PTR DoModal();
    /// Ends DoModal() after the current message. Hides a modeless dialog without destroying it.
    void EndDialog(int nResult);

    /// Turns dialog units into pixels.
    void MapDialogRect(LPRECT lpRect) const;
    void SetDefID(UINT nID);
    /// @return MAKELONG(identifier, DC_HASDEFID); 0 when there is no default button.
    DWORD GetDefID() const;

    /// Called before the dialog is shown. The default loads the data into the controls.
    /// @return zero when the focus was set here.
    virtual BOOL OnInitDialog();
    /// Called with the font of the controls.
    virtual void OnSetFont(CFont* pFont);
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    /// Takes the data from the controls and ends the dialog with IDOK, unless it is refused.
    virtual void OnOK();
    /// Ends the dialog with IDCANCEL.
    virtual void OnCancel();

    DECLARE_MESSAGE_MAP()

private:
    void SetTemplate(LPCTSTR templateName);
    BOOL CreateFromTemplate(LPCDLGTEMPLATE dialogTemplate, CWnd* owner, HINSTANCE instance);
    INT_PTR RunModal(LPCDLGTEMPLATE dialogTemplate, HINSTANCE instance);
    void EndModal(HWND owner, HWND top);
    static INT_PTR CALLBACK DialogProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnSetFontMessage(WPARAM wParam, LPARAM lParam);

    // The template: a resource (its name or MAKEINTRESOURCE) or a pointer. What is not used is null.
    LPCTSTR m_templateName;
    CString m_templateNameCopy;
    LPCDLGTEMPLATE m_template;
    void* m_dialogInit;
    CWnd* m_parent;
};
