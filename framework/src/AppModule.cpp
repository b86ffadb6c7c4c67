// SPDX-License-Identifier: MIT
// The functions that ask for the application, its module and its resources.
#include <afxwin.h>

#include "ModuleState.h"

HINSTANCE AFXAPI AfxGetInstanceHandle() {
    return afx::InstanceHandle();
}

HINSTANCE AFXAPI AfxGetResourceHandle() {
    return afx::ResourceHandle();
}

void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource) {
    afx::SetResourceHandle(hInstResource);
}

HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType) {
    const HINSTANCE resources = afx::ResourceHandle();
    const HINSTANCE program = afx::InstanceHandle();
    const bool inProgram = ::FindResource(resources, lpszName, lpszType) == nullptr &&
                           ::FindResource(program, lpszName, lpszType) != nullptr;
    return inProgram ? program : resources;
}

CWnd* AFXAPI AfxGetMainWnd() {
    if (CWinThread* const thread = AfxGetThread()) {
        return thread->GetMainWnd();
    }
    return nullptr;
}

LPCTSTR AFXAPI AfxGetAppName() {
    const CWinApp* const app = AfxGetApp();
    return app == nullptr ? nullptr : app->m_pszAppName;
}

void AFXAPI AfxEnableControlContainer() {}

// ---- Message boxes and prompts ------------------------------------------------------------------

int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp) {
    if (CWinApp* const app = AfxGetApp()) {
        return app->DoMessageBox(lpszText, nType, nIDHelp);
    }
    return ::MessageBox(CWnd::GetSafeOwner()->GetSafeHwnd(), lpszText, nullptr, nType);
}

int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp) {
    CString text;
    if (!text.LoadString(nIDPrompt)) {
        TRACE("Error: no string with the identifier %u for a message box.\n", nIDPrompt);
    }
    const bool ownHelp = nIDHelp != static_cast<UINT>(-1);
    return AfxMessageBox(static_cast<LPCTSTR>(text), nType, ownHelp ? nIDHelp : nIDPrompt);
}

namespace {

/// The template with its "%1" and "%2" replaced. What is put in is not searched again.
CString Substitute(LPCTSTR format, LPCTSTR first, LPCTSTR second) {
    CString result;
    for (LPCTSTR next = format; *next != '\0'; ++next) {
        if (next[0] == '%' && next[1] == '1' && first != nullptr) {
            result += first;
            ++next;
        } else if (next[0] == '%' && next[1] == '2' && second != nullptr) {
            result += second;
            ++next;
        } else if (::IsDBCSLeadByte(static_cast<BYTE>(next[0])) && next[1] != '\0') {
            result += CString(next, 2);
            ++next;
        } else {
            result += *next;
        }
    }
    return result;
}

} // namespace

void AFXAPI AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1) {
    AfxFormatString2(rString, nIDS, lpsz1, nullptr);
}

void AFXAPI AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2) {
    CString format;
    if (!format.LoadString(nIDS)) {
        TRACE("Error: no string with the identifier %u to format.\n", nIDS);
    }
    rString = Substitute(format, lpsz1, lpsz2);
}

BOOL AFXAPI AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString,
                                TCHAR chSep) {
    if (lpszFullString == nullptr) {
        return FALSE;
    }
    const CString all(lpszFullString);
    int start = 0;
    for (int i = 0; i < iSubString; ++i) {
        const int separator = all.Find(chSep, start);
        if (separator < 0) {
            rString.Empty();
            return FALSE;
        }
        start = separator + 1;
    }
    const int end = all.Find(chSep, start);
    rString = end < 0 ? all.Mid(start) : all.Mid(start, end - start);
    return TRUE;
}

// ---- Wait cursor --------------------------------------------------------------------------------

CWaitCursor::CWaitCursor() {
    if (CWinApp* const app = AfxGetApp()) {
        app->BeginWaitCursor();
    }
}

CWaitCursor::~CWaitCursor() {
    if (CWinApp* const app = AfxGetApp()) {
        app->EndWaitCursor();
    }
}

void CWaitCursor::Restore() {
    if (CWinApp* const app = AfxGetApp()) {
        app->RestoreWaitCursor();
    }
}
