// Drawing: device contexts and GDI objects, each a thin wrapper over its handle.
#pragma once

class CWnd;
class CGdiObject;
class CDC;
class CMenu;

// Out of line, so that a call through a null object pointer answers null.
AFX_API HGDIOBJ AFXAPI AfxGetSafeHandle(const CGdiObject* pObject);
AFX_API HDC AFXAPI AfxGetSafeHdc(const CDC* pDC);
AFX_API HMENU AFXAPI AfxGetSafeHmenu(const CMenu* pMenu);

class AFX_API CGdiObject : public CObject
{
    DECLARE_DYNCREATE(CGdiObject)

public:
    // Attributes
    HGDIOBJ m_hObject = nullptr;
    operator HGDIOBJ() const { return m_hObject; }
    // Safe on a null object, as callers pass optional objects through it.
    HGDIOBJ GetSafeHandle() const { return AfxGetSafeHandle(this); }
    // A temporary object for a handle that no object owns; kept until the temporary maps unlock.
    static CGdiObject* PASCAL FromHandle(HGDIOBJ hObject);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HGDIOBJ hObject);
    HGDIOBJ Detach();

    CGdiObject() = default;
    ~CGdiObject() override;

    // Operations
    BOOL DeleteObject();
    int GetObject(int nCount, LPVOID lpObject) const { return ::GetObjectA(m_hObject, nCount, lpObject); }
    UINT GetObjectType() const { return (UINT)::GetObjectType(m_hObject); }
    BOOL CreateStockObject(int nIndex) { return (m_hObject = ::GetStockObject(nIndex)) != nullptr; }
    BOOL UnrealizeObject() { return ::UnrealizeObject(m_hObject); }
    BOOL operator==(const CGdiObject& obj) const { return obj.m_hObject == m_hObject; }
    BOOL operator!=(const CGdiObject& obj) const { return obj.m_hObject != m_hObject; }
};

class AFX_API CPen : public CGdiObject
{
    DECLARE_DYNAMIC(CPen)

public:
    static CPen* PASCAL FromHandle(HPEN hPen) { return (CPen*)CGdiObject::FromHandle(hPen); }
    CPen() = default;
    CPen(int nPenStyle, int nWidth, COLORREF crColor) { CreatePen(nPenStyle, nWidth, crColor); }
    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor)
    {
        return Attach(::CreatePen(nPenStyle, nWidth, crColor));
    }
    BOOL CreatePenIndirect(LPLOGPEN lpLogPen) { return Attach(::CreatePenIndirect(lpLogPen)); }
    operator HPEN() const { return (HPEN)m_hObject; }
    int GetLogPen(LOGPEN* pLogPen) { return ::GetObjectA(m_hObject, sizeof(LOGPEN), pLogPen); }
};

class AFX_API CBrush : public CGdiObject
{
    DECLARE_DYNAMIC(CBrush)

public:
    static CBrush* PASCAL FromHandle(HBRUSH hBrush) { return (CBrush*)CGdiObject::FromHandle(hBrush); }
    CBrush() = default;
    explicit CBrush(COLORREF crColor) { CreateSolidBrush(crColor); }
    BOOL CreateSolidBrush(COLORREF crColor) { return Attach(::CreateSolidBrush(crColor)); }
    BOOL CreateSysColorBrush(int nIndex) { return Attach(::GetSysColorBrush(nIndex)); }
    BOOL CreateHatchBrush(int nIndex, COLORREF crColor) { return Attach(::CreateHatchBrush(nIndex, crColor)); }
    BOOL CreateBrushIndirect(const LOGBRUSH* lpLogBrush) { return Attach(::CreateBrushIndirect(lpLogBrush)); }
    operator HBRUSH() const { return (HBRUSH)m_hObject; }
    int GetLogBrush(LOGBRUSH* pLogBrush) { return ::GetObjectA(m_hObject, sizeof(LOGBRUSH), pLogBrush); }
};

