// Menus: ownership of the handle, the handle map, texts and owner-drawn items.
#include "ModalDriver.h"
#include "WindowingTest.h"
#include "windowing_res.h"

#include <vector>

using kivtest::CreateTopLevel;

TEST(CMenu, AttachedMenuIsDestroyedWithItsObject)
{
    HMENU hMenu = nullptr;
    {
        CMenu menu;
        ASSERT_TRUE(menu.CreatePopupMenu());
        hMenu = menu.m_hMenu;
        EXPECT_EQ(&menu, CMenu::FromHandlePermanent(hMenu));
    }
    EXPECT_FALSE(::IsMenu(hMenu));
    EXPECT_EQ(nullptr, CMenu::FromHandlePermanent(hMenu));
}

TEST(CMenu, DetachedMenuOutlivesItsObject)
{
    HMENU hMenu = nullptr;
    {
        CMenu menu;
        ASSERT_TRUE(menu.CreateMenu());
        hMenu = menu.Detach();
        EXPECT_EQ(nullptr, menu.m_hMenu);
        EXPECT_EQ(nullptr, CMenu::FromHandlePermanent(hMenu));
    }
    EXPECT_TRUE(::IsMenu(hMenu));
    ::DestroyMenu(hMenu);
}

TEST(CMenu, FromHandleOfAnUnownedMenuIsATemporaryThatDoesNotDestroyIt)
{
    HMENU hMenu = ::CreatePopupMenu();
    AfxLockTempMaps();
    CMenu* pMenu = CMenu::FromHandle(hMenu);
    ASSERT_NE(nullptr, pMenu);
    EXPECT_EQ(hMenu, pMenu->m_hMenu);
    EXPECT_EQ(nullptr, CMenu::FromHandlePermanent(hMenu));
    EXPECT_EQ(pMenu, CMenu::FromHandle(hMenu));
    AfxUnlockTempMaps();
    EXPECT_TRUE(::IsMenu(hMenu));
    ::DestroyMenu(hMenu);
}

TEST(CMenu, LoadMenuAndGetMenuStringByPositionAndByCommand)
{
    CMenu menu;
    ASSERT_TRUE(menu.LoadMenu(IDR_MAINFRAME));
    EXPECT_EQ(2u, menu.GetMenuItemCount());
    CString text;
    EXPECT_EQ(5, menu.GetMenuString(0, text, MF_BYPOSITION));
    EXPECT_STREQ("&File", text);
    CMenu* pTools = menu.GetSubMenu(1);
    ASSERT_NE(nullptr, pTools);
    EXPECT_EQ(3u, pTools->GetMenuItemCount());
    EXPECT_EQ((UINT)ID_TOOLS_PROPERTIES, pTools->GetMenuItemID(1));
    pTools->GetMenuString(ID_TOOLS_SETTINGS, text, MF_BYCOMMAND);
    EXPECT_STREQ("&Settings...", text);
    EXPECT_EQ(0, pTools->GetMenuString(12345, text, MF_BYCOMMAND));
    EXPECT_STREQ("", text);
    EXPECT_EQ(nullptr, menu.GetSubMenu(5));
}

namespace {

struct DrawCall
{
    HMENU hMenu;
    UINT itemID;
    ULONG_PTR itemData;
};

// Records the owner-drawn items the system asks it to measure and draw.
class CRecordingMenu : public CMenu
{
public:
    std::vector<DrawCall> m_draws;
    std::vector<ULONG_PTR> m_measured;
    void DrawItem(LPDRAWITEMSTRUCT lpDIS) override
    {
        m_draws.push_back({(HMENU)lpDIS->hwndItem, lpDIS->itemID, lpDIS->itemData});
        CDC::FromHandle(lpDIS->hDC)->FillSolidRect(&lpDIS->rcItem, RGB(0, 128, 0));
    }
    void MeasureItem(LPMEASUREITEMSTRUCT lpMIS) override
    {
        m_measured.push_back(lpMIS->itemData);
        lpMIS->itemWidth = 60;
        lpMIS->itemHeight = 18;
    }
};

void MakeOwnerDrawn(HMENU hMenu, UINT nPos, ULONG_PTR data)
{
    MENUITEMINFOA info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE | MIIM_DATA;
    ::GetMenuItemInfoA(hMenu, nPos, TRUE, &info);
    info.fType |= MFT_OWNERDRAW;
    info.dwItemData = data;
    ::SetMenuItemInfoA(hMenu, nPos, TRUE, &info);
}

}  // namespace

TEST(CMenu, OwnerDrawnMenuBarItemsReachTheMenuObject)
{
    CWnd wnd;
    ASSERT_TRUE(CreateTopLevel(wnd, 400, 200));
    CRecordingMenu menu;
    ASSERT_TRUE(menu.LoadMenu(IDR_MAINFRAME));
    MakeOwnerDrawn(menu.m_hMenu, 0, 0xF11E);
    MakeOwnerDrawn(menu.m_hMenu, 1, 0x7001);
    ASSERT_TRUE(wnd.SetMenu(&menu));
    wnd.DrawMenuBar();
    wnd.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
    ASSERT_GE(menu.m_measured.size(), 2u);
    EXPECT_EQ(1, std::count(menu.m_measured.begin(), menu.m_measured.end(), (ULONG_PTR)0xF11E) >= 1);
    ASSERT_GE(menu.m_draws.size(), 2u);
    bool bFileDrawn = false;
    for (const DrawCall& call : menu.m_draws)
    {
        EXPECT_EQ(menu.m_hMenu, call.hMenu);
        bFileDrawn = bFileDrawn || call.itemData == 0xF11E;
    }
    EXPECT_TRUE(bFileDrawn);
    wnd.SetMenu(nullptr);
    wnd.DestroyWindow();
}

TEST(CMenu, OwnerDrawnPopupItemsReachTheirOwnMenuObject)
{
    CWnd wnd;
    ASSERT_TRUE(CreateTopLevel(wnd));
    CRecordingMenu popup;
    ASSERT_TRUE(popup.CreatePopupMenu());
    popup.AppendMenu(MF_OWNERDRAW, 501, (LPCSTR)0xA1);
    popup.AppendMenu(MF_OWNERDRAW, 502, (LPCSTR)0xA2);
    kivtest::ModalDriver driver([](HWND) { ::EndMenu(); });
    popup.TrackPopupMenu(TPM_LEFTALIGN | TPM_RETURNCMD, 50, 50, &wnd);
    EXPECT_TRUE(driver.Acted());
    ASSERT_EQ(2u, popup.m_measured.size());
    EXPECT_EQ(0xA1u, popup.m_measured[0]);
    EXPECT_EQ(0xA2u, popup.m_measured[1]);
    ASSERT_GE(popup.m_draws.size(), 2u);
    EXPECT_EQ(popup.m_hMenu, popup.m_draws[0].hMenu);
    EXPECT_EQ(501u, popup.m_draws[0].itemID);
    EXPECT_EQ(0xA1u, popup.m_draws[0].itemData);
    wnd.DestroyWindow();
}
