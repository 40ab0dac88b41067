#include "RegistrySandbox.h"

#include <gtest/gtest.h>

namespace kivtest {

RegistrySandbox::RegistrySandbox()
{
    const ::testing::TestInfo* pInfo = ::testing::UnitTest::GetInstance()->current_test_info();
    m_strPath.Format("Software\\KivTests\\%s.%s.%lu", pInfo ? pInfo->test_suite_name() : "none",
                     pInfo ? pInfo->name() : "none", ::GetCurrentProcessId());
    Open();
}

RegistrySandbox::RegistrySandbox(const char* lpszSubKey) : m_strPath(lpszSubKey)
{
    Open();
}

void RegistrySandbox::Open()
{
    ::RegDeleteTreeA(HKEY_CURRENT_USER, m_strPath);
    ::RegCreateKeyExA(HKEY_CURRENT_USER, m_strPath, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &m_hKey, nullptr);
}

RegistrySandbox::~RegistrySandbox()
{
    if (m_hKey != nullptr)
        ::RegCloseKey(m_hKey);
    ::RegDeleteTreeA(HKEY_CURRENT_USER, m_strPath);
}

bool RegistrySandbox::Exists(const char* lpszSubKey) const
{
    HKEY hKey = nullptr;
    if (::RegOpenKeyExA(m_hKey, lpszSubKey ? lpszSubKey : "", 0, KEY_READ, &hKey) != ERROR_SUCCESS)
        return false;
    ::RegCloseKey(hKey);
    return true;
}

bool RegistrySandbox::ReadDword(const char* lpszSubKey, const char* lpszValue, DWORD& value) const
{
    DWORD cb = sizeof(value);
    return ::RegGetValueA(m_hKey, lpszSubKey, lpszValue, RRF_RT_REG_DWORD, nullptr, &value, &cb) == ERROR_SUCCESS;
}

bool RegistrySandbox::ReadString(const char* lpszSubKey, const char* lpszValue, CString& value) const
{
    char szBuffer[1024] = {};
    DWORD cb = sizeof(szBuffer);
    if (::RegGetValueA(m_hKey, lpszSubKey, lpszValue, RRF_RT_REG_SZ, nullptr, szBuffer, &cb) != ERROR_SUCCESS)
        return false;
    value = szBuffer;
    return true;
}

void RegistrySandbox::WriteDword(const char* lpszSubKey, const char* lpszValue, DWORD value)
{
    WriteValue(lpszSubKey, lpszValue, REG_DWORD, &value, sizeof(value));
}

bool RegistrySandbox::WriteValue(const char* lpszSubKey, const char* lpszValue, DWORD type, const void* data,
                                 DWORD size)
{
    HKEY hKey = nullptr;
    if (::RegCreateKeyExA(m_hKey, lpszSubKey ? lpszSubKey : "", 0, nullptr, 0, KEY_WRITE, nullptr, &hKey, nullptr) !=
        ERROR_SUCCESS)
        return false;
    bool written = ::RegSetValueExA(hKey, lpszValue, 0, type, (const BYTE*)data, size) == ERROR_SUCCESS;
    ::RegCloseKey(hKey);
    return written;
}

}  // namespace kivtest
