// Property sheets with pages, run modally and driven from inside their loop.
#include <afxdlgs.h>

#include "ModalDriver.h"
#include "WindowingTest.h"
#include "windowing_res.h"

using kivtest::ModalDriver;

namespace {

class CFirstPage : public CPropertyPage
{
public:
    CFirstPage() : CPropertyPage(IDD_PAGE1, IDS_PAGE1) {}
    CString m_strText = "start";
    int m_nInit = 0;
    BOOL m_bAttachedInInit = FALSE;
    int m_nOK = 0;
    int m_nReset = 0;
    BOOL OnInitDialog() override
    {
        ++m_nInit;
        m_bAttachedInInit = FromHandlePermanent(m_hWnd) == this;
        return CPropertyPage::OnInitDialog();
    }
    void OnOK() override { ++m_nOK; }
    void OnReset() override { ++m_nReset; }

protected:
    void DoDataExchange(CDataExchange* pDX) override { DDX_Text(pDX, IDC_PAGE1_EDIT, m_strText); }
};

class CSecondPage : public CPropertyPage
{
public:
    CSecondPage() : CPropertyPage(MAKEINTRESOURCEA(IDD_PAGE2), IDS_PAGE2) {}
    int m_nCheck = 0;
    int m_nInit = 0;
    BOOL OnInitDialog() override
    {
        ++m_nInit;
        return CPropertyPage::OnInitDialog();
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override { DDX_Check(pDX, IDC_PAGE2_CHECK, m_nCheck); }
};

}  // namespace

TEST(CPropertyPage, ConstructionKeepsTheTemplateCaptionAndPageSize)
{
    CFirstPage page;
    EXPECT_EQ(sizeof(PROPSHEETPAGEA), page.m_psp.dwSize);
    EXPECT_STREQ("Page One", page.m_strCaption);
    EXPECT_EQ(MAKEINTRESOURCEA(IDD_PAGE1), page.m_lpszTemplateName);
    CPropertyPage small(IDD_PAGE1, 0, PROPSHEETPAGEA_V1_SIZE);
    EXPECT_EQ((DWORD)PROPSHEETPAGEA_V1_SIZE, small.m_psp.dwSize);
    EXPECT_TRUE(small.m_strCaption.IsEmpty());
}

TEST(CPropertySheet, DoModalWithTwoPagesAppliesThePagesOnOK)
{
    CFirstPage first;
    CSecondPage second;
    CPropertySheet sheet(IDS_PROPERTIES);
    sheet.AddPage(&first);
    sheet.AddPage(&second);
    EXPECT_EQ(2, sheet.GetPageCount());
    CString caption, startText, tabText;
    ModalDriver driver([&](HWND hSheet) {
        caption = ModalDriver::Text(hSheet);
        HWND hPage = (HWND)::SendMessageA(hSheet, PSM_GETCURRENTPAGEHWND, 0, 0);
        startText = ModalDriver::ItemText(hPage, IDC_PAGE1_EDIT);
        ::SetDlgItemTextA(hPage, IDC_PAGE1_EDIT, "changed");
        ::SendMessageA(hSheet, PSM_SETCURSEL, 1, 0);
        HWND hSecond = (HWND)::SendMessageA(hSheet, PSM_GETCURRENTPAGEHWND, 0, 0);
        ::CheckDlgButton(hSecond, IDC_PAGE2_CHECK, BST_CHECKED);
        ::SendMessageA(hSheet, PSM_PRESSBUTTON, PSBTN_OK, 0);
    });
    EXPECT_EQ(IDOK, sheet.DoModal());
    EXPECT_TRUE(driver.Acted());
    EXPECT_STREQ("Properties", caption);
    EXPECT_STREQ("start", startText);
    EXPECT_EQ(1, first.m_nInit);
    EXPECT_TRUE(first.m_bAttachedInInit);
    EXPECT_EQ(1, second.m_nInit);
    EXPECT_STREQ("changed", first.m_strText);
    EXPECT_EQ(1, second.m_nCheck);
    EXPECT_EQ(1, first.m_nOK);
    EXPECT_EQ(nullptr, sheet.m_hWnd);
    EXPECT_EQ(nullptr, first.m_hWnd);
}

TEST(CPropertySheet, CancelEndsWithCancelAndResetsThePages)
{
    CFirstPage first;
    CSecondPage second;
    CPropertySheet sheet("Named sheet");
    sheet.AddPage(&first);
    sheet.AddPage(&second);
    ModalDriver driver([&](HWND hSheet) {
        HWND hPage = (HWND)::SendMessageA(hSheet, PSM_GETCURRENTPAGEHWND, 0, 0);
        ::SetDlgItemTextA(hPage, IDC_PAGE1_EDIT, "dropped");
        ::SendMessageA(hSheet, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
    });
    EXPECT_EQ(IDCANCEL, sheet.DoModal());
    EXPECT_STREQ("start", first.m_strText);
    EXPECT_EQ(1, first.m_nReset);
    EXPECT_EQ(0, first.m_nOK);
    EXPECT_EQ(0, second.m_nInit);  // a page never shown is never created
}

TEST(CPropertySheet, ActivePageIsTheObjectOfTheShownPage)
{
    CFirstPage first;
    CSecondPage second;
    CPropertySheet sheet("Pages", nullptr, 1);
    sheet.AddPage(&first);
    sheet.AddPage(&second);
    EXPECT_EQ(&second, sheet.GetActivePage());
    CPropertyPage* pActive = nullptr;
    int nIndex = -1;
    ModalDriver driver([&](HWND hSheet) {
        pActive = sheet.GetActivePage();
        nIndex = sheet.GetActiveIndex();
        ::SendMessageA(hSheet, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
    });
    sheet.DoModal();
    EXPECT_EQ(&second, pActive);
    EXPECT_EQ(1, nIndex);
    EXPECT_EQ(0, first.m_nInit);
}
