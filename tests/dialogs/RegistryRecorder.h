// A recorder of the registry calls the library makes, for tests of its placement keys.
#pragma once

#include <afxwin.h>

#include <memory>
#include <string>
#include <vector>

namespace dialogs_tests {

// Records, in order, the registry calls that KivMFC64.dll makes while it lives, by pointing
// the library's import table entries elsewhere (put back afterwards). Entries read
// "create <key> <access>", "open <key> <access>", "query <value> <buffer size>" and
// "set <value> <number>" (for a 4-byte REG_DWORD; other data shows its type and size).
class RegistryRecorder
{
public:
    RegistryRecorder();
    ~RegistryRecorder();
    RegistryRecorder(const RegistryRecorder&) = delete;
    RegistryRecorder& operator=(const RegistryRecorder&) = delete;

    const std::vector<std::string>& Calls() const { return m_calls; }
    // Only the entries of one kind ("set", "query", ...).
    std::vector<std::string> Calls(const std::string& kind) const;

private:
    std::vector<std::string> m_calls;
    struct Patches;
    std::unique_ptr<Patches> m_patches;
};

}  // namespace dialogs_tests
