// mfcCDialog: the dialog class host dialogs derive from. Without work of its own a derived
// dialog is centred, gets back the placement it had when it was last closed, shows tooltips
// from its "_TIPTEXT" resource, is translated in translation mode, paints the white scheme
// with colour push buttons and flat combo boxes, and keeps its controls' enabled state
// current after every command.
#pragma once

#include <CNSFlexDialog.h>
#include <afxcmn.h>

#include <vector>

class CColorButton;

class AFX_EXT_CLASS mfcCDialog : public CNSFlexDialog
{
    DECLARE_DYNAMIC(mfcCDialog)

public:
    mfcCDialog(UINT nIDTemplate, CWnd* pParentWnd);
    mfcCDialog(const char* lpszTemplateName, CWnd* pParentWnd);
    ~mfcCDialog() override;

    // Modeless creation; the third argument is accepted and ignored.
    int Create(UINT nIDTemplate, CWnd* pParentWnd, int reserved = 0);
    int Create(const char* lpszTemplateName, CWnd* pParentWnd, int reserved = 0);

    // Overridables
    // Saves the placement under "Software\Varnelt\<application>\KIVDLG<dialog>", then
    // destroys the window. FALSE, and nothing done, without a live window.
    BOOL DestroyWindow() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnInitDialog() override;

protected:
    mfcCDialog();

    // Centres on the given window, else the owner, else the screen, kept on the primary
    // screen's left and top; it hides CWnd::CenterWindow.
    void CenterWindow(CWnd* pAlternateOwner);

    // Message map and handlers
    afx_msg void OnDestroy();
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnPaint();
    afx_msg LRESULT OnWindowPosChanging(WPARAM wParam, LPARAM lParam);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void CustDraw(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

    // Implementation
    CToolTipCtrl* m_pToolTip;
    BOOL m_bMaximized;
    unsigned int m_bInitialized : 1;
    CString m_strDialogName;  // the template id ("%d") or name: registry key and translation section
    BOOL m_bRestoringPlacement;
    CBrush m_brBackground;
    std::vector<CColorButton*> m_colorButtons;
    CBitmap m_bmpComboArrow;
    CBitmap m_bmpComboArrowDisabled;
    BOOL m_bApplyScheme;  // a derived class clears it before OnInitDialog to keep the system's look

private:
    CString PlacementKey() const;
    void RestorePlacement();
};
