// SPDX-License-Identifier: MIT
#include "Thrown.h"
#include "afx.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <stdexcept>
#include <string>

namespace {

/// An exception whose life can be watched.
class CWatchedException : public CException {
    DECLARE_DYNAMIC(CWatchedException)
public:
    CWatchedException() : CException(TRUE) { ++alive; }
    explicit CWatchedException(BOOL autoDelete) : CException(autoDelete) { ++alive; }
    ~CWatchedException() override { --alive; }

    static int alive;
};
int CWatchedException::alive = 0;
IMPLEMENT_DYNAMIC(CWatchedException, CException)

template <class EXCEPTION>
std::string Message(EXCEPTION& exception, UINT size = 200) {
    char text[200] = "untouched";
    UINT context = 99;
    EXPECT_TRUE(exception.GetErrorMessage(text, size, &context));
    EXPECT_EQ(0u, context);
    return text;
}

/// What the TRY blocks below do with an exception.
std::string Outcome(void (*action)()) {
    std::string outcome;
    TRY {
        action();
        outcome = "nothing";
    }
    CATCH(CFileException, e) {
        outcome = "file " + std::to_string(e->m_cause);
    }
    AND_CATCH(CWatchedException, e) {
        outcome = "watched";
    }
    AND_CATCH_ALL(e) {
        outcome = e->GetRuntimeClass()->m_lpszClassName;
    }
    END_CATCH_ALL
    return outcome;
}

} // namespace

TEST(BaseException, ThrowFunctionsThrowTheirClassAndCause) {
    using E = CFileException;
    for (int round = 0; round < 2; ++round) // the object for a lack of memory is used again
        EXPECT_TRUE(Throws<CMemoryException>([] { AfxThrowMemoryException(); }));
    EXPECT_TRUE(Throws<CNotSupportedException>([] { AfxThrowNotSupportedException(); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([] { AfxThrowInvalidArgException(); }));
    EXPECT_TRUE(Throws<CResourceException>([] { AfxThrowResourceException(); }));
    EXPECT_TRUE(Throws<CUserException>([] { AfxThrowUserException(); }));
    EXPECT_TRUE(Throws<CException>([] { THROW(new CUserException); }));
    const int badClass = CArchiveException::badClass;
    EXPECT_EQ(badClass,
              CauseOf<CArchiveException>([] { AfxThrowArchiveException(badClass, "x"); }));
    EXPECT_EQ(E::diskFull, CauseOf<E>([] { E::ThrowOsError(ERROR_DISK_FULL); }));
    EXPECT_EQ(E::fileNotFound, CauseOf<E>([] { E::ThrowErrno(ENOENT); }));
    EXPECT_EQ(E::none, E::OsErrorToException(NO_ERROR));
    EXPECT_EQ(E::badPath, E::OsErrorToException(ERROR_PATH_NOT_FOUND));
    EXPECT_EQ(E::sharingViolation, E::OsErrorToException(ERROR_SHARING_VIOLATION));
    EXPECT_EQ(E::genericException, E::OsErrorToException(123456));
    EXPECT_EQ(E::accessDenied, E::ErrnoToException(EACCES));
    EXPECT_EQ(E::genericException, E::ErrnoToException(12345));
}

TEST(BaseException, MessagesFitTheirBuffer) {
    CMemoryException memory;
    EXPECT_EQ("Out of memory.", Message(memory));
    EXPECT_EQ("Out", Message(memory, 4));
    EXPECT_FALSE(memory.GetErrorMessage(nullptr, 4));
    const CFileException file(CFileException::diskFull, ERROR_DISK_FULL, "C:\\a.txt");
    EXPECT_EQ("C:\\a.txt: the disk is full.", Message(file));
    const CFileException strange(99);
    EXPECT_EQ("A file: an unspecified error occurred.", Message(strange));
}

TEST(BaseException, DeleteFreesWhatStandsOnTheHeap) {
    (new CWatchedException)->Delete();
    EXPECT_EQ(0, CWatchedException::alive);
    CWatchedException onStack(FALSE);
    onStack.Delete();
    EXPECT_EQ(1, CWatchedException::alive);
}

TEST(BaseExceptionMacros, FirstMatchingBlockCatchesAndDeletes) {
    EXPECT_EQ("nothing", Outcome([] {}));
    EXPECT_EQ("file 14", Outcome([] { AfxThrowFileException(CFileException::endOfFile); }));
    EXPECT_EQ("watched", Outcome([] { THROW(new CWatchedException); }));
    EXPECT_EQ("CUserException", Outcome([] { AfxThrowUserException(); }));
    EXPECT_EQ(0, CWatchedException::alive);
}

// These macros open blocks that the formatter takes for something else.
// clang-format off
TEST(BaseExceptionMacros, ThrowLastPassesTheSameExceptionOn) {
    CException* inner = nullptr;
    CException* outer = nullptr;
    TRY {
        TRY { THROW(new CWatchedException); }
        CATCH(CWatchedException, e) { inner = e; THROW_LAST(); }
        END_CATCH
    }
    CATCH_ALL(e) { outer = e; EXPECT_EQ(1, CWatchedException::alive); }
    END_CATCH_ALL
    EXPECT_NE(nullptr, inner);
    EXPECT_EQ(inner, outer);
    EXPECT_EQ(0, CWatchedException::alive);
}
// clang-format on

TEST(BaseExceptionMacros, ExceptionFromACatchBlockReplacesTheFirst) {
    EXPECT_TRUE(Throws<CUserException>([] {
        TRY {
            THROW(new CWatchedException);
        }
        CATCH(CWatchedException, e) {
            EXPECT_EQ(1, CWatchedException::alive);
            AfxThrowUserException();
        }
        END_CATCH
    }));
    EXPECT_EQ(0, CWatchedException::alive);
}

TEST(BaseExceptionMacros, ForeignExceptionsPassThrough) {
    EXPECT_THROW(Outcome([] { throw std::runtime_error("foreign"); }), std::runtime_error);
}
