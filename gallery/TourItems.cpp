#include "TourItems.h"

#include <KivMFC.h>
#include "resource.h"

#include <commctrl.h>

namespace {

// The string resources of the picture list's columns, in order.
const UINT kPictureColumns[] = {IDS_LIST_NAME, IDS_LIST_SIZE};

bool HasClass(HWND hWnd, const char* name)
{
    char className[64] = {};
    ::GetClassNameA(hWnd, className, sizeof(className));
    return lstrcmpiA(className, name) == 0;
}

CString Decimal(int value)
{
    CString text;
    text.Format("%d", value);
    return text;
}

int Scaled(int pixels)
{
    HDC hScreen = ::GetDC(nullptr);
    const int dpi = ::GetDeviceCaps(hScreen, LOGPIXELSX);
    ::ReleaseDC(nullptr, hScreen);
    return ::MulDiv(pixels, dpi, 96);
}

TourItem Item(LPCSTR kind, HWND hControl, const CString& section, const CString& key, CRect rect, int padding,
              const CStringW& text)
{
    ::MapWindowPoints(hControl, nullptr, (POINT*)&rect, 2);
    const int id = ::GetDlgCtrlID(hControl);
    return {kind, id, section, key, rect, TextWidth(hControl, text), rect.Width() - Scaled(padding), text};
}

void AddComboItems(HWND hCombo, const CString& section, std::vector<TourItem>& items)
{
    COMBOBOXINFO info = {};
    info.cbSize = sizeof(info);
    ::GetComboBoxInfo(hCombo, &info);
    const int count = (int)::SendMessageW(hCombo, CB_GETCOUNT, 0, 0);
    for (int i = 0; i < count; ++i)
    {
        CStringW text;
        const int length = (int)::SendMessageW(hCombo, CB_GETLBTEXTLEN, i, 0);
        ::SendMessageW(hCombo, CB_GETLBTEXT, i, (LPARAM)text.GetBuffer(length + 1));
        text.ReleaseBuffer(length);
        const CString key = Decimal(::GetDlgCtrlID(hCombo)) + "." + Decimal(i + 1);
        items.push_back(Item("combo", hCombo, section, key, info.rcItem, 0, text));
    }
}

// A tab is as wide as its text and padding, unless the control gives every tab one width.
void AddTabItems(HWND hTabs, const CString& section, std::vector<TourItem>& items)
{
    const int count = (int)::SendMessageW(hTabs, TCM_GETITEMCOUNT, 0, 0);
    for (int i = 0; i < count; ++i)
    {
        wchar_t buffer[256] = {};
        TCITEMW tab = {};
        tab.mask = TCIF_TEXT;
        tab.pszText = buffer;
        tab.cchTextMax = 256;
        ::SendMessageW(hTabs, TCM_GETITEMW, i, (LPARAM)&tab);
        CRect rect;
        ::SendMessageW(hTabs, TCM_GETITEMRECT, i, (LPARAM)&rect);
        const CString key = Decimal(::GetDlgCtrlID(hTabs)) + "." + Decimal(i + 1);
        items.push_back(Item("tab", hTabs, section, key, rect, 6, buffer));
    }
}

void AddHeaderItems(HWND hList, std::vector<TourItem>& items)
{
    if (::GetDlgCtrlID(hList) != IDC_PICTURES)
        return;
    HWND hHeader = (HWND)::SendMessageW(hList, LVM_GETHEADER, 0, 0);
    const int count = (int)::SendMessageW(hHeader, HDM_GETITEMCOUNT, 0, 0);
    for (int i = 0; i < count && i < (int)(sizeof(kPictureColumns) / sizeof(kPictureColumns[0])); ++i)
    {
        wchar_t buffer[256] = {};
        HDITEMW column = {};
        column.mask = HDI_TEXT;
        column.pszText = buffer;
        column.cchTextMax = 256;
        ::SendMessageW(hHeader, HDM_GETITEMW, i, (LPARAM)&column);
        CRect rect;
        ::SendMessageW(hHeader, HDM_GETITEMRECT, i, (LPARAM)&rect);
        TourItem item = Item("header", hHeader, "STRINGTABLE", Decimal((int)kPictureColumns[i]), rect, 12, buffer);
        item.id = IDC_PICTURES;
        items.push_back(item);
    }
}

void AddMenuItems(HMENU hMenu, const CString& section, const CString& barPosition, std::vector<TourItem>& items)
{
    for (int i = 0; i < ::GetMenuItemCount(hMenu); ++i)
    {
        MENUITEMINFOW info = {};
        info.cbSize = sizeof(info);
        info.fMask = MIIM_DATA | MIIM_FTYPE | MIIM_ID | MIIM_SUBMENU;
        if (!::GetMenuItemInfoW(hMenu, (UINT)i, TRUE, &info) || (info.fType & MFT_OWNERDRAW) == 0 ||
            info.dwItemData == 0)
            continue;
        const auto* record = (const MenuItemRecord*)info.dwItemData;
        if (!record->text.IsEmpty())
        {
            const CString key = info.hSubMenu != nullptr ? "bar." + Decimal(i) : Decimal((int)info.wID);
            items.push_back(
                {"menu", info.hSubMenu != nullptr ? 0 : (int)info.wID, section, key, CRect(), 0, 0, record->text});
        }
        if (info.hSubMenu != nullptr && barPosition.IsEmpty())
            AddMenuItems(info.hSubMenu, section, Decimal(i), items);
    }
}

}  // namespace

