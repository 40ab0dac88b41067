// CUnicodeMenu: the keys and records TranslateMenu makes, the owner-drawn items, the sizes
// they report and the colours they paint, and the routing of a sub-menu's owner-draw messages.
#include <KivMFC.h>
#include <gtest/gtest.h>

#include "PixelProbe.h"
#include "WindowingTest.h"

#include <cstring>
#include <string>

namespace {

using kivtest::PixelProbe;

constexpr UINT kOpen = 32771;
constexpr UINT kClose = 32772;
const char kSection[] = "MENU";

// A menu object whose copied menu font can be read.
class TestUnicodeMenu : public CUnicodeMenu
{
public:
    const LOGFONTA& MenuFont() const { return m_lfMenuFont; }
};

MENUITEMINFOA ItemInfo(HMENU hMenu, int position)
{
    MENUITEMINFOA info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_ID | MIIM_DATA | MIIM_FTYPE | MIIM_SUBMENU;
    ::GetMenuItemInfoA(hMenu, (UINT)position, TRUE, &info);
    return info;
}

MenuItemRecord* RecordOf(HMENU hMenu, int position)
{
    return (MenuItemRecord*)ItemInfo(hMenu, position).dwItemData;
}

class UnicodeMenu : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(kivtest::CreateTopLevel(m_window));
        m_manager = LocalizationManager::Get();
        // "&File" > "&Open", separator, "&Close"; "A" > "B".
        m_bar.CreateMenu();
        HMENU file = ::CreatePopupMenu();
        ::AppendMenuA(file, MF_STRING, kOpen, "&Open");
        ::AppendMenuA(file, MF_SEPARATOR, 0, nullptr);
        ::AppendMenuA(file, MF_STRING, kClose, "&Close");
        HMENU letter = ::CreatePopupMenu();
        ::AppendMenuA(letter, MF_STRING, 40001, "B");
        ::AppendMenuA(m_bar.m_hMenu, MF_POPUP, (UINT_PTR)file, "&File");
        ::AppendMenuA(m_bar.m_hMenu, MF_POPUP, (UINT_PTR)letter, "A");
    }
    void TearDown() override
    {
        if (m_window.m_hWnd != nullptr)
            m_window.DestroyWindow();
    }
    void Translate() { m_bar.TranslateMenu(&m_bar, kSection, 1, m_window.m_hWnd); }
    HMENU File() { return ::GetSubMenu(m_bar.m_hMenu, 0); }

    CWnd m_window;
    TestUnicodeMenu m_bar;
    LocalizationManager* m_manager = nullptr;
};

}  // namespace

TEST_F(UnicodeMenu, CopiesTheSystemMenuFontAtConstruction)
{
    NONCLIENTMETRICSA metrics = {};
    metrics.cbSize = sizeof(metrics);
    ASSERT_TRUE(::SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0));
    EXPECT_EQ(0, std::memcmp(&metrics.lfMenuFont, &m_bar.MenuFont(), sizeof(LOGFONTA)));
}

TEST_F(UnicodeMenu, SubMenuKeyIsTheHashOfItsTextAsRead)
{
    m_manager->SetTranslation("&File", CStringW(L"&Datei"), "28605839", kSection);
    m_manager->SetTranslation("A", CStringW(L"\x0391"), "1106", kSection);
    Translate();
    EXPECT_STREQ(L"&Datei", RecordOf(m_bar.m_hMenu, 0)->text);
    EXPECT_STREQ(L"\x0391", RecordOf(m_bar.m_hMenu, 1)->text);
}

TEST_F(UnicodeMenu, CommandItemIsLookedUpUnderItsDecimalId)
{
    m_manager->SetTranslation("&Open", CStringW(L"\x00D6&ffnen"), "32771", kSection);
    Translate();
    EXPECT_STREQ(L"\x00D6&ffnen", RecordOf(File(), 0)->text);
    // A miss shows the item's own text.
    EXPECT_STREQ(L"&Close", RecordOf(File(), 2)->text);
}

