// SPDX-License-Identifier: MIT
#include "image/JpegErrors.h"

namespace tint {

JpegErrors::JpegErrors() : jpeg_error_mgr(), m_recovery(), m_text() {
    jpeg_std_error(this);
    error_exit = Exit;
    output_message = [](j_common_ptr) {}; // the library's own would write to stderr
}

bool JpegErrors::Run(void (*step)(void*), void* context) {
    m_text[0] = '\0';
#ifdef _MSC_VER
#pragma warning(suppress : 4611) // the jump meets no destructors, see the class
#endif
    if (setjmp(m_recovery))
        return false;
    step(context);
    return true;
}

void JpegErrors::Fail(j_common_ptr object, const char* text) {
    JpegErrors& errors = *static_cast<JpegErrors*>(object->err);
    snprintf(errors.m_text, sizeof(errors.m_text), "%s", text);
    longjmp(errors.m_recovery, 1);
}

void JpegErrors::Exit(j_common_ptr object) {
    JpegErrors& errors = *static_cast<JpegErrors*>(object->err);
    errors.format_message(object, errors.m_text);
    longjmp(errors.m_recovery, 1);
}

} // namespace tint
