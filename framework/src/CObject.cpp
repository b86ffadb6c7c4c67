// SPDX-License-Identifier: MIT
#include "afx/CObject.h"

#include "afx/CDumpContext.h"

const CRuntimeClass CObject::classCObject = {"CObject", sizeof(CObject), 0xFFFF, nullptr, nullptr};

CRuntimeClass* PASCAL CObject::GetThisClass() {
    return const_cast<CRuntimeClass*>(&classCObject);
}

CRuntimeClass* CObject::GetRuntimeClass() const {
    return GetThisClass();
}

BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const {
    return GetRuntimeClass()->IsDerivedFrom(pClass);
}

void CObject::Serialize(CArchive& ar) {
    UNUSED_ALWAYS(ar);
}

void CObject::Dump(CDumpContext& dc) const {
    dc << "a " << GetRuntimeClass()->m_lpszClassName << " at " << static_cast<const void*>(this)
       << "\n";
}