TEST_F(UnicodeMenu, EveryItemBecomesOwnerDrawnAndKeepsItsIdAndSubMenu)
{
    HMENU file = File();
    Translate();
    MENUITEMINFOA top = ItemInfo(m_bar.m_hMenu, 0);
    EXPECT_TRUE(top.fType & MFT_OWNERDRAW);
    EXPECT_EQ(file, top.hSubMenu);
    MENUITEMINFOA open = ItemInfo(File(), 0);
    EXPECT_TRUE(open.fType & MFT_OWNERDRAW);
    EXPECT_EQ(kOpen, open.wID);
    // A separator is an owner-drawn item with an empty text too.
    MENUITEMINFOA separator = ItemInfo(File(), 1);
    EXPECT_TRUE(separator.fType & MFT_OWNERDRAW);
    ASSERT_NE(nullptr, RecordOf(File(), 1));
    EXPECT_STREQ(L"", RecordOf(File(), 1)->text);
}

TEST_F(UnicodeMenu, SubMenusGetMenuObjectsOfTheClassThatLiveWithTheirHandles)
{
    Translate();
    CMenu* pFile = CMenu::FromHandlePermanent(File());
    ASSERT_NE(nullptr, pFile);
    EXPECT_TRUE(pFile->IsKindOf(RUNTIME_CLASS(CUnicodeMenu)));
    EXPECT_NE((CMenu*)&m_bar, pFile);
}

TEST_F(UnicodeMenu, OnlyTheFirstLevelOfAMenuBarIsMarkedAsMenuBar)
{
    Translate();
    EXPECT_EQ(1, RecordOf(m_bar.m_hMenu, 0)->isMenuBar);
    EXPECT_EQ(1, RecordOf(m_bar.m_hMenu, 1)->isMenuBar);
    EXPECT_EQ(0, RecordOf(File(), 0)->isMenuBar);
}

TEST_F(UnicodeMenu, MeasureItemReportsTheRecordsSize)
{
    m_manager->SetTranslation("&Close", CStringW(L"Schlie\x00DF\x0065n und alles andere auch"), "32772", kSection);
    Translate();
    MenuItemRecord* open = RecordOf(File(), 0);
    MenuItemRecord* close = RecordOf(File(), 2);
    EXPECT_GT(open->width, 0);
    EXPECT_GT(open->height, 0);
    // Each item reports its own width, so the longer translation widens the drop-down.
    EXPECT_GT(close->width, open->width);
    MEASUREITEMSTRUCT measure = {ODT_MENU, 0, kClose, 0, 0, (ULONG_PTR)close};
    CMenu::FromHandlePermanent(File())->MeasureItem(&measure);
    EXPECT_EQ((UINT)close->width, measure.itemWidth);
    EXPECT_EQ((UINT)close->height, measure.itemHeight);
}

TEST_F(UnicodeMenu, HeightIsOneAndAHalfTimesTheMeasuredLine)
{
    Translate();
    MenuItemRecord* open = RecordOf(File(), 0);
    // 8-point text is about 11 to 15 pixels high at 96 dots per inch.
    EXPECT_GE(open->height, 16);
    EXPECT_LE(open->height, 24);
}

TEST_F(UnicodeMenu, WindowRoutesASubMenusMeasureItemToItsObject)
{
    Translate();
    ::SetMenu(m_window.m_hWnd, m_bar.m_hMenu);
    MenuItemRecord* open = RecordOf(File(), 0);
    MEASUREITEMSTRUCT measure = {ODT_MENU, 0, kOpen, 0, 0, (ULONG_PTR)open};
    m_window.SendMessage(WM_MEASUREITEM, 0, (LPARAM)&measure);
    EXPECT_EQ((UINT)open->width, measure.itemWidth);
    EXPECT_EQ((UINT)open->height, measure.itemHeight);
    ::SetMenu(m_window.m_hWnd, nullptr);
}

namespace {

// One item drawn into a probe as the system would ask for it.
PixelProbe DrawItemInto(CMenu* pMenu, MenuItemRecord* record, UINT state, UINT action = ODA_DRAWENTIRE)
{
    PixelProbe probe(160, 24);
    DRAWITEMSTRUCT draw = {};
    draw.CtlType = ODT_MENU;
    draw.itemAction = action;
    draw.itemState = state;
    draw.hDC = probe.DC();
    draw.rcItem = {0, 0, 160, 24};
    draw.itemData = (ULONG_PTR)record;
    pMenu->DrawItem(&draw);
    return probe;
}

COLORREF Opaque(COLORREF colour)
{
    return colour & 0xFFFFFF;
}

}  // namespace

