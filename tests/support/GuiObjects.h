// How many GDI and USER objects the process holds, and how much private memory. Wine's GetGuiResources answers 0 for
// both, so where it does, the objects are counted one by one: every slot of the process's GDI handle table that holds
// an object, and the thread's windows (with their children) and menus.
#pragma once

#include <windows.h>

namespace kivtest {

struct GuiObjects
{
    int gdi = 0;
    int user = 0;
};

GuiObjects CountGuiObjects();

// The process's committed private memory, added up region by region over its address space
// (Wine answers 0 for the process's private bytes).
SIZE_T PrivateBytes();

}  // namespace kivtest
