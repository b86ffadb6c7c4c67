// SPDX-License-Identifier: MIT
#include "menus/MenuRecords.h"

#include "menus/CommandImages.h"

namespace tint {
namespace {

int CommandOf(const MENUITEMINFOA& item) {
    return static_cast<int>(item.wID);
}

template <class Value>
void RemoveDead(CMap<HMENU, HMENU, Value, Value&>& map) {
    POSITION position = map.GetStartPosition();
    while (position != nullptr) {
        HMENU menu = nullptr;
        Value value;
        map.GetNextAssoc(position, menu, value); // moves on before the pair may go
        if (!::IsMenu(menu))
            map.RemoveKey(menu);
    }
}

} // namespace

MenuRecords& MenuRecords::Get() {
    static MenuRecords records;
    return records;
}

void MenuRecords::SetText(const MENUITEMINFOA& item, CString text) {
    if (item.hSubMenu != nullptr)
        textOfSubmenu.SetAt(item.hSubMenu, text);
    else
        textOfCommand.SetAt(CommandOf(item), text);
}

void MenuRecords::SetImage(const MENUITEMINFOA& item, CImgDesc image, HWND toolbar) {
    toolbarOfList.SetAt(image.imageList, toolbar);
    if (item.hSubMenu != nullptr)
        imageOfSubmenu.SetAt(item.hSubMenu, image);
    else
        imageOfCommand.SetAt(CommandOf(item), image);
}

CString MenuRecords::Text(const MENUITEMINFOA& item) const {
    CString text;
    if (item.hSubMenu != nullptr)
        textOfSubmenu.Lookup(item.hSubMenu, text);
    else
        textOfCommand.Lookup(CommandOf(item), text);
    return text;
}

CImgDesc MenuRecords::Image(const MENUITEMINFOA& item) const {
    CImgDesc image;
    if (item.hSubMenu != nullptr)
        imageOfSubmenu.Lookup(item.hSubMenu, image);
    else
        imageOfCommand.Lookup(CommandOf(item), image);
    return IsAlive(image) ? image : CImgDesc();
}

bool MenuRecords::IsAlive(const CImgDesc& image) const {
    HWND toolbar = nullptr;
    if (!toolbarOfList.Lookup(image.imageList, toolbar))
        return true; // none to ask
    if (!IsToolbar(toolbar))
        return false; // the handle is another window's by now
    const LRESULT list = ::SendMessageA(toolbar, TB_GETIMAGELIST, 0, 0);
    return reinterpret_cast<HIMAGELIST>(list) == image.imageList;
}

void MenuRecords::PurgeDeadSubmenus() {
    RemoveDead(textOfSubmenu);
    RemoveDead(imageOfSubmenu);
}

} // namespace tint
