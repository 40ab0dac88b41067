// The soak: every dialog class and control of the library made, shown and destroyed again and
// again in translation mode, with the process's GDI and USER objects and private bytes sampled
// every 500 cycles.
//   dialogs_soak <output folder> [cycles per kind, default 10000] [kind[,kind...]]
// Writes <output folder>/soak.csv (kind, cycle, gdi, user, private KiB, and its growth since the
// first cycle) and prints one line per kind: the counts after its first cycle and at the end. Exit code 0 when every
// kind ends with the GDI and USER counts it had after its first cycle (two later objects allowed, see below) and, over
// 1,000 cycles or more, keeps no memory apart from what its class keeps on purpose; 1 when one does not, 2 for bad
// arguments.
#include <KivMFC.h>
#include <afxcmn.h>
#include <afxdlgs.h>
#include <afxext.h>

#include "DialogCycles.h"
#include "GuiObjects.h"
#include "dialogs_res.h"

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

namespace {

constexpr int kSampleEvery = 500;
// The system's controls may make a cache of their own on a later cycle; a loss per cycle
// would show as hundreds.
constexpr int kLaterCaches = 2;

void Pump()
{
    MSG msg;
    while (::PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE))
    {
        ::TranslateMessage(&msg);
        ::DispatchMessageA(&msg);
    }
    // What a host's message loop does when it falls idle: the temporary objects of the
    // runtime's handle maps go.
    AfxLockTempMaps();
    AfxUnlockTempMaps(TRUE);
}

BOOL CreateHost(CWnd& host)
{
    return host.CreateEx(0, AfxRegisterWndClass(0, ::LoadCursorA(nullptr, IDC_ARROW), (HBRUSH)(COLOR_WINDOW + 1)),
                         "soak", WS_OVERLAPPED | WS_CAPTION | WS_VISIBLE | WS_CLIPCHILDREN, 10, 10, 420, 320, nullptr,
                         nullptr);
}

struct Kind
{
    const char* name;
    std::function<void()> cycle;
    bool keepsMemory = false;  // what the class keeps on purpose for the rest of the process
};

// Over a long run, more than this per cycle is memory lost.
constexpr double kLostBytesPerCycle = 4096;
constexpr int kLongRun = 1000;

