#include "UnicodeMenu.h"

#include "GdiplusText.h"
#include "LocalizationKeys.h"
#include "LocalizationManager.h"
#include "MenuTextHash.h"

#include <gdiplus.h>

namespace gdip = Gdiplus::DllExports;

IMPLEMENT_DYNAMIC(CUnicodeMenu, CMenu)

namespace {

// The size of the metrics structure with its padded-border field, as the menu asks for it.
constexpr UINT kNonClientMetricsSize = 344;

// The family the measuring font falls back to when "Tahoma" cannot be made; found once.
Gdiplus::GpFontFamily* SansSerifFamily()
{
    static Gdiplus::GpFontFamily* family = [] {
        Gdiplus::GpFontFamily* found = nullptr;
        gdip::GdipGetGenericFontFamilySansSerif(&found);
        return found;
    }();
    return family;
}

// Tahoma 8 pt regular, or the generic sans-serif family in the same size.
Gdiplus::GpFont* CreateMeasuringFont(Gdiplus::GpFontFamily** ownFamily)
{
    Gdiplus::GpFont* font = nullptr;
    *ownFamily = nullptr;
    if (gdip::GdipCreateFontFamilyFromName(L"Tahoma", nullptr, ownFamily) == Gdiplus::Ok &&
        gdip::GdipCreateFont(*ownFamily, 8.0f, 0, Gdiplus::UnitPoint, &font) == Gdiplus::Ok)
        return font;
    font = nullptr;
    gdip::GdipCreateFont(SansSerifFamily(), 8.0f, 0, Gdiplus::UnitPoint, &font);
    return font;
}

CString KeyOf(CMenu* pMenu, int position, const CString& text)
{
    if (::GetSubMenu(pMenu->m_hMenu, position) == nullptr)
        return kiv::localization::KeyText((int)::GetMenuItemID(pMenu->m_hMenu, position));
    auto hash = kiv::rules::MenuTextHash(reinterpret_cast<const unsigned char*>(text.GetString()),
                                         (std::size_t)text.GetLength());
    return kiv::localization::KeyText((int)hash);
}

}  // namespace

CUnicodeMenu::CUnicodeMenu()
{
    NONCLIENTMETRICSA metrics = {};
    metrics.cbSize = kNonClientMetricsSize;
    ::SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, kNonClientMetricsSize, &metrics, 0);
    m_lfMenuFont = metrics.lfMenuFont;
}

CUnicodeMenu::~CUnicodeMenu() = default;

void CUnicodeMenu::TranslateMenu(CUnicodeMenu* pMenu, CString section, int isMenuBar, HWND hWnd)
{
    HMENU hMenu = pMenu->m_hMenu;
    int count = ::GetMenuItemCount(hMenu);
    for (int i = 0; i < count; ++i)
    {
        CString text;
        pMenu->GetMenuString((UINT)i, text, MF_BYPOSITION);
        CString key = KeyOf(pMenu, i, text);
        bool opensSubMenu = ::GetSubMenu(hMenu, i) != nullptr;

        // Kept for the rest of the process, as the item's data.
        auto* record = new MenuItemRecord{CStringW(), isMenuBar, 0, 0};
        record->text = LocalizationManager::Get()->GetWideTranslation(text, key, section);

        Gdiplus::GpGraphics* graphics = nullptr;
        Gdiplus::GpFontFamily* family = nullptr;
        gdip::GdipCreateFromHWND(hWnd, &graphics);
        Gdiplus::GpFont* font = CreateMeasuringFont(&family);
        Gdiplus::GpStringFormat* format = kiv::controls::CreateCaptionFormat();
        Gdiplus::RectF layout(0, 0, 0, 0), box(0, 0, 0, 0);
        gdip::GdipMeasureString(graphics, record->text, record->text.GetLength(), font, &layout, format, &box, nullptr,
                                nullptr);
        record->width = (int)box.Width;
        record->height = (int)((double)box.Height * 1.5);

        UINT_PTR newId = opensSubMenu ? 0 : (UINT_PTR)::GetMenuItemID(hMenu, i);
        ::ModifyMenuA(hMenu, (UINT)i, MF_BYPOSITION | MF_OWNERDRAW, newId, (LPCSTR)record);
        if (HMENU hSubMenu = ::GetSubMenu(hMenu, i))
        {
            // Kept attached for as long as the menu lives: the framework finds it by handle.
            auto* subMenu = new CUnicodeMenu;
            subMenu->Attach(hSubMenu);
            TranslateMenu(subMenu, section, 0, hWnd);
        }
        gdip::GdipDeleteStringFormat(format);
        gdip::GdipDeleteFont(font);
        if (family != nullptr)
            gdip::GdipDeleteFontFamily(family);
        gdip::GdipDeleteGraphics(graphics);
    }
}

