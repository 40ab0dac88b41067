#include "StoreTest.h"

using namespace kiv::siblings;

namespace {

// Beside bin/, so that the build's msgfmt check finds every file the tests leave.
constexpr char kFilesFolder[] = "..\\kivstore-files\\";

void EmptyFolder(const std::string& folder)
{
    WIN32_FIND_DATAA found;
    HANDLE search = ::FindFirstFileA((folder + "*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    do
    {
        std::string path = folder + found.cFileName;
        if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)
        {
            if (strcmp(found.cFileName, ".") != 0 && strcmp(found.cFileName, "..") != 0)
                ::RemoveDirectoryA(path.c_str());
            continue;
        }
        ::SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        ::DeleteFileA(path.c_str());
    } while (::FindNextFileA(search, &found));
    ::FindClose(search);
}

}  // namespace

std::string ProgramFolder()
{
    char exe[MAX_PATH * 2] = {};
    DWORD length = ::GetModuleFileNameA(nullptr, exe, sizeof(exe));
    std::string path(exe, length);
    return path.substr(0, path.rfind('\\') + 1);
}

std::string Utf8(const wchar_t* text)
{
    int n = ::WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    std::string bytes(n > 0 ? n - 1 : 0, '\0');
    if (n > 1)
        ::WideCharToMultiByte(CP_UTF8, 0, text, -1, &bytes[0], n, nullptr, nullptr);
    return bytes;
}

void StoreTest::SetUp()
{
    const testing::TestInfo* info = testing::UnitTest::GetInstance()->current_test_info();
    std::string files = ProgramFolder() + kFilesFolder;
    ::CreateDirectoryA(files.c_str(), nullptr);
    m_folder = files + info->test_suite_name() + "." + info->name() + "\\";
    ::CreateDirectoryA(m_folder.c_str(), nullptr);
    EmptyFolder(m_folder);
    m_settings = m_folder + "kiv.ini";
    ::SetEnvironmentVariableA("KIV_INI", m_settings.c_str());
    WriteSettings("[Store]\r\nDirectory=" + m_folder + "\r\n");
}

void StoreTest::TearDown()
{
    Unload();
    ::SetEnvironmentVariableA("KIV_INI", nullptr);
}

void StoreTest::Load()
{
    ASSERT_EQ(nullptr, m_library);
    m_library = ::LoadLibraryA(kStoreLibrary);
    ASSERT_NE(nullptr, m_library);
    m_getId = reinterpret_cast<GetLanguageIDFn>(::GetProcAddress(m_library, kGetLanguageIDExport));
    m_getStrings = reinterpret_cast<GetLanguageStringsFn>(::GetProcAddress(m_library, kGetLanguageStringsExport));
    m_get = reinterpret_cast<GetLanguageStringFn>(::GetProcAddress(m_library, kGetLanguageStringExport));
    m_insert = reinterpret_cast<InsertLanguageStringFn>(::GetProcAddress(m_library, kInsertLanguageStringExport));
    m_update = reinterpret_cast<UpdateLanguageStringFn>(::GetProcAddress(m_library, kUpdateLanguageStringExport));
    ASSERT_TRUE(m_getId && m_getStrings && m_get && m_insert && m_update);
}

void StoreTest::Unload()
{
    if (!m_library)
        return;
    ::FreeLibrary(m_library);
    m_library = nullptr;
    // The writes happen at unloading, so the tests must really unload.
    EXPECT_EQ(nullptr, ::GetModuleHandleA(kStoreLibrary));
}

void StoreTest::WriteSettings(const std::string& text)
{
    ::DeleteFileA(m_settings.c_str());
    HANDLE file = ::CreateFileA(m_settings.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    ::WriteFile(file, text.data(), (DWORD)text.size(), &written, nullptr);
    ::CloseHandle(file);
}

void StoreTest::WriteFile(const std::string& name, const std::string& bytes)
{
    HANDLE file = ::CreateFileA(PathOf(name).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, file);
    DWORD written = 0;
    ::WriteFile(file, bytes.data(), (DWORD)bytes.size(), &written, nullptr);
    ::CloseHandle(file);
    ASSERT_EQ(bytes.size(), written);
}

std::string StoreTest::ReadFile(const std::string& name) const
{
    HANDLE file = ::CreateFileA(PathOf(name).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return "<missing>";
    std::string bytes(::GetFileSize(file, nullptr), '\0');
    DWORD read = 0;
    if (!bytes.empty())
        ::ReadFile(file, &bytes[0], (DWORD)bytes.size(), &read, nullptr);
    ::CloseHandle(file);
    bytes.resize(read);
    return bytes;
}

bool StoreTest::Exists(const std::string& name) const
{
    return ::GetFileAttributesA(PathOf(name).c_str()) != INVALID_FILE_ATTRIBUTES;
}

void StoreTest::Remove(const std::string& name)
{
    ::SetFileAttributesA(PathOf(name).c_str(), FILE_ATTRIBUTE_NORMAL);
    ::DeleteFileA(PathOf(name).c_str());
}

CStringW StoreTest::Held(const char* id, const char* section, const char* key)
{
    CStringW text;
    return Get(id, section, key, &text) == kStoreOk ? text : CStringW(L"<not held>");
}
