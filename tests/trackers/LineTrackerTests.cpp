// mfcCLineTracker in real windows: drawing by style, the hit band at 96 dots per inch, the
// library's cursors, and the modal drag driven by messages posted before it starts.
#include "TrackerTest.h"

#include "MessageSpy.h"

using namespace kivtest;

namespace {

using Steps = std::vector<std::string>;

class LineTracker : public TrackerWindowTest
{
protected:
    // A line at 100 dragged to 130, then the message that cancels the drag.
    void ExpectCancelRestoresTheStart(UINT message, WPARAM wParam)
    {
        MessageSpy spy;
        spy.Only({message});
        spy.Watch(m_wnd.m_hWnd);
        RecordingTracker tracker(100, kSolid);
        Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 130);
        m_wnd.PostMessage(message, wParam, MAKELPARAM(10, 130));
        EXPECT_EQ(0, Track(tracker, CPoint(10, 100)));
        EXPECT_EQ(100, tracker.GetPosition());
        EXPECT_EQ("draw 130 previous ending", tracker.steps.back());
        EXPECT_EQ(0u, tracker.Bits());
        EXPECT_EQ(nullptr, ::GetCapture());
        EXPECT_EQ(0, spy.Count(message));  // the cancelling message is not passed on
        spy.Unwatch(m_wnd.m_hWnd);
    }
    // The cursor shown while a line at 100 is dragged; the tracker keeps it.
    HCURSOR CursorWhileDragging(int style)
    {
        RecordingTracker tracker(100, kSolid | style);
        Post(WM_LBUTTONUP, 0, 100, 100);
        Track(tracker, CPoint(100, 100));
        EXPECT_EQ(tracker.cursorWhileDragged, tracker.DragCursor());
        return tracker.cursorWhileDragged;
    }
    // The cursor after SetCursor with the pointer at a point of the line.
    HCURSOR HoverCursorAt(const mfcCLineTracker& tracker, CPoint client)
    {
        PointerAt(client);
        ::SetCursor(::LoadCursorA(nullptr, IDC_ARROW));
        EXPECT_EQ(1, tracker.SetCursor(&m_wnd, HTCLIENT));
        return ::GetCursor();
    }
    // A second window over part of this one, for a drag shown elsewhere.
    void CreateOther(CWnd& other)
    {
        ASSERT_TRUE(CreateTopLevel(other, 300, 240));
        other.SetWindowPos(nullptr, 60, 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        PumpPending();
    }
};

}  // namespace

TEST_F(LineTracker, DefaultConstructorGivesAnUndrawnHorizontalLineAtZero)
{
    TrackerPeek tracker;
    EXPECT_EQ(0, tracker.GetPosition());
    EXPECT_EQ(0u, tracker.GetStyle());
    EXPECT_EQ(0, tracker.TrackPosition());
    EXPECT_EQ(2, tracker.Tolerance());
    EXPECT_EQ(0, tracker.Width());
    EXPECT_EQ(RGB(0, 0, 0), tracker.Colour());
    EXPECT_EQ(0u, tracker.Bits());
    EXPECT_EQ(nullptr, tracker.Pen());
    EXPECT_EQ(nullptr, tracker.HoverCursor());
    EXPECT_EQ(nullptr, tracker.DragCursor());
}

TEST_F(LineTracker, ConstructorTakesPositionStyleWidthAndColour)
{
    TrackerPeek tracker(70, kDotted | kVertical, 3, kBlue);
    EXPECT_EQ(70, tracker.GetPosition());
    EXPECT_EQ(0x42u, tracker.GetStyle());
    EXPECT_EQ(70, tracker.TrackPosition());
    EXPECT_EQ(2, tracker.Tolerance());
    EXPECT_EQ(3, tracker.Width());
    EXPECT_EQ(kBlue, tracker.Colour());
    EXPECT_EQ(nullptr, tracker.Pen());
}

TEST_F(LineTracker, RuntimeClassIsItsOwnDerivedFromCObject)
{
    mfcCLineTracker tracker;
    EXPECT_STREQ("mfcCLineTracker", tracker.GetRuntimeClass()->m_lpszClassName);
    EXPECT_EQ(RUNTIME_CLASS(CObject), RUNTIME_CLASS(mfcCLineTracker)->m_pfnGetBaseClass());
    EXPECT_TRUE(tracker.IsKindOf(RUNTIME_CLASS(CObject)));
}

TEST_F(LineTracker, SetPositionMovesTheLineAndItsTrackingPositionAndAnswersZero)
{
    TrackerPeek tracker(10, kSolid, 1, kRed);
    EXPECT_EQ(0, tracker.SetPosition(33));
    EXPECT_EQ(33, tracker.GetPosition());
    EXPECT_EQ(33, tracker.TrackPosition());
}

