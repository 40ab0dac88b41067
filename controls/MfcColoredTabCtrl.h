// CMfcColoredTabCtrl: a tab control in the library's blue scheme. The page area is white, the
// selected tab steel blue with white text, the others pale blue with dark blue text; a tab's
// image from the control's image list is scaled into a square at the tab's start.
#pragma once

#include <afxcmn.h>

class AFX_EXT_CLASS CMfcColoredTabCtrl : public CTabCtrl
{
    DECLARE_DYNAMIC(CMfcColoredTabCtrl)

public:
    CMfcColoredTabCtrl();
    ~CMfcColoredTabCtrl() override;

    // Overridables
    void PreSubclassWindow() override;
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

protected:
    // Message map and handlers
    afx_msg void OnPaint();
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    DECLARE_MESSAGE_MAP()

    // Implementation
    int m_nReserved;
    BOOL m_bBackgroundDrawn;  // the page area is white since the last erase
    CBrush m_brushBackground;
    CBrush m_brushSelected;

private:
    void FillPageArea(CDC* pDC);
    void DrawTabImage(LPDRAWITEMSTRUCT lpDrawItemStruct, HIMAGELIST hImages, int image, const CRect& tab,
                      const CStringW& text);
};
