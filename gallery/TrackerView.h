// The picture area of the main dialog: a white view with a grid in the coloured tab control's
// page, with line trackers the user drags to mark the picture's margins.
#pragma once

#include <KivMFC.h>

class CTrackerView : public CStatic
{
public:
    CTrackerView();
    ~CTrackerView() override;

    // Operations
    // Creates the view over the rectangle, with its lines placed in it.
    BOOL CreateView(const CRect& rect, CWnd* pParentWnd, UINT nID);
    // Grid steps in pixels at 96 dots per inch; the view scales them to the screen.
    void Zoom(int nSteps);
    void ResetZoom();
    // The grid's size against the view's own, in per cent.
    double ZoomPercent() const;

protected:
    // Message map and handlers
    afx_msg void OnPaint();
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    int GridStep() const;
    void AddLines();

    mfcCLineTrackers m_trackers;
    int m_nZoom = 0;
};
