// Timings of the owner-drawn controls, printed as medians: a window of 50 buttons repainted
// as CUnicodeButtons (narrow and wide), as CColorButtons and as the system's own themed
// buttons; CUnicodeMenu::TranslateMenu of a 200-item menu; tab controls of 20 tabs.
#include <KivMFC.h>
#include <gdiplus.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
constexpr int kRuns = 31;
constexpr int kButtons = 50;

double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double TimeMedian(const std::function<void()>& body)
{
    std::vector<double> seconds;
    for (int run = 0; run < kRuns; ++run)
    {
        Clock::time_point start = Clock::now();
        body();
        seconds.push_back(std::chrono::duration<double>(Clock::now() - start).count());
    }
    return Median(seconds);
}

// A visible window; its whole client area repainted at once, children included.
struct BenchWindow
{
    BenchWindow()
    {
        wnd.CreateEx(0, AfxRegisterWndClass(0, nullptr, (HBRUSH)(COLOR_BTNFACE + 1)), "bench",
                     WS_OVERLAPPED | WS_CAPTION | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0, 900, 600, nullptr, nullptr);
    }
    ~BenchWindow() { wnd.DestroyWindow(); }
    double Repaint()
    {
        return TimeMedian([&] {
            ::RedrawWindow(wnd.m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        });
    }
    HWND AddButton(int i, DWORD style = BS_PUSHBUTTON)
    {
        return ::CreateWindowExA(0, "Button", "Button text", WS_CHILD | WS_VISIBLE | style, 10 + (i % 5) * 170,
                                 10 + (i / 5) * 50, 160, 40, wnd.m_hWnd, (HMENU)(INT_PTR)(1000 + i), nullptr, nullptr);
    }
    CWnd wnd;
};

template <typename Button> double RepaintButtons(bool wide)
{
    BenchWindow window;
    std::vector<std::unique_ptr<Button>> buttons;
    for (int i = 0; i < kButtons; ++i)
    {
        HWND hButton = window.AddButton(i);
        ::SendMessageA(hButton, WM_SETFONT, (WPARAM)::GetStockObject(DEFAULT_GUI_FONT), FALSE);
        buttons.push_back(std::make_unique<Button>());
        buttons.back()->SubclassWindow(hButton);
        if (wide)
            buttons.back()->SendMessage(WM_UNICODE, 0, (LPARAM) "bench");
    }
    return window.Repaint();
}

double RepaintSystemButtons()
{
    BenchWindow window;
    for (int i = 0; i < kButtons; ++i)
        ::SendMessageA(window.AddButton(i), WM_SETFONT, (WPARAM)::GetStockObject(DEFAULT_GUI_FONT), FALSE);
    return window.Repaint();
}

void BenchButtons()
{
    double system = RepaintSystemButtons();
    double color = RepaintButtons<CColorButton>(false);
    double narrow = RepaintButtons<CUnicodeButton>(false);
    double wide = RepaintButtons<CUnicodeButton>(true);
    printf("%d system buttons repainted:   %8.1f us\n", kButtons, system * 1e6);
    printf("%d CColorButtons repainted:    %8.1f us: %.2fx the system's\n", kButtons, color * 1e6, color / system);
    printf("%d CUnicodeButtons, narrow:    %8.1f us: %.2fx\n", kButtons, narrow * 1e6, narrow / system);
    printf("%d CUnicodeButtons, wide:      %8.1f us: %.2fx\n", kButtons, wide * 1e6, wide / system);
}

void BenchMenu()
{
    BenchWindow window;
    double seconds = TimeMedian([&] {
        CUnicodeMenu menu;
        menu.CreatePopupMenu();
        for (int i = 0; i < 200; ++i)
            ::AppendMenuA(menu.m_hMenu, MF_STRING, 100 + i, "Menu item text");
        menu.TranslateMenu(&menu, "MENU", 0, window.wnd.m_hWnd);
    });
    printf("TranslateMenu of 200 items:    %8.1f us (%.1f us per item)\n", seconds * 1e6, seconds * 1e6 / 200);
}

template <typename Tabs> double RepaintTabs(const std::function<void(Tabs&)>& prepare)
{
    BenchWindow window;
    Tabs tabs;
    tabs.Create(WS_CHILD | WS_VISIBLE | TCS_MULTILINE, CRect(10, 10, 880, 500), &window.wnd, 100);
    tabs.SendMessage(WM_SETFONT, (WPARAM)::GetStockObject(DEFAULT_GUI_FONT), FALSE);
    for (int i = 0; i < 20; ++i)
        tabs.InsertItem(i, "Tab page");
    prepare(tabs);
    return window.Repaint();
}

void BenchTabs()
{
    double plain = RepaintTabs<CTabCtrl>([](CTabCtrl&) {});
    std::vector<CStringW> texts(20, CStringW(L"Tab page"));
    double unicode = RepaintTabs<CUnicodeTabCtrl>([&](CUnicodeTabCtrl& t) { t.SetUnicode(texts.data(), 20); });
    double coloured =
        RepaintTabs<CMfcColoredTabCtrl>([](CMfcColoredTabCtrl& t) { t.ModifyStyle(0, TCS_OWNERDRAWFIXED); });
    printf("20 system tabs repainted:      %8.1f us\n", plain * 1e6);
    printf("20 CUnicodeTabCtrl tabs:       %8.1f us: %.2fx\n", unicode * 1e6, unicode / plain);
    printf("20 CMfcColoredTabCtrl tabs:    %8.1f us: %.2fx\n", coloured * 1e6, coloured / plain);
}

}  // namespace

int main()
{
    AfxWinInit(::GetModuleHandleA(nullptr), nullptr, ::GetCommandLineA(), SW_SHOW);
    ULONG_PTR token = 0;
    Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&token, &input, nullptr);
    printf("controls bench, medians of %d runs\n", kRuns);
    BenchButtons();
    BenchMenu();
    BenchTabs();
    Gdiplus::GdiplusShutdown(token);
    return 0;
}
