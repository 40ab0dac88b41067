#include "BaseMapWnd.h"

IMPLEMENT_DYNAMIC(CBaseMapWnd, CWnd)

BEGIN_MESSAGE_MAP(CBaseMapWnd, CWnd)
    ON_MESSAGE(WM_BASE_ONLY, &CBaseMapWnd::OnBaseOnly)
    ON_MESSAGE(WM_BOTH, &CBaseMapWnd::OnBoth)
END_MESSAGE_MAP()

LRESULT CBaseMapWnd::OnBaseOnly(WPARAM wParam, LPARAM)
{
    ++m_nBaseCalls;
    return (LRESULT)wParam + 100;
}

LRESULT CBaseMapWnd::OnBoth(WPARAM, LPARAM)
{
    ++m_nBaseCalls;
    return 1;
}
