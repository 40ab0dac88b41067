// Windows: handle maps, attachment at creation, subclassing and destruction.
#include <afxpriv.h>

#include "MessageSpy.h"
#include "WindowingTest.h"

using kivtest::CreateTopLevel;

namespace {

// Notes what it sees of itself when its window's first messages arrive.
class CCreationWnd : public CWnd
{
public:
    UINT m_nFirstMessage = 0;
    BOOL m_bAttachedAtFirstMessage = FALSE;
    BOOL m_bAttachedAtCreate = FALSE;
    int m_nPreSubclass = 0;
    int m_nPostNcDestroy = 0;

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (m_nFirstMessage == 0)
        {
            m_nFirstMessage = message;
            m_bAttachedAtFirstMessage = FromHandlePermanent(m_hWnd) == this;
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
    void PreSubclassWindow() override { ++m_nPreSubclass; }
    void PostNcDestroy() override { ++m_nPostNcDestroy; }

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct)
    {
        m_bAttachedAtCreate = FromHandlePermanent(m_hWnd) == this;
        return CWnd::OnCreate(lpCreateStruct);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CCreationWnd, CWnd)
    ON_WM_CREATE()
END_MESSAGE_MAP()

}  // namespace

TEST(CWnd, CreateAttachesTheObjectBeforeTheFirstMessage)
{
    CCreationWnd wnd;
    ASSERT_TRUE(CreateTopLevel(wnd));
    EXPECT_NE(0u, wnd.m_nFirstMessage);
    EXPECT_TRUE(wnd.m_bAttachedAtFirstMessage);
    EXPECT_TRUE(wnd.m_bAttachedAtCreate);
    EXPECT_EQ(1, wnd.m_nPreSubclass);
    EXPECT_EQ(&wnd, CWnd::FromHandlePermanent(wnd.m_hWnd));
    EXPECT_EQ((LONG_PTR)AfxWndProc, ::GetWindowLongPtrA(wnd.m_hWnd, GWLP_WNDPROC));
    wnd.DestroyWindow();
}

TEST(CWnd, ChildCreatedThroughCreateGetsItsIdAndParent)
{
    CWnd parent;
    ASSERT_TRUE(CreateTopLevel(parent));
    CCreationWnd child;
    ASSERT_TRUE(child.Create(nullptr, "child", WS_VISIBLE, CRect(1, 2, 51, 42), &parent, 321));
    EXPECT_EQ(321, child.GetDlgCtrlID());
    EXPECT_EQ(parent.m_hWnd, ::GetParent(child.m_hWnd));
    EXPECT_TRUE(child.GetStyle() & WS_CHILD);
    EXPECT_EQ(&child, parent.GetDlgItem(321));
    parent.DestroyWindow();
    EXPECT_EQ(nullptr, child.m_hWnd);
    EXPECT_EQ(1, child.m_nPostNcDestroy);
}

TEST(CWnd, FromHandlePermanentIsNullForAWindowNoObjectOwns)
{
    HWND hWnd = ::CreateWindowExA(0, "STATIC", "plain", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hWnd));
    AfxLockTempMaps();
    CWnd* pTemp = CWnd::FromHandle(hWnd);
    ASSERT_NE(nullptr, pTemp);
    EXPECT_EQ(hWnd, pTemp->m_hWnd);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hWnd));
    AfxUnlockTempMaps();
    ::DestroyWindow(hWnd);
}

TEST(CWnd, TemporaryObjectsLiveWhileTheMapsAreLocked)
{
    HWND hWnd = ::CreateWindowExA(0, "STATIC", "plain", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    AfxLockTempMaps();
    AfxLockTempMaps();
    CWnd* pFirst = CWnd::FromHandle(hWnd);
    EXPECT_EQ(pFirst, CWnd::FromHandle(hWnd));
    EXPECT_EQ(pFirst, afxMapHWND()->LookupTemporary(hWnd));
    EXPECT_FALSE(AfxUnlockTempMaps());
    EXPECT_EQ(pFirst, afxMapHWND()->LookupTemporary(hWnd));
    EXPECT_TRUE(AfxUnlockTempMaps());
    EXPECT_EQ(nullptr, afxMapHWND()->LookupTemporary(hWnd));
    EXPECT_EQ(0, afxMapHWND()->GetTemporaryCount());
    ::DestroyWindow(hWnd);
}

TEST(CWnd, FromHandleOfAnOwnedWindowIsItsObject)
{
    CWnd wnd;
    ASSERT_TRUE(CreateTopLevel(wnd));
    EXPECT_EQ(&wnd, CWnd::FromHandle(wnd.m_hWnd));
    EXPECT_EQ(nullptr, afxMapHWND()->LookupTemporary(wnd.m_hWnd));
    wnd.DestroyWindow();
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(nullptr));
    EXPECT_EQ(nullptr, CWnd::FromHandle(nullptr));
}

TEST(CWnd, SubclassWindowCallsPreSubclassWindowAndRoutesTheMessages)
{
    CWnd parent;
    ASSERT_TRUE(CreateTopLevel(parent));
    HWND hButton = ::CreateWindowExA(0, "BUTTON", "b", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20, parent.m_hWnd, (HMENU)9,
                                     nullptr, nullptr);
    CCreationWnd wnd;
    ASSERT_TRUE(wnd.SubclassDlgItem(9, &parent));
    EXPECT_EQ(hButton, wnd.m_hWnd);
    EXPECT_EQ(1, wnd.m_nPreSubclass);
    wnd.SendMessage(WM_NULL);
    EXPECT_EQ((UINT)WM_NULL, wnd.m_nFirstMessage);
    EXPECT_FALSE(wnd.SubclassDlgItem(10, &parent));
    parent.DestroyWindow();
}