std::vector<Kind> Kinds()
{
    return {
        {"mfcCDialog", [] { kivtest::DialogCycle<mfcCDialog>(IDD_PLAIN); }},
        {"IsTranslationMode", [] { LocalizationManager::Get()->IsTranslationMode(); }},
        {"TranslationMiss", [] { LocalizationManager::Get()->GetWideTranslation("Missing text", 4711, 999); },
         true},  // each miss caches a new entry over the old one, which is not released
        {"TranslationHit", [] { LocalizationManager::Get()->GetWideTranslation("Open", 1003, 130); }},
        {"CDialog",  // the runtime's own, for comparison
         [] { kivtest::DialogCycle<CDialog>(IDD_PLAIN); }},
        {"mfcCDialog-combo-boxes", [] { kivtest::DialogCycle<mfcCDialog>(IDD_SCHEME); }},
        {"mfcDialog", [] { kivtest::DialogCycle<mfcDialog>(IDD_PLAIN); }},
        {"mfcCPropertyPage", [] { kivtest::SheetCycle<mfcCPropertyPage>(IDD_PAGE); }},
        {"mfcCDialogBar", [] { kivtest::BarCycle<mfcCDialogBar>(IDD_BAR); }},
        {"mfcCListCtrl",
         [] {
             CWnd host;
             CreateHost(host);
             mfcCListCtrl list;
             list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(0, 0, 380, 260), &host, 100);
             list.InsertColumn(0, "Name", LVCFMT_LEFT, 120);
             list.InsertColumn(1, "Size", LVCFMT_LEFT, 120);
             for (int i = 0; i < 8; ++i)
             {
                 list.InsertItem(i, "picture.png");
                 list.SetItemText(i, 1, "1024 x 768");
             }
             host.UpdateWindow();
             host.DestroyWindow();
         }},
        {"CColorButton",
         [] {
             CWnd host;
             CreateHost(host);
             CColorButton button;
             button.Create("Open", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, CRect(10, 10, 110, 40), &host, 100);
             host.UpdateWindow();
             host.DestroyWindow();
         }},
        {"CUnicodeButton",
         [] {
             LocalizationManager::Get()->SetTranslation("Open", CStringW(L"\x0386\x03BD\x03BF\x03B9\x03B3\x03BC\x03B1"),
                                                        "100", "SOAK");
             CWnd host;
             CreateHost(host);
             CUnicodeButton button;
             button.Create("Open", WS_CHILD | WS_VISIBLE | BS_AUTOCHECKBOX, CRect(10, 10, 160, 40), &host, 100);
             button.SendMessage(WM_UNICODE, 0, (LPARAM) "SOAK");
             host.UpdateWindow();
             host.DestroyWindow();
         }},
        {"CUnicodeMenu",
         [] {
             CWnd host;
             CreateHost(host);
             CUnicodeMenu menu;
             menu.CreateMenu();
             CMenu popup;
             popup.CreatePopupMenu();
             popup.AppendMenuA(MF_STRING, 101, "&Open");
             popup.AppendMenuA(MF_SEPARATOR);
             popup.AppendMenuA(MF_STRING, 102, "E&xit");
             menu.AppendMenuA(MF_POPUP, (UINT_PTR)popup.Detach(), "&File");
             menu.TranslateMenu(&menu, "SOAK", 1, host.m_hWnd);
             host.SetMenu(&menu);
             host.DrawMenuBar();
             host.UpdateWindow();
             host.SetMenu(nullptr);
             host.DestroyWindow();
         },
         true},  // the item records and the sub-menu objects stay for the process's life
        {"CUnicodeTabCtrl",
         [] {
             CWnd host;
             CreateHost(host);
             CUnicodeTabCtrl tabs;
             tabs.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 380, 260), &host, 100);
             for (int i = 0; i < 3; ++i)
                 tabs.InsertItem(i, "Tab");
             auto* texts = new CStringW[3]{L"\x0395\x03BD\x03B1", L"\x0394\x03CD\x03BF", L"\x03A4\x03C1\x03AF\x03B1"};
             tabs.SetUnicode(texts, 3);
             host.UpdateWindow();
             host.DestroyWindow();
         },
         true},  // the control never releases the captions it is handed
        {"CMfcColoredTabCtrl",
         [] {
             CWnd host;
             CreateHost(host);
             HWND hTabs = ::CreateWindowExA(0, WC_TABCONTROLA, "", WS_CHILD | WS_VISIBLE, 10, 10, 370, 250, host.m_hWnd,
                                            (HMENU)100, nullptr, nullptr);
             CMfcColoredTabCtrl tabs;
             tabs.SubclassWindow(hTabs);
             for (int i = 0; i < 3; ++i)
                 tabs.InsertItem(i, "Tab");
             host.UpdateWindow();
             host.DestroyWindow();
         }},
        {"mfcCLineTrackers",
         [] {
             CWnd host;
             CreateHost(host);
             mfcCLineTrackers lines;
             for (int i = 0; i < 4; ++i)
                 lines.Add(new mfcCLineTracker(
                     40 + 30 * i, mfcCLineTracker::styleSolid | (i % 2 ? mfcCLineTracker::styleVertical : 0), 2,
                     RGB(200, 0, 0)));
             {
                 CClientDC dc(&host);
                 lines.Draw(&dc);
             }
             lines.HitTest(CPoint(50, 70), &host);
             lines.RemoveAll();
             host.DestroyWindow();
         }},
    };
}

