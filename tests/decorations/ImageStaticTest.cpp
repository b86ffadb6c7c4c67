// SPDX-License-Identifier: MIT
#include "decorations/ImageStatic.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <string>
#include <vector>

#include "automation/Picture.h"
#include "tests/image/BmpBuilder.h"
#include "tests/image/PngBuilder.h"
#include "tests/support/DialogTemplate.h"
#include "tests/support/GdiLedger.h"
#include "tests/support/Pump.h"

using automation::Picture;

namespace {

constexpr WORD kSubject = 101;
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

/// A dialog with a picture of 200 x 100 pixels.
class PictureDialog : public CDialog {
public:
    PictureDialog() {
        m_template.Add("STATIC", "", kSubject, SS_LEFT, 10, 10, 60, 60);
        CreateIndirect(m_template.Get(), nullptr);
        Resize(200, 100);
    }
    ~PictureDialog() override { DestroyWindow(); }

    void Resize(int width, int height) {
        m_subject.SetWindowPos(nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
    }

    /// What the screen shows of the control after the next paint of the dialog and all in it.
    Picture Repaint() {
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
        PumpFor(50);
        return automation::CaptureWindow(m_subject.m_hWnd);
    }

    CImageStatic m_subject;

protected:
    void DoDataExchange(CDataExchange* exchange) override {
        CDialog::DoDataExchange(exchange);
        DDX_Control(exchange, kSubject, m_subject);
    }

private:
    DialogTemplate m_template{"Pictures", 200, 120};
};

/// A file of the temporary folder, deleted at the end.
class TempFile {
public:
    TempFile(const std::string& name, const std::vector<uint8_t>& content) {
        char folder[MAX_PATH];
        ::GetTempPathA(sizeof(folder), folder);
        m_path = folder + name;
        std::ofstream file(m_path, std::ios::binary);
        file.write(reinterpret_cast<const char*>(content.data()),
                   static_cast<std::streamsize>(content.size()));
    }
    ~TempFile() { ::DeleteFileA(m_path.c_str()); }
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;

    const char* Path() const { return m_path.c_str(); }

private:
    std::string m_path;
};

/// Columns of red on the left half, blue on the right; with `fine`, red and blue by turns.
std::vector<uint8_t> TwoColors(int width, int height, bool fine = false) {
    bmptest::Bitmap bitmap;
    bitmap.width = width;
    bitmap.height = height;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const bool red = fine ? (x + y) % 2 == 0 : x < width / 2;
            bmptest::Append(bitmap.pixels, bmptest::Number(red ? 0xFF0000 : 0x0000FF, 3));
        }
        bitmap.pixels.resize((bitmap.pixels.size() + 3) / 4 * 4);
    }
    return bmptest::BmpFile(bitmap);
}

int CountOf(const Picture& picture, COLORREF color) {
    return static_cast<int>(std::count(picture.pixels.begin(), picture.pixels.end(), color));
}

TEST(ImageStatic, SqueezesThePictureIntoTheControlAndKeepsItSo) {
    const TempFile file("squeezed.bmp", TwoColors(400, 400));
    PictureDialog dialog;
    dialog.m_subject.SetImage(file.Path());
    EXPECT_EQ(dialog.m_subject.GetImage()->Width(), 400u) << "until the first paint";
    Picture shown = dialog.Repaint();
    EXPECT_EQ(shown.width, 200);
    EXPECT_EQ(CountOf(shown, kRed), 100 * 100);
    EXPECT_EQ(CountOf(shown, kBlue), 100 * 100);
    EXPECT_EQ(shown.At(0, 99), kRed);
    EXPECT_EQ(shown.At(199, 0), kBlue);
    EXPECT_EQ(dialog.m_subject.GetImage()->Width(), 200u);
    EXPECT_EQ(dialog.m_subject.GetImage()->Height(), 100u);

    dialog.Resize(80, 120);
    shown = dialog.Repaint();
    EXPECT_EQ(shown.At(0, 0), kRed);
    EXPECT_EQ(shown.At(79, 119), kBlue);
    EXPECT_EQ(dialog.m_subject.GetImage()->Width(), 80u);
    EXPECT_EQ(dialog.m_subject.GetImage()->Height(), 120u);
}

