// The hello host's one dialog: a greeting, two check boxes, OK and Cancel, all translated.
#pragma once

#include <KivMFC.h>

class CHelloDialog : public CDialog
{
public:
    // bShowNews shows one more line, a text this version added that translators have not seen.
    explicit CHelloDialog(BOOL bShowNews, CWnd* pParentWnd = nullptr);

protected:
    // Overridables
    BOOL OnInitDialog() override;

private:
    void TranslateTexts();

    BOOL m_bShowNews;
};
