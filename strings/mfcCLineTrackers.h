// mfcCLineTrackers: an owning list of line trackers that draws, hit-tests, sets the cursor and
// colours all its lines, head to tail.
#pragma once

#include <afxcoll.h>

#include <new>

#include "mfcCLineTracker.h"

class AFX_EXT_CLASS mfcCLineTrackers : public CObList
{
public:
    mfcCLineTrackers();
    ~mfcCLineTrackers() override;

    // The list takes ownership of the line.
    POSITION Add(mfcCLineTracker* pTracker);
    void Draw(CDC* pDC) const;
    // The first line the point is on, or null.
    mfcCLineTracker* HitTest(CPoint point, CWnd* pWnd) const;
    int SetCursor(CWnd* pWnd, unsigned int nHitTest) const;
    void SetColor(COLORREF colour);
    // Deletes the line and its node: 0, or -1 when the list does not hold it. A line that is
    // being dragged goes when its drag ends.
    int Remove(mfcCLineTracker* pTracker);
    void RemoveAll();

    void* operator new(size_t size) { return ::operator new(size); }
    void* operator new(size_t size, void* place) noexcept { return ::operator new(size, place); }
    void operator delete(void* pointer) { ::operator delete(pointer); }

private:
    static void DeleteLine(mfcCLineTracker* pTracker);
};
