// SPDX-License-Identifier: MIT
#include "Thrown.h"
#include "afx.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <new>
#include <string>

class CTestBase : public CObject {
    DECLARE_DYNAMIC(CTestBase)
};
IMPLEMENT_DYNAMIC(CTestBase, CObject)

class CTestCreatable : public CTestBase {
    DECLARE_DYNCREATE(CTestCreatable)
};
IMPLEMENT_DYNCREATE(CTestCreatable, CTestBase)

class CTestStorable : public CTestCreatable {
    DECLARE_SERIAL(CTestStorable)
};
IMPLEMENT_SERIAL(CTestStorable, CTestCreatable, 7)

class CTestTooLarge : public CObject {
    DECLARE_DYNCREATE(CTestTooLarge)
protected:
    CTestTooLarge() { throw std::bad_alloc(); }
};
IMPLEMENT_DYNCREATE(CTestTooLarge, CObject)

TEST(BaseRuntimeClass, DescribesItsClass) {
    const CRuntimeClass* const base = RUNTIME_CLASS(CTestBase);
    EXPECT_STREQ("CTestBase", base->m_lpszClassName);
    EXPECT_EQ(static_cast<int>(sizeof(CTestBase)), base->m_nObjectSize);
    EXPECT_EQ(0xFFFFu, base->m_wSchema);
    EXPECT_EQ(7u, RUNTIME_CLASS(CTestStorable)->m_wSchema);
    EXPECT_EQ(RUNTIME_CLASS(CObject), base->m_pfnGetBaseClass());
    EXPECT_EQ(RUNTIME_CLASS(CTestStorable), CTestStorable().GetRuntimeClass());
    EXPECT_TRUE(CTestStorable().IsSerializable());
    EXPECT_FALSE(CTestCreatable().IsSerializable());
}

TEST(BaseRuntimeClass, IsFoundByName) {
    EXPECT_EQ(RUNTIME_CLASS(CTestBase), CRuntimeClass::FromName("CTestBase"));
    EXPECT_EQ(RUNTIME_CLASS(CObject), CRuntimeClass::FromName(L"CObject"));
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("ctestbase"));
    EXPECT_EQ(nullptr, CRuntimeClass::FromName(static_cast<const char*>(nullptr)));
    {
        CRuntimeClass passing = {"CTestPassing", 1, 0xFFFF, nullptr, nullptr};
        const afx::ClassRegistration first(&passing);
        const afx::ClassRegistration second(RUNTIME_CLASS(CTestBase));
        EXPECT_EQ(&passing, CRuntimeClass::FromName("CTestPassing"));
    }
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("CTestPassing"));
    EXPECT_EQ(RUNTIME_CLASS(CTestBase), CRuntimeClass::FromName("CTestBase"));
}

TEST(BaseRuntimeClass, CreatesObjects) {
    const std::unique_ptr<CObject> object(CRuntimeClass::CreateObject("CTestStorable"));
    ASSERT_NE(nullptr, object);
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CTestStorable)));
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CTestBase)->CreateObject());
    EXPECT_EQ(nullptr, CRuntimeClass::CreateObject(L"CNoSuchClass"));
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CTestTooLarge)->CreateObject()); // memory is short
}

TEST(BaseRuntimeClass, KnowsItsAncestorsAndCastsDown) {
    CTestCreatable creatable;
    CObject* const object = &creatable;
    CObject* const none = nullptr;
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CTestCreatable)));
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(RUNTIME_CLASS(CObject)->IsDerivedFrom(RUNTIME_CLASS(CTestBase)));
    EXPECT_EQ(&creatable, DYNAMIC_DOWNCAST(CTestBase, object));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CTestStorable, object));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CTestBase, none));
    EXPECT_EQ(&creatable, STATIC_DOWNCAST(CTestCreatable, object));
    EXPECT_EQ(nullptr, STATIC_DOWNCAST(CTestCreatable, none));
}

TEST(BaseDiagnostics, AddressesAreChecked) {
    char local[] = "text";
    SYSTEM_INFO system;
    ::GetSystemInfo(&system);
    const size_t page = system.dwPageSize;
    char* const pages =
        static_cast<char*>(::VirtualAlloc(nullptr, 2 * page, MEM_RESERVE, PAGE_NOACCESS));
    ::VirtualAlloc(pages, page, MEM_COMMIT, PAGE_READONLY);
    EXPECT_TRUE(AfxIsValidAddress(local, sizeof(local)));
    EXPECT_FALSE(AfxIsValidAddress(nullptr, 1));
    EXPECT_TRUE(AfxIsValidAddress(pages, page, FALSE));
    EXPECT_FALSE(AfxIsValidAddress(pages, page, TRUE));
    EXPECT_FALSE(AfxIsValidAddress(pages, page + 1, FALSE));
    EXPECT_FALSE(AfxIsValidAddress(pages, UINTPTR_MAX, FALSE));
    EXPECT_TRUE(AfxIsValidString(local));
    EXPECT_FALSE(AfxIsValidString(nullptr));
    EXPECT_FALSE(AfxIsValidString(pages + page));
    ::VirtualFree(pages, 0, MEM_RELEASE);
}

#ifdef NDEBUG
TEST(BaseDiagnostics, FailedEnsureThrowsInARelease) {
    EXPECT_TRUE(Throws<CInvalidArgException>([] { ENSURE(1 == 2); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([] { ENSURE_VALID(nullptr); }));
    ASSERT(1 == 2);
}
#endif

TEST(BaseDiagnostics, DumpIsReadable) {
    CMemFile file;
    CDumpContext dump(&file);
    const CTestBase object;
    const CObject* const none = nullptr;
    dump << "n " << -3 << ' ' << 2.5 << L" wide " << none << "\n" << object;
    char text[200] = {};
    file.SeekToBegin();
    file.Read(text, sizeof(text) - 1);
    EXPECT_EQ(0u, std::string(text).find("n -3322.5 wide (null)\na CTestBase at $")) << text;
}
