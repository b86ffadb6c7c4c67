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
};

CHelloApp theApp;

} // namespace