TEST_F(UnicodeMenu, MenuBarItemsUseTheMenuBarColourAndSubMenuItemsTheMenuColour)
{
    Translate();
    PixelProbe bar = DrawItemInto(&m_bar, RecordOf(m_bar.m_hMenu, 0), 0);
    EXPECT_EQ(Opaque(::GetSysColor(COLOR_MENUBAR)), bar.Pixel(159, 0));
    CMenu* pFile = CMenu::FromHandlePermanent(File());
    PixelProbe item = DrawItemInto(pFile, RecordOf(File(), 0), 0);
    EXPECT_EQ(Opaque(::GetSysColor(COLOR_MENU)), item.Pixel(159, 0));
    EXPECT_GT(item.Count(Opaque(::GetSysColor(COLOR_MENUTEXT)), CRect(0, 0, 160, 24)), 0);
}

TEST_F(UnicodeMenu, SelectedItemIsHighlightedWithWhiteText)
{
    Translate();
    CMenu* pFile = CMenu::FromHandlePermanent(File());
    PixelProbe item = DrawItemInto(pFile, RecordOf(File(), 0), ODS_SELECTED);
    EXPECT_EQ(Opaque(::GetSysColor(COLOR_MENUHILIGHT)), item.Pixel(159, 0));
    EXPECT_GT(item.Count(RGB(255, 255, 255), CRect(0, 0, 160, 24)), 0);
    // Selected but asked only for the focus: not highlighted.
    PixelProbe focus = DrawItemInto(pFile, RecordOf(File(), 0), ODS_SELECTED, ODA_FOCUS);
    EXPECT_EQ(Opaque(::GetSysColor(COLOR_MENU)), focus.Pixel(159, 0));
}

TEST_F(UnicodeMenu, GrayedItemIsDrawnInTheGrayedTextColour)
{
    Translate();
    CMenu* pFile = CMenu::FromHandlePermanent(File());
    PixelProbe item = DrawItemInto(pFile, RecordOf(File(), 0), ODS_GRAYED);
    EXPECT_GT(item.Count(Opaque(::GetSysColor(COLOR_GRAYTEXT)), CRect(0, 0, 160, 24)), 0);
    EXPECT_EQ(0, item.Count(Opaque(::GetSysColor(COLOR_MENUTEXT)), CRect(0, 0, 160, 24)));
}

TEST_F(UnicodeMenu, TextStartsAtTheItemsLeftEdge)
{
    Translate();
    CMenu* pFile = CMenu::FromHandlePermanent(File());
    PixelProbe item = DrawItemInto(pFile, RecordOf(File(), 0), 0);
    // No check-mark margin: ink within the first pixels (GDI+ keeps a small lead of its own).
    COLORREF fill = Opaque(::GetSysColor(COLOR_MENU));
    EXPECT_LT(item.Count(fill, CRect(0, 0, 6, 24)), 6 * 24);
}

TEST_F(UnicodeMenu, EmptyMenuIsLeftAsItIs)
{
    CUnicodeMenu empty;
    empty.CreatePopupMenu();
    empty.TranslateMenu(&empty, kSection, 0, m_window.m_hWnd);
    EXPECT_EQ(0, ::GetMenuItemCount(empty.m_hMenu));
}

TEST_F(UnicodeMenu, ItemTextOf4096BytesIsTranslatedWhole)
{
    CUnicodeMenu menu;
    menu.CreatePopupMenu();
    std::string text(4096, 'x');
    ::AppendMenuA(menu.m_hMenu, MF_STRING, 7, text.c_str());
    menu.TranslateMenu(&menu, kSection, 0, m_window.m_hWnd);
    MenuItemRecord* record = RecordOf(menu.m_hMenu, 0);
    ASSERT_NE(nullptr, record);
    EXPECT_EQ(4096, record->text.GetLength());
}

TEST_F(UnicodeMenu, MenuNestedFiftyLevelsIsTranslatedToTheBottom)
{
    CUnicodeMenu menu;
    menu.CreatePopupMenu();
    HMENU parent = menu.m_hMenu;
    for (int level = 0; level < 50; ++level)
    {
        HMENU child = ::CreatePopupMenu();
        ::AppendMenuA(parent, MF_POPUP, (UINT_PTR)child, ("Level " + std::to_string(level)).c_str());
        parent = child;
    }
    ::AppendMenuA(parent, MF_STRING, 9, "Bottom");
    menu.TranslateMenu(&menu, kSection, 0, m_window.m_hWnd);
    HMENU walk = menu.m_hMenu;
    for (int level = 0; level < 50 && walk != nullptr; ++level)
        walk = ::GetSubMenu(walk, 0);
    ASSERT_NE(nullptr, walk);
    ASSERT_NE(nullptr, RecordOf(walk, 0));
    EXPECT_STREQ(L"Bottom", RecordOf(walk, 0)->text);
}

