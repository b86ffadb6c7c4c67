// SPDX-License-Identifier: MIT
#pragma once

#include <afx.h>

/// A GDI object (pen, brush, font, bitmap, region, palette) and the duty to delete it.
///
/// Whatever is attached is deleted with this object, unless Detach() took it back before. Stock
/// objects may be attached too: GDI does not delete those. An object that is selected into a device
/// context must be selected out before it is deleted.
///
/// The pointer a FromHandle() returns may be temporary: it belongs to the framework, never deletes
/// its handle and is valid until DeleteTempMap(), that is, for the handling of one message.
///
/// Creating and attaching return zero on failure, and the object then stays as it was. They are
/// meant for an object that holds no handle.
class CGdiObject : public CObject {
    DECLARE_DYNAMIC(CGdiObject)

public:
    CGdiObject();
    ~CGdiObject() override;

    /// The attached handle or null. Read it; change it by Attach() and Detach() only.
    HGDIOBJ m_hObject;

    operator HGDIOBJ() const;

    /// The attached handle; null for a null pointer.
    HGDIOBJ GetSafeHandle() const;

    /// Zero for a null handle.
    BOOL Attach(HGDIOBJ hObject);

    /// Gives the handle, and the duty to delete it, back to the caller. Null if there is none.
    HGDIOBJ Detach();

    /// Deletes the GDI object now; zero if there is none or GDI refuses.
    BOOL DeleteObject();

    /// Attaches the stock object `nIndex` (BLACK_PEN ...).
    BOOL CreateStockObject(int nIndex);

    /// Copies at most `nCount` bytes of the object's description to `lpObject`: a LOGPEN, LOGBRUSH,
    /// LOGFONT, BITMAP, or a WORD for a palette. Number of bytes copied, zero on failure.
    int GetObject(int nCount, LPVOID lpObject) const;

    /// The attached object of a handle, else a temporary one of the class that fits the kind of GDI
    /// object (CPen for a pen ...). Null for a null handle.
    static CGdiObject* PASCAL FromHandle(HGDIOBJ hObject);

    /// Destroys the calling thread's temporary objects of this class and those derived from it.
    static void PASCAL DeleteTempMap();
};
