// The gallery's main dialog: colour buttons, wide-text check boxes, radio buttons and push
// buttons, flat combo boxes, a list with alternating rows, both tab controls and the tracker
// view, all from the library's dialog class.
#pragma once

#include "GalleryText.h"
#include "TrackerView.h"

#include <KivMFC.h>

#include <vector>

class CMainDialog : public mfcCDialog
{
public:
    explicit CMainDialog(CWnd* pParentWnd = nullptr);
    ~CMainDialog() override;

    // Overridables
    BOOL OnInitDialog() override;

protected:
    // Message map and handlers
    afx_msg void OnPrevious();
    afx_msg void OnNext();
    afx_msg void OnZoomIn();
    afx_msg void OnZoomOut();
    afx_msg void OnActualSize();
    afx_msg void OnDetails();
    afx_msg void OnSettings();
    afx_msg void OnMessage();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI);
    DECLARE_MESSAGE_MAP()

private:
    void ShowPicture();
    void ShowScale();
    void FillPictureList();
    void FillTabs();
    void CreateTrackerView();
    CRect TrackerPage();
    void ForwardToFrame(UINT nID);

    gallery::UnicodeButtons m_buttons;
    mfcCListCtrl m_pictures;
    CMfcColoredTabCtrl m_unitTabs;
    CUnicodeTabCtrl m_periodTabs;
    CTrackerView m_trackerView;
    CFont m_font;
    int m_nPicture = 0;
    CSize m_sizeSmallest;     // the window as the template makes it: it only grows taller
    int m_nClientHeight = 0;  // laid out for this height
};
