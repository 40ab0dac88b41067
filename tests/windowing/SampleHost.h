// A host application written as one is written for the platform: an application object, a
// main frame with a menu and a dialog bar, a settings dialog with data exchange and an update
// handler, a property sheet with two pages, and a subclassed owner-drawn button.
#pragma once

#include <afxcmn.h>
#include <afxdlgs.h>
#include <afxext.h>

#include "windowing_res.h"

const COLORREF kSwatchColour = RGB(78, 130, 172);

// An owner-drawn button that paints itself in one colour.
class CSwatchButton : public CButton
{
public:
    int m_nDraws = 0;
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;
};

class CSettingsDialog : public CDialog
{
public:
    explicit CSettingsDialog(CWnd* pParent) : CDialog(IDD_SAMPLE, pParent) {}
    CString m_strName;
    int m_nCount = 0;
    BOOL m_bAllowApply = FALSE;
    CSwatchButton m_swatch;

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    afx_msg void OnUpdateApply(CCmdUI* pCmdUI) { pCmdUI->Enable(m_bAllowApply); }
    afx_msg void OnApply() {}
    DECLARE_MESSAGE_MAP()
};

class COptionsPage : public CPropertyPage
{
public:
    COptionsPage() : CPropertyPage(IDD_PAGE1, IDS_PAGE1) {}
    CString m_strPath;

protected:
    void DoDataExchange(CDataExchange* pDX) override { DDX_Text(pDX, IDC_PAGE1_EDIT, m_strPath); }
};

class CFlagsPage : public CPropertyPage
{
public:
    CFlagsPage() : CPropertyPage(IDD_PAGE2, IDS_PAGE2) {}
    int m_nFlag = 0;

protected:
    void DoDataExchange(CDataExchange* pDX) override { DDX_Check(pDX, IDC_PAGE2_CHECK, m_nFlag); }
};

class CMainFrame : public CFrameWnd
{
public:
    CDialogBar m_wndBar;
    CString m_strName = "Initial";
    int m_nCount = 3;
    CString m_strPath = "C:\\data";
    int m_nFlag = 0;
    int m_nOpened = 0;
    int m_nGo = 0;
    int m_nKeysSeen = 0;
    INT_PTR m_nLastResult = 0;
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnOpen() { ++m_nOpened; }
    afx_msg void OnGo() { ++m_nGo; }
    afx_msg void OnSettings();
    afx_msg void OnProperties();
    afx_msg void OnUpdateDisabled(CCmdUI* pCmdUI) { pCmdUI->Enable(FALSE); }
    afx_msg void OnDisabled() {}
    DECLARE_MESSAGE_MAP()
};

class CSampleApp : public CWinApp
{
public:
    CSampleApp() : CWinApp("Sample Host") {}
    BOOL InitInstance() override;
    CMainFrame* Frame() const { return static_cast<CMainFrame*>(m_pMainWnd); }
};

extern CSampleApp theApp;
