// SPDX-License-Identifier: MIT
#include "decorations/ImageStatic.h"

#include <new>

#include "image/Resample.h"

BEGIN_MESSAGE_MAP(CImageStatic, CStatic)
    ON_WM_PAINT()
    ON_WM_DRAWITEM() // the base class's
END_MESSAGE_MAP()

CImageStatic::~CImageStatic() = default;

void CImageStatic::SetImage(const char* path) {
    // Freed before the next one is loaded: two pictures may be more than there is room for.
    m_image.reset();
    m_image.reset(new (std::nothrow) IsImage(path));
}

void CImageStatic::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(client);
    if (!m_image)
        return;
    if (m_image->Width() != static_cast<uint32_t>(client.Width()) ||
        m_image->Height() != static_cast<uint32_t>(client.Height()))
        m_image->Resample(client.Width(), client.Height(), tint::kLanczos, tint::kOverflowRepeat);
    m_image->DrawImageInRect(dc, client);
}
