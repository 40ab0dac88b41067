// mfcCDialogBar: the dialog bar class host bars derive from. It adds tooltips from the bar
// template's "_TIPTEXT" resource, a second initialisation hook that runs once the bar's window
// exists, and the white scheme with flat combo boxes.
#pragma once

#include <afxcmn.h>
#include <afxext.h>

class AFX_EXT_CLASS mfcCDialogBar : public CDialogBar
{
public:
    mfcCDialogBar();
    ~mfcCDialogBar() override;

    // Operations
    // A bar made from a numeric template id builds its tooltips and runs OnInitDialogBar
    // twice: once through the name form, then once more.
    BOOL Create(CWnd* pParentWnd, const char* lpszTemplateName, UINT nStyle, UINT nID) override;
    BOOL Create(CWnd* pParentWnd, UINT nIDTemplate, UINT nStyle, UINT nID) override;

    // Overridables
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    // The derived bar's set-up, after the window exists; the base fills the controls from
    // their members. May run twice (see Create).
    virtual BOOL OnInitDialogBar();

    // Only for a bar that has tooltips.
    void UpdateTipText(UINT nIDText, CWnd* pWnd, UINT nIDTool);
    void UpdateTipText(const char* lpszText, CWnd* pWnd, UINT nIDTool);

    // Message map and handlers
    afx_msg void OnDestroy();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    DECLARE_MESSAGE_MAP()

    // Implementation
    CToolTipCtrl* m_pToolTip;
    CBrush m_brBackground;
    CBitmap m_bmpComboArrow;
    CBitmap m_bmpComboArrowDisabled;

private:
    void AttachToolTips(const char* lpszTemplateName);
};
