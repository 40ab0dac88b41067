#include "StoreFiles.h"

#include <windows.h>

#include <algorithm>
#include <cstring>

namespace {

bool WriteAll(HANDLE file, const std::string& bytes)
{
    for (std::size_t done = 0; done < bytes.size();)
    {
        DWORD chunk = (DWORD)std::min<std::size_t>(bytes.size() - done, 1u << 30);
        DWORD written = 0;
        if (!::WriteFile(file, bytes.data() + done, chunk, &written, nullptr) || written == 0)
            return false;
        done += written;
    }
    return true;
}

}  // namespace

bool ReadWholeFile(const std::string& path, std::string& bytes, std::size_t limit)
{
    // Shared for everything, so that a translator's editor or a second program is never blocked.
    HANDLE file = ::CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                nullptr, OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    LARGE_INTEGER size{};
    bool ok = ::GetFileSizeEx(file, &size) && size.QuadPart < (1LL << 31);
    if (ok)
    {
        bytes.resize(std::min((std::size_t)size.QuadPart, limit));
        std::size_t done = 0;
        DWORD read = 0;
        while (ok && done < bytes.size())
        {
            ok = ::ReadFile(file, &bytes[done], (DWORD)(bytes.size() - done), &read, nullptr) && read > 0;
            done += read;
        }
    }
    ::CloseHandle(file);
    return ok;
}

bool ReplaceWholeFile(const std::string& folder, const std::string& path, const std::string& bytes)
{
    // Replacing would drop a read-only mark someone set on purpose; Windows refuses it as well.
    DWORD attributes = ::GetFileAttributesA(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY))
        return false;
    char temp[MAX_PATH];
    if (!::GetTempFileNameA(folder.c_str(), "kiv", 0, temp))
        return false;
    HANDLE file = ::CreateFileA(temp, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    bool ok = file != INVALID_HANDLE_VALUE;
    if (ok)
    {
        // The new bytes reach the disk before the name points at them.
        ok = WriteAll(file, bytes) && ::FlushFileBuffers(file);
        ::CloseHandle(file);
    }
    if (ok && ::MoveFileExA(temp, path.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        return true;
    ::DeleteFileA(temp);
    return false;
}

std::vector<std::string> ListPoFiles(const std::string& folder)
{
    std::vector<std::string> names;
    WIN32_FIND_DATAA found;
    HANDLE search = ::FindFirstFileA((folder + "*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return names;
    const std::size_t extension = sizeof(kPoExtension) - 1;
    do
    {
        std::size_t length = std::strlen(found.cFileName);
        // The exact extension: "de.po.pending" and "de.pot" are not languages.
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) && length > extension &&
            ::lstrcmpiA(found.cFileName + length - extension, kPoExtension) == 0)
            names.emplace_back(found.cFileName, length);
    } while (::FindNextFileA(search, &found));
    ::FindClose(search);
    std::sort(names.begin(), names.end(),
              [](const std::string& a, const std::string& b) { return ::lstrcmpiA(a.c_str(), b.c_str()) < 0; });
    return names;
}
