// SPDX-License-Identifier: MIT
#pragma once

#include "image/JpegLibrary.h"

#include <csetjmp>

namespace tint {

/// The error manager of a JPEG decoder or encoder: errors end the library call and leave a text,
/// warnings are passed over without a word.
///
/// The library's error routine must not return.  It is left by longjmp, the way the library is
/// written for; an exception would depend on how the library was compiled.  A jump runs no
/// destructors, so what lies between Run and the error must own nothing: the library's own C frames,
/// which keep their memory in pools, the callbacks, and `step`.  Hence steps are plain functions
/// that work on objects owned outside of Run.
class JpegErrors : public jpeg_error_mgr {
public:
    JpegErrors();
    JpegErrors(const JpegErrors&) = delete;
    JpegErrors& operator=(const JpegErrors&) = delete;

    /// Calls `step(context)`, which may call the library but owns nothing.
    /// @return false when an error ended it; Text says which
    bool Run(void (*step)(void*), void* context);

    /// The last error, "" if there was none.
    const char* Text() const { return m_text; }

    /// Ends the step with a text, from within a library call of it.
    [[noreturn]] static void Fail(j_common_ptr object, const char* text);

private:
    [[noreturn]] static void Exit(j_common_ptr object);

    jmp_buf m_recovery;
    char m_text[JMSG_LENGTH_MAX];
};

} // namespace tint
