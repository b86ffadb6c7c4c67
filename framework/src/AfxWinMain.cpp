// SPDX-License-Identifier: MIT
// What the main function of a program does; a program with its own calls AfxWinInit.
#include <afxwin.h>

#include "ModuleState.h"

BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPTSTR lpCmdLine, int nCmdShow) {
    // A handler must not stop at a message of the system about a missing disk or library.
    ::SetErrorMode(::SetErrorMode(0) | SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
    afx::SetInstanceHandle(hInstance);
    afx::SetResourceHandle(hInstance);
    if (CWinApp* const app = AfxGetApp()) {
        app->m_hInstance = hInstance;
        app->m_lpCmdLine = lpCmdLine;
        app->m_nCmdShow = nCmdShow;
    }
    return TRUE;
}

int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine,
                      int nCmdShow) {
    CWinApp* const app = AfxGetApp();
    if (app == nullptr || !AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow)) {
        return -1;
    }
    if (app->InitInstance()) {
        return app->Run();
    }
    // A dialog as the main window has come and gone by now.
    if (app->m_pMainWnd != nullptr) {
        app->m_pMainWnd->DestroyWindow();
    }
    return app->ExitInstance();
}
