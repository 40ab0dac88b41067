// CColorButton: a push button painted in the library's fixed two-tone blue scheme, lit while
// the mouse is over it. It keeps every behaviour of a button; only push buttons are painted
// by the class, other button styles keep the system's painting.
#pragma once

#include <afxwin.h>

class AFX_EXT_CLASS CColorButton : public CButton
{
    DECLARE_DYNAMIC(CColorButton)

public:
    CColorButton();
    // kept: hosts rely on this form storing steel blue and ignoring its background argument
    CColorButton(COLORREF text, COLORREF background);
    CColorButton(COLORREF text, COLORREF background, COLORREF face);
    CColorButton(COLORREF text, COLORREF background, COLORREF face, COLORREF light, COLORREF highlight, COLORREF shadow,
                 COLORREF darkShadow);
    ~CColorButton() override;

    // Operations. The stored colours can be set and read back; the painting stays the fixed
    // blue scheme whatever they hold.
    void SetColor(COLORREF text, COLORREF background);
    void SetColor(COLORREF text, COLORREF background, COLORREF face);
    void SetColor(COLORREF text, COLORREF background, COLORREF face, COLORREF light, COLORREF highlight,
                  COLORREF shadow, COLORREF darkShadow);
    void SetColorToWindowsDefault();
    void MoveButton(int x, int y, int cx, int cy, BOOL bRepaint);

    // Overridables
    void PreSubclassWindow() override;
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

protected:
    // Message map and handlers
    afx_msg void OnPaint();
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    // Implementation
    COLORREF m_clrText;
    COLORREF m_clrBackground;
    COLORREF m_clrFace;
    COLORREF m_clrLight;
    COLORREF m_clrHighlight;
    COLORREF m_clrShadow;
    COLORREF m_clrDarkShadow;
    BOOL m_bOverControl;
    CBrush m_brushHover;
    CBrush m_brushNormal;

private:
    int GetPushButtonState();
    void DrawColorButton(CDC* pDC, CRect rect);
    void CreateBrushes();
    void Repaint(BOOL bErase);
};
