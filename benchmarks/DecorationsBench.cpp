// SPDX-License-Identifier: MIT
#include "benchmarks/DecorationsBench.h"

#include "benchmarks/BenchHost.h"
#include "benchmarks/BlitWindow.h"
#include "benchmarks/resource.h"
#include "decorations/HyperLink.h"
#include "decorations/ImageStatic.h"
#include "decorations/SoftBitmapButton.h"

namespace {

constexpr DWORD kVisible = WS_CHILD | WS_VISIBLE;
constexpr int kBatch = 200;

CRect PlaceAt(int top, CSize size) {
    return {CPoint(10, top), size};
}

} // namespace

std::vector<Row> BenchLink() {
    BenchHost host(CSize(240, 120));
    const CSize size(180, 16);
    CStatic text;
    text.Create("Read more about this", kVisible, PlaceAt(10, size), &host);
    text.SetFont(DialogFont());
    CHyperLink link;
    link.Create("Read more about this", kVisible, PlaceAt(50, size), &host);
    link.SetFont(DialogFont());
    return Compare(
        "paint a link",
        {{"HyperLink", [&] { Repaint(link); }}, {"the system's own text", [&] { Repaint(text); }}},
        kBatch);
}

std::vector<Row> BenchBitmapButton() {
    BenchHost host(CSize(240, 120));
    const CSize size(32, 32);
    CBitmap picture;
    picture.LoadBitmap(IDB_BENCH_FRAME);
    CButton system;
    system.Create("", kVisible | BS_BITMAP, PlaceAt(10, size), &host, 100);
    system.SetBitmap(static_cast<HBITMAP>(picture.GetSafeHandle()));
    CSoftBitmapButton button;
    button.Create("", kVisible | BS_OWNERDRAW, PlaceAt(60, size), &host, 101);
    button.LoadBitmapStrip(IDB_BENCH_STRIP, 4);
    return Compare("paint a button of pictures",
                   {{"SoftBitmapButton", [&] { Repaint(button); }},
                    {"the system's own with a bitmap", [&] { Repaint(system); }}},
                   kBatch);
}

std::vector<Row> BenchPicture() {
    BenchHost host(CSize(240, 160));
    const CSize size(80, 52); // that of the picture, which the system's static cannot stretch
    CBitmap picture;
    picture.LoadBitmap(IDB_BENCH_PICTURE);
    CStatic system;
    system.Create("", kVisible | SS_BITMAP, PlaceAt(10, size), &host);
    system.SetBitmap(static_cast<HBITMAP>(picture.GetSafeHandle()));
    CImageStatic ours;
    ours.Create("", kVisible, PlaceAt(90, size), &host);
    ours.SetImage(BesideBench("landscape.png"));
    return Compare("paint a picture",
                   {{"ImageStatic", [&] { Repaint(ours); }},
                    {"the system's own with a bitmap", [&] { Repaint(system); }}},
                   kBatch);
}
