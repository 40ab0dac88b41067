// Property sheets and their pages.
#pragma once

#include "afxwin.h"

#include <commctrl.h>
#include <prsht.h>

class CPropertySheet;

// A page of a property sheet: a child dialog that the sheet creates when the page is first
// shown, and that hears of activation, apply and cancel through the sheet's notifications.
class AFX_API CPropertyPage : public CDialog
{
    DECLARE_DYNAMIC(CPropertyPage)

public:
    explicit CPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0, DWORD dwSize = sizeof(PROPSHEETPAGEA));
    explicit CPropertyPage(LPCSTR lpszTemplateName, UINT nIDCaption = 0, DWORD dwSize = sizeof(PROPSHEETPAGEA));
    ~CPropertyPage() override;

    // Attributes
    PROPSHEETPAGEA m_psp;
    CString m_strCaption;

    // Operations
    void SetModified(BOOL bChanged = TRUE);
    void CancelToClose();

    // Overridables
    virtual BOOL OnSetActive();
    virtual BOOL OnKillActive();
    void OnOK() override;
    void OnCancel() override;
    virtual BOOL OnApply();
    virtual void OnReset();
    virtual BOOL OnQueryCancel();
    BOOL PreTranslateMessage(MSG* pMsg) override;

    // Implementation: fills m_psp for the sheet that is about to create the page.
    void PreparePage();

protected:
    CPropertyPage();
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    BOOL m_bFirstSetActive = TRUE;

private:
    void CommonConstruct(UINT nIDCaption, DWORD dwSize);
    void NoteSheetClosing(int nResult);
};

class AFX_API CPropertySheet : public CWnd
{
    DECLARE_DYNAMIC(CPropertySheet)

public:
    explicit CPropertySheet(UINT nIDCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    explicit CPropertySheet(LPCSTR pszCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    CPropertySheet();
    ~CPropertySheet() override;

    // Pages
    void AddPage(CPropertyPage* pPage);
    void RemovePage(CPropertyPage* pPage);
    void RemovePage(int nPage);
    int GetPageCount() const { return (int)m_pages.GetSize(); }
    CPropertyPage* GetPage(int nPage) const { return static_cast<CPropertyPage*>(m_pages[nPage]); }
    int GetPageIndex(CPropertyPage* pPage) const;
    CPropertyPage* GetActivePage() const;
    int GetActiveIndex() const;
    BOOL SetActivePage(int nPage);
    BOOL SetActivePage(CPropertyPage* pPage) { return SetActivePage(GetPageIndex(pPage)); }
    void SetTitle(LPCSTR lpszText, UINT nStyle = 0);
    CWnd* GetTabControl() const { return FromHandle((HWND)SendMessage(PSM_GETTABCONTROL)); }
    void PressButton(int nButton) { SendMessage(PSM_PRESSBUTTON, nButton); }

    // Modal: the sheet's loop runs until OK or Cancel closes it; IDOK or IDCANCEL.
    virtual INT_PTR DoModal();
    virtual BOOL Create(CWnd* pParentWnd = nullptr, DWORD dwStyle = (DWORD)-1, DWORD dwExStyle = 0);
    void EndDialog(int nEndID);

    // Overridables
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL ContinueModal() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    // Implementation
    PROPSHEETHEADERA m_psh;
    CString m_strCaption;
    CPtrArray m_pages;
    CWnd* m_pParentWnd = nullptr;

private:
    void CommonConstruct(CWnd* pParentWnd, UINT iSelectPage);
    void BuildHeader();
    HWND StartSheet(HWND hWndParent, BOOL bModal);
    BYTE* m_pPageData = nullptr;

public:
    // How the sheet was last closed: its pages apply on OK and reset on Cancel.
    int m_nClosedWith = IDCANCEL;
};
