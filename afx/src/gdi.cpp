// Device contexts and GDI objects.
#include "afximpl_.h"

IMPLEMENT_DYNCREATE(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)
IMPLEMENT_DYNCREATE(CDC, CObject)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)

__attribute__((noinline)) HGDIOBJ AFXAPI AfxGetSafeHandle(const CGdiObject* pObject)
{
    return pObject == nullptr ? nullptr : pObject->m_hObject;
}

__attribute__((noinline)) HDC AFXAPI AfxGetSafeHdc(const CDC* pDC)
{
    return pDC == nullptr ? nullptr : pDC->m_hDC;
}

// GDI objects

AFX_IMPLEMENT_FROMHANDLE(CGdiObject, HGDIOBJ)
AFX_IMPLEMENT_DELETETEMPMAP(CGdiObject)
AFX_IMPLEMENT_ATTACH_DETACH(CGdiObject, HGDIOBJ)

CGdiObject::~CGdiObject()
{
    DeleteObject();
}

BOOL CGdiObject::DeleteObject()
{
    if (m_hObject == nullptr)
        return FALSE;
    return ::DeleteObject(Detach());
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                       BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                       BYTE nQuality, BYTE nPitchAndFamily, LPCSTR lpszFacename)
{
    return Attach(::CreateFontA(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic, bUnderline, cStrikeOut,
                                nCharSet, nOutPrecision, nClipPrecision, nQuality, nPitchAndFamily, lpszFacename));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCSTR lpszFaceName, CDC* pDC)
{
    LOGFONTA logFont = {};
    logFont.lfCharSet = DEFAULT_CHARSET;
    logFont.lfHeight = nPointSize;
    lstrcpynA(logFont.lfFaceName, lpszFaceName, LF_FACESIZE);
    return CreatePointFontIndirect(&logFont, pDC);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONTA* lpLogFont, CDC* pDC)
{
    // The height is given in tenths of a point; it becomes logical units of the context.
    HDC hDC = pDC != nullptr ? pDC->m_hAttribDC : ::GetDC(nullptr);
    LOGFONTA logFont = *lpLogFont;
    POINT pt = {0, ::MulDiv(::GetDeviceCaps(hDC, LOGPIXELSY), logFont.lfHeight, 720)};
    ::DPtoLP(hDC, &pt, 1);
    POINT ptOrg = {0, 0};
    ::DPtoLP(hDC, &ptOrg, 1);
    logFont.lfHeight = -abs(pt.y - ptOrg.y);
    if (pDC == nullptr)
        ::ReleaseDC(nullptr, hDC);
    return CreateFontIndirect(&logFont);
}

BOOL CBitmap::LoadBitmap(LPCSTR lpszResourceName)
{
    HINSTANCE hInst = AfxFindResourceHandle(lpszResourceName, (LPCSTR)RT_BITMAP);
    return Attach(::LoadBitmapA(hInst, lpszResourceName));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight)
{
    return Attach(::CreateCompatibleBitmap(pDC->m_hDC, nWidth, nHeight));
}

CSize CBitmap::GetBitmapDimension() const
{
    SIZE size = {0, 0};
    ::GetBitmapDimensionEx((HBITMAP)m_hObject, &size);
    return size;
}

// Device contexts

namespace {

// A setting goes to the output context and, where it is another, to the attribute context,
// whose previous value is the answer.
template <typename TResult, typename TFunc> TResult OnBothDCs(const CDC* pDC, TResult failed, TFunc func)
{
    TResult result = failed;
    if (pDC->m_hDC != pDC->m_hAttribDC)
        result = func(pDC->m_hDC);
    if (pDC->m_hAttribDC != nullptr)
        result = func(pDC->m_hAttribDC);
    return result;
}

}  // namespace

AFX_IMPLEMENT_FROMHANDLE(CDC, HDC)
AFX_IMPLEMENT_DELETETEMPMAP(CDC)
AFX_IMPLEMENT_ATTACH_DETACH(CDC, HDC)

CDC::~CDC()
{
    if (m_hDC != nullptr)
        ::DeleteDC(Detach());
}

