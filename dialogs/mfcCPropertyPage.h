// mfcCPropertyPage: the property page class host pages derive from. A page gets the white
// scheme, colour push buttons, flat combo boxes, tooltips from its "_TIPTEXT" resource and its
// controls' enabled state kept current after every command; the sheet owns placement and
// translation.
#pragma once

#include <afxcmn.h>
#include <afxdlgs.h>

#include <vector>

class CColorButton;

class AFX_EXT_CLASS mfcCPropertyPage : public CPropertyPage
{
    DECLARE_DYNAMIC(mfcCPropertyPage)

public:
    mfcCPropertyPage(UINT nIDTemplate, UINT nIDCaption);
    mfcCPropertyPage(const char* lpszTemplateName, UINT nIDCaption);
    ~mfcCPropertyPage() override;

    // Overridables
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    // Exchanges nothing: a derived page that exchanges data overrides it again.
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnInitDialog() override;

    // Message map and handlers
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    DECLARE_MESSAGE_MAP()

    // Implementation
    CToolTipCtrl* m_pToolTip;
    BOOL m_bInitialized;
    std::vector<void*> m_reserved;  // kept beside the buttons; never filled
    std::vector<CColorButton*> m_colorButtons;
    CBrush m_brBackground;
    CBitmap m_bmpComboArrow;
    CBitmap m_bmpComboArrowDisabled;
};