int TextWidth(HWND hControl, const CStringW& text)
{
    CStringW shown = text;
    shown.Remove(L'&');
    HDC hScreen = ::GetDC(nullptr);
    HGDIOBJ hOld = ::SelectObject(hScreen, (HFONT)::SendMessageA(hControl, WM_GETFONT, 0, 0));
    SIZE size = {};
    ::GetTextExtentPoint32W(hScreen, shown, shown.GetLength(), &size);
    ::SelectObject(hScreen, hOld);
    ::ReleaseDC(nullptr, hScreen);
    return size.cx;
}

std::vector<TourItem> ControlItems(HWND hWindow, const CString& section)
{
    std::vector<TourItem> items;
    for (HWND h = ::GetWindow(hWindow, GW_CHILD); h != nullptr; h = ::GetWindow(h, GW_HWNDNEXT))
    {
        if (!::IsWindowVisible(h))
            continue;
        if (HasClass(h, WC_COMBOBOXA))
            AddComboItems(h, section, items);
        else if (HasClass(h, WC_TABCONTROLA))
            AddTabItems(h, section, items);
        else if (HasClass(h, WC_LISTVIEWA))
            AddHeaderItems(h, items);
    }
    return items;
}

std::vector<TourItem> MenuItems(HWND hFrame, const CString& section)
{
    std::vector<TourItem> items;
    if (HMENU hBar = ::GetMenu(hFrame))
        AddMenuItems(hBar, section, CString(), items);
    return items;
}

CString ItemLine(const TourItem& item)
{
    CString text;
    const int length =
        ::WideCharToMultiByte(CP_UTF8, 0, item.text, item.text.GetLength(), nullptr, 0, nullptr, nullptr);
    ::WideCharToMultiByte(CP_UTF8, 0, item.text, item.text.GetLength(), text.GetBuffer(length + 1), length, nullptr,
                          nullptr);
    text.ReleaseBuffer(length);
    CString line;
    line.Format("item %s %d %s %s %d %d %d %d %d %d %s\n", (LPCSTR)item.kind, item.id, (LPCSTR)item.section,
                (LPCSTR)item.key, item.rect.left, item.rect.top, item.rect.Width(), item.rect.Height(), item.needed,
                item.room, (LPCSTR)text);
    return line;
}

CString ItemCutLine(const TourItem& item)
{
    if (item.room <= 0 || item.needed <= item.room)
        return CString();
    CString line;
    line.Format("cut %d %s %d %d %d %d %d %d\n", item.id, (LPCSTR)item.section, item.rect.left, item.rect.top,
                item.rect.Width(), item.rect.Height(), item.needed, item.room);
    return line;
}
