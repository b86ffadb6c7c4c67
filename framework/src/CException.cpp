// SPDX-License-Identifier: MIT
#include "afx/CException.h"

#include "MessageBuffer.h"
#include "afx/CString.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

// The framework's message box; declared here because this layer knows no windows.
int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp);

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)

namespace afx {

BOOL CopyMessage(const char* message, char* buffer, UINT size, UINT* helpContext) noexcept {
    if (helpContext != nullptr) {
        *helpContext = 0;
    }
    if (buffer == nullptr || size == 0) {
        return FALSE;
    }
    const size_t length = (std::min)(std::strlen(message), static_cast<size_t>(size) - 1);
    std::memcpy(buffer, message, length);
    buffer[length] = '\0';
    return *message != '\0';
}

} // namespace afx

CException::CException(BOOL bAutoDelete) : m_autoDelete(bAutoDelete) {}

void CException::Delete() {
    if (m_autoDelete) {
        delete this;
    }
}

BOOL CException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    return afx::CopyMessage("", lpszError, nMaxError, pnHelpContext);
}

BOOL CException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) {
    return static_cast<const CException*>(this)->GetErrorMessage(lpszError, nMaxError,
                                                                 pnHelpContext);
}

int CException::ReportError(UINT nType, UINT nMessageID) {
    char message[512];
    UINT helpContext = 0;
    if (GetErrorMessage(message, sizeof(message), &helpContext)) {
        return AfxMessageBox(message, nType, helpContext);
    }
    CString text;
    if (nMessageID == 0 || !text.LoadString(nMessageID)) {
        text = "No error message is available.";
    }
    return AfxMessageBox(text, nType, nMessageID);
}

CSimpleException::CSimpleException() : CException(TRUE) {}
CSimpleException::CSimpleException(BOOL bAutoDelete) : CException(bAutoDelete) {}

BOOL CSimpleException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) {
    return afx::CopyMessage(message(), lpszError, nMaxError, pnHelpContext);
}

CMemoryException::CMemoryException() = default;
CMemoryException::CMemoryException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}
const char* CMemoryException::message() const noexcept {
    return "Out of memory.";
}

CNotSupportedException::CNotSupportedException() = default;
const char* CNotSupportedException::message() const noexcept {
    return "The operation is not supported.";
}

CInvalidArgException::CInvalidArgException() = default;
const char* CInvalidArgException::message() const noexcept {
    return "An argument is invalid.";
}

CResourceException::CResourceException() = default;
const char* CResourceException::message() const noexcept {
    return "A resource cannot be found or created.";
}

CUserException::CUserException() = default;
const char* CUserException::message() const noexcept {
    return "The operation was ended.";
}

void AFXAPI AfxThrowMemoryException() {
    // Made in advance: when it is needed there may be no memory for it.
    static CMemoryException exception(FALSE);
    throw &exception;
}

void AFXAPI AfxThrowNotSupportedException() {
    throw new CNotSupportedException;
}

void AFXAPI AfxThrowInvalidArgException() {
    throw new CInvalidArgException;
}

void AFXAPI AfxThrowResourceException() {
    throw new CResourceException;
}

void AFXAPI AfxThrowUserException() {
    throw new CUserException;
}

void AFXAPI AfxAbort() {
    std::abort();
}
