// SPDX-License-Identifier: MIT
/// @file
/// Run-time classes: what a class of the CObject hierarchy knows about itself.
#pragma once

#include "afx/Types.h"

/// Run-time description of one class of the CObject hierarchy; lives as long as the program.
struct CRuntimeClass {
    LPCSTR m_lpszClassName;
    /// Size of an object in bytes.
    int m_nObjectSize;
    /// Version of the stored form; 0xFFFF: objects cannot be stored.
    UINT m_wSchema;
    /// Makes a new object; null for a class without dynamic creation.
    CObject*(AFXAPI* m_pfnCreateObject)();
    /// Description of the base class; null for the root.
    CRuntimeClass*(AFXAPI* m_pfnGetBaseClass)();

    /// @return a new object owned by the caller; null when the class cannot be created
    ///         dynamically or memory is short.
    CObject* CreateObject();

    /// True for the class itself and for every class derived from it.
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;
};

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

#define DECLARE_DYNAMIC(class_name)                  \
public:                                              \
    static const CRuntimeClass class##class_name;    \
    static CRuntimeClass* PASCAL GetThisClass();     \
    CRuntimeClass* GetRuntimeClass() const override; \
                                                     \
protected:                                           \
    static CRuntimeClass* PASCAL _GetBaseClass();    \
                                                     \
public:
#define DECLARE_DYNCREATE(class_name) \
    DECLARE_DYNAMIC(class_name)       \
    static CObject* PASCAL CreateObject();

#define AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, pfnNew)                   \
    const CRuntimeClass class_name::class##class_name = {#class_name, sizeof(class_name), wSchema, \
                                                         pfnNew, &class_name::_GetBaseClass};      \
    CRuntimeClass* PASCAL class_name::_GetBaseClass() {                                            \
        return RUNTIME_CLASS(base_class_name);                                                     \
    }                                                                                              \
    CRuntimeClass* PASCAL class_name::GetThisClass() {                                             \
        return const_cast<CRuntimeClass*>(&class_name::class##class_name);                         \
    }                                                                                              \
    CRuntimeClass* class_name::GetRuntimeClass() const {                                           \
        return class_name::GetThisClass();                                                         \
    }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name) \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name) \
    CObject* PASCAL class_name::CreateObject() {         \
        return new class_name;                           \
    }                                                    \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, &class_name::CreateObject)

/// The pointer as a pointer to class_name, null when the object is of another kind.
#define DYNAMIC_DOWNCAST(class_name, object) \
    (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))

CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject);
