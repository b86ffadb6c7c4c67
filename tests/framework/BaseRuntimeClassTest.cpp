// SPDX-License-Identifier: MIT
#include "afx.h"

#include <gtest/gtest.h>

#include <memory>
#include <new>

class CTestBase : public CObject {
    DECLARE_DYNAMIC(CTestBase)
};
IMPLEMENT_DYNAMIC(CTestBase, CObject)

class CTestCreatable : public CTestBase {
    DECLARE_DYNCREATE(CTestCreatable)
};
IMPLEMENT_DYNCREATE(CTestCreatable, CTestBase)

class CTestTooLarge : public CObject {
    DECLARE_DYNCREATE(CTestTooLarge)
protected:
    CTestTooLarge() { throw std::bad_alloc(); }
};
IMPLEMENT_DYNCREATE(CTestTooLarge, CObject)

TEST(BaseRuntimeClass, CreatesObjects) {
    EXPECT_STREQ("CTestBase", RUNTIME_CLASS(CTestBase)->m_lpszClassName);
    const std::unique_ptr<CObject> object(RUNTIME_CLASS(CTestCreatable)->CreateObject());
    ASSERT_NE(nullptr, object);
    EXPECT_EQ(RUNTIME_CLASS(CTestCreatable), object->GetRuntimeClass());
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CTestBase)->CreateObject());
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CTestTooLarge)->CreateObject()); // memory is short
}

TEST(BaseRuntimeClass, KnowsItsAncestorsAndCastsDown) {
    CTestBase base;
    CTestCreatable creatable;
    CObject* const object = &creatable;
    CObject* const none = nullptr;
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CTestCreatable)));
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(RUNTIME_CLASS(CObject)->IsDerivedFrom(RUNTIME_CLASS(CTestBase)));
    EXPECT_EQ(&creatable, DYNAMIC_DOWNCAST(CTestBase, object));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CTestCreatable, static_cast<CObject*>(&base)));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CTestBase, none));
}
