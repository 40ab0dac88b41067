// Timings of the localization manager, printed as medians: the wide lookup (hit and miss) of
// 1,000 to 50,000 keys against a two-level std::unordered_map of the same keys and against
// LoadStringW from a resource-only library of the same texts, the cache's memory per record,
// start-up with a store of 1,000 to 100,000 records, Dispose writing 10,000 new texts, and
// TranslateDialog of 50 to 2,000 controls against the bare messages it sends. The store is the tests'
// recording store, loaded from its folder before the manager asks for it by name, so the
// manager's load finds it already in the process; its log is off.
#include <KivMFC.h>

#include "BenchReport.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
constexpr int kRuns = 21;
// Start-up leaks the records it overwrites, as it should; fewer runs keep that small.
constexpr int kStartUpRuns = 9;

double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// Median over runs of the seconds that body takes; prepare runs untimed before each.
double TimeMedian(const std::function<void()>& prepare, const std::function<void()>& body, int runs = kRuns)
{
    std::vector<double> seconds;
    for (int run = 0; run < runs; ++run)
    {
        prepare();
        Clock::time_point start = Clock::now();
        body();
        seconds.push_back(std::chrono::duration<double>(Clock::now() - start).count());
    }
    return Median(seconds);
}

std::string TempFile(const char* prefix)
{
    char dir[MAX_PATH], file[MAX_PATH];
    ::GetTempPathA(MAX_PATH, dir);
    ::GetTempFileNameA(dir, prefix, 0, file);
    return file;
}

void WriteText(const std::string& path, const std::string& text)
{
    HANDLE h = ::CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    ::WriteFile(h, text.data(), (DWORD)text.size(), &written, nullptr);
    ::CloseHandle(h);
}

std::string BesideExe(const char* relative)
{
    char exe[MAX_PATH];
    DWORD n = ::GetModuleFileNameA(nullptr, exe, MAX_PATH);
    std::string path(exe, n);
    return path.substr(0, path.rfind('\\') + 1) + relative;
}

// A fresh manager; the previous one, if any, was disposed of or is given up on purpose.
LocalizationManager* FreshManager()
{
    LocalizationManager::m_SingletonInstance = nullptr;
    return LocalizationManager::Get();
}

struct Key
{
    CString defaultText, key, section;
    CStringW wide;  // the translation of a hit
    std::string stdKey, stdSection;
    UINT resourceId;  // its translation in the resource-only library
};

// Stands for a call of the manager that does nothing but take and give its strings.
__attribute__((noinline)) CStringW PassByValue(CString defaultText, CString key, CString section,
                                               const CStringW& result)
{
    asm volatile("" : : "r"(defaultText.GetString()), "r"(key.GetString()), "r"(section.GetString()));
    return result;
}

// count texts numbered from first in 100 sections (the decimal ids of dialogs and controls), in
// random order; text n is "Text n", its translation "\u00DCbersetzung Text n", string n + 1.
std::vector<Key> MakeKeys(int count, int first)
{
    std::vector<Key> all;
    int perSection = std::max(1, count / 100);
    for (int n = 0; n < count; ++n)
    {
        Key key;
        key.section.Format("%d", 2001 + n / perSection);
        key.key.Format("%d", 1000 + first + n % perSection);
        key.defaultText.Format("Text %d", first + n);
        key.wide = L"\x00DC"
                   L"bersetzung " +
                   CStringW(key.defaultText);
        key.stdKey = key.key.GetString();
        key.stdSection = key.section.GetString();
        key.resourceId = (UINT)(first + n + 1);
        all.push_back(key);
    }
    std::shuffle(all.begin(), all.end(), std::mt19937(7));
    return all;
}

typedef std::unordered_map<std::string, std::unordered_map<std::string, std::wstring>> BareMap;

