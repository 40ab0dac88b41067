#include "ImageTables.h"

namespace kiv_test {

namespace {

const IMAGE_DATA_DIRECTORY& Directory(HMODULE module, int index)
{
    auto* base = reinterpret_cast<const BYTE*>(module);
    auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    auto* nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    return nt->OptionalHeader.DataDirectory[index];
}

template <typename T> const T* At(HMODULE module, DWORD rva)
{
    return reinterpret_cast<const T*>(reinterpret_cast<const BYTE*>(module) + rva);
}

// The entries of one level of the resource tree; named entries first, then numbered ones.
const IMAGE_RESOURCE_DIRECTORY_ENTRY* Entries(const IMAGE_RESOURCE_DIRECTORY* directory)
{
    return reinterpret_cast<const IMAGE_RESOURCE_DIRECTORY_ENTRY*>(directory + 1);
}

}  // namespace

std::vector<std::string> ExportNames(HMODULE module)
{
    std::vector<std::string> names;
    const IMAGE_DATA_DIRECTORY& exports = Directory(module, IMAGE_DIRECTORY_ENTRY_EXPORT);
    if (module == nullptr || exports.Size == 0)
        return names;
    auto* table = At<IMAGE_EXPORT_DIRECTORY>(module, exports.VirtualAddress);
    auto* nameRvas = At<DWORD>(module, table->AddressOfNames);
    for (DWORD i = 0; i < table->NumberOfNames; ++i)
        names.emplace_back(At<char>(module, nameRvas[i]));
    return names;
}

std::vector<WORD> ResourceIds(HMODULE module, WORD type)
{
    std::vector<WORD> ids;
    const IMAGE_DATA_DIRECTORY& resources = Directory(module, IMAGE_DIRECTORY_ENTRY_RESOURCE);
    if (module == nullptr || resources.Size == 0)
        return ids;
    DWORD root = resources.VirtualAddress;
    auto* types = At<IMAGE_RESOURCE_DIRECTORY>(module, root);
    int typeCount = types->NumberOfNamedEntries + types->NumberOfIdEntries;
    for (int t = 0; t < typeCount; ++t)
    {
        const IMAGE_RESOURCE_DIRECTORY_ENTRY& entry = Entries(types)[t];
        if (entry.NameIsString || entry.Id != type || !entry.DataIsDirectory)
            continue;
        auto* names = At<IMAGE_RESOURCE_DIRECTORY>(module, root + entry.OffsetToDirectory);
        int count = names->NumberOfNamedEntries + names->NumberOfIdEntries;
        for (int n = names->NumberOfNamedEntries; n < count; ++n)
            ids.push_back(Entries(names)[n].Id);
    }
    return ids;
}

}  // namespace kiv_test
