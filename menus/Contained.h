// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <exception>

namespace tint {

/// Does some work that the system has asked for, through a hook or a window procedure: no exception
/// may leave those.  What could not be done stays undone.
template <class Work>
void Contained(Work work) noexcept {
    try {
        work();
    } catch (CException* exception) {
        exception->Delete();
    } catch (const std::exception&) {
        return; // memory has run out: the picture stays incomplete
    }
}

} // namespace tint
