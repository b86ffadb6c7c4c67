// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "tests/support/ImportPatch.h"

/// Books every GDI object and device context that the program makes, selects and gives back while the
/// ledger is open, and notes what Windows would refuse although Wine lets it pass: deleting an object
/// that is still selected, handing back a device context with an own object in it.
///
/// One ledger at a time.
class GdiLedger {
public:
    GdiLedger();
    ~GdiLedger();

    GdiLedger(const GdiLedger&) = delete;
    GdiLedger& operator=(const GdiLedger&) = delete;

    /// What was made and not given back, as text ("CreatePen x2"); empty when the books are balanced.
    std::string Unreturned() const;

    /// The faults seen, one a line; empty when there were none.
    std::string Faults() const;

    /// How many objects and device contexts were made since the ledger was opened.
    int Made() const;

    // Called by the redirected functions.
    void OnMade(HANDLE object, const char* maker);
    void OnSelected(HDC dc, HGDIOBJ object);
    void OnDeleted(HANDLE object);
    void OnGivenBack(HDC dc);

private:
    bool IsSelected(HANDLE object) const;

    /// What every new memory context holds; asking for a bitmap of no size gives this one too.
    HANDLE m_defaultBitmap;

    mutable std::mutex m_mutex;
    std::map<HANDLE, const char*> m_live;
    std::map<HDC, std::map<DWORD, HGDIOBJ>> m_selected; ///< by device context and object type
    std::vector<std::string> m_faults;
    int m_made = 0;
    ImportPatch m_patch; ///< last, so that the functions are put back before the books close
};
