// SPDX-License-Identifier: MIT
#pragma once

#include "afx/CException.h"

/// True when the call throws an EXCEPTION by pointer, which is deleted.
template <class EXCEPTION, class CALL>
bool Throws(CALL call) {
    try {
        call();
    } catch (EXCEPTION* e) {
        e->Delete();
        return true;
    }
    return false;
}

/// The cause of the EXCEPTION that the call throws, -1 when it throws none.
template <class EXCEPTION, class CALL>
int CauseOf(CALL call) {
    int cause = -1;
    try {
        call();
    } catch (EXCEPTION* e) {
        cause = e->m_cause;
        e->Delete();
    }
    return cause;
}