class AFX_API CFont : public CGdiObject
{
    DECLARE_DYNAMIC(CFont)

public:
    static CFont* PASCAL FromHandle(HFONT hFont) { return (CFont*)CGdiObject::FromHandle(hFont); }
    CFont() = default;
    BOOL CreateFontIndirect(const LOGFONTA* lpLogFont) { return Attach(::CreateFontIndirectA(lpLogFont)); }
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                    BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                    BYTE nQuality, BYTE nPitchAndFamily, LPCSTR lpszFacename);
    // nPointSize in tenths of a point, converted with the screen's (or pDC's) resolution.
    BOOL CreatePointFont(int nPointSize, LPCSTR lpszFaceName, CDC* pDC = nullptr);
    BOOL CreatePointFontIndirect(const LOGFONTA* lpLogFont, CDC* pDC = nullptr);
    operator HFONT() const { return (HFONT)m_hObject; }
    int GetLogFont(LOGFONTA* pLogFont) { return ::GetObjectA(m_hObject, sizeof(LOGFONTA), pLogFont); }
};

class AFX_API CBitmap : public CGdiObject
{
    DECLARE_DYNAMIC(CBitmap)

public:
    static CBitmap* PASCAL FromHandle(HBITMAP hBitmap) { return (CBitmap*)CGdiObject::FromHandle(hBitmap); }
    CBitmap() = default;
    // Searched for through the resource chain of the application and its libraries.
    BOOL LoadBitmap(LPCSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource) { return LoadBitmap(MAKEINTRESOURCEA(nIDResource)); }
    BOOL LoadOEMBitmap(UINT nIDBitmap) { return Attach(::LoadBitmapA(nullptr, MAKEINTRESOURCEA(nIDBitmap))); }
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits)
    {
        return Attach(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
    }
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    operator HBITMAP() const { return (HBITMAP)m_hObject; }
    int GetBitmap(BITMAP* pBitMap) { return ::GetObjectA(m_hObject, sizeof(BITMAP), pBitMap); }
    CSize GetBitmapDimension() const;
};

class AFX_API CRgn : public CGdiObject
{
    DECLARE_DYNAMIC(CRgn)

public:
    static CRgn* PASCAL FromHandle(HRGN hRgn) { return (CRgn*)CGdiObject::FromHandle(hRgn); }
    BOOL CreateRectRgn(int x1, int y1, int x2, int y2) { return Attach(::CreateRectRgn(x1, y1, x2, y2)); }
    BOOL CreateRectRgnIndirect(LPCRECT lpRect) { return Attach(::CreateRectRgnIndirect(lpRect)); }
    operator HRGN() const { return (HRGN)m_hObject; }
};

