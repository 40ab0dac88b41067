#include "SampleHost.h"

CSampleApp theApp;

void CSwatchButton::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    ++m_nDraws;
    CDC* pDC = CDC::FromHandle(lpDrawItemStruct->hDC);
    pDC->FillSolidRect(&lpDrawItemStruct->rcItem, kSwatchColour);
}

BEGIN_MESSAGE_MAP(CSettingsDialog, CDialog)
    ON_UPDATE_COMMAND_UI(IDC_APPLY, &CSettingsDialog::OnUpdateApply)
    ON_BN_CLICKED(IDC_APPLY, &CSettingsDialog::OnApply)
END_MESSAGE_MAP()

BOOL CSettingsDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    UpdateDialogControls(this, TRUE);
    return TRUE;
}

void CSettingsDialog::DoDataExchange(CDataExchange* pDX)
{
    DDX_Text(pDX, IDC_NAME, m_strName);
    DDX_Text(pDX, IDC_COUNT, m_nCount);
    DDX_Control(pDX, IDC_OWNERDRAW, m_swatch);
}

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_COMMAND(ID_FILE_OPEN_TEST, &CMainFrame::OnOpen)
    ON_COMMAND(IDC_BAR_GO, &CMainFrame::OnGo)
    ON_COMMAND(ID_TOOLS_SETTINGS, &CMainFrame::OnSettings)
    ON_COMMAND(ID_TOOLS_PROPERTIES, &CMainFrame::OnProperties)
    ON_COMMAND(ID_TOOLS_DISABLED, &CMainFrame::OnDisabled)
    ON_UPDATE_COMMAND_UI(ID_TOOLS_DISABLED, &CMainFrame::OnUpdateDisabled)
END_MESSAGE_MAP()

int CMainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CFrameWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    if (!m_wndBar.Create(this, IDD_BAR, CBRS_TOP, AFX_IDW_DIALOGBAR))
        return -1;
    return 0;
}

BOOL CMainFrame::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg->message == WM_KEYDOWN)
        ++m_nKeysSeen;
    return CFrameWnd::PreTranslateMessage(pMsg);
}

void CMainFrame::OnSettings()
{
    CSettingsDialog dlg(this);
    dlg.m_strName = m_strName;
    dlg.m_nCount = m_nCount;
    m_nLastResult = dlg.DoModal();
    if (m_nLastResult == IDOK)
    {
        m_strName = dlg.m_strName;
        m_nCount = dlg.m_nCount;
    }
}

void CMainFrame::OnProperties()
{
    CPropertySheet sheet(IDS_PROPERTIES, this);
    COptionsPage options;
    CFlagsPage flags;
    options.m_strPath = m_strPath;
    flags.m_nFlag = m_nFlag;
    sheet.AddPage(&options);
    sheet.AddPage(&flags);
    m_nLastResult = sheet.DoModal();
    if (m_nLastResult == IDOK)
    {
        m_strPath = options.m_strPath;
        m_nFlag = flags.m_nFlag;
    }
}

BOOL CSampleApp::InitInstance()
{
    CMainFrame* pFrame = new CMainFrame;
    if (!pFrame->LoadFrame(IDR_MAINFRAME))
        return FALSE;
    m_pMainWnd = pFrame;
    pFrame->ShowWindow(SW_SHOW);
    pFrame->UpdateWindow();
    return TRUE;
}
