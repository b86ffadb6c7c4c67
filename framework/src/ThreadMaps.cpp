// SPDX-License-Identifier: MIT
#include "ThreadMaps.h"

#include <afx.h>

#include <atomic>
#include <vector>

namespace afx {
namespace {

using Maps = std::vector<std::unique_ptr<ThreadMap>>;

void CALLBACK EndThread(void* maps);

// A thread_local object would not do: in GCC's emulation for Windows its memory can be gone before
// its destructor runs, and in the main thread it goes before the globals.
DWORD Slot() {
    static const DWORD slot = ::FlsAlloc(EndThread);
    return slot;
}

/// Called by the system on the thread that ends, with what it kept in the slot.
void CALLBACK EndThread(void* data) {
    const std::unique_ptr<Maps> maps(static_cast<Maps*>(data));
    ::FlsSetValue(Slot(), data); // emptied by the system before the call
    for (std::size_t kind = 0; kind < maps->size(); ++kind) {
        if ((*maps)[kind] != nullptr) {
            (*maps)[kind]->DeleteTemp();
        }
    }
    ::FlsSetValue(Slot(), nullptr);
}

Maps& CurrentMaps() {
    if (void* const known = ::FlsGetValue(Slot())) {
        return *static_cast<Maps*>(known);
    }
    auto maps = std::make_unique<Maps>();
    if (!::FlsSetValue(Slot(), maps.get())) {
        AfxThrowMemoryException();
    }
    return *maps.release();
}

} // namespace

std::size_t NewThreadMapKind() {
    static std::atomic<std::size_t> kinds{0};
    return kinds++;
}

std::unique_ptr<ThreadMap>& ThreadMapPlace(std::size_t kind) {
    Maps& maps = CurrentMaps();
    if (kind >= maps.size()) {
        maps.resize(kind + 1);
    }
    return maps[kind];
}

} // namespace afx
