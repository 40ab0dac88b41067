#include "mfcCPropertyPage.h"

#include "ColorButton.h"
#include "DialogScheme.h"

namespace scheme = kiv::dialogs;

IMPLEMENT_DYNAMIC(mfcCPropertyPage, CPropertyPage)

BEGIN_MESSAGE_MAP(mfcCPropertyPage, CPropertyPage)
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_CTLCOLOR()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

mfcCPropertyPage::mfcCPropertyPage(UINT nIDTemplate, UINT nIDCaption)
    : CPropertyPage(nIDTemplate, nIDCaption, sizeof(PROPSHEETPAGEA)), m_pToolTip(nullptr), m_bInitialized(FALSE)
{}

mfcCPropertyPage::mfcCPropertyPage(const char* lpszTemplateName, UINT nIDCaption)
    : CPropertyPage(lpszTemplateName, nIDCaption, sizeof(PROPSHEETPAGEA)), m_pToolTip(nullptr), m_bInitialized(FALSE)
{}

mfcCPropertyPage::~mfcCPropertyPage()
{
    delete m_pToolTip;  // its window goes with it
    for (CColorButton* button : m_colorButtons)
        delete button;
}

void mfcCPropertyPage::DoDataExchange(CDataExchange* /*pDX*/) {}

BOOL mfcCPropertyPage::OnInitDialog()
{
    CDialog::OnInitDialog();
    m_bInitialized = TRUE;
    UpdateDialogControls(this, TRUE);
    m_pToolTip = scheme::CreateDialogTips(this, m_lpszTemplateName);
    m_brBackground.CreateSolidBrush(0xFFFFFF);
    scheme::SubclassPushButtons(this, m_colorButtons);
    scheme::LoadComboArrows(m_bmpComboArrow, m_bmpComboArrowDisabled);
    return TRUE;  // whatever the base answered
}

BOOL mfcCPropertyPage::OnCommand(WPARAM wParam, LPARAM lParam)
{
    BOOL result = CWnd::OnCommand(wParam, lParam);
    if (m_hWnd != nullptr && m_bInitialized)
        UpdateDialogControls(this, TRUE);
    return result;
}

BOOL mfcCPropertyPage::PreTranslateMessage(MSG* pMsg)
{
    scheme::RelayToTips(m_pToolTip, pMsg);
    return CPropertyPage::PreTranslateMessage(pMsg);
}

HBRUSH mfcCPropertyPage::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    return scheme::SchemeCtlColor(pDC, pWnd, nCtlColor, m_brBackground, m_bmpComboArrow, m_bmpComboArrowDisabled,
                                  scheme::CtlColorKind::kDialog);
}

BOOL mfcCPropertyPage::OnEraseBkgnd(CDC* pDC)
{
    CRect client;
    GetClientRect(&client);
    ::FillRect(pDC->m_hDC, &client, (HBRUSH)m_brBackground.GetSafeHandle());
    return TRUE;
}

void mfcCPropertyPage::OnPaint()
{
    scheme::PaintWhiteWithGrip(this, m_brBackground);
}

void mfcCPropertyPage::OnDestroy()
{
    if (m_pToolTip != nullptr)
    {
        m_pToolTip->DestroyWindow();
        delete m_pToolTip;
        m_pToolTip = nullptr;
    }
    scheme::ReleaseColorButtons(m_colorButtons);
    m_brBackground.DeleteObject();
    scheme::DeleteComboArrows(m_bmpComboArrow, m_bmpComboArrowDisabled);
    CWnd::OnDestroy();
}
