// mfcCListCtrl: a list control whose report rows alternate pale blue and white.
#pragma once

#include <afxcmn.h>

class AFX_EXT_CLASS mfcCListCtrl : public CListCtrl
{
    DECLARE_DYNAMIC(mfcCListCtrl)

public:
    mfcCListCtrl();
    ~mfcCListCtrl() override;

protected:
    // Message map and handlers
    afx_msg void OnDestroy();
    afx_msg void CustDraw(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()
};
