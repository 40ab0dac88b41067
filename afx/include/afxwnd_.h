// Command targets with message maps, and windows.
#pragma once

#include <commctrl.h>

#undef GetNextWindow  // CWnd has a member of that name

#define afx_msg
#define AFX_MSG_CALL

class CCmdTarget;
class CCmdUI;
class CWnd;
class CDC;
class CMenu;
class CFrameWnd;
class CWinThread;
struct CCreateContext;
class CDataExchange;
class CFont;
class CRgn;

typedef void (AFX_MSG_CALL CCmdTarget::*AFX_PMSG)();
typedef void (AFX_MSG_CALL CWnd::*AFX_PMSGW)();

struct AFX_MSGMAP_ENTRY
{
    UINT nMessage;  // window message, or WM_COMMAND / WM_NOTIFY (reflected: plus WM_REFLECT_BASE)
    UINT nCode;     // notification code, CN_COMMAND or CN_UPDATE_COMMAND_UI
    UINT nID;       // first control or command id
    UINT nLastID;   // last id of a range
    UINT_PTR nSig;  // AfxSig: the handler's signature
    AFX_PMSG pfn;
};

struct AFX_MSGMAP
{
    const AFX_MSGMAP*(PASCAL* pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

// Filled by OnCmdMsg when a caller only asks whether a handler exists.
struct AFX_CMDHANDLERINFO
{
    CCmdTarget* pTarget;
    AFX_PMSG pmf;
};

struct AFX_NOTIFY
{
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

// The merged control-colour message carries this in its LPARAM.
struct AFX_CTLCOLOR
{
    HWND hWnd;
    HDC hDC;
    UINT nCtlType;
};

#define CTLCOLOR_MSGBOX 0
#define CTLCOLOR_EDIT 1
#define CTLCOLOR_LISTBOX 2
#define CTLCOLOR_BTN 3
#define CTLCOLOR_DLG 4
#define CTLCOLOR_SCROLLBAR 5
#define CTLCOLOR_STATIC 6

#include "afxmsg_.h"

// The first entry of the chain of maps that matches message, code and id.
AFX_API const AFX_MSGMAP_ENTRY* AFXAPI AfxFindMessageEntry(const AFX_MSGMAP_ENTRY* lpEntry, UINT nMsg, UINT nCode,
                                                           UINT nID);

class AFX_API CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)

public:
    CCmdTarget() = default;

    // Routes a command, an update request or a notification to this target's map.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

protected:
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
};

// The state of one user-interface item (menu item, control) as an update handler sets it.
class AFX_API CCmdUI
{
public:
    UINT m_nID = 0;
    UINT m_nIndex = 0;
    CMenu* m_pMenu = nullptr;
    CMenu* m_pSubMenu = nullptr;
    CMenu* m_pParentMenu = nullptr;
    CWnd* m_pOther = nullptr;
    BOOL m_bEnableChanged = FALSE;
    BOOL m_bContinueRouting = FALSE;
    UINT m_nIndexMax = 0;

    CCmdUI() = default;
    virtual ~CCmdUI() = default;

    virtual void Enable(BOOL bOn = TRUE);
    virtual void SetCheck(int nCheck = 1);
    virtual void SetRadio(BOOL bOn = TRUE);
    virtual void SetText(LPCSTR lpszText);
    void ContinueRouting() { m_bContinueRouting = TRUE; }

