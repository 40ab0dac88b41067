// Pixels of the dialog scheme: the colours it fixes, what a control-colour handler draws, the
// library's arrow pictures, flat combo boxes, the size grip and report rows read back.
#pragma once

#include <afxcmn.h>
#include <gtest/gtest.h>

#include "PixelProbe.h"

#include <string>
#include <vector>

namespace dialogs_tests {

using kivtest::PixelProbe;

// The scheme's colours, written out here as the tests expect them on screen.
inline constexpr COLORREF kWhite = RGB(255, 255, 255);
inline constexpr COLORREF kBlack = RGB(0, 0, 0);
inline constexpr COLORREF kSteelBlue = RGB(78, 130, 172);
inline constexpr COLORREF kGrey = RGB(128, 128, 128);
inline constexpr COLORREF kPaleBlue = RGB(221, 235, 244);
// What the tests paint under what a handler draws, to tell the handler's pixels apart.
inline constexpr COLORREF kUnderlay = RGB(255, 0, 255);

// The pixels a control-colour handler of `owner` draws for the control: WM_CTLCOLOR* sent to
// the owner with a probe DC over kUnderlay, a few rows taller than the control's client area.
PixelProbe CtlColorPixels(HWND hOwner, HWND hControl, UINT message, HBRUSH* pBrush = nullptr);
// A 16 by 16 bitmap as a picture; bitmap 2012 or 2013 of the library as a picture.
PixelProbe PictureOf(HBITMAP hBitmap);
PixelProbe LibraryPicture(int nIDBitmap);
// Whether the probe shows the 16 by 16 picture with its top left corner at (x, y).
testing::AssertionResult ShowsPicture(const PixelProbe& probe, int x, int y, const PixelProbe& picture);
// Whether the flat combo box of a control whose client area is `width` by `height` pixels is
// drawn in the probe: a white field, the 3-pixel underline along the client area's bottom (as
// far as the probe reaches below it) and the picture at the right.
testing::AssertionResult ShowsFlatCombo(const PixelProbe& probe, int width, int height, COLORREF underline,
                                        const PixelProbe& picture);
// How many pixels of the probe are not kUnderlay.
int PaintedPixels(const PixelProbe& probe);
// The solid colour of a brush; a colour as "0xBBGGRR".
COLORREF BrushColour(HBRUSH hBrush);
std::string Hex(COLORREF colour);

// A child control's window rectangle in its parent's client coordinates.
CRect RectInParent(HWND hChild);
// The grip square of a client area, as a scroll bar's width and height make it.
CRect GripSquare(const CRect& client);
// The system's size grip drawn over white into a probe of the client area's size.
PixelProbe ReferenceGrip(const CRect& client);
// Whether every pixel of the area has the colour.
testing::AssertionResult AreaIs(const PixelProbe& probe, const CRect& area, COLORREF colour);

// A report list of three columns and `rows` rows with short texts, so most of each cell is
// background; the background of a cell is read near its right edge.
void FillReport(HWND hList, int rows);
COLORREF CellBackground(const PixelProbe& probe, HWND hList, int row, int column);
// The cell backgrounds of every row and column as shown: "row r: c0 c1 c2" in hexadecimal.
std::vector<std::string> RowBackgrounds(HWND hList, int rows);
std::vector<std::string> AlternatingRows(int rows);

// A top-level window for lists: a list's own object gets its notifications reflected, and
// custom drawing can instead be reflected to another object, as a parent reflects to the
// child that notified it.
class ListHost : public CWnd
{
public:
    CWnd* m_pReflectTo = nullptr;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

}  // namespace dialogs_tests
