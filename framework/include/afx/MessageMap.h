// SPDX-License-Identifier: MIT
/// @file
/// Message maps: the tables that connect messages with the member functions that handle them.
///
/// A class declares its map with DECLARE_MESSAGE_MAP() as the last line of its declaration and
/// writes it down in its source file:
///
///     BEGIN_MESSAGE_MAP(CMyDialog, CDialog)
///         ON_WM_SIZE()
///         ON_COMMAND(ID_FILE_OPEN, &CMyDialog::OnFileOpen)
///     END_MESSAGE_MAP()
///
/// Handlers are named with their class (`&CMyDialog::OnFileOpen`), as standard C++ asks for.
/// The ON_ macros stand in afxmsg_.h.
#pragma once

#include "afx/Types.h"

class CCmdTarget;
class CCmdUI;

namespace afx {

/// What a handler can be called with. A dispatcher fills in what its kind of message has.
struct MapCall {
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    /// Identifier of the command or of the control that notifies.
    UINT id = 0;
    CCmdUI* ui = nullptr;
    NMHDR* notify = nullptr;
    /// Where a handler's result goes; never null.
    LRESULT* result = nullptr;
};

/// Unpacks the call and calls one handler of the target. False lets the search go on.
using MapThunk = BOOL (*)(CCmdTarget* target, const MapCall& call);

/// Message number of the map entries of registered messages; theirs is only known at run time.
constexpr UINT RegisteredMessage = 0xC000;
/// Added to a message number, it stands for the message sent back to the control it came from. No
/// window is ever sent a number that large.
constexpr UINT ReflectBase = 0x10000;
/// In the high word of a command code, it does the same for WM_COMMAND and WM_NOTIFY.
constexpr WORD ReflectFlag = 0x8000;

} // namespace afx

/// One line of a message map.
struct AFX_MSGMAP_ENTRY {
    /// Window message; WM_COMMAND and WM_NOTIFY for commands and notifications.
    UINT nMessage;
    /// Notification code, its low 16 bits; 0 for window messages.
    UINT nCode;
    /// First and last identifier of the range the line is for; 0 for window messages.
    UINT nID;
    UINT nLastID;
    /// Holds the number of a registered message; null for all other lines.
    const UINT* pnRegistered;
    /// Null in the line that ends the table.
    afx::MapThunk pfn;
};

/// The lines of one class and the way to the map of its base class.
struct AFX_MSGMAP {
    /// Null in the map of the root class.
    const AFX_MSGMAP*(PASCAL* pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

namespace afx {

/// The first line for that message, code and identifier, searched from the most derived class to
/// the root; null when there is none.
const AFX_MSGMAP_ENTRY* FindEntry(const AFX_MSGMAP* map, UINT message, UINT code, UINT id);

} // namespace afx

#define DECLARE_MESSAGE_MAP()                            \
protected:                                               \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap(); \
    virtual const AFX_MSGMAP* GetMessageMap() const;

#define AFX_MESSAGE_MAP_BODY(theClass, baseClass) \
    using ThisClass [[maybe_unused]] = theClass;  \
    using TheBaseClass = baseClass;               \
    static const AFX_MSGMAP_ENTRY messageEntries[] = {

#define BEGIN_MESSAGE_MAP(theClass, baseClass)               \
    const AFX_MSGMAP* theClass::GetMessageMap() const {      \
        return GetThisMessageMap();                          \
    }                                                        \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap() { \
        AFX_MESSAGE_MAP_BODY(theClass, baseClass)

/// The map of a class template with one type parameter.
#define BEGIN_TEMPLATE_MESSAGE_MAP(theClass, type_name, baseClass)      \
    template <typename type_name>                                       \
    const AFX_MSGMAP* theClass<type_name>::GetMessageMap() const {      \
        return GetThisMessageMap();                                     \
    }                                                                   \
    template <typename type_name>                                       \
    const AFX_MSGMAP* PASCAL theClass<type_name>::GetThisMessageMap() { \
        AFX_MESSAGE_MAP_BODY(theClass<type_name>, baseClass)

#define END_MESSAGE_MAP()                                                                    \
    { 0, 0, 0, 0, nullptr, nullptr }                                                         \
    }                                                                                        \
    ;                                                                                        \
    static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap, messageEntries}; \
    return &messageMap;                                                                      \
    }
