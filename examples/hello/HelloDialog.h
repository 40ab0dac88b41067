// The hello host's one dialog: a greeting, two check boxes, two radio buttons, OK and Cancel,
// all translated.
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
    static CString Section();
    void ApplyTranslatedFont();
    void TranslateCaption();
    void ShowNews();

    BOOL m_bShowNews;
    // Buttons that draw their translations as wide text, whatever the ANSI code page.
    CUnicodeButton m_remember, m_showTips, m_small, m_large, m_ok, m_cancel;
    CStatic m_news;
    CFont m_font;
};
