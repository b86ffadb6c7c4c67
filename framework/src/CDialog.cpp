// SPDX-License-Identifier: MIT
#include <afxwin.h>

#include <new>

#include "CreationHook.h"
#include "Handles.h"
#include "WndAccess.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
    ON_MESSAGE(WM_SETFONT, &CDialog::OnSetFontMessage)
END_MESSAGE_MAP()

CDialog::CDialog()
    : m_templateName(nullptr), m_template(nullptr), m_dialogInit(nullptr), m_parent(nullptr) {}

CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd) : CDialog() {
    SetTemplate(lpszTemplateName);
    m_parent = pParentWnd;
}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd)
    : CDialog(MAKEINTRESOURCE(nIDTemplate), pParentWnd) {}

void CDialog::SetTemplate(LPCTSTR templateName) {
    if (IS_INTRESOURCE(templateName)) {
        m_templateName = templateName;
    } else {
        m_templateNameCopy = templateName;
        m_templateName = m_templateNameCopy;
    }
}

// ---- Templates ----------------------------------------------------------------------------------

namespace {

/// A dialog template that is in memory while the object exists.
class LoadedTemplate {
public:
    explicit LoadedTemplate(LPCTSTR resourceName)
        : m_instance(AfxFindResourceHandle(resourceName, RT_DIALOG)) {
        if (const HRSRC resource = ::FindResource(m_instance, resourceName, RT_DIALOG)) {
            m_template =
                static_cast<LPCDLGTEMPLATE>(::LockResource(::LoadResource(m_instance, resource)));
        }
    }
    explicit LoadedTemplate(HGLOBAL handle)
        : m_instance(AfxGetResourceHandle()), m_handle(handle),
          m_template(static_cast<LPCDLGTEMPLATE>(::GlobalLock(handle))) {}
    explicit LoadedTemplate(LPCDLGTEMPLATE dialogTemplate)
        : m_instance(AfxGetResourceHandle()), m_template(dialogTemplate) {}
    ~LoadedTemplate() {
        if (m_handle != nullptr) {
            ::GlobalUnlock(m_handle);
        }
    }
    LoadedTemplate(const LoadedTemplate&) = delete;
    LoadedTemplate& operator=(const LoadedTemplate&) = delete;

    LPCDLGTEMPLATE Get() const { return m_template; }
    HINSTANCE Instance() const { return m_instance; }

private:
    const HINSTANCE m_instance;
    const HGLOBAL m_handle = nullptr;
    LPCDLGTEMPLATE m_template = nullptr;
};

/// The classes of the common controls are registered when the first dialog needs them.
void RegisterCommonControls() {
    static const BOOL registered = [] {
        INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_WIN95_CLASSES | ICC_BAR_CLASSES |
                                                             ICC_DATE_CLASSES | ICC_COOL_CLASSES |
                                                             ICC_USEREX_CLASSES};
        return ::InitCommonControlsEx(&classes);
    }();
    UNUSED_ALWAYS(registered);
}

} // namespace

BOOL CDialog::CreateFromTemplate(LPCDLGTEMPLATE dialogTemplate, CWnd* owner, HINSTANCE instance) {
    ASSERT(m_hWnd == nullptr);
    if (dialogTemplate == nullptr) {
        return FALSE;
    }
    RegisterCommonControls();
    const afx::CreationHook hook(this);
    return hook.Finish(::CreateDialogIndirectParam(instance, dialogTemplate, afx::WindowOf(owner),
                                                   &CDialog::DialogProc, 0));
}

INT_PTR CALLBACK CDialog::DialogProc(HWND hwnd, UINT message, WPARAM, LPARAM) {
    if (message != WM_INITDIALOG) {
        return FALSE;
    }
    auto* const dialog = DYNAMIC_DOWNCAST(CDialog, FromHandlePermanent(hwnd));
    if (dialog == nullptr) {
        return TRUE;
    }
    // Between this procedure and ours lies the system's: an exception ends here.
    try {
        return dialog->OnInitDialog();
    } catch (CException* e) {
        afx::AnswerException(e, *GetCurrentMessage());
    } catch (const std::bad_alloc&) {
        afx::AnswerException(afx::MemoryException(), *GetCurrentMessage());
    }
    dialog->EndDialog(-1);
    return FALSE;
}

// ---- Modeless dialogs ---------------------------------------------------------------------------

namespace {

CWnd* OwnerOrMain(CWnd* owner) {
    return owner != nullptr ? owner : AfxGetMainWnd();
}

} // namespace

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd) {
    SetTemplate(lpszTemplateName);
    const LoadedTemplate loaded(m_templateName);
    return CreateFromTemplate(loaded.Get(), OwnerOrMain(pParentWnd), loaded.Instance());
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd) {
    return Create(MAKEINTRESOURCE(nIDTemplate), pParentWnd);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd,
                             void* lpDialogInit) {
    m_dialogInit = lpDialogInit;
    return CreateFromTemplate(lpDialogTemplate, OwnerOrMain(pParentWnd), AfxGetResourceHandle());
}

