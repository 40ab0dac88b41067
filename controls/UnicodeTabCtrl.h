// CUnicodeTabCtrl: a tab control whose tabs are owner-drawn with wide captions the host hands
// in, one per tab in tab order, independent of the narrow texts of the tab items.
#pragma once

#include <afxcmn.h>

class AFX_EXT_CLASS CUnicodeTabCtrl : public CTabCtrl
{
    DECLARE_DYNAMIC(CUnicodeTabCtrl)

public:
    CUnicodeTabCtrl();
    ~CUnicodeTabCtrl() override;

    // Operations
    // Keeps a copy of nCount captions and, on a live control, makes its tabs owner-drawn. A
    // negative count fails in the allocation (std::bad_alloc) and changes nothing.
    void SetUnicode(CStringW* pTexts, int nCount);

    // Overridables
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

protected:
    // Message map and handlers
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

    // Implementation
    CStringW* m_pTabTexts;
    CBrush m_brushNormal;
    CBrush m_brushSelected;
};
