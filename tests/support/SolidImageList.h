// An image list holding one square image of one colour, for the tests of controls that draw
// images: where the colour shows is where the image was drawn.
#pragma once

#include <afxcmn.h>
#include <afxwin.h>

namespace kivtest {

inline void MakeSolidImageList(CImageList& images, int side, COLORREF colour)
{
    images.Create(side, side, ILC_COLOR24, 1, 0);
    CBitmap bitmap;
    {
        CClientDC screen(nullptr);
        bitmap.CreateCompatibleBitmap(&screen, side, side);
        CDC memory;
        memory.CreateCompatibleDC(&screen);
        CBitmap* old = memory.SelectObject(&bitmap);
        memory.FillSolidRect(0, 0, side, side, colour);
        memory.SelectObject(old);
    }
    images.Add(&bitmap, (CBitmap*)nullptr);
}

}  // namespace kivtest
