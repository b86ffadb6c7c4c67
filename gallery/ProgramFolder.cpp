// SPDX-License-Identifier: MIT
#include "gallery/ProgramFolder.h"

CString BesideProgram(LPCTSTR name) {
    char program[MAX_PATH] = "";
    ::GetModuleFileName(nullptr, program, MAX_PATH);
    CString path(program);
    path = path.Left(path.ReverseFind('\\') + 1);
    return path + name;
}
