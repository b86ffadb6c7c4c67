// SPDX-License-Identifier: MIT
/// @file
/// CObject: the root of the framework's classes.
#pragma once

#include "afx/CRuntimeClass.h"

/// Root of the classes with run-time class information, serialization and diagnostics.
class CObject {
public:
    virtual ~CObject() = default;

    virtual CRuntimeClass* GetRuntimeClass() const;
    /// True when the object's class is pClass or derived from it.
    BOOL IsKindOf(const CRuntimeClass* pClass) const;

    /// Stores the object to the archive or loads it. The root has nothing to store.
    virtual void Serialize(CArchive& ar);
    /// Writes the state of the object for a person to read.
    virtual void Dump(CDumpContext& dc) const;

    static const CRuntimeClass classCObject;
    static CRuntimeClass* PASCAL GetThisClass();

protected:
    CObject() = default;

private:
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
};
