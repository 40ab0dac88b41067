// Dialog data exchange between controls and members.
#include "afximpl_.h"

#include <cstdlib>

HWND CDataExchange::PrepareCtrl(int nIDC)
{
    HWND hWndCtrl = ::GetDlgItem(m_pDlgWnd->m_hWnd, nIDC);
    m_hWndLastControl = hWndCtrl;
    m_bEditLastControl = FALSE;
    return hWndCtrl;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC)
{
    HWND hWndCtrl = PrepareCtrl(nIDC);
    m_bEditLastControl = TRUE;
    return hWndCtrl;
}

void CDataExchange::Fail()
{
    if (!m_bSaveAndValidate || m_bFailed)
        return;
    if (m_hWndLastControl != nullptr)
    {
        ::SetFocus(m_hWndLastControl);
        if (m_bEditLastControl)
            ::SendMessageA(m_hWndLastControl, EM_SETSEL, 0, -1);
    }
    m_bFailed = TRUE;
}

namespace {

CString ControlText(HWND hWnd)
{
    CString text;
    int nLen = ::GetWindowTextLengthA(hWnd);
    ::GetWindowTextA(hWnd, text.GetBufferSetLength(nLen), nLen + 1);
    text.ReleaseBuffer();
    return text;
}

// A whole number with optional surrounding blanks, as the text of an edit box holds it.
BOOL ParseInteger(const CString& text, BOOL bSigned, long long& value)
{
    const char* p = text;
    while (*p == ' ' || *p == '\t')
        ++p;
    if (!bSigned && *p == '-')
        return FALSE;
    char* pEnd = nullptr;
    value = strtoll(p, &pEnd, 10);
    if (pEnd == p)
        return FALSE;
    while (*pEnd == ' ' || *pEnd == '\t')
        ++pEnd;
    return *pEnd == '\0';
}

void TextNumber(CDataExchange* pDX, int nIDC, long long& value, BOOL bSigned, long long lo, long long hi)
{
    HWND hWndCtrl = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
    {
        long long parsed = 0;
        if (!ParseInteger(ControlText(hWndCtrl), bSigned, parsed) || parsed < lo || parsed > hi)
        {
            AfxMessageBox(bSigned ? "Please enter an integer." : "Please enter a positive integer.",
                          MB_ICONEXCLAMATION);
            pDX->Fail();
            return;
        }
        value = parsed;
        return;
    }
    char szBuffer[32];
    wsprintfA(szBuffer, bSigned ? "%d" : "%u", (int)value);
    ::SetWindowTextA(hWndCtrl, szBuffer);
}

// A control whose value one message reads and another writes (a check state, a selection).
void ExchangeByMessages(CDataExchange* pDX, int nIDC, int& value, UINT nGetMsg, UINT nSetMsg)
{
    if (pDX->m_bFailed)
        return;
    HWND hWndCtrl = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = (int)::SendMessageA(hWndCtrl, nGetMsg, 0, 0);
    else
        ::SendMessageA(hWndCtrl, nSetMsg, (WPARAM)value, 0);
}

}  // namespace

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value)
{
    if (pDX->m_bFailed)
        return;
    HWND hWndCtrl = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = ControlText(hWndCtrl);
    else
        ::SetWindowTextA(hWndCtrl, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value)
{
    if (pDX->m_bFailed)
        return;
    long long v = value;
    TextNumber(pDX, nIDC, v, TRUE, INT_MIN, INT_MAX);
    value = (int)v;
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value)
{
    if (pDX->m_bFailed)
        return;
    long long v = value;
    TextNumber(pDX, nIDC, v, FALSE, 0, UINT_MAX);
    value = (UINT)v;
}

void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value)
{
    ExchangeByMessages(pDX, nIDC, value, BM_GETCHECK, BM_SETCHECK);
}

void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value)
{
    if (pDX->m_bFailed)
        return;
    HWND hWndCtrl = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = -1;
    // The group runs from nIDC to the next control with WS_GROUP; only radio buttons count.
    int iButton = 0;
    for (HWND hWnd = hWndCtrl; hWnd != nullptr; hWnd = ::GetWindow(hWnd, GW_HWNDNEXT))
    {
        if (hWnd != hWndCtrl && (::GetWindowLongPtrA(hWnd, GWL_STYLE) & WS_GROUP))
            break;
        if ((::SendMessageA(hWnd, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) == 0)
            continue;
        if (pDX->m_bSaveAndValidate)
        {
            if (::SendMessageA(hWnd, BM_GETCHECK, 0, 0) == BST_CHECKED)
                value = iButton;
        }
        else
        {
            ::SendMessageA(hWnd, BM_SETCHECK, iButton == value ? BST_CHECKED : BST_UNCHECKED, 0);
        }
        ++iButton;
    }
}

void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index)
{
    ExchangeByMessages(pDX, nIDC, index, CB_GETCURSEL, CB_SETCURSEL);
}

void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index)
{
    ExchangeByMessages(pDX, nIDC, index, LB_GETCURSEL, LB_SETCURSEL);
}

void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl)
{
    if (pDX->m_bFailed || rControl.m_hWnd != nullptr)
        return;
    HWND hWndCtrl = pDX->PrepareCtrl(nIDC);
    if (hWndCtrl == nullptr || !rControl.SubclassWindow(hWndCtrl))
        pDX->m_bFailed = TRUE;
}

void AFXAPI DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars)
{
    if (pDX->m_bFailed)
        return;
    if (pDX->m_bSaveAndValidate && value.GetLength() > nChars)
    {
        CString prompt;
        prompt.Format("Please enter no more than %d characters.", nChars);
        AfxMessageBox(prompt, MB_ICONEXCLAMATION);
        pDX->Fail();
    }
    else if (!pDX->m_bSaveAndValidate && pDX->m_hWndLastControl != nullptr && pDX->m_bEditLastControl)
    {
        ::SendMessageA(pDX->m_hWndLastControl, EM_LIMITTEXT, (WPARAM)nChars, 0);
    }
}

void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal)
{
    if (pDX->m_bFailed || !pDX->m_bSaveAndValidate || (value >= minVal && value <= maxVal))
        return;
    CString prompt;
    prompt.Format("Please enter an integer between %d and %d.", minVal, maxVal);
    AfxMessageBox(prompt, MB_ICONEXCLAMATION);
    pDX->Fail();
}