CWnd* CDC::GetWindow() const
{
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

BOOL CDC::CreateCompatibleDC(CDC* pDC)
{
    return Attach(::CreateCompatibleDC(pDC->GetSafeHdc()));
}

BOOL CDC::CreateDC(LPCSTR lpszDriverName, LPCSTR lpszDeviceName, LPCSTR lpszOutput, const void* lpInitData)
{
    return Attach(::CreateDCA(lpszDriverName, lpszDeviceName, lpszOutput, (const DEVMODEA*)lpInitData));
}

BOOL CDC::DeleteDC()
{
    if (m_hDC == nullptr)
        return FALSE;
    return ::DeleteDC(Detach());
}

int CDC::SaveDC()
{
    int nRetVal = 0;
    if (m_hAttribDC != nullptr)
        nRetVal = ::SaveDC(m_hAttribDC);
    if (m_hDC != m_hAttribDC && ::SaveDC(m_hDC) != 0)
        nRetVal = -1;  // the two contexts can only be restored together, to the latest state
    return nRetVal;
}

BOOL CDC::RestoreDC(int nSavedDC)
{
    BOOL bRetVal = TRUE;
    if (m_hDC != m_hAttribDC)
        bRetVal = ::RestoreDC(m_hDC, nSavedDC);
    if (m_hAttribDC != nullptr)
        bRetVal = bRetVal && ::RestoreDC(m_hAttribDC, nSavedDC);
    return bRetVal;
}

HGDIOBJ CDC::SelectObject(HGDIOBJ hObject)
{
    return OnBothDCs<HGDIOBJ>(this, nullptr, [=](HDC hDC) { return ::SelectObject(hDC, hObject); });
}

CGdiObject* CDC::SelectGdiObject(HGDIOBJ hObject)
{
    if (hObject == nullptr)
        return nullptr;
    return CGdiObject::FromHandle(SelectObject(hObject));
}

CGdiObject* CDC::SelectStockObject(int nIndex)
{
    return SelectGdiObject(::GetStockObject(nIndex));
}

COLORREF CDC::SetTextColor(COLORREF crColor)
{
    return OnBothDCs<COLORREF>(this, CLR_INVALID, [=](HDC hDC) { return ::SetTextColor(hDC, crColor); });
}

COLORREF CDC::SetBkColor(COLORREF crColor)
{
    return OnBothDCs<COLORREF>(this, CLR_INVALID, [=](HDC hDC) { return ::SetBkColor(hDC, crColor); });
}

int CDC::SetBkMode(int nBkMode)
{
    return OnBothDCs<int>(this, 0, [=](HDC hDC) { return ::SetBkMode(hDC, nBkMode); });
}

int CDC::SetROP2(int nDrawMode)
{
    return OnBothDCs<int>(this, 0, [=](HDC hDC) { return ::SetROP2(hDC, nDrawMode); });
}

int CDC::SetMapMode(int nMapMode)
{
    return OnBothDCs<int>(this, 0, [=](HDC hDC) { return ::SetMapMode(hDC, nMapMode); });
}

UINT CDC::SetTextAlign(UINT nFlags)
{
    return OnBothDCs<UINT>(this, 0, [=](HDC hDC) { return ::SetTextAlign(hDC, nFlags); });
}

CPoint CDC::SetViewportOrg(int x, int y)
{
    POINT pt = {0, 0};
    OnBothDCs<BOOL>(this, FALSE, [&](HDC hDC) { return ::SetViewportOrgEx(hDC, x, y, &pt); });
    return pt;
}

CPoint CDC::GetViewportOrg() const
{
    POINT pt = {0, 0};
    ::GetViewportOrgEx(m_hAttribDC, &pt);
    return pt;
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2)
{
    return OnBothDCs<int>(this, ERROR, [=](HDC hDC) { return ::IntersectClipRect(hDC, x1, y1, x2, y2); });
}

int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2)
{
    return OnBothDCs<int>(this, ERROR, [=](HDC hDC) { return ::ExcludeClipRect(hDC, x1, y1, x2, y2); });
}

CPoint CDC::MoveTo(int x, int y)
{
    POINT pt = {0, 0};
    OnBothDCs<BOOL>(this, FALSE, [&](HDC hDC) { return ::MoveToEx(hDC, x, y, &pt); });
    return pt;
}

BOOL CDC::LineTo(int x, int y)
{
    if (m_hAttribDC != nullptr && m_hDC != m_hAttribDC)
        ::MoveToEx(m_hAttribDC, x, y, nullptr);
    return ::LineTo(m_hDC, x, y);
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr)
{
    ::SetBkColor(m_hDC, clr);
    ::ExtTextOutA(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr)
{
    RECT rect = {x, y, x + cx, y + cy};
    FillSolidRect(&rect, clr);
}

void CDC::Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    Draw3dRect(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top, clrTopLeft,
               clrBottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx, y, -1, cy, clrBottomRight);
    FillSolidRect(x, y + cy, cx, -1, clrBottomRight);
}

BOOL CDC::BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop)
{
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, dwRop);
}

BOOL CDC::StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                     int nSrcHeight, DWORD dwRop)
{
    return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, nSrcWidth, nSrcHeight, dwRop);
}

BOOL CDC::TextOut(int x, int y, LPCSTR lpszString, int nCount)
{
    return ::TextOutA(m_hDC, x, y, lpszString, nCount);
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCSTR lpszString, UINT nCount, LPINT lpDxWidths)
{
    return ::ExtTextOutA(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
}

int CDC::DrawText(LPCSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat)
{
    return ::DrawTextA(m_hDC, lpszString, nCount, lpRect, nFormat);
}

int CDC::DrawText(const CString& str, LPRECT lpRect, UINT nFormat)
{
    return DrawText((LPCSTR)str, str.GetLength(), lpRect, nFormat);
}

CSize CDC::GetTextExtent(LPCSTR lpszString, int nCount) const
{
    SIZE size = {0, 0};
    ::GetTextExtentPoint32A(m_hAttribDC, lpszString, nCount, &size);
    return size;
}

CSize CDC::GetOutputTextExtent(LPCSTR lpszString, int nCount) const
{
    SIZE size = {0, 0};
    ::GetTextExtentPoint32A(m_hDC, lpszString, nCount, &size);
    return size;
}

CPaintDC::CPaintDC(CWnd* pWnd) : m_hWnd(pWnd->m_hWnd)
{
    Attach(::BeginPaint(m_hWnd, &m_ps));
}

CPaintDC::~CPaintDC()
{
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(pWnd->GetSafeHwnd())
{
    Attach(::GetDC(m_hWnd));
}

CClientDC::~CClientDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(pWnd->GetSafeHwnd())
{
    Attach(::GetWindowDC(m_hWnd));
}

CWindowDC::~CWindowDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}
