// SPDX-License-Identifier: MIT
#include "decorations/RtfEdit.h"

BEGIN_MESSAGE_MAP(CRtfEdit, CRichEditCtrl)
END_MESSAGE_MAP()

namespace {

/// Reads a file to its end and goes back to its start; throws where it cannot be read.
void CheckReadable(CFile& file) {
    BYTE block[16 * 1024];
    while (file.Read(block, sizeof block) != 0) {
    }
    file.SeekToBegin();
}

} // namespace

void CRtfEdit::LoadRtfFile(const char* path) {
    try {
        CFile file(path, CFile::modeRead);
        // The control drops what it holds before it asks for the first byte.
        CheckReadable(file);
        EDITSTREAM stream = {};
        stream.dwCookie = reinterpret_cast<DWORD_PTR>(&file);
        stream.pfnCallback = &StreamInCallback;
        StreamIn(SF_RTF, stream);
    } catch (CException* e) {
        e->Delete(); // the control keeps what it shows
    }
}

DWORD CALLBACK CRtfEdit::StreamInCallback(DWORD_PTR cookie, LPBYTE buffer, LONG bytesWanted,
                                          LONG* bytesRead) {
    *bytesRead = 0;
    // No exception may pass through the control, which knows none.
    try {
        auto* const file = reinterpret_cast<CFile*>(cookie);
        *bytesRead = static_cast<LONG>(file->Read(buffer, static_cast<UINT>(bytesWanted)));
        return 0;
    } catch (CException* e) {
        e->Delete();
        return ERROR_READ_FAULT;
    }
}
