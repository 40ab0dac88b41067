#include "mfcCLineTrackers.h"

namespace {

// The list holds only line trackers (or null).
mfcCLineTracker* LineAt(const CObList& list, POSITION& pos)
{
    return static_cast<mfcCLineTracker*>(list.GetNext(pos));
}

}  // namespace

void mfcCLineTrackers::DeleteLine(mfcCLineTracker* pTracker)
{
    if (pTracker != nullptr)
        pTracker->DeleteFromList();
}

mfcCLineTrackers::mfcCLineTrackers() : CObList(10) {}

mfcCLineTrackers::~mfcCLineTrackers()
{
    RemoveAll();
}

POSITION mfcCLineTrackers::Add(mfcCLineTracker* pTracker)
{
    return AddTail(pTracker);
}

void mfcCLineTrackers::Draw(CDC* pDC) const
{
    for (POSITION pos = GetHeadPosition(); pos != nullptr;)
        if (auto* line = LineAt(*this, pos))
            line->Draw(pDC);
}

mfcCLineTracker* mfcCLineTrackers::HitTest(CPoint point, CWnd* pWnd) const
{
    for (POSITION pos = GetHeadPosition(); pos != nullptr;)
    {
        auto* line = LineAt(*this, pos);
        if (line != nullptr && line->HitTest(point, pWnd))
            return line;
    }
    return nullptr;
}

int mfcCLineTrackers::SetCursor(CWnd* pWnd, unsigned int nHitTest) const
{
    for (POSITION pos = GetHeadPosition(); pos != nullptr;)
    {
        auto* line = LineAt(*this, pos);
        if (line != nullptr && line->SetCursor(pWnd, nHitTest))
            return 1;
    }
    return 0;
}

void mfcCLineTrackers::SetColor(COLORREF colour)
{
    for (POSITION pos = GetHeadPosition(); pos != nullptr;)
        if (auto* line = LineAt(*this, pos))
            line->SetColor(colour);
}

int mfcCLineTrackers::Remove(mfcCLineTracker* pTracker)
{
    POSITION pos = Find(pTracker);
    if (pos == nullptr)
        return -1;
    DeleteLine(pTracker);
    RemoveAt(pos);
    return 0;
}

void mfcCLineTrackers::RemoveAll()
{
    for (POSITION pos = GetHeadPosition(); pos != nullptr;)
        DeleteLine(LineAt(*this, pos));
    CObList::RemoveAll();
}
