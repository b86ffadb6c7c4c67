// SPDX-License-Identifier: MIT
#include "draw/DrawUtil.h"

#include <memory>
#include <type_traits>

namespace {

struct ScreenDCReleaser {
    void operator()(HDC dc) const { ::ReleaseDC(nullptr, dc); }
};

struct MemoryDCDeleter {
    void operator()(HDC dc) const { ::DeleteDC(dc); }
};

using ScreenDC = std::unique_ptr<std::remove_pointer_t<HDC>, ScreenDCReleaser>;
using MemoryDC = std::unique_ptr<std::remove_pointer_t<HDC>, MemoryDCDeleter>;

} // namespace

void DrawArrowTriangle(HDC dc, int x, int y, int size, bool down) {
    for (int i = 0; i < size; ++i) {
        const int row = down ? y - i : y + i;
        ::MoveToEx(dc, x - i, row, nullptr);
        ::LineTo(dc, x + i + 1, row); // a line leaves out its last pixel
    }
}

HBITMAP CopyScreenToBitmap(const RECT& rect) {
    const ScreenDC screen(::GetDC(nullptr));
    if (!screen)
        return nullptr;
    const MemoryDC memory(::CreateCompatibleDC(screen.get()));
    if (!memory)
        return nullptr;

    const int width = rect.right - rect.left;
    const int height = rect.bottom - rect.top;
    const HBITMAP bitmap = ::CreateCompatibleBitmap(screen.get(), width, height);
    if (bitmap != nullptr) {
        const HGDIOBJ previous = ::SelectObject(memory.get(), bitmap);
        ::BitBlt(memory.get(), 0, 0, width, height, screen.get(), rect.left, rect.top, SRCCOPY);
        ::SelectObject(memory.get(), previous);
    }
    return bitmap;
}