TEST_F(LineTracker, StyleZeroIsHitButNeverDrawn)
{
    TrackerPeek tracker(50, 0, 1, kRed);
    DrawNow(tracker);
    PixelProbe probe = ReadNow(m_wnd);
    EXPECT_EQ(0, probe.Count(kRed, CRect(0, 0, probe.Width(), probe.Height())));
    EXPECT_EQ(nullptr, tracker.Pen());
    EXPECT_EQ(1, tracker.HitTest(CPoint(10, 50), &m_wnd));
}

TEST_F(LineTracker, StyleZeroLineIsDraggedWithoutDrawing)
{
    RecordingTracker tracker(100, 0);
    Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 120);
    Post(WM_LBUTTONUP, 0, 10, 120);
    EXPECT_EQ(1, Track(tracker, CPoint(10, 100)));
    EXPECT_EQ(120, tracker.GetPosition());
    PixelProbe probe = ReadNow(m_wnd);
    EXPECT_EQ(0, probe.Count(kRed, CRect(0, 0, probe.Width(), probe.Height())));
}

TEST_F(LineTracker, SolidLineCrossesTheClientAreaInItsColour)
{
    mfcCLineTracker tracker(40, kSolid, 1, kRed);
    DrawNow(tracker);
    PixelProbe probe = ReadNow(m_wnd);
    EXPECT_EQ(probe.Width(), RowCount(probe, 40, kRed));
    EXPECT_EQ(0, RowCount(probe, 39, kRed));
    EXPECT_EQ(0, RowCount(probe, 41, kRed));
}

TEST_F(LineTracker, DottedBitDrawsWithGapsWithOrWithoutTheSolidBit)
{
    for (int style : {kDotted, kDotted | kSolid})
    {
        mfcCLineTracker tracker(40, style, 1, kRed);
        DrawNow(tracker);
        PixelProbe probe = ReadNow(m_wnd);
        int red = RowCount(probe, 40, kRed);
        EXPECT_GT(red, probe.Width() / 4) << style;
        EXPECT_LT(red, probe.Width() * 3 / 4) << style;
    }
}

TEST_F(LineTracker, VerticalLineRunsTopToBottom)
{
    mfcCLineTracker tracker(70, kSolid | kVertical, 1, kRed);
    DrawNow(tracker);
    PixelProbe probe = ReadNow(m_wnd);
    EXPECT_EQ(probe.Height(), ColumnCount(probe, 70, kRed));
    EXPECT_EQ(0, ColumnCount(probe, 69, kRed));
    EXPECT_EQ(1, RowCount(probe, 40, kRed));  // only where it crosses a row
}

TEST_F(LineTracker, DrawLeavesTheDeviceContextAsItFoundIt)
{
    mfcCLineTracker tracker(40, kSolid, 1, kRed);
    CClientDC dc(&m_wnd);
    HPEN pen = ::CreatePen(PS_SOLID, 3, kBlue);
    HBRUSH brush = ::CreateSolidBrush(kGreen);
    HGDIOBJ oldPen = ::SelectObject(dc.m_hDC, pen);
    HGDIOBJ oldBrush = ::SelectObject(dc.m_hDC, brush);
    int oldRop = ::SetROP2(dc.m_hDC, R2_XORPEN);
    tracker.Draw(&dc);
    EXPECT_EQ(pen, ::GetCurrentObject(dc.m_hDC, OBJ_PEN));
    EXPECT_EQ(brush, ::GetCurrentObject(dc.m_hDC, OBJ_BRUSH));
    EXPECT_EQ(R2_XORPEN, ::GetROP2(dc.m_hDC));
    ::SetROP2(dc.m_hDC, oldRop);
    ::SelectObject(dc.m_hDC, oldBrush);
    ::SelectObject(dc.m_hDC, oldPen);
    ::DeleteObject(brush);
    ::DeleteObject(pen);
}

TEST_F(LineTracker, SetColorChangesTheColourOfTheNextDrawing)
{
    mfcCLineTracker tracker(40, kSolid, 1, kRed);
    DrawNow(tracker);
    tracker.SetColor(kBlue);
    DrawNow(tracker);
    PixelProbe probe = ReadNow(m_wnd);
    EXPECT_EQ(probe.Width(), RowCount(probe, 40, kBlue));
}

