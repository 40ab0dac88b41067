// mfcCLineTracker: a horizontal or vertical line across a window's client area that the user
// drags with the left mouse button. It draws itself, tells whether a point is on it (a band
// that scales with the screen's dots per inch), shows its own cursors and runs its own drag
// loop; a derived class refines a drag through Adjust and hears of it through OnChanged.
#pragma once

#include <afxwin.h>

namespace kiv::rules {
class TrackerDrag;
}

class AFX_EXT_CLASS mfcCLineTracker : public CObject
{
    DECLARE_DYNAMIC(mfcCLineTracker)

public:
    // Style bits: drawn solid, drawn dotted (precedes solid), vertical (else horizontal).
    enum
    {
        styleSolid = 0x01,
        styleDotted = 0x02,
        styleVertical = 0x40
    };

    mfcCLineTracker();
    mfcCLineTracker(int position, int style, int width, COLORREF colour);
    ~mfcCLineTracker() override;

    // Attributes
    int GetPosition() const { return m_nPosition; }
    unsigned int GetStyle() const { return m_nStyle; }

    // Operations
    int SetPosition(int position);
    void SetColor(COLORREF colour);
    void Draw(CDC* pDC) const;
    // Nonzero when the point (client coordinates of pWnd) lies on the line.
    int HitTest(CPoint point, CWnd* pWnd) const;
    // For WM_SETCURSOR: shows the hover cursor when the mouse is over the line.
    int SetCursor(CWnd* pWnd, unsigned int nHitTest) const;
    // The modal drag; nonzero when the line ends somewhere else.
    int Track(CWnd* pWnd, CPoint start, CWnd* pOther);

protected:
    // Overridables
    virtual void Adjust(int* pPosition);
    virtual void DrawTracker(int position, CWnd* pOther, CDC* pDC, CWnd* pWnd);
    virtual void OnChanged(int position);

    // Implementation
    unsigned int m_nStyle;
    int m_nPosition;
    int m_nTrackPosition;              // where the line was last drawn during a drag
    int m_nTolerance;                  // half the hit band at 96 dots per inch
    unsigned int m_bEnding : 1;        // the drag is ending (released or cancelled)
    unsigned int m_bPreviousPass : 1;  // this drawing is the pass for the previous position
    // The owning list's bookkeeping, in the spare bits of the drag state so the layout stays.
    unsigned int m_bDragging : 1;
    unsigned int m_bDeleteWhenDone : 1;
    int m_nWidth;
    COLORREF m_clrLine;
    mutable HCURSOR m_hHoverCursor;
    mutable HCURSOR m_hDragCursor;
    mutable HPEN m_hPen;

private:
    friend class mfcCLineTrackers;
    // The list lets go of the line: it is deleted now, or when its drag ends if one runs.
    void DeleteFromList();
    static float ScaleOf(HDC hDC);
    HCURSOR LoadTrackerCursor(int id) const;
    void DragLoop(kiv::rules::TrackerDrag& drag, CWnd* pWnd, CWnd* pOther, CDC* pDC);
};
