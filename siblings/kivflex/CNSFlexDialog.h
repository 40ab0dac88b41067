// CNSFlexDialog: the dialog base class of the sibling library kivflex64.dll, a CDialog that
// carries a subject: the object the dialog edits. The library's dialog classes derive from it
// across the module boundary.
#pragma once

#include <afxwin.h>

#ifdef KIVFLEX_BUILD
#define KIVFLEX_CLASS __declspec(dllexport)
#else
#define KIVFLEX_CLASS __declspec(dllimport)
#endif

class KIVFLEX_CLASS CNSFlexDialog : public CDialog
{
    DECLARE_DYNAMIC(CNSFlexDialog)

public:
    CNSFlexDialog(UINT nIDTemplate, CWnd* pParentWnd, void* pSubject);
    CNSFlexDialog(const char* lpszTemplateName, CWnd* pParentWnd, void* pSubject);

    // Overridables
    // Applies the dialog's data to its subject (OnApplyChanges) and closes only when that
    // succeeds.
    void OnOK() override;

protected:
    CNSFlexDialog();
    ~CNSFlexDialog() override;

    BOOL OnInitDialog() override;
    // Takes the controls' data; nonzero when the subject may take it. The subject is given
    // as it was set; the base class exchanges the data and answers whether that worked.
    virtual int OnApplyChanges(void* pSubject);
    virtual void SetSubject(void* pSubject);

    void* m_pSubject;

    DECLARE_MESSAGE_MAP()
};
