// SPDX-License-Identifier: MIT
#include "menus/Silhouette.h"

#include <memory>
#include <type_traits>

namespace tint {
namespace {

struct IconDestroyer {
    void operator()(HICON icon) const { ::DestroyIcon(icon); }
};
using Icon = std::unique_ptr<std::remove_pointer_t<HICON>, IconDestroyer>;

} // namespace

void DrawSilhouette(CDC& dc, const CImgDesc& image, POINT at, SIZE size, COLORREF color) {
    const Icon icon(::ImageList_GetIcon(image.imageList, image.index, ILD_NORMAL));
    if (!icon)
        return;
    CBrush brush;
    brush.CreateSolidBrush(color);
    dc.DrawState(CPoint(at), CSize(size), icon.get(), DSS_MONO,
                 static_cast<HBRUSH>(brush.GetSafeHandle()));
}

} // namespace tint
