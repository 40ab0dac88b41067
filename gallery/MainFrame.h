// The gallery's frame: a translated menu bar, the dialog bar, and the commands that open each
// window of the gallery. It also runs the tour, which shows every window in turn.
#pragma once

#include "GalleryBar.h"

#include <KivMFC.h>

#include <memory>

class CGalleryTour;

// Posted to the frame: open the drop-down menu at position wParam of the menu bar.
constexpr UINT WM_GALLERY_OPEN_MENU = WM_APP + 10;

class CMainFrame : public CFrameWnd
{
public:
    CMainFrame();
    ~CMainFrame() override;

    // Operations
    // The tour's handshake files live in the folder; it ends by closing the frame.
    void StartTour(const CString& folder);
    CGalleryBar& Bar() { return m_bar; }

    // Overridables
    BOOL PreCreateWindow(CREATESTRUCTA& cs) override;

protected:
    // Message map and handlers
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg LRESULT OnOpenMenu(WPARAM wParam, LPARAM lParam);
    afx_msg void OnFileExit();
    afx_msg void OnViewMain();
    afx_msg void OnViewSettings();
    afx_msg void OnViewDetails();
    afx_msg void OnViewMessage();
    afx_msg void OnViewRulers();
    afx_msg void OnUpdateViewRulers(CCmdUI* pCmdUI);
    afx_msg void OnHelpAbout();
    DECLARE_MESSAGE_MAP()

private:
    void TranslateFrame();

    CGalleryBar m_bar;
    CUnicodeMenu m_menu;
    std::unique_ptr<CGalleryTour> m_tour;
    BOOL m_bRulers = FALSE;
};
