// What the library's dialog-like classes share: tooltips from a "_TIPTEXT" resource, push
// buttons turned into colour buttons, the combo arrow pictures, the white control colours
// with flat combo boxes, the white paint with its size grip, and alternating report rows.
// Internal to the library.
#pragma once

#include <afxcmn.h>

#include <vector>

class CColorButton;

namespace kiv::dialogs {

// The "_TIPTEXT" resource under a template name in the current resource handle; false when it
// cannot be found, loaded or locked.
bool LockTipText(LPCSTR lpszTemplateName, const void*& data, DWORD& size);
// One tool per record whose control exists and whose text has a tip (part 1 of its text).
void AddTipTools(CToolTipCtrl& tips, CWnd* owner, const void* data, DWORD size);
// Tooltips of a dialog or page: null when the template has no "_TIPTEXT" resource.
CToolTipCtrl* CreateDialogTips(CWnd* owner, LPCSTR lpszTemplateName);
// Relays mouse messages to the tooltips, which never consume them.
void RelayToTips(CToolTipCtrl* pTips, MSG* pMsg);

// Every direct child push button that no object owns yet becomes a CColorButton.
void SubclassPushButtons(CWnd* parent, std::vector<CColorButton*>& buttons);
// Unsubclasses and deletes them, in order; the vector ends empty.
void ReleaseColorButtons(std::vector<CColorButton*>& buttons);
// Bitmaps 2012 and 2013 of the library, each only when it has no handle yet.
void LoadComboArrows(CBitmap& arrow, CBitmap& disabledArrow);
void DeleteComboArrows(CBitmap& arrow, CBitmap& disabledArrow);

// How the dialog bar's control colours differ from the dialogs'.
enum class CtlColorKind
{
    kDialog,  // other controls get a passing device context; the pen is deselected first
    kBar,     // other controls are not touched; the pen is deleted while still selected
};

HBRUSH SchemeCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor, CBrush& background, CBitmap& arrow, CBitmap& disabledArrow,
                      CtlColorKind kind);
// The client area white, then the size grip of a resizable window that is not maximized or
// minimized.
void PaintWhiteWithGrip(CWnd* wnd, CBrush& background);
// The report-list stage answers; subItemAnswer is what the sub-item stage returns.
void AlternateRows(NMHDR* pNMHDR, LRESULT* pResult, long subItemAnswer);

}  // namespace kiv::dialogs
