// SPDX-License-Identifier: MIT
// Part of every Windows test program: a crash anywhere in it makes the test fail.
//
// Left to itself, a crash can look like success. Wine swallows a fault in a hook or while painting
// and lets the program go on; and where it ends the program for a fault in a second thread, the
// exit status can be 0. So the fault is met before anybody else's handler sees it.
#include <windows.h>

#include <cstdio>

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

void Write(const char* text, int length) {
    DWORD written = 0;
    ::WriteFile(::GetStdHandle(STD_ERROR_HANDLE), text, static_cast<DWORD>(length), &written,
                nullptr);
}

/// Writes an address as the module it lies in and the offset there, for addr2line.
void WriteFrame(DWORD64 address) {
    HMODULE module = nullptr;
    ::GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                             GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         reinterpret_cast<const char*>(address), &module);
    static char name[MAX_PATH];
    name[0] = '\0';
    if (module != nullptr)
        ::GetModuleFileNameA(module, name, sizeof name);
    static char line[MAX_PATH + 64];
    Write(line, std::snprintf(line, sizeof line, "    %s + %llx\n", name,
                              address - reinterpret_cast<DWORD64>(module)));
}

/// Writes the calls that led to the crash. @param context  is used up
void WriteStack(CONTEXT& context) {
    for (int depth = 0; depth < 48 && context.Rip != 0; ++depth) {
        WriteFrame(context.Rip);
        DWORD64 base = 0, frame = 0;
        void* data = nullptr;
        RUNTIME_FUNCTION* const function = ::RtlLookupFunctionEntry(context.Rip, &base, nullptr);
        if (function != nullptr) {
            ::RtlVirtualUnwind(UNW_FLAG_NHANDLER, base, context.Rip, function, &context, &data,
                               &frame, nullptr);
        } else {
            context.Rip = *reinterpret_cast<DWORD64*>(context.Rsp);
            context.Rsp += sizeof(DWORD64);
        }
    }
}

/// Takes little of the stack, for there may be next to none left.
LONG CALLBACK EndOnCrash(EXCEPTION_POINTERS* exception) {
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    if (!IsFatal(record.ExceptionCode))
        return EXCEPTION_CONTINUE_SEARCH;
    static bool telling = false; // a fault while telling of one ends the program at once
    if (!telling) {
        telling = true;
        static char line[64];
        Write(line, std::snprintf(line, sizeof line, "The test program has crashed: %08lx at\n",
                                  record.ExceptionCode));
        static CONTEXT context;
        context = *exception->ContextRecord;
        WriteStack(context);
    }
    ::TerminateProcess(::GetCurrentProcess(), 3); // as abort() does
    return EXCEPTION_CONTINUE_SEARCH;
}

[[maybe_unused]] const PVOID g_guard = ::AddVectoredExceptionHandler(TRUE, EndOnCrash);

} // namespace
