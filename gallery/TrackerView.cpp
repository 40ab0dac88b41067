#include "TrackerView.h"

#include <algorithm>

namespace {

constexpr int kGridStep = 12;  // pixels at 96 dots per inch
constexpr COLORREF kGridColour = RGB(221, 235, 244);
constexpr COLORREF kFrameColour = RGB(165, 192, 209);
constexpr COLORREF kMarginColour = RGB(78, 130, 172);
constexpr COLORREF kCentreColour = RGB(48, 83, 109);

}  // namespace

BEGIN_MESSAGE_MAP(CTrackerView, CStatic)
    ON_WM_PAINT()
    ON_WM_SETCURSOR()
    ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

CTrackerView::CTrackerView() = default;

CTrackerView::~CTrackerView() = default;

BOOL CTrackerView::CreateView(const CRect& rect, CWnd* pParentWnd, UINT nID)
{
    // SS_NOTIFY: a static control is otherwise transparent to the mouse.
    if (!Create("", WS_CHILD | WS_VISIBLE | SS_NOTIFY, rect, pParentWnd, nID))
        return FALSE;
    AddLines();
    return TRUE;
}

// Margins at a quarter of the view, solid, and the centre lines dotted.
void CTrackerView::AddLines()
{
    CRect client;
    GetClientRect(&client);
    const int width = 2;  // at 96 dots per inch: the trackers scale their pens to the screen
    m_trackers.Add(new mfcCLineTracker(client.Width() / 4, mfcCLineTracker::styleSolid | mfcCLineTracker::styleVertical,
                                       width, kMarginColour));
    m_trackers.Add(new mfcCLineTracker(
        client.Width() * 3 / 4, mfcCLineTracker::styleSolid | mfcCLineTracker::styleVertical, width, kMarginColour));
    m_trackers.Add(new mfcCLineTracker(client.Height() / 4, mfcCLineTracker::styleSolid, width, kMarginColour));
    m_trackers.Add(new mfcCLineTracker(client.Height() / 2, mfcCLineTracker::styleDotted, 1, kCentreColour));
}

BOOL CTrackerView::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message)
{
    if (m_trackers.SetCursor(this, nHitTest))
        return TRUE;
    return CStatic::OnSetCursor(pWnd, nHitTest, message);
}

void CTrackerView::OnLButtonDown(UINT nFlags, CPoint point)
{
    if (mfcCLineTracker* pTracker = m_trackers.HitTest(point, this))
    {
        if (pTracker->Track(this, point, nullptr))
            Invalidate();
        return;
    }
    CStatic::OnLButtonDown(nFlags, point);
}

void CTrackerView::Zoom(int nSteps)
{
    m_nZoom = std::clamp(m_nZoom + nSteps, -2, 4);
    Invalidate();
}

void CTrackerView::ResetZoom()
{
    m_nZoom = 0;
    Invalidate();
}

double CTrackerView::ZoomPercent() const
{
    return 100.0 * (kGridStep + 3 * m_nZoom) / kGridStep;
}

int CTrackerView::GridStep() const
{
    CClientDC dc(const_cast<CTrackerView*>(this));
    return ::MulDiv(kGridStep + 3 * m_nZoom, dc.GetDeviceCaps(LOGPIXELSX), 96);
}

void CTrackerView::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, RGB(255, 255, 255));
    CPen grid(PS_SOLID, 1, kGridColour);
    CPen* pOld = dc.SelectObject(&grid);
    const int step = GridStep();
    for (int x = client.left + step; x < client.right; x += step)
    {
        dc.MoveTo(x, client.top);
        dc.LineTo(x, client.bottom);
    }
    for (int y = client.top + step; y < client.bottom; y += step)
    {
        dc.MoveTo(client.left, y);
        dc.LineTo(client.right, y);
    }
    dc.SelectObject(pOld);
    CBrush frame(kFrameColour);
    dc.FrameRect(&client, &frame);
    m_trackers.Draw(&dc);
}
