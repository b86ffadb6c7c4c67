// SPDX-License-Identifier: MIT
#include "decorations/ImageStatic.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "automation/Picture.h"
#include "tests/support/SubjectDialog.h"
#include "tests/image/BmpBuilder.h"
#include "tests/image/PngBuilder.h"
#include "tests/support/GdiLedger.h"

namespace fs = std::filesystem;
using automation::Picture;

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

/// A dialog with a picture of 200 x 100 pixels.
class PictureDialog : public SubjectDialog<CImageStatic> {
public:
    PictureDialog() {
        Open("STATIC", "", SS_LEFT);
        GetDlgItem(IDOK)->ShowWindow(SW_HIDE); // it is in the way
        Resize(200, 100);
    }
    ~PictureDialog() override { fs::remove(m_file); }

    void Resize(int width, int height) {
        m_subject.SetWindowPos(nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
    }
    void Load(const imagetest::Bytes& content) {
        std::ofstream(m_file, std::ios::binary)
            .write(reinterpret_cast<const char*>(content.data()),
                   static_cast<std::streamsize>(content.size()));
        m_subject.SetImage(m_file.string().c_str());
    }
    /// What the screen shows of the control after the next paint of the dialog and all in it.
    Picture Repaint() {
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
        PumpFor(50);
        return automation::CaptureWindow(m_subject.m_hWnd);
    }
    CSize Held() const {
        const IsImage& image = *m_subject.GetImage();
        return CSize(static_cast<int>(image.Width()), static_cast<int>(image.Height()));
    }

private:
    const fs::path m_file = fs::temp_directory_path() / "tintkit-picture";
};

/// Columns of red on the left half, blue on the right; with `fine`, red and blue by turns.
imagetest::Bytes TwoColors(int width, int height, bool fine = false) {
    bmptest::Bitmap bitmap;
    bitmap.width = width;
    bitmap.height = height;
    for (int i = 0; i < width * height; ++i) { // of widths that need no padding
        const int x = i % width;
        const bool red = fine ? (x + i / width) % 2 == 0 : x < width / 2;
        imagetest::Append(bitmap.pixels, imagetest::Number(red ? 0xFF0000 : 0x0000FF, 3));
    }
    return bmptest::BmpFile(bitmap);
}

int CountOf(const Picture& picture, COLORREF color) {
    return static_cast<int>(std::count(picture.pixels.begin(), picture.pixels.end(), color));
}

TEST(ImageStatic, FitsThePictureToTheControlAtEachPaint) {
    PictureDialog dialog;
    EXPECT_EQ(CountOf(dialog.Repaint(), ::GetSysColor(COLOR_BTNFACE)), 200 * 100) << "none yet";
    dialog.Load(TwoColors(400, 400));
    EXPECT_EQ(dialog.Held(), CSize(400, 400)) << "until the first paint";
    for (const CSize size : {CSize(200, 100), CSize(200, 120), CSize(80, 120)}) {
        dialog.Resize(size.cx, size.cy);
        const Picture shown = dialog.Repaint();
        EXPECT_EQ(dialog.Held(), size);
        EXPECT_EQ(shown.At(0, size.cy - 1), kRed);
        EXPECT_EQ(shown.At(size.cx - 1, 0), kBlue);
        EXPECT_EQ(CountOf(shown, kRed), CountOf(shown, kBlue));
    }
    const Picture before = dialog.Repaint();
    dialog.Load(TwoColors(80, 120, true));
    const uint8_t* const block = dialog.m_subject.GetImage()->Dib();
    PumpFor(50);
    EXPECT_TRUE(automation::CaptureWindow(dialog.m_subject.m_hWnd) == before);
    const Picture shown = dialog.Repaint();
    for (int i = 0; i < 80 * 120; ++i)
        ASSERT_EQ(shown.At(i % 80, i / 80), (i % 80 + 119 - i / 80) % 2 ? kBlue : kRed) << i;
    EXPECT_EQ(dialog.m_subject.GetImage()->Dib(), block) << "of its size: not resampled";
}

TEST(ImageStatic, ShowsAPlaceholderOrWhatIsBehindWhereThereIsNoPixel) {
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    pngtest::Png png; // the left half is transparent
    png.colorType = pngtest::kPalette;
    png.width = 200;
    png.height = 100;
    png.chunks = {{"PLTE", {0, 255, 0, 255, 0, 0}}, {"tRNS", {0}}};
    for (int i = 0; i < 200 * 100; ++i)
        png.rows.push_back(i % 200 < 100 ? 0 : 1);
    const struct {
        imagetest::Bytes file;
        COLORREF left, right;
    } cases[] = {{{'n', 'o', ' ', 'p', 'i', 'c', 't', 'u', 'r', 'e', ' ', ' '}, 0, 0},
                 {{0x89, 'P', 'N', 'G', 0, 0, 0, 0, 0, 0, 0, 0}, face, face}, // damaged
                 {pngtest::PngFile(png), face, kRed}};
    PictureDialog dialog;
    for (const auto& c : cases) {
        dialog.Load(c.file);
        dialog.Repaint();
        const GdiLedger ledger;
        const Picture shown = dialog.Repaint();
        EXPECT_EQ(CountOf(shown, c.left), 100 * 100 * (c.left == c.right ? 2 : 1));
        EXPECT_EQ(shown.At(199, 50), c.right);
        EXPECT_GT(ledger.Made(), 0);
        EXPECT_EQ(ledger.Unreturned() + ledger.Faults(), "");
    }
    for (const char* path : {"C:\\no\\such\\file", static_cast<const char*>(nullptr)}) {
        dialog.m_subject.SetImage(path);
        EXPECT_STRNE(dialog.m_subject.GetImage()->LastErrorText(), "");
        EXPECT_EQ(CountOf(dialog.Repaint(), RGB(0, 0, 0)), 200 * 100);
    }
}

} // namespace
