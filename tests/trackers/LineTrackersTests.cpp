// mfcCLineTrackers: the owning list that draws, hit-tests, sets the cursor and colours its
// lines head to tail, and lets go of a line that is being dragged only when its drag ends.
#include "TrackerTest.h"

#include <new>

using namespace kivtest;

namespace {

class LineTrackers : public TrackerWindowTest
{
protected:
    // A drag of `line` (at 100) that moves once, with `during` run inside its OnChanged.
    int DragOnce(RecordingTracker& line, std::function<void()> during)
    {
        line.onChanged = [during, ran = false]() mutable {
            if (!ran)
                during();
            ran = true;
        };
        Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 120);
        Post(WM_LBUTTONUP, 0, 10, 120);
        return Track(line, CPoint(10, 100));
    }
};

// The list's block size, which only a derived class can read.
class BlockSizePeek : public mfcCLineTrackers
{
public:
    INT_PTR BlockSize() const { return m_nBlockSize; }
};

// The window procedure of a test window whose next paint removes a line from its list.
WNDPROC g_previousProc = nullptr;
std::function<void()> g_onPaint;

LRESULT CALLBACK RemovingPaintProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_PAINT && g_onPaint)
    {
        auto run = std::move(g_onPaint);
        g_onPaint = nullptr;
        run();
    }
    return ::CallWindowProcA(g_previousProc, hWnd, message, wParam, lParam);
}

}  // namespace

TEST_F(LineTrackers, IsAnObjectListWithBlocksOfTen)
{
    BlockSizePeek list;
    EXPECT_EQ(10, list.BlockSize());
    EXPECT_TRUE(list.IsKindOf(RUNTIME_CLASS(CObList)));
}

TEST_F(LineTrackers, AddAppendsAtTheTailAndAnswersItsPosition)
{
    mfcCLineTrackers list;
    auto* first = new mfcCLineTracker(10, kSolid, 1, kRed);
    auto* second = new mfcCLineTracker(20, kSolid, 1, kRed);
    list.Add(first);
    POSITION pos = list.Add(second);
    EXPECT_EQ(first, list.GetHead());
    EXPECT_EQ(second, list.GetTail());
    EXPECT_EQ(second, list.GetAt(pos));
}

TEST_F(LineTrackers, DrawPaintsHeadToTailSoTheTailIsOnTop)
{
    mfcCLineTrackers list;
    list.Add(new mfcCLineTracker(40, kSolid, 1, kRed));
    list.Add(new mfcCLineTracker(40, kSolid, 1, kBlue));
    list.Add(new mfcCLineTracker(60, kSolid, 1, kGreen));
    DrawNow(list);
    PixelProbe probe = ReadNow(m_wnd);
    EXPECT_EQ(probe.Width(), RowCount(probe, 40, kBlue));
    EXPECT_EQ(probe.Width(), RowCount(probe, 60, kGreen));
}

TEST_F(LineTrackers, SetColorReachesEveryLine)
{
    mfcCLineTrackers list;
    list.Add(new mfcCLineTracker(30, kSolid, 1, kRed));
    list.Add(new mfcCLineTracker(60, kSolid, 1, kBlue));
    list.SetColor(kGreen);
    DrawNow(list);
    PixelProbe probe = ReadNow(m_wnd);
    EXPECT_EQ(probe.Width(), RowCount(probe, 30, kGreen));
    EXPECT_EQ(probe.Width(), RowCount(probe, 60, kGreen));
}

TEST_F(LineTrackers, HitTestAnswersTheFirstLineHeadToTail)
{
    mfcCLineTrackers list;
    auto* a = new mfcCLineTracker(50, kSolid, 1, kRed);
    auto* b = new mfcCLineTracker(51, kSolid, 1, kRed);
    list.Add(a);
    list.Add(b);
    EXPECT_EQ(a, list.HitTest(CPoint(0, 51), &m_wnd));
    EXPECT_EQ(b, list.HitTest(CPoint(0, 53), &m_wnd));
    EXPECT_EQ(nullptr, list.HitTest(CPoint(0, 80), &m_wnd));
}

TEST_F(LineTrackers, SetCursorAnswersOneWithTheCursorOfTheLineUnderThePointer)
{
    mfcCLineTrackers list;
    list.Add(new mfcCLineTracker(30, kSolid, 1, kRed));
    list.Add(new mfcCLineTracker(70, kSolid | kVertical, 1, kRed));
    ::SetCursor(::LoadCursorA(nullptr, IDC_ARROW));
    PointerAt(CPoint(70, 150));
    EXPECT_EQ(1, list.SetCursor(&m_wnd, HTCLIENT));
    EXPECT_EQ(LibraryCursor(2002), ::GetCursor());
    EXPECT_EQ(0, list.SetCursor(&m_wnd, HTBORDER));
    PointerAway();
    EXPECT_EQ(0, list.SetCursor(&m_wnd, HTCLIENT));
}

TEST_F(LineTrackers, NullEntriesAreSkippedAndRemovedWithoutDeleting)
{
    mfcCLineTrackers list;
    list.Add(nullptr);
    list.Add(new mfcCLineTracker(40, kSolid, 1, kRed));
    list.SetColor(kBlue);
    EXPECT_NE(nullptr, list.HitTest(CPoint(0, 40), &m_wnd));
    {
        CClientDC dc(&m_wnd);
        list.Draw(&dc);
    }
    EXPECT_EQ(0, list.Remove(nullptr));
    EXPECT_EQ(1, list.GetCount());
}

