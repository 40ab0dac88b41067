#include "GuiObjects.h"

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
