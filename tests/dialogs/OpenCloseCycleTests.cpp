// Each dialog class opened and closed a thousand times, in translation mode with translations
// on its controls: the process's GDI and USER objects end where they were after the first
// cycle (which makes what is made once per process: classes, stock objects, the store). The
// system's controls may make a cache of their own on a later cycle; two such objects are
// allowed, far from the thousand that one object kept per cycle would leave.
#include "DialogsTest.h"
#include "GuiObjects.h"

namespace dialogs_tests {

namespace {

constexpr int kCycles = 1000;

constexpr int kLaterCaches = 2;

testing::AssertionResult SameObjects(const kivtest::GuiObjects& before, const kivtest::GuiObjects& after)
{
    if (after.gdi <= before.gdi + kLaterCaches && after.user <= before.user)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "GDI objects " << before.gdi << " -> " << after.gdi << ", USER objects "
                                       << before.user << " -> " << after.user << " after " << kCycles << " cycles";
}

// One cycle first, then the counts, then the thousand.
template <class Cycle> testing::AssertionResult ObjectsStayAfterCycles(Cycle cycle)
{
    cycle();
    PumpPending();
    const kivtest::GuiObjects before = kivtest::CountGuiObjects();
    if (before.gdi == 0)
        return testing::AssertionFailure() << "no GDI objects counted";
    for (int i = 0; i < kCycles; ++i)
    {
        cycle();
        if (i % 50 == 0)
            PumpPending();
    }
    PumpPending();
    return SameObjects(before, kivtest::CountGuiObjects());
}

void TranslateSome(const char* lpszSection)
{
    LocalizationManager* manager = LocalizationManager::Get();
    manager->SetTranslation("Label", CStringW(L"\x0395\x03C4\x03B9\x03BA\x03AD\x03C4\x03B1"), "1001", lpszSection);
    manager->SetTranslation("Open", CStringW(L"\x0386\x03BD\x03BF\x03B9\x03B3\x03BC\x03B1"), "1003", lpszSection);
}

}  // namespace

TEST_F(mfcCDialog, ThousandOpenCloseCyclesLeaveTheObjectCountsWhereTheyWere)
{
    TranslationMode translation;
    TranslateSome("130");
    EXPECT_TRUE(ObjectsStayAfterCycles([] {
        TestDialog dlg(IDD_PLAIN, nullptr);
        dlg.Create(IDD_PLAIN, nullptr);
        dlg.ShowWindow(SW_SHOW);
        dlg.UpdateWindow();
        dlg.DestroyWindow();
    }));
}

TEST_F(mfcDialog, ThousandOpenCloseCyclesLeaveTheObjectCountsWhereTheyWere)
{
    TranslationMode translation;
    TranslateSome("130");
    EXPECT_TRUE(ObjectsStayAfterCycles([] {
        TestPlainDialog dlg(IDD_PLAIN, nullptr);
        dlg.Create(IDD_PLAIN, nullptr);
        dlg.ShowWindow(SW_SHOW);
        dlg.UpdateWindow();
        dlg.DestroyWindow();
    }));
}

TEST_F(mfcCPropertyPage, ThousandOpenCloseCyclesOfASheetLeaveTheObjectCountsWhereTheyWere)
{
    TranslationMode translation;
    EXPECT_TRUE(ObjectsStayAfterCycles([] {
        ::mfcCPropertyPage page(IDD_PAGE, 0);
        CPropertySheet sheet("Sheet");
        sheet.AddPage(&page);
        sheet.Create();
        sheet.ShowWindow(SW_SHOW);
        sheet.UpdateWindow();
        sheet.DestroyWindow();
    }));
}

TEST_F(mfcCDialogBar, ThousandCreateDestroyCyclesLeaveTheObjectCountsWhereTheyWere)
{
    TranslationMode translation;
    EXPECT_TRUE(ObjectsStayAfterCycles([] {
        auto* frame = new CFrameWnd;
        frame->Create(nullptr, "Frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(50, 50, 650, 450));
        ::mfcCDialogBar bar;
        bar.Create(frame, IDD_BAR, CBRS_TOP, 0xE810);
        frame->RecalcLayout();
        frame->UpdateWindow();
        frame->DestroyWindow();  // the frame deletes itself
    }));
}

TEST_F(mfcCListCtrl, ThousandCreateDestroyCyclesWithPaintedRowsLeaveTheObjectCountsWhereTheyWere)
{
    EXPECT_TRUE(ObjectsStayAfterCycles([] {
        ListHost host;
        kivtest::CreateTopLevel(host, 300, 220);
        ::mfcCListCtrl list;
        list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(0, 0, 260, 180), &host, IDC_LIST);
        FillReport(list.m_hWnd, 5);
        host.UpdateWindow();
        host.DestroyWindow();
    }));
}

}  // namespace dialogs_tests