// The manager's lookup, the bare map's, the by-value passing alone (three narrow strings in and
// a wide one out, as every call of the manager pays before it looks) and, for hits, LoadStringW
// of the same text from the resource-only library into a buffer of 256 units.
void CompareLookups(bench::Csv& csv, bool hit, LocalizationManager* m, const BareMap& map, const std::vector<Key>& keys,
                    HMODULE strings)
{
    size_t sink = 0;
    std::vector<std::function<void()>> loops = {
        [&] {
            for (const Key& k : keys)
                sink += m->GetWideTranslation(k.defaultText, k.key, k.section).GetLength();
        },
        [&] {
            for (const Key& k : keys)
            {
                auto section = map.find(k.stdSection);
                if (section == map.end())
                    continue;
                auto entry = section->second.find(k.stdKey);
                if (entry != section->second.end())
                    sink += entry->second.size();
            }
        },
        [&] {
            for (const Key& k : keys)
                sink += PassByValue(k.defaultText, k.key, k.section, k.wide).GetLength();
        }};
    if (hit && strings != nullptr)
        loops.push_back([&] {
            wchar_t buffer[256];
            for (const Key& k : keys)
                sink += (size_t)::LoadStringW(strings, k.resourceId, buffer, 256);
        });
    std::vector<double> s = bench::SecondsInTurns(loops, kRuns);
    int n = (int)keys.size();
    auto ns = [&](size_t i) { return s[i] * 1e9 / n; };
    const char* what = hit ? "hit " : "miss";
    printf("%6d keys, %s: %6.1f ns/call; two-level unordered_map %6.1f ns: ratio %.2f (goal %s)\n", n, what, ns(0),
           ns(1), s[0] / s[1], hit ? "1.5" : "2");
    printf("  passing the strings by value alone %5.1f ns; the rest against the map: ratio %.2f\n", ns(2),
           (s[0] - s[2]) / s[1]);
    csv.Add(hit ? "lookup-hit" : "lookup-miss", n, s[0] * 1e6, s[1] * 1e6);
    if (loops.size() > 3)
    {
        printf("  LoadStringW from a resource-only library %6.1f ns: the hit costs %.2f of it\n", ns(3), s[0] / s[3]);
        csv.Add("lookup-hit-vs-LoadStringW", n, s[0] * 1e6, s[3] * 1e6);
    }
    if (sink == 0)
        printf("\n");
}

