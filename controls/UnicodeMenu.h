// CUnicodeMenu: shows a window's menus in translated wide (UTF-16) text while the menu
// resources stay narrow. TranslateMenu makes every item owner-drawn with a record of its
// translation and measured size; the menu objects then measure and paint the items.
#pragma once

#include <afxwin.h>

// One per translated menu item, handed to the system as the item's data. Records live for
// the rest of the process: nothing can reach an item's data once its menu is gone.
struct MenuItemRecord
{
    CStringW text;
    int isMenuBar;
    int width;
    int height;
};

class AFX_EXT_CLASS CUnicodeMenu : public CMenu
{
    DECLARE_DYNAMIC(CUnicodeMenu)

public:
    CUnicodeMenu();
    ~CUnicodeMenu() override;

    // Operations
    // Translates pMenu and, through new CUnicodeMenu objects attached to them, its sub-menus
    // (which always get isMenuBar 0). hWnd gives the graphics used for measuring.
    void TranslateMenu(CUnicodeMenu* pMenu, CString section, int isMenuBar, HWND hWnd);

    // Overridables
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override;

protected:
    // Implementation
    LOGFONTA m_lfMenuFont;
};
