// SPDX-License-Identifier: MIT
#include <afxcmn.h>

#include "Send.h"

using afx::Send;

IMPLEMENT_DYNAMIC(CToolBarCtrl, CWnd)

CToolBarCtrl::CToolBarCtrl() = default;

BOOL CToolBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    if (!CWnd::Create(TOOLBARCLASSNAME, nullptr, dwStyle, rect, pParentWnd, nID)) {
        return FALSE;
    }
    SetButtonStructSize(sizeof(TBBUTTON));
    return TRUE;
}

// clang-format off
int CToolBarCtrl::GetButtonCount() const { return Send<int>(*this, TB_BUTTONCOUNT); }
BOOL CToolBarCtrl::GetButton(int nIndex, LPTBBUTTON lpButton) const { return Send<BOOL>(*this, TB_GETBUTTON, nIndex, lpButton); }
BOOL CToolBarCtrl::AddButtons(int nNumButtons, LPTBBUTTON lpButtons) { return Send<BOOL>(*this, TB_ADDBUTTONS, nNumButtons, lpButtons); }
BOOL CToolBarCtrl::InsertButton(int nIndex, LPTBBUTTON lpButton) { return Send<BOOL>(*this, TB_INSERTBUTTON, nIndex, lpButton); }
BOOL CToolBarCtrl::DeleteButton(int nIndex) { return Send<BOOL>(*this, TB_DELETEBUTTON, nIndex); }
UINT CToolBarCtrl::CommandToIndex(UINT nID) const { return Send<UINT>(*this, TB_COMMANDTOINDEX, nID); }
BOOL CToolBarCtrl::GetItemRect(int nIndex, LPRECT lpRect) const { return Send<BOOL>(*this, TB_GETITEMRECT, nIndex, lpRect); }
BOOL CToolBarCtrl::GetRect(int nID, LPRECT lpRect) const { return Send<BOOL>(*this, TB_GETRECT, nID, lpRect); }
int CToolBarCtrl::HitTest(LPPOINT lpPoint) const { return Send<int>(*this, TB_HITTEST, 0, lpPoint); }
int CToolBarCtrl::GetButtonInfo(int nID, TBBUTTONINFO* ptbbi) const { return Send<int>(*this, TB_GETBUTTONINFO, nID, ptbbi); }
BOOL CToolBarCtrl::SetButtonInfo(int nID, TBBUTTONINFO* ptbbi) { return Send<BOOL>(*this, TB_SETBUTTONINFO, nID, ptbbi); }
BOOL CToolBarCtrl::SetCmdID(int nIndex, UINT nID) { return Send<BOOL>(*this, TB_SETCMDID, nIndex, nID); }

int CToolBarCtrl::GetState(int nID) const { return Send<int>(*this, TB_GETSTATE, nID); }
BOOL CToolBarCtrl::SetState(int nID, UINT nState) { return Send<BOOL>(*this, TB_SETSTATE, nID, MAKELPARAM(nState, 0)); }
BOOL CToolBarCtrl::EnableButton(int nID, BOOL bEnable) { return Send<BOOL>(*this, TB_ENABLEBUTTON, nID, MAKELPARAM(bEnable, 0)); }
BOOL CToolBarCtrl::CheckButton(int nID, BOOL bCheck) { return Send<BOOL>(*this, TB_CHECKBUTTON, nID, MAKELPARAM(bCheck, 0)); }
BOOL CToolBarCtrl::PressButton(int nID, BOOL bPress) { return Send<BOOL>(*this, TB_PRESSBUTTON, nID, MAKELPARAM(bPress, 0)); }
BOOL CToolBarCtrl::HideButton(int nID, BOOL bHide) { return Send<BOOL>(*this, TB_HIDEBUTTON, nID, MAKELPARAM(bHide, 0)); }
BOOL CToolBarCtrl::Indeterminate(int nID, BOOL bIndeterminate) { return Send<BOOL>(*this, TB_INDETERMINATE, nID, MAKELPARAM(bIndeterminate, 0)); }
BOOL CToolBarCtrl::IsButtonEnabled(int nID) const { return Send<BOOL>(*this, TB_ISBUTTONENABLED, nID); }
BOOL CToolBarCtrl::IsButtonChecked(int nID) const { return Send<BOOL>(*this, TB_ISBUTTONCHECKED, nID); }
BOOL CToolBarCtrl::IsButtonPressed(int nID) const { return Send<BOOL>(*this, TB_ISBUTTONPRESSED, nID); }
BOOL CToolBarCtrl::IsButtonHidden(int nID) const { return Send<BOOL>(*this, TB_ISBUTTONHIDDEN, nID); }
BOOL CToolBarCtrl::IsButtonIndeterminate(int nID) const { return Send<BOOL>(*this, TB_ISBUTTONINDETERMINATE, nID); }

DWORD CToolBarCtrl::GetButtonSize() const { return Send<DWORD>(*this, TB_GETBUTTONSIZE); }
BOOL CToolBarCtrl::SetButtonSize(CSize size) { return Send<BOOL>(*this, TB_SETBUTTONSIZE, 0, MAKELPARAM(size.cx, size.cy)); }
BOOL CToolBarCtrl::SetBitmapSize(CSize size) { return Send<BOOL>(*this, TB_SETBITMAPSIZE, 0, MAKELPARAM(size.cx, size.cy)); }
void CToolBarCtrl::SetButtonStructSize(int nSize) { Send(*this, TB_BUTTONSTRUCTSIZE, nSize); }
DWORD CToolBarCtrl::GetStyle() const { return Send<DWORD>(*this, TB_GETSTYLE); }
void CToolBarCtrl::SetStyle(DWORD dwStyle) { Send(*this, TB_SETSTYLE, 0, dwStyle); }
DWORD CToolBarCtrl::GetExtendedStyle() const { return Send<DWORD>(*this, TB_GETEXTENDEDSTYLE); }
DWORD CToolBarCtrl::SetExtendedStyle(DWORD dwExStyle) { return Send<DWORD>(*this, TB_SETEXTENDEDSTYLE, 0, dwExStyle); }
int CToolBarCtrl::GetHotItem() const { return Send<int>(*this, TB_GETHOTITEM); }
int CToolBarCtrl::SetHotItem(int nHot) { return Send<int>(*this, TB_SETHOTITEM, nHot); }
void CToolBarCtrl::AutoSize() { Send(*this, TB_AUTOSIZE); }
// clang-format on
