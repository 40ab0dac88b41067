// The bar above the frame's client area: zoom, rulers and the main dialog, with tooltips.
#pragma once

#include "GalleryText.h"

#include <KivMFC.h>

class CGalleryBar : public mfcCDialogBar
{
public:
    CGalleryBar();
    ~CGalleryBar() override;

protected:
    // Runs twice for a bar made from a numeric template id: everything here may repeat.
    BOOL OnInitDialogBar() override;

private:
    gallery::UnicodeButtons m_buttons;
    CFont m_font;
};