    // Asks pTarget's update handler; without one, and with bDisableIfNoHndler, an item that has
    // no command handler either is disabled.
    BOOL DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
};

// Window flags kept in CWnd::m_nFlags.
#define WF_CONTINUEMODAL 0x0001
#define WF_MODALLOOP 0x0002
#define WF_TEMPORARY 0x0004

// RunModalLoop flags.
#define MLF_NOIDLEMSG 0x0001
#define MLF_NOKICKIDLE 0x0002
#define MLF_SHOWONIDLE 0x0004

// RepositionBars modes.
enum RepositionFlags
{
    reposDefault = 0,
    reposQuery = 1,
    reposExtra = 2,
    reposNoPosLeftOver = 0x8000
};

AFX_API HWND AFXAPI AfxGetSafeHwnd(const CWnd* pWnd);

class AFX_API CWnd : public CCmdTarget
{
    DECLARE_DYNCREATE(CWnd)

public:
    // Attributes
    HWND m_hWnd = nullptr;
    operator HWND() const { return m_hWnd; }
    // Safe on a null object, as callers pass optional windows through it.
    HWND GetSafeHwnd() const { return AfxGetSafeHwnd(this); }
    BOOL operator==(const CWnd& wnd) const { return wnd.m_hWnd == m_hWnd; }
    BOOL operator!=(const CWnd& wnd) const { return wnd.m_hWnd != m_hWnd; }

    // Insert-after positions for SetWindowPos.
    static const CWnd wndTop;
    static const CWnd wndBottom;
    static const CWnd wndTopMost;
    static const CWnd wndNoTopMost;

    CWnd();
    ~CWnd() override;

    // The handle maps: a permanent object owns its window; other handles get temporary objects
    // that live until the temporary maps are unlocked.
    static CWnd* PASCAL FromHandle(HWND hWnd);
    static CWnd* PASCAL FromHandlePermanent(HWND hWnd);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HWND hWndNew);
    HWND Detach();
    // Routes the window's messages through this object; the original procedure becomes the
    // default one.
    BOOL SubclassWindow(HWND hWnd);
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    // Gives the original procedure back and detaches.
    HWND UnsubclassWindow();

