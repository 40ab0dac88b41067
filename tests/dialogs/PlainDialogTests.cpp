// mfcDialog: a run-time class of its own over mfcCDialog, and in every other respect an
// mfcCDialog: centred, saved under its template's key, with tips and the white scheme.
#include "DialogsTest.h"

namespace dialogs_tests {

TEST_F(mfcDialog, ReportsItsOwnRunTimeClassWithmfcCDialogAsItsBase)
{
    TestPlainDialog dlg(IDD_PLAIN, nullptr);
    CRuntimeClass* pClass = dlg.GetRuntimeClass();
    EXPECT_EQ(RUNTIME_CLASS(::mfcDialog), pClass);
    EXPECT_STREQ("mfcDialog", pClass->m_lpszClassName);
    EXPECT_EQ(RUNTIME_CLASS(::mfcCDialog), pClass->m_pfnGetBaseClass());
    EXPECT_TRUE(dlg.IsKindOf(RUNTIME_CLASS(::mfcCDialog)));
    EXPECT_TRUE(dlg.IsKindOf(RUNTIME_CLASS(CDialog)));
    EXPECT_STREQ("130", dlg.m_strDialogName);
    EXPECT_STREQ("SETTINGS", TestPlainDialog("SETTINGS", nullptr).m_strDialogName);
}

TEST_F(mfcDialog, OpensCentredOnItsOwner)
{
    CWnd owner;
    CreateOwner(owner, CRect(300, 200, 900, 700));
    TestPlainDialog dlg(IDD_PLAIN, &owner);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, &owner));
    CRect rect;
    dlg.GetWindowRect(&rect);
    EXPECT_EQ(CPoint(600 - rect.Width() / 2, 450 - rect.Height() / 2), rect.TopLeft());
    dlg.DestroyWindow();
}

TEST_F(mfcDialog, IsSavedAndRestoredUnderItsTemplatesKey)
{
    {
        TestPlainDialog dlg(IDD_RESIZABLE, nullptr);
        ASSERT_TRUE(dlg.Create(IDD_RESIZABLE, nullptr));
        dlg.MoveWindow(120, 110, 480, 360);
        RegistryRecorder recorder;
        EXPECT_TRUE(dlg.DestroyWindow());
        std::vector<std::string> expected = {"set Bottom 470", "set Left 120", "set Right 600", "set Top 110",
                                             "set Maximized 0"};
        EXPECT_EQ(expected, recorder.Calls("set"));
    }
    TestPlainDialog again(IDD_RESIZABLE, nullptr);
    ASSERT_TRUE(again.Create(IDD_RESIZABLE, nullptr));
    CRect rect;
    again.GetWindowRect(&rect);
    EXPECT_EQ(CRect(120, 110, 600, 470), rect);
    again.DestroyWindow();
}

TEST_F(mfcDialog, ShowsTheTipsOfItsTipText)
{
    TestPlainDialog dlg(IDD_PLAIN, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    ASSERT_NE(nullptr, dlg.m_pToolTip);
    EXPECT_EQ((std::vector<std::string>{"1003:Open", "1002:Name"}), TipTexts(dlg.m_pToolTip->m_hWnd));
    dlg.DestroyWindow();
}

TEST_F(mfcDialog, PaintsTheWhiteSchemeWithFlatCombosAndTheGrip)
{
    TestPlainDialog dlg(IDD_SCHEME, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_SCHEME, nullptr));
    dlg.ShowWindow(SW_SHOWNA);
    CRect client;
    dlg.GetClientRect(&client);
    PixelProbe shown = PixelProbe::CaptureClient(dlg.m_hWnd);
    EXPECT_TRUE(AreaIs(shown, CRect(client.right - 40, 4, client.right - 4, 20), kWhite));
    CRect grip = GripSquare(client);
    EXPECT_EQ(ReferenceGrip(client).Count(kWhite, grip), shown.Count(kWhite, grip));
    HWND hCombo = Item(dlg, IDC_COMBO_DISABLED);
    CRect combo;
    ::GetClientRect(hCombo, &combo);
    EXPECT_TRUE(
        ShowsFlatCombo(PixelProbe::CaptureClient(hCombo), combo.right, combo.bottom, kGrey, LibraryPicture(2013)));
    HBRUSH hBrush = (HBRUSH)dlg.SendMessage(WM_CTLCOLORSTATIC, (WPARAM)shown.DC(), (LPARAM)Item(dlg, IDC_LABEL));
    EXPECT_EQ(kWhite, BrushColour(hBrush));
    EXPECT_EQ(kBlack, ::GetTextColor(shown.DC()));
    dlg.DestroyWindow();
}

}  // namespace dialogs_tests
