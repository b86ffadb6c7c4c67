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

RECT OnScreen(const RECT& rect) {
    const int left = ::GetSystemMetrics(SM_XVIRTUALSCREEN);
    const int top = ::GetSystemMetrics(SM_YVIRTUALSCREEN);
    const RECT screen = {left, top, left + ::GetSystemMetrics(SM_CXVIRTUALSCREEN),
                         top + ::GetSystemMetrics(SM_CYVIRTUALSCREEN)};
    RECT shown = {};
    ::IntersectRect(&shown, &rect, &screen);
    return shown;
}

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
    // For one the system would hand out a stock bitmap, which is nobody's to own: on the clipboard, which
    // deletes what it got, it would take the bitmap of every new memory DC along.
    if (::IsRectEmpty(&rect))
        return nullptr;
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
        // Some systems copy nothing at all when a part of the area lies off the screen.
        const RECT shown = OnScreen(rect);
        ::BitBlt(memory.get(), shown.left - rect.left, shown.top - rect.top,
                 shown.right - shown.left, shown.bottom - shown.top, screen.get(), shown.left,
                 shown.top, SRCCOPY);
        ::SelectObject(memory.get(), previous);
    }
    return bitmap;
}
