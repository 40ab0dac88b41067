#include "mfcCDialogBar.h"

#include "DialogScheme.h"

namespace scheme = kiv::dialogs;

BEGIN_MESSAGE_MAP(mfcCDialogBar, CDialogBar)
    ON_WM_DESTROY()
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

mfcCDialogBar::mfcCDialogBar() : m_pToolTip(nullptr)
{
    m_brBackground.CreateSolidBrush(0xFFFFFF);
}

mfcCDialogBar::~mfcCDialogBar()
{
    delete m_pToolTip;
    m_brBackground.DeleteObject();
}

BOOL mfcCDialogBar::Create(CWnd* pParentWnd, const char* lpszTemplateName, UINT nStyle, UINT nID)
{
    if (!CDialogBar::Create(pParentWnd, lpszTemplateName, nStyle, nID))
        return FALSE;
    AttachToolTips(lpszTemplateName);
    if (!OnInitDialogBar())
        return FALSE;  // the window stays; the arrows are not loaded
    scheme::LoadComboArrows(m_bmpComboArrow, m_bmpComboArrowDisabled);
    return TRUE;
}

BOOL mfcCDialogBar::Create(CWnd* pParentWnd, UINT nIDTemplate, UINT nStyle, UINT nID)
{
    if (!Create(pParentWnd, MAKEINTRESOURCEA(nIDTemplate), nStyle, nID))
        return FALSE;
    // kept: hosts' bars have always been set up twice when made from a numeric id
    AttachToolTips(MAKEINTRESOURCEA(nIDTemplate));
    return OnInitDialogBar() ? TRUE : FALSE;
}

BOOL mfcCDialogBar::OnInitDialogBar()
{
    UpdateData(FALSE);
    return TRUE;
}

void mfcCDialogBar::DoDataExchange(CDataExchange* /*pDX*/) {}

void mfcCDialogBar::AttachToolTips(const char* lpszTemplateName)
{
    const void* data = nullptr;
    DWORD size = 0;
    if (!scheme::LockTipText(lpszTemplateName, data, size))
        return;  // any tooltips the bar has stay
    delete m_pToolTip;
    m_pToolTip = new CToolTipCtrl;
    m_pToolTip->Create(this, TTS_ALWAYSTIP);
    m_pToolTip->SetWindowPos(&CWnd::wndTopMost, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
    scheme::AddTipTools(*m_pToolTip, this, data, size);
    m_pToolTip->SendMessage(TTM_ACTIVATE, TRUE);
}

void mfcCDialogBar::UpdateTipText(UINT nIDText, CWnd* pWnd, UINT nIDTool)
{
    m_pToolTip->UpdateTipText(nIDText, pWnd, nIDTool);
}

void mfcCDialogBar::UpdateTipText(const char* lpszText, CWnd* pWnd, UINT nIDTool)
{
    m_pToolTip->UpdateTipText(lpszText, pWnd, nIDTool);
}

BOOL mfcCDialogBar::PreTranslateMessage(MSG* pMsg)
{
    scheme::RelayToTips(m_pToolTip, pMsg);
    return CControlBar::PreTranslateMessage(pMsg);
}

HBRUSH mfcCDialogBar::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    return scheme::SchemeCtlColor(pDC, pWnd, nCtlColor, m_brBackground, m_bmpComboArrow, m_bmpComboArrowDisabled,
                                  scheme::CtlColorKind::kBar);
}

BOOL mfcCDialogBar::OnEraseBkgnd(CDC* pDC)
{
    CBrush white(0xFFFFFF);
    CRect clip;
    pDC->GetClipBox(&clip);
    ::FillRect(pDC->m_hDC, &clip, (HBRUSH)white.GetSafeHandle());
    white.DeleteObject();
    return TRUE;
}

void mfcCDialogBar::OnDestroy()
{
    CControlBar::OnDestroy();
    delete m_pToolTip;  // its window goes with it
    m_pToolTip = nullptr;
    scheme::DeleteComboArrows(m_bmpComboArrow, m_bmpComboArrowDisabled);
}
