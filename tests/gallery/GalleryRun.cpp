#include "GalleryRun.h"

#include <fstream>
#include <iterator>
#include <sstream>

namespace gallerytest {

namespace {

constexpr DWORD kWaitMs = 30000;

std::wstring Widen(const std::string& utf8)
{
    std::wstring wide(utf8.size(), L'\0');
    int length = ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), (int)utf8.size(), wide.data(), (int)wide.size());
    wide.resize((size_t)length);
    return wide;
}

}  // namespace

std::string WinePath(const char* unixPath)
{
    std::string folder = unixPath;
    if (!folder.empty() && folder[0] == '/')
        folder = "Z:" + folder;
    for (char& c : folder)
        if (c == '/')
            c = '\\';
    return folder;
}

std::string ReadBytes(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void WriteBytes(const std::string& path, const std::string& bytes)
{
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

GalleryRun::GalleryRun(const std::string& ini, const std::string& folder) : m_folder(folder)
{
    ::CreateDirectoryA(folder.c_str(), nullptr);
    ::DeleteFileA((folder + "\\window.txt").c_str());
    ::DeleteFileA((folder + "\\go").c_str());
    ::SetEnvironmentVariableA("KIV_INI", ini.c_str());
    const std::string galleryFolder = WinePath(KIV_GALLERY_DIR);
    std::string commandLine = "\"" + galleryFolder + "\\KivGallery.exe\" /tour \"" + folder + "\"";
    STARTUPINFOA startup = {};
    startup.cb = sizeof(startup);
    m_bStarted = ::CreateProcessA(nullptr, &commandLine[0], nullptr, nullptr, FALSE, 0, nullptr, galleryFolder.c_str(),
                                  &startup, &m_process) != FALSE;
    ::SetEnvironmentVariableA("KIV_INI", nullptr);
}

GalleryRun::~GalleryRun()
{
    if (!m_bStarted)
        return;
    if (::WaitForSingleObject(m_process.hProcess, 0) == WAIT_TIMEOUT)
        ::TerminateProcess(m_process.hProcess, 99);
    ::CloseHandle(m_process.hThread);
    ::CloseHandle(m_process.hProcess);
}

bool GalleryRun::Next(TourWindow& window)
{
    const std::string path = m_folder + "\\window.txt";
    for (DWORD start = ::GetTickCount(); ::GetTickCount() - start < kWaitMs; ::Sleep(50))
    {
        std::string text = ReadBytes(path);
        if (text.empty())
        {
            if (::WaitForSingleObject(m_process.hProcess, 0) == WAIT_OBJECT_0)
                return false;
            continue;
        }
        ::DeleteFileA(path.c_str());
        std::istringstream lines(text);
        long width = 0, height = 0;
        lines >> window.name >> window.rect.left >> window.rect.top >> width >> height;
        window.rect.right = window.rect.left + width;
        window.rect.bottom = window.rect.top + height;
        window.parts.clear();
        window.cuts.clear();
        window.items.clear();
        std::string line;
        while (std::getline(lines, line))
        {
            std::istringstream words(line);
            std::string first;
            if (!(words >> first))
                continue;
            if (first == "item")
            {
                TourItem item;
                long w = 0, h = 0;
                if (words >> item.kind >> item.id >> item.section >> item.key >> item.rect.left >> item.rect.top >> w >>
                    h >> item.needed >> item.room)
                {
                    item.rect.right = item.rect.left + w;
                    item.rect.bottom = item.rect.top + h;
                    std::string text;
                    std::getline(words, text);
                    item.text = Widen(text.substr(text.empty() ? 0 : 1));
                    window.items.push_back(item);
                }
                continue;
            }
            if (first == "cut")
            {
                TourCut cut;
                long w = 0, h = 0;
                if (words >> cut.id >> cut.section >> cut.rect.left >> cut.rect.top >> w >> h >> cut.needed >> cut.room)
                {
                    cut.rect.right = cut.rect.left + w;
                    cut.rect.bottom = cut.rect.top + h;
                    window.cuts.push_back(cut);
                }
                continue;
            }
            TourPart part;
            unsigned long long handle = 0;
            part.name = first;
            if (words >> handle >> part.section)
            {
                part.hWnd = (HWND)(UINT_PTR)handle;
                window.parts.push_back(part);
            }
        }
        return true;
    }
    return false;
}

void GalleryRun::GoOn()
{
    WriteBytes(m_folder + "\\go", "go");
}

long GalleryRun::WaitForExit()
{
    DWORD code = 0;
    if (::WaitForSingleObject(m_process.hProcess, kWaitMs) != WAIT_OBJECT_0 ||
        !::GetExitCodeProcess(m_process.hProcess, &code))
        return -1;
    return (long)code;
}

}  // namespace gallerytest