// The library of string resources beside the benchmark, checked to hold the texts cached.
HMODULE LoadStrings(const Key& sample)
{
    HMODULE strings = ::LoadLibraryExA(BesideExe("bench_strings.dll").c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    wchar_t text[256] = {};
    if (strings != nullptr && ::LoadStringW(strings, sample.resourceId, text, 256) > 0 && sample.wide == text)
        return strings;
    printf("bench_strings.dll is missing or holds other texts: no comparison with LoadStringW\n");
    return nullptr;
}

void BenchLookups(bench::Csv& csv)
{
    printf("lookups: keys in 100 sections, in random order; a miss is a text asked for again that has\n"
           "no translation (the manager records it again, as it must; the map only fails to find it)\n");
    for (int count : {1000, 10000, 50000})
    {
        std::vector<Key> hits = MakeKeys(count, 0);        // translated texts
        std::vector<Key> misses = MakeKeys(count, count);  // texts without translation
        HMODULE strings = LoadStrings(hits.front());
        LocalizationManager* m = FreshManager();
        BareMap map;
        for (const Key& k : hits)
        {
            m->SetTranslation(k.defaultText, k.wide, k.key, k.section);
            map[k.stdSection][k.stdKey] = k.wide.GetString();
        }
        for (const Key& k : misses)
            m->GetWideTranslation(k.defaultText, k.key, k.section);  // recorded once, then asked again
        CompareLookups(csv, true, m, map, hits, strings);
        CompareLookups(csv, false, m, map, misses, strings);
        if (strings != nullptr)
            ::FreeLibrary(strings);
    }
}

// Private bytes of a fresh manager before and after caching count records, each with texts of
// its own as a host's records have (a default of about 10 characters, a translation of 20).
void BenchCacheMemory(bench::Csv& csv)
{
    for (int count : {1000, 10000, 100000})
    {
        LocalizationManager* m = FreshManager();
        double before = bench::PrivateBytes();
        for (int n = 0; n < count; ++n)
        {
            CString key, section, text;
            key.Format("%d", 1000 + n % 100);
            section.Format("%d", 2001 + n / 100);
            text.Format("Text %d", n);
            m->SetTranslation(text,
                              L"\x00DC"
                              L"bersetzung " +
                                  CStringW(text),
                              key, section);
        }
        double bytes = bench::PrivateBytes() - before;
        printf("cache of %6d records: %6.1f bytes per record (private bytes before and after)\n", count, bytes / count);
        csv.Add("cache-memory-bytes", count, bytes);
        LocalizationManager::Dispose();  // translation off: nothing is written
    }
}

// The store double answers German with "de" and, optionally, generated records.
HMODULE LoadStore(const std::string& control, int records)
{
    std::string text = "language\tGerman\tde\n";
    if (records > 0)
        text += "generate\t" + std::to_string(records) + "\n";
    WriteText(control, text);
    HMODULE store = ::LoadLibraryA(BesideExe("..\\localization\\stores\\recording\\kivstore64.dll").c_str());
    if (store == nullptr)
        printf("the recording store is missing; build the localization tests first\n");
    return store;
}

void BenchStartUp(bench::Csv& csv, const std::string& control)
{
    for (int records : {1000, 10000, 100000})
    {
        HMODULE store = LoadStore(control, records);
        if (store == nullptr)
            return;
        FreshManager();  // the store builds its table once while it stays loaded
        double s = TimeMedian(
            [] {
                LocalizationManager::Dispose();
                LocalizationManager::m_SingletonInstance = nullptr;
            },
            [] { LocalizationManager::Get(); }, kStartUpRuns);
        LocalizationManager::Dispose();
        printf("start-up with %6d store records: %8.2f ms\n", records, s * 1e3);
        csv.Add("startup-recording-store", records, s * 1e6);
        ::FreeLibrary(store);
    }
}

void BenchDispose(const std::string& control)
{
    HMODULE store = LoadStore(control, 0);
    if (store == nullptr)
        return;
    std::vector<Key> texts = MakeKeys(10000, 0);
    double s = TimeMedian(
        [&] {
            LocalizationManager* m = FreshManager();
            for (const Key& k : texts)
                m->GetWideTranslation(k.defaultText, k.key, k.section);
        },
        [] { LocalizationManager::Dispose(); });
    printf("Dispose writing %d new texts: %8.2f ms\n", (int)texts.size(), s * 1e3);
    ::FreeLibrary(store);
}

// A language file of generated entries for the real store, in the store's own format.
std::string LanguageFile(int records)
{
    std::string text = "msgid \"\"\nmsgstr \"\"\n\"MIME-Version: 1.0\\n\"\n"
                       "\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
                       "\"Content-Transfer-Encoding: 8bit\\n\"\n\"Language: de\\n\"\n"
                       "\"X-Language-Names: German\\n\"\n";
    for (int i = 0; i < records; ++i)
    {
        std::string n = std::to_string(i);
        text += "\nmsgctxt \"" + std::to_string(2001 + i / 1000) + "\\n" + std::to_string(i % 1000) +
                "\"\nmsgid \"Text " + n +
                "\"\nmsgstr \"\xC3\x9C"
                "bersetzung " +
                n + "\"\n";
    }
    return text;
}

void RemoveFolder(const std::string& folder)
{
    WIN32_FIND_DATAA found;
    HANDLE find = ::FindFirstFileA((folder + "*").c_str(), &found);
    if (find != INVALID_HANDLE_VALUE)
    {
        do
            ::DeleteFileA((folder + found.cFileName).c_str());
        while (::FindNextFileA(find, &found));
        ::FindClose(find);
    }
    ::RemoveDirectoryA(folder.c_str());
}

// The same with the real store beside the benchmark, over a PO file in a folder of its own:
// start-up includes loading the store and reading its file, Dispose its writing the file.
void BenchRealStore(bench::Csv& csv, const std::string& ini)
{
    if (::GetFileAttributesA(BesideExe("kivstore64.dll").c_str()) == INVALID_FILE_ATTRIBUTES)
    {
        printf("no real store beside the benchmark\n");
        return;
    }
    std::string folder = TempFile("kst");
    ::DeleteFileA(folder.c_str());
    folder += "\\";
    ::CreateDirectoryA(folder.c_str(), nullptr);
    std::string file = folder + "de.po";
    WriteText(ini, "[Environment]\r\nLanguageSetting=German\r\n[Store]\r\nDirectory=" + folder + "\r\n");
    for (int records : {1000, 10000, 100000})
    {
        WriteText(file, LanguageFile(records));
        double s = TimeMedian([] { LocalizationManager::m_SingletonInstance = nullptr; },
                              [] { LocalizationManager::Get(); }, kStartUpRuns);
        printf("real store: start-up with %6d records in the file: %8.2f ms\n", records, s * 1e3);
        csv.Add("startup-real-store", records, s * 1e6);
    }
    std::vector<Key> texts = MakeKeys(10000, 0);
    double s = TimeMedian(
        [&] {
            WriteText(file, LanguageFile(0));
            LocalizationManager* m = FreshManager();
            for (const Key& k : texts)
                m->GetWideTranslation(k.defaultText, k.key, k.section);
        },
        [] { LocalizationManager::Dispose(); }, kStartUpRuns);
    printf("real store: Dispose writing %d new texts: %8.2f ms\n", (int)texts.size(), s * 1e3);
    RemoveFolder(folder);
}

// A window holding `count` static texts with ids 1000... and their translations cached.
struct BenchDialog
{
    explicit BenchDialog(LocalizationManager* manager, int count)
    {
        hWnd = ::CreateWindowExA(0, "#32770", "bench", WS_POPUP, 0, 0, 400, 300, nullptr, nullptr, nullptr, nullptr);
        for (int i = 0; i < count; ++i)
        {
            int id = 1000 + i;
            HWND control = ::CreateWindowExA(0, "Static", "Text", WS_CHILD, 0, 0, 40, 10, hWnd, (HMENU)(INT_PTR)id,
                                             nullptr, nullptr);
            CString key;
            key.Format("%d", id);
            CStringW translation;
            translation.Format(L"\x00DCbersetzung %d", id);
            manager->SetTranslation("Text", translation, key, "2001");
            controls.push_back(control);
            texts.push_back(translation);
        }
    }
    ~BenchDialog() { ::DestroyWindow(hWnd); }
    HWND hWnd;
    std::vector<HWND> controls;
    std::vector<CStringW> texts;
};

// TranslateDialog against the bare messages it must send: WM_SETTEXT with the text, then
// WM_UNICODE with the section, to each of the same controls; timed in turns.
void BenchTranslateDialog(bench::Csv& csv)
{
    LocalizationManager* manager = FreshManager();
    for (int count : {50, 500, 2000})
    {
        BenchDialog dialog(manager, count);
        CWnd* wnd = CWnd::FromHandle(dialog.hWnd);
        std::vector<double> s = bench::SecondsInTurns(
            {[&] { manager->TranslateDialog(wnd, 2001); },
             [&] {
                 for (size_t i = 0; i < dialog.controls.size(); ++i)
                 {
                     ::SendMessageW(dialog.controls[i], WM_SETTEXT, 0, (LPARAM)dialog.texts[i].GetString());
                     ::SendMessageW(dialog.controls[i], WM_UNICODE, 0, (LPARAM) "2001");
                 }
             }},
            kRuns);
        printf("TranslateDialog of %4d controls: %8.1f us (%6.2f us per control), bare messages %8.1f us: %.2fx "
               "(goal 1.2)\n",
               count, s[0] * 1e6, s[0] * 1e6 / count, s[1] * 1e6, s[0] / s[1]);
        csv.Add("TranslateDialog", count, s[0] * 1e6, s[1] * 1e6);
    }
}

}  // namespace

// The first argument, when given, is the folder for localization.csv.
int main(int argc, char** argv)
{
    bench::Csv csv(argc, argv, "localization.csv");
    AfxWinInit(::GetModuleHandleA(nullptr), nullptr, ::GetCommandLineA(), SW_SHOW);
    std::string ini = TempFile("ini");
    std::string control = TempFile("sto");
    ::SetEnvironmentVariableA("KIV_INI", ini.c_str());
    ::SetEnvironmentVariableA("KIV_RECORDING_STORE", control.c_str());
    ::SetEnvironmentVariableA("KIV_RECORDING_STORE_LOG", nullptr);
    printf("localization bench, medians of %d runs\n", kRuns);

    WriteText(ini, "[Environment]\r\nLanguageSetting=\r\n");  // lookups alone, no store
    BenchLookups(csv);
    BenchCacheMemory(csv);
    WriteText(ini, "[Environment]\r\nLanguageSetting=German\r\n");
    BenchStartUp(csv, control);
    BenchDispose(control);
    BenchRealStore(csv, ini);
    BenchTranslateDialog(csv);

    ::DeleteFileA(ini.c_str());
    ::DeleteFileA(control.c_str());
    return 0;
}
