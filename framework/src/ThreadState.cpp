// SPDX-License-Identifier: MIT
#include "ThreadState.h"

#include <memory>

namespace {

void CALLBACK EndThread(void* state) {
    const std::unique_ptr<afx::ThreadState> ended(static_cast<afx::ThreadState*>(state));
}

} // namespace

afx::ThreadState& afx::CurrentThread() {
    // A thread_local object would be gone before the program's globals, which still ask for it.
    static const DWORD slot = ::FlsAlloc(&EndThread);
    if (void* const known = ::FlsGetValue(slot)) {
        return *static_cast<ThreadState*>(known);
    }
    auto state = std::make_unique<ThreadState>();
    ::FlsSetValue(slot, state.get());
    return *state.release();
}
