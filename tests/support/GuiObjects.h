// How many GDI and USER objects the process holds, and how much private memory. Wine's GetGuiResources answers 0 for
// both, so where it does, the objects are counted one by one: every slot of the process's GDI handle table that holds
// an object, and the thread's windows (with their children) and menus.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace kivtest {

struct GuiObjects
{
    int gdi = 0;
    int user = 0;
};

GuiObjects CountGuiObjects();

// The process's GDI objects by GetObjectType's answer (OBJ_PEN = 1 to OBJ_COLORSPACE = 14), counted slot by slot.
struct GdiTypes
{
    int count[15] = {};
    std::vector<bool> used;  // by slot
};

GdiTypes CountGdiTypes();

// "font +3, bitmap +1" for the types whose count differs, or "" when none does.
std::string GdiTypesGrowth(const GdiTypes& before, const GdiTypes& after);

// What the first few objects of after that before did not hold are: "font 'Tahoma' -11", "bitmap 16x16x32".
std::string NewGdiObjects(const GdiTypes& before, const GdiTypes& after, int most);

// The process's committed private memory, added up region by region over its address space
// (Wine answers 0 for the process's private bytes).
SIZE_T PrivateBytes();

}  // namespace kivtest
