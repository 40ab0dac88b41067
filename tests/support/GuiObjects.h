// How many GDI and USER objects the process holds. Wine's GetGuiResources answers 0 for both,
// so where it does, the objects are counted one by one: every slot of the process's GDI handle
// table that holds an object, and the thread's windows (with their children) and menus.
#pragma once

#include <windows.h>

namespace kivtest {

struct GuiObjects
{
    int gdi = 0;
    int user = 0;
};

GuiObjects CountGuiObjects();

}  // namespace kivtest
