#include "RegistryRecorder.h"

#include <gtest/gtest.h>

#include <cstring>

namespace dialogs_tests {

namespace {

std::vector<std::string>* g_pCalls = nullptr;

void Note(const CString& entry)
{
    if (g_pCalls != nullptr)
        g_pCalls->push_back((LPCSTR)entry);
}

LSTATUS WINAPI RecordCreate(HKEY hKey, LPCSTR lpSubKey, DWORD reserved, LPSTR lpClass, DWORD options, REGSAM sam,
                            const LPSECURITY_ATTRIBUTES lpSecurity, PHKEY phkResult, LPDWORD lpDisposition)
{
    CString entry;
    entry.Format("create %s 0x%lx", lpSubKey, (unsigned long)sam);
    Note(entry);
    return ::RegCreateKeyExA(hKey, lpSubKey, reserved, lpClass, options, sam, lpSecurity, phkResult, lpDisposition);
}

LSTATUS WINAPI RecordOpen(HKEY hKey, LPCSTR lpSubKey, DWORD options, REGSAM sam, PHKEY phkResult)
{
    CString entry;
    entry.Format("open %s 0x%lx", lpSubKey, (unsigned long)sam);
    Note(entry);
    return ::RegOpenKeyExA(hKey, lpSubKey, options, sam, phkResult);
}

LSTATUS WINAPI RecordQuery(HKEY hKey, LPCSTR lpValueName, LPDWORD lpReserved, LPDWORD lpType, LPBYTE lpData,
                           LPDWORD lpcbData)
{
    CString entry;
    entry.Format("query %s %lu", lpValueName, lpcbData ? (unsigned long)*lpcbData : 0ul);
    Note(entry);
    return ::RegQueryValueExA(hKey, lpValueName, lpReserved, lpType, lpData, lpcbData);
}

LSTATUS WINAPI RecordSet(HKEY hKey, LPCSTR lpValueName, DWORD reserved, DWORD type, const BYTE* lpData, DWORD cbData)
{
    LONG value = 0;
    if (cbData == sizeof(value))
        std::memcpy(&value, lpData, sizeof(value));
    CString entry;
    if (type == REG_DWORD && cbData == sizeof(value))
        entry.Format("set %s %ld", lpValueName, value);
    else
        entry.Format("set %s type %lu size %lu", lpValueName, (unsigned long)type, (unsigned long)cbData);
    Note(entry);
    return ::RegSetValueExA(hKey, lpValueName, reserved, type, lpData, cbData);
}

// The import table slot of one function that a module takes from a library, or null.
void** ImportSlot(HMODULE hModule, const char* lpszLibrary, const char* lpszFunction)
{
    auto* base = reinterpret_cast<BYTE*>(hModule);
    auto* nt = reinterpret_cast<IMAGE_NT_HEADERS*>(base + reinterpret_cast<IMAGE_DOS_HEADER*>(base)->e_lfanew);
    const IMAGE_DATA_DIRECTORY& imports = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    for (auto* desc = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + imports.VirtualAddress); desc->Name != 0;
         ++desc)
    {
        if (::lstrcmpiA(reinterpret_cast<char*>(base + desc->Name), lpszLibrary) != 0)
            continue;
        auto* names = reinterpret_cast<IMAGE_THUNK_DATA*>(base + desc->OriginalFirstThunk);
        auto* slots = reinterpret_cast<IMAGE_THUNK_DATA*>(base + desc->FirstThunk);
        for (; names->u1.AddressOfData != 0; ++names, ++slots)
        {
            if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal))
                continue;
            auto* byName = reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData);
            if (std::strcmp(reinterpret_cast<char*>(byName->Name), lpszFunction) == 0)
                return reinterpret_cast<void**>(&slots->u1.Function);
        }
    }
    return nullptr;
}

void* Exchange(void** slot, void* value)
{
    DWORD oldProtect = 0;
    ::VirtualProtect(slot, sizeof(void*), PAGE_READWRITE, &oldProtect);
    void* previous = *slot;
    *slot = value;
    ::VirtualProtect(slot, sizeof(void*), oldProtect, &oldProtect);
    return previous;
}

}  // namespace

struct RegistryRecorder::Patches
{
    struct Patch
    {
        void** slot;
        void* original;
    };
    std::vector<Patch> patches;

    void Put(const char* lpszFunction, void* replacement)
    {
        void** slot = ImportSlot(::GetModuleHandleA("KivMFC64.dll"), "ADVAPI32.dll", lpszFunction);
        ASSERT_NE(nullptr, slot) << lpszFunction << " is not imported by the library";
        patches.push_back({slot, Exchange(slot, replacement)});
    }
    ~Patches()
    {
        for (const Patch& patch : patches)
            Exchange(patch.slot, patch.original);
    }
};

RegistryRecorder::RegistryRecorder() : m_patches(std::make_unique<Patches>())
{
    m_patches->Put("RegCreateKeyExA", reinterpret_cast<void*>(&RecordCreate));
    m_patches->Put("RegOpenKeyExA", reinterpret_cast<void*>(&RecordOpen));
    m_patches->Put("RegQueryValueExA", reinterpret_cast<void*>(&RecordQuery));
    m_patches->Put("RegSetValueExA", reinterpret_cast<void*>(&RecordSet));
    g_pCalls = &m_calls;
}

RegistryRecorder::~RegistryRecorder()
{
    g_pCalls = nullptr;
}

std::vector<std::string> RegistryRecorder::Calls(const std::string& kind) const
{
    std::vector<std::string> calls;
    for (const std::string& call : m_calls)
        if (call.compare(0, kind.size() + 1, kind + " ") == 0)
            calls.push_back(call);
    return calls;
}

}  // namespace dialogs_tests
