#include "mfcCLineTracker.h"

#include "LineTrackerRules.h"

namespace rules = kiv::rules;

IMPLEMENT_DYNAMIC(mfcCLineTracker, CObject)

mfcCLineTracker::mfcCLineTracker()
    : m_nStyle(0), m_nPosition(0), m_nTrackPosition(0), m_nTolerance(rules::kTrackerTolerance), m_bEnding(0),
      m_bPreviousPass(0), m_bDragging(0), m_bDeleteWhenDone(0), m_nWidth(0), m_clrLine(0), m_hHoverCursor(nullptr),
      m_hDragCursor(nullptr), m_hPen(nullptr)
{}

mfcCLineTracker::mfcCLineTracker(int position, int style, int width, COLORREF colour)
    : m_nStyle((unsigned int)style), m_nPosition(position), m_nTrackPosition(position),
      m_nTolerance(rules::kTrackerTolerance), m_bEnding(0), m_bPreviousPass(0), m_bDragging(0), m_bDeleteWhenDone(0),
      m_nWidth(width), m_clrLine(colour), m_hHoverCursor(nullptr), m_hDragCursor(nullptr), m_hPen(nullptr)
{}

// The cursors are shared resources and stay.
mfcCLineTracker::~mfcCLineTracker()
{
    if (m_hPen != nullptr)
        ::DeleteObject(m_hPen);
}

int mfcCLineTracker::SetPosition(int position)
{
    m_nPosition = position;
    m_nTrackPosition = position;
    return 0;
}

void mfcCLineTracker::SetColor(COLORREF colour)
{
    if (colour == m_clrLine)
        return;
    if (m_hPen != nullptr)
        ::DeleteObject(m_hPen);
    m_hPen = nullptr;
    m_clrLine = colour;
}

float mfcCLineTracker::ScaleOf(HDC hDC)
{
    return rules::TrackerScale(::GetDeviceCaps(hDC, LOGPIXELSX));
}

HCURSOR mfcCLineTracker::LoadTrackerCursor(int id) const
{
    HINSTANCE hInst = AfxFindResourceHandle(MAKEINTRESOURCEA(id), (LPCSTR)RT_GROUP_CURSOR);
    return ::LoadCursorW(hInst, MAKEINTRESOURCEW(id));
}

void mfcCLineTracker::Draw(CDC* pDC) const
{
    HDC hDC = pDC->m_hDC;
    ::SaveDC(hDC);
    int width = rules::TrackerPenWidth(m_nWidth, ScaleOf(pDC->m_hAttribDC ? pDC->m_hAttribDC : hDC));
    if (rules::TrackerIsDrawn(m_nStyle))
    {
        // The pen keeps the width of its first creation.
        if (m_hPen == nullptr)
            m_hPen = ::CreatePen((int)(m_nStyle & rules::kTrackerDotted), width, m_clrLine);
        HGDIOBJ hOldPen = ::SelectObject(hDC, m_hPen);
        HGDIOBJ hOldBrush = ::SelectObject(hDC, ::GetStockObject(NULL_BRUSH));
        int oldRop = ::SetROP2(hDC, R2_COPYPEN);
        RECT client = {};
        ::GetClientRect(::WindowFromDC(hDC), &client);
        if (m_nStyle & rules::kTrackerVertical)
        {
            ::MoveToEx(hDC, m_nPosition, client.top, nullptr);
            ::LineTo(hDC, m_nPosition, client.bottom);
        }
        else
        {
            ::MoveToEx(hDC, client.left, m_nPosition, nullptr);
            ::LineTo(hDC, client.right, m_nPosition);
        }
        ::SetROP2(hDC, oldRop);
        ::SelectObject(hDC, hOldPen);
        ::SelectObject(hDC, hOldBrush);
    }
    ::RestoreDC(hDC, -1);
}

int mfcCLineTracker::HitTest(CPoint point, CWnd* pWnd) const
{
    float scale = 1.0f;
    if (pWnd != nullptr)
    {
        HDC hDC = ::GetDC(pWnd->m_hWnd);
        scale = ScaleOf(hDC);
        ::ReleaseDC(pWnd->m_hWnd, hDC);
    }
    int coordinate = (m_nStyle & rules::kTrackerVertical) ? point.x : point.y;
    return rules::TrackerHit(coordinate, m_nPosition, scale) ? 1 : 0;
}

int mfcCLineTracker::SetCursor(CWnd* pWnd, unsigned int nHitTest) const
{
    if (nHitTest != HTCLIENT)
        return 0;
    CPoint point;
    ::GetCursorPos(&point);
    ::ScreenToClient(pWnd->m_hWnd, &point);
    if (!HitTest(point, pWnd))
        return 0;
    if (m_hHoverCursor == nullptr)
        m_hHoverCursor = LoadTrackerCursor(rules::TrackerHoverCursor(m_nStyle));
    return ::SetCursor(m_hHoverCursor) != nullptr ? 1 : 0;
}

void mfcCLineTracker::Adjust(int* /*pPosition*/) {}

void mfcCLineTracker::OnChanged(int /*position*/) {}

