#include "DialogScheme.h"

#include "ColorButton.h"
#include "DialogRules.h"
#include "KivMFCResource.h"
#include "TipTextRecords.h"

#include <cstring>
#include <string>

namespace rules = kiv::rules;

namespace kiv::dialogs {

namespace {

constexpr char kTipTextType[] = "_TIPTEXT";
constexpr int kClassNameSize = 128;

bool HasClass(HWND hWnd, const char* className)
{
    char name[kClassNameSize] = {};
    ::GetClassNameA(hWnd, name, kClassNameSize);
    return std::strcmp(name, className) == 0;
}

// A combo box drawn flat: a white field, a 3-pixel underline, the arrow picture at the right.
void DrawFlatCombo(CDC* pDC, HWND hCombo, CBrush& background, CBitmap& arrow, CBitmap& disabledArrow, CtlColorKind kind)
{
    RECT client;
    ::GetClientRect(hCombo, &client);
    bool enabled = ::IsWindowEnabled(hCombo) != FALSE;
    HPEN hPen = ::CreatePen(PS_SOLID, 3, enabled ? rules::kComboUnderline : rules::kComboUnderlineDisabled);
    ::FillRect(pDC->m_hDC, &client, (HBRUSH)background.GetSafeHandle());
    rules::ComboLook look = rules::FlatCombo({client.left, client.top, client.right, client.bottom});
    HGDIOBJ hOldPen = ::SelectObject(pDC->m_hDC, hPen);
    ::MoveToEx(pDC->m_hDC, look.lineFrom.x, look.lineFrom.y, nullptr);
    ::LineTo(pDC->m_hDC, look.lineTo.x, look.lineTo.y);
    if (kind == CtlColorKind::kBar)
        ::DeleteObject(hPen);  // kept: the bar deletes its pen while it is still selected
    ::SelectObject(pDC->m_hDC, hOldPen);

    CDC memory;
    memory.CreateCompatibleDC(pDC);
    CBitmap& picture = enabled ? arrow : disabledArrow;
    HGDIOBJ hOldBitmap = ::SelectObject(memory.m_hDC, picture.GetSafeHandle());
    ::BitBlt(pDC->m_hDC, look.arrow.left, look.arrow.top, look.arrow.right, look.arrow.bottom, memory.m_hDC, 0, 0,
             SRCCOPY);
    if (hOldBitmap != nullptr)
        ::SelectObject(memory.m_hDC, hOldBitmap);
    if (kind == CtlColorKind::kDialog)
        ::DeleteObject(hPen);
}

}  // namespace

bool LockTipText(LPCSTR lpszTemplateName, const void*& data, DWORD& size)
{
    if (lpszTemplateName == nullptr)
        return false;
    HINSTANCE hInst = AfxGetModuleState()->m_hCurrentResourceHandle;
    HRSRC hResource = ::FindResourceA(hInst, lpszTemplateName, kTipTextType);
    HGLOBAL hGlobal = hResource ? ::LoadResource(hInst, hResource) : nullptr;
    data = hGlobal ? ::LockResource(hGlobal) : nullptr;
    size = data ? ::SizeofResource(hInst, hResource) : 0;
    return data != nullptr;
}

void AddTipTools(CToolTipCtrl& tips, CWnd* owner, const void* data, DWORD size)
{
    rules::WalkTipTextRecords(data, size, [&](const rules::TipTextRecord& record) {
        CWnd* control = owner->GetDlgItem((int)record.id);
        std::string_view tip;
        if (control == nullptr || !rules::TextPart(record.text, 1, '\n', tip))
            return;
        tips.AddTool(control, std::string(tip).c_str(), nullptr, 0);
    });
}

CToolTipCtrl* CreateDialogTips(CWnd* owner, LPCSTR lpszTemplateName)
{
    const void* data = nullptr;
    DWORD size = 0;
    if (!LockTipText(lpszTemplateName, data, size))
        return nullptr;
    auto* tips = new CToolTipCtrl;
    tips->Create(owner, TTS_ALWAYSTIP);
    tips->SendMessage(TTM_SETMAXTIPWIDTH, 0, 32767);
    AddTipTools(*tips, owner, data, size);
    tips->SendMessage(TTM_ACTIVATE, TRUE);
    return tips;
}

void RelayToTips(CToolTipCtrl* pTips, MSG* pMsg)
{
    if (pMsg->message >= WM_MOUSEFIRST && pMsg->message <= 0x020E && pTips != nullptr)
        pTips->SendMessage(TTM_RELAYEVENT, 0, (LPARAM)pMsg);
}

void SubclassPushButtons(CWnd* parent, std::vector<CColorButton*>& buttons)
{
    std::vector<HWND> found;
    for (HWND hChild = ::GetWindow(parent->m_hWnd, GW_CHILD); hChild != nullptr;
         hChild = ::GetWindow(hChild, GW_HWNDNEXT))
    {
        LONG_PTR type = ::GetWindowLongPtrA(hChild, GWL_STYLE) & 0x0F;
        // A button some object already owns (a member control, DDX) stays as it is.
        if (HasClass(hChild, "Button") && type < BS_CHECKBOX && CWnd::FromHandlePermanent(hChild) == nullptr)
            found.push_back(hChild);
    }
    for (HWND hButton : found)
    {
        auto* button = new CColorButton;
        button->SubclassDlgItem((UINT)::GetDlgCtrlID(hButton), parent);
        buttons.push_back(button);
    }
}

void ReleaseColorButtons(std::vector<CColorButton*>& buttons)
{
    for (CColorButton* button : buttons)
    {
        button->UnsubclassWindow();
        delete button;
    }
    buttons.clear();
}

void LoadComboArrows(CBitmap& arrow, CBitmap& disabledArrow)
{
    HMODULE hLibrary = ::GetModuleHandleA("KivMFC64.dll");
    if (arrow.GetSafeHandle() == nullptr)
        arrow.Attach(::LoadBitmapA(hLibrary, MAKEINTRESOURCEA(IDB_KIV_COMBO_ARROW)));
    if (disabledArrow.GetSafeHandle() == nullptr)
        disabledArrow.Attach(::LoadBitmapA(hLibrary, MAKEINTRESOURCEA(IDB_KIV_COMBO_ARROW_DISABLED)));
}

void DeleteComboArrows(CBitmap& arrow, CBitmap& disabledArrow)
{
    ::DeleteObject(arrow.Detach());
    ::DeleteObject(disabledArrow.Detach());
}

HBRUSH SchemeCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor, CBrush& background, CBitmap& arrow, CBitmap& disabledArrow,
                      CtlColorKind kind)
{
    if (pWnd != nullptr && (nCtlColor == CTLCOLOR_MSGBOX || nCtlColor == CTLCOLOR_EDIT || nCtlColor == CTLCOLOR_STATIC))
    {
        HWND hControl = pWnd->m_hWnd;
        if (!HasClass(hControl, "ComboBox"))
        {
            if (kind == CtlColorKind::kDialog)
            {
                // kept: a passing device context of the control, as the dialogs always took
                HDC hDC = ::GetDC(hControl);
                ::SetBkColor(hDC, rules::kRowBackgroundOdd);
                ::ReleaseDC(hControl, hDC);
            }
        }
        else if ((::GetWindowLongPtrA(hControl, GWL_STYLE) & 3) != CBS_SIMPLE)
        {
            DrawFlatCombo(pDC, hControl, background, arrow, disabledArrow, kind);
        }
    }
    pDC->SetTextColor(0x000000);
    pDC->SetBkColor(0xFFFFFF);
    return (HBRUSH)background.GetSafeHandle();
}

