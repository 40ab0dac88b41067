// Message maps: lookup order, handler signatures, commands and base maps in other modules.
#include "BaseMapWnd.h"
#include "MessageSpy.h"
#include "WindowingTest.h"

#include <vector>

using kivtest::CreateTopLevel;

namespace {

const UINT WM_FIRST_TEST = WM_APP + 1;
const UINT WM_NESTED_TEST = WM_APP + 2;

class CMapWnd : public CWnd
{
public:
    std::vector<CString> m_calls;
    CPoint m_ptHit;
    CPoint m_ptMove;
    UINT m_nMoveFlags = 0;
    int m_nEnable = -1;
    HWND m_hWndCaptureGained = nullptr;
    HDC m_hEraseDC = nullptr;
    UINT m_nNestedCurrent = 0;

protected:
    afx_msg LRESULT OnFirst(WPARAM wParam, LPARAM lParam)
    {
        m_calls.push_back("first");
        return (LRESULT)(wParam + lParam);
    }
    afx_msg LRESULT OnFirstAgain(WPARAM, LPARAM)
    {
        m_calls.push_back("second");
        return 0;
    }
    afx_msg LRESULT OnNcHitTest(CPoint point)
    {
        m_ptHit = point;
        return HTCAPTION;
    }
    afx_msg void OnMouseMove(UINT nFlags, CPoint point)
    {
        m_nMoveFlags = nFlags;
        m_ptMove = point;
    }
    afx_msg void OnEnable(BOOL bEnable)
    {
        m_nEnable = bEnable;
        CWnd::OnEnable(bEnable);
    }
    afx_msg void OnCaptureChanged(CWnd* pWnd) { m_hWndCaptureGained = pWnd->GetSafeHwnd(); }
    afx_msg BOOL OnEraseBkgnd(CDC* pDC)
    {
        m_hEraseDC = pDC->GetSafeHdc();
        return TRUE;
    }
    afx_msg LRESULT OnNested(WPARAM, LPARAM)
    {
        m_nNestedCurrent = GetCurrentMessage()->message;
        return Default();
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CMapWnd, CWnd)
    ON_MESSAGE(WM_FIRST_TEST, &CMapWnd::OnFirst)
    ON_MESSAGE(WM_FIRST_TEST, &CMapWnd::OnFirstAgain)
    ON_WM_NCHITTEST()
    ON_WM_MOUSEMOVE()
    ON_WM_ENABLE()
    ON_WM_CAPTURECHANGED()
    ON_WM_ERASEBKGND()
    ON_MESSAGE(WM_NESTED_TEST, &CMapWnd::OnNested)
END_MESSAGE_MAP()

}  // namespace

TEST(CMessageMap, FirstEntryInDeclarationOrderWins)
{
    CMapWnd wnd;
    ASSERT_TRUE(CreateTopLevel(wnd));
    EXPECT_EQ(5, wnd.SendMessage(WM_FIRST_TEST, 2, 3));
    ASSERT_EQ(1u, wnd.m_calls.size());
    EXPECT_STREQ("first", wnd.m_calls[0]);
    wnd.DestroyWindow();
}

TEST(CMessageMap, NcHitTestHandlerGetsTheScreenPointAndItsAnswerIsTheResult)
{
    CMapWnd wnd;
    ASSERT_TRUE(CreateTopLevel(wnd));
    EXPECT_EQ(HTCAPTION, wnd.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(-5, 300)));
    EXPECT_EQ(-5, wnd.m_ptHit.x);
    EXPECT_EQ(300, wnd.m_ptHit.y);
    wnd.DestroyWindow();
}

TEST(CMessageMap, MouseMoveHandlerGetsFlagsAndSignedPoint)
{
    CMapWnd wnd;
    ASSERT_TRUE(CreateTopLevel(wnd));
    wnd.SendMessage(WM_MOUSEMOVE, MK_LBUTTON | MK_SHIFT, MAKELPARAM(-3, 17));
    EXPECT_EQ((UINT)(MK_LBUTTON | MK_SHIFT), wnd.m_nMoveFlags);
    EXPECT_EQ(CPoint(-3, 17), wnd.m_ptMove);
    wnd.DestroyWindow();
}

