// SPDX-License-Identifier: MIT
#include <afxwin.h>

#include "HelloDlg.h"

namespace {

class CHelloApp : public CWinApp {
public:
    BOOL InitInstance() override {
        CWinApp::InitInstance();
        CHelloDlg dialog;
        m_pMainWnd = &dialog;
        dialog.DoModal();
        return FALSE; // the dialog is closed: no message loop is wanted
    }

    // Without a message loop there was no PostQuitMessage to name an exit code.
    int ExitInstance() override {
        CWinApp::ExitInstance();
        return 0;
    }
};

CHelloApp theApp;

} // namespace