void PaintWhiteWithGrip(CWnd* wnd, CBrush& background)
{
    CPaintDC dc(wnd);
    CRect client;
    wnd->GetClientRect(&client);
    ::FillRect(dc.m_hDC, &client, (HBRUSH)background.GetSafeHandle());
    if (wnd->IsZoomed() || wnd->IsIconic() || !(wnd->GetStyle() & WS_THICKFRAME))
        return;
    rules::DialogRect grip = rules::GripSquare({client.left, client.top, client.right, client.bottom},
                                               ::GetSystemMetrics(SM_CXHSCROLL), ::GetSystemMetrics(SM_CYVSCROLL));
    RECT square = {grip.left, grip.top, grip.right, grip.bottom};
    ::DrawFrameControl(dc.m_hDC, &square, DFC_SCROLL, DFCS_SCROLLSIZEGRIP);
}

void AlternateRows(NMHDR* pNMHDR, LRESULT* pResult, long subItemAnswer)
{
    auto* draw = reinterpret_cast<NMLVCUSTOMDRAW*>(pNMHDR);
    rules::RowPaint paint = rules::AlternatingRows(draw->nmcd.dwDrawStage, draw->nmcd.dwItemSpec, subItemAnswer);
    if (paint.setsBackground)
        draw->clrTextBk = paint.background;
    *pResult = paint.result;
}

}  // namespace kiv::dialogs