    // Creation
    virtual BOOL Create(LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID, CCreateContext* pContext = nullptr);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle, int x, int y,
                          int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam = nullptr);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                          CWnd* pParentWnd, UINT nID, LPVOID lpParam = nullptr);
    virtual BOOL DestroyWindow();
    virtual BOOL PreCreateWindow(CREATESTRUCTA& cs);

    // Styles and identity
    DWORD GetStyle() const { return (DWORD)::GetWindowLongPtrA(m_hWnd, GWL_STYLE); }
    DWORD GetExStyle() const { return (DWORD)::GetWindowLongPtrA(m_hWnd, GWL_EXSTYLE); }
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    static BOOL PASCAL ModifyStyle(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags);
    static BOOL PASCAL ModifyStyleEx(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags);
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    int SetDlgCtrlID(int nID) { return (int)::SetWindowLongPtrA(m_hWnd, GWLP_ID, nID); }
    void SetWindowText(LPCSTR lpszString) { ::SetWindowTextA(m_hWnd, lpszString); }
    int GetWindowText(LPSTR lpszStringBuf, int nMaxCount) const
    {
        return ::GetWindowTextA(m_hWnd, lpszStringBuf, nMaxCount);
    }
    void GetWindowText(CString& rString) const;
    int GetWindowTextLength() const { return ::GetWindowTextLengthA(m_hWnd); }
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);
    CFont* GetFont() const;
    CMenu* GetMenu() const;
    BOOL SetMenu(CMenu* pMenu);
    void DrawMenuBar() { ::DrawMenuBar(m_hWnd); }
    CMenu* GetSystemMenu(BOOL bRevert) const;

    // Geometry
    void GetWindowRect(LPRECT lpRect) const { ::GetWindowRect(m_hWnd, lpRect); }
    void GetClientRect(LPRECT lpRect) const { ::GetClientRect(m_hWnd, lpRect); }
    void ClientToScreen(LPPOINT lpPoint) const { ::ClientToScreen(m_hWnd, lpPoint); }
    void ClientToScreen(LPRECT lpRect) const;
    void ScreenToClient(LPPOINT lpPoint) const { ::ScreenToClient(m_hWnd, lpPoint); }
    void ScreenToClient(LPRECT lpRect) const;
    void MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const;
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE);
    void MoveWindow(LPCRECT lpRect, BOOL bRepaint = TRUE);
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    BOOL GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const { return ::GetWindowPlacement(m_hWnd, lpwndpl); }
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl) { return ::SetWindowPlacement(m_hWnd, lpwndpl); }
    BOOL GetWindowInfo(PWINDOWINFO pwi) const { return ::GetWindowInfo(m_hWnd, pwi); }
    void CenterWindow(CWnd* pAlternateOwner = nullptr);

    // State
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL EnableWindow(BOOL bEnable = TRUE) { return ::EnableWindow(m_hWnd, bEnable); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    BOOL ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
    BOOL IsZoomed() const { return ::IsZoomed(m_hWnd); }
    BOOL IsIconic() const { return ::IsIconic(m_hWnd); }
    BOOL IsChild(const CWnd* pWnd) const { return ::IsChild(m_hWnd, pWnd->GetSafeHwnd()); }
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    static CWnd* PASCAL GetFocus() { return FromHandle(::GetFocus()); }
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    static CWnd* PASCAL GetCapture() { return FromHandle(::GetCapture()); }
    static CWnd* PASCAL GetActiveWindow() { return FromHandle(::GetActiveWindow()); }
    CWnd* SetActiveWindow() { return FromHandle(::SetActiveWindow(m_hWnd)); }
    BOOL SetForegroundWindow() { return ::SetForegroundWindow(m_hWnd); }
    static CWnd* PASCAL GetDesktopWindow() { return FromHandle(::GetDesktopWindow()); }

    // Painting
    void Invalidate(BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, bErase); }
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, lpRect, bErase); }
    void ValidateRect(LPCRECT lpRect) { ::ValidateRect(m_hWnd, lpRect); }
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    BOOL RedrawWindow(LPCRECT lpRectUpdate = nullptr, CRgn* prgnUpdate = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    CDC* GetDC();
    CDC* GetWindowDC();
    CDC* GetDCEx(CRgn* prgnClip, DWORD flags);
    int ReleaseDC(CDC* pDC);

    // Relatives
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    CWnd* SetParent(CWnd* pWndNewParent) { return FromHandle(::SetParent(m_hWnd, pWndNewParent->GetSafeHwnd())); }
    CWnd* GetOwner() const;
    void SetOwner(CWnd* pOwnerWnd) { m_hWndOwner = pOwnerWnd->GetSafeHwnd(); }
    CWnd* GetWindow(UINT nCmd) const { return FromHandle(::GetWindow(m_hWnd, nCmd)); }
    CWnd* GetTopWindow() const { return FromHandle(::GetTopWindow(m_hWnd)); }
    CWnd* GetNextWindow(UINT nFlag = GW_HWNDNEXT) const { return FromHandle(::GetWindow(m_hWnd, nFlag)); }
    CWnd* GetTopLevelParent() const;
    CFrameWnd* GetParentFrame() const;
    CWnd* GetDlgItem(int nID) const { return FromHandle(::GetDlgItem(m_hWnd, nID)); }
    void GetDlgItem(int nID, HWND* phWnd) const { *phWnd = ::GetDlgItem(m_hWnd, nID); }
    void SetDlgItemText(int nID, LPCSTR lpszString) { ::SetDlgItemTextA(m_hWnd, nID, lpszString); }
    int GetDlgItemText(int nID, CString& rString) const;
    void SetDlgItemInt(int nID, UINT nValue, BOOL bSigned = TRUE) { ::SetDlgItemInt(m_hWnd, nID, nValue, bSigned); }
    UINT GetDlgItemInt(int nID, BOOL* lpTrans = nullptr, BOOL bSigned = TRUE) const
    {
        return ::GetDlgItemInt(m_hWnd, nID, lpTrans, bSigned);
    }
    void CheckDlgButton(int nIDButton, UINT nCheck) { ::CheckDlgButton(m_hWnd, nIDButton, nCheck); }
    UINT IsDlgButtonChecked(int nIDButton) const { return ::IsDlgButtonChecked(m_hWnd, nIDButton); }
    void CheckRadioButton(int nIDFirst, int nIDLast, int nIDCheck)
    {
        ::CheckRadioButton(m_hWnd, nIDFirst, nIDLast, nIDCheck);
    }
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, BOOL bDeep = TRUE,
                                  BOOL bOnlyPerm = FALSE);

    // Messages
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::SendMessageA(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::PostMessageA(m_hWnd, message, wParam, lParam);
    }
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer)
    {
        return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
    }
    BOOL KillTimer(UINT_PTR nIDEvent) { return ::KillTimer(m_hWnd, nIDEvent); }
    int MessageBox(LPCSTR lpszText, LPCSTR lpszCaption = nullptr, UINT nType = MB_OK);

    // The message being handled: Default passes it on unchanged.
    static const MSG* PASCAL GetCurrentMessage();
    LRESULT Default();

    // Command updates of the child controls, by the rules of the update handlers.
    void UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
    // Lays out control bars (ids nIDFirst..nIDLast) and gives the rest to nIDLeftOver.
    void RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag = reposDefault,
                        LPRECT lpRectParam = nullptr, LPCRECT lpRectClient = nullptr, BOOL bStretch = TRUE);
    // Dialog data exchange: FALSE when a field failed.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);
    BOOL ExecuteDlgInit(LPCSTR lpszResourceName);

    // Modal loops
    virtual int RunModalLoop(DWORD dwFlags = 0);
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int nResult);

    // Overridables
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual void PreSubclassWindow();
    virtual void PostNcDestroy();
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    // A message sent to the parent, offered to the child's object first.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = 0);
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    // Reflection helpers
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = nullptr);
    static BOOL PASCAL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = nullptr);
    // Calls PreTranslateMessage from the message's window up through its parents to hWndStop.
    static BOOL PASCAL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);

    // Message handlers: each passes its message on to the default procedure.
    afx_msg void OnPaint();
    afx_msg void OnDestroy();
    afx_msg void OnNcDestroy();
    afx_msg void OnClose();
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI);
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
    afx_msg void OnWindowPosChanging(WINDOWPOS* lpwndpos);
    afx_msg void OnWindowPosChanged(WINDOWPOS* lpwndpos);
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg UINT OnGetDlgCode();

    // Implementation
    WNDPROC m_pfnSuper = nullptr;  // the procedure that Default and DefWindowProc call
    UINT m_nFlags = 0;
    int m_nModalResult = 0;
    HWND m_hWndOwner = nullptr;  // owner set with SetOwner, for control bars and their frame

