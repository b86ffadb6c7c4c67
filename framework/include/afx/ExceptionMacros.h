// SPDX-License-Identifier: MIT
/// @file
/// TRY, CATCH, THROW and their relatives.
///
///     TRY {
///         file.Write(data, size);
///     }
///     CATCH(CFileException, e) {
///         if (e->m_cause != CFileException::diskFull) {
///             THROW_LAST();
///         }
///     }
///     END_CATCH
#pragma once

#include "afx/CException.h"

namespace afx {
/// Deletes the exception that a CATCH block has caught when the block is left.
class CaughtException {
public:
    CaughtException() = default;
    ~CaughtException() {
        if (m_exception != nullptr) {
            m_exception->Delete();
        }
    }
    CaughtException(const CaughtException&) = delete;
    CaughtException& operator=(const CaughtException&) = delete;

    void hold(CException* exception) noexcept { m_exception = exception; }
    void release() noexcept { m_exception = nullptr; }

private:
    CException* m_exception = nullptr;
};
} // namespace afx

#define TRY                             \
    {                                   \
        afx::CaughtException afxCaught; \
        try {

#define CATCH(exception_class, e) \
    }                             \
    catch (exception_class * e) { \
        afxCaught.hold(e);

#define AND_CATCH(exception_class, e) CATCH(exception_class, e)

#define END_CATCH \
    }             \
    }

#define CATCH_ALL(e) CATCH(CException, e)
#define AND_CATCH_ALL(e) CATCH(CException, e)
#define END_CATCH_ALL END_CATCH

#define THROW(e) throw e
/// Inside a CATCH block: passes the caught exception on to the next outer handler.
#define THROW_LAST() (afxCaught.release(), throw)
