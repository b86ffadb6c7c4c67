// SPDX-License-Identifier: MIT
/// @file
/// Dialog data exchange (DDX) and validation (DDV): the calls of an override of
/// CWnd::DoDataExchange.
///
/// Each DDX_ call connects one control with one member, in the direction of the exchange. A DDV_
/// call checks the member before it and has to follow that member's DDX_ call directly.
#pragma once

#include "afx/CWnd.h"

/// One exchange of data between the controls of a window and its members.
class CDataExchange {
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate);

    /// TRUE from the controls to the members.
    BOOL m_bSaveAndValidate;
    /// The window that holds the controls.
    CWnd* m_pDlgWnd;

    /// Finds the control and remembers it for Fail(). Throws CNotSupportedException when the window
    /// has no such control.
    HWND PrepareCtrl(int nIDC);
    /// PrepareCtrl() for an edit control, in which Fail() selects the text, too.
    HWND PrepareEditCtrl(int nIDC);
    /// Puts the focus on the last control prepared and throws CUserException. Tell the user first.
    [[noreturn]] void Fail();

private:
    friend void AFXAPI DDV_MaxChars(CDataExchange* pDX, CString const& value, int nChars);
    void LimitLastEdit(int characters) const;

    HWND m_lastControl;
    bool m_lastIsEdit;
};

/// Subclasses the control, unless the object is attached already.
void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value);
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value);
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value);
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LONGLONG& value);
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, ULONGLONG& value);
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value);
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
/// @param nMaxLen size of the buffer, with the null.
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR value, UINT nMaxLen);

/// BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE.
void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value);
/// The index of the checked button in the group that starts with the control; -1 for none.
void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value);
void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);
/// Selects the first item that starts with the string.
void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value);
void AFXAPI DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value);
void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
/// Selects the first item that starts with the string, or sets the text of the edit control.
void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value);
void AFXAPI DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value);
/// The position of a scroll bar.
void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value);

// Each shows a message and calls CDataExchange::Fail() when data to be saved is out of bounds;
// DDV_MaxChars limits the edit control, too, when data is loaded.
void AFXAPI DDV_MaxChars(CDataExchange* pDX, CString const& value, int nChars);
void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);
void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, double const& value, double minVal, double maxVal);
