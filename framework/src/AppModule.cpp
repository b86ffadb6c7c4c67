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

// ---- Message boxes and prompts ------------------------------------------------------------------

int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp) {
    if (CWinApp* const app = AfxGetApp()) {
        return app->DoMessageBox(lpszText, nType, nIDHelp);
    }
    return ::MessageBox(CWnd::GetSafeOwner()->GetSafeHwnd(), lpszText, nullptr, nType);
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