TEST(CWnd, UnsubclassWindowGivesTheOriginalProcedureBack)
{
    HWND hEdit = ::CreateWindowExA(0, "EDIT", "", WS_POPUP, 0, 0, 50, 20, nullptr, nullptr, nullptr, nullptr);
    LONG_PTR original = ::GetWindowLongPtrA(hEdit, GWLP_WNDPROC);
    CWnd wnd;
    ASSERT_TRUE(wnd.SubclassWindow(hEdit));
    EXPECT_NE(original, ::GetWindowLongPtrA(hEdit, GWLP_WNDPROC));
    EXPECT_EQ(hEdit, wnd.UnsubclassWindow());
    EXPECT_EQ(original, ::GetWindowLongPtrA(hEdit, GWLP_WNDPROC));
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hEdit));
    EXPECT_TRUE(::IsWindow(hEdit));
    ::DestroyWindow(hEdit);
}

TEST(CWnd, DestroyWindowDetachesAndCallsPostNcDestroy)
{
    CCreationWnd wnd;
    ASSERT_TRUE(CreateTopLevel(wnd));
    HWND hWnd = wnd.m_hWnd;
    EXPECT_TRUE(wnd.DestroyWindow());
    EXPECT_FALSE(::IsWindow(hWnd));
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hWnd));
    EXPECT_EQ(1, wnd.m_nPostNcDestroy);
    EXPECT_FALSE(wnd.DestroyWindow());
}

TEST(CWnd, DestructorDestroysTheWindowItOwns)
{
    HWND hWnd = nullptr;
    {
        CWnd wnd;
        ASSERT_TRUE(CreateTopLevel(wnd));
        hWnd = wnd.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(hWnd));
}

TEST(CWnd, DetachLeavesTheWindowAlive)
{
    CWnd wnd;
    ASSERT_TRUE(CreateTopLevel(wnd));
    HWND hWnd = wnd.UnsubclassWindow();
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hWnd));
    EXPECT_TRUE(::IsWindow(hWnd));
    CWnd other;
    EXPECT_TRUE(other.Attach(hWnd));
    EXPECT_EQ(&other, CWnd::FromHandlePermanent(hWnd));
    EXPECT_EQ(hWnd, other.Detach());
    ::DestroyWindow(hWnd);
}

TEST(CWnd, ModifyStyleReportsWhetherAnythingChanged)
{
    CWnd wnd;
    ASSERT_TRUE(CreateTopLevel(wnd));
    EXPECT_TRUE(wnd.ModifyStyle(0, WS_THICKFRAME));
    EXPECT_TRUE(wnd.GetStyle() & WS_THICKFRAME);
    EXPECT_FALSE(wnd.ModifyStyle(0, WS_THICKFRAME));
    EXPECT_TRUE(wnd.ModifyStyle(WS_THICKFRAME, 0));
    EXPECT_FALSE(wnd.GetStyle() & WS_THICKFRAME);
    wnd.DestroyWindow();
}

namespace {

class CPreTranslateWnd : public CWnd
{
public:
    int m_nSeen = 0;
    BOOL m_bEat = FALSE;
    BOOL PreTranslateMessage(MSG*) override
    {
        ++m_nSeen;
        return m_bEat;
    }
};

}  // namespace

TEST(CWnd, WalkPreTranslateTreeGoesFromTheTargetUpToTheStopWindow)
{
    CPreTranslateWnd parent;
    ASSERT_TRUE(CreateTopLevel(parent));
    CPreTranslateWnd child;
    ASSERT_TRUE(child.Create(nullptr, "child", WS_VISIBLE, CRect(0, 0, 20, 20), &parent, 1));
    MSG msg = {child.m_hWnd, WM_KEYDOWN, VK_SPACE, 0, 0, {0, 0}};
    EXPECT_FALSE(CWnd::WalkPreTranslateTree(parent.m_hWnd, &msg));
    EXPECT_EQ(1, child.m_nSeen);
    EXPECT_EQ(1, parent.m_nSeen);
    EXPECT_FALSE(CWnd::WalkPreTranslateTree(child.m_hWnd, &msg));
    EXPECT_EQ(2, child.m_nSeen);
    EXPECT_EQ(1, parent.m_nSeen);
    child.m_bEat = TRUE;
    EXPECT_TRUE(CWnd::WalkPreTranslateTree(parent.m_hWnd, &msg));
    EXPECT_EQ(1, parent.m_nSeen);
    parent.DestroyWindow();
}

TEST(CWnd, MessagesOfAWindowArriveInTheirOrder)
{
    CWnd wnd;
    ASSERT_TRUE(CreateTopLevel(wnd));
    kivtest::MessageSpy spy;
    spy.Only({WM_SETTEXT, WM_SIZE, WM_APP});
    spy.Watch(wnd.m_hWnd);
    wnd.SetWindowText("one");
    spy.Mark(1);
    wnd.SetWindowPos(nullptr, 0, 0, 200, 150, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    spy.Mark(2);
    wnd.SendMessage(WM_APP, 3, 4);
    using kivtest::Expected;
    EXPECT_TRUE(spy.Matches({{WM_SETTEXT},
                             Expected::Marker(1),
                             {WM_SIZE, Expected::kWParam, SIZE_RESTORED},
                             Expected::Marker(2),
                             {WM_APP, Expected::kWParam | Expected::kLParam, 3, 4}}));
    wnd.DestroyWindow();
}
