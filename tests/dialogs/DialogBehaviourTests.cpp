// mfcCDialog while it runs: tooltips from its "_TIPTEXT" resource, translation, colour push
// buttons, the combo arrow pictures, the size grip's hit test, command updates, and what it
// releases when its window goes.
#include "DialogsTest.h"

namespace dialogs_tests {

namespace {

std::wstring WideText(HWND hWnd)
{
    wchar_t text[256] = {};
    ::GetWindowTextW(hWnd, text, 256);
    return text;
}

LPARAM ScreenPoint(HWND hWnd, CPoint client)
{
    ::ClientToScreen(hWnd, &client);
    return MAKELPARAM(client.x, client.y);
}

// The screen point two pixels inside the client area's lower right corner.
LPARAM NearClientCorner(HWND hWnd)
{
    CRect client;
    ::GetClientRect(hWnd, &client);
    return ScreenPoint(hWnd, CPoint(client.right - 2, client.bottom - 2));
}

}  // namespace

// Tooltips

TEST_F(mfcCDialog, TipTextRecordGivesItsControlThePartAfterTheLineFeed)
{
    TestDialog dlg(IDD_PLAIN, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    ASSERT_NE(nullptr, dlg.m_pToolTip);
    // "Opens the file\nOpen" gives "Open"; "Orphan" has no tip; the record for a control the
    // dialog lacks is stepped over; "The name\nName\nmore" gives "Name".
    std::vector<std::string> expected = {"1003:Open", "1002:Name"};
    EXPECT_EQ(expected, TipTexts(dlg.m_pToolTip->m_hWnd));
    std::vector<Tip> tips = TipsOf(dlg.m_pToolTip->m_hWnd);
    ASSERT_EQ(2u, tips.size());
    EXPECT_EQ(Item(dlg, IDC_OPEN), tips[0].tool);
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, TooltipIsAlwaysShownAndAsWideAsItsLongestTip)
{
    TestDialog dlg(IDD_PLAIN, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    ASSERT_NE(nullptr, dlg.m_pToolTip);
    HWND hTip = dlg.m_pToolTip->m_hWnd;
    EXPECT_TRUE(::GetWindowLongPtrA(hTip, GWL_STYLE) & TTS_ALWAYSTIP);
    EXPECT_EQ(32767, ::SendMessageA(hTip, TTM_GETMAXTIPWIDTH, 0, 0));
    EXPECT_EQ(dlg.m_hWnd, ::GetWindow(hTip, GW_OWNER));
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, NamedTemplateTakesTheTipTextOfItsName)
{
    TestDialog dlg("SETTINGS", nullptr);
    ASSERT_TRUE(dlg.Create("SETTINGS", nullptr));
    ASSERT_NE(nullptr, dlg.m_pToolTip);
    EXPECT_EQ(std::vector<std::string>{"1003:Settings"}, TipTexts(dlg.m_pToolTip->m_hWnd));
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, TipTextCutInsideItsLastRecordEndsThatTipAtTheEndOfTheResource)
{
    TestDialog dlg("CUTTIPS", nullptr);
    ASSERT_TRUE(dlg.Create("CUTTIPS", nullptr));
    ASSERT_NE(nullptr, dlg.m_pToolTip);
    std::vector<std::string> expected = {std::to_string(IDC_LABEL) + ":Label", std::to_string(IDC_OPEN) + ":Op"};
    EXPECT_EQ(expected, TipTexts(dlg.m_pToolTip->m_hWnd));
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, TemplateWithoutTipTextHasNoTooltip)
{
    TestDialog dlg(IDD_RESIZABLE, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_RESIZABLE, nullptr));
    EXPECT_EQ(nullptr, dlg.m_pToolTip);
    MSG msg = {Item(dlg, IDC_OPEN), WM_MOUSEMOVE, 0, MAKELPARAM(3, 3), 0, {0, 0}};
    dlg.PreTranslateMessage(&msg);  // nothing to relay to
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, PreTranslateMessageRelaysTheMouseMessagesToTheTooltip)
{
    TestDialog dlg(IDD_PLAIN, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    EXPECT_TRUE(RelaysMouseMessages(dlg, dlg.m_pToolTip->m_hWnd, Item(dlg, IDC_OPEN)));
    dlg.DestroyWindow();
}

// Translation

TEST_F(mfcCDialog, TranslationModeTranslatesTheControlsUnderTheDialogsId)
{
    TranslationMode translation;
    LocalizationManager* manager = LocalizationManager::Get();
    ASSERT_EQ(1, manager->IsTranslationMode());
    manager->SetTranslation("Label", CStringW(L"Beschriftung"), "1001", "130");
    manager->SetTranslation("Open",
                            CStringW(L"\x00D6"
                                     L"ffnen"),
                            "1003", "130");
    TestDialog dlg(IDD_PLAIN, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    EXPECT_EQ(L"Beschriftung", WideText(Item(dlg, IDC_LABEL)));
    EXPECT_EQ(L"\x00D6"
              L"ffnen",
              WideText(Item(dlg, IDC_OPEN)));
    EXPECT_EQ(L"Orphan", WideText(Item(dlg, IDC_ORPHAN)));
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, TranslationModeTranslatesANamedDialogUnderItsName)
{
    TranslationMode translation;
    LocalizationManager::Get()->SetTranslation("Label", CStringW(L"Einstellung"), "1001", "SETTINGS");
    TestDialog dlg("SETTINGS", nullptr);
    ASSERT_TRUE(dlg.Create("SETTINGS", nullptr));
    EXPECT_EQ(L"Einstellung", WideText(Item(dlg, IDC_LABEL)));
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, OutsideTranslationModeControlsKeepTheirTexts)
{
    LocalizationManager* manager = LocalizationManager::Get();
    ASSERT_EQ(0, manager->IsTranslationMode());
    manager->SetTranslation("Label", CStringW(L"Beschriftung"), "1001", "130");
    TestDialog dlg(IDD_PLAIN, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    EXPECT_EQ(L"Label", WideText(Item(dlg, IDC_LABEL)));
    dlg.DestroyWindow();
}

// Push buttons and pictures

TEST_F(mfcCDialog, PushButtonsBecomeColorButtonsInChildOrder)
{
    TestDialog dlg(IDD_PLAIN, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    std::vector<int> ids;
    for (CColorButton* button : dlg.m_colorButtons)
    {
        ids.push_back(button->GetDlgCtrlID());
        EXPECT_EQ(button, CWnd::FromHandlePermanent(button->m_hWnd));
        EXPECT_TRUE(button->IsKindOf(RUNTIME_CLASS(CColorButton)));
    }
    EXPECT_EQ((std::vector<int>{IDC_OPEN, IDC_ORPHAN, IDC_OWNED, IDOK, IDCANCEL}), ids);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(Item(dlg, IDC_CHECK)));
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, PushButtonThatAnObjectAlreadyOwnsStaysAsItIs)
{
    TestDialog dlg(IDD_PLAIN, nullptr);
    dlg.m_bOwnButton = TRUE;
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    EXPECT_EQ(&dlg.m_owned, CWnd::FromHandlePermanent(Item(dlg, IDC_OWNED)));
    EXPECT_FALSE(dlg.m_owned.IsKindOf(RUNTIME_CLASS(CColorButton)));
    EXPECT_EQ(4u, dlg.m_colorButtons.size());
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, ClearingApplySchemeKeepsPushButtonsAndErasesNothing)
{
    TestDialog dlg(IDD_PLAIN, nullptr);
    dlg.m_beforeInit = [&] { dlg.m_bApplyScheme = FALSE; };
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    EXPECT_TRUE(dlg.m_colorButtons.empty());
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(Item(dlg, IDC_OPEN)));
    CRect client;
    dlg.GetClientRect(&client);
    PixelProbe probe(client.Width(), client.Height(), kUnderlay);
    EXPECT_NE(0, dlg.SendMessage(WM_ERASEBKGND, (WPARAM)probe.DC()));
    EXPECT_TRUE(AreaIs(probe, client, kUnderlay));
    // The paint still fills the client area white.
    dlg.ShowWindow(SW_SHOWNA);
    PixelProbe shown = PixelProbe::CaptureClient(dlg.m_hWnd);
    EXPECT_EQ(kWhite, shown.Pixel(client.right - 5, client.bottom - 5));
    EXPECT_EQ(kWhite, shown.Pixel(client.right / 2, 4));
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, ErasesItsBackgroundWhite)
{
    TestDialog dlg(IDD_PLAIN, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    CRect client;
    dlg.GetClientRect(&client);
    PixelProbe probe(client.Width(), client.Height(), kUnderlay);
    EXPECT_NE(0, dlg.SendMessage(WM_ERASEBKGND, (WPARAM)probe.DC()));
    EXPECT_TRUE(AreaIs(probe, client, kWhite));
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, LoadsTheLibrarysComboArrowPictures)
{
    TestDialog dlg(IDD_PLAIN, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    ASSERT_NE(nullptr, dlg.m_bmpComboArrow.GetSafeHandle());
    ASSERT_NE(nullptr, dlg.m_bmpComboArrowDisabled.GetSafeHandle());
    EXPECT_TRUE(ShowsPicture(PictureOf((HBITMAP)dlg.m_bmpComboArrow.GetSafeHandle()), 0, 0, LibraryPicture(2012)));
    EXPECT_TRUE(
        ShowsPicture(PictureOf((HBITMAP)dlg.m_bmpComboArrowDisabled.GetSafeHandle()), 0, 0, LibraryPicture(2013)));
    dlg.DestroyWindow();
}

// The size grip's hit test

TEST_F(mfcCDialog, MouseOverTheGripSquareOfAResizableDialogReportsBottomRight)
{
    TestDialog dlg(IDD_RESIZABLE, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_RESIZABLE, nullptr));
    dlg.ShowWindow(SW_SHOWNA);
    EXPECT_EQ(HTBOTTOMRIGHT, dlg.SendMessage(WM_NCHITTEST, 0, NearClientCorner(dlg.m_hWnd)));
    CRect client;
    dlg.GetClientRect(&client);
    LPARAM beside = ScreenPoint(dlg.m_hWnd, CPoint(client.right - 40, client.bottom - 2));
    EXPECT_EQ(HTCLIENT, dlg.SendMessage(WM_NCHITTEST, 0, beside));
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, GripSquareOfAMaximizedDialogIsClientArea)
{
    TestDialog dlg(IDD_RESIZABLE, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_RESIZABLE, nullptr));
    dlg.ShowWindow(SW_SHOWMAXIMIZED);
    ASSERT_TRUE(dlg.IsZoomed());
    EXPECT_EQ(HTCLIENT, dlg.SendMessage(WM_NCHITTEST, 0, NearClientCorner(dlg.m_hWnd)));
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, FixedSizeDialogHasNoGripToHit)
{
    TestDialog dlg(IDD_PLAIN, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    dlg.ShowWindow(SW_SHOWNA);
    EXPECT_EQ(HTCLIENT, dlg.SendMessage(WM_NCHITTEST, 0, NearClientCorner(dlg.m_hWnd)));
    dlg.DestroyWindow();
}

// Command updates

TEST_F(mfcCDialog, CommandUpdatesTheControlsOnlyOnceInitialised)
{
    TestDialog dlg(IDD_PLAIN, nullptr);
    BOOL bOrphanEnabledBeforeInit = FALSE;
    dlg.m_beforeInit = [&] {
        ClickFrom(dlg, IDC_OPEN);
        bOrphanEnabledBeforeInit = OrphanEnabled(dlg);
    };
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    EXPECT_EQ(1, dlg.m_nOpened);
    EXPECT_TRUE(bOrphanEnabledBeforeInit);
    EXPECT_TRUE(dlg.m_bInitialized);
    EXPECT_FALSE(OrphanEnabled(dlg));  // the update at the end of initialising
    int updates = dlg.m_nOpenUpdates;
    EXPECT_TRUE(ClickDisablesTheOrphanAgain(dlg));
    EXPECT_EQ(2, dlg.m_nOpened);
    EXPECT_EQ(updates + 1, dlg.m_nOpenUpdates);
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, CommandWithoutAWindowUpdatesNothing)
{
    StrayButton stray;
    TestDialog dlg(IDD_PLAIN, nullptr);
    dlg.m_bInitialized = 1;
    EXPECT_TRUE(dlg.OnCommand(MAKEWPARAM(IDC_OPEN, BN_CLICKED), (LPARAM)stray.Handle()));
    EXPECT_EQ(1, dlg.m_nOpened);
    EXPECT_TRUE(stray.Enabled());
}

// Destruction

TEST_F(mfcCDialog, DestroyReleasesTooltipPicturesButtonsAndBrush)
{
    TestDialog dlg(IDD_PLAIN, nullptr);
    LONG_PTR buttonProc = 0;
    dlg.m_beforeInit = [&] { buttonProc = ::GetWindowLongPtrA(Item(dlg, IDC_OPEN), GWLP_WNDPROC); };
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    SchemeHold held = HoldOf(dlg, Item(dlg, IDC_OPEN), buttonProc);
    ASSERT_NE(nullptr, held.hToolTip);
    testing::AssertionResult released = testing::AssertionFailure() << "WM_DESTROY did not come";
    dlg.m_afterDestroy = [&] { released = ReleasedAll(dlg, held); };
    EXPECT_TRUE(dlg.DestroyWindow());
    EXPECT_TRUE(released);
}

}  // namespace dialogs_tests
