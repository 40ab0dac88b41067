// mfcCListCtrl: report rows alternating pale blue and white in every column, and no more
// drawing once its window is being destroyed.
#include "DialogsTest.h"

namespace dialogs_tests {

using kivtest::Expected;
using kivtest::MessageSpy;

namespace {

// A report list of the class in a window of its own, which reflects its notifications.
class HostedList
{
public:
    HostedList()
    {
        m_bCreated = kivtest::CreateTopLevel(m_host, 300, 220) &&
                     m_list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(0, 0, 260, 180), &m_host, IDC_LIST);
    }
    ~HostedList()
    {
        if (m_host.m_hWnd != nullptr)
            m_host.DestroyWindow();
    }
    HostedList(const HostedList&) = delete;
    HostedList& operator=(const HostedList&) = delete;

    BOOL m_bCreated = FALSE;
    ListHost m_host;
    ::mfcCListCtrl m_list;
};

}  // namespace

TEST_F(mfcCListCtrl, FiveReportRowsAlternateInEveryColumn)
{
    HostedList hosted;
    ASSERT_TRUE(hosted.m_bCreated);
    FillReport(hosted.m_list.m_hWnd, 5);
    EXPECT_EQ(AlternatingRows(5), RowBackgrounds(hosted.m_list.m_hWnd, 5));
}

TEST_F(mfcCListCtrl, CustomDrawStagesAnswerTheDefaultForSubItems)
{
    HostedList hosted;
    ASSERT_TRUE(hosted.m_bCreated);
    ExpectRowStages(hosted.m_list, CDRF_DODEFAULT);
}

TEST_F(mfcCListCtrl, DestroyTurnsRedrawOffBeforeTheWindowGoes)
{
    HostedList hosted;
    ASSERT_TRUE(hosted.m_bCreated);
    FillReport(hosted.m_list.m_hWnd, 2);
    MessageSpy spy;
    spy.Only({WM_DESTROY, WM_SETREDRAW, WM_NCDESTROY});
    spy.Watch(hosted.m_list.m_hWnd);
    EXPECT_TRUE(hosted.m_list.DestroyWindow());
    EXPECT_TRUE(
        spy.Matches({{WM_DESTROY}, {WM_SETREDRAW, Expected::kWParam | Expected::kLParam, FALSE, 0}, {WM_NCDESTROY}}));
}

TEST_F(mfcCListCtrl, ReportsItsOwnRunTimeClassWithCListCtrlAsItsBase)
{
    ::mfcCListCtrl list;
    EXPECT_EQ(RUNTIME_CLASS(::mfcCListCtrl), list.GetRuntimeClass());
    EXPECT_STREQ("mfcCListCtrl", list.GetRuntimeClass()->m_lpszClassName);
    EXPECT_EQ(RUNTIME_CLASS(CListCtrl), RUNTIME_CLASS(::mfcCListCtrl)->m_pfnGetBaseClass());
}

}  // namespace dialogs_tests