void mfcCLineTracker::DrawTracker(int position, CWnd* pOther, CDC* pDC, CWnd* pWnd)
{
    if (m_bPreviousPass && !m_bEnding)
    {
        m_nTrackPosition = position;
        return;
    }
    int half = rules::TrackerHalfBand(ScaleOf(pDC->m_hDC));
    CRect band;
    pWnd->GetClientRect(&band);
    if (m_nStyle & rules::kTrackerVertical)
    {
        band.left = m_nTrackPosition - half;
        band.right = m_nTrackPosition + half;
    }
    else
    {
        band.top = m_nTrackPosition - half;
        band.bottom = m_nTrackPosition + half;
    }
    if (pOther != nullptr)
    {
        pWnd->ClientToScreen(&band);
        pOther->ScreenToClient(&band);
        pOther->InvalidateRect(&band, TRUE);
    }
    else
    {
        pWnd->InvalidateRect(&band, TRUE);
    }
    int kept = m_nPosition;
    m_nPosition = position;
    Draw(pDC);
    m_nPosition = kept;
    m_nTrackPosition = position;
}

void mfcCLineTracker::DeleteFromList()
{
    if (m_bDragging)
        m_bDeleteWhenDone = 1;  // Track is still running on this object
    else
        delete this;
}

int mfcCLineTracker::Track(CWnd* pWnd, CPoint start, CWnd* pOther)
{
    if (::GetCapture() != nullptr || pWnd == nullptr || !HitTest(start, pWnd))
        return 0;
    HWND hWnd = pWnd->m_hWnd;
    HWND hOther = pOther != nullptr ? pOther->m_hWnd : nullptr;
    m_bDragging = 1;  // from here a paint handler that removes the line must not delete it
    AfxLockTempMaps();
    ::SetCapture(hWnd);
    ::UpdateWindow(hWnd);
    if (hOther != nullptr)
        ::UpdateWindow(hOther);
    if (m_hDragCursor == nullptr)
        m_hDragCursor = LoadTrackerCursor(rules::TrackerDragCursor(m_nStyle));
    ::SetCursor(m_hDragCursor);
    rules::TrackerDrag drag(m_nPosition);
    HWND hDCWnd = hOther != nullptr ? hOther : hWnd;
    HDC hDC = hOther != nullptr ? ::GetDCEx(hOther, nullptr, DCX_CACHE) : ::GetDC(hWnd);
    CDC dc;
    dc.Attach(hDC);
    DragLoop(drag, pWnd, pOther, &dc);
    dc.Detach();
    ::ReleaseDC(hDCWnd, hDC);
    ::ReleaseCapture();
    AfxUnlockTempMaps();
    int changed = drag.Finish() ? 1 : 0;
    m_bEnding = 0;
    m_bPreviousPass = 0;
    m_bDragging = 0;
    if (m_bDeleteWhenDone)
        delete this;  // its list removed it during the drag
    return changed;
}

namespace {

enum class DragMessage
{
    kMouse,     // a move or the release: the line follows
    kCancel,    // Escape or the right button
    kSwallow,   // any other key-down
    kDispatch,  // everything else goes to its window
};

DragMessage Classify(const MSG& msg)
{
    switch (msg.message)
    {
    case WM_MOUSEMOVE:
    case WM_LBUTTONUP:
        return DragMessage::kMouse;
    case WM_RBUTTONDOWN:
        return DragMessage::kCancel;
    case WM_KEYDOWN:
        return msg.wParam == VK_ESCAPE ? DragMessage::kCancel : DragMessage::kSwallow;
    default:
        return DragMessage::kDispatch;
    }
}

}  // namespace

void mfcCLineTracker::DragLoop(rules::TrackerDrag& drag, CWnd* pWnd, CWnd* pOther, CDC* pDC)
{
    auto hook = [&](rules::TrackerDrag::Step step, int position) {
        m_bEnding = (drag.State() & rules::TrackerDrag::kEnding) ? 1 : 0;
        m_bPreviousPass = (drag.State() & rules::TrackerDrag::kPreviousPass) ? 1 : 0;
        if (step == rules::TrackerDrag::kChanged)
            OnChanged(position);
        else
            DrawTracker(position, pOther, pDC, pWnd);
    };
    auto adjust = [this](int& position) { Adjust(&position); };
    bool vertical = (m_nStyle & rules::kTrackerVertical) != 0;
    HWND hWnd = pWnd->m_hWnd;  // the object forgets it when the window is destroyed
    MSG msg;
    for (;;)
    {
        BOOL got = ::GetMessageA(&msg, nullptr, 0, 0);
        bool quit = got == 0 || got == -1;
        if (quit)
            ::PostQuitMessage(got == 0 ? (int)msg.wParam : 0);  // cancels the drag; posted again for the application
        if (::GetCapture() != hWnd)
            return;  // the capture went elsewhere: the line stays where it is
        DragMessage kind = quit ? DragMessage::kCancel : Classify(msg);
        if (kind == DragMessage::kCancel)
            return drag.Cancel(hook);
        if (kind == DragMessage::kDispatch)
            ::DispatchMessageA(&msg);
        if (kind != DragMessage::kMouse)
            continue;
        int proposed = vertical ? (int)(short)LOWORD(msg.lParam) : (int)(short)HIWORD(msg.lParam);
        if (drag.Mouse(proposed, msg.message == WM_LBUTTONUP, adjust, hook))
            return;
    }
}
