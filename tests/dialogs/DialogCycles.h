// One open-and-close cycle of each dialog class, as a host makes and ends them: shared by the
// thousand-cycle tests and the soak.
#pragma once

#include <KivMFC.h>
#include <afxdlgs.h>
#include <afxext.h>

namespace kivtest {

// A modeless dialog of the template, shown, painted and destroyed.
template <class Dialog> void DialogCycle(UINT nIDTemplate)
{
    Dialog dlg(nIDTemplate, nullptr);
    dlg.Create(nIDTemplate, nullptr);
    dlg.ShowWindow(SW_SHOW);
    dlg.UpdateWindow();
    dlg.DestroyWindow();
}

// A modeless property sheet with one page of the template.
template <class Page> void SheetCycle(UINT nIDTemplate)
{
    Page page(nIDTemplate, 0);
    CPropertySheet sheet("Sheet");
    sheet.AddPage(&page);
    sheet.Create();
    sheet.ShowWindow(SW_SHOW);
    sheet.UpdateWindow();
    sheet.DestroyWindow();
}

// A frame with a dialog bar of the template at its top; the frame deletes itself.
template <class Bar> void BarCycle(UINT nIDTemplate)
{
    auto* frame = new CFrameWnd;
    frame->Create(nullptr, "Frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(50, 50, 650, 450));
    Bar bar;
    bar.Create(frame, nIDTemplate, CBRS_TOP, 0xE810);
    frame->RecalcLayout();
    frame->UpdateWindow();
    frame->DestroyWindow();
}

}  // namespace kivtest
