// SPDX-License-Identifier: MIT
/// @file
/// CException, the simple exceptions, and the functions that throw them.
///
/// Exceptions are thrown by pointer. Who catches one with catch calls Delete() on it; CATCH does
/// that by itself.
#pragma once

#include "afx/CObject.h"

[[noreturn]] void AFXAPI AfxThrowMemoryException();
[[noreturn]] void AFXAPI AfxThrowNotSupportedException();
[[noreturn]] void AFXAPI AfxThrowInvalidArgException();
[[noreturn]] void AFXAPI AfxThrowResourceException();
[[noreturn]] void AFXAPI AfxThrowUserException();

/// Base of all exceptions of the framework.
class CException : public CObject {
    DECLARE_DYNAMIC(CException)
public:
    /// @param bAutoDelete true when the object stands on the heap, so that Delete() frees it.
    explicit CException(BOOL bAutoDelete);

    /// Frees the object if it stands on the heap.
    void Delete();
    /// Shows the message of the exception, or the string resource nMessageID when it has none.
    /// @return the answer of the message box.
    virtual int ReportError(UINT nType = MB_OK, UINT nMessageID = 0);

private:
    // Public in the classes that have a message; a handler may override either.
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError,
                                 PUINT pnHelpContext = nullptr) const;
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr);

    BOOL m_autoDelete = TRUE;
};

/// Base of exceptions with a fixed message, which needs no memory.
class CSimpleException : public CException {
    DECLARE_DYNAMIC(CSimpleException)
public:
    CSimpleException();
    explicit CSimpleException(BOOL bAutoDelete);

    /// Copies the message, cut off where the buffer ends.
    /// @param nMaxError size of the buffer, counting the terminating null.
    /// @return nonzero when there is a message.
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) override;

private:
    virtual const char* message() const noexcept = 0;
};

/// There is not enough memory.
class CMemoryException : public CSimpleException {
    DECLARE_DYNAMIC(CMemoryException)
public:
    CMemoryException();

private:
    friend void AFXAPI AfxThrowMemoryException();
    explicit CMemoryException(BOOL bAutoDelete);
    const char* message() const noexcept override;
};

/// The requested operation is not supported.
class CNotSupportedException : public CSimpleException {
    DECLARE_DYNAMIC(CNotSupportedException)
public:
    CNotSupportedException();

private:
    const char* message() const noexcept override;
};

/// An argument lies outside the range that the function accepts.
class CInvalidArgException : public CSimpleException {
    DECLARE_DYNAMIC(CInvalidArgException)
public:
    CInvalidArgException();

private:
    const char* message() const noexcept override;
};

/// A Windows resource cannot be found or created.
class CResourceException : public CSimpleException {
    DECLARE_DYNAMIC(CResourceException)
public:
    CResourceException();

private:
    const char* message() const noexcept override;
};

/// Stops an operation after the user has been told why.
class CUserException : public CSimpleException {
    DECLARE_DYNAMIC(CUserException)
public:
    CUserException();

private:
    const char* message() const noexcept override;
};
