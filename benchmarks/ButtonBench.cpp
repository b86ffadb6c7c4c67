// SPDX-License-Identifier: MIT
#include "benchmarks/ButtonBench.h"

#include <afxwin.h>

#include "controls/ButtonXP.h"

namespace {

constexpr int kWidth = 96;
constexpr int kHeight = 26;
constexpr UINT kSkinnedId = 100;
constexpr UINT kSystemId = 101;

/// Paints itself by one blit of a finished picture: nothing that paints a buffer can be faster.
class BlitWindow : public CWnd {
public:
    BOOL CreateIn(CWnd& parent) {
        CClientDC screen(nullptr);
        m_picture.CreateCompatibleBitmap(&screen, kWidth, kHeight);
        return Create(nullptr, "", WS_CHILD | WS_VISIBLE,
                      CRect(CPoint(10, 90), CSize(kWidth, kHeight)), &parent, 0);
    }

protected:
    afx_msg void OnPaint() {
        CPaintDC dc(this);
        CDC memory;
        memory.CreateCompatibleDC(&dc);
        CBitmap* const previous = memory.SelectObject(&m_picture);
        dc.BitBlt(0, 0, kWidth, kHeight, &memory, 0, 0, SRCCOPY);
        memory.SelectObject(previous);
    }
    DECLARE_MESSAGE_MAP()

private:
    CBitmap m_picture;
};

BEGIN_MESSAGE_MAP(BlitWindow, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

void Repaint(CWnd& window) {
    window.Invalidate(FALSE);
    window.UpdateWindow();
}

CRect PlaceAt(int top) {
    return {CPoint(10, top), CSize(kWidth, kHeight)};
}

} // namespace

std::vector<Row> BenchButton() {
    CWnd host;
    host.CreateEx(WS_EX_TOPMOST, AfxRegisterWndClass(0, nullptr, ::GetSysColorBrush(COLOR_BTNFACE)),
                  "bench", WS_POPUP | WS_VISIBLE, CRect(20, 20, 220, 180), nullptr, 0);

    constexpr DWORD style = WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON;
    CButton system;
    system.Create("Caption", style, PlaceAt(10), &host, kSystemId);
    system.SetFont(CFont::FromHandle(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT))));
    CButtonXP skinned;
    skinned.Create("Caption", style, PlaceAt(50), &host, kSkinnedId);
    BlitWindow blit;
    blit.CreateIn(host);

    const auto rows = Compare("paint a push button",
                              {{"ButtonXP", [&] { Repaint(skinned); }},
                               {"the system's own button", [&] { Repaint(system); }},
                               {"a single blit", [&] { Repaint(blit); }}},
                              200);
    host.DestroyWindow();
    return rows;
}
