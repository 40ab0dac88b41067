// mfcCDialog's placement: centred on its owner when first opened, saved under the current
// user's key of the application and the dialog when closed, restored when opened again.
#include "DialogsTest.h"

namespace dialogs_tests {

namespace {

constexpr int kScreenRight = 1280;
constexpr int kScreenBottom = 1024;

CRect WindowRect(const CWnd& wnd)
{
    CRect rect;
    wnd.GetWindowRect(&rect);
    return rect;
}

// The dialog's size as its template makes it, before anything moved it.
CSize TemplateSize(UINT nIDTemplate)
{
    CDialog probe(nIDTemplate);
    if (!probe.Create(nIDTemplate))
        return CSize();
    CSize size = WindowRect(probe).Size();
    probe.DestroyWindow();
    return size;
}

std::string Key(const CString& appKey, const char* lpszDialog)
{
    return std::string(appKey) + "\\KIVDLG" + lpszDialog;
}

}  // namespace

// Centring

TEST_F(mfcCDialog, FirstOpeningIsCentredOnItsOwner)
{
    CWnd owner;
    CreateOwner(owner, CRect(300, 200, 900, 700));
    TestDialog dlg(IDD_PLAIN, &owner);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, &owner));
    CRect rect = WindowRect(dlg);
    EXPECT_EQ(600 - rect.Width() / 2, rect.left);
    EXPECT_EQ(450 - rect.Height() / 2, rect.top);
    EXPECT_EQ(TemplateSize(IDD_PLAIN), rect.Size());
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, FirstOpeningNearTheTopLeftIsClampedToZero)
{
    CWnd owner;
    CreateOwner(owner, CRect(-200, -150, 100, 100));
    TestDialog dlg(IDD_PLAIN, &owner);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, &owner));
    EXPECT_EQ(CPoint(0, 0), WindowRect(dlg).TopLeft());
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, FirstOpeningNearTheBottomRightStaysOnThePrimaryScreen)
{
    CWnd owner;
    CreateOwner(owner, CRect(1100, 900, 1400, 1200));
    TestDialog dlg(IDD_PLAIN, &owner);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, &owner));
    CRect rect = WindowRect(dlg);
    EXPECT_EQ(kScreenRight, rect.right);
    EXPECT_EQ(kScreenBottom, rect.bottom);
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, WithoutOwnerIsCentredOnTheScreen)
{
    TestDialog dlg(IDD_PLAIN, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    CRect rect = WindowRect(dlg);
    EXPECT_EQ(640 - rect.Width() / 2, rect.left);
    EXPECT_EQ(512 - rect.Height() / 2, rect.top);
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, CenterWindowPrefersTheGivenWindowToTheOwner)
{
    CWnd owner, other;
    CreateOwner(owner, CRect(300, 200, 900, 700));
    CreateOwner(other, CRect(100, 100, 301, 301));
    TestDialog dlg(IDD_PLAIN, &owner);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, &owner));
    CRect before = WindowRect(dlg);
    dlg.CenterWindow(&other);
    CRect rect = WindowRect(dlg);
    // Divisions truncate: (100 + 301) / 2 is 200.
    EXPECT_EQ(CPoint(200 - before.Width() / 2, 200 - before.Height() / 2), rect.TopLeft());
    EXPECT_EQ(before.Size(), rect.Size());
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, WiderThanTheScreenWithANegativeCentreStartsAtZero)
{
    CWnd owner;
    CreateOwner(owner, CRect(200, 300, 400, 500));
    TestDialog dlg(IDD_WIDE, &owner);
    ASSERT_TRUE(dlg.Create(IDD_WIDE, &owner));
    CRect rect = WindowRect(dlg);
    ASSERT_GT(rect.Width(), kScreenRight);
    EXPECT_EQ(0, rect.left);
    EXPECT_GT(rect.right, kScreenRight);
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, WiderThanTheScreenPulledBackFromTheRightEdgeKeepsItsNegativeLeft)
{
    CWnd owner;
    CreateOwner(owner, CRect(900, 300, 1260, 500));
    TestDialog dlg(IDD_WIDE, &owner);
    ASSERT_TRUE(dlg.Create(IDD_WIDE, &owner));
    CRect rect = WindowRect(dlg);
    ASSERT_GE(1080 - rect.Width() / 2, 0);  // the centred left is not negative
    EXPECT_EQ(kScreenRight - rect.Width(), rect.left);
    EXPECT_LT(rect.left, 0);
    dlg.DestroyWindow();
}

