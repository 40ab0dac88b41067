// A registry key of the current user for one test: fresh when the test starts, removed with
// everything under it when the sandbox goes.
#pragma once

#include <afxwin.h>

namespace kivtest {

class RegistrySandbox
{
public:
    // A new key under Software\KivTests, named after the running test and the process.
    RegistrySandbox();
    // The given key under HKEY_CURRENT_USER, emptied first.
    explicit RegistrySandbox(const char* lpszSubKey);
    ~RegistrySandbox();
    RegistrySandbox(const RegistrySandbox&) = delete;
    RegistrySandbox& operator=(const RegistrySandbox&) = delete;

    const CString& Path() const { return m_strPath; }
    HKEY Key() const { return m_hKey; }

    // Values under the sandbox (lpszSubKey relative to it, or nullptr for the key itself).
    bool Exists(const char* lpszSubKey) const;
    bool ReadDword(const char* lpszSubKey, const char* lpszValue, DWORD& value) const;
    bool ReadString(const char* lpszSubKey, const char* lpszValue, CString& value) const;
    void WriteDword(const char* lpszSubKey, const char* lpszValue, DWORD value);
    // A value of any type and size, as a user or another program may have left it.
    bool WriteValue(const char* lpszSubKey, const char* lpszValue, DWORD type, const void* data, DWORD size);

private:
    void Open();
    CString m_strPath;
    HKEY m_hKey = nullptr;
};

}  // namespace kivtest
