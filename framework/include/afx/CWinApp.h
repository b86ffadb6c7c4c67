// SPDX-License-Identifier: MIT
/// @file
/// CWinApp: the application; and the functions that ask for it and its resources.
#pragma once

#include "afx/CWinThread.h"

/// The application; a program has one global object of a class derived from it.
///
/// The names are allocated with malloc and freed by the destructor.
class CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)

public:
    explicit CWinApp(LPCTSTR lpszAppName = NULL);
    ~CWinApp() override;

    HINSTANCE m_hInstance;
    LPTSTR m_lpCmdLine;
    /// How the main window is to be shown; for CWnd::ShowWindow.
    int m_nCmdShow;
    LPCTSTR m_pszAppName;
    /// Name of the executable file without extension.
    LPCTSTR m_pszExeName;
    LPCTSTR m_pszHelpFilePath;
    /// Name of the INI file, or of the application's registry key under the company's.
    LPCTSTR m_pszProfileName;
    /// The company's registry key; null while the profile is an INI file.
    LPCTSTR m_pszRegistryKey;

    /// @name Profile: settings in the registry, after SetRegistryKey(), or in an INI file
    /// @{
    UINT GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault);
    BOOL WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue);
    CString GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = NULL);
    /// A null value deletes the entry; a null entry deletes the section.
    BOOL WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);
    /// Deletes a key and everything below it. @return a Windows error code.
    LONG DelRegTree(HKEY hParentKey, const CString& strKeyName);
    /// @}

    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const;
    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    HICON LoadIcon(UINT nIDResource) const;

    BOOL InitInstance() override;
    int ExitInstance() override;
    int Run() override;
    BOOL OnIdle(LONG lCount) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    LRESULT ProcessWndProcException(CException* e, const MSG* pMsg) override;
    /// Shows the box of AfxMessageBox().
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);

protected:
    void SetRegistryKey(LPCTSTR lpszRegistryKey);

    DECLARE_MESSAGE_MAP()

private:
    void InitNames();
    void OnAppExit();
    HKEY OpenAppKey();
    HKEY OpenSectionKey(LPCTSTR section);

    // Not for programs, which have one application: a test puts its own in the place of another.
    CWinApp* const m_outerApp;
    CWinThread* const m_outerThread;
};

/// The application object; null in a program without one.
CWinApp* AFXAPI AfxGetApp();
/// The main window of the calling thread; null when the thread has no object or no window.
CWnd* AFXAPI AfxGetMainWnd();
HINSTANCE AFXAPI AfxGetInstanceHandle();
HINSTANCE AFXAPI AfxGetResourceHandle();
void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource);
/// The module a resource is to be loaded from.
HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);

/// Shows a message box owned by the main window, through CWinApp::DoMessageBox.
int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
/// Copies the part of that index out of a separated list. FALSE when there are not so many.
BOOL AFXAPI AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString,
                                TCHAR chSep = '\n');

/// Prepares the framework; the program's own main function calls it if WinMain is not used.
BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine,
                       int nCmdShow);
/// The framework's main function: prepares, runs and ends the application.
int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
/// Loads the rich edit control, version 2.0 and later; once is enough. FALSE when there is none.
BOOL AFXAPI AfxInitRichEdit2();