BOOL CDialog::CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd) {
    const LoadedTemplate loaded(hDialogTemplate);
    return CreateIndirect(loaded.Get(), pParentWnd);
}

// ---- Modal dialogs ------------------------------------------------------------------------------

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd,
                                void* lpDialogInit) {
    m_template = lpDialogTemplate;
    m_dialogInit = lpDialogInit;
    m_parent = pParentWnd;
    return lpDialogTemplate != nullptr;
}

INT_PTR CDialog::DoModal() {
    if (m_template != nullptr) {
        const LoadedTemplate loaded(m_template);
        return RunModal(loaded.Get(), loaded.Instance());
    }
    ASSERT(m_templateName != nullptr);
    const LoadedTemplate loaded(m_templateName);
    return RunModal(loaded.Get(), loaded.Instance());
}

INT_PTR CDialog::RunModal(LPCDLGTEMPLATE dialogTemplate, HINSTANCE instance) {
    if (dialogTemplate == nullptr) {
        return -1;
    }
    HWND top = nullptr;
    CWnd* const owner = GetSafeOwner(m_parent, &top);
    const HWND ownerHandle = afx::WindowOf(owner);
    const bool disableOwner = ownerHandle != nullptr && ownerHandle != ::GetDesktopWindow() &&
                              ::IsWindowEnabled(ownerHandle);
    if (disableOwner) {
        ::EnableWindow(ownerHandle, FALSE);
    }
    // OnInitDialog() may end the dialog before its loop begins.
    m_modal = true;
    m_modalResult = -1;
    INT_PTR result = -1;
    try {
        if (CreateFromTemplate(dialogTemplate, owner, instance)) {
            result = m_modal ? RunModalLoop(MLF_SHOWONIDLE) : m_modalResult;
        }
    } catch (CException* e) {
        e->Delete();
        result = IDABORT;
    } catch (const std::bad_alloc&) {
        result = IDABORT; // the owner must not stay disabled
    }
    m_modal = false;
    EndModal(disableOwner ? ownerHandle : nullptr, top);
    return result;
}

/// Destroys the dialog. What was disabled for it is enabled first: an owner that still is disabled
/// could not become the active window, and another program's would.
void CDialog::EndModal(HWND owner, HWND top) {
    if (owner != nullptr) {
        ::EnableWindow(owner, TRUE);
    }
    if (top != nullptr) {
        ::EnableWindow(top, TRUE);
    }
    if (m_hWnd == nullptr) {
        return;
    }
    const bool wasActive = ::GetActiveWindow() == m_hWnd;
    SetWindowPos(nullptr, 0, 0, 0, 0,
                 SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    if (wasActive && owner != nullptr) {
        ::SetActiveWindow(owner);
    }
    DestroyWindow();
}

void CDialog::EndDialog(int nResult) {
    if (m_modal) {
        EndModalLoop(nResult);
    } else {
        ::EndDialog(m_hWnd, nResult);
    }
}

// ---- Overridables -------------------------------------------------------------------------------

BOOL CDialog::OnInitDialog() {
    const BOOL filled =
        m_dialogInit != nullptr ? ExecuteDlgInit(m_dialogInit) : ExecuteDlgInit(m_templateName);
    if (!filled || !UpdateData(FALSE)) {
        TRACE("Warning: the contents of a dialog could not be loaded.\n");
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

void CDialog::OnOK() {
    if (UpdateData(TRUE)) {
        EndDialog(IDOK);
    }
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

void CDialog::OnSetFont(CFont*) {}

LRESULT CDialog::OnSetFontMessage(WPARAM wParam, LPARAM) {
    OnSetFont(CFont::FromHandle(reinterpret_cast<HFONT>(wParam)));
    return Default();
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg)) {
        return TRUE;
    }
    const bool isInput = (pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST) ||
                         (pMsg->message >= WM_MOUSEFIRST && pMsg->message <= WM_MOUSELAST);
    return isInput && IsDialogMessage(pMsg);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    // A button with the identifier of a command gives the command to the owner.
    constexpr UINT firstCommand = 0x8000;
    constexpr UINT firstSystemCommand = 0xF000;
    const bool isCommand = (nCode == CN_COMMAND || nCode == CN_UPDATE_COMMAND_UI) &&
                           nID >= firstCommand && nID < firstSystemCommand;
    if (!isCommand) {
        return FALSE;
    }
    CWnd* const owner = GetParent();
    if (owner != nullptr && owner->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    CWinThread* const thread = AfxGetThread();
    return thread != nullptr && thread->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

// ---- Operations ---------------------------------------------------------------------------------

void CDialog::MapDialogRect(LPRECT lpRect) const {
    ::MapDialogRect(m_hWnd, lpRect);
}

void CDialog::SetDefID(UINT nID) {
    ::SendMessage(m_hWnd, DM_SETDEFID, nID, 0);
}

DWORD CDialog::GetDefID() const {
    return static_cast<DWORD>(::SendMessage(m_hWnd, DM_GETDEFID, 0, 0));
}
