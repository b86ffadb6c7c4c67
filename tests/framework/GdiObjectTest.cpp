// SPDX-License-Identifier: MIT
#include "afx/CBitmap.h"
#include "afx/CBrush.h"
#include "afx/CDC.h"
#include "afx/CFont.h"
#include "afx/CPalette.h"
#include "afx/CPen.h"
#include "afx/CRgn.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <memory>
#include <thread>
#include <vector>

namespace {

LOGPALETTE OneColour(COLORREF colour) {
    LOGPALETTE palette = {0x300, 1, {{GetRValue(colour), GetGValue(colour), GetBValue(colour), 0}}};
    return palette;
}

HGDIOBJ MakePen() {
    return ::CreatePen(PS_SOLID, 1, RGB(1, 2, 3));
}

HGDIOBJ MakeExtendedPen() {
    const LOGBRUSH brush = {BS_SOLID, RGB(1, 2, 3), 0};
    return ::ExtCreatePen(PS_GEOMETRIC, 3, &brush, 0, nullptr);
}

HGDIOBJ MakeBrush() {
    return ::CreateSolidBrush(RGB(1, 2, 3));
}

HGDIOBJ MakeFont() {
    LOGFONT font = {};
    return ::CreateFontIndirect(&font);
}

HGDIOBJ MakeBitmap() {
    return ::CreateBitmap(2, 2, 1, 1, nullptr);
}

HGDIOBJ MakeRegion() {
    return ::CreateRectRgn(0, 0, 2, 2);
}

HGDIOBJ MakePalette() {
    const LOGPALETTE palette = OneColour(RGB(1, 2, 3));
    return ::CreatePalette(&palette);
}

template <class T>
std::unique_ptr<CGdiObject> MakeWrapper() {
    return std::make_unique<T>();
}

template <class T, class H>
CGdiObject* FromTypedHandle(HGDIOBJ handle) {
    return T::FromHandle(static_cast<H>(handle));
}

struct Kind {
    const char* name;
    UINT type;
    HGDIOBJ (*makeHandle)();
    std::unique_ptr<CGdiObject> (*makeWrapper)();
    CGdiObject* (*fromTypedHandle)(HGDIOBJ);
    CRuntimeClass* (*runtimeClass)();
};

const Kind kinds[] = {
    {"Pen", OBJ_PEN, MakePen, MakeWrapper<CPen>, FromTypedHandle<CPen, HPEN>, CPen::GetThisClass},
    {"ExtendedPen", OBJ_EXTPEN, MakeExtendedPen, MakeWrapper<CPen>, FromTypedHandle<CPen, HPEN>,
     CPen::GetThisClass},
    {"Brush", OBJ_BRUSH, MakeBrush, MakeWrapper<CBrush>, FromTypedHandle<CBrush, HBRUSH>,
     CBrush::GetThisClass},
    {"Font", OBJ_FONT, MakeFont, MakeWrapper<CFont>, FromTypedHandle<CFont, HFONT>,
     CFont::GetThisClass},
    {"Bitmap", OBJ_BITMAP, MakeBitmap, MakeWrapper<CBitmap>, FromTypedHandle<CBitmap, HBITMAP>,
     CBitmap::GetThisClass},
    {"Region", OBJ_REGION, MakeRegion, MakeWrapper<CRgn>, FromTypedHandle<CRgn, HRGN>,
     CRgn::GetThisClass},
    {"Palette", OBJ_PAL, MakePalette, MakeWrapper<CPalette>, FromTypedHandle<CPalette, HPALETTE>,
     CPalette::GetThisClass},
};

class GdiObjectKindTest : public testing::TestWithParam<Kind> {
protected:
    void TearDown() override { CGdiObject::DeleteTempMap(); }
};

INSTANTIATE_TEST_SUITE_P(Kinds, GdiObjectKindTest, testing::ValuesIn(kinds),
                         [](const auto& tested) { return tested.param.name; });

TEST_P(GdiObjectKindTest, DeletesWhatItHolds) {
    const HGDIOBJ handle = GetParam().makeHandle();
    {
        const auto object = GetParam().makeWrapper();
        EXPECT_EQ(nullptr, object->GetSafeHandle());
        ASSERT_TRUE(object->Attach(handle));
        EXPECT_EQ(handle, object->GetSafeHandle());
        EXPECT_EQ(handle, static_cast<HGDIOBJ>(*object));
        EXPECT_EQ(GetParam().type, object->GetObjectType());
    }
    EXPECT_EQ(0u, ::GetObjectType(handle));
}

TEST_P(GdiObjectKindTest, DeletesOnRequestOnce) {
    const HGDIOBJ handle = GetParam().makeHandle();
    const auto object = GetParam().makeWrapper();
    object->Attach(handle);
    EXPECT_TRUE(object->DeleteObject());
    EXPECT_EQ(0u, ::GetObjectType(handle));
    EXPECT_EQ(nullptr, object->m_hObject);
    EXPECT_FALSE(object->DeleteObject());
}

TEST_P(GdiObjectKindTest, DetachedHandleOutlivesTheObject) {
    const HGDIOBJ handle = GetParam().makeHandle();
    {
        const auto object = GetParam().makeWrapper();
        object->Attach(handle);
        EXPECT_EQ(handle, object->Detach());
        EXPECT_EQ(nullptr, object->Detach());
    }
    EXPECT_EQ(GetParam().type, ::GetObjectType(handle));
    ::DeleteObject(handle);
}

TEST_P(GdiObjectKindTest, AttachedObjectIsFoundByEveryFromHandle) {
    const auto object = GetParam().makeWrapper();
    object->Attach(GetParam().makeHandle());
    EXPECT_EQ(object.get(), CGdiObject::FromHandle(*object));
    EXPECT_EQ(object.get(), GetParam().fromTypedHandle(*object));
}

TEST_P(GdiObjectKindTest, TemporaryObjectFitsAndSparesTheHandle) {
    const HGDIOBJ handle = GetParam().makeHandle();
    CGdiObject* const temporary = CGdiObject::FromHandle(handle);
    ASSERT_NE(nullptr, temporary);
    EXPECT_EQ(handle, temporary->m_hObject);
    EXPECT_TRUE(temporary->IsKindOf(GetParam().runtimeClass()))
        << temporary->GetRuntimeClass()->m_lpszClassName;
    EXPECT_EQ(temporary, GetParam().fromTypedHandle(handle));
    CGdiObject::DeleteTempMap();
    EXPECT_EQ(GetParam().type, ::GetObjectType(handle));
    ::DeleteObject(handle);
}

TEST_P(GdiObjectKindTest, ReusedHandleGetsTheClassOfItsNewKind) {
    const HGDIOBJ handle = GetParam().makeHandle();
    // As if the value had belonged to one of each other kind before.
    for (const Kind& former : kinds) {
        CGdiObject* const stale = former.fromTypedHandle(handle);
        ASSERT_TRUE(stale->IsKindOf(former.runtimeClass())) << former.name;
    }
    EXPECT_TRUE(CGdiObject::FromHandle(handle)->IsKindOf(GetParam().runtimeClass()));
    ::DeleteObject(handle);
}

TEST_P(GdiObjectKindTest, AttachedObjectOfAnotherClassIsNotCast) {
    CGdiObject plain;
    plain.Attach(GetParam().makeHandle());
    EXPECT_EQ(&plain, CGdiObject::FromHandle(plain));
    CGdiObject* const typed = GetParam().fromTypedHandle(plain);
    EXPECT_NE(&plain, typed);
    EXPECT_TRUE(typed->IsKindOf(GetParam().runtimeClass()));
    EXPECT_EQ(plain.m_hObject, typed->m_hObject);
}

TEST_P(GdiObjectKindTest, TemporaryThatDeletedItsHandleIsReused) {
    const HGDIOBJ handle = GetParam().makeHandle();
    CGdiObject* const temporary = GetParam().fromTypedHandle(handle);
    EXPECT_TRUE(temporary->DeleteObject());
    EXPECT_EQ(handle, GetParam().fromTypedHandle(handle)->m_hObject);
}

TEST(GdiObjectTest, NullHandle) {
    CPen pen;
    EXPECT_FALSE(pen.Attach(nullptr));
    EXPECT_EQ(nullptr, CGdiObject::FromHandle(nullptr));
    EXPECT_EQ(nullptr, CPen::FromHandle(nullptr));
    const CGdiObject* volatile none = nullptr; // volatile: the compiler need not know
    EXPECT_EQ(nullptr, none->GetSafeHandle());
    LOGPEN description;
    EXPECT_EQ(0, pen.GetObject(sizeof description, &description));
    EXPECT_EQ(0u, pen.GetObjectType());
    EXPECT_FALSE(pen.UnrealizeObject());
}

TEST(GdiObjectTest, ComparesHandles) {
    const CPen one(PS_SOLID, 1, RGB(1, 2, 3));
    const CPen equalLooking(PS_SOLID, 1, RGB(1, 2, 3));
    EXPECT_TRUE(one == *CPen::FromHandle(one));
    EXPECT_FALSE(one != one);
    EXPECT_TRUE(one != equalLooking);
    EXPECT_FALSE(one == equalLooking);
}

TEST(GdiObjectTest, TemporaryObjectsBelongToOneThread) {
    const CPen pen(PS_SOLID, 1, RGB(1, 2, 3));
    std::thread([&pen] {
        const CPen* const here = CPen::FromHandle(pen);
        EXPECT_NE(&pen, here);
        EXPECT_EQ(pen.m_hObject, here->m_hObject);
    }).join();
    EXPECT_EQ(static_cast<UINT>(OBJ_PEN), pen.GetObjectType()) << "the thread's end deleted it";
}

TEST(GdiObjectTest, SystemObjectsOutliveTheirWrappers) {
    struct Case {
        const char* what;
        int stock;
        UINT type;
    };
    for (const Case& tested :
         {Case{"pen", BLACK_PEN, OBJ_PEN}, Case{"brush", GRAY_BRUSH, OBJ_BRUSH},
          Case{"font", DEFAULT_GUI_FONT, OBJ_FONT}}) {
        const HGDIOBJ stock = ::GetStockObject(tested.stock);
        {
            CGdiObject object;
            EXPECT_TRUE(object.CreateStockObject(tested.stock));
            EXPECT_EQ(stock, object.m_hObject) << tested.what;
        }
        EXPECT_EQ(tested.type, ::GetObjectType(stock)) << tested.what;
    }
    CGdiObject none;
    EXPECT_FALSE(none.CreateStockObject(-1));
    {
        CBrush brush;
        EXPECT_TRUE(brush.CreateSysColorBrush(COLOR_HIGHLIGHT));
    }
    LOGBRUSH description = {};
    EXPECT_NE(0,
              ::GetObject(::GetSysColorBrush(COLOR_HIGHLIGHT), sizeof description, &description));
    EXPECT_EQ(::GetSysColor(COLOR_HIGHLIGHT), description.lbColor);
}

TEST(GdiObjectTest, ConstructorsThrowWhatGdiRefuses) {
    try {
        const CBrush brush(static_cast<CBitmap*>(nullptr));
        ADD_FAILURE() << "a pattern brush without a pattern";
    } catch (CException* error) {
        EXPECT_TRUE(error->IsKindOf(RUNTIME_CLASS(CResourceException)));
        error->Delete();
    }
}

TEST(PenTest, DescribesItself) {
    CPen pen(PS_DASH, 1, RGB(10, 20, 30));
    LOGPEN simple = {};
    EXTLOGPEN extended = {};
    EXPECT_NE(0, pen.GetLogPen(&simple));
    EXPECT_EQ(static_cast<UINT>(PS_DASH), simple.lopnStyle);
    EXPECT_EQ(RGB(10, 20, 30), simple.lopnColor);
    EXPECT_EQ(0, pen.GetExtLogPen(&extended)) << "a pen of the simple kind";

    const LOGBRUSH brush = {BS_SOLID, RGB(40, 50, 60), 0};
    CPen wide(PS_GEOMETRIC | PS_ENDCAP_FLAT, 5, &brush);
    EXPECT_NE(0, wide.GetExtLogPen(&extended));
    EXPECT_EQ(5u, extended.elpWidth);
    EXPECT_EQ(RGB(40, 50, 60), extended.elpColor);
    EXPECT_EQ(0, wide.GetLogPen(&simple)) << "a pen of the extended kind";

    CPen copy;
    simple.lopnStyle = PS_DOT;
    EXPECT_TRUE(copy.CreatePenIndirect(&simple));
    LOGPEN copied = {};
    copy.GetLogPen(&copied);
    EXPECT_EQ(static_cast<UINT>(PS_DOT), copied.lopnStyle);
}

LONG HeightOf(CFont& font) {
    LOGFONT description = {};
    EXPECT_NE(0, font.GetLogFont(&description));
    return description.lfHeight;
}

TEST(FontTest, PointsBecomeLogicalUnits) {
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const int perInch = dc.GetDeviceCaps(LOGPIXELSY);
    struct Case {
        const char* what;
        int mode;
        CPoint viewportOrigin;
        int height;
    };
    for (const Case& tested : {Case{"pixels", MM_TEXT, {0, 0}, MulDiv(perInch, 120, 720)},
                               Case{"moved", MM_TEXT, {7, 31}, MulDiv(perInch, 120, 720)},
                               Case{"twips", MM_TWIPS, {0, 0}, 240}}) {
        dc.SetMapMode(tested.mode);
        dc.SetViewportOrg(tested.viewportOrigin);
        CFont font;
        ASSERT_TRUE(font.CreatePointFont(120, "Arial", &dc)) << tested.what;
        const LONG pixel = tested.mode == MM_TEXT ? 0 : 1440 / perInch;
        EXPECT_LT(HeightOf(font), 0) << tested.what;
        EXPECT_NEAR(-tested.height, HeightOf(font), pixel) << tested.what;
    }
    CFont onScreen;
    EXPECT_TRUE(onScreen.CreatePointFont(120, nullptr));
    EXPECT_EQ(-MulDiv(perInch, 120, 720), HeightOf(onScreen));
}

TEST(FontTest, CreatesWhatIsAsked) {
    CFont font;
    ASSERT_TRUE(font.CreateFont(-20, 9, 100, 100, FW_BOLD, TRUE, FALSE, TRUE, DEFAULT_CHARSET,
                                OUT_TT_PRECIS, CLIP_LH_ANGLES, PROOF_QUALITY, FF_SWISS, "Tahoma"));
    const LOGFONT wanted = {-20,
                            9,
                            100,
                            100,
                            FW_BOLD,
                            TRUE,
                            FALSE,
                            TRUE,
                            DEFAULT_CHARSET,
                            OUT_TT_PRECIS,
                            CLIP_LH_ANGLES,
                            PROOF_QUALITY,
                            FF_SWISS,
                            "Tahoma"};
    LOGFONT description = {};
    ASSERT_NE(0, font.GetLogFont(&description));
    EXPECT_EQ(0, memcmp(&wanted, &description, offsetof(LOGFONT, lfFaceName)));
    EXPECT_STREQ(wanted.lfFaceName, description.lfFaceName);
}

TEST(FontTest, LongFaceNameIsCut) {
    const CString longName('x', 500);
    CFont byPoints;
    CFont byMembers;
    ASSERT_TRUE(byPoints.CreatePointFont(100, longName));
    ASSERT_TRUE(byMembers.CreateFont(9, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, longName));
    for (CFont* const font : {&byPoints, &byMembers}) {
        LOGFONT description = {};
        font->GetLogFont(&description);
        EXPECT_EQ(longName.Left(LF_FACESIZE - 1), CString(description.lfFaceName));
    }
}

TEST(BitmapTest, KeepsPixelsAndSize) {
    CBitmap bitmap;
    const DWORD pixels[6] = {1, 2, 3, 4, 5, 6};
    ASSERT_TRUE(bitmap.CreateBitmap(3, 2, 1, 32, pixels));
    BITMAP description = {};
    ASSERT_NE(0, bitmap.GetBitmap(&description));
    EXPECT_EQ(3, description.bmWidth);
    EXPECT_EQ(2, description.bmHeight);
    EXPECT_EQ(32, description.bmBitsPixel);

    DWORD read[6] = {};
    EXPECT_EQ(sizeof read, bitmap.GetBitmapBits(sizeof read, read));
    EXPECT_EQ(std::vector<DWORD>(pixels, pixels + 6), std::vector<DWORD>(read, read + 6));
    const DWORD changed[1] = {9};
    bitmap.SetBitmapBits(sizeof changed, changed);
    EXPECT_EQ(sizeof changed, bitmap.GetBitmapBits(sizeof changed, read));
    EXPECT_EQ(9u, read[0]);

    EXPECT_EQ(CSize(0, 0), bitmap.GetBitmapDimension());
    EXPECT_EQ(CSize(0, 0), bitmap.SetBitmapDimension(30, 20));
    EXPECT_EQ(CSize(30, 20), bitmap.GetBitmapDimension());
}

TEST(BitmapTest, FollowsTheContextItIsFor) {
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    CBitmap monochrome; // like the one a new memory context has selected
    ASSERT_TRUE(monochrome.CreateCompatibleBitmap(&dc, 4, 5));
    BITMAP description = {};
    monochrome.GetBitmap(&description);
    EXPECT_EQ(1, description.bmBitsPixel);
    EXPECT_EQ(CSize(4, 5), CSize(description.bmWidth, description.bmHeight));
    CBitmap none;
    EXPECT_FALSE(none.CreateCompatibleBitmap(nullptr, 4, 5));
}

TEST(BitmapTest, LoadsFromTheSystemAndReportsWhatIsMissing) {
    CBitmap check; // OBM_CHECK, a name that windows.h gives only on request
    EXPECT_TRUE(check.LoadOEMBitmap(32760));
    CBitmap missing;
    EXPECT_FALSE(missing.LoadBitmap(static_cast<UINT>(0x7FF0)));
    EXPECT_FALSE(missing.LoadBitmap("NoSuchBitmap"));
    EXPECT_FALSE(missing.LoadMappedBitmap(0x7FF0));
    EXPECT_EQ(nullptr, missing.m_hObject);
}

CRect BoxOf(const CRgn& region) {
    CRect box(-1, -1, -1, -1);
    region.GetRgnBox(&box);
    return box;
}

TEST(RegionTest, Shapes) {
    POINT corners[] = {{0, 0}, {20, 0}, {20, 20}, {0, 20}, {5, 5}, {15, 5}, {15, 15}, {5, 15}};
    int counts[] = {4, 4};
    CRgn rect, rectIndirect, ellipse, ellipseIndirect, round, polygon, holed, fromPath;
    const CRect box(0, 0, 20, 20);
    EXPECT_TRUE(rect.CreateRectRgn(0, 0, 20, 20));
    EXPECT_TRUE(rectIndirect.CreateRectRgnIndirect(box));
    EXPECT_TRUE(ellipse.CreateEllipticRgn(0, 0, 20, 20));
    EXPECT_TRUE(ellipseIndirect.CreateEllipticRgnIndirect(box));
    EXPECT_TRUE(round.CreateRoundRectRgn(0, 0, 20, 20, 8, 8));
    EXPECT_TRUE(polygon.CreatePolygonRgn(corners, 4, WINDING));
    EXPECT_TRUE(holed.CreatePolyPolygonRgn(corners, counts, 2, ALTERNATE));
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    EXPECT_FALSE(fromPath.CreateFromPath(&dc)) << "no path yet";
    dc.BeginPath();
    dc.Polygon(corners, 4);
    dc.EndPath();
    EXPECT_TRUE(fromPath.CreateFromPath(&dc));

    struct Case {
        const char* what;
        CRgn& region;
        bool corner;
        bool centre;
    };
    for (const Case& tested :
         {Case{"rectangle", rect, true, true}, Case{"rectangle of RECT", rectIndirect, true, true},
          Case{"ellipse", ellipse, false, true},
          Case{"ellipse of RECT", ellipseIndirect, false, true},
          Case{"rounded", round, false, true}, Case{"polygon", polygon, true, true},
          Case{"holed", holed, true, false}, Case{"path", fromPath, true, true}}) {
        EXPECT_EQ(tested.corner, tested.region.PtInRegion(0, 0) != 0) << tested.what;
        EXPECT_EQ(tested.centre, tested.region.PtInRegion(CPoint(10, 10)) != 0) << tested.what;
        EXPECT_FALSE(tested.region.PtInRegion(20, 10)) << tested.what;
    }
    EXPECT_TRUE(rect.EqualRgn(&rectIndirect));
    EXPECT_FALSE(rect.EqualRgn(&ellipse));
    EXPECT_TRUE(holed.RectInRegion(CRect(0, 0, 6, 6)));
    EXPECT_FALSE(holed.RectInRegion(CRect(6, 6, 14, 14)));
}

TEST(RegionTest, Combinations) {
    struct Case {
        const char* what;
        int mode;
        int complexity;
        CRect box;
    };
    for (const Case& tested : {Case{"and", RGN_AND, SIMPLEREGION, {5, 0, 10, 10}},
                               Case{"or", RGN_OR, SIMPLEREGION, {0, 0, 15, 10}},
                               Case{"xor", RGN_XOR, COMPLEXREGION, {0, 0, 15, 10}},
                               Case{"difference", RGN_DIFF, SIMPLEREGION, {0, 0, 5, 10}},
                               Case{"copy", RGN_COPY, SIMPLEREGION, {0, 0, 10, 10}}}) {
        CRgn left, right, result;
        left.CreateRectRgn(0, 0, 10, 10);
        right.CreateRectRgn(5, 0, 15, 10);
        EXPECT_EQ(ERROR, result.CombineRgn(&left, &right, tested.mode)) << "must exist";
        result.CreateRectRgn(0, 0, 0, 0);
        EXPECT_EQ(tested.complexity, result.CombineRgn(&left, &right, tested.mode)) << tested.what;
        EXPECT_EQ(tested.box, BoxOf(result)) << tested.what;
    }
}

TEST(RegionTest, MovesCopiesAndStores) {
    CRgn region, copy, restored;
    region.CreateRectRgn(1, 2, 3, 4);
    EXPECT_EQ(SIMPLEREGION, region.OffsetRgn(10, 20));
    EXPECT_EQ(SIMPLEREGION, region.OffsetRgn(CPoint(1, 1)));
    EXPECT_EQ(CRect(12, 23, 14, 25), BoxOf(region));
    copy.CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(SIMPLEREGION, copy.CopyRgn(&region));
    EXPECT_TRUE(copy.EqualRgn(&region));

    const int size = region.GetRegionData(nullptr, 0);
    ASSERT_GT(size, static_cast<int>(sizeof(RGNDATAHEADER)));
    std::vector<char> bytes(size);
    RGNDATA* const data = reinterpret_cast<RGNDATA*>(bytes.data());
    EXPECT_EQ(size, region.GetRegionData(data, size));
    EXPECT_TRUE(restored.CreateFromData(nullptr, size, data));
    EXPECT_TRUE(restored.EqualRgn(&region));

    region.SetRectRgn(CRect(0, 0, 7, 7));
    EXPECT_EQ(CRect(0, 0, 7, 7), BoxOf(region));
    region.SetRectRgn(1, 1, 1, 1);
    CRect box;
    EXPECT_EQ(NULLREGION, region.GetRgnBox(&box));
}

TEST(PaletteTest, Entries) {
    LOGPALETTE description = OneColour(RGB(255, 0, 0));
    CPalette palette;
    ASSERT_TRUE(palette.CreatePalette(&description));
    EXPECT_EQ(1, palette.GetEntryCount());
    EXPECT_TRUE(palette.ResizePalette(3));
    EXPECT_EQ(3, palette.GetEntryCount());
    PALETTEENTRY green = {0, 255, 0, 0};
    EXPECT_EQ(1u, palette.SetPaletteEntries(2, 1, &green));
    PALETTEENTRY read[3] = {};
    EXPECT_EQ(3u, palette.GetPaletteEntries(0, 3, read));
    EXPECT_EQ(255, read[0].peRed);
    EXPECT_EQ(255, read[2].peGreen);
    EXPECT_EQ(2u, palette.GetNearestPaletteIndex(RGB(10, 240, 10)));
    CPalette none;
    EXPECT_EQ(0, none.GetEntryCount());
}

} // namespace
