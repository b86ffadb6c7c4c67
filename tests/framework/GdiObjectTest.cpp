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
        EXPECT_EQ(object.get(), CGdiObject::FromHandle(held));
        EXPECT_EQ(object.get(), GetParam().fromTypedHandle(held));
    }
    EXPECT_EQ(0u, ::GetObjectType(held));
    EXPECT_EQ(GetParam().type, ::GetObjectType(detached));
    ::DeleteObject(detached);
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

TEST(GdiObjectTest, NothingComesOfNothing) {
    CBitmap missing;
    EXPECT_FALSE(missing.Attach(nullptr) || missing.CreateCompatibleBitmap(nullptr, 4, 5));
    EXPECT_FALSE(missing.LoadBitmap("NoSuchBitmap"));
    EXPECT_EQ(nullptr, missing.m_hObject);
    EXPECT_EQ(nullptr, CGdiObject::FromHandle(nullptr));
    EXPECT_EQ(nullptr, CPen::FromHandle(nullptr));
    const CGdiObject* volatile none = nullptr; // volatile: the compiler need not know
    EXPECT_EQ(nullptr, none->GetSafeHandle());
}

} // namespace