// Names and keys

TEST_F(mfcCDialog, ConstructorsAndCreateNameTheDialog)
{
    TestDialog byId(IDD_PLAIN, nullptr);
    TestDialog byName("SETTINGS", nullptr);
    TestDialog unnamed;
    EXPECT_STREQ("130", byId.m_strDialogName);
    EXPECT_STREQ("SETTINGS", byName.m_strDialogName);
    EXPECT_STREQ("", unnamed.m_strDialogName);
    ASSERT_TRUE(unnamed.Create(IDD_PLAIN, nullptr, 7));
    EXPECT_STREQ("130", unnamed.m_strDialogName);
    unnamed.DestroyWindow();
    ASSERT_TRUE(byId.Create("SETTINGS", nullptr, 7));
    EXPECT_STREQ("SETTINGS", byId.m_strDialogName);
    byId.DestroyWindow();
}

TEST_F(mfcCDialog, DialogFromTemplateId130IsSavedUnderKIVDLG130)
{
    TestDialog dlg(IDD_PLAIN, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    EXPECT_TRUE(dlg.DestroyWindow());
    EXPECT_TRUE(Registry().Exists("KIVDLG130"));
    CRect rect;
    DWORD maximized = 9;
    EXPECT_TRUE(ReadPlacement("130", rect, maximized));
}

TEST_F(mfcCDialog, DialogFromTheNameSETTINGSIsSavedUnderKIVDLGSETTINGS)
{
    TestDialog dlg("SETTINGS", nullptr);
    ASSERT_TRUE(dlg.Create("SETTINGS", nullptr));
    EXPECT_TRUE(dlg.DestroyWindow());
    EXPECT_TRUE(Registry().Exists("KIVDLGSETTINGS"));
    EXPECT_FALSE(Registry().Exists("KIVDLG130"));
}

// Saving

TEST_F(mfcCDialog, ClosingANormalDialogWritesBottomLeftRightTopThenMaximizedZero)
{
    TestDialog dlg(IDD_PLAIN, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    CSize size = WindowRect(dlg).Size();
    dlg.MoveWindow(101, 102, size.cx, size.cy);
    RegistryRecorder recorder;
    EXPECT_TRUE(dlg.DestroyWindow());
    EXPECT_EQ(nullptr, dlg.m_hWnd);
    std::vector<std::string> expected = {"create " + Key(AppKey(), "130") + " 0x2001f",
                                         "set Bottom " + std::to_string(102 + size.cy),
                                         "set Left 101",
                                         "set Right " + std::to_string(101 + size.cx),
                                         "set Top 102",
                                         "set Maximized 0"};
    EXPECT_EQ(expected, recorder.Calls());
    CRect saved;
    DWORD maximized = 9;
    ASSERT_TRUE(ReadPlacement("130", saved, maximized));  // every value a REG_DWORD
    EXPECT_EQ(CRect(CPoint(101, 102), size), saved);
    EXPECT_EQ(0u, maximized);
}

TEST_F(mfcCDialog, ClosingAMaximizedDialogWritesMaximizedFirstThenTheRestoredRectangle)
{
    TestDialog dlg(IDD_RESIZABLE, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_RESIZABLE, nullptr));
    dlg.MoveWindow(110, 120, 500, 380);
    dlg.ShowWindow(SW_SHOWMAXIMIZED);
    ASSERT_TRUE(dlg.IsZoomed());
    RegistryRecorder recorder;
    EXPECT_TRUE(dlg.DestroyWindow());
    std::vector<std::string> expected = {"set Maximized 1", "set Bottom 500", "set Left 110", "set Right 610",
                                         "set Top 120"};
    EXPECT_EQ(expected, recorder.Calls("set"));
    CRect saved;
    DWORD maximized = 9;
    ASSERT_TRUE(ReadPlacement("131", saved, maximized));
    EXPECT_EQ(1u, maximized);
}

TEST_F(mfcCDialog, DestroyWindowWithoutAWindowReturnsFalseAndWritesNothing)
{
    TestDialog dlg(IDD_PLAIN, nullptr);
    RegistryRecorder recorder;
    EXPECT_FALSE(dlg.DestroyWindow());
    // A handle that is no longer a window.
    HWND hGone = ::CreateWindowExA(0, "Static", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    ::DestroyWindow(hGone);
    dlg.m_hWnd = hGone;
    EXPECT_FALSE(dlg.DestroyWindow());
    dlg.m_hWnd = nullptr;
    EXPECT_TRUE(recorder.Calls().empty());
    EXPECT_FALSE(Registry().Exists("KIVDLG130"));
}

TEST_F(mfcCDialog, EmptyDialogNameReadsAndWritesNothing)
{
    SavePlacement("", CRect(10, 20, 310, 220), 0);  // what an unnamed key would hold
    RegistryRecorder recorder;
    TestDialog dlg;
    ASSERT_TRUE(dlg.CDialog::Create(MAKEINTRESOURCEA(IDD_PLAIN), nullptr));
    CRect rect = WindowRect(dlg);
    EXPECT_EQ(640 - rect.Width() / 2, rect.left);
    EXPECT_TRUE(dlg.DestroyWindow());
    EXPECT_TRUE(recorder.Calls().empty()) << recorder.Calls().front();
    EXPECT_FALSE(Registry().Exists("KIVDLG130"));
}

// Restoring

TEST_F(mfcCDialog, ReopeningReadsBottomLeftRightTopThenMaximized)
{
    SavePlacement("130", CRect(200, 150, 500, 400), 0);
    RegistryRecorder recorder;
    TestDialog dlg(IDD_PLAIN, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    std::vector<std::string> expected = {"open " + Key(AppKey(), "130") + " 0x20019",
                                         "query Bottom 4",
                                         "query Left 4",
                                         "query Right 4",
                                         "query Top 4",
                                         "query Maximized 4"};
    EXPECT_EQ(expected, recorder.Calls());
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, ReopeningAFixedSizeDialogMovesItButKeepsItsTemplateSize)
{
    SavePlacement("130", CRect(210, 160, 900, 800), 0);
    TestDialog dlg(IDD_PLAIN, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    EXPECT_EQ(CRect(CPoint(210, 160), TemplateSize(IDD_PLAIN)), WindowRect(dlg));
    EXPECT_FALSE(dlg.m_bMaximized);
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, ReopeningAResizableDialogGetsItsSavedSize)
{
    SavePlacement("131", CRect(150, 130, 650, 530), 0);
    TestDialog dlg(IDD_RESIZABLE, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_RESIZABLE, nullptr));
    EXPECT_EQ(CRect(150, 130, 650, 530), WindowRect(dlg));
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, MissingValueRepeatsTheValueReadBeforeIt)
{
    CString key = "KIVDLG130";
    Registry().WriteDword(key, "Bottom", 400);
    Registry().WriteDword(key, "Right", 700);
    Registry().WriteDword(key, "Top", 90);
    TestDialog dlg(IDD_PLAIN, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    // "Left" is missing: it keeps the bottom's 400; "Maximized" missing means not maximized.
    EXPECT_EQ(CPoint(400, 90), WindowRect(dlg).TopLeft());
    EXPECT_FALSE(dlg.m_bMaximized);
    EXPECT_FALSE(dlg.IsZoomed());
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, SavedRectangleOffEveryMonitorLeavesTheDialogCentred)
{
    SavePlacement("131", CRect(5000, 4000, 5400, 4300), 0);
    CWnd owner;
    CreateOwner(owner, CRect(300, 200, 900, 700));
    TestDialog dlg(IDD_RESIZABLE, &owner);
    ASSERT_TRUE(dlg.Create(IDD_RESIZABLE, &owner));
    CRect rect = WindowRect(dlg);
    EXPECT_EQ(CPoint(600 - rect.Width() / 2, 450 - rect.Height() / 2), rect.TopLeft());
    EXPECT_EQ(TemplateSize(IDD_RESIZABLE), rect.Size());
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, MaximizedPlacementIsRestoredWithoutShowingTheDialog)
{
    SavePlacement("131", CRect(150, 130, 650, 530), 1);
    TestDialog dlg(IDD_RESIZABLE, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_RESIZABLE, nullptr));
    EXPECT_TRUE(dlg.m_bMaximized);
    EXPECT_TRUE(dlg.IsZoomed());
    EXPECT_FALSE(dlg.IsWindowVisible());
    EXPECT_FALSE(dlg.m_bRestoringPlacement);
    WINDOWPLACEMENT placement = {};
    placement.length = sizeof(placement);
    dlg.GetWindowPlacement(&placement);
    EXPECT_EQ(CRect(150, 130, 650, 530), CRect(placement.rcNormalPosition));
    // The placement call asked to show the window; the dialog took that away.
    bool bShowTakenAway = false;
    for (const auto& change : dlg.m_posChanges)
        bShowTakenAway |= (change.flagsIn & SWP_SHOWWINDOW) && !(change.flagsOut & SWP_SHOWWINDOW);
    EXPECT_TRUE(bShowTakenAway);
    dlg.ShowWindow(SW_SHOW);
    EXPECT_TRUE(dlg.IsZoomed());
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, WindowPosChangingTakesTheShowFlagOnlyWhileRestoringAMaximizedPlacement)
{
    TestDialog dlg(IDD_PLAIN, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    WINDOWPOS pos = {dlg.m_hWnd, nullptr, 0, 0, 0, 0, SWP_SHOWWINDOW | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER};
    EXPECT_EQ(0, dlg.SendMessage(WM_WINDOWPOSCHANGING, 0, (LPARAM)&pos));
    EXPECT_EQ((UINT)(SWP_SHOWWINDOW | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER), pos.flags);
    dlg.m_bRestoringPlacement = TRUE;
    EXPECT_EQ(0, dlg.SendMessage(WM_WINDOWPOSCHANGING, 0, (LPARAM)&pos));
    EXPECT_EQ((UINT)(SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER), pos.flags);
    dlg.m_bRestoringPlacement = FALSE;
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, ModalDialogSavesItsPlacementWhenItsLoopEnds)
{
    CWnd owner;
    CreateOwner(owner, CRect(300, 200, 900, 700));
    TestDialog dlg(IDD_PLAIN, &owner);
    CRect shown;
    dlg.m_afterInit = [&] {
        dlg.GetWindowRect(&shown);
        dlg.PostMessage(WM_COMMAND, IDCANCEL);
    };
    EXPECT_EQ(IDCANCEL, dlg.DoModal());
    CRect saved;
    DWORD maximized = 9;
    ASSERT_TRUE(ReadPlacement("130", saved, maximized));
    EXPECT_EQ(shown, saved);
    EXPECT_EQ(0u, maximized);
}

// Placement values a host or a user left in another shape

namespace {

const char* const kPlacementValues[] = {"Left", "Top", "Right", "Bottom", "Maximized"};

}  // namespace

TEST_F(mfcCDialog, PlacementValuesSavedAsTextAreReadAsTheirFirstFourBytes)
{
    // "999" with its terminator is four bytes, read as the number 0x00393939: a rectangle off
    // every monitor, so the dialog stays centred and nothing is restored.
    for (const char* name : kPlacementValues)
        ASSERT_TRUE(Registry().WriteValue("KIVDLG131", name, REG_SZ, "999", 4));
    CWnd owner;
    CreateOwner(owner, CRect(300, 200, 900, 700));
    TestDialog dlg(IDD_RESIZABLE, &owner);
    ASSERT_TRUE(dlg.Create(IDD_RESIZABLE, &owner));
    CRect rect = WindowRect(dlg);
    EXPECT_EQ(CPoint(600 - rect.Width() / 2, 450 - rect.Height() / 2), rect.TopLeft());
    EXPECT_EQ(0x00393939, dlg.m_bMaximized);
    EXPECT_FALSE(dlg.IsZoomed());
    EXPECT_TRUE(dlg.DestroyWindow());
}

TEST_F(mfcCDialog, PlacementValuesTooLongForTheirBufferLeaveTheDialogCentredAndAreRewrittenOnClosing)
{
    const ULONGLONG big = 0x0000000100000064ull;
    for (const char* name : kPlacementValues)
        ASSERT_TRUE(Registry().WriteValue("KIVDLG131", name, REG_QWORD, &big, sizeof(big)));
    CWnd owner;
    CreateOwner(owner, CRect(300, 200, 900, 700));
    TestDialog dlg(IDD_RESIZABLE, &owner);
    ASSERT_TRUE(dlg.Create(IDD_RESIZABLE, &owner));
    ASSERT_TRUE(::IsWindow(dlg.m_hWnd));
    CRect opened = WindowRect(dlg);
    EXPECT_TRUE(dlg.DestroyWindow());
    CRect saved;
    DWORD maximized = 7;
    ASSERT_TRUE(ReadPlacement("131", saved, maximized));  // now four-byte numbers again
    EXPECT_EQ(opened, saved);
    EXPECT_EQ(0u, maximized);
}

TEST_F(mfcCDialog, PlacementTextLongerThanFourBytesIsNotReadAndRepeatsTheValueBefore)
{
    SavePlacement("130", CRect(210, 160, 900, 800), 0);
    // Seven bytes do not fit the four-byte buffer: the Bottom's 800 stays in it.
    ASSERT_TRUE(Registry().WriteValue("KIVDLG130", "Left", REG_SZ, "250000", 7));
    TestDialog dlg(IDD_PLAIN, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    EXPECT_EQ(CPoint(800, 160), WindowRect(dlg).TopLeft());
    EXPECT_TRUE(dlg.DestroyWindow());
}

TEST_F(mfcCDialog, PlacementValuesShorterThanFourBytesFillOnlyTheirBytes)
{
    SavePlacement("130", CRect(210, 160, 900, 800), 0);
    const WORD left = 0x0190;  // 400 in the low half; the upper half keeps the Bottom read before
    ASSERT_TRUE(Registry().WriteValue("KIVDLG130", "Left", REG_BINARY, &left, sizeof(left)));
    TestDialog dlg(IDD_PLAIN, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    EXPECT_EQ(CPoint(400, 160), WindowRect(dlg).TopLeft());
    EXPECT_TRUE(dlg.DestroyWindow());
}

TEST_F(mfcCDialog, SavedRectangleOfZeroSizeStillOpensTheDialogWithASize)
{
    SavePlacement("131", CRect(300, 200, 300, 200), 0);
    TestDialog dlg(IDD_RESIZABLE, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_RESIZABLE, nullptr));
    CRect rect = WindowRect(dlg);
    EXPECT_GT(rect.Width(), 0);  // the system's smallest window, not nothing
    EXPECT_GT(rect.Height(), 0);
    EXPECT_TRUE(dlg.DestroyWindow());
}

TEST_F(mfcCDialog, SavedRectangleOfNegativeSizeKeepsAFixedSizeDialogsTemplateSize)
{
    SavePlacement("130", CRect(500, 400, 300, 200), 0);
    TestDialog dlg(IDD_PLAIN, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    EXPECT_EQ(TemplateSize(IDD_PLAIN), WindowRect(dlg).Size());
    EXPECT_TRUE(dlg.DestroyWindow());
}

TEST_F(mfcCDialog, PlacementKeyThatCannotBeCreatedLeavesTheDialogCentredAndClosesCleanly)
{
    // A key name longer than the registry allows for one component: opening and creating fail.
    CString longName(_T('K'), 300);
    AFX_MODULE_STATE* pState = AfxGetModuleState();
    LPCSTR saved = pState->m_lpszCurrentAppName;
    pState->m_lpszCurrentAppName = longName;
    CWnd owner;
    CreateOwner(owner, CRect(300, 200, 900, 700));
    TestDialog dlg(IDD_PLAIN, &owner);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, &owner));
    CRect rect = WindowRect(dlg);
    EXPECT_EQ(CPoint(600 - rect.Width() / 2, 450 - rect.Height() / 2), rect.TopLeft());
    EXPECT_TRUE(dlg.DestroyWindow());
    HKEY hKey = nullptr;
    EXPECT_NE(ERROR_SUCCESS, ::RegOpenKeyExA(HKEY_CURRENT_USER, "Software\\Varnelt\\" + longName, 0, KEY_READ, &hKey));
    pState->m_lpszCurrentAppName = saved;
}

}  // namespace dialogs_tests