void CUnicodeMenu::MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    auto* record = (MenuItemRecord*)lpMeasureItemStruct->itemData;
    if (record == nullptr)
        return;  // an owner-drawn item the menu did not make
    lpMeasureItemStruct->itemWidth = (UINT)record->width;
    lpMeasureItemStruct->itemHeight = (UINT)record->height;
}

void CUnicodeMenu::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    auto* record = (MenuItemRecord*)lpDrawItemStruct->itemData;
    if (record == nullptr)
        return;
    const RECT& rc = lpDrawItemStruct->rcItem;
    CDC* pDC = CDC::FromHandle(lpDrawItemStruct->hDC);
    pDC->FillSolidRect(&rc, ::GetSysColor(record->isMenuBar ? COLOR_MENUBAR : COLOR_MENU));
    Gdiplus::ARGB textColour;
    if ((lpDrawItemStruct->itemState & (ODS_SELECTED | ODS_HOTLIGHT)) &&
        (lpDrawItemStruct->itemAction & (ODA_DRAWENTIRE | ODA_SELECT)))
    {
        pDC->FillSolidRect(&rc, ::GetSysColor(COLOR_MENUHILIGHT));
        textColour = 0xFFFFFFFFu;
    }
    else
    {
        bool grayed = (lpDrawItemStruct->itemState & (ODS_GRAYED | ODS_INACTIVE)) != 0;
        textColour = kiv::controls::OpaqueArgb(::GetSysColor(grayed ? COLOR_GRAYTEXT : COLOR_MENUTEXT));
    }

    HDC hDC = lpDrawItemStruct->hDC;
    Gdiplus::GpGraphics* graphics = nullptr;
    Gdiplus::GpFont* font = nullptr;
    Gdiplus::GpSolidFill* brush = nullptr;
    gdip::GdipCreateFromHDC(hDC, &graphics);
    gdip::GdipCreateFontFromLogfontA(hDC, &m_lfMenuFont, &font);
    gdip::GdipCreateSolidFill(textColour, &brush);
    Gdiplus::GpStringFormat* format = kiv::controls::CreateCaptionFormat();
    Gdiplus::RectF layout((Gdiplus::REAL)rc.left, (Gdiplus::REAL)rc.top, 0, 0), box(0, 0, 0, 0);
    gdip::GdipMeasureString(graphics, record->text, record->text.GetLength(), font, &layout, format, &box, nullptr,
                            nullptr);
    Gdiplus::RectF at((Gdiplus::REAL)rc.left,
                      (Gdiplus::REAL)rc.top + ((Gdiplus::REAL)(rc.bottom - rc.top) - box.Height) * 0.5f, 0, 0);
    gdip::GdipDrawString(graphics, record->text, record->text.GetLength(), font, &at, format, brush);
    gdip::GdipDeleteStringFormat(format);
    gdip::GdipDeleteBrush(brush);
    gdip::GdipDeleteFont(font);
    gdip::GdipDeleteGraphics(graphics);
}
