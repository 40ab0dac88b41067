// Acts on a modal window (a dialog's DoModal, a message box) from inside its own loop: a
// thread timer fires in the loop, finds the newest visible and enabled top-level window made
// since the driver started, runs the action on it once, and closes it if the action left it
// open past the time limit.
#pragma once

#include <afxwin.h>

#include <functional>
#include <vector>

namespace kivtest {

class ModalDriver
{
public:
    explicit ModalDriver(std::function<void(HWND)> action, UINT nTimeoutMs = 5000);
    ~ModalDriver();
    ModalDriver(const ModalDriver&) = delete;
    ModalDriver& operator=(const ModalDriver&) = delete;

    bool Acted() const { return m_bActed; }
    bool TimedOut() const { return m_bTimedOut; }
    HWND Window() const { return m_hWndActed; }

    // Helpers for actions: a click on a control of a dialog, the text of a control.
    static void Click(HWND hDlg, int nID);
    static CString ItemText(HWND hDlg, int nID);
    static CString Text(HWND hWnd);

private:
    static LRESULT CALLBACK CbtHook(int code, WPARAM wParam, LPARAM lParam);
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR idEvent, DWORD);
    void Tick();
    void TickOnce();

    std::function<void(HWND)> m_action;
    UINT m_nTimeoutMs;
    DWORD m_dwStart;
    HHOOK m_hHook = nullptr;
    UINT_PTR m_nTimer = 0;
    std::vector<HWND> m_created;
    HWND m_hWndActed = nullptr;
    bool m_bActed = false;
    bool m_bActing = false;
    bool m_bTimedOut = false;
};

}  // namespace kivtest
