#include "DialogPixels.h"

namespace dialogs_tests {

PixelProbe CtlColorPixels(HWND hOwner, HWND hControl, UINT message, HBRUSH* pBrush)
{
    CRect client;
    ::GetClientRect(hControl, &client);
    PixelProbe probe(client.Width() + 4, client.Height() + 4, kUnderlay);
    HBRUSH hBrush = (HBRUSH)::SendMessageA(hOwner, message, (WPARAM)probe.DC(), (LPARAM)hControl);
    if (pBrush != nullptr)
        *pBrush = hBrush;
    return probe;
}

PixelProbe PictureOf(HBITMAP hBitmap)
{
    PixelProbe picture(16, 16, kUnderlay);
    HDC hMemory = ::CreateCompatibleDC(picture.DC());
    HGDIOBJ hOld = ::SelectObject(hMemory, hBitmap);
    ::BitBlt(picture.DC(), 0, 0, 16, 16, hMemory, 0, 0, SRCCOPY);
    ::SelectObject(hMemory, hOld);
    ::DeleteDC(hMemory);
    return picture;
}

PixelProbe LibraryPicture(int nIDBitmap)
{
    HBITMAP hBitmap = ::LoadBitmapA(::GetModuleHandleA("KivMFC64.dll"), MAKEINTRESOURCEA(nIDBitmap));
    PixelProbe picture = PictureOf(hBitmap);
    ::DeleteObject(hBitmap);
    return picture;
}

testing::AssertionResult ShowsPicture(const PixelProbe& probe, int x, int y, const PixelProbe& picture)
{
    for (int py = 0; py < picture.Height(); ++py)
        for (int px = 0; px < picture.Width(); ++px)
            if (probe.Pixel(x + px, y + py) != picture.Pixel(px, py))
                return testing::AssertionFailure()
                       << "pixel " << (x + px) << "," << (y + py) << " is " << Hex(probe.Pixel(x + px, y + py))
                       << ", the picture has " << Hex(picture.Pixel(px, py));
    return testing::AssertionSuccess();
}

testing::AssertionResult ShowsFlatCombo(const PixelProbe& probe, int width, int height, COLORREF underline,
                                        const PixelProbe& picture)
{
    // The 3-pixel pen runs along y = height, from x = 2 to width - 18: rows height - 1 to
    // height + 1 as far as the probe reaches, of which x = 4 to width - 20 are surely covered.
    for (int y = height - 1; y <= height + 1 && y < probe.Height(); ++y)
        for (int x = 4; x <= width - 20; ++x)
            if (probe.Pixel(x, y) != underline)
                return testing::AssertionFailure() << "underline pixel " << x << "," << y << " is "
                                                   << Hex(probe.Pixel(x, y)) << ", not " << Hex(underline);
    if (probe.Pixel(width - 20, height - 3) != kWhite || probe.Pixel(1, 1) != kWhite)
        return testing::AssertionFailure() << "the field is not white";
    return ShowsPicture(probe, width - 18, 3, picture);
}

int PaintedPixels(const PixelProbe& probe)
{
    CRect all(0, 0, probe.Width(), probe.Height());
    return probe.Width() * probe.Height() - probe.Count(kUnderlay, all);
}

std::string Hex(COLORREF colour)
{
    CString text;
    text.Format("0x%06lX", (unsigned long)colour);
    return (LPCSTR)text;
}

COLORREF BrushColour(HBRUSH hBrush)
{
    LOGBRUSH brush = {};
    if (hBrush == nullptr || ::GetObjectA(hBrush, sizeof(brush), &brush) != sizeof(brush))
        return CLR_INVALID;
    return brush.lbColor;
}

CRect RectInParent(HWND hChild)
{
    CRect rect;
    ::GetWindowRect(hChild, &rect);
    ::MapWindowPoints(nullptr, ::GetParent(hChild), (LPPOINT)&rect, 2);
    return rect;
}

CRect GripSquare(const CRect& client)
{
    return CRect(client.right - ::GetSystemMetrics(SM_CXHSCROLL), client.bottom - ::GetSystemMetrics(SM_CYVSCROLL),
                 client.right, client.bottom);
}

PixelProbe ReferenceGrip(const CRect& client)
{
    PixelProbe probe(client.Width(), client.Height(), kWhite);
    CRect grip = GripSquare(client);
    ::DrawFrameControl(probe.DC(), &grip, DFC_SCROLL, DFCS_SCROLLSIZEGRIP);
    return probe;
}

testing::AssertionResult AreaIs(const PixelProbe& probe, const CRect& area, COLORREF colour)
{
    int matching = probe.Count(colour, area);
    if (matching == area.Width() * area.Height())
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << (area.Width() * area.Height() - matching) << " pixels of (" << area.left
                                       << "," << area.top << ")-(" << area.right << "," << area.bottom << ") are not "
                                       << Hex(colour);
}

// Report lists

void FillReport(HWND hList, int rows)
{
    for (int column = 0; column < 3; ++column)
    {
        LVCOLUMNA col = {};
        col.mask = LVCF_TEXT | LVCF_WIDTH;
        col.cx = 70;
        col.pszText = (LPSTR)(column == 0 ? "A" : column == 1 ? "B" : "C");
        ::SendMessageA(hList, LVM_INSERTCOLUMNA, column, (LPARAM)&col);
    }
    for (int row = 0; row < rows; ++row)
    {
        LVITEMA item = {};
        item.mask = LVIF_TEXT;
        item.iItem = row;
        item.pszText = (LPSTR) "x";
        ::SendMessageA(hList, LVM_INSERTITEMA, 0, (LPARAM)&item);
        for (item.iSubItem = 1; item.iSubItem < 3; ++item.iSubItem)
            ::SendMessageA(hList, LVM_SETITEMTEXTA, row, (LPARAM)&item);
    }
}

COLORREF CellBackground(const PixelProbe& probe, HWND hList, int row, int column)
{
    CRect cell(LVIR_LABEL, column, 0, 0);
    ::SendMessageA(hList, LVM_GETSUBITEMRECT, row, (LPARAM)&cell);
    return probe.Pixel(cell.right - 4, (cell.top + cell.bottom) / 2);
}

namespace {

std::string RowLine(int row, const COLORREF (&cells)[3])
{
    return "row " + std::to_string(row) + ": " + Hex(cells[0]) + " " + Hex(cells[1]) + " " + Hex(cells[2]);
}

}  // namespace

std::vector<std::string> RowBackgrounds(HWND hList, int rows)
{
    PixelProbe probe = PixelProbe::CaptureClient(hList);
    std::vector<std::string> lines;
    for (int row = 0; row < rows; ++row)
    {
        COLORREF cells[3];
        for (int column = 0; column < 3; ++column)
            cells[column] = CellBackground(probe, hList, row, column);
        lines.push_back(RowLine(row, cells));
    }
    return lines;
}

std::vector<std::string> AlternatingRows(int rows)
{
    std::vector<std::string> lines;
    for (int row = 0; row < rows; ++row)
    {
        COLORREF colour = row % 2 == 0 ? kPaleBlue : kWhite;
        lines.push_back(RowLine(row, {colour, colour, colour}));
    }
    return lines;
}

BOOL ListHost::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (m_pReflectTo != nullptr && ((NMHDR*)lParam)->code == (UINT)NM_CUSTOMDRAW)
        return m_pReflectTo->OnChildNotify(WM_NOTIFY, wParam, lParam, pResult);
    return CWnd::OnNotify(wParam, lParam, pResult);
}

}  // namespace dialogs_tests
