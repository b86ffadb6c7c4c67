// SPDX-License-Identifier: MIT
#include "gallery/PicturesPage.h"

#include "gallery/ProgramFolder.h"
#include "gallery/resource.h"

namespace {

constexpr int kOwnWidth = 80; // of the sample pictures, in pixels
constexpr int kOwnHeight = 52;

/// The path of a sample picture.
CString SamplePath(LPCTSTR name) {
    return BesideProgram(CString("pictures\\") + name);
}

void ResizeTo(CWnd& window, int width, int height) {
    window.SetWindowPos(nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
}

/// Fills `area` with a picture, over and over from the upper left corner on.
void FillWithTiles(CDC& dc, const CRect& area, const IsImage& tile) {
    const int state = dc.SaveDC();
    dc.IntersectClipRect(area);
    dc.SetBrushOrg(area.TopLeft());
    const CSize step(static_cast<int>(tile.Width()), static_cast<int>(tile.Height()));
    for (int y = area.top; y < area.bottom && step.cy > 0; y += step.cy) {
        for (int x = area.left; x < area.right && step.cx > 0; x += step.cx) {
            dc.SetViewportOrg(x, y);
            tile.TileImage(dc, area);
        }
    }
    dc.RestoreDC(state);
}

} // namespace

BEGIN_MESSAGE_MAP(CPicturesPage, CGalleryPage)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_BN_CLICKED(IDC_PASTE, &CPicturesPage::OnPaste)
    ON_COMMAND(ID_EDIT_PASTE, &CPicturesPage::OnPaste)
    ON_UPDATE_COMMAND_UI(ID_EDIT_PASTE, &CPicturesPage::OnUpdatePaste)
END_MESSAGE_MAP()

CPicturesPage::CPicturesPage() : CGalleryPage(IDD_PICTURES) {}

LPCTSTR CPicturesPage::GetTitle() const {
    return "Pictures";
}

LPCTSTR CPicturesPage::GetDescription() const {
    return "Statics of the dialog that CImageStatic fills with a picture file. Copy a picture in "
           "another program and paste it here.";
}

void CPicturesPage::DoDataExchange(CDataExchange* exchange) {
    CGalleryPage::DoDataExchange(exchange);
    for (std::size_t i = 0; i < m_pictures.size(); ++i) {
        DDX_Control(exchange, IDC_PICTURE_FIRST + static_cast<int>(i), m_pictures[i]);
    }
    DDX_Control(exchange, IDC_TRANSPARENT, m_transparent);
    DDX_Control(exchange, IDC_UNREADABLE, m_unreadable);
    DDX_Control(exchange, IDC_PASTE, m_paste);
}

BOOL CPicturesPage::OnInitDialog() {
    CGalleryPage::OnInitDialog();

    constexpr LPCTSTR names[] = {"landscape.bmp", "landscape.jpg", "landscape.png"};
    constexpr int percents[] = {50, 100, 140};
    for (std::size_t i = 0; i < m_pictures.size(); ++i) {
        const int percent = percents[i % 3];
        ResizeTo(m_pictures[i], kOwnWidth * percent / 100, kOwnHeight * percent / 100);
        m_pictures[i].SetImage(SamplePath(names[i / 3]));
    }
    m_transparent.SetImage(SamplePath("badge.png"));
    m_unreadable.SetImage(SamplePath("not-a-picture.dat"));
    m_tile = IsImage(SamplePath("tile.bmp"));
    return TRUE;
}

BOOL CPicturesPage::OnEraseBkgnd(CDC* dc) {
    const BOOL erased = CGalleryPage::OnEraseBkgnd(dc);
    FillWithTiles(*dc, PlaceOf(IDC_TRANSPARENT), m_tile);
    FillWithTiles(*dc, PlaceOf(IDC_TILES), m_tile);
    return erased;
}

void CPicturesPage::OnPaint() {
    CPaintDC dc(this);
    CRect place = PlaceOf(IDC_PASTED);
    dc.FrameRect(place, CBrush::FromHandle(::GetSysColorBrush(COLOR_BTNSHADOW)));
    place.DeflateRect(1, 1);
    m_pasted.DrawImageInRect(dc, place);
}

void CPicturesPage::OnPaste() {
    if (!OpenClipboard()) {
        return;
    }
    const HANDLE dib = ::GetClipboardData(CF_DIB);
    if (dib == nullptr || !m_pasted.CreateFromGlobalDib(dib)) {
        ::MessageBeep(MB_ICONEXCLAMATION);
    }
    ::CloseClipboard();
    InvalidateRect(PlaceOf(IDC_PASTED));
}

void CPicturesPage::OnUpdatePaste(CCmdUI* item) {
    item->Enable(::IsClipboardFormatAvailable(CF_DIB));
}

CRect CPicturesPage::PlaceOf(UINT id) const {
    CRect place;
    GetDlgItem(static_cast<int>(id))->GetWindowRect(place);
    ScreenToClient(place);
    return place;
}
