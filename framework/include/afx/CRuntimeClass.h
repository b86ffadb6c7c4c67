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
    /// Version of the stored form; 0xFFFF for a class that cannot be stored.
    UINT m_wSchema;
    /// Makes a new object; null for a class without dynamic creation.
    CObject*(AFXAPI* m_pfnCreateObject)();
    /// Description of the base class; null for the root.
    CRuntimeClass*(AFXAPI* m_pfnGetBaseClass)();

    /// @return a new object owned by the caller; null when the class cannot be created
    ///         dynamically or memory is short.
    CObject* CreateObject();
    static CObject* PASCAL CreateObject(LPCSTR lpszClassName);
    static CObject* PASCAL CreateObject(LPCWSTR lpszClassName);

    /// True for the class itself and for every class derived from it.
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;

    /// @return the class of that name, null when there is none.
    static CRuntimeClass* PASCAL FromName(LPCSTR lpszClassName);
    static CRuntimeClass* PASCAL FromName(LPCWSTR lpszClassName);
};

namespace afx {
/// Makes a class known by its name while the object exists. One stands, with static storage,
/// beside each implemented run-time class.
class ClassRegistration {
public:
    explicit ClassRegistration(CRuntimeClass* runtimeClass) noexcept;
    ~ClassRegistration();
    ClassRegistration(const ClassRegistration&) = delete;
    ClassRegistration& operator=(const ClassRegistration&) = delete;

    CRuntimeClass* const runtimeClass;
    ClassRegistration* next;
};
} // namespace afx

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

#define DECLARE_SERIAL(class_name) \
    DECLARE_DYNCREATE(class_name)  \
    friend CArchive& AFXAPI operator>>(CArchive& ar, class_name*& pOb);

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
    }                                                                                              \
    static const afx::ClassRegistration register##class_name(class_name::GetThisClass());

#define IMPLEMENT_DYNAMIC(class_name, base_class_name) \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name) \
    CObject* PASCAL class_name::CreateObject() {         \
        return new class_name;                           \
    }                                                    \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, &class_name::CreateObject)

/// @param wSchema version of the stored form, at most 0x7FFF; add VERSIONABLE_SCHEMA for a class
///                whose Serialize reads older versions by CArchive::GetObjectSchema.
#define IMPLEMENT_SERIAL(class_name, base_class_name, wSchema)                                  \
    CObject* PASCAL class_name::CreateObject() {                                                \
        return new class_name;                                                                  \
    }                                                                                           \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, &class_name::CreateObject) \
    CArchive& AFXAPI operator>>(CArchive& ar, class_name*& pOb) {                               \
        pOb = static_cast<class_name*>(ar.ReadObject(RUNTIME_CLASS(class_name)));               \
        return ar;                                                                              \
    }

/// Flag of a schema number: the class reads older schemas itself.
#define VERSIONABLE_SCHEMA (0x80000000)

/// The pointer as a pointer to class_name, null when the object is of another kind.
#define DYNAMIC_DOWNCAST(class_name, object) \
    (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))
/// The pointer as a pointer to class_name; the kind is only checked by an assertion.
#define STATIC_DOWNCAST(class_name, object) \
    (static_cast<class_name*>(AfxStaticDownCast(RUNTIME_CLASS(class_name), object)))

CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject);
CObject* AFXAPI AfxStaticDownCast(CRuntimeClass* pClass, CObject* pObject);
