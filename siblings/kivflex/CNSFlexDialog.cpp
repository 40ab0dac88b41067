#include "CNSFlexDialog.h"

IMPLEMENT_DYNAMIC(CNSFlexDialog, CDialog)

BEGIN_MESSAGE_MAP(CNSFlexDialog, CDialog)
END_MESSAGE_MAP()

CNSFlexDialog::CNSFlexDialog() : m_pSubject(nullptr) {}

CNSFlexDialog::CNSFlexDialog(UINT nIDTemplate, CWnd* pParentWnd, void* pSubject)
    : CDialog(nIDTemplate, pParentWnd), m_pSubject(pSubject)
{}

CNSFlexDialog::CNSFlexDialog(const char* lpszTemplateName, CWnd* pParentWnd, void* pSubject)
    : CDialog(lpszTemplateName, pParentWnd), m_pSubject(pSubject)
{}

CNSFlexDialog::~CNSFlexDialog() = default;

BOOL CNSFlexDialog::OnInitDialog()
{
    return CDialog::OnInitDialog();
}

void CNSFlexDialog::OnOK()
{
    if (OnApplyChanges(m_pSubject))
        EndDialog(IDOK);
}

int CNSFlexDialog::OnApplyChanges(void* /*pSubject*/)
{
    return UpdateData(TRUE);
}

void CNSFlexDialog::SetSubject(void* pSubject)
{
    m_pSubject = pSubject;
}
