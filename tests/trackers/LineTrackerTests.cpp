// mfcCLineTracker and mfcCLineTrackers: lines drawn into real windows, the hit band, the
// cursors of the library, and the modal drag driven by messages posted before it starts.
#include <KivMFC.h>
#include <gtest/gtest.h>

#include "PixelProbe.h"
#include "WindowingTest.h"

#include <functional>
#include <string>
#include <vector>

namespace {

using kivtest::PixelProbe;

constexpr COLORREF kRed = RGB(255, 0, 0);

// A tracker that records its hooks and its end.
class RecordingTracker : public mfcCLineTracker
{
public:
    RecordingTracker(int position, int style, bool* deleted = nullptr)
        : mfcCLineTracker(position, style, 1, kRed), m_pDeleted(deleted)
    {}
    ~RecordingTracker() override
    {
        if (m_pDeleted)
            *m_pDeleted = true;
    }
    std::vector<std::string> steps;
    int keepAt = -1;  // Adjust writes this position back when set
    std::function<void()> onChanged;

protected:
    void Adjust(int* pPosition) override
    {
        steps.push_back("adjust " + std::to_string(*pPosition));
        if (keepAt >= 0)
            *pPosition = keepAt;
    }
    void DrawTracker(int position, CWnd* pOther, CDC* pDC, CWnd* pWnd) override
    {
        steps.push_back("draw " + std::to_string(position) + (m_bPreviousPass ? " previous" : "") +
                        (m_bEnding ? " ending" : ""));
        mfcCLineTracker::DrawTracker(position, pOther, pDC, pWnd);
    }
    void OnChanged(int position) override
    {
        steps.push_back("changed " + std::to_string(position) + " now " + std::to_string(GetPosition()));
        if (onChanged)
            onChanged();
    }

private:
    bool* m_pDeleted;
};

class LineTracker : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(kivtest::CreateTopLevel(m_wnd, 300, 240));
        kivtest::PumpPending();
        ::SetCursorPos(1200, 1000);  // the real pointer far away
    }
    void TearDown() override
    {
        if (::GetCapture() != nullptr)
            ::ReleaseCapture();
        if (m_wnd.m_hWnd != nullptr)
            m_wnd.DestroyWindow();
    }
    // Posts the messages the drag loop will find, as the mouse or keyboard would.
    void Post(UINT message, WPARAM wParam, int x, int y) { m_wnd.PostMessage(message, wParam, MAKELPARAM(x, y)); }
    // The window's client area as it is on the screen now, without repainting it.
    PixelProbe ReadNow()
    {
        CRect client;
        m_wnd.GetClientRect(&client);
        PixelProbe probe(client.Width(), client.Height());
        HDC hDC = ::GetDC(m_wnd.m_hWnd);
        ::BitBlt(probe.DC(), 0, 0, client.Width(), client.Height(), hDC, 0, 0, SRCCOPY);
        ::ReleaseDC(m_wnd.m_hWnd, hDC);
        return probe;
    }
    void DrawNow(const mfcCLineTracker& tracker)
    {
        m_wnd.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        CClientDC dc(&m_wnd);
        tracker.Draw(&dc);
    }
    CWnd m_wnd;
};

// The list's tests that need a window.
class LineTrackersInAWindow : public LineTracker
{};

}  // namespace

TEST_F(LineTracker, StyleZeroIsHitButNeverDrawn)
{
    mfcCLineTracker tracker(50, 0, 1, kRed);
    DrawNow(tracker);
    PixelProbe probe = ReadNow();
    EXPECT_EQ(0, probe.Count(kRed, CRect(0, 0, probe.Width(), probe.Height())));
    EXPECT_TRUE(tracker.HitTest(CPoint(10, 50), &m_wnd));
}

TEST_F(LineTracker, SolidLineCrossesTheClientAreaInItsColour)
{
    mfcCLineTracker tracker(40, mfcCLineTracker::styleSolid, 1, kRed);
    DrawNow(tracker);
    PixelProbe probe = ReadNow();
    EXPECT_EQ(probe.Width(), probe.Count(kRed, CRect(0, 40, probe.Width(), 41)));
    EXPECT_EQ(0, probe.Count(kRed, CRect(0, 42, probe.Width(), probe.Height())));
}

