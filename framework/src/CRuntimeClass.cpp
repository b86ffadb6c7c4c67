// SPDX-License-Identifier: MIT
#include "afx/CRuntimeClass.h"

#include "afx/CException.h"
#include "afx/CObject.h"
#include "afx/CString.h"
#include "afx/Diagnostics.h"

#include <cstring>
#include <mutex>
#include <new>

namespace {

struct Registry {
    std::mutex mutex;
    afx::ClassRegistration* first = nullptr;
};

// Made by the first registration, so that the order of static initialization does not matter; the
// registrations are made later and hence destroyed earlier.
Registry& registry() {
    static Registry instance;
    return instance;
}

} // namespace

namespace afx {

ClassRegistration::ClassRegistration(CRuntimeClass* aClass) noexcept
    : runtimeClass(aClass), next(nullptr) {
    Registry& classes = registry();
    const std::lock_guard<std::mutex> lock(classes.mutex);
    next = classes.first;
    classes.first = this;
}

ClassRegistration::~ClassRegistration() {
    Registry& classes = registry();
    const std::lock_guard<std::mutex> lock(classes.mutex);
    ClassRegistration** link = &classes.first;
    while (*link != nullptr && *link != this) {
        link = &(*link)->next;
    }
    if (*link == this) {
        *link = next;
    }
}

} // namespace afx

CObject* CRuntimeClass::CreateObject() {
    if (m_pfnCreateObject == nullptr) {
        TRACE("%s cannot be created dynamically.\n", m_lpszClassName);
        return nullptr;
    }
    try {
        return m_pfnCreateObject();
    } catch (const std::bad_alloc&) {
        return nullptr;
    } catch (CMemoryException* e) {
        e->Delete();
        return nullptr;
    }
}

CObject* PASCAL CRuntimeClass::CreateObject(LPCSTR lpszClassName) {
    CRuntimeClass* const found = FromName(lpszClassName);
    return found != nullptr ? found->CreateObject() : nullptr;
}

CObject* PASCAL CRuntimeClass::CreateObject(LPCWSTR lpszClassName) {
    return CreateObject(CString(lpszClassName).GetString());
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const {
    for (const CRuntimeClass* current = this; current != nullptr;
         current = current->m_pfnGetBaseClass != nullptr ? current->m_pfnGetBaseClass() : nullptr) {
        if (current == pBaseClass) {
            return TRUE;
        }
    }
    return FALSE;
}

CRuntimeClass* PASCAL CRuntimeClass::FromName(LPCSTR lpszClassName) {
    if (lpszClassName == nullptr) {
        return nullptr;
    }
    Registry& classes = registry();
    const std::lock_guard<std::mutex> lock(classes.mutex);
    for (const afx::ClassRegistration* it = classes.first; it != nullptr; it = it->next) {
        if (std::strcmp(it->runtimeClass->m_lpszClassName, lpszClassName) == 0) {
            return it->runtimeClass;
        }
    }
    return nullptr;
}

CRuntimeClass* PASCAL CRuntimeClass::FromName(LPCWSTR lpszClassName) {
    return FromName(CString(lpszClassName).GetString());
}

CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject) {
    return pObject != nullptr && pObject->IsKindOf(pClass) ? pObject : nullptr;
}

CObject* AFXAPI AfxStaticDownCast(CRuntimeClass* pClass, CObject* pObject) {
    ASSERT(pObject == nullptr || pObject->IsKindOf(pClass));
    UNUSED(pClass);
    return pObject;
}
