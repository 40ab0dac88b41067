// The settings: a property sheet of the library's property pages. The sheet translates its
// caption, tabs and buttons; each page its own texts.
#pragma once

#include "DisplayPage.h"
#include "FilesPage.h"

#include <KivMFC.h>
#include <afxdlgs.h>

class CSettingsSheet : public CPropertySheet
{
public:
    explicit CSettingsSheet(CWnd* pParentWnd = nullptr);
    ~CSettingsSheet() override;

    // Operations
    // Once the sheet exists: its caption, tab captions and buttons in the current language.
    void Translate();

private:
    CDisplayPage m_display;
    CFilesPage m_files;
    BOOL m_bTranslated = FALSE;
};