TEST_F(LineTracker, DottedLineHasGaps)
{
    mfcCLineTracker tracker(40, mfcCLineTracker::styleSolid | mfcCLineTracker::styleDotted, 1, kRed);
    DrawNow(tracker);
    PixelProbe probe = ReadNow();
    int red = probe.Count(kRed, CRect(0, 40, probe.Width(), 41));
    EXPECT_GT(red, probe.Width() / 4);
    EXPECT_LT(red, probe.Width());
}

TEST_F(LineTracker, VerticalLineRunsTopToBottom)
{
    mfcCLineTracker tracker(70, mfcCLineTracker::styleSolid | mfcCLineTracker::styleVertical, 1, kRed);
    DrawNow(tracker);
    PixelProbe probe = ReadNow();
    EXPECT_EQ(probe.Height(), probe.Count(kRed, CRect(70, 0, 71, probe.Height())));
    EXPECT_TRUE(tracker.HitTest(CPoint(72, 5), &m_wnd));
    EXPECT_FALSE(tracker.HitTest(CPoint(73, 5), &m_wnd));
}

TEST_F(LineTracker, SetColorChangesTheColourOfTheNextDrawing)
{
    mfcCLineTracker tracker(40, mfcCLineTracker::styleSolid, 1, kRed);
    DrawNow(tracker);
    tracker.SetColor(RGB(0, 0, 255));
    DrawNow(tracker);
    PixelProbe probe = ReadNow();
    EXPECT_EQ(probe.Width(), probe.Count(RGB(0, 0, 255), CRect(0, 40, probe.Width(), 41)));
}

TEST_F(LineTracker, HitBandAt96DpiIsTwoPixelsEachSide)
{
    mfcCLineTracker tracker(100, mfcCLineTracker::styleSolid, 1, kRed);
    for (int y = 95; y <= 105; ++y)
        EXPECT_EQ(y >= 98 && y <= 102, tracker.HitTest(CPoint(5, y), &m_wnd) != 0) << y;
    EXPECT_TRUE(tracker.HitTest(CPoint(5, 102), nullptr));  // no window: scale 1
}

TEST_F(LineTracker, SetPositionMovesTheLineAndAnswersZero)
{
    mfcCLineTracker tracker;
    EXPECT_EQ(0, tracker.GetPosition());
    EXPECT_EQ(0u, tracker.GetStyle());
    EXPECT_EQ(0, tracker.SetPosition(33));
    EXPECT_EQ(33, tracker.GetPosition());
}

TEST_F(LineTracker, HoverCursorComesFromTheLibrary)
{
    mfcCLineTracker horizontal(60, mfcCLineTracker::styleSolid, 1, kRed);
    CPoint onLine(20, 60);
    m_wnd.ClientToScreen(&onLine);
    ::SetCursorPos(onLine.x, onLine.y);
    ::SetCursor(::LoadCursorA(nullptr, IDC_ARROW));
    EXPECT_EQ(1, horizontal.SetCursor(&m_wnd, HTCLIENT));
    HMODULE library = ::GetModuleHandleA("KivMFC64.dll");
    EXPECT_EQ(::LoadCursorW(library, MAKEINTRESOURCEW(2000)), ::GetCursor());
    EXPECT_EQ(0, horizontal.SetCursor(&m_wnd, HTCAPTION));
    ::SetCursorPos(1200, 1000);
    EXPECT_EQ(0, horizontal.SetCursor(&m_wnd, HTCLIENT));
}

TEST_F(LineTracker, TrackStartedOffTheLineAnswersZeroWithoutCapture)
{
    RecordingTracker tracker(100, mfcCLineTracker::styleSolid);
    EXPECT_EQ(0, tracker.Track(&m_wnd, CPoint(10, 150), nullptr));
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_TRUE(tracker.steps.empty());
}

