// A window class of its own module, whose message map a class of another module derives from.
#pragma once

#include <afxwin.h>

#ifdef KIVTEST_BASEMAP_BUILD
#define KIVTEST_BASEMAP_API __declspec(dllexport)
#else
#define KIVTEST_BASEMAP_API __declspec(dllimport)
#endif

#define WM_BASE_ONLY (WM_APP + 11)
#define WM_BOTH (WM_APP + 12)
#include "basemap_res.h"

class KIVTEST_BASEMAP_API CBaseMapWnd : public CWnd
{
    DECLARE_DYNAMIC(CBaseMapWnd)

public:
    CBaseMapWnd() = default;
    int m_nBaseCalls = 0;

protected:
    afx_msg LRESULT OnBaseOnly(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnBoth(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()
};