TEST(CMessageMap, EnableHandlerSeesTheNewState)
{
    CMapWnd wnd;
    ASSERT_TRUE(CreateTopLevel(wnd));
    wnd.EnableWindow(FALSE);
    EXPECT_EQ(0, wnd.m_nEnable);
    wnd.EnableWindow(TRUE);
    EXPECT_EQ(1, wnd.m_nEnable);
    wnd.DestroyWindow();
}

TEST(CMessageMap, CaptureChangedHandlerGetsTheWindowTakingTheCapture)
{
    CMapWnd wnd;
    CWnd other;
    ASSERT_TRUE(CreateTopLevel(wnd));
    ASSERT_TRUE(CreateTopLevel(other));
    wnd.SetCapture();
    other.SetCapture();
    EXPECT_EQ(other.m_hWnd, wnd.m_hWndCaptureGained);
    ::ReleaseCapture();
    other.DestroyWindow();
    wnd.DestroyWindow();
}

TEST(CMessageMap, EraseBackgroundHandlerGetsTheMessagesDeviceContext)
{
    CMapWnd wnd;
    ASSERT_TRUE(CreateTopLevel(wnd));
    HDC hDC = ::GetDC(wnd.m_hWnd);
    EXPECT_EQ(TRUE, wnd.SendMessage(WM_ERASEBKGND, (WPARAM)hDC));
    EXPECT_EQ(hDC, wnd.m_hEraseDC);
    ::ReleaseDC(wnd.m_hWnd, hDC);
    wnd.DestroyWindow();
}

// Base map in another module

