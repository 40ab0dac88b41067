// Applications, their message pump and frame windows.
#pragma once

class CControlBar;

#ifndef FWS_ADDTOTITLE
#define FWS_ADDTOTITLE 0x00008000L
#endif

struct CCreateContext
{
    CRuntimeClass* m_pNewViewClass = nullptr;
    CFrameWnd* m_pCurrentFrame = nullptr;
};

class AFX_API CWinThread : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread();
    ~CWinThread() override;

    // Attributes
    CWnd* m_pMainWnd = nullptr;
    CWnd* m_pActiveWnd = nullptr;
    BOOL m_bAutoDelete = FALSE;
    HANDLE m_hThread = nullptr;
    DWORD m_nThreadID = 0;
    MSG m_msgCur = {};
    virtual CWnd* GetMainWnd();

    // Overridables
    virtual BOOL InitInstance();
    // The message pump: idle processing while the queue is empty, PreTranslateMessage for
    // every message, until WM_QUIT.
    virtual int Run();
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    virtual BOOL PumpMessage();
    virtual BOOL OnIdle(LONG lCount);
    virtual BOOL IsIdleMessage(MSG* pMsg);
    virtual int ExitInstance();
};

class AFX_API CWinApp : public CWinThread
{
    DECLARE_DYNAMIC(CWinApp)

public:
    // lpszAppName names the application; without it, its title string or executable name does.
    explicit CWinApp(LPCSTR lpszAppName = nullptr);
    ~CWinApp() override;

    // Attributes
    LPCSTR m_pszAppName = nullptr;
    HINSTANCE m_hInstance = nullptr;
    LPSTR m_lpCmdLine = nullptr;
    int m_nCmdShow = SW_SHOWNORMAL;
    LPCSTR m_pszExeName = nullptr;

    // Overridables
    virtual BOOL InitApplication();
    BOOL InitInstance() override;
    int Run() override;
    int ExitInstance() override;
    BOOL OnIdle(LONG lCount) override;

    // Implementation: called by AfxWinInit once the instance is known.
    void SetCurrentHandles();
};

AFX_API CWinThread* AFXAPI AfxGetThread();
AFX_API CWnd* AFXAPI AfxGetMainWnd();
// One message of the current thread: FALSE on WM_QUIT.
AFX_API BOOL AFXAPI AfxPumpMessage();
AFX_API BOOL AFXAPI AfxPreTranslateMessage(MSG* pMsg);
AFX_API void AFXAPI AfxPostQuitMessage(int nExitCode);
// The application's entry as a GUI host runs it.
AFX_API int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPSTR lpCmdLine, int nCmdShow);

// Private framework messages.
#define WM_SIZEPARENT 0x0361
#define WM_IDLEUPDATECMDUI 0x0363
#define WM_KICKIDLE 0x036A

// Standard ids of frame parts.
#define AFX_IDW_CONTROLBAR_FIRST 0xE800
#define AFX_IDW_CONTROLBAR_LAST 0xE8FF
#define AFX_IDW_TOOLBAR 0xE800
#define AFX_IDW_STATUS_BAR 0xE801
#define AFX_IDW_DIALOGBAR 0xE805
#define AFX_IDW_PANE_FIRST 0xE900

// What a control bar receives with WM_SIZEPARENT: the space left, shrunk as bars take theirs.
struct AFX_SIZEPARENTPARAMS
{
    HDWP hDWP;
    RECT rect;
    SIZE sizeTotal;
    BOOL bStretch;
};

class AFX_API CFrameWnd : public CWnd
{
    DECLARE_DYNCREATE(CFrameWnd)

public:
    static const CRect rectDefault;
    CFrameWnd();
    ~CFrameWnd() override;

    // The menu named lpszMenuName is found through the resource chain.
    virtual BOOL Create(LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle = WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CWnd* pParentWnd = nullptr, LPCSTR lpszMenuName = nullptr,
                        DWORD dwExStyle = 0, CCreateContext* pContext = nullptr);
    // Title (first part of string nIDResource), menu and accelerators share one id.
    virtual BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                           CWnd* pParentWnd = nullptr, CCreateContext* pContext = nullptr);

    // Control bars docked at the frame's edges
    void AddControlBar(CControlBar* pBar);
    void RemoveControlBar(CControlBar* pBar);
    CControlBar* GetControlBar(UINT nID);
    void ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL bDelay);
    void EnableDocking(DWORD dwDockStyle) { m_dwDockStyle = dwDockStyle; }
    void DockControlBar(CControlBar* pBar, UINT nDockBarID = 0, LPCRECT lpRect = nullptr);
    virtual void RecalcLayout(BOOL bNotify = TRUE);

    // Attributes
    CString m_strTitle;
    HMENU m_hMenuDefault = nullptr;
    HACCEL m_hAccelTable = nullptr;
    BOOL m_bAutoMenuEnable = TRUE;
    DWORD m_dwDockStyle = 0;
    CPtrArray m_listControlBars;
    void SetTitle(LPCSTR lpszTitle) { m_strTitle = lpszTitle; }
    CString GetTitle() const { return m_strTitle; }

    // Overridables
    BOOL PreCreateWindow(CREATESTRUCTA& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override;

protected:
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnClose();
    afx_msg void OnDestroy();
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnKickIdle(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()
};
