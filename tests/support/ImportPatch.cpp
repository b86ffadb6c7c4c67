// SPDX-License-Identifier: MIT
#include "tests/support/ImportPatch.h"

namespace {

void WriteSlot(void** slot, void* value) {
    DWORD protection = 0;
    ::VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &protection);
    *slot = value;
    ::VirtualProtect(slot, sizeof *slot, protection, &protection);
}

/// Calls `visit` with each entry of the program's import address tables.
template <class Visit>
void ForEachImport(Visit visit) {
    auto* const base = reinterpret_cast<BYTE*>(::GetModuleHandleA(nullptr));
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const DWORD offset =
        headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    const auto* library = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + offset);
    for (; library->FirstThunk != 0; ++library) {
        auto* slot = reinterpret_cast<void**>(base + library->FirstThunk);
        for (; *slot != nullptr; ++slot)
            visit(slot);
    }
}

} // namespace

ImportPatch::~ImportPatch() {
    for (auto slot = m_slots.rbegin(); slot != m_slots.rend(); ++slot)
        WriteSlot(slot->address, slot->original);
}

void* ImportPatch::RedirectAny(const char* library, const char* function, void* replacement) {
    void* const original =
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleA(library), function));
    ForEachImport([&](void** slot) {
        if (*slot != original)
            return;
        m_slots.push_back({slot, original});
        WriteSlot(slot, replacement);
    });
    return original;
}
