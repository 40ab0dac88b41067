// A page of the settings sheet: wide-text buttons, the translated font, and its texts
// translated under its template id (the library's page class leaves translation to the sheet).
#pragma once

#include "GalleryText.h"

#include <KivMFC.h>

class CGalleryPage : public mfcCPropertyPage
{
public:
    CGalleryPage(UINT nIDTemplate, UINT nIDCaption);
    ~CGalleryPage() override;

    // Overridables
    BOOL OnInitDialog() override;

protected:
    // The page's own values, once its texts are translated.
    virtual void FillControls() = 0;

    // Message map and handlers
    afx_msg LRESULT OnTranslateSheet(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    UINT m_nIDTemplate;

private:
    gallery::UnicodeButtons m_buttons;
    CFont m_font;
};
