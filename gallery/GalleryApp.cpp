// SPDX-License-Identifier: MIT
#include "gallery/GalleryApp.h"

#include <cstdio>
#include <optional>

#include "gallery/GalleryDlg.h"
#include "gallery/GalleryLog.h"
#include "gallery/GalleryOptions.h"
#include "gallery/tour/PictureTour.h"

namespace {

CGalleryApp theApp;

} // namespace

BOOL CGalleryApp::InitInstance() {
    CWinApp::InitInstance();

    const auto options = GalleryOptions::Parse({__argv + 1, __argv + __argc});
    if (!options.error.empty()) {
        std::fprintf(stderr, "gallery: %s\n", options.error.c_str());
        m_exitCode = 2;
        return FALSE;
    }

    GalleryLog().LogTruncate("The gallery starts.\n");
    AfxInitRichEdit2();

    std::optional<automation::SystemColorGuard> colors;
    if (options.scheme != nullptr)
        colors.emplace(options.scheme->colors);

    CGalleryDlg gallery;
    m_pMainWnd = &gallery;
    if (options.pictures.empty()) {
        gallery.DoModal();
    } else {
        PictureTour tour(options.pictures);
        tour.Start();
        gallery.DoModal();
        m_exitCode = tour.Finish() ? 0 : 1;
    }
    return FALSE; // the window is closed: no message loop is wanted
}

int CGalleryApp::ExitInstance() {
    CWinApp::ExitInstance();
    GalleryLog().Log("The gallery ends with status %d.\n", m_exitCode);
    return m_exitCode;
}
