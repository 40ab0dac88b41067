// mfcDialog: an mfcCDialog with a run-time class of its own and the same behaviour.
#pragma once

#include "mfcCDialog.h"

class AFX_EXT_CLASS mfcDialog : public mfcCDialog
{
    DECLARE_DYNAMIC(mfcDialog)

public:
    mfcDialog(UINT nIDTemplate, CWnd* pParentWnd);
    mfcDialog(const char* lpszTemplateName, CWnd* pParentWnd);
    ~mfcDialog() override;

protected:
    mfcDialog();

    DECLARE_MESSAGE_MAP()
};
