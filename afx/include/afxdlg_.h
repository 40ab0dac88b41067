// Dialogs, dialog data exchange and the standard controls.
#pragma once

// The context of one UpdateData pass. A failed field does not unwind: it marks the exchange
// failed, and the DDX_ calls after it do nothing.
class AFX_API CDataExchange
{
public:
    BOOL m_bSaveAndValidate;
    CWnd* m_pDlgWnd;
    HWND m_hWndLastControl = nullptr;
    BOOL m_bEditLastControl = FALSE;
    BOOL m_bFailed = FALSE;

    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate) : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd) {}
    HWND PrepareCtrl(int nIDC);
    HWND PrepareEditCtrl(int nIDC);
    // Puts the focus back on the last control and marks the exchange failed.
    void Fail();
};

AFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
AFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value);
AFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value);
AFX_API void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value);
// nIDC is the first radio button of its group; value is the index of the checked one, or -1.
AFX_API void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value);
AFX_API void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
AFX_API void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);
// Subclasses the control with rControl the first time.
AFX_API void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);
AFX_API void AFXAPI DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars);
AFX_API void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);

AFX_API int AFXAPI AfxMessageBox(LPCSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
AFX_API int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = (UINT)-1);

class AFX_API CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)

public:
    // The template is found in the application or any library of the resource chain.
    explicit CDialog(LPCSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    ~CDialog() override;

    // Modeless
    virtual BOOL Create(LPCSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    virtual BOOL CreateIndirect(LPCDLGTEMPLATEA lpDialogTemplate, CWnd* pParentWnd = nullptr);
    // Modal: runs the dialog's loop, then calls the virtual DestroyWindow.
    virtual INT_PTR DoModal();
    void EndDialog(int nResult);

    // Operations
    void NextDlgCtrl() const { ::SendMessageA(m_hWnd, WM_NEXTDLGCTL, 0, 0); }
    void PrevDlgCtrl() const { ::SendMessageA(m_hWnd, WM_NEXTDLGCTL, 1, 0); }
    void GotoDlgCtrl(CWnd* pWndCtrl);
    void SetDefID(UINT nID) { ::SendMessageA(m_hWnd, DM_SETDEFID, nID, 0); }
    DWORD GetDefID() const { return (DWORD)::SendMessageA(m_hWnd, DM_GETDEFID, 0, 0); }
    void MapDialogRect(LPRECT lpRect) const { ::MapDialogRect(m_hWnd, lpRect); }

    // Overridables
    virtual BOOL OnInitDialog();
    virtual void OnSetFont(CFont* pFont);
    virtual void OnOK();
    virtual void OnCancel();
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    // Implementation
    LPCSTR m_lpszTemplateName = nullptr;  // a name or an integer resource id
    UINT m_nIDHelp = 0;
    LPCDLGTEMPLATEA m_lpDialogTemplate = nullptr;
    CWnd* m_pParentWnd = nullptr;
    HWND m_hWndTop = nullptr;

protected:
    CDialog();
    // The owner of a modal dialog: the parent given, else the active or main window.
    HWND PreModal();
    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT HandleSetFont(WPARAM wParam, LPARAM lParam);

private:
    CString m_strTemplateName;  // keeps a named template alive
    void SetTemplateName(LPCSTR lpszTemplateName);

    DECLARE_MESSAGE_MAP()
};

// Dialog procedure of the runtime's dialogs: WM_INITDIALOG reaches OnInitDialog.
AFX_API INT_PTR CALLBACK AfxDlgProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
// Loads a dialog template from the resource chain; hInst receives the module that holds it.
AFX_API LPCDLGTEMPLATEA AFXAPI AfxLoadDialogTemplate(LPCSTR lpszTemplateName, HINSTANCE* phInst);

class AFX_API CStatic : public CWnd
{
    DECLARE_DYNAMIC(CStatic)

public:
    CStatic() = default;
    ~CStatic() override;
    virtual BOOL Create(LPCSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID = 0xffff);
    HBITMAP SetBitmap(HBITMAP hBitmap) { return (HBITMAP)SendMessage(STM_SETIMAGE, IMAGE_BITMAP, (LPARAM)hBitmap); }
    HICON SetIcon(HICON hIcon) { return (HICON)SendMessage(STM_SETICON, (WPARAM)hIcon, 0); }
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

class AFX_API CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)

public:
    CButton() = default;
    ~CButton() override;
    virtual BOOL Create(LPCSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // Attributes
    UINT GetState() const { return (UINT)SendMessage(BM_GETSTATE); }
    void SetState(BOOL bHighlight) { SendMessage(BM_SETSTATE, bHighlight); }
    int GetCheck() const { return (int)SendMessage(BM_GETCHECK); }
    void SetCheck(int nCheck) { SendMessage(BM_SETCHECK, nCheck); }
    UINT GetButtonStyle() const { return (UINT)GetStyle() & 0xFFFF; }
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE) { SendMessage(BM_SETSTYLE, nStyle, bRedraw); }
    HBITMAP SetBitmap(HBITMAP hBitmap) { return (HBITMAP)SendMessage(BM_SETIMAGE, IMAGE_BITMAP, (LPARAM)hBitmap); }

    // Overridables: an owner-drawn button draws itself here.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

class AFX_API CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)

