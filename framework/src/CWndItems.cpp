// SPDX-License-Identifier: MIT
// CWnd: the items of a dialog and the data that is exchanged with them.
#include <afxwin.h>

#include <cstring>
#include <utility>

#include "ModuleState.h"
#include "CmdUIAccess.h"
#include "ThreadState.h"

CWnd* CWnd::GetDlgItem(int nID) const {
    return FromHandle(::GetDlgItem(m_hWnd, nID));
}

void CWnd::GetDlgItem(int nID, HWND* phWnd) const {
    *phWnd = ::GetDlgItem(m_hWnd, nID);
}

namespace {

bool IsEligible(HWND hWnd, bool onlyPermanent) {
    return hWnd != nullptr && (!onlyPermanent || CWnd::FromHandlePermanent(hWnd) != nullptr);
}

HWND FindDescendant(HWND parent, int id, bool onlyPermanent) {
    const HWND direct = ::GetDlgItem(parent, id);
    if (IsEligible(direct, onlyPermanent)) {
        return direct;
    }
    for (HWND child = ::GetTopWindow(parent); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (const HWND found = FindDescendant(child, id, onlyPermanent)) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

CWnd* CWnd::GetDescendantWindow(int nID, BOOL bOnlyPerm) const {
    return FromHandle(FindDescendant(m_hWnd, nID, bOnlyPerm != FALSE));
}

int CWnd::GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const {
    return static_cast<int>(::GetDlgItemText(m_hWnd, nID, lpStr, nMaxCount));
}

int CWnd::GetDlgItemText(int nID, CString& rString) const {
    rString.Empty();
    if (const CWnd* const item = GetDlgItem(nID)) {
        item->GetWindowText(rString);
    }
    return rString.GetLength();
}

void CWnd::SetDlgItemText(int nID, LPCTSTR lpszString) {
    ::SetDlgItemText(m_hWnd, nID, lpszString);
}

void CWnd::CheckDlgButton(int nIDButton, UINT nCheck) {
    ::CheckDlgButton(m_hWnd, nIDButton, nCheck);
}

UINT CWnd::IsDlgButtonChecked(int nIDButton) const {
    return ::IsDlgButtonChecked(m_hWnd, nIDButton);
}

LRESULT CWnd::SendDlgItemMessage(int nID, UINT message, WPARAM wParam, LPARAM lParam) {
    return ::SendDlgItemMessage(m_hWnd, nID, message, wParam, lParam);
}

BOOL CWnd::IsDialogMessage(LPMSG lpMsg) {
    return ::IsDialogMessage(m_hWnd, lpMsg);
}

// ---- Initial contents ---------------------------------------------------------------------------

namespace {

/// Reads the entries of an RT_DLGINIT resource, never behind its end.
class DlgInitReader {
public:
    DlgInitReader(const BYTE* data, size_t size) : m_next(data), m_left(size) {}

    /// Reads one entry. False at the end or where the resource is cut off.
    bool Read(WORD& id, WORD& message, const BYTE*& data, DWORD& length) {
        if (!Take(id) || id == 0 || !Take(message) || !Take(length) || length > m_left) {
            return false;
        }
        data = m_next;
        m_next += length;
        m_left -= length;
        return true;
    }

private:
    template <class T>
    bool Take(T& value) {
        if (m_left < sizeof(value)) {
            return false;
        }
        std::memcpy(&value, m_next, sizeof(value));
        m_next += sizeof(value);
        m_left -= sizeof(value);
        return true;
    }

    const BYTE* m_next;
    size_t m_left;
};

// The resource editor still writes the numbers that two messages had in the 16-bit system.
UINT PresentMessage(WORD stored) {
    switch (stored) {
    case 0x0403:
        return CB_ADDSTRING;
    case 0x0401:
        return LB_ADDSTRING;
    default:
        return stored;
    }
}

/// True when the data of an entry is a string that ends inside the entry.
bool IsString(const BYTE* data, DWORD length) {
    return length > 0 && data[length - 1] == '\0';
}

BOOL SendDlgInit(CWnd& dialog, const BYTE* data, size_t size) {
    DlgInitReader reader(data, size);
    WORD id = 0;
    WORD stored = 0;
    const BYTE* contents = nullptr;
    DWORD length = 0;
    while (reader.Read(id, stored, contents, length)) {
        const UINT message = PresentMessage(stored);
        const bool addsString = message == CB_ADDSTRING || message == LB_ADDSTRING;
        // Other messages take other data, which nobody could check here.
        if (!addsString || !IsString(contents, length)) {
            continue;
        }
        if (dialog.SendDlgItemMessage(id, message, 0, reinterpret_cast<LPARAM>(contents)) < 0) {
            return FALSE;
        }
    }
    return TRUE;
}

/// What can be read from there on, for a resource that only its end marker delimits.
size_t ReadableSize(const void* data) {
    MEMORY_BASIC_INFORMATION region = {};
    if (::VirtualQuery(data, &region, sizeof(region)) == 0 || region.State != MEM_COMMIT) {
        return 0;
    }
    const auto* const end = static_cast<const BYTE*>(region.BaseAddress) + region.RegionSize;
    return static_cast<size_t>(end - static_cast<const BYTE*>(data));
}

} // namespace

BOOL CWnd::ExecuteDlgInit(LPCTSTR lpszResourceName) {
    if (lpszResourceName == nullptr) {
        return TRUE;
    }
    const LPCTSTR type = MAKEINTRESOURCE(AFX_RT_DLGINIT);
    const HINSTANCE module = AfxFindResourceHandle(lpszResourceName, type);
    const HRSRC resource = ::FindResource(module, lpszResourceName, type);
    if (resource == nullptr) {
        return TRUE; // a dialog need not have one
    }
    const HGLOBAL loaded = ::LoadResource(module, resource);
    const auto* const data = static_cast<const BYTE*>(::LockResource(loaded));
    return data != nullptr && SendDlgInit(*this, data, ::SizeofResource(module, resource));
}

BOOL CWnd::ExecuteDlgInit(LPVOID lpResource) {
    return lpResource == nullptr ||
           SendDlgInit(*this, static_cast<const BYTE*>(lpResource), ReadableSize(lpResource));
}

// ---- Data exchange ------------------------------------------------------------------------------

void CWnd::DoDataExchange(CDataExchange*) {}

namespace {

/// Keeps the notifications away that the controls send while they are loaded.
class NotificationLock {
public:
    explicit NotificationLock(HWND hWnd)
        : m_outer(std::exchange(afx::CurrentThread().exchanging, hWnd)) {}
    ~NotificationLock() { afx::CurrentThread().exchanging = m_outer; }
    NotificationLock(const NotificationLock&) = delete;
    NotificationLock& operator=(const NotificationLock&) = delete;

private:
    const HWND m_outer;
};

} // namespace

BOOL CWnd::UpdateData(BOOL bSaveAndValidate) {
    ASSERT(::IsWindow(m_hWnd));
    const NotificationLock lock(m_hWnd);
    CDataExchange exchange(this, bSaveAndValidate);
    try {
        DoDataExchange(&exchange);
        return TRUE;
    } catch (CUserException* e) {
        e->Delete(); // the user has been told
    } catch (CException* e) {
        e->ReportError(MB_ICONEXCLAMATION);
        e->Delete();
    }
    return FALSE;
}

// ---- Idle update --------------------------------------------------------------------------------

namespace {

bool IsPushButton(HWND hWnd) {
    const LRESULT code = ::SendMessage(hWnd, WM_GETDLGCODE, 0, 0);
    return (code & (DLGC_UNDEFPUSHBUTTON | DLGC_DEFPUSHBUTTON)) != 0;
}

} // namespace

void CWnd::UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler) {
    const int reflected = static_cast<int>(
        MAKELONG(static_cast<WORD>(CN_UPDATE_COMMAND_UI), afx::ReflectFlag | WORD{WM_COMMAND}));
    for (HWND hWnd = ::GetTopWindow(m_hWnd); hWnd != nullptr;
         hWnd = ::GetWindow(hWnd, GW_HWNDNEXT)) {
        CCmdUI state;
        state.m_nID = LOWORD(::GetDlgCtrlID(hWnd));
        state.m_pOther = FromHandle(hWnd);
        // The control itself comes first, then the window, then the target.
        if (state.m_pOther->OnCmdMsg(0, reflected, &state, nullptr) ||
            CWnd::OnCmdMsg(state.m_nID, CN_UPDATE_COMMAND_UI, &state, nullptr)) {
            continue;
        }
        afx::CmdUIAccess::DoUpdate(state, pTarget, bDisableIfNoHndler && IsPushButton(hWnd));
    }
}
