// SPDX-License-Identifier: MIT
#include "menus/MenuXP.h"

#include <afxtempl.h>

#include <cstring>
#include <memory>

#include "draw/BufferDC.h"
#include "draw/Selectors.h"
#include "menus/Contained.h"
#include "menus/MenuItemData.h"
#include "menus/MenuItemPaint.h"
#include "menus/MenuState.h"
#include "menus/WndMenuXP.h"

namespace {

constexpr char kEnabledProperty[] = "XPWndProp_MenuXP";

/// Sent to a popup-menu window before it is shown, to have it sized; not documented, but how a popup
/// that the system uses again announces itself.
constexpr UINT kPopupSizing = 0x1E2;

/// Beside label and accelerator: icon column, gap and margins of a popup item.
constexpr UINT kPopupMargins = 42;
constexpr UINT kBarMargins = 4;

struct Hook {
    HHOOK handle = nullptr;
    DWORD count = 0;
};

Hook g_hook;

using PopupMap = CMap<HWND, HWND, CWndMenuXP*, CWndMenuXP*>;

/// The live popups.  Owns the objects: DestroyMenuWindow() takes them out.
PopupMap& Popups() {
    static PopupMap popups;
    return popups;
}

bool IsEnabled(HWND window) {
    return window != nullptr && ::GetPropA(window, kEnabledProperty) != nullptr;
}

bool IsPopupMenuWindow(HWND window) {
    char name[10] = "";
    return ::GetClassNameA(window, name, sizeof name) == 6 && std::strcmp(name, "#32768") == 0;
}

void CatchPopup(HWND window) {
    if (!IsEnabled(::GetForegroundWindow()) || !IsPopupMenuWindow(window))
        return;
    CMenuXP::FindMenuWindow(window, false);
    if (!CWndMenuXP::Subclass(window))
        CMenuXP::DestroyMenuWindow(window); // it stays the system's
}

/// Turns the rectangle of the open bar item, as painted, into screen coordinates.
void PlaceOpenBarItem(HWND owner, HMENU menu) {
    RECT& open = tint::GetMenuState().openBarItem;
    RECT firstItem = {};
    ::GetMenuItemRect(owner, menu, 0, &firstItem);
    POINT corners[2] = {{open.left, open.top}, {open.right, open.bottom}};
    ::ClientToScreen(owner, &corners[0]);
    ::ClientToScreen(owner, &corners[1]);
    open = {corners[0].x, firstItem.top, corners[1].x, firstItem.bottom};
    // A dialog's frame is a pixel narrower than that of other windows.
    if (dynamic_cast<CDialog*>(CWnd::FromHandlePermanent(owner)) != nullptr)
        ::OffsetRect(&open, 1, 0);
}

char UpperCase(char character) {
    CString text(character);
    text.MakeUpper();
    return text.IsEmpty() ? '\0' : text[0];
}

/// Whether a label, in upper case, has the mnemonic.
bool HasMnemonic(const CString& label, char wanted) {
    for (int i = label.GetLength() - 2; i >= 0; --i)
        if (label[i] == '&' && label[i + 1] == wanted && (i == 0 || label[i - 1] != '&'))
            return true;
    return false;
}

} // namespace

// --- The hook -----------------------------------------------------------------------------------

UINT_PTR CMenuXP::InstallHook() {
    ++g_hook.count;
    if (g_hook.handle != nullptr)
        return g_hook.count;
    g_hook.handle = ::SetWindowsHookExA(WH_CALLWNDPROC, CallWndProcHook, ::AfxGetInstanceHandle(),
                                        ::GetCurrentThreadId());
    return reinterpret_cast<UINT_PTR>(g_hook.handle);
}

void CMenuXP::UninstallHook() {
    if (g_hook.count == 0 || --g_hook.count != 0)
        return;
    while (const PopupMap::CPair* const popup = Popups().PGetFirstAssoc())
        DestroyMenuWindow(popup->key);
    if (g_hook.handle != nullptr)
        ::UnhookWindowsHookEx(g_hook.handle);
    // The handle stays: see InstallHook().
}

LRESULT CALLBACK CMenuXP::CallWndProcHook(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HC_ACTION) {
        const auto* const sent = reinterpret_cast<const CWPSTRUCT*>(lParam);
        if (sent->message == WM_CREATE || sent->message == kPopupSizing)
            tint::Contained([sent] { CatchPopup(sent->hwnd); });
    }
    return ::CallNextHookEx(g_hook.handle, code, wParam, lParam);
}

// --- Windows ------------------------------------------------------------------------------------

void CMenuXP::EnableMenuXP(CWnd* window, bool on) {
    if (window == nullptr)
        return;
    if (on)
        ::SetPropA(window->m_hWnd, kEnabledProperty, reinterpret_cast<HANDLE>(INT_PTR{1}));
    else
        ::RemovePropA(window->m_hWnd, kEnabledProperty);
}

bool CMenuXP::IsMenuXPEnabled(const CWnd* window) {
    return window != nullptr && IsEnabled(window->m_hWnd);
}

CWndMenuXP* CMenuXP::FindMenuWindow(HWND popup, bool lookupOnly) {
    CWndMenuXP* object = nullptr;
    if (Popups().Lookup(popup, object) || lookupOnly)
        return object;
    auto created = std::make_unique<CWndMenuXP>(popup);
    Popups().SetAt(popup, created.get());
    return created.release(); // the map's from now on
}

void CMenuXP::DestroyMenuWindow(HWND popup) {
    const std::unique_ptr<CWndMenuXP> object(FindMenuWindow(popup, true));
    Popups().RemoveKey(popup);
}

// --- Requests -----------------------------------------------------------------------------------

void CMenuXP::OnMeasureItem(MEASUREITEMSTRUCT* request) {
    if (request->CtlType != ODT_MENU)
        return;
    const tint::MenuItemData data(request->itemData);
    request->itemHeight = data.Height();
    request->itemWidth = data.IsBarItem()
                             ? data.LabelWidth() + kBarMargins
                             : data.LabelWidth() + data.AcceleratorWidth() + kPopupMargins;
}

bool CMenuXP::OnDrawItem(DRAWITEMSTRUCT* request, HWND owner) {
    if (request->CtlType != ODT_MENU)
        return false;
    tint::Contained([request, owner] {
        const auto menu = reinterpret_cast<HMENU>(request->hwndItem);
        CBufferDC dc(request->hDC, &request->rcItem);
        const CMenuItemXP item(menu, request->itemID, false);
        const CDCObjectSaver font(dc, DEFAULT_GUI_FONT);
        if (tint::DrawMenuItem(item, dc, request->rcItem, tint::MenuItemState::Of(*request)))
            PlaceOpenBarItem(owner, menu);
    });
    ++tint::GetMenuState().paintCount;
    return true;
}

LRESULT CMenuXP::OnMenuChar(HMENU menu, UINT character, UINT flags) {
    if (flags != 0 && (flags & (MF_POPUP | MF_SYSMENU)) != MF_POPUP)
        return 0;
    LRESULT answer = 0;
    tint::Contained([&] {
        const char wanted = UpperCase(static_cast<char>(character));
        const int count = ::GetMenuItemCount(menu);
        for (int position = 0; position < count; ++position) {
            CString label = CMenuItemXP(menu, static_cast<UINT>(position), true).LabelText();
            label.MakeUpper();
            if (HasMnemonic(label, wanted)) {
                answer = MAKELRESULT(position, MNC_EXECUTE);
                return;
            }
        }
    });
    return answer;
}
