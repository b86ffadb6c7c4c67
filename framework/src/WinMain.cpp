// SPDX-License-Identifier: MIT
// The main function of a program, in an object file of its own: a program that has one is not given
// a second.
#include <afxwin.h>

int WINAPI WinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPSTR lpCmdLine, int nCmdShow) {
    return AfxWinMain(hInstance, hPrevInstance, lpCmdLine, nCmdShow);
}