protected:
    // Keyboard and mouse input of this window and its children takes dialog navigation.
    BOOL PreTranslateInput(MSG* pMsg);
    BOOL CreateDlgIndirect(LPCDLGTEMPLATEA lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst);

private:
    explicit CWnd(HWND hWnd) : m_hWnd(hWnd) {}
    HBRUSH ReflectCtlColor(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult, BOOL& bHandled);
    LRESULT DispatchWindowMessage(const AFX_MSGMAP_ENTRY* pEntry, UINT message, WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()
};

// The window procedure of every window that an object owns.
AFX_API LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
AFX_API LRESULT AFXAPI AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
// The next window created on this thread is attached to pWnd before its first message.
AFX_API void AFXAPI AfxHookWindowCreate(CWnd* pWnd);
AFX_API BOOL AFXAPI AfxUnhookWindowCreate();
// A window class with the runtime's procedure; the name is made from the arguments.
AFX_API LPCSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr, HBRUSH hbrBackground = nullptr,
                                          HICON hIcon = nullptr);
// Temporary objects stay alive while the maps are locked; the last unlock deletes them.
AFX_API void AFXAPI AfxLockTempMaps();
AFX_API BOOL AFXAPI AfxUnlockTempMaps(BOOL bDeleteTemps = TRUE);
