// The details dialog: what the library's string, file-name and string-map classes and its
// platform query make of the picture shown, in a dialog of the plain dialog class.
#pragma once

#include "GalleryText.h"

#include <KivMFC.h>

class CDetailsDialog : public mfcDialog
{
public:
    explicit CDetailsDialog(CWnd* pParentWnd = nullptr);
    ~CDetailsDialog() override;

    // Overridables
    BOOL OnInitDialog() override;

private:
    void ShowValues();
    void SetValue(UINT nID, const CStringW& text);

    gallery::UnicodeButtons m_buttons;
    CFont m_font;
};