TEST_F(LineTrackers, RemoveOfAnUnknownPointerGivesMinusOneAndDeletesNothing)
{
    mfcCLineTrackers list;
    bool deleted = false;
    RecordingTracker outside(10, kSolid, &deleted);
    list.Add(new mfcCLineTracker(20, kSolid, 1, kRed));
    EXPECT_EQ(-1, list.Remove(&outside));
    EXPECT_FALSE(deleted);
    EXPECT_EQ(1, list.GetCount());
}

TEST_F(LineTrackers, RemoveDeletesTheLineAndItsNode)
{
    mfcCLineTrackers list;
    bool deleted = false;
    auto* line = new RecordingTracker(10, kSolid, &deleted);
    auto* other = new mfcCLineTracker(20, kSolid, 1, kRed);
    list.Add(line);
    list.Add(other);
    EXPECT_EQ(0, list.Remove(line));
    EXPECT_TRUE(deleted);
    EXPECT_EQ(1, list.GetCount());
    EXPECT_EQ(other, list.GetHead());
}

TEST_F(LineTrackers, RemoveAllAndTheDestructorDeleteEveryLine)
{
    bool first = false, second = false;
    {
        mfcCLineTrackers list;
        list.Add(new RecordingTracker(10, kSolid, &first));
        list.Add(new RecordingTracker(20, kSolid, &second));
        list.RemoveAll();
        EXPECT_TRUE(first && second);
        EXPECT_EQ(0, list.GetCount());
        first = second = false;
        list.Add(new RecordingTracker(10, kSolid, &first));
    }
    EXPECT_TRUE(first);
}

TEST_F(LineTrackers, ListMadeWithItsOwnNewIsDeletedWithItsLines)
{
    bool deleted = false;
    auto* list = new mfcCLineTrackers;
    list->Add(new RecordingTracker(10, kSolid, &deleted));
    delete list;
    EXPECT_TRUE(deleted);
}

TEST_F(LineTrackers, PlacementNewBuildsTheListInGivenStorage)
{
    alignas(mfcCLineTrackers) unsigned char storage[sizeof(mfcCLineTrackers)];
    auto* list = new (storage) mfcCLineTrackers;
    EXPECT_EQ(static_cast<void*>(storage), static_cast<void*>(list));
    EXPECT_EQ(0, list->GetCount());
    list->~mfcCLineTrackers();
}

TEST_F(LineTrackers, LineRemovedWhileItIsDraggedGoesWhenTheDragEnds)
{
    mfcCLineTrackers list;
    bool deleted = false;
    auto* line = new RecordingTracker(100, kSolid, &deleted);
    list.Add(line);
    bool deletedDuringDrag = true;
    EXPECT_EQ(1, DragOnce(*line, [&] {
                  EXPECT_EQ(0, list.Remove(line));
                  deletedDuringDrag = deleted;
              }));
    EXPECT_FALSE(deletedDuringDrag);
    EXPECT_TRUE(deleted);
    EXPECT_EQ(0, list.GetCount());
    EXPECT_EQ(nullptr, ::GetCapture());
}

TEST_F(LineTrackers, RemoveAllDuringADragDeletesTheOtherLinesAtOnce)
{
    bool draggedGone = false, otherGone = false, draggedGoneEarly = true, otherGoneAtOnce = false;
    auto* list = new mfcCLineTrackers;
    auto* dragged = new RecordingTracker(100, kSolid, &draggedGone);
    list->Add(dragged);
    list->Add(new RecordingTracker(60, kSolid, &otherGone));
    DragOnce(*dragged, [&] {
        delete list;  // the list itself goes while its line moves
        draggedGoneEarly = draggedGone;
        otherGoneAtOnce = otherGone;
    });
    EXPECT_FALSE(draggedGoneEarly);
    EXPECT_TRUE(otherGoneAtOnce);
    EXPECT_TRUE(draggedGone);
    EXPECT_EQ(nullptr, ::GetCapture());
}

TEST_F(LineTrackers, LineRemovedByThePaintThatStartsItsDragGoesWhenTheDragEnds)
{
    mfcCLineTrackers list;
    bool deleted = false, deletedInPaint = true, painted = false;
    auto* line = new RecordingTracker(100, kSolid, &deleted);
    list.Add(line);
    g_onPaint = [&] {
        painted = true;
        EXPECT_EQ(0, list.Remove(line));
        deletedInPaint = deleted;
    };
    g_previousProc = (WNDPROC)::SetWindowLongPtrA(m_wnd.m_hWnd, GWLP_WNDPROC, (LONG_PTR)RemovingPaintProc);
    m_wnd.Invalidate();  // painted by Track's own UpdateWindow, before the first message
    Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 120);
    Post(WM_LBUTTONUP, 0, 10, 120);
    EXPECT_EQ(1, Track(*line, CPoint(10, 100)));
    ::SetWindowLongPtrA(m_wnd.m_hWnd, GWLP_WNDPROC, (LONG_PTR)g_previousProc);
    EXPECT_TRUE(painted);
    EXPECT_FALSE(deletedInPaint);
    EXPECT_TRUE(deleted);
    EXPECT_EQ(0, list.GetCount());
    EXPECT_EQ(nullptr, ::GetCapture());
}
