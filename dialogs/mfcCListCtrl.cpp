#include "mfcCListCtrl.h"

#include "DialogRules.h"
#include "DialogScheme.h"

IMPLEMENT_DYNAMIC(mfcCListCtrl, CListCtrl)

BEGIN_MESSAGE_MAP(mfcCListCtrl, CListCtrl)
    ON_WM_DESTROY()
    ON_NOTIFY_REFLECT(NM_CUSTOMDRAW, &mfcCListCtrl::CustDraw)
END_MESSAGE_MAP()

mfcCListCtrl::mfcCListCtrl() = default;

mfcCListCtrl::~mfcCListCtrl() = default;

void mfcCListCtrl::CustDraw(NMHDR* pNMHDR, LRESULT* pResult)
{
    kiv::dialogs::AlternateRows(pNMHDR, pResult, kiv::rules::kDoDefault);
}

void mfcCListCtrl::OnDestroy()
{
    SendMessage(WM_SETREDRAW, FALSE, 0);  // nothing is drawn while the list goes
    CWnd::OnDestroy();
}