// A device context: output goes to m_hDC, queries read m_hAttribDC (the same handle unless a
// derived class separates them).
class AFX_API CDC : public CObject
{
    DECLARE_DYNCREATE(CDC)

public:
    // Attributes
    HDC m_hDC = nullptr;
    HDC m_hAttribDC = nullptr;
    operator HDC() const { return m_hDC; }
    HDC GetSafeHdc() const { return AfxGetSafeHdc(this); }
    CWnd* GetWindow() const;
    static CDC* PASCAL FromHandle(HDC hDC);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HDC hDC);
    HDC Detach();
    virtual void SetAttribDC(HDC hDC) { m_hAttribDC = hDC; }
    virtual void SetOutputDC(HDC hDC) { m_hDC = hDC; }
    virtual void ReleaseAttribDC() { m_hAttribDC = nullptr; }
    virtual void ReleaseOutputDC() { m_hDC = nullptr; }

    CDC() = default;
    ~CDC() override;
    BOOL CreateCompatibleDC(CDC* pDC);
    BOOL CreateDC(LPCSTR lpszDriverName, LPCSTR lpszDeviceName, LPCSTR lpszOutput, const void* lpInitData);
    BOOL DeleteDC();

    // State
    virtual int SaveDC();
    virtual BOOL RestoreDC(int nSavedDC);
    int GetDeviceCaps(int nIndex) const { return ::GetDeviceCaps(m_hAttribDC, nIndex); }

    // Selection: the previous object comes back as a temporary object.
    CPen* SelectObject(CPen* pPen) { return (CPen*)SelectGdiObject(pPen->GetSafeHandle()); }
    CBrush* SelectObject(CBrush* pBrush) { return (CBrush*)SelectGdiObject(pBrush->GetSafeHandle()); }
    virtual CFont* SelectObject(CFont* pFont) { return (CFont*)SelectGdiObject(pFont->GetSafeHandle()); }
    CBitmap* SelectObject(CBitmap* pBitmap) { return (CBitmap*)SelectGdiObject(pBitmap->GetSafeHandle()); }
    CGdiObject* SelectObject(CGdiObject* pObject) { return SelectGdiObject(pObject->GetSafeHandle()); }
    HGDIOBJ SelectObject(HGDIOBJ hObject);
    CGdiObject* SelectGdiObject(HGDIOBJ hObject);
    virtual CGdiObject* SelectStockObject(int nIndex);
    CPen* GetCurrentPen() const { return CPen::FromHandle((HPEN)::GetCurrentObject(m_hDC, OBJ_PEN)); }
    CBrush* GetCurrentBrush() const { return CBrush::FromHandle((HBRUSH)::GetCurrentObject(m_hDC, OBJ_BRUSH)); }
    CFont* GetCurrentFont() const { return CFont::FromHandle((HFONT)::GetCurrentObject(m_hDC, OBJ_FONT)); }
    CBitmap* GetCurrentBitmap() const { return CBitmap::FromHandle((HBITMAP)::GetCurrentObject(m_hDC, OBJ_BITMAP)); }

    // Colours and modes: set on both contexts, read from the attribute one.
    COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
    COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
    int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
    int GetROP2() const { return ::GetROP2(m_hAttribDC); }
    virtual COLORREF SetTextColor(COLORREF crColor);
    virtual COLORREF SetBkColor(COLORREF crColor);
    int SetBkMode(int nBkMode);
    int SetROP2(int nDrawMode);
    int SetMapMode(int nMapMode);
    UINT SetTextAlign(UINT nFlags);
    CPoint SetViewportOrg(int x, int y);
    CPoint GetViewportOrg() const;

    // Clipping
    virtual int GetClipBox(LPRECT lpRect) const { return ::GetClipBox(m_hDC, lpRect); }
    int IntersectClipRect(int x1, int y1, int x2, int y2);
    int IntersectClipRect(LPCRECT lpRect)
    {
        return IntersectClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    int ExcludeClipRect(int x1, int y1, int x2, int y2);
    int SelectClipRgn(CRgn* pRgn) { return ::SelectClipRgn(m_hDC, (HRGN)pRgn->GetSafeHandle()); }

    // Lines and shapes
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Rectangle(int x1, int y1, int x2, int y2) { return ::Rectangle(m_hDC, x1, y1, x2, y2); }
    BOOL Rectangle(LPCRECT lpRect) { return Rectangle(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom); }
    BOOL Ellipse(int x1, int y1, int x2, int y2) { return ::Ellipse(m_hDC, x1, y1, x2, y2); }
    BOOL Polyline(const POINT* lpPoints, int nCount) { return ::Polyline(m_hDC, lpPoints, nCount); }
    BOOL Polygon(const POINT* lpPoints, int nCount) { return ::Polygon(m_hDC, lpPoints, nCount); }
    void FillRect(LPCRECT lpRect, CBrush* pBrush) { ::FillRect(m_hDC, lpRect, (HBRUSH)pBrush->GetSafeHandle()); }
    void FrameRect(LPCRECT lpRect, CBrush* pBrush) { ::FrameRect(m_hDC, lpRect, (HBRUSH)pBrush->GetSafeHandle()); }
    void InvertRect(LPCRECT lpRect) { ::InvertRect(m_hDC, lpRect); }
    // Leaves the background colour set to clr, as the opaque text fill it uses needs it.
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr);
    void Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight);
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight);
    void DrawFocusRect(LPCRECT lpRect) { ::DrawFocusRect(m_hDC, lpRect); }
    BOOL DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags) { return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags); }
    BOOL DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState)
    {
        return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
    }
    BOOL DrawIcon(int x, int y, HICON hIcon) { return ::DrawIcon(m_hDC, x, y, hIcon); }
    COLORREF SetPixel(int x, int y, COLORREF crColor) { return ::SetPixel(m_hDC, x, y, crColor); }
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }

    // Bitmaps
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop);
    BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                    int nSrcHeight, DWORD dwRop);
    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop)
    {
        return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
    }

    // Text
    virtual BOOL TextOut(int x, int y, LPCSTR lpszString, int nCount);
    BOOL TextOut(int x, int y, const CString& str) { return TextOut(x, y, (LPCSTR)str, str.GetLength()); }
    virtual BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCSTR lpszString, UINT nCount,
                            LPINT lpDxWidths);
    virtual int DrawText(LPCSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat);
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat);
    CSize GetTextExtent(LPCSTR lpszString, int nCount) const;
    CSize GetTextExtent(const CString& str) const { return GetTextExtent((LPCSTR)str, str.GetLength()); }
    CSize GetOutputTextExtent(LPCSTR lpszString, int nCount) const;
    BOOL GetTextMetrics(LPTEXTMETRICA lpMetrics) const { return ::GetTextMetricsA(m_hAttribDC, lpMetrics); }
};

