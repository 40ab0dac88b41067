// Dialogs: templates, the modal loop, data exchange and command updates of the controls.
#include "BaseMapWnd.h"
#include "ModalDriver.h"
#include "WindowingTest.h"
#include "windowing_res.h"

using kivtest::ModalDriver;

namespace {

class CSampleDialog : public CDialog
{
public:
    explicit CSampleDialog(UINT nID = IDD_SAMPLE, CWnd* pParent = nullptr) : CDialog(nID, pParent) {}
    explicit CSampleDialog(LPCSTR lpszName) : CDialog(lpszName) {}

    CString m_strName = "Ann";
    int m_nCount = 42;
    int m_nEnabled = 1;
    int m_nRadio = 2;
    BOOL m_bApply = TRUE;
    int m_nInit = 0;
    BOOL m_bAttachedInInit = FALSE;
    int m_nDestroy = 0;
    int m_nPreTranslated = 0;
    int m_nApplyClicks = 0;
    BOOL m_bExchange = TRUE;
    CButton m_ownerDraw;

    BOOL OnInitDialog() override
    {
        ++m_nInit;
        m_bAttachedInInit = FromHandlePermanent(m_hWnd) == this;
        return CDialog::OnInitDialog();
    }
    BOOL DestroyWindow() override
    {
        ++m_nDestroy;
        return CDialog::DestroyWindow();
    }
    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        ++m_nPreTranslated;
        return CDialog::PreTranslateMessage(pMsg);
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        if (!m_bExchange)
            return;
        DDX_Text(pDX, IDC_NAME, m_strName);
        DDX_Text(pDX, IDC_COUNT, m_nCount);
        DDX_Check(pDX, IDC_ENABLED, m_nEnabled);
        DDX_Radio(pDX, IDC_RADIO_A, m_nRadio);
        DDX_Control(pDX, IDC_OWNERDRAW, m_ownerDraw);
    }
    afx_msg void OnApply() { ++m_nApplyClicks; }
    afx_msg void OnUpdateApply(CCmdUI* pCmdUI) { pCmdUI->Enable(m_bApply); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CSampleDialog, CDialog)
    ON_BN_CLICKED(IDC_APPLY, &CSampleDialog::OnApply)
    ON_UPDATE_COMMAND_UI(IDC_APPLY, &CSampleDialog::OnUpdateApply)
END_MESSAGE_MAP()

}  // namespace

TEST(CDialog, DoModalRunsOnInitDialogAndEndsWithOK)
{
    CSampleDialog dlg;
    HWND hSeen = nullptr;
    ModalDriver driver([&](HWND hDlg) {
        hSeen = hDlg;
        ModalDriver::Click(hDlg, IDOK);
    });
    EXPECT_EQ(IDOK, dlg.DoModal());
    EXPECT_TRUE(driver.Acted());
    EXPECT_FALSE(driver.TimedOut());
    EXPECT_EQ(1, dlg.m_nInit);
    EXPECT_TRUE(dlg.m_bAttachedInInit);
    EXPECT_EQ(1, dlg.m_nDestroy);
    EXPECT_EQ(nullptr, dlg.m_hWnd);
    EXPECT_FALSE(::IsWindow(hSeen));
}

TEST(CDialog, DoModalFromATemplateNameEndsWithCancel)
{
    CSampleDialog dlg("NAMEDDLG");
    dlg.m_bExchange = FALSE;
    CString caption;
    ModalDriver driver([&](HWND hDlg) {
        caption = ModalDriver::Text(hDlg);
        ModalDriver::Click(hDlg, IDCANCEL);
    });
    EXPECT_EQ(IDCANCEL, dlg.DoModal());
    EXPECT_STREQ("Named", caption);
}

TEST(CDialog, DoModalWithAMissingTemplateFails)
{
    CSampleDialog dlg(9999);
    EXPECT_EQ(-1, dlg.DoModal());
    EXPECT_EQ(0, dlg.m_nInit);
}

TEST(CDialog, EscapeKeyOfTheModalLoopPassesPreTranslateMessageAndCancels)
{
    CSampleDialog dlg;
    ModalDriver driver([&](HWND hDlg) {
        HWND hEdit = ::GetDlgItem(hDlg, IDC_NAME);
        ::SetFocus(hEdit);
        ::PostMessageA(hEdit, WM_KEYDOWN, VK_ESCAPE, 0x00010001);
    });
    EXPECT_EQ(IDCANCEL, dlg.DoModal());
    EXPECT_GE(dlg.m_nPreTranslated, 1);
}

