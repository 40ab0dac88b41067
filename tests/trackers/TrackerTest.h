// What the line tracker tests share: a tracker that shows its implementation and records its
// hooks, and a window to draw into, hover over and drag in.
#pragma once

#include <KivMFC.h>
#include <gtest/gtest.h>

#include "PixelProbe.h"
#include "WindowingTest.h"

#include <functional>
#include <string>
#include <vector>

namespace kivtest {

inline constexpr COLORREF kRed = RGB(255, 0, 0);
inline constexpr COLORREF kBlue = RGB(0, 0, 255);
inline constexpr COLORREF kGreen = RGB(0, 128, 0);
inline constexpr int kSolid = mfcCLineTracker::styleSolid;
inline constexpr int kDotted = mfcCLineTracker::styleDotted;
inline constexpr int kVertical = mfcCLineTracker::styleVertical;

// A tracker whose protected state the tests may read.
class TrackerPeek : public mfcCLineTracker
{
public:
    using mfcCLineTracker::mfcCLineTracker;
    int TrackPosition() const { return m_nTrackPosition; }
    int Tolerance() const { return m_nTolerance; }
    unsigned Bits() const { return m_bEnding | (m_bPreviousPass << 1); }
    int Width() const { return m_nWidth; }
    COLORREF Colour() const { return m_clrLine; }
    HPEN Pen() const { return m_hPen; }
    HCURSOR HoverCursor() const { return m_hHoverCursor; }
    HCURSOR DragCursor() const { return m_hDragCursor; }
};

// A width-1 red tracker that records its hooks as text ("adjust 120", "draw 110 previous",
// "changed 100 now 120") and the cursor shown while it is dragged.
class RecordingTracker : public TrackerPeek
{
public:
    RecordingTracker(int position, int style, bool* deleted = nullptr)
        : TrackerPeek(position, style, 1, kRed), m_pDeleted(deleted)
    {}
    ~RecordingTracker() override
    {
        if (m_pDeleted != nullptr)
            *m_pDeleted = true;
    }
    std::vector<std::string> steps;
    int keepAt = -1;                  // Adjust writes this position back when set
    std::function<void()> onChanged;  // runs inside OnChanged
    HCURSOR cursorWhileDragged = nullptr;

protected:
    void Adjust(int* pPosition) override;
    void DrawTracker(int position, CWnd* pOther, CDC* pDC, CWnd* pWnd) override;
    void OnChanged(int position) override;

private:
    bool* m_pDeleted;
};

// A top-level window with the real pointer kept away from it; drags are driven by messages
// posted to the window before Track starts.
class TrackerWindowTest : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    void Post(UINT message, WPARAM wParam, int x, int y);
    // Track under a watchdog: a thread timer wakes the loop and, should the posted messages
    // not end it, takes the capture away after two seconds (and the test fails).
    int Track(mfcCLineTracker& tracker, CPoint start, CWnd* pOther = nullptr);
    // The window is erased and painted, then the tracker draws into it.
    void DrawNow(const mfcCLineTracker& tracker);
    void DrawNow(const mfcCLineTrackers& list);
    // The client area as it is on the screen now, without repainting.
    static PixelProbe ReadNow(CWnd& wnd);
    // How many pixels of one row (or one column) of the probe have the colour.
    static int RowCount(const PixelProbe& probe, int y, COLORREF colour);
    static int ColumnCount(const PixelProbe& probe, int x, COLORREF colour);
    // The rows from `from` to `to` that the window's update region holds (at x = 5).
    static std::vector<int> UpdatedRows(CWnd& wnd, int from, int to);
    void PointerAt(CPoint client);
    static void PointerAway();
    // The cursor resource as the library module itself loads it.
    static HCURSOR LibraryCursor(int id);

    CWnd m_wnd;

private:
    static void CALLBACK Watchdog(HWND, UINT, UINT_PTR, DWORD);
    static int s_ticks;
    static bool s_timedOut;
};

}  // namespace kivtest
