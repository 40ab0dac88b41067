// The texts of the tour's windows that are not window texts: combo box items, tabs, the
// columns of a list's header, menu items. Each is reported with its section and key, so the
// other side can hold it to the store, and with its room, so a text that does not fit is seen.
#pragma once

#include <afxwin.h>

#include <vector>

struct TourItem
{
    CString kind;  // combo, tab, header, menu
    int id = 0;    // the control's id, or the menu command's
    CString section;
    CString key;  // a sub-menu's item: "bar.<position>", as it has no command id
    CRect rect;   // on the screen; empty for a menu item
    int needed = 0;
    int room = 0;  // 0: the control sizes the item to its text
    CStringW text;
};

// Width of the text in the control's own font, without its hot-key ampersands.
int TextWidth(HWND hControl, const CStringW& text);
// Items of the combo boxes, tab controls and lists among the window's children.
std::vector<TourItem> ControlItems(HWND hWindow, const CString& section);
// Items of the window's menu bar and of its sub-menus, from their records.
std::vector<TourItem> MenuItems(HWND hFrame, const CString& section);
// "item <kind> <id> <section> <key> <left> <top> <width> <height> <needed> <room> <text>", the
// text in UTF-8; and, when the text does not fit, "cut <id> <section> <left> <top> <width>
// <height> <needed> <room>" (also for a control's own text).
CString ItemLine(const TourItem& item);
CString ItemCutLine(const TourItem& item);
