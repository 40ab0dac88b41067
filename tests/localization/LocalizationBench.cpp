// Timings of the localization manager, printed as medians: the wide lookup (hit and miss)
// against a two-level std::unordered_map of the same keys, start-up with a store of 1,000
// to 100,000 records, Dispose writing 10,000 new texts, and TranslateDialog of 50 to 2,000
// controls against the bare messages it sends. The store is the tests'
// recording store, loaded from its folder before the manager asks for it by name, so the
// manager's load finds it already in the process; its log is off.
#include <KivMFC.h>

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
};

// Stands for a call of the manager that does nothing but take and give its strings.
__attribute__((noinline)) CStringW PassByValue(CString defaultText, CString key, CString section,
                                               const CStringW& result)
{
    asm volatile("" : : "r"(defaultText.GetString()), "r"(key.GetString()), "r"(section.GetString()));
    return result;
}

std::vector<Key> MakeKeys(int sections, int keys, int firstKey)
{
    std::vector<Key> all;
    for (int s = 0; s < sections; ++s)
        for (int k = 0; k < keys; ++k)
        {
            Key key;
            key.section.Format("%d", 2001 + s);
            key.key.Format("%d", firstKey + k);
            key.defaultText.Format("Text %d of dialog %d", firstKey + k, 2001 + s);
            key.wide = L"\x00DC"
                       L"bersetzung " +
                       CStringW(key.defaultText);
            key.stdKey = key.key.GetString();
            key.stdSection = key.section.GetString();
            all.push_back(key);
        }
    std::shuffle(all.begin(), all.end(), std::mt19937(7));
    return all;
}

typedef std::unordered_map<std::string, std::unordered_map<std::string, std::wstring>> BareMap;

// Medians in ns per key of several loops over the same keys, run in turns so that every
// loop sees the same load of the machine.
std::vector<double> NsPerKeyInTurns(const std::vector<std::function<void()>>& loops, size_t keys)
{
    std::vector<std::vector<double>> seconds(loops.size());
    for (int run = 0; run < kRuns; ++run)
        for (size_t i = 0; i < loops.size(); ++i)
        {
            Clock::time_point start = Clock::now();
            loops[i]();
            seconds[i].push_back(std::chrono::duration<double>(Clock::now() - start).count());
        }
    std::vector<double> ns;
    for (const auto& s : seconds)
        ns.push_back(Median(s) * 1e9 / keys);
    return ns;
}

// The manager's lookup, the bare map's, and the by-value passing alone: three narrow
// strings in and a wide one out, as every call of the manager pays before it looks.
void CompareLookups(const char* what, LocalizationManager* m, const BareMap& map, const std::vector<Key>& keys)
{
    size_t sink = 0;
    std::vector<double> ns =
        NsPerKeyInTurns({[&] {
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
                         }},
                        keys.size());
    printf("GetWideTranslation %s: %6.1f ns/call; two-level unordered_map %6.1f ns; ratio %.2f\n", what, ns[0], ns[1],
           ns[0] / ns[1]);
    printf("  of which passing the strings by value: %5.1f ns; the rest against the map: ratio %.2f\n", ns[2],
           (ns[0] - ns[2]) / ns[1]);
    if (sink == 0)
        printf("\n");
}

void BenchLookups()
{
    std::vector<Key> hits = MakeKeys(100, 100, 1000);    // 10,000 translated texts
    std::vector<Key> misses = MakeKeys(100, 100, 5000);  // 10,000 texts without translation
    LocalizationManager* m = FreshManager();
    BareMap map;
    for (const Key& k : hits)
    {
        m->SetTranslation(k.defaultText, k.wide, k.key, k.section);
        map[k.stdSection][k.stdKey] = k.wide.GetString();
    }
    for (const Key& k : misses)
        m->GetWideTranslation(k.defaultText, k.key, k.section);  // recorded once, then asked again
    printf("lookups: 10,000 keys in 100 sections, in random order; a miss is a text asked for\n"
           "again that has no translation\n");
    CompareLookups("hit ", m, map, hits);
    CompareLookups("miss", m, map, misses);
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

void BenchStartUp(const std::string& control)
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
        ::FreeLibrary(store);
    }
}

void BenchDispose(const std::string& control)
{
    HMODULE store = LoadStore(control, 0);
    if (store == nullptr)
        return;
    std::vector<Key> texts = MakeKeys(100, 100, 1000);
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
void BenchRealStore(const std::string& ini)
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
    }
    std::vector<Key> texts = MakeKeys(100, 100, 1000);
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
// WM_UNICODE with the section, to each of the same controls.
void BenchTranslateDialog()
{
    LocalizationManager* manager = FreshManager();
    for (int count : {50, 500, 2000})
    {
        BenchDialog dialog(manager, count);
        CWnd* wnd = CWnd::FromHandle(dialog.hWnd);
        double walk = TimeMedian([] {}, [&] { manager->TranslateDialog(wnd, 2001); });
        double bare =
            TimeMedian([] {},
                       [&] {
                           for (size_t i = 0; i < dialog.controls.size(); ++i)
                           {
                               ::SendMessageW(dialog.controls[i], WM_SETTEXT, 0, (LPARAM)dialog.texts[i].GetString());
                               ::SendMessageW(dialog.controls[i], WM_UNICODE, 0, (LPARAM) "2001");
                           }
                       });
        printf("TranslateDialog of %4d controls: %8.1f us (%6.2f us per control), bare messages %8.1f us: %.2fx\n",
               count, walk * 1e6, walk * 1e6 / count, bare * 1e6, walk / bare);
    }
}

}  // namespace

int main()
{
    AfxWinInit(::GetModuleHandleA(nullptr), nullptr, ::GetCommandLineA(), SW_SHOW);
    std::string ini = TempFile("ini");
    std::string control = TempFile("sto");
    ::SetEnvironmentVariableA("KIV_INI", ini.c_str());
    ::SetEnvironmentVariableA("KIV_RECORDING_STORE", control.c_str());
    ::SetEnvironmentVariableA("KIV_RECORDING_STORE_LOG", nullptr);
    printf("localization bench, medians of %d runs\n", kRuns);

    WriteText(ini, "[Environment]\r\nLanguageSetting=\r\n");  // lookups alone, no store
    BenchLookups();
    WriteText(ini, "[Environment]\r\nLanguageSetting=German\r\n");
    BenchStartUp(control);
    BenchDispose(control);
    BenchRealStore(ini);
    BenchTranslateDialog();

    ::DeleteFileA(ini.c_str());
    ::DeleteFileA(control.c_str());
    return 0;
}