TEST(CDialog, DataExchangeFillsTheControlsAndReadsThemBackOnOK)
{
    CSampleDialog dlg;
    CString name, count;
    UINT nEnabled = 9, nRadioC = 9;
    ModalDriver driver([&](HWND hDlg) {
        name = ModalDriver::ItemText(hDlg, IDC_NAME);
        count = ModalDriver::ItemText(hDlg, IDC_COUNT);
        nEnabled = ::IsDlgButtonChecked(hDlg, IDC_ENABLED);
        nRadioC = ::IsDlgButtonChecked(hDlg, IDC_RADIO_C);
        ::SetDlgItemTextA(hDlg, IDC_NAME, "Bob");
        ::SetDlgItemTextA(hDlg, IDC_COUNT, " -17 ");
        ::CheckDlgButton(hDlg, IDC_ENABLED, BST_UNCHECKED);
        ::CheckRadioButton(hDlg, IDC_RADIO_A, IDC_RADIO_C, IDC_RADIO_A);
        ModalDriver::Click(hDlg, IDOK);
    });
    EXPECT_EQ(IDOK, dlg.DoModal());
    EXPECT_STREQ("Ann", name);
    EXPECT_STREQ("42", count);
    EXPECT_EQ(1u, nEnabled);
    EXPECT_EQ(1u, nRadioC);
    EXPECT_STREQ("Bob", dlg.m_strName);
    EXPECT_EQ(-17, dlg.m_nCount);
    EXPECT_EQ(0, dlg.m_nEnabled);
    EXPECT_EQ(0, dlg.m_nRadio);
}

TEST(CDialog, CancelLeavesTheMembersAsTheyWere)
{
    CSampleDialog dlg;
    ModalDriver driver([&](HWND hDlg) {
        ::SetDlgItemTextA(hDlg, IDC_NAME, "Changed");
        ModalDriver::Click(hDlg, IDCANCEL);
    });
    EXPECT_EQ(IDCANCEL, dlg.DoModal());
    EXPECT_STREQ("Ann", dlg.m_strName);
}

TEST(CDialog, NumberFieldRejectsTextAndKeepsTheDialogOpen)
{
    CSampleDialog dlg;
    CString message;
    BOOL bOpenAfterReject = FALSE;
    HWND hFocusAfterReject = nullptr;
    ModalDriver driver([&](HWND hDlg) {
        ::SetDlgItemTextA(hDlg, IDC_COUNT, "many");
        {
            ModalDriver box([&](HWND hBox) {
                message = ModalDriver::ItemText(hBox, 0xFFFF);
                ModalDriver::Click(hBox, IDOK);
            });
            ModalDriver::Click(hDlg, IDOK);
        }
        bOpenAfterReject = ::IsWindowVisible(hDlg);
        hFocusAfterReject = ::GetFocus();
        ::SetDlgItemTextA(hDlg, IDC_COUNT, "7");
        ModalDriver::Click(hDlg, IDOK);
    });
    EXPECT_EQ(IDOK, dlg.DoModal());
    EXPECT_STREQ("Please enter an integer.", message);
    EXPECT_TRUE(bOpenAfterReject);
    EXPECT_NE(nullptr, hFocusAfterReject);
    EXPECT_EQ(7, dlg.m_nCount);
}

TEST(CDialog, DataExchangeControlSubclassesTheControlOnce)
{
    CSampleDialog dlg;
    ASSERT_TRUE(dlg.Create(IDD_SAMPLE));
    HWND hButton = ::GetDlgItem(dlg.m_hWnd, IDC_OWNERDRAW);
    EXPECT_EQ(hButton, dlg.m_ownerDraw.m_hWnd);
    EXPECT_EQ(&dlg.m_ownerDraw, CWnd::FromHandlePermanent(hButton));
    EXPECT_TRUE(dlg.UpdateData(TRUE));
    EXPECT_EQ(hButton, dlg.m_ownerDraw.m_hWnd);
    dlg.DestroyWindow();
}

TEST(CDialog, ModelessCreateAttachesAndInitialises)
{
    CSampleDialog dlg;
    ASSERT_TRUE(dlg.Create(IDD_SAMPLE));
    EXPECT_EQ(1, dlg.m_nInit);
    EXPECT_TRUE(dlg.m_bAttachedInInit);
    CString name;
    dlg.GetDlgItemText(IDC_NAME, name);
    EXPECT_STREQ("Ann", name);
    EXPECT_STREQ("Sample", [&] {
        CString caption;
        dlg.GetWindowText(caption);
        return caption;
    }());
    HWND hWnd = dlg.m_hWnd;
    EXPECT_TRUE(dlg.DestroyWindow());
    EXPECT_FALSE(::IsWindow(hWnd));
}