namespace {

class CDerivedMapWnd : public CBaseMapWnd
{
public:
    int m_nDerivedCalls = 0;

protected:
    afx_msg LRESULT OnBoth(WPARAM, LPARAM)
    {
        ++m_nDerivedCalls;
        return 2;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CDerivedMapWnd, CBaseMapWnd)
    ON_MESSAGE(WM_BOTH, &CDerivedMapWnd::OnBoth)
END_MESSAGE_MAP()

}  // namespace

TEST(CMessageMap, BaseMapInAnotherModuleHandlesWhatTheDerivedMapLacks)
{
    CDerivedMapWnd wnd;
    ASSERT_TRUE(CreateTopLevel(wnd));
    EXPECT_EQ(107, wnd.SendMessage(WM_BASE_ONLY, 7));
    EXPECT_EQ(1, wnd.m_nBaseCalls);
    EXPECT_EQ(0, wnd.m_nDerivedCalls);
    wnd.DestroyWindow();
}

TEST(CMessageMap, DerivedEntryHidesTheBaseEntryOfAnotherModule)
{
    CDerivedMapWnd wnd;
    ASSERT_TRUE(CreateTopLevel(wnd));
    EXPECT_EQ(2, wnd.SendMessage(WM_BOTH));
    EXPECT_EQ(0, wnd.m_nBaseCalls);
    EXPECT_EQ(1, wnd.m_nDerivedCalls);
    wnd.DestroyWindow();
}

// Default and the current message

namespace {

// An edit control whose WM_SETTEXT handler sends itself another message before passing
// its own one on.
class CDefaultEdit : public CWnd
{
public:
    UINT m_nCurrentInNested = 0;
    UINT m_nCurrentAfterNested = 0;
    LRESULT m_lDefault = -1;

protected:
    afx_msg LRESULT OnSetText(WPARAM, LPARAM)
    {
        SendMessage(WM_NESTED_TEST);
        m_nCurrentAfterNested = GetCurrentMessage()->message;
        m_lDefault = Default();
        return m_lDefault;
    }
    afx_msg LRESULT OnNested(WPARAM, LPARAM)
    {
        m_nCurrentInNested = GetCurrentMessage()->message;
        return Default();
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CDefaultEdit, CWnd)
    ON_MESSAGE(WM_SETTEXT, &CDefaultEdit::OnSetText)
    ON_MESSAGE(WM_NESTED_TEST, &CDefaultEdit::OnNested)
END_MESSAGE_MAP()

}  // namespace

TEST(CWnd, DefaultPassesTheCurrentMessageToThePreviousProcedure)
{
    CWnd parent;
    ASSERT_TRUE(CreateTopLevel(parent));
    HWND hEdit = ::CreateWindowExA(0, "EDIT", "", WS_CHILD | WS_VISIBLE, 0, 0, 100, 20, parent.m_hWnd, (HMENU)5,
                                   nullptr, nullptr);
    CDefaultEdit edit;
    ASSERT_TRUE(edit.SubclassWindow(hEdit));
    edit.SetWindowText("through the edit");
    EXPECT_EQ(TRUE, edit.m_lDefault);
    CString text;
    edit.GetWindowText(text);
    EXPECT_STREQ("through the edit", text);
    parent.DestroyWindow();
}

TEST(CWnd, NestedMessageHasItsOwnCurrentMessageAndTheOuterOneComesBack)
{
    CWnd parent;
    ASSERT_TRUE(CreateTopLevel(parent));
    HWND hEdit = ::CreateWindowExA(0, "EDIT", "", WS_CHILD | WS_VISIBLE, 0, 0, 100, 20, parent.m_hWnd, (HMENU)5,
                                   nullptr, nullptr);
    CDefaultEdit edit;
    ASSERT_TRUE(edit.SubclassWindow(hEdit));
    edit.SetWindowText("outer");
    EXPECT_EQ(WM_NESTED_TEST, edit.m_nCurrentInNested);
    EXPECT_EQ((UINT)WM_SETTEXT, edit.m_nCurrentAfterNested);
    parent.DestroyWindow();
}

TEST(CWnd, DefaultOfAWindowWithoutPreviousProcedureIsTheSystemDefault)
{
    CMapWnd wnd;
    ASSERT_TRUE(CreateTopLevel(wnd));
    // An application message means nothing to the system's default procedure.
    EXPECT_EQ(0, wnd.SendMessage(WM_NESTED_TEST));
    EXPECT_EQ(WM_NESTED_TEST, wnd.m_nNestedCurrent);
    wnd.DestroyWindow();
}

// Commands

namespace {

const UINT ID_TEST_COMMAND = 4001;
const UINT ID_TEST_RANGE_FIRST = 4010;
const UINT ID_TEST_RANGE_LAST = 4019;
const UINT ID_TEST_PASSED_ON = 4020;

class CCommandTarget : public CCmdTarget
{
public:
    int m_nCommands = 0;
    UINT m_nRangeID = 0;
    int m_nUpdates = 0;

protected:
    afx_msg void OnTestCommand() { ++m_nCommands; }
    afx_msg void OnRange(UINT nID) { m_nRangeID = nID; }
    afx_msg void OnUpdateTest(CCmdUI* pCmdUI)
    {
        ++m_nUpdates;
        pCmdUI->Enable(FALSE);
    }
    afx_msg void OnUpdatePassedOn(CCmdUI* pCmdUI) { pCmdUI->ContinueRouting(); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CCommandTarget, CCmdTarget)
    ON_COMMAND(ID_TEST_COMMAND, &CCommandTarget::OnTestCommand)
    ON_COMMAND_RANGE(ID_TEST_RANGE_FIRST, ID_TEST_RANGE_LAST, &CCommandTarget::OnRange)
    ON_UPDATE_COMMAND_UI(ID_TEST_COMMAND, &CCommandTarget::OnUpdateTest)
    ON_UPDATE_COMMAND_UI(ID_TEST_PASSED_ON, &CCommandTarget::OnUpdatePassedOn)
END_MESSAGE_MAP()

// Remembers what an update handler asked for.
class CRecordingCmdUI : public CCmdUI
{
public:
    int m_nEnabled = -1;
    void Enable(BOOL bOn) override
    {
        m_nEnabled = bOn;
        m_bEnableChanged = TRUE;
    }
};

}  // namespace

TEST(CCmdTarget, OnCmdMsgCallsTheCommandHandler)
{
    CCommandTarget target;
    EXPECT_TRUE(target.OnCmdMsg(ID_TEST_COMMAND, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(1, target.m_nCommands);
    EXPECT_FALSE(target.OnCmdMsg(ID_TEST_COMMAND + 1, CN_COMMAND, nullptr, nullptr));
}

TEST(CCmdTarget, HandlerQueryFindsWithoutCalling)
{
    CCommandTarget target;
    AFX_CMDHANDLERINFO info = {nullptr, nullptr};
    EXPECT_TRUE(target.OnCmdMsg(ID_TEST_COMMAND, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(&target, info.pTarget);
    EXPECT_EQ(0, target.m_nCommands);
}

TEST(CCmdTarget, RangeHandlerGetsTheCommandId)
{
    CCommandTarget target;
    EXPECT_TRUE(target.OnCmdMsg(ID_TEST_RANGE_FIRST + 4, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(ID_TEST_RANGE_FIRST + 4, target.m_nRangeID);
    EXPECT_FALSE(target.OnCmdMsg(ID_TEST_RANGE_LAST + 1, CN_COMMAND, nullptr, nullptr));
}

TEST(CCmdTarget, UpdateHandlerSetsTheItemState)
{
    CCommandTarget target;
    CRecordingCmdUI state;
    state.m_nID = ID_TEST_COMMAND;
    EXPECT_TRUE(target.OnCmdMsg(ID_TEST_COMMAND, (int)CN_UPDATE_COMMAND_UI, &state, nullptr));
    EXPECT_EQ(1, target.m_nUpdates);
    EXPECT_EQ(0, state.m_nEnabled);
}

TEST(CCmdTarget, UpdateHandlerThatContinuesRoutingDoesNotCount)
{
    CCommandTarget target;
    CRecordingCmdUI state;
    state.m_nID = ID_TEST_PASSED_ON;
    EXPECT_FALSE(target.OnCmdMsg(ID_TEST_PASSED_ON, (int)CN_UPDATE_COMMAND_UI, &state, nullptr));
}

TEST(CCmdUI, DoUpdateDisablesAnItemWithoutAnyHandlerAndEnablesOneWithACommandHandler)
{
    CCommandTarget target;
    CRecordingCmdUI state;
    state.m_nID = ID_TEST_RANGE_LAST + 5;
    EXPECT_FALSE(state.DoUpdate(&target, TRUE));
    EXPECT_EQ(0, state.m_nEnabled);
    CRecordingCmdUI kept;
    kept.m_nID = ID_TEST_RANGE_FIRST;  // a command handler enables it
    kept.DoUpdate(&target, TRUE);
    EXPECT_EQ(1, kept.m_nEnabled);
    CRecordingCmdUI untouched;
    untouched.m_nID = ID_TEST_RANGE_LAST + 5;
    untouched.DoUpdate(&target, FALSE);
    EXPECT_EQ(-1, untouched.m_nEnabled);
}

namespace {

class CCommandWnd : public CWnd
{
public:
    int m_nClicked = 0;
    int m_nMenuCommands = 0;
    BOOL m_bAllowMenu = TRUE;

protected:
    afx_msg void OnClicked() { ++m_nClicked; }
    afx_msg void OnMenuCommand() { ++m_nMenuCommands; }
    afx_msg void OnUpdateMenuCommand(CCmdUI* pCmdUI) { pCmdUI->Enable(m_bAllowMenu); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CCommandWnd, CWnd)
    ON_BN_CLICKED(77, &CCommandWnd::OnClicked)
    ON_COMMAND(ID_TEST_COMMAND, &CCommandWnd::OnMenuCommand)
    ON_UPDATE_COMMAND_UI(ID_TEST_COMMAND, &CCommandWnd::OnUpdateMenuCommand)
END_MESSAGE_MAP()

}  // namespace

TEST(CWnd, ClickOfAChildButtonReachesTheParentsClickedHandler)
{
    CCommandWnd wnd;
    ASSERT_TRUE(CreateTopLevel(wnd));
    CButton button;
    ASSERT_TRUE(button.Create("Press", WS_VISIBLE | BS_PUSHBUTTON, CRect(5, 5, 80, 30), &wnd, 77));
    button.SendMessage(BM_CLICK);
    EXPECT_EQ(1, wnd.m_nClicked);
    wnd.DestroyWindow();
}

TEST(CWnd, MenuCommandThatItsUpdateHandlerDisablesIsDropped)
{
    CCommandWnd wnd;
    ASSERT_TRUE(CreateTopLevel(wnd));
    wnd.SendMessage(WM_COMMAND, ID_TEST_COMMAND);
    EXPECT_EQ(1, wnd.m_nMenuCommands);
    wnd.m_bAllowMenu = FALSE;
    EXPECT_EQ(1, wnd.SendMessage(WM_COMMAND, ID_TEST_COMMAND));
    EXPECT_EQ(1, wnd.m_nMenuCommands);
    wnd.DestroyWindow();
}
