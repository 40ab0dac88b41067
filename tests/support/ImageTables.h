// What a module's image declares, read from its own tables rather than through the loader's
// look-ups: the names of its export table and the ids of its resource directory.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace kiv_test {

// Every name of the module's export table, in the table's order.
std::vector<std::string> ExportNames(HMODULE module);
// The numeric ids of the resource directory's entries of one numeric type (RT_BITMAP, ...).
std::vector<WORD> ResourceIds(HMODULE module, WORD type);

}  // namespace kiv_test
