// SPDX-License-Identifier: MIT
#include "menus/CommandImages.h"

#include <mbstring.h>

namespace tint {
namespace {

CImgDesc ImageOf(HWND toolbar, UINT command) {
    TBBUTTONINFOA button = {};
    button.cbSize = sizeof button;
    button.dwMask = TBIF_IMAGE | TBIF_COMMAND;
    const LRESULT index =
        ::SendMessageA(toolbar, TB_GETBUTTONINFOA, command, reinterpret_cast<LPARAM>(&button));
    if (index == -1 || button.idCommand != static_cast<int>(command) || button.iImage == -1)
        return {};
    const LRESULT list = ::SendMessageA(toolbar, TB_GETIMAGELIST, 0, 0);
    return {reinterpret_cast<HIMAGELIST>(list), button.iImage};
}

} // namespace

bool IsToolbar(HWND window) {
    char name[32] = "";
    ::GetClassNameA(window, name, sizeof name);
    return _mbsicmp(reinterpret_cast<const unsigned char*>(name),
                    reinterpret_cast<const unsigned char*>(TOOLBARCLASSNAMEA)) == 0;
}

CommandImages::CommandImages(CWnd& window) {
    const auto* const frame = dynamic_cast<CFrameWnd*>(&window);
    if (frame != nullptr && !frame->m_listControlBars.IsEmpty()) {
        m_bars = &frame->m_listControlBars;
        return;
    }
    const CFrameWnd* parent = window.GetParentFrame();
    if (parent != nullptr && parent->IsKindOf(RUNTIME_CLASS(CMDIChildWnd)))
        parent = parent->GetParentFrame();
    if (parent != nullptr)
        m_bars = &parent->m_listControlBars;
}

CommandImages::Found CommandImages::Find(UINT command) const {
    POSITION position = m_bars == nullptr ? nullptr : m_bars->GetHeadPosition();
    while (position != nullptr) {
        const auto* const bar = static_cast<const CControlBar*>(m_bars->GetNext(position));
        const HWND window = bar->GetSafeHwnd();
        if (!IsToolbar(window))
            continue;
        const CImgDesc image = ImageOf(window, command);
        if (image.index != -1)
            return {image, window}; // also without a list: this bar has the button
    }
    return {};
}

} // namespace tint
