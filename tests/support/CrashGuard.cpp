// SPDX-License-Identifier: MIT
// Part of every Windows test program: a crash anywhere in it makes the test fail.
//
// Left to itself, a crash can look like success. Wine swallows a fault in a hook or while painting
// and lets the program go on; and where it ends the program for a fault in a second thread, the
// exit status can be 0. So the fault is met before anybody else's handler sees it.
#include <windows.h>

namespace {

bool IsFatal(DWORD code) {
    switch (code) {
    case EXCEPTION_ACCESS_VIOLATION:
    case EXCEPTION_BREAKPOINT:
    case EXCEPTION_ILLEGAL_INSTRUCTION:
    case EXCEPTION_INT_DIVIDE_BY_ZERO:
    case EXCEPTION_STACK_OVERFLOW:
        return true;
    default:
        return false; // among them C++ exceptions on their way
    }
}

/// Writes a number in 16 hexadecimal digits.
void WriteHex(char* digits, ULONG_PTR value) {
    for (int i = 15; i >= 0; --i, value >>= 4)
        digits[i] = "0123456789abcdef"[value & 0xF];
}

/// Takes no more than what is left of the stack after an overflow.
LONG CALLBACK EndOnCrash(EXCEPTION_POINTERS* exception) {
    if (IsFatal(exception->ExceptionRecord->ExceptionCode)) {
        // The address tells whose code it was: the program lies at 140000000.
        static char text[] = "The test program has crashed at ................\n";
        WriteHex(text + sizeof text - 18,
                 reinterpret_cast<ULONG_PTR>(exception->ExceptionRecord->ExceptionAddress));
        DWORD written = 0;
        ::WriteFile(::GetStdHandle(STD_ERROR_HANDLE), text, sizeof text - 1, &written, nullptr);
        ::TerminateProcess(::GetCurrentProcess(), 3); // as abort() does
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

[[maybe_unused]] const PVOID g_guard = ::AddVectoredExceptionHandler(TRUE, EndOnCrash);

} // namespace
