// The standard controls: thin wrappers, and owner drawing reached through reflection.
#include "afximpl_.h"

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CListBox, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)

namespace {

// The text of a list item, by the length and text messages of a list box or a combo box; an
// index out of range gives an empty string.
void ListItemText(HWND hWnd, UINT nLenMsg, UINT nTextMsg, int nIndex, CString& rString)
{
    int nLen = (int)::SendMessageA(hWnd, nLenMsg, (WPARAM)nIndex, 0);
    if (nLen < 0)
    {
        rString.Empty();
        return;
    }
    ::SendMessageA(hWnd, nTextMsg, (WPARAM)nIndex, (LPARAM)rString.GetBufferSetLength(nLen));
    rString.ReleaseBuffer();
}

}  // namespace

CStatic::~CStatic() = default;
CButton::~CButton() = default;
CEdit::~CEdit() = default;
CListBox::~CListBox() = default;
CComboBox::~CComboBox() = default;

BOOL CStatic::Create(LPCSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("STATIC", lpszText, dwStyle, rect, pParentWnd, nID);
}

void CStatic::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return AfxChildNotifyDrawItem(this, message, wParam, lParam, pResult);
}

BOOL CButton::Create(LPCSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("BUTTON", lpszCaption, dwStyle, rect, pParentWnd, nID);
}

void CButton::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return AfxChildNotifyDrawItem(this, message, wParam, lParam, pResult);
}

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("EDIT", nullptr, dwStyle, rect, pParentWnd, nID);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll)
{
    SendMessage(EM_SETSEL, (WPARAM)nStartChar, nEndChar);
    if (!bNoScroll)
        SendMessage(EM_SCROLLCARET);
}

void CEdit::GetSel(int& nStartChar, int& nEndChar) const
{
    DWORD dwStart = 0;
    DWORD dwEnd = 0;
    SendMessage(EM_GETSEL, (WPARAM)&dwStart, (LPARAM)&dwEnd);
    nStartChar = (int)dwStart;
    nEndChar = (int)dwEnd;
}

BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("LISTBOX", nullptr, dwStyle, rect, pParentWnd, nID);
}

void CListBox::GetText(int nIndex, CString& rString) const
{
    ListItemText(m_hWnd, LB_GETTEXTLEN, LB_GETTEXT, nIndex, rString);
}

BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("COMBOBOX", nullptr, dwStyle, rect, pParentWnd, nID);
}

void CComboBox::GetLBText(int nIndex, CString& rString) const
{
    ListItemText(m_hWnd, CB_GETLBTEXTLEN, CB_GETLBTEXT, nIndex, rString);
}
