#include "GuiObjects.h"

#include <cstdio>

namespace kivtest {

namespace {

// Handle values are a table index in the low word; a zero high word matches any reuse count.
int CountGdiSlots()
{
    int count = 0;
    for (UINT_PTR index = 1; index <= 0xFFFF; ++index)
        if (::GetObjectType(reinterpret_cast<HGDIOBJ>(index)) != 0)
            ++count;
    return count;
}

BOOL CALLBACK CountChild(HWND, LPARAM lParam)
{
    ++*reinterpret_cast<int*>(lParam);
    return TRUE;
}

BOOL CALLBACK CountWindow(HWND hWnd, LPARAM lParam)
{
    ++*reinterpret_cast<int*>(lParam);
    ::EnumChildWindows(hWnd, &CountChild, lParam);
    return TRUE;
}

// USER handles are even numbers from 0x20 upwards in the low word.
int CountMenus()
{
    int count = 0;
    for (UINT_PTR handle = 0x20; handle <= 0xFFFF; handle += 2)
        if (::IsMenu(reinterpret_cast<HMENU>(handle)))
            ++count;
    return count;
}

}  // namespace

GuiObjects CountGuiObjects()
{
    GuiObjects objects;
    objects.gdi = static_cast<int>(::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS));
    objects.user = static_cast<int>(::GetGuiResources(::GetCurrentProcess(), GR_USEROBJECTS));
    if (objects.gdi == 0)
        objects.gdi = CountGdiSlots();
    if (objects.user == 0)
    {
        ::EnumThreadWindows(::GetCurrentThreadId(), &CountWindow, reinterpret_cast<LPARAM>(&objects.user));
        objects.user += CountMenus();
    }
    return objects;
}

GdiTypes CountGdiTypes()
{
    GdiTypes types;
    types.used.assign(0x10000, false);
    for (UINT_PTR index = 1; index <= 0xFFFF; ++index)
    {
        const DWORD type = ::GetObjectType(reinterpret_cast<HGDIOBJ>(index));
        if (type < 15)
            ++types.count[type];
        types.used[index] = type != 0;
    }
    return types;
}

std::string GdiTypesGrowth(const GdiTypes& before, const GdiTypes& after)
{
    static const char* const names[15] = {"none",    "pen",    "brush",     "dc",          "metadc",
                                          "palette", "font",   "bitmap",    "region",      "metafile",
                                          "memdc",   "extpen", "enhmetadc", "enhmetafile", "colorspace"};
    std::string text;
    for (int type = 1; type < 15; ++type)  // 0 is an empty slot
    {
        const int change = after.count[type] - before.count[type];
        if (change == 0)
            continue;
        if (!text.empty())
            text += ", ";
        text += names[type];
        text += change > 0 ? " +" : " ";
        text += std::to_string(change);
    }
    return text;
}

namespace {

// What GetObject tells of an object, in the structure of its type.
template <typename Info> Info Described(HGDIOBJ object)
{
    Info info = {};
    ::GetObjectA(object, sizeof(info), &info);
    return info;
}

}  // namespace

std::string NewGdiObjects(const GdiTypes& before, const GdiTypes& after, int most)
{
    std::string text;
    for (size_t index = 1; index < after.used.size() && most > 0; ++index)
    {
        if (!after.used[index] || (index < before.used.size() && before.used[index]))
            continue;
        const HGDIOBJ object = reinterpret_cast<HGDIOBJ>(index);
        char line[200] = "";
        switch (::GetObjectType(object))
        {
        case OBJ_FONT:
        {
            const auto font = Described<LOGFONTA>(object);
            std::snprintf(line, sizeof(line), "font '%s' %ld", font.lfFaceName, font.lfHeight);
            break;
        }
        case OBJ_BITMAP:
        {
            const auto bitmap = Described<BITMAP>(object);
            std::snprintf(line, sizeof(line), "bitmap %ldx%ldx%d", bitmap.bmWidth, bitmap.bmHeight, bitmap.bmBitsPixel);
            break;
        }
        case OBJ_BRUSH:
        {
            const auto brush = Described<LOGBRUSH>(object);
            std::snprintf(line, sizeof(line), "brush style %u color %06lx", brush.lbStyle, brush.lbColor);
            break;
        }
        case OBJ_REGION:
        {
            RECT box = {};
            ::GetRgnBox(static_cast<HRGN>(object), &box);
            std::snprintf(line, sizeof(line), "region %ld,%ld-%ld,%ld", box.left, box.top, box.right, box.bottom);
            break;
        }
        default:
            std::snprintf(line, sizeof(line), "type %lu", ::GetObjectType(object));
        }
        if (!text.empty())
            text += "; ";
        text += line;
        --most;
    }
    return text;
}

SIZE_T PrivateBytes()
{
    SIZE_T total = 0;
    MEMORY_BASIC_INFORMATION region = {};
    for (const char* address = nullptr;
         ::VirtualQuery(address, &region, sizeof(region)) == sizeof(region) && region.RegionSize != 0;
         address = static_cast<const char*>(region.BaseAddress) + region.RegionSize)
        if (region.State == MEM_COMMIT && region.Type == MEM_PRIVATE)
            total += region.RegionSize;
    return total;
}

}  // namespace kivtest
