#include "TrackerTest.h"

namespace kivtest {

void RecordingTracker::Adjust(int* pPosition)
{
    steps.push_back("adjust " + std::to_string(*pPosition));
    cursorWhileDragged = ::GetCursor();
    if (keepAt >= 0)
        *pPosition = keepAt;
}

void RecordingTracker::DrawTracker(int position, CWnd* pOther, CDC* pDC, CWnd* pWnd)
{
    steps.push_back("draw " + std::to_string(position) + (m_bPreviousPass ? " previous" : "") +
                    (m_bEnding ? " ending" : ""));
    mfcCLineTracker::DrawTracker(position, pOther, pDC, pWnd);
}

void RecordingTracker::OnChanged(int position)
{
    steps.push_back("changed " + std::to_string(position) + " now " + std::to_string(GetPosition()));
    if (onChanged)
        onChanged();
}

int TrackerWindowTest::s_ticks = 0;
bool TrackerWindowTest::s_timedOut = false;

void TrackerWindowTest::SetUp()
{
    ASSERT_TRUE(CreateTopLevel(m_wnd, 300, 240));
    PumpPending();
    PointerAway();
}

void TrackerWindowTest::TearDown()
{
    if (::GetCapture() != nullptr)
        ::ReleaseCapture();
    if (m_wnd.m_hWnd != nullptr)
        m_wnd.DestroyWindow();
    PumpPending();
}

void TrackerWindowTest::Post(UINT message, WPARAM wParam, int x, int y)
{
    m_wnd.PostMessage(message, wParam, MAKELPARAM(x, y));
}

void CALLBACK TrackerWindowTest::Watchdog(HWND, UINT, UINT_PTR, DWORD)
{
    if (++s_ticks == 100)
    {
        s_timedOut = true;
        ::ReleaseCapture();
    }
}

int TrackerWindowTest::Track(mfcCLineTracker& tracker, CPoint start, CWnd* pOther)
{
    s_ticks = 0;
    s_timedOut = false;
    UINT_PTR timer = ::SetTimer(nullptr, 0, 20, &Watchdog);
    int changed = tracker.Track(&m_wnd, start, pOther);
    ::KillTimer(nullptr, timer);
    EXPECT_FALSE(s_timedOut) << "the drag did not end by itself";
    return changed;
}

void TrackerWindowTest::DrawNow(const mfcCLineTracker& tracker)
{
    m_wnd.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    CClientDC dc(&m_wnd);
    tracker.Draw(&dc);
}

void TrackerWindowTest::DrawNow(const mfcCLineTrackers& list)
{
    m_wnd.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    CClientDC dc(&m_wnd);
    list.Draw(&dc);
}

PixelProbe TrackerWindowTest::ReadNow(CWnd& wnd)
{
    CRect client;
    wnd.GetClientRect(&client);
    PixelProbe probe(client.Width(), client.Height());
    HDC hDC = ::GetDC(wnd.m_hWnd);
    ::BitBlt(probe.DC(), 0, 0, client.Width(), client.Height(), hDC, 0, 0, SRCCOPY);
    ::ReleaseDC(wnd.m_hWnd, hDC);
    return probe;
}

int TrackerWindowTest::RowCount(const PixelProbe& probe, int y, COLORREF colour)
{
    return probe.Count(colour, CRect(0, y, probe.Width(), y + 1));
}

int TrackerWindowTest::ColumnCount(const PixelProbe& probe, int x, COLORREF colour)
{
    return probe.Count(colour, CRect(x, 0, x + 1, probe.Height()));
}

std::vector<int> TrackerWindowTest::UpdatedRows(CWnd& wnd, int from, int to)
{
    HRGN region = ::CreateRectRgn(0, 0, 0, 0);
    ::GetUpdateRgn(wnd.m_hWnd, region, FALSE);
    std::vector<int> rows;
    for (int y = from; y <= to; ++y)
        if (::PtInRegion(region, 5, y))
            rows.push_back(y);
    ::DeleteObject(region);
    return rows;
}

void TrackerWindowTest::PointerAt(CPoint client)
{
    m_wnd.ClientToScreen(&client);
    ::SetCursorPos(client.x, client.y);
}

void TrackerWindowTest::PointerAway()
{
    ::SetCursorPos(1200, 1000);
}

HCURSOR TrackerWindowTest::LibraryCursor(int id)
{
    return ::LoadCursorW(::GetModuleHandleA("KivMFC64.dll"), MAKEINTRESOURCEW(id));
}

}  // namespace kivtest