TEST_F(LineTracker, TrackWhileAnotherWindowHoldsTheCaptureAnswersZero)
{
    CWnd other;
    ASSERT_TRUE(kivtest::CreateTopLevel(other, 100, 100));
    ::SetCapture(other.m_hWnd);
    RecordingTracker tracker(100, mfcCLineTracker::styleSolid);
    EXPECT_EQ(0, tracker.Track(&m_wnd, CPoint(10, 100), nullptr));
    EXPECT_EQ(other.m_hWnd, ::GetCapture());
    ::ReleaseCapture();
    other.DestroyWindow();
}

TEST_F(LineTracker, PressAndReleaseWithoutMovingChangesNothing)
{
    RecordingTracker tracker(100, mfcCLineTracker::styleSolid);
    Post(WM_LBUTTONUP, 0, 10, 100);
    EXPECT_EQ(0, tracker.Track(&m_wnd, CPoint(10, 100), nullptr));
    EXPECT_EQ(100, tracker.GetPosition());
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_EQ((std::vector<std::string>{"adjust 100", "changed 100 now 100"}), tracker.steps);
}

TEST_F(LineTracker, DragCallsTheHooksInTheirOrderAndMovesTheLine)
{
    RecordingTracker tracker(100, mfcCLineTracker::styleSolid);
    Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 120);
    Post(WM_LBUTTONUP, 0, 10, 120);
    EXPECT_EQ(1, tracker.Track(&m_wnd, CPoint(10, 100), nullptr));
    EXPECT_EQ(120, tracker.GetPosition());
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_EQ((std::vector<std::string>{"adjust 120", "changed 100 now 120", "draw 120", "adjust 120",
                                        "draw 120 previous ending", "changed 120 now 120"}),
              tracker.steps);
}

TEST_F(LineTracker, EscapeAfterMovingRestoresTheStart)
{
    RecordingTracker tracker(100, mfcCLineTracker::styleSolid);
    Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 130);
    Post(WM_KEYDOWN, VK_ESCAPE, 0, 0);
    EXPECT_EQ(0, tracker.Track(&m_wnd, CPoint(10, 100), nullptr));
    EXPECT_EQ(100, tracker.GetPosition());
    EXPECT_EQ("draw 130 previous ending", tracker.steps.back());
    EXPECT_EQ(nullptr, ::GetCapture());
}

TEST_F(LineTracker, RightButtonAfterMovingRestoresTheStart)
{
    RecordingTracker tracker(100, mfcCLineTracker::styleSolid);
    Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 90);
    Post(WM_RBUTTONDOWN, MK_LBUTTON | MK_RBUTTON, 10, 90);
    EXPECT_EQ(0, tracker.Track(&m_wnd, CPoint(10, 100), nullptr));
    EXPECT_EQ(100, tracker.GetPosition());
}

TEST_F(LineTracker, AdjustKeepingTheOldPositionMakesTheDragANoOp)
{
    RecordingTracker tracker(100, mfcCLineTracker::styleSolid);
    tracker.keepAt = 100;
    Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 140);
    Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 150);
    Post(WM_LBUTTONUP, 0, 10, 150);
    EXPECT_EQ(0, tracker.Track(&m_wnd, CPoint(10, 100), nullptr));
    EXPECT_EQ((std::vector<std::string>{"adjust 140", "adjust 150", "adjust 150", "changed 100 now 100"}),
              tracker.steps);
}

TEST_F(LineTracker, KeysDuringTheDragAreSwallowed)
{
    struct KeyCounter : CWnd
    {
        int keys = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            keys += message == WM_KEYDOWN ? 1 : 0;
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } counter;
    counter.SubclassWindow(m_wnd.Detach());
    RecordingTracker tracker(100, mfcCLineTracker::styleSolid);
    counter.PostMessage(WM_KEYDOWN, 'A', 0);
    counter.PostMessage(WM_LBUTTONUP, 0, MAKELPARAM(10, 100));
    tracker.Track(&counter, CPoint(10, 100), nullptr);
    EXPECT_EQ(0, counter.keys);
    m_wnd.Attach(counter.UnsubclassWindow());
}

