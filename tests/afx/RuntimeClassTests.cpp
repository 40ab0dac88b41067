// Run-time class information.
#include <afxwin.h>
#include <gtest/gtest.h>

class CTestBase : public CObject
{
    DECLARE_DYNAMIC(CTestBase)
};
IMPLEMENT_DYNAMIC(CTestBase, CObject)

class CTestDerived : public CTestBase
{
    DECLARE_DYNCREATE(CTestDerived)
};
IMPLEMENT_DYNCREATE(CTestDerived, CTestBase)

TEST(CRuntimeClass, IsKindOfFollowsTheBaseChain)
{
    CTestDerived d;
    EXPECT_TRUE(d.IsKindOf(RUNTIME_CLASS(CTestDerived)));
    EXPECT_TRUE(d.IsKindOf(RUNTIME_CLASS(CTestBase)));
    EXPECT_TRUE(d.IsKindOf(RUNTIME_CLASS(CObject)));
    CTestBase b;
    EXPECT_FALSE(b.IsKindOf(RUNTIME_CLASS(CTestDerived)));
    EXPECT_STREQ("CTestDerived", d.GetRuntimeClass()->m_lpszClassName);
}

TEST(CRuntimeClass, RegisteredClassesAreFoundByNameAndCreated)
{
    CRuntimeClass* p = CRuntimeClass::FromName("CTestDerived");
    ASSERT_EQ(RUNTIME_CLASS(CTestDerived), p);
    CObject* o = p->CreateObject();
    ASSERT_NE(nullptr, o);
    EXPECT_TRUE(o->IsKindOf(RUNTIME_CLASS(CTestDerived)));
    delete o;
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CTestBase)->CreateObject());
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("NoSuchClass"));
}
