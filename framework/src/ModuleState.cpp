// SPDX-License-Identifier: MIT
#include "ModuleState.h"

#include <atomic>

namespace afx {
namespace {

// Null stands for the default, so that nothing depends on the order of static initialization.
std::atomic<HINSTANCE> g_instance{nullptr};
std::atomic<HINSTANCE> g_resources{nullptr};

} // namespace

HINSTANCE InstanceHandle() noexcept {
    const HINSTANCE instance = g_instance.load();
    return instance != nullptr ? instance : ::GetModuleHandleA(nullptr);
}

void SetInstanceHandle(HINSTANCE instance) noexcept {
    g_instance.store(instance);
}

HINSTANCE ResourceHandle() noexcept {
    const HINSTANCE resources = g_resources.load();
    return resources != nullptr ? resources : InstanceHandle();
}

void SetResourceHandle(HINSTANCE resources) noexcept {
    g_resources.store(resources);
}

} // namespace afx
