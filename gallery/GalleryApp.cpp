// SPDX-License-Identifier: MIT
#include "gallery/GalleryApp.h"

#include <cstdio>

#include "gallery/GalleryFrame.h"
#include "gallery/GalleryLog.h"
#include "gallery/GalleryOptions.h"

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

    auto* const gallery = new CGalleryFrame; // deletes itself with its window
    if (!gallery->CreateGallery()) {
        m_exitCode = 1;
        return FALSE;
    }
    m_pMainWnd = gallery;
    if (options.scheme != nullptr)
        gallery->ChooseScheme(static_cast<int>(options.scheme - automation::ColorSchemes().data()));
    gallery->ShowWindow(options.pictures.empty() ? m_nCmdShow : SW_SHOWNORMAL);
    if (!options.pictures.empty()) {
        m_tour = std::make_unique<PictureTour>(options.pictures);
        m_tour->Start();
    }
    return TRUE;
}

int CGalleryApp::ExitInstance() {
    CWinApp::ExitInstance();
    if (m_tour != nullptr && !m_tour->Finish())
        m_exitCode = 1;
    GalleryLog().Log("The gallery ends with status %d.\n", m_exitCode);
    return m_exitCode;
}
