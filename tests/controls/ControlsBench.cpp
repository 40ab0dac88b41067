// Timings of the owner-drawn controls, printed as medians of turns: windows of 25, 50 and 200
// buttons repainted as CUnicodeButtons (narrow and wide), as CColorButtons and as the system's
// own themed buttons; CUnicodeMenu::TranslateMenu of 50 to 800 items; tab controls of 5 to 80 tabs.
#include <KivMFC.h>
#include <gdiplus.h>

#include "BenchReport.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

namespace {

constexpr int kRuns = 31;

// A visible window; its whole client area repainted at once, children included.
struct BenchWindow
{
    BenchWindow()
    {
        wnd.CreateEx(0, AfxRegisterWndClass(0, nullptr, (HBRUSH)(COLOR_BTNFACE + 1)), "bench",
                     WS_OVERLAPPED | WS_CAPTION | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0, 1000, 900, nullptr, nullptr);
    }
    ~BenchWindow() { wnd.DestroyWindow(); }
    void Repaint()
    {
        ::RedrawWindow(wnd.m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    }
    // Eight buttons a row, 120 by 30 pixels each.
    HWND AddButton(int i, DWORD style = BS_PUSHBUTTON)
    {
        return ::CreateWindowExA(0, "Button", "Button text", WS_CHILD | WS_VISIBLE | style, 5 + (i % 8) * 122,
                                 5 + (i / 8) * 34, 120, 30, wnd.m_hWnd, (HMENU)(INT_PTR)(1000 + i), nullptr, nullptr);
    }
    CWnd wnd;
};

// A window of count buttons of the system's, or subclassed by Button (wide when asked).
template <typename Button> struct ButtonWindow
{
    ButtonWindow(int count, bool subclass, bool wide)
    {
        for (int i = 0; i < count; ++i)
        {
            HWND hButton = window.AddButton(i);
            ::SendMessageA(hButton, WM_SETFONT, (WPARAM)::GetStockObject(DEFAULT_GUI_FONT), FALSE);
            if (!subclass)
                continue;
            buttons.push_back(std::make_unique<Button>());
            buttons.back()->SubclassWindow(hButton);
            if (wide)
                buttons.back()->SendMessage(WM_UNICODE, 0, (LPARAM) "bench");
        }
    }
    BenchWindow window;
    std::vector<std::unique_ptr<Button>> buttons;
};

// Each kind of button window repainted in turns with the system's own buttons.
void BenchButtons(bench::Csv& csv)
{
    for (int count : {25, 50, 200})
    {
        ButtonWindow<CButton> system(count, false, false);
        ButtonWindow<CColorButton> color(count, true, false);
        ButtonWindow<CUnicodeButton> narrow(count, true, false);
        ButtonWindow<CUnicodeButton> wide(count, true, true);
        std::vector<double> s =
            bench::SecondsInTurns({[&] { system.window.Repaint(); }, [&] { color.window.Repaint(); },
                                   [&] { narrow.window.Repaint(); }, [&] { wide.window.Repaint(); }},
                                  kRuns);
        printf("%3d system buttons repainted:   %8.1f us\n", count, s[0] * 1e6);
        printf("%3d CColorButtons repainted:    %8.1f us: %.2fx the system's (goal 2)\n", count, s[1] * 1e6,
               s[1] / s[0]);
        printf("%3d CUnicodeButtons, narrow:    %8.1f us: %.2fx (goal 2)\n", count, s[2] * 1e6, s[2] / s[0]);
        printf("%3d CUnicodeButtons, wide:      %8.1f us: %.2fx (goal 2)\n", count, s[3] * 1e6, s[3] / s[0]);
        csv.Add("paint-CColorButton", count, s[1] * 1e6, s[0] * 1e6);
        csv.Add("paint-CUnicodeButton-narrow", count, s[2] * 1e6, s[0] * 1e6);
        csv.Add("paint-CUnicodeButton-wide", count, s[3] * 1e6, s[0] * 1e6);
    }
}

// TranslateMenu of a new menu of count items, against making the same menu alone.
void BenchMenu(bench::Csv& csv)
{
    BenchWindow window;
    for (int count : {50, 200, 800})
    {
        auto make = [&](bool translate) {
            CUnicodeMenu menu;
            menu.CreatePopupMenu();
            for (int i = 0; i < count; ++i)
                ::AppendMenuA(menu.m_hMenu, MF_STRING, 100 + i, "Menu item text");
            if (translate)
                menu.TranslateMenu(&menu, "MENU", 0, window.wnd.m_hWnd);
        };
        std::vector<double> s = bench::SecondsInTurns({[&] { make(true); }, [&] { make(false); }}, kRuns);
        printf("TranslateMenu of %3d items:    %8.1f us (%.1f us per item; making the menu alone %.1f us)\n", count,
               s[0] * 1e6, s[0] * 1e6 / count, s[1] * 1e6);
        csv.Add("TranslateMenu", count, s[0] * 1e6, s[1] * 1e6);
    }
}

template <typename Tabs> struct TabWindow
{
    TabWindow(int count, const std::function<void(Tabs&)>& prepare)
    {
        tabs.Create(WS_CHILD | WS_VISIBLE | TCS_MULTILINE, CRect(10, 10, 980, 860), &window.wnd, 100);
        tabs.SendMessage(WM_SETFONT, (WPARAM)::GetStockObject(DEFAULT_GUI_FONT), FALSE);
        for (int i = 0; i < count; ++i)
            tabs.InsertItem(i, "Tab page");
        prepare(tabs);
    }
    BenchWindow window;
    Tabs tabs;
};

void BenchTabs(bench::Csv& csv)
{
    for (int count : {5, 20, 80})
    {
        std::vector<CStringW> texts(count, CStringW(L"Tab page"));
        TabWindow<CTabCtrl> plain(count, [](CTabCtrl&) {});
        TabWindow<CUnicodeTabCtrl> unicode(count, [&](CUnicodeTabCtrl& t) { t.SetUnicode(texts.data(), count); });
        TabWindow<CMfcColoredTabCtrl> coloured(count,
                                               [](CMfcColoredTabCtrl& t) { t.ModifyStyle(0, TCS_OWNERDRAWFIXED); });
        std::vector<double> s = bench::SecondsInTurns(
            {[&] { plain.window.Repaint(); }, [&] { unicode.window.Repaint(); }, [&] { coloured.window.Repaint(); }},
            kRuns);
        printf("%2d system tabs repainted:      %8.1f us\n", count, s[0] * 1e6);
        printf("%2d CUnicodeTabCtrl tabs:       %8.1f us: %.2fx\n", count, s[1] * 1e6, s[1] / s[0]);
        printf("%2d CMfcColoredTabCtrl tabs:    %8.1f us: %.2fx\n", count, s[2] * 1e6, s[2] / s[0]);
        csv.Add("paint-CUnicodeTabCtrl", count, s[1] * 1e6, s[0] * 1e6);
        csv.Add("paint-CMfcColoredTabCtrl", count, s[2] * 1e6, s[0] * 1e6);
    }
}

}  // namespace

// The first argument, when given, is the folder for controls.csv.
int main(int argc, char** argv)
{
    bench::Csv csv(argc, argv, "controls.csv");
    AfxWinInit(::GetModuleHandleA(nullptr), nullptr, ::GetCommandLineA(), SW_SHOW);
    ULONG_PTR token = 0;
    Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&token, &input, nullptr);
    printf("controls bench, medians of %d turns\n", kRuns);
    BenchButtons(csv);
    BenchMenu(csv);
    BenchTabs(csv);
    Gdiplus::GdiplusShutdown(token);
    return 0;
}