TEST(ImageStatic, DrawsAPictureOfItsSizeAsItIs) {
    const TempFile file("fine.bmp", TwoColors(200, 100, true));
    PictureDialog dialog;
    dialog.m_subject.SetImage(file.Path());
    const uint8_t* block = dialog.m_subject.GetImage()->Dib();
    const Picture shown = dialog.Repaint();
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 200; ++x)
            ASSERT_EQ(shown.At(x, y), (x + 99 - y) % 2 == 0 ? kRed : kBlue) << x << ", " << y;
    }
    EXPECT_EQ(dialog.m_subject.GetImage()->Dib(), block) << "not resampled";
}

TEST(ImageStatic, ShowsANewPictureAtTheNextPaint) {
    const TempFile first("first.bmp", TwoColors(20, 10));
    const TempFile second("second.bmp", TwoColors(200, 100, true));
    PictureDialog dialog;
    EXPECT_EQ(dialog.m_subject.GetImage(), nullptr);
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    EXPECT_EQ(CountOf(dialog.Repaint(), face), 200 * 100) << "nothing is painted without one";

    dialog.m_subject.SetImage(first.Path());
    const Picture before = dialog.Repaint();
    dialog.m_subject.SetImage(second.Path());
    PumpFor(50);
    EXPECT_TRUE(automation::CaptureWindow(dialog.m_subject.m_hWnd) == before);
    EXPECT_EQ(CountOf(dialog.Repaint(), kRed), 200 * 100 / 2);
}

TEST(ImageStatic, ShowsAPlaceholderOrNothingForAFileItCannotRead) {
    const TempFile text("text.txt", {'n', 'o', ' ', 'p', 'i', 'c', 't', 'u', 'r', 'e', ' ', ' '});
    const TempFile damaged("damaged.png", {0x89, 'P', 'N', 'G', 0, 0, 0, 0, 0, 0, 0, 0});
    const struct {
        const char* path;
        COLORREF color;
    } cases[] = {
        {text.Path(), RGB(0, 0, 0)},
        {"C:\\no\\such\\file", RGB(0, 0, 0)},
        {damaged.Path(), ::GetSysColor(COLOR_BTNFACE)},
        {nullptr, RGB(0, 0, 0)},
    };
    PictureDialog dialog;
    for (const auto& c : cases) {
        dialog.m_subject.SetImage(c.path);
        EXPECT_STRNE(dialog.m_subject.GetImage()->LastErrorText(), "");
        EXPECT_EQ(CountOf(dialog.Repaint(), c.color), 200 * 100) << (c.path ? c.path : "null");
    }
}

/// The left half of a palette picture is transparent: the dialog shows through.
TEST(ImageStatic, LeavesTheDialogVisibleThroughTransparentPixels) {
    pngtest::Png png;
    png.colorType = pngtest::kPalette;
    png.width = 200;
    png.height = 100;
    png.chunks = {{"PLTE", {0, 255, 0, 255, 0, 0}}, {"tRNS", {0}}};
    for (int i = 0; i < 200 * 100; ++i)
        png.rows.push_back(i % 200 < 100 ? 0 : 1);
    const TempFile file("transparent.png", pngtest::PngFile(png));
    PictureDialog dialog;
    dialog.m_subject.SetImage(file.Path());
    dialog.Repaint();

    const GdiLedger ledger;
    const Picture shown = dialog.Repaint();
    EXPECT_EQ(CountOf(shown, ::GetSysColor(COLOR_BTNFACE)), 100 * 100);
    EXPECT_EQ(CountOf(shown, kRed), 100 * 100);
    EXPECT_EQ(shown.At(199, 50), kRed);
    EXPECT_GT(ledger.Made(), 0);
    EXPECT_EQ(ledger.Unreturned(), "");
    EXPECT_EQ(ledger.Faults(), "");
}

} // namespace