TEST_F(LineTracker, SetColorDeletesThePenOnlyWhenTheColourChanges)
{
    TrackerPeek tracker(40, kSolid, 1, kRed);
    DrawNow(tracker);
    HPEN pen = tracker.Pen();
    ASSERT_NE(nullptr, pen);
    tracker.SetColor(kRed);
    EXPECT_EQ(pen, tracker.Pen());
    EXPECT_EQ(OBJ_PEN, (int)::GetObjectType(pen));
    tracker.SetColor(kBlue);
    EXPECT_EQ(nullptr, tracker.Pen());
    EXPECT_EQ(0, (int)::GetObjectType(pen));
    EXPECT_EQ(kBlue, tracker.Colour());
}

TEST_F(LineTracker, DestructorDeletesThePen)
{
    auto* tracker = new TrackerPeek(40, kSolid, 1, kRed);
    DrawNow(*tracker);
    HPEN pen = tracker->Pen();
    ASSERT_NE(nullptr, pen);
    delete tracker;
    EXPECT_EQ(0, (int)::GetObjectType(pen));
}

TEST_F(LineTracker, HitBandAt96DpiIsTwoPixelsEachSide)
{
    mfcCLineTracker horizontal(100, kSolid, 1, kRed);
    mfcCLineTracker vertical(100, kSolid | kVertical, 1, kRed);
    for (int c = 95; c <= 105; ++c)
    {
        EXPECT_EQ(c >= 98 && c <= 102, horizontal.HitTest(CPoint(500, c), &m_wnd) != 0) << c;
        EXPECT_EQ(c >= 98 && c <= 102, vertical.HitTest(CPoint(c, 500), &m_wnd) != 0) << c;
    }
}

TEST_F(LineTracker, HitTestWithoutAWindowUsesScaleOne)
{
    mfcCLineTracker tracker(100, kSolid, 1, kRed);
    EXPECT_EQ(1, tracker.HitTest(CPoint(5, 102), nullptr));
    EXPECT_EQ(0, tracker.HitTest(CPoint(5, 103), nullptr));
}

TEST_F(LineTracker, HoverCursorsComeFromTheLibrary)
{
    mfcCLineTracker horizontal(60, kSolid, 1, kRed);
    mfcCLineTracker vertical(70, kSolid | kVertical, 1, kRed);
    ASSERT_NE(nullptr, LibraryCursor(2000));
    EXPECT_EQ(LibraryCursor(2000), HoverCursorAt(horizontal, CPoint(20, 60)));
    EXPECT_EQ(LibraryCursor(2002), HoverCursorAt(vertical, CPoint(70, 20)));
}

TEST_F(LineTracker, SetCursorDoesNothingOffTheLineOrOutsideTheClientArea)
{
    mfcCLineTracker tracker(60, kSolid, 1, kRed);
    HCURSOR arrow = ::LoadCursorA(nullptr, IDC_ARROW);
    ::SetCursor(arrow);
    PointerAt(CPoint(20, 60));
    EXPECT_EQ(0, tracker.SetCursor(&m_wnd, HTCAPTION));
    PointerAt(CPoint(20, 63));
    EXPECT_EQ(0, tracker.SetCursor(&m_wnd, HTCLIENT));
    EXPECT_EQ(arrow, ::GetCursor());
}

TEST_F(LineTracker, SetCursorAnswersZeroWhenNoCursorWasShownBefore)
{
    mfcCLineTracker tracker(60, kSolid, 1, kRed);
    PointerAt(CPoint(20, 61));
    ::SetCursor(nullptr);
    EXPECT_EQ(0, tracker.SetCursor(&m_wnd, HTCLIENT));
    EXPECT_EQ(LibraryCursor(2000), ::GetCursor());
}

TEST_F(LineTracker, DragCursorsComeFromTheLibrary)
{
    ASSERT_NE(nullptr, LibraryCursor(2001));
    EXPECT_EQ(LibraryCursor(2001), CursorWhileDragging(0));
    EXPECT_EQ(LibraryCursor(2003), CursorWhileDragging(kVertical));
}

TEST_F(LineTracker, TrackStartedOffTheLineAnswersZeroWithoutCapture)
{
    RecordingTracker tracker(100, kSolid);
    EXPECT_EQ(0, Track(tracker, CPoint(10, 150)));
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_TRUE(tracker.steps.empty());
    EXPECT_EQ(nullptr, tracker.DragCursor());
}

TEST_F(LineTracker, TrackWhileAnotherWindowHoldsTheCaptureAnswersZero)
{
    CWnd other;
    ASSERT_TRUE(CreateTopLevel(other, 100, 100));
    ::SetCapture(other.m_hWnd);
    RecordingTracker tracker(100, kSolid);
    EXPECT_EQ(0, Track(tracker, CPoint(10, 100)));
    EXPECT_EQ(other.m_hWnd, ::GetCapture());
    EXPECT_TRUE(tracker.steps.empty());
    ::ReleaseCapture();
    other.DestroyWindow();
}