// Paints a window between BeginPaint and EndPaint.
class AFX_API CPaintDC : public CDC
{
    DECLARE_DYNAMIC(CPaintDC)

public:
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;
    PAINTSTRUCT m_ps;

protected:
    HWND m_hWnd;
};

// The client area of a window, from GetDC to ReleaseDC.
class AFX_API CClientDC : public CDC
{
    DECLARE_DYNAMIC(CClientDC)

public:
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};

// The whole window, frame included.
class AFX_API CWindowDC : public CDC
{
    DECLARE_DYNAMIC(CWindowDC)

public:
    explicit CWindowDC(CWnd* pWnd);
    ~CWindowDC() override;

protected:
    HWND m_hWnd;
};

// A menu. An attached menu is owned: the destructor destroys it unless it was detached.
class AFX_API CMenu : public CObject
{
    DECLARE_DYNCREATE(CMenu)

public:
    HMENU m_hMenu = nullptr;

    CMenu() = default;
    ~CMenu() override;

    // Attributes
    HMENU GetSafeHmenu() const { return AfxGetSafeHmenu(this); }
    operator HMENU() const { return GetSafeHmenu(); }
    static CMenu* PASCAL FromHandle(HMENU hMenu);
    static CMenu* PASCAL FromHandlePermanent(HMENU hMenu);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HMENU hMenu);
    HMENU Detach();
    UINT GetMenuItemCount() const { return (UINT)::GetMenuItemCount(m_hMenu); }
    UINT GetMenuItemID(int nPos) const { return ::GetMenuItemID(m_hMenu, nPos); }
    UINT GetMenuState(UINT nID, UINT nFlags) const { return ::GetMenuState(m_hMenu, nID, nFlags); }
    int GetMenuString(UINT nIDItem, LPSTR lpString, int nMaxCount, UINT nFlags) const
    {
        return ::GetMenuStringA(m_hMenu, nIDItem, lpString, nMaxCount, nFlags);
    }
    int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;
    CMenu* GetSubMenu(int nPos) const;
    BOOL GetMenuItemInfo(UINT uItem, LPMENUITEMINFOA lpMenuItemInfo, BOOL fByPos = FALSE)
    {
        return ::GetMenuItemInfoA(m_hMenu, uItem, fByPos, lpMenuItemInfo);
    }

    // Operations
    BOOL CreateMenu() { return Attach(::CreateMenu()); }
    BOOL CreatePopupMenu() { return Attach(::CreatePopupMenu()); }
    // Found through the resource chain of the application and its libraries.
    BOOL LoadMenu(LPCSTR lpszResourceName);
    BOOL LoadMenu(UINT nIDResource) { return LoadMenu(MAKEINTRESOURCEA(nIDResource)); }
    BOOL LoadMenuIndirect(const void* lpMenuTemplate) { return Attach(::LoadMenuIndirectA(lpMenuTemplate)); }
    BOOL DestroyMenu();
    BOOL DeleteMenu(UINT nPosition, UINT nFlags) { return ::DeleteMenu(m_hMenu, nPosition, nFlags); }
    BOOL RemoveMenu(UINT nPosition, UINT nFlags) { return ::RemoveMenu(m_hMenu, nPosition, nFlags); }
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCSTR lpszNewItem = nullptr)
    {
        return ::AppendMenuA(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCSTR lpszNewItem = nullptr)
    {
        return ::InsertMenuA(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCSTR lpszNewItem = nullptr)
    {
        return ::ModifyMenuA(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
    }
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable) { return ::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable); }
    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck) { return (UINT)::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck); }
    BOOL CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags)
    {
        return ::CheckMenuRadioItem(m_hMenu, nIDFirst, nIDLast, nIDItem, nFlags);
    }
    // pWnd receives the menu's messages; its owner-drawn items reach this object.
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = nullptr);

    // Overridables: owner-drawn items of this menu.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);

    BOOL operator==(const CMenu& menu) const { return menu.m_hMenu == m_hMenu; }
    BOOL operator!=(const CMenu& menu) const { return menu.m_hMenu != m_hMenu; }
};