public:
    CEdit() = default;
    ~CEdit() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    void GetSel(int& nStartChar, int& nEndChar) const;
    void ReplaceSel(LPCSTR lpszNewText, BOOL bCanUndo = FALSE)
    {
        SendMessage(EM_REPLACESEL, bCanUndo, (LPARAM)lpszNewText);
    }
    void SetLimitText(UINT nMax) { SendMessage(EM_LIMITTEXT, nMax); }
    BOOL SetReadOnly(BOOL bReadOnly = TRUE) { return (BOOL)SendMessage(EM_SETREADONLY, bReadOnly); }
    int GetLineCount() const { return (int)SendMessage(EM_GETLINECOUNT); }
};

class AFX_API CListBox : public CWnd
{
    DECLARE_DYNAMIC(CListBox)

public:
    CListBox() = default;
    ~CListBox() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    int GetCount() const { return (int)SendMessage(LB_GETCOUNT); }
    int GetCurSel() const { return (int)SendMessage(LB_GETCURSEL); }
    int SetCurSel(int nSelect) { return (int)SendMessage(LB_SETCURSEL, nSelect); }
    int AddString(LPCSTR lpszItem) { return (int)SendMessage(LB_ADDSTRING, 0, (LPARAM)lpszItem); }
    int InsertString(int nIndex, LPCSTR lpszItem)
    {
        return (int)SendMessage(LB_INSERTSTRING, nIndex, (LPARAM)lpszItem);
    }
    int DeleteString(UINT nIndex) { return (int)SendMessage(LB_DELETESTRING, nIndex); }
    void ResetContent() { SendMessage(LB_RESETCONTENT); }
    void GetText(int nIndex, CString& rString) const;
};

class AFX_API CComboBox : public CWnd
{
    DECLARE_DYNAMIC(CComboBox)

public:
    CComboBox() = default;
    ~CComboBox() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    int GetCount() const { return (int)SendMessage(CB_GETCOUNT); }
    int GetCurSel() const { return (int)SendMessage(CB_GETCURSEL); }
    int SetCurSel(int nSelect) { return (int)SendMessage(CB_SETCURSEL, nSelect); }
    int AddString(LPCSTR lpszString) { return (int)SendMessage(CB_ADDSTRING, 0, (LPARAM)lpszString); }
    int InsertString(int nIndex, LPCSTR lpszString)
    {
        return (int)SendMessage(CB_INSERTSTRING, nIndex, (LPARAM)lpszString);
    }
    int DeleteString(UINT nIndex) { return (int)SendMessage(CB_DELETESTRING, nIndex); }
    void ResetContent() { SendMessage(CB_RESETCONTENT); }
    void GetLBText(int nIndex, CString& rString) const;
};
