// SPDX-License-Identifier: MIT
#include "Thrown.h"
#include "afx/CBitmap.h"
#include "afx/CBrush.h"
#include "afx/CDC.h"
#include "afx/CFont.h"
#include "afx/CPalette.h"
#include "afx/CPen.h"
#include "afx/CRgn.h"

#include <gtest/gtest.h>

#include <memory>
#include <thread>
#include <vector>

namespace {

const LOGPALETTE onePaletteEntry = {0x300, 1, {{255, 0, 0, 0}}};

HGDIOBJ MakeHandle(UINT type) {
    const LOGBRUSH brush = {BS_SOLID, RGB(1, 2, 3), 0};
    const LOGFONT font = {};
    switch (type) {
    case OBJ_PEN:
        return ::CreatePen(PS_SOLID, 1, RGB(1, 2, 3));
    case OBJ_EXTPEN:
        return ::ExtCreatePen(PS_GEOMETRIC, 3, &brush, 0, nullptr);
    case OBJ_BRUSH:
        return ::CreateSolidBrush(RGB(1, 2, 3));
    case OBJ_FONT:
        return ::CreateFontIndirect(&font);
    case OBJ_BITMAP:
        return ::CreateBitmap(2, 2, 1, 1, nullptr);
    case OBJ_REGION:
        return ::CreateRectRgn(0, 0, 2, 2);
    default:
        return ::CreatePalette(&onePaletteEntry);
    }
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
    std::unique_ptr<CGdiObject> (*makeWrapper)();
    CGdiObject* (*fromTypedHandle)(HGDIOBJ);
    CRuntimeClass* (*runtimeClass)();

    HGDIOBJ makeHandle() const { return MakeHandle(type); }
};

template <class T, class H>
constexpr Kind KindOf(const char* name, UINT type) {
    return {name, type, MakeWrapper<T>, FromTypedHandle<T, H>, T::GetThisClass};
}

const Kind kinds[] = {
    KindOf<CPen, HPEN>("Pen", OBJ_PEN),
    KindOf<CPen, HPEN>("ExtendedPen", OBJ_EXTPEN),
    KindOf<CBrush, HBRUSH>("Brush", OBJ_BRUSH),
    KindOf<CFont, HFONT>("Font", OBJ_FONT),
    KindOf<CBitmap, HBITMAP>("Bitmap", OBJ_BITMAP),
    KindOf<CRgn, HRGN>("Region", OBJ_REGION),
    KindOf<CPalette, HPALETTE>("Palette", OBJ_PAL),
};

class GdiObjectKindTest : public testing::TestWithParam<Kind> {
protected:
    void TearDown() override { CGdiObject::DeleteTempMap(); }
};

INSTANTIATE_TEST_SUITE_P(Kinds, GdiObjectKindTest, testing::ValuesIn(kinds),
                         [](const auto& tested) { return tested.param.name; });

TEST_P(GdiObjectKindTest, DeletesWhatItHoldsUnlessDetached) {
    const HGDIOBJ held = GetParam().makeHandle();
    const HGDIOBJ detached = GetParam().makeHandle();
    const HGDIOBJ deleted = GetParam().makeHandle();
    {
        const auto object = GetParam().makeWrapper();
        EXPECT_EQ(nullptr, object->GetSafeHandle());
        ASSERT_TRUE(object->Attach(deleted));
        EXPECT_TRUE(object->DeleteObject());
        EXPECT_EQ(0u, ::GetObjectType(deleted));
        EXPECT_EQ(nullptr, object->m_hObject);
        EXPECT_FALSE(object->DeleteObject());

        object->Attach(detached);
        EXPECT_EQ(detached, object->Detach());
        EXPECT_EQ(nullptr, object->Detach());

        ASSERT_TRUE(object->Attach(held));
        EXPECT_TRUE(object->GetSafeHandle() == held && static_cast<HGDIOBJ>(*object) == held);
        EXPECT_EQ(GetParam().type, object->GetObjectType());
        EXPECT_EQ(object.get(), CGdiObject::FromHandle(held));
        EXPECT_EQ(object.get(), GetParam().fromTypedHandle(held));
    }
    EXPECT_EQ(0u, ::GetObjectType(held));
    EXPECT_EQ(GetParam().type, ::GetObjectType(detached));
    ::DeleteObject(detached);
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

TEST(GdiObjectTest, NullHandleAndComparison) {
    CPen pen;
    EXPECT_FALSE(pen.Attach(nullptr));
    EXPECT_EQ(nullptr, CGdiObject::FromHandle(nullptr));
    EXPECT_EQ(nullptr, CPen::FromHandle(nullptr));
    const CGdiObject* volatile none = nullptr; // volatile: the compiler need not know
    EXPECT_EQ(nullptr, none->GetSafeHandle());
    EXPECT_EQ(0u, pen.GetObjectType());
    const CPen one(PS_SOLID, 1, RGB(1, 2, 3));
    const CPen equalLooking(PS_SOLID, 1, RGB(1, 2, 3));
    EXPECT_TRUE(one == *CPen::FromHandle(one) && one != equalLooking);
    EXPECT_FALSE(one != one || one == equalLooking);
    EXPECT_TRUE(Throws<CResourceException>([] { CBrush(static_cast<CBitmap*>(nullptr)); }));
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
    for (const int index : {BLACK_PEN, GRAY_BRUSH, DEFAULT_GUI_FONT}) {
        const HGDIOBJ stock = ::GetStockObject(index);
        const DWORD type = ::GetObjectType(stock);
        {
            CGdiObject object;
            EXPECT_TRUE(object.CreateStockObject(index));
            EXPECT_EQ(stock, object.m_hObject) << index;
            EXPECT_NE(0u, type);
        }
        EXPECT_EQ(type, ::GetObjectType(stock)) << index;
    }
    EXPECT_FALSE(CGdiObject().CreateStockObject(-1));
    EXPECT_TRUE(CBrush().CreateSysColorBrush(COLOR_HIGHLIGHT));
    LOGBRUSH description = {};
    ::GetObject(::GetSysColorBrush(COLOR_HIGHLIGHT), sizeof description, &description);
    EXPECT_EQ(::GetSysColor(COLOR_HIGHLIGHT), description.lbColor);
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

TEST(BitmapTest, FollowsItsContextAndReportsWhatIsMissing) {
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    CBitmap monochrome; // like the one a new memory context has selected
    ASSERT_TRUE(monochrome.CreateCompatibleBitmap(&dc, 4, 5));
    BITMAP description = {};
    monochrome.GetBitmap(&description);
    EXPECT_EQ(1, description.bmBitsPixel);
    EXPECT_EQ(CSize(4, 5), CSize(description.bmWidth, description.bmHeight));
    EXPECT_TRUE(CBitmap().LoadOEMBitmap(32760)); // OBM_CHECK, which windows.h names on request
    CBitmap missing;
    EXPECT_FALSE(missing.CreateCompatibleBitmap(nullptr, 4, 5));
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

TEST(RegionTest, MovesCopiesAndStores) {
    CRgn region, copy, restored;
    EXPECT_EQ(ERROR, copy.CombineRgn(&region, &region, RGN_COPY)) << "must exist";
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

} // namespace
