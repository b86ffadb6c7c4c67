// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <functional>

namespace tint {

/// Paints a child window without a background of its own: what its parent has there, then what `draw`
/// adds, on the screen in one copy.
/// @param target  in client coordinates of `child`, and so is the context that `draw` gets
/// @param client  the child's client rectangle
void PaintOnParent(const CWnd& child, CDC& target, const CRect& client,
                   const std::function<void(CDC&)>& draw);

} // namespace tint
