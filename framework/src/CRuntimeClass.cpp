// SPDX-License-Identifier: MIT
#include "afx/CRuntimeClass.h"

#include "afx/CException.h"
#include "afx/CObject.h"
#include "afx/Diagnostics.h"

#include <new>

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

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const {
    for (const CRuntimeClass* current = this; current != nullptr;
         current = current->m_pfnGetBaseClass != nullptr ? current->m_pfnGetBaseClass() : nullptr) {
        if (current == pBaseClass) {
            return TRUE;
        }
    }
    return FALSE;
}

CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject) {
    return pObject != nullptr && pObject->IsKindOf(pClass) ? pObject : nullptr;
}