void Translate()
{
    LocalizationManager* manager = LocalizationManager::Get();
    manager->SetTranslation("Label", CStringW(L"\x0395\x03C4\x03B9\x03BA\x03AD\x03C4\x03B1"), "1001", "130");
    manager->SetTranslation("Open", CStringW(L"\x0386\x03BD\x03BF\x03B9\x03B3\x03BC\x03B1"), "1003", "130");
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc < 2)
        return 2;
    const std::string folder = argv[1];
    const int cycles = argc > 2 ? std::atoi(argv[2]) : 10000;
    const std::string only = argc > 3 ? argv[3] : "";
    if (cycles <= 0)
        return 2;
    AfxWinInit(::GetModuleHandleA(nullptr), nullptr, ::GetCommandLineA(), SW_SHOW);
    ::CreateDirectoryA(folder.c_str(), nullptr);

    // Translation mode: a setting naming a language, and a store folder of the soak's own.
    const std::string ini = folder + "\\kiv.ini";
    const std::string store = folder + "\\lang";
    ::CreateDirectoryA(store.c_str(), nullptr);
    if (FILE* file = std::fopen(ini.c_str(), "wb"))
    {
        std::fprintf(file, "[Environment]\r\nLanguageSetting=Greek\r\n[Store]\r\nDirectory=%s\r\n", store.c_str());
        std::fclose(file);
    }
    ::SetEnvironmentVariableA("KIV_INI", ini.c_str());
    if (LocalizationManager::Get()->IsTranslationMode() != 1)
    {
        std::printf("soak: translation mode did not start\n");
        return 1;
    }
    Translate();

    FILE* csv = std::fopen((folder + "\\soak.csv").c_str(), "wb");
    if (csv == nullptr)
        return 2;
    std::fprintf(csv, "kind,cycle,gdi,user,private_kib,growth_kib\n");
    int status = 0;
    for (const Kind& kind : Kinds())
    {
        if (!only.empty() && ("," + only + ",").find("," + std::string(kind.name) + ",") == std::string::npos)
            continue;
        kind.cycle();  // what is made once per process
        Pump();
        const kivtest::GuiObjects first = kivtest::CountGuiObjects();
        const kivtest::GdiTypes firstTypes = kivtest::CountGdiTypes();
        const SIZE_T firstBytes = kivtest::PrivateBytes();
        kivtest::GuiObjects last = first;
        SIZE_T lastBytes = firstBytes;
        auto sample = [&](int cycle) {
            std::fprintf(csv, "%s,%d,%d,%d,%llu,%lld\n", kind.name, cycle, last.gdi, last.user,
                         (unsigned long long)(lastBytes / 1024), ((long long)lastBytes - (long long)firstBytes) / 1024);
            std::fflush(csv);
        };
        sample(0);
        for (int cycle = 1; cycle <= cycles; ++cycle)
        {
            kind.cycle();
            if (cycle % 50 == 0)
                Pump();
            if (cycle % kSampleEvery == 0 || cycle == cycles)
            {
                Pump();
                last = kivtest::CountGuiObjects();
                lastBytes = kivtest::PrivateBytes();
                sample(cycle);
            }
        }
        const double bytesPerCycle = ((double)lastBytes - (double)firstBytes) / cycles;
        const bool memoryFlat = kind.keepsMemory || cycles < kLongRun || bytesPerCycle <= kLostBytesPerCycle;
        const bool flat = last.gdi <= first.gdi + kLaterCaches && last.user <= first.user && memoryFlat;
        if (!flat)
            status = 1;
        std::printf("%-24s %6d cycles  GDI %4d -> %4d  USER %3d -> %3d  private %7.1f -> %7.1f MiB (%+.0f bytes per "
                    "cycle)  %s\n",
                    kind.name, cycles, first.gdi, last.gdi, first.user, last.user, firstBytes / 1048576.0,
                    lastBytes / 1048576.0, bytesPerCycle,
                    !flat              ? "GROWS"
                    : kind.keepsMemory ? "flat (keeps memory by design)"
                                       : "flat");
        if (last.gdi != first.gdi)
        {
            const kivtest::GdiTypes lastTypes = kivtest::CountGdiTypes();
            std::printf("%-24s GDI objects by type: %s; new ones: %s\n", kind.name,
                        kivtest::GdiTypesGrowth(firstTypes, lastTypes).c_str(),
                        kivtest::NewGdiObjects(firstTypes, lastTypes, 6).c_str());
        }
        std::fflush(stdout);
    }
    std::fclose(csv);
    LocalizationManager::Dispose();
    return status;
}
