// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

#include <vector>

/// Redirects functions that this program imports from a system library, so that a test sees the calls
/// that the code under test makes (and only those: calls inside the system libraries do not pass here).
class ImportPatch {
public:
    ImportPatch() = default;
    ~ImportPatch();

    ImportPatch(const ImportPatch&) = delete;
    ImportPatch& operator=(const ImportPatch&) = delete;

    /// Redirects `function` of `library` to `replacement` until this object goes away.
    /// @return the real function; non-null also when the program does not import it
    template <class Function>
    Function Redirect(const char* library, const char* function, Function replacement) {
        return reinterpret_cast<Function>(
            RedirectAny(library, function, reinterpret_cast<void*>(replacement)));
    }

private:
    struct Slot {
        void** address;
        void* original;
    };

    void* RedirectAny(const char* library, const char* function, void* replacement);

    std::vector<Slot> m_slots;
};
