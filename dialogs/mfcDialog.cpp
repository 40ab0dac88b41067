#include "mfcDialog.h"

IMPLEMENT_DYNAMIC(mfcDialog, mfcCDialog)

// kept: the entry repeats the handler the base map names, as the class always had it
BEGIN_MESSAGE_MAP(mfcDialog, mfcCDialog)
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

mfcDialog::mfcDialog() = default;

mfcDialog::mfcDialog(UINT nIDTemplate, CWnd* pParentWnd) : mfcCDialog(nIDTemplate, pParentWnd) {}

mfcDialog::mfcDialog(const char* lpszTemplateName, CWnd* pParentWnd) : mfcCDialog(lpszTemplateName, pParentWnd) {}

mfcDialog::~mfcDialog() = default;
