// Each dialog class opened and closed a thousand times, in translation mode with translations
// on its controls: the process's GDI and USER objects end where they were after the first
// cycle (which makes what is made once per process: classes, stock objects, the store), and
// the private memory grows by less than 4 KB per cycle. The system's controls may make a cache
// of their own on a later cycle; two such objects are allowed, far from the thousand that one
// object kept per cycle would leave.
#include "DialogCycles.h"
#include "DialogsTest.h"
#include "GuiObjects.h"

namespace dialogs_tests {

namespace {

constexpr int kCycles = 1000;
constexpr int kLaterCaches = 2;
// More than this per cycle is memory lost.
constexpr SIZE_T kLostBytesPerCycle = 4096;

// One cycle first, then the counts, then the thousand.
template <class Cycle> testing::AssertionResult ObjectsStayAfterCycles(Cycle cycle)
{
    cycle();
    PumpPending();
    const kivtest::GuiObjects before = kivtest::CountGuiObjects();
    const SIZE_T bytesBefore = kivtest::PrivateBytes();
    if (before.gdi == 0)
        return testing::AssertionFailure() << "no GDI objects counted";
    for (int i = 0; i < kCycles; ++i)
    {
        cycle();
        if (i % 50 == 0)
            PumpPending();
    }
    PumpPending();
    const kivtest::GuiObjects after = kivtest::CountGuiObjects();
    const SIZE_T bytesAfter = kivtest::PrivateBytes();
    if (after.gdi > before.gdi + kLaterCaches || after.user > before.user)
        return testing::AssertionFailure() << "GDI objects " << before.gdi << " -> " << after.gdi << ", USER objects "
                                           << before.user << " -> " << after.user << " after " << kCycles << " cycles";
    if (bytesAfter > bytesBefore + kCycles * kLostBytesPerCycle)
        return testing::AssertionFailure() << (bytesAfter - bytesBefore) / kCycles << " bytes kept per cycle";
    return testing::AssertionSuccess();
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
    EXPECT_TRUE(ObjectsStayAfterCycles([] { kivtest::DialogCycle<TestDialog>(IDD_PLAIN); }));
}

TEST_F(mfcDialog, ThousandOpenCloseCyclesLeaveTheObjectCountsWhereTheyWere)
{
    TranslationMode translation;
    TranslateSome("130");
    EXPECT_TRUE(ObjectsStayAfterCycles([] { kivtest::DialogCycle<TestPlainDialog>(IDD_PLAIN); }));
}

TEST_F(mfcCPropertyPage, ThousandOpenCloseCyclesOfASheetLeaveTheObjectCountsWhereTheyWere)
{
    TranslationMode translation;
    EXPECT_TRUE(ObjectsStayAfterCycles([] { kivtest::SheetCycle<::mfcCPropertyPage>(IDD_PAGE); }));
}

TEST_F(mfcCDialogBar, ThousandCreateDestroyCyclesLeaveTheObjectCountsWhereTheyWere)
{
    TranslationMode translation;
    EXPECT_TRUE(ObjectsStayAfterCycles([] { kivtest::BarCycle<::mfcCDialogBar>(IDD_BAR); }));
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