TEST_F(LineTracker, PressAndReleaseWithoutMovingChangesNothing)
{
    RecordingTracker tracker(100, kSolid);
    Post(WM_LBUTTONUP, 0, 10, 101);
    EXPECT_EQ(0, Track(tracker, CPoint(10, 100)));
    EXPECT_EQ(100, tracker.GetPosition());
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_EQ((Steps{"adjust 101", "changed 100 now 101"}), tracker.steps);
}

TEST_F(LineTracker, DragThatMovesAndReleasesAnswersOneWithTheReleasePosition)
{
    RecordingTracker tracker(100, kSolid);
    Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 110);
    Post(WM_LBUTTONUP, 0, 10, 125);
    EXPECT_EQ(1, Track(tracker, CPoint(10, 100)));
    EXPECT_EQ(125, tracker.GetPosition());
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_EQ(0u, tracker.Bits());
    // The ending pass redraws the last drawing; OnChanged is told of the move from it.
    EXPECT_EQ((Steps{"adjust 110", "changed 100 now 110", "draw 110", "adjust 125", "draw 110 previous ending",
                     "changed 110 now 125"}),
              tracker.steps);
}

TEST_F(LineTracker, EveryAcceptedMoveCallsAdjustThePreviousPassOnChangedAndTheNewDrawing)
{
    RecordingTracker tracker(100, kSolid);
    Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 110);
    Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 120);
    Post(WM_LBUTTONUP, 0, 10, 120);
    EXPECT_EQ(1, Track(tracker, CPoint(10, 100)));
    EXPECT_EQ((Steps{"adjust 110", "changed 100 now 110", "draw 110",                       // first move
                     "adjust 120", "draw 110 previous", "changed 110 now 120", "draw 120",  // second
                     "adjust 120", "draw 120 previous ending", "changed 120 now 120"}),     // release
              tracker.steps);
}

TEST_F(LineTracker, EscapeAfterMovingRestoresTheStart)
{
    ExpectCancelRestoresTheStart(WM_KEYDOWN, VK_ESCAPE);
}

TEST_F(LineTracker, RightButtonAfterMovingRestoresTheStart)
{
    ExpectCancelRestoresTheStart(WM_RBUTTONDOWN, MK_LBUTTON | MK_RBUTTON);
}

TEST_F(LineTracker, EscapeWithoutMovingDrawsNothing)
{
    RecordingTracker tracker(100, kSolid);
    m_wnd.PostMessage(WM_KEYDOWN, VK_ESCAPE, 0);
    EXPECT_EQ(0, Track(tracker, CPoint(10, 100)));
    EXPECT_TRUE(tracker.steps.empty());
    EXPECT_EQ(nullptr, ::GetCapture());
}

TEST_F(LineTracker, AdjustKeepingTheOldPositionMakesTheDragANoOp)
{
    RecordingTracker tracker(100, kSolid);
    tracker.keepAt = 100;
    Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 140);
    Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 150);
    Post(WM_LBUTTONUP, 0, 10, 150);
    EXPECT_EQ(0, Track(tracker, CPoint(10, 100)));
    EXPECT_EQ(100, tracker.GetPosition());
    EXPECT_EQ((Steps{"adjust 140", "adjust 150", "adjust 150", "changed 100 now 100"}), tracker.steps);
}

TEST_F(LineTracker, KeyDownsDuringTheDragAreSwallowedAndOtherMessagesDispatched)
{
    MessageSpy spy;
    spy.Only({WM_KEYDOWN, WM_KEYUP, WM_USER + 7});
    spy.Watch(m_wnd.m_hWnd);
    RecordingTracker tracker(100, kSolid);
    m_wnd.PostMessage(WM_KEYDOWN, 'A', 0);
    m_wnd.PostMessage(WM_KEYUP, 'A', 0);
    m_wnd.PostMessage(WM_USER + 7, 0, 0);
    Post(WM_LBUTTONUP, 0, 10, 100);
    Track(tracker, CPoint(10, 100));
    spy.Unwatch(m_wnd.m_hWnd);
    EXPECT_EQ((std::vector<UINT>{WM_KEYUP, WM_USER + 7}), spy.MessageIds());
}

