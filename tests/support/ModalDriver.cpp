#include "ModalDriver.h"

#include <algorithm>

namespace kivtest {

namespace {

// One tick at a time, armed again after each, so the loop being driven still finds its queue
// empty and goes idle (a modal dialog shows itself then).
const UINT kTickMs = 50;

std::vector<ModalDriver*>& Drivers()
{
    static std::vector<ModalDriver*> drivers;
    return drivers;
}

}  // namespace

ModalDriver::ModalDriver(std::function<void(HWND)> action, UINT nTimeoutMs)
    : m_action(std::move(action)), m_nTimeoutMs(nTimeoutMs), m_dwStart(::GetTickCount())
{
    Drivers().push_back(this);
    m_hHook = ::SetWindowsHookExA(WH_CBT, CbtHook, nullptr, ::GetCurrentThreadId());
    m_nTimer = ::SetTimer(nullptr, 0, kTickMs, OnTimer);
}

ModalDriver::~ModalDriver()
{
    ::KillTimer(nullptr, m_nTimer);
    ::UnhookWindowsHookEx(m_hHook);
    std::erase(Drivers(), this);
}

LRESULT CALLBACK ModalDriver::CbtHook(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == HCBT_CREATEWND)
    {
        HWND hWnd = (HWND)wParam;
        CBT_CREATEWNDA* pCreate = (CBT_CREATEWNDA*)lParam;
        if (!(pCreate->lpcs->style & WS_CHILD))
            for (ModalDriver* pDriver : Drivers())
                pDriver->m_created.push_back(hWnd);
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

void CALLBACK ModalDriver::OnTimer(HWND, UINT, UINT_PTR idEvent, DWORD)
{
    std::vector<ModalDriver*> drivers = Drivers();
    for (ModalDriver* pDriver : drivers)
        if (pDriver->m_nTimer == idEvent && std::count(Drivers().begin(), Drivers().end(), pDriver))
            pDriver->Tick();
}

void ModalDriver::Tick()
{
    if (m_bActing)
        return;
    ::KillTimer(nullptr, m_nTimer);
    TickOnce();
    m_nTimer = ::SetTimer(nullptr, 0, kTickMs, OnTimer);
}

void ModalDriver::TickOnce()
{
    if (!m_bActed)
    {
        for (auto it = m_created.rbegin(); it != m_created.rend(); ++it)
        {
            HWND hWnd = *it;
            if (!::IsWindow(hWnd) || !::IsWindowVisible(hWnd) || !::IsWindowEnabled(hWnd))
                continue;
            m_bActing = true;
            m_hWndActed = hWnd;
            m_action(hWnd);
            m_bActed = true;
            m_bActing = false;
            return;
        }
    }
    // A window left open too long is cancelled, so a failing test does not hang.
    if (::GetTickCount() - m_dwStart > m_nTimeoutMs)
    {
        HWND hWnd = m_hWndActed;
        if (hWnd == nullptr)
            for (HWND hCreated : m_created)
                if (::IsWindow(hCreated) && ::IsWindowEnabled(hCreated))
                    hWnd = hCreated;
        if (hWnd != nullptr && ::IsWindow(hWnd))
        {
            m_bTimedOut = true;
            ::PostMessageA(hWnd, WM_COMMAND, IDCANCEL, 0);
            ::PostMessageA(hWnd, WM_CLOSE, 0, 0);
        }
    }
}

void ModalDriver::Click(HWND hDlg, int nID)
{
    ::SendMessageA(::GetDlgItem(hDlg, nID), BM_CLICK, 0, 0);
}

CString ModalDriver::Text(HWND hWnd)
{
    char szText[1024] = {};
    ::GetWindowTextA(hWnd, szText, sizeof(szText));
    return szText;
}

CString ModalDriver::ItemText(HWND hDlg, int nID)
{
    return Text(::GetDlgItem(hDlg, nID));
}

}  // namespace kivtest
