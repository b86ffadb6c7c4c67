// SPDX-License-Identifier: MIT
#include <afxwin.h>

#include <cstdlib>

#include "ModuleState.h"
#include "ThreadState.h"

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

BEGIN_MESSAGE_MAP(CWinApp, CWinThread)
    ON_COMMAND(ID_APP_EXIT, &CWinApp::OnAppExit)
END_MESSAGE_MAP()

namespace {

CWinApp* theApplication = nullptr;

LPCTSTR Duplicate(LPCTSTR text) {
    return ::_strdup(text);
}

void Free(LPCTSTR text) {
    std::free(const_cast<LPTSTR>(text));
}

/// The path of the program, split where its name begins and ends.
struct ProgramPath {
    ProgramPath() {
        char path[MAX_PATH] = {};
        ::GetModuleFileName(afx::InstanceHandle(), path, MAX_PATH - 1);
        const CString all(path);
        const int name = all.ReverseFind('\\') + 1;
        const int dot = all.ReverseFind('.');
        withoutExtension = dot > name ? all.Left(dot) : all;
        title = withoutExtension.Mid(name);
    }

    CString withoutExtension;
    CString title;
};

} // namespace

CWinApp* AFXAPI AfxGetApp() {
    return theApplication;
}

CWinApp::CWinApp(LPCTSTR lpszAppName)
    : m_hInstance(afx::InstanceHandle()), m_lpCmdLine(nullptr), m_nCmdShow(SW_SHOWNORMAL),
      m_pszAppName(lpszAppName == nullptr ? nullptr : Duplicate(lpszAppName)),
      m_pszExeName(nullptr), m_pszHelpFilePath(nullptr), m_pszProfileName(nullptr),
      m_pszRegistryKey(nullptr), m_outerApp(theApplication), m_outerThread(AfxGetThread()) {
    theApplication = this;
    afx::CurrentThread().thread = this;
    InitNames();
}

CWinApp::~CWinApp() {
    Free(m_pszAppName);
    Free(m_pszExeName);
    Free(m_pszHelpFilePath);
    Free(m_pszProfileName);
    Free(m_pszRegistryKey);
    if (theApplication == this) {
        theApplication = m_outerApp;
        afx::CurrentThread().thread = m_outerThread;
    }
}

void CWinApp::InitNames() {
    const ProgramPath program;
    m_pszExeName = Duplicate(program.title);
    m_pszHelpFilePath = Duplicate(program.withoutExtension + ".HLP");
    m_pszProfileName = Duplicate(program.title + ".INI");
    if (m_pszAppName == nullptr) {
        CString title;
        m_pszAppName = Duplicate(title.LoadString(AFX_IDS_APP_TITLE) ? title : program.title);
    }
}

// ---- Running ------------------------------------------------------------------------------------

BOOL CWinApp::InitInstance() {
    return TRUE;
}

int CWinApp::ExitInstance() {
    return CWinThread::ExitInstance();
}

int CWinApp::Run() {
    if (m_pMainWnd == nullptr) {
        // Nothing would ever end the loop.
        TRACE("Warning: an application without a main window ends at once.\n");
        ::PostQuitMessage(0);
    }
    return CWinThread::Run();
}

BOOL CWinApp::OnIdle(LONG lCount) {
    return CWinThread::OnIdle(lCount);
}

BOOL CWinApp::PreTranslateMessage(MSG* pMsg) {
    return CWinThread::PreTranslateMessage(pMsg);
}

LRESULT CWinApp::ProcessWndProcException(CException* e, const MSG* pMsg) {
    if (pMsg->message == WM_CREATE || pMsg->message == WM_PAINT) {
        return CWinThread::ProcessWndProcException(e, pMsg);
    }
    const bool isCommand = pMsg->message == WM_COMMAND;
    // Whoever throws a CUserException has told the user.
    if (!e->IsKindOf(RUNTIME_CLASS(CUserException))) {
        AfxMessageBox(isCommand ? "Command failed." : "Internal application error.",
                      MB_ICONEXCLAMATION | MB_SYSTEMMODAL);
    }
    return isCommand ? TRUE : 0;
}

void CWinApp::OnAppExit() {
    if (m_pMainWnd != nullptr) {
        m_pMainWnd->SendMessage(WM_CLOSE);
    }
}

int CWinApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT) {
    HWND top = nullptr;
    const HWND owner = CWnd::GetSafeOwner(nullptr, &top)->GetSafeHwnd();
    const int answer = ::MessageBox(owner, lpszPrompt, m_pszAppName, nType);
    if (top != nullptr) {
        ::EnableWindow(top, TRUE);
    }
    return answer;
}

// ---- Cursors and icons --------------------------------------------------------------------------

HCURSOR CWinApp::LoadStandardCursor(LPCTSTR lpszCursorName) const {
    return ::LoadCursor(nullptr, lpszCursorName);
}

HICON CWinApp::LoadIcon(LPCTSTR lpszResourceName) const {
    return ::LoadIcon(AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON), lpszResourceName);
}

HICON CWinApp::LoadIcon(UINT nIDResource) const {
    return LoadIcon(MAKEINTRESOURCE(nIDResource));
}