TEST_F(LineTracker, WindowDestroyedDuringTheDragEndsItWithoutACrash)
{
    RecordingTracker tracker(100, mfcCLineTracker::styleSolid);
    UINT_PTR timer = ::SetTimer(nullptr, 0, 10, nullptr);
    HWND hWnd = m_wnd.m_hWnd;
    Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 110);
    ::PostMessageA(hWnd, WM_CLOSE, 0, 0);  // dispatched by the loop: the window goes
    int changed = tracker.Track(&m_wnd, CPoint(10, 100), nullptr);
    ::KillTimer(nullptr, timer);
    EXPECT_FALSE(::IsWindow(hWnd));
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_EQ(1, changed);  // the line stays where the last move took it
}

TEST(LineTrackers, RemoveOfAPointerTheListLacksGivesMinusOneAndDeletesNothing)
{
    mfcCLineTrackers list;
    bool deleted = false;
    RecordingTracker outside(10, 1, &deleted);
    list.Add(new mfcCLineTracker(20, 1, 1, kRed));
    EXPECT_EQ(-1, list.Remove(&outside));
    EXPECT_FALSE(deleted);
    EXPECT_EQ(1, list.GetCount());
}

TEST(LineTrackers, RemoveDeletesTheLineAndItsNode)
{
    mfcCLineTrackers list;
    bool deleted = false;
    auto* line = new RecordingTracker(10, 1, &deleted);
    list.Add(new mfcCLineTracker(20, 1, 1, kRed));
    list.Add(line);
    EXPECT_EQ(0, list.Remove(line));
    EXPECT_TRUE(deleted);
    EXPECT_EQ(1, list.GetCount());
}

TEST(LineTrackers, RemoveAllAndTheDestructorDeleteEveryLine)
{
    bool first = false, second = false;
    {
        mfcCLineTrackers list;
        list.Add(new RecordingTracker(10, 1, &first));
        list.Add(new RecordingTracker(20, 1, &second));
        list.RemoveAll();
        EXPECT_TRUE(first && second);
        EXPECT_EQ(0, list.GetCount());
        first = second = false;
        list.Add(new RecordingTracker(10, 1, &first));
    }
    EXPECT_TRUE(first);
}

TEST(LineTrackers, HitTestAnswersTheFirstLineHeadToTail)
{
    mfcCLineTrackers list;
    auto* a = new mfcCLineTracker(50, 1, 1, kRed);
    auto* b = new mfcCLineTracker(51, 1, 1, kRed);
    list.Add(a);
    list.Add(b);
    EXPECT_EQ(a, list.HitTest(CPoint(0, 51), nullptr));
    EXPECT_EQ(b, list.HitTest(CPoint(0, 53), nullptr));
    EXPECT_EQ(nullptr, list.HitTest(CPoint(0, 80), nullptr));
}

TEST_F(LineTrackersInAWindow, LineRemovedWhileItIsDraggedGoesWhenTheDragEnds)
{
    mfcCLineTrackers list;
    bool deleted = false;
    auto* line = new RecordingTracker(100, 1, &deleted);
    list.Add(line);
    line->onChanged = [&] { list.Remove(line); };
    Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 120);
    Post(WM_LBUTTONUP, 0, 10, 120);
    EXPECT_EQ(1, line->Track(&m_wnd, CPoint(10, 100), nullptr));
    EXPECT_TRUE(deleted);
    EXPECT_EQ(0, list.GetCount());
    EXPECT_EQ(nullptr, ::GetCapture());
}

TEST_F(LineTrackersInAWindow, DrawAndColourEveryLine)
{
    mfcCLineTrackers list;
    list.Add(new mfcCLineTracker(30, 1, 1, kRed));
    list.Add(new mfcCLineTracker(60, 1, 1, kRed));
    list.SetColor(RGB(0, 128, 0));
    m_wnd.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    {
        CClientDC dc(&m_wnd);
        list.Draw(&dc);
    }
    PixelProbe probe = ReadNow();
    EXPECT_EQ(probe.Width(), probe.Count(RGB(0, 128, 0), CRect(0, 30, probe.Width(), 31)));
    EXPECT_EQ(probe.Width(), probe.Count(RGB(0, 128, 0), CRect(0, 60, probe.Width(), 61)));
}
