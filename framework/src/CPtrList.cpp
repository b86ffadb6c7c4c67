// SPDX-License-Identifier: MIT
#include "afx/CPtrList.h"

IMPLEMENT_DYNAMIC(CPtrList, CObject)

CPtrList::CPtrList(INT_PTR nBlockSize) : m_list(nBlockSize) {}
