// SPDX-License-Identifier: MIT
#pragma once

#include "HandleMap.h"
#include "afx/CGdiObject.h"

namespace afx {

/// The calling thread's GDI objects that programs attached, and the temporary ones without a class.
inline HandleMap<HGDIOBJ, CGdiObject>& GdiObjectMap() {
    return ThreadHandleMap<HGDIOBJ, CGdiObject>(&CGdiObject::m_hObject);
}

/// The calling thread's temporary objects of class T. Each class has its own table: a handle value
/// that GDI gives out again for another kind of object then finds no object of the old class.
template <class T>
HandleMap<HGDIOBJ, T>& TemporaryGdiObjects() {
    return ThreadHandleMap<HGDIOBJ, T>(&T::m_hObject);
}

/// The T attached to a handle, else a temporary one.
///
/// What comes back is always really a T, although any GDI handle may be passed: an attached object
/// of another class (a plain CGdiObject, or one whose handle was deleted and given out again) is
/// passed over instead of being cast.
template <class T>
T* GdiObjectFromHandle(HGDIOBJ handle) {
    if (T* const attached = dynamic_cast<T*>(GdiObjectMap().FindPermanent(handle))) {
        return attached;
    }
    return TemporaryGdiObjects<T>().FromHandle(handle);
}

} // namespace afx
