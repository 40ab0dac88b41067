// Control bars docked at the edges of a frame, and dialog bars.
#pragma once

#include "afxwin.h"

// Control bar styles: alignment, borders and behaviour.
#define CBRS_ALIGN_LEFT 0x1000L
#define CBRS_ALIGN_TOP 0x2000L
#define CBRS_ALIGN_RIGHT 0x4000L
#define CBRS_ALIGN_BOTTOM 0x8000L
#define CBRS_ALIGN_ANY 0xF000L
#define CBRS_BORDER_LEFT 0x0100L
#define CBRS_BORDER_TOP 0x0200L
#define CBRS_BORDER_RIGHT 0x0400L
#define CBRS_BORDER_BOTTOM 0x0800L
#define CBRS_BORDER_ANY 0x0F00L
#define CBRS_TOOLTIPS 0x0010L
#define CBRS_FLYBY 0x0020L
#define CBRS_FLOAT_MULTI 0x0040L
#define CBRS_BORDER_3D 0x0080L
#define CBRS_HIDE_INPLACE 0x0008L
#define CBRS_SIZE_DYNAMIC 0x0004L
#define CBRS_SIZE_FIXED 0x0002L
#define CBRS_FLOATING 0x0001L
#define CBRS_GRIPPER 0x00400000L
#define CBRS_ORIENT_HORZ (CBRS_ALIGN_TOP | CBRS_ALIGN_BOTTOM)
#define CBRS_ORIENT_VERT (CBRS_ALIGN_LEFT | CBRS_ALIGN_RIGHT)
#define CBRS_ORIENT_ANY (CBRS_ORIENT_HORZ | CBRS_ORIENT_VERT)
#define CBRS_ALL 0x0040FFFFL
#define CBRS_NOALIGN 0x00000000L
#define CBRS_LEFT (CBRS_ALIGN_LEFT | CBRS_BORDER_RIGHT)
#define CBRS_TOP (CBRS_ALIGN_TOP | CBRS_BORDER_BOTTOM)
#define CBRS_RIGHT (CBRS_ALIGN_RIGHT | CBRS_BORDER_LEFT)
#define CBRS_BOTTOM (CBRS_ALIGN_BOTTOM | CBRS_BORDER_TOP)

// A bar docked at one edge of its frame; the frame's layout gives it its place.
class AFX_API CControlBar : public CWnd
{
    DECLARE_DYNAMIC(CControlBar)

public:
    ~CControlBar() override;

    // Attributes
    DWORD GetBarStyle() const { return m_dwStyle; }
    void SetBarStyle(DWORD dwStyle) { m_dwStyle = dwStyle; }
    void EnableDocking(DWORD dwDockStyle) { m_dwDockStyle = dwDockStyle; }
    CFrameWnd* GetDockingFrame() const { return m_pDockSite; }
    BOOL IsVisible() const { return (GetStyle() & WS_VISIBLE) != 0; }

    // Overridables
    // Size along the frame edge: stretched bars take the whole edge.
    virtual CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz);
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) = 0;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override;

    // Implementation
    DWORD m_dwStyle = 0;
    DWORD m_dwDockStyle = 0;
    BOOL m_bAutoDelete = FALSE;
    CFrameWnd* m_pDockSite = nullptr;
    CSize m_sizeDefault;

protected:
    CControlBar();
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()
};

// A control bar made from a dialog template: its controls' commands go to the frame, and
// its push buttons are enabled by the frame's command handlers.
class AFX_API CDialogBar : public CControlBar
{
    DECLARE_DYNAMIC(CDialogBar)

public:
    CDialogBar();
    ~CDialogBar() override;

    // The template must describe a child window; nStyle holds the CBRS_ alignment.
    virtual BOOL Create(CWnd* pParentWnd, LPCSTR lpszTemplateName, UINT nStyle, UINT nID);
    virtual BOOL Create(CWnd* pParentWnd, UINT nIDTemplate, UINT nStyle, UINT nID);

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;

    // Implementation
    LPCSTR m_lpszTemplateName = nullptr;

private:
    CString m_strTemplateName;

    DECLARE_MESSAGE_MAP()
};