TEST(CDialog, TemplateIsFoundInALibraryOfTheResourceChain)
{
    HMODULE hLibrary = ::GetModuleHandleA("kiv_test_basemap.dll");
    ASSERT_NE(nullptr, hLibrary);
    CDialog missing(IDD_LIBRARY_DIALOG);
    EXPECT_FALSE(missing.Create(IDD_LIBRARY_DIALOG));
    CDynLinkLibrary* pLibrary = new CDynLinkLibrary(hLibrary, hLibrary);
    CDialog dlg(IDD_LIBRARY_DIALOG);
    EXPECT_TRUE(dlg.Create(IDD_LIBRARY_DIALOG));
    CString caption;
    dlg.GetWindowText(caption);
    EXPECT_STREQ("From the library", caption);
    dlg.DestroyWindow();
    delete pLibrary;
}

// Command updates of the controls

TEST(CWnd, UpdateDialogControlsDisablesAPushButtonWithoutHandlersOnly)
{
    CSampleDialog dlg;
    ASSERT_TRUE(dlg.Create(IDD_SAMPLE));
    dlg.UpdateDialogControls(&dlg, TRUE);
    auto enabled = [&](int nID) { return ::IsWindowEnabled(::GetDlgItem(dlg.m_hWnd, nID)) != FALSE; };
    EXPECT_FALSE(enabled(IDC_NOHANDLER));
    EXPECT_FALSE(enabled(IDC_OWNERDRAW));
    EXPECT_TRUE(enabled(IDC_APPLY));
    EXPECT_TRUE(enabled(IDOK));
    EXPECT_TRUE(enabled(IDCANCEL));
    EXPECT_TRUE(enabled(IDC_ENABLED));
    EXPECT_TRUE(enabled(IDC_RADIO_A));
    EXPECT_TRUE(enabled(IDC_RADIO_B));
    EXPECT_TRUE(enabled(IDC_GROUP));
    EXPECT_TRUE(enabled(IDC_NAME));
    EXPECT_TRUE(enabled(IDC_LABEL));
    dlg.DestroyWindow();
}

TEST(CWnd, UpdateDialogControlsEnablesADisabledPushButtonThatHasACommandHandler)
{
    CSampleDialog dlg;
    ASSERT_TRUE(dlg.Create(IDD_SAMPLE));
    ::EnableWindow(::GetDlgItem(dlg.m_hWnd, IDOK), FALSE);
    ::EnableWindow(::GetDlgItem(dlg.m_hWnd, IDC_NOHANDLER), FALSE);
    dlg.UpdateDialogControls(&dlg, TRUE);
    EXPECT_TRUE(::IsWindowEnabled(::GetDlgItem(dlg.m_hWnd, IDOK)));
    EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(dlg.m_hWnd, IDC_NOHANDLER)));
    dlg.DestroyWindow();
}

TEST(CWnd, UpdateDialogControlsFollowsTheUpdateHandler)
{
    CSampleDialog dlg;
    ASSERT_TRUE(dlg.Create(IDD_SAMPLE));
    dlg.m_bApply = FALSE;
    dlg.UpdateDialogControls(&dlg, FALSE);
    EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(dlg.m_hWnd, IDC_APPLY)));
    EXPECT_TRUE(::IsWindowEnabled(::GetDlgItem(dlg.m_hWnd, IDC_NOHANDLER)));
    dlg.m_bApply = TRUE;
    dlg.UpdateDialogControls(&dlg, FALSE);
    EXPECT_TRUE(::IsWindowEnabled(::GetDlgItem(dlg.m_hWnd, IDC_APPLY)));
    dlg.DestroyWindow();
}

TEST(CWnd, UpdateDialogControlsWithoutDisablingLeavesButtonsAlone)
{
    CSampleDialog dlg;
    ASSERT_TRUE(dlg.Create(IDD_SAMPLE));
    dlg.UpdateDialogControls(&dlg, FALSE);
    EXPECT_TRUE(::IsWindowEnabled(::GetDlgItem(dlg.m_hWnd, IDC_NOHANDLER)));
    EXPECT_TRUE(::IsWindowEnabled(::GetDlgItem(dlg.m_hWnd, IDC_OWNERDRAW)));
    dlg.DestroyWindow();
}

TEST(CWnd, UpdateDialogControlsDisablesACheckBoxTheSystemDoesNotToggle)
{
    CSampleDialog dlg;
    ASSERT_TRUE(dlg.Create(IDD_SAMPLE));
    dlg.UpdateDialogControls(&dlg, TRUE);
    // Only the automatic check boxes and radio buttons keep their state without a handler.
    EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(dlg.m_hWnd, IDC_PLAINCHECK)));
    dlg.DestroyWindow();
}

TEST(CDialog, ClickOnAButtonReachesTheDialogsHandler)
{
    CSampleDialog dlg;
    ASSERT_TRUE(dlg.Create(IDD_SAMPLE));
    ModalDriver::Click(dlg.m_hWnd, IDC_APPLY);
    EXPECT_EQ(1, dlg.m_nApplyClicks);
    dlg.DestroyWindow();
}