TEST_F(LineTracker, VerticalLineFollowsTheMouseX)
{
    RecordingTracker tracker(100, kSolid | kVertical);
    Post(WM_MOUSEMOVE, MK_LBUTTON, 150, 10);
    Post(WM_LBUTTONUP, 0, 150, 200);
    EXPECT_EQ(1, Track(tracker, CPoint(100, 10)));
    EXPECT_EQ(150, tracker.GetPosition());
}

TEST_F(LineTracker, MovesAboveTheWindowGiveNegativePositions)
{
    RecordingTracker tracker(100, kSolid);
    Post(WM_MOUSEMOVE, MK_LBUTTON, 10, -5);
    Post(WM_LBUTTONUP, 0, 10, -5);
    EXPECT_EQ(1, Track(tracker, CPoint(10, 100)));
    EXPECT_EQ(-5, tracker.GetPosition());
}

TEST_F(LineTracker, DragDrawsTheLineWhereItWasMoved)
{
    RecordingTracker tracker(100, kSolid);
    Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 120);
    Post(WM_LBUTTONUP, 0, 10, 120);
    Track(tracker, CPoint(10, 100));
    PixelProbe probe = ReadNow(m_wnd);
    EXPECT_EQ(probe.Width(), RowCount(probe, 120, kRed));
    EXPECT_EQ(0, RowCount(probe, 100, kRed));
}

TEST_F(LineTracker, DragLeavesTheBandOfEachLastDrawingToTheNextPaint)
{
    RecordingTracker tracker(100, kSolid);
    Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 120);
    Post(WM_LBUTTONUP, 0, 10, 120);
    Track(tracker, CPoint(10, 100));
    // One pixel each side of where the line was last drawn: at the start, then at 120.
    EXPECT_EQ((std::vector<int>{99, 100, 119, 120}), UpdatedRows(m_wnd, 90, 130));
    PumpPending();
    EXPECT_EQ(0, RowCount(ReadNow(m_wnd), 120, kRed));
}

TEST_F(LineTracker, DragWithASecondWindowDrawsAndInvalidatesThere)
{
    CWnd other;
    CreateOther(other);
    RecordingTracker tracker(100, kSolid);
    Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 120);
    Post(WM_LBUTTONUP, 0, 10, 120);
    EXPECT_EQ(1, Track(tracker, CPoint(10, 100), &other));
    CPoint offset(0, 0);
    m_wnd.ClientToScreen(&offset);
    other.ScreenToClient(&offset);
    const int d = offset.y;
    EXPECT_EQ((std::vector<int>{99 + d, 100 + d, 119 + d, 120 + d}), UpdatedRows(other, 0, 200));
    EXPECT_TRUE(UpdatedRows(m_wnd, 0, 200).empty());
    PixelProbe probe = ReadNow(other);
    EXPECT_EQ(probe.Width(), RowCount(probe, 120, kRed));
    other.DestroyWindow();
}

TEST_F(LineTracker, CaptureTakenByAnotherWindowEndsTheDragWhereTheLineIs)
{
    CWnd other;
    ASSERT_TRUE(CreateTopLevel(other, 100, 100));
    RecordingTracker tracker(100, kSolid);
    tracker.onChanged = [&] { ::SetCapture(other.m_hWnd); };
    Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 120);
    Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 140);  // found after the capture went
    EXPECT_EQ(1, Track(tracker, CPoint(10, 100)));
    EXPECT_EQ(120, tracker.GetPosition());
    EXPECT_EQ((Steps{"adjust 120", "changed 100 now 120", "draw 120"}), tracker.steps);
    EXPECT_EQ(nullptr, ::GetCapture());  // the end releases the thread's capture, whoever holds it
    other.DestroyWindow();
}

TEST_F(LineTracker, WindowDestroyedDuringTheDragEndsItWithoutACrash)
{
    RecordingTracker tracker(100, kSolid);
    HWND hWnd = m_wnd.m_hWnd;
    Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 110);
    ::PostMessageA(hWnd, WM_CLOSE, 0, 0);  // dispatched by the loop: the window goes
    EXPECT_EQ(1, Track(tracker, CPoint(10, 100)));
    EXPECT_FALSE(::IsWindow(hWnd));
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_EQ(110, tracker.GetPosition());
}

TEST_F(LineTracker, QuitDuringTheDragCancelsItAndIsPostedAgain)
{
    RecordingTracker tracker(100, kSolid);
    Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 120);
    ::PostQuitMessage(7);
    EXPECT_EQ(0, Track(tracker, CPoint(10, 100)));
    EXPECT_EQ(100, tracker.GetPosition());
    EXPECT_EQ("draw 120 previous ending", tracker.steps.back());
    MSG msg;
    ASSERT_TRUE(::PeekMessageA(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(7u, msg.wParam);
}
