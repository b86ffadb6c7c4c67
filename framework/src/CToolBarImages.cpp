// SPDX-License-Identifier: MIT
// CToolBar: resources and images.
#include <afxext.h>

#include <cstring>

namespace {

/// Head of an RT_TOOLBAR resource; the commands follow as WORDs, 0 for a separator.
struct ToolBarHead {
    WORD version;
    WORD width;
    WORD height;
    WORD itemCount;
};

constexpr WORD ToolBarVersion = 1;
// What a button has around its image.
constexpr int ExtraWidth = 7;
constexpr int ExtraHeight = 7;
// Larger images than that are not buttons: the sizes go into 16 bits of a message.
constexpr WORD LargestImage = 1024;

/// The contents of an RT_TOOLBAR resource.
struct ToolBarContents {
    CSize image;
    std::vector<UINT> commands;
};

/// Reads a resource; false when it is not what it should be.
bool ReadContents(HINSTANCE module, HRSRC resource, ToolBarContents& contents) {
    const std::size_t size = ::SizeofResource(module, resource);
    const auto* const data =
        static_cast<const BYTE*>(::LockResource(::LoadResource(module, resource)));
    ToolBarHead head;
    if (data == nullptr || size < sizeof(head)) {
        return false;
    }
    std::memcpy(&head, data, sizeof(head));
    const std::size_t commands = head.itemCount;
    const bool plausible = head.version == ToolBarVersion && head.width != 0 && head.height != 0 &&
                           head.width <= LargestImage && head.height <= LargestImage;
    if (!plausible || commands > (size - sizeof(head)) / sizeof(WORD)) {
        return false;
    }
    contents.image = CSize(head.width, head.height);
    for (std::size_t i = 0; i < commands; ++i) {
        WORD command;
        std::memcpy(&command, data + sizeof(head) + i * sizeof(WORD), sizeof(command));
        contents.commands.push_back(command);
    }
    return true;
}

/// The colour of the scheme that stands for one of the four standard greys of a button bitmap.
COLORREF SchemeColor(COLORREF color) {
    switch (color) {
    case RGB(0, 0, 0):
        return ::GetSysColor(COLOR_BTNTEXT);
    case RGB(128, 128, 128):
        return ::GetSysColor(COLOR_BTNSHADOW);
    case RGB(192, 192, 192):
        return ::GetSysColor(COLOR_BTNFACE);
    case RGB(255, 255, 255):
        return ::GetSysColor(COLOR_BTNHIGHLIGHT);
    default:
        return color;
    }
}

/// Turns the standard greys in the colour table into the scheme's; a bitmap without one stays.
void TakeSchemeColors(HBITMAP bitmap) {
    CDC dc;
    if (!dc.CreateCompatibleDC(nullptr)) {
        return;
    }
    const HGDIOBJ previous = ::SelectObject(dc.m_hDC, bitmap);
    RGBQUAD colors[256];
    const UINT count = ::GetDIBColorTable(dc.m_hDC, 0, 256, colors);
    for (UINT i = 0; i < count; ++i) {
        const COLORREF color =
            SchemeColor(RGB(colors[i].rgbRed, colors[i].rgbGreen, colors[i].rgbBlue));
        colors[i] = {GetBValue(color), GetGValue(color), GetRValue(color), 0};
    }
    if (count != 0) {
        ::SetDIBColorTable(dc.m_hDC, 0, count, colors);
    }
    ::SelectObject(dc.m_hDC, previous);
}

} // namespace

BOOL CToolBar::LoadToolBar(LPCTSTR lpszResourceName) {
    LPCTSTR const type = MAKEINTRESOURCE(AFX_RT_TOOLBAR);
    const HINSTANCE module = AfxFindResourceHandle(lpszResourceName, type);
    const HRSRC resource = ::FindResource(module, lpszResourceName, type);
    ToolBarContents contents;
    if (resource == nullptr || !ReadContents(module, resource, contents)) {
        return FALSE;
    }
    if (!SetButtons(contents.commands.data(), static_cast<int>(contents.commands.size()))) {
        return FALSE;
    }
    SetSizes(CSize(contents.image.cx + ExtraWidth, contents.image.cy + ExtraHeight),
             contents.image);
    return LoadBitmap(lpszResourceName);
}

BOOL CToolBar::LoadToolBar(UINT nIDResource) {
    return LoadToolBar(MAKEINTRESOURCE(nIDResource));
}

BOOL CToolBar::LoadBitmap(LPCTSTR lpszResourceName) {
    const HINSTANCE module = AfxFindResourceHandle(lpszResourceName, RT_BITMAP);
    auto* const images = static_cast<HBITMAP>(
        ::LoadImage(module, lpszResourceName, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
    if (images == nullptr) {
        return FALSE;
    }
    TakeSchemeColors(images);
    if (!SetBitmap(images)) {
        return FALSE;
    }
    m_imagesModule = module;
    m_imagesName = IS_INTRESOURCE(lpszResourceName) ? CString() : CString(lpszResourceName);
    m_imagesId = IS_INTRESOURCE(lpszResourceName) ? lpszResourceName : nullptr;
    return TRUE;
}

BOOL CToolBar::LoadBitmap(UINT nIDResource) {
    return LoadBitmap(MAKEINTRESOURCE(nIDResource));
}

BOOL CToolBar::SetBitmap(HBITMAP hbmImageWell) {
    CBitmap images;
    images.Attach(hbmImageWell);
    BITMAP size = {};
    if (::GetObject(hbmImageWell, sizeof(size), &size) == 0 || m_sizeImage.cx <= 0) {
        return FALSE;
    }
    const auto count = static_cast<UINT>(size.bmWidth / m_sizeImage.cx);
    bool taken = false;
    if (m_images.m_hObject == nullptr) {
        TBADDBITMAP add = {nullptr, reinterpret_cast<UINT_PTR>(hbmImageWell)};
        taken = DefWindowProc(TB_ADDBITMAP, count, reinterpret_cast<LPARAM>(&add)) != -1;
    } else {
        TBREPLACEBITMAP replace = {nullptr, reinterpret_cast<UINT_PTR>(m_images.m_hObject), nullptr,
                                   reinterpret_cast<UINT_PTR>(hbmImageWell),
                                   static_cast<int>(count)};
        taken = DefWindowProc(TB_REPLACEBITMAP, 0, reinterpret_cast<LPARAM>(&replace)) != 0;
    }
    if (!taken) {
        return FALSE;
    }
    m_images.DeleteObject();
    m_images.Attach(images.Detach());
    m_imagesModule = nullptr;
    Invalidate();
    return TRUE;
}

void CToolBar::OnSysColorChange() {
    Default();
    if (m_imagesModule != nullptr) {
        // A copy: loading writes to the members it is told the name from.
        const CString name = m_imagesName;
        LoadBitmap(m_imagesId != nullptr ? m_imagesId : static_cast<LPCTSTR>(name));
    }
}
