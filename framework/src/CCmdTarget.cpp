// SPDX-License-Identifier: MIT
#include <afxwin.h>

#include "CmdUIAccess.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

namespace {

bool Matches(const AFX_MSGMAP_ENTRY& entry, UINT message, UINT code, UINT id) {
    if (entry.pnRegistered != nullptr) {
        return *entry.pnRegistered == message && message >= afx::RegisteredMessage;
    }
    return entry.nMessage == message && entry.nCode == code && entry.nID <= id &&
           id <= entry.nLastID;
}

} // namespace

const AFX_MSGMAP_ENTRY* afx::FindEntry(const AFX_MSGMAP* map, UINT message, UINT code, UINT id) {
    for (; map != nullptr; map = map->pfnGetBaseMap == nullptr ? nullptr : map->pfnGetBaseMap()) {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->pfn != nullptr; ++entry) {
            if (Matches(*entry, message, code, id)) {
                return entry;
            }
        }
    }
    return nullptr;
}

// The map of the root class is written out: there is no base class whose map could be asked for.
const AFX_MSGMAP* CCmdTarget::GetMessageMap() const {
    return GetThisMessageMap();
}

const AFX_MSGMAP* PASCAL CCmdTarget::GetThisMessageMap() {
    static const AFX_MSGMAP_ENTRY end = {0, 0, 0, 0, nullptr, nullptr};
    static const AFX_MSGMAP map = {nullptr, &end};
    return &map;
}

CCmdTarget::CCmdTarget() = default;

CCmdTarget::~CCmdTarget() = default;

namespace {

/// Message number in the map of what a command code stands for.
UINT MessageOfCode(int code) {
    const WORD message = HIWORD(code);
    if (code == CN_UPDATE_COMMAND_UI || message == 0) {
        return WM_COMMAND;
    }
    if ((message & afx::ReflectFlag) != 0) {
        return afx::ReflectBase + (message & ~afx::ReflectFlag);
    }
    return message;
}

bool IsUpdate(UINT message, WORD code) {
    return code == static_cast<WORD>(CN_UPDATE_COMMAND_UI) &&
           (message == WM_COMMAND || message == afx::ReflectBase + WM_COMMAND);
}

BOOL CallUpdateHandler(const AFX_MSGMAP_ENTRY& entry, CCmdTarget* target, afx::MapCall& call) {
    afx::CmdUIAccess::StartRouting(*call.ui);
    return entry.pfn(target, call) && !afx::CmdUIAccess::ContinuesRouting(*call.ui);
}

} // namespace

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    const UINT message = MessageOfCode(nCode);
    const AFX_MSGMAP_ENTRY* const entry =
        afx::FindEntry(GetMessageMap(), message, LOWORD(nCode), nID);
    if (entry == nullptr) {
        return FALSE;
    }
    if (pHandlerInfo != nullptr) {
        pHandlerInfo->pTarget = this;
        pHandlerInfo->pmf = nullptr;
        return TRUE;
    }
    LRESULT unused = 0;
    afx::MapCall call;
    call.id = nID;
    call.result = &unused;
    if (IsUpdate(message, LOWORD(nCode))) {
        call.ui = static_cast<CCmdUI*>(pExtra);
        return call.ui != nullptr && CallUpdateHandler(*entry, this, call);
    }
    if (message == WM_NOTIFY || message == afx::ReflectBase + WM_NOTIFY) {
        const auto* const notify = static_cast<const AFX_NOTIFY*>(pExtra);
        ENSURE(notify != nullptr && notify->pResult != nullptr && notify->pNMHDR != nullptr);
        call.notify = notify->pNMHDR;
        call.result = notify->pResult;
    }
    return entry->pfn(this, call);
}