TEST_F(UnicodeMenu, OwnerDrawnItemWithoutARecordIsLeftAlone)
{
    CUnicodeMenu menu;
    PixelProbe probe = DrawItemInto(&menu, nullptr, 0);
    EXPECT_EQ(RGB(255, 0, 255), probe.Pixel(0, 0));
    MEASUREITEMSTRUCT measure = {ODT_MENU, 0, 1, 33, 44, 0};
    menu.MeasureItem(&measure);
    EXPECT_EQ(33u, measure.itemWidth);
}

TEST_F(UnicodeMenu, FirstLevelItemsGetTheMenuBarColourOnlyWhenMarkedAsMenuBar)
{
    // The two colours made to differ for the span of the test, so each shows which it is.
    const int element = COLOR_MENUBAR;
    const COLORREF original = ::GetSysColor(COLOR_MENUBAR);
    const COLORREF distinct =
        Opaque(::GetSysColor(COLOR_MENU)) == RGB(10, 200, 30) ? RGB(30, 10, 200) : RGB(10, 200, 30);
    ASSERT_TRUE(::SetSysColors(1, &element, &distinct));
    m_bar.TranslateMenu(&m_bar, kSection, 1, m_window.m_hWnd);
    PixelProbe bar = DrawItemInto(&m_bar, RecordOf(m_bar.m_hMenu, 0), 0);
    TestUnicodeMenu popup;
    popup.CreatePopupMenu();
    ::AppendMenuA(popup.m_hMenu, MF_STRING, kOpen, "&Open");
    popup.TranslateMenu(&popup, kSection, 0, m_window.m_hWnd);
    PixelProbe notBar = DrawItemInto(&popup, RecordOf(popup.m_hMenu, 0), 0);
    ::SetSysColors(1, &element, &original);
    EXPECT_EQ(1, RecordOf(m_bar.m_hMenu, 0)->isMenuBar);
    EXPECT_EQ(distinct, bar.Pixel(159, 0));
    EXPECT_EQ(0, RecordOf(popup.m_hMenu, 0)->isMenuBar);
    EXPECT_EQ(Opaque(::GetSysColor(COLOR_MENU)), notBar.Pixel(159, 0));
}

TEST_F(UnicodeMenu, ItemWithALongerTranslationWidensTheDropDown)
{
    Translate();
    MEASUREITEMSTRUCT before = {ODT_MENU, 0, kClose, 0, 0, (ULONG_PTR)RecordOf(File(), 2)};
    CMenu::FromHandlePermanent(File())->MeasureItem(&before);
    m_manager->SetTranslation("&Close", CStringW(L"Schlie\x00DF\x0065n und alles andere auch"), "32772", kSection);
    TestUnicodeMenu bar;
    bar.CreateMenu();
    HMENU file = ::CreatePopupMenu();
    ::AppendMenuA(file, MF_STRING, kOpen, "&Open");
    ::AppendMenuA(file, MF_STRING, kClose, "&Close");
    ::AppendMenuA(bar.m_hMenu, MF_POPUP, (UINT_PTR)file, "&File");
    bar.TranslateMenu(&bar, kSection, 1, m_window.m_hWnd);
    MEASUREITEMSTRUCT open = {ODT_MENU, 0, kOpen, 0, 0, (ULONG_PTR)RecordOf(file, 0)};
    MEASUREITEMSTRUCT after = {ODT_MENU, 0, kClose, 0, 0, (ULONG_PTR)RecordOf(file, 1)};
    CMenu::FromHandlePermanent(file)->MeasureItem(&open);
    CMenu::FromHandlePermanent(file)->MeasureItem(&after);
    // The drop-down is as wide as its widest item: the long translation now sets it.
    EXPECT_GT(after.itemWidth, before.itemWidth);
    EXPECT_GT(after.itemWidth, open.itemWidth);
}
