// CUnicodeButton: a button that shows a wide (UTF-16) translated caption inside a narrow
// application. It starts in narrow mode, painted like CColorButton; once it is handed a
// translation section (WM_UNICODE, or WM_SETTEXT with a section in wParam) it paints its
// themed background and draws the wide caption with GDI+.
#pragma once

#include <afxwin.h>

// Hands a translation section to a control: wParam 0, lParam the section's narrow text.
// Always answers 1. A fixed private number, not registered.
#define WM_UNICODE (WM_USER + 301)

class AFX_EXT_CLASS CUnicodeButton : public CButton
{
    DECLARE_DYNAMIC(CUnicodeButton)

public:
    CUnicodeButton();
    ~CUnicodeButton() override;

    // Overridables
    void PreSubclassWindow() override;
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

protected:
    // Message map and handlers
    afx_msg void OnPaint();
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg LRESULT OnUnicode(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    // Implementation
    int GetPushButtonState();
    int GetCheckBoxState(int pushState);
    void DrawNonUnicodeButton(CRect rect, CDC* pDC);
    void DrawUnicodeButton(CRect rect, CDC* pDC);

    BOOL m_bUnicode;
    CStringW m_strTextW;
    CString m_strText;
    CBrush m_brushHover;
    CBrush m_brushNormal;
    BOOL m_bOverControl;

private:
    void Repaint(BOOL bErase);
    void DrawCaptionAndRestore(CDC* pDC, int saved, int styleLowWord, const CRect& text);
};
