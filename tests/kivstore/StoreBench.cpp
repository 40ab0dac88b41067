// Timings of the store as a host's localization uses it: reading a language at start-up, against
// the floor of the same file (read whole and split into lines), the memory it holds a language in,
// and saving the texts of a run when the library is released. Prints medians.
#include <afxwin.h>

#include "BenchReport.h"
#include "KivStore.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

using namespace kiv::siblings;

namespace {

constexpr int kRuns = 7;

struct Store
{
    HMODULE library = ::LoadLibraryA(kStoreLibrary);
    template <typename Proc> Proc Get(const char* name)
    {
        return reinterpret_cast<Proc>(::GetProcAddress(library, name));
    }
    ~Store() { ::FreeLibrary(library); }
};

double Now()
{
    LARGE_INTEGER counter, frequency;
    ::QueryPerformanceCounter(&counter);
    ::QueryPerformanceFrequency(&frequency);
    return 1000.0 * (double)counter.QuadPart / (double)frequency.QuadPart;
}

double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

size_t WriteLanguage(const std::string& path, int records)
{
    std::string text = "msgid \"\"\nmsgstr \"\"\n\"Language: de\\n\"\n\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
                       "\"X-Language-Names: German\\n\"\n";
    char entry[256];
    for (int i = 0; i < records; ++i)
    {
        std::snprintf(entry, sizeof(entry),
                      "\nmsgctxt \"%d\\n%d\"\nmsgid \"Default text number %d\"\nmsgstr \"\xC3\x9C"
                      "bersetzung %d\"\n",
                      2000 + i / 50, 1000 + i % 50, i, i);
        text += entry;
    }
    HANDLE file = ::CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    ::WriteFile(file, text.data(), (DWORD)text.size(), &written, nullptr);
    ::CloseHandle(file);
    return text.size();
}

// Load, name the language, take its table and walk it, release.
double StartUp()
{
    double start = Now();
    Store store;
    CString id = store.Get<GetLanguageIDFn>(kGetLanguageIDExport)("German");
    CStringW** table = store.Get<GetLanguageStringsFn>(kGetLanguageStringsExport)(id);
    int length = 0;
    for (CStringW** record = table; record && *record; ++record)
        length += (*record)[1].GetLength();
    double end = Now();
    return length > 0 ? end - start : -1;
}

// What no reader of the file can avoid: reading it whole and finding its lines.
double Floor(const std::string& path)
{
    double start = Now();
    HANDLE file = ::CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    std::string text(::GetFileSize(file, nullptr), '\0');
    DWORD read = 0;
    ::ReadFile(file, text.data(), (DWORD)text.size(), &read, nullptr);
    ::CloseHandle(file);
    std::vector<std::string_view> lines;
    for (size_t at = 0; at < text.size();)
    {
        size_t end = text.find('\n', at);
        if (end == std::string::npos)
            end = text.size();
        lines.emplace_back(text.data() + at, end - at);
        at = end + 1;
    }
    double end = Now();
    return lines.empty() ? -1 : end - start;
}

// Private bytes the store holds while its language is loaded and its table handed out.
double LoadedBytes()
{
    double before = bench::PrivateBytes();
    Store store;
    CString id = store.Get<GetLanguageIDFn>(kGetLanguageIDExport)("German");
    store.Get<GetLanguageStringsFn>(kGetLanguageStringsExport)(id);
    return bench::PrivateBytes() - before;
}

// Load, then for each text ask for it and insert it, release (which writes the file).
double SaveNewTexts(int texts)
{
    double start = Now();
    {
        Store store;
        auto get = store.Get<GetLanguageStringFn>(kGetLanguageStringExport);
        auto insert = store.Get<InsertLanguageStringFn>(kInsertLanguageStringExport);
        char section[16], key[16], text[64];
        for (int i = 0; i < texts; ++i)
        {
            std::snprintf(section, sizeof(section), "%d", 9000 + i / 50);
            std::snprintf(key, sizeof(key), "%d", i % 50);
            std::snprintf(text, sizeof(text), "New text %d", i);
            CStringW stored;
            if (get("de", section, key, &stored) != kStoreOk)
                insert(text, L"", "de", section, key);
        }
    }
    return Now() - start;
}

}  // namespace

// The first argument, when given, is the folder for kivstore.csv.
int main(int argc, char** argv)
{
    bench::Csv csv(argc, argv, "kivstore.csv");
    char temp[MAX_PATH];
    ::GetTempPathA(MAX_PATH, temp);
    std::string folder = std::string(temp) + "kivstore-bench\\";
    ::CreateDirectoryA(folder.c_str(), nullptr);
    std::string ini = folder + "kiv.ini";
    std::string settings = "[Store]\r\nDirectory=" + folder + "\r\n";
    HANDLE file = ::CreateFileA(ini.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    ::WriteFile(file, settings.data(), (DWORD)settings.size(), &written, nullptr);
    ::CloseHandle(file);
    ::SetEnvironmentVariableA("KIV_INI", ini.c_str());
    std::string language = folder + "de.po";

    // What a language of no records holds (the store's own lists, the heap's first growth): the
    // part of each figure below that does not grow with the file.
    WriteLanguage(language, 0);
    std::vector<double> emptyBytes;
    for (int run = 0; run < 3; ++run)
        emptyBytes.push_back(LoadedBytes());
    const double empty = Median(emptyBytes);
    std::printf("memory held for a language of no records: %.2f MB\n", empty / 1e6);
    for (int records : {1000, 10000, 100000})
    {
        double size = (double)WriteLanguage(language, records);
        std::vector<double> startUp, floor;
        for (int run = 0; run < kRuns; ++run)
        {
            startUp.push_back(StartUp());
            floor.push_back(Floor(language));
        }
        double s = Median(startUp), f = Median(floor);
        std::printf("store start-up, %6d records: %8.2f ms; reading the file whole and splitting it into lines "
                    "%6.2f ms: %.2fx (goal 3)\n",
                    records, s, f, s / f);
        csv.Add("store-startup", records, s * 1e3, f * 1e3);
        std::vector<double> bytes;
        for (int run = 0; run < 3; ++run)
            bytes.push_back(LoadedBytes());
        double held = Median(bytes);
        std::printf("  memory held for the language: %.1f MB for a file of %.1f MB: %.2fx (goal 3); its records "
                    "alone (less the language of no records): %.2fx\n",
                    held / 1e6, size / 1e6, held / size, (held - empty) / size);
        csv.Add("store-memory-bytes", records, held, size);
    }
    for (int existing : {0, 100000})
    {
        std::vector<double> times;
        for (int run = 0; run < kRuns; ++run)
        {
            WriteLanguage(language, existing);
            times.push_back(SaveNewTexts(10000));
        }
        std::printf("10000 new texts saved, %6d records before: %8.2f ms (median of %d)\n", existing, Median(times),
                    kRuns);
    }
    ::DeleteFileA(language.c_str());
    ::DeleteFileA(ini.c_str());
    ::RemoveDirectoryA(folder.c_str());
    return 0;
}
