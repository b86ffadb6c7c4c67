// SPDX-License-Identifier: MIT
#include "gallery/GalleryPage.h"

BOOL CGalleryPage::CreateOver(CWnd& placeholder, CWnd& gallery) {
    if (!Create(m_dialogId, &gallery))
        return FALSE;
    CRect place;
    placeholder.GetWindowRect(place);
    gallery.ScreenToClient(place);
    return SetWindowPos(&placeholder, place.left, place.top, place.Width(), place.Height(),
                        SWP_NOACTIVATE);
}

BOOL CGalleryPage::PreTranslateMessage(MSG* message) {
    // The Tab key may leave the page: the window around it knows the whole tab order.
    if (message->message == WM_KEYDOWN && message->wParam == VK_TAB)
        return FALSE;
    // Or the page would take the keys of the frame's accelerators for itself.
    CFrameWnd* const frame = GetParentFrame();
    if (frame != nullptr && frame->PreTranslateMessage(message))
        return TRUE;
    return !IsForHiddenControl(*message) && CDialog::PreTranslateMessage(message);
}

bool CGalleryPage::IsForHiddenControl(const MSG& message) {
    return !::IsWindowVisible(message.hwnd);
}
