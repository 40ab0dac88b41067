#include "mfcCDialog.h"

#include "ColorButton.h"
#include "DialogRules.h"
#include "DialogScheme.h"
#include "LocalizationManager.h"

namespace rules = kiv::rules;
namespace scheme = kiv::dialogs;

IMPLEMENT_DYNAMIC(mfcCDialog, CNSFlexDialog)

BEGIN_MESSAGE_MAP(mfcCDialog, CNSFlexDialog)
    ON_WM_DESTROY()
    ON_WM_NCHITTEST()
    ON_WM_PAINT()
    ON_MESSAGE(WM_WINDOWPOSCHANGING, &mfcCDialog::OnWindowPosChanging)
    ON_WM_CTLCOLOR()
    ON_WM_ERASEBKGND()
    ON_NOTIFY_REFLECT(NM_CUSTOMDRAW, &mfcCDialog::CustDraw)
END_MESSAGE_MAP()

namespace {

constexpr char kPlacementKey[] = "Software\\Varnelt\\%s\\KIVDLG%s";
constexpr REGSAM kReadWrite = KEY_READ | KEY_WRITE;  // 0x2001F

void WriteDword(HKEY hKey, const char* name, LONG value)
{
    DWORD data = (DWORD)value;
    ::RegSetValueExA(hKey, name, 0, REG_DWORD, (const BYTE*)&data, sizeof(data));
}

// A failed read leaves the buffer as it was: a missing value repeats the one read before it.
void ReadDword(HKEY hKey, const char* name, DWORD& buffer)
{
    DWORD type = 0;
    DWORD size = sizeof(buffer);
    ::RegQueryValueExA(hKey, name, nullptr, &type, (BYTE*)&buffer, &size);
}

CString TemplateKey(UINT nIDTemplate)
{
    CString name;
    name.Format("%d", nIDTemplate);
    return name;
}

}  // namespace

mfcCDialog::mfcCDialog()
    : CNSFlexDialog(), m_pToolTip(nullptr), m_bMaximized(FALSE), m_bInitialized(0), m_bRestoringPlacement(FALSE),
      m_bApplyScheme(TRUE)
{}

mfcCDialog::mfcCDialog(UINT nIDTemplate, CWnd* pParentWnd)
    : CNSFlexDialog(nIDTemplate, pParentWnd, nullptr), m_pToolTip(nullptr), m_bMaximized(FALSE), m_bInitialized(0),
      m_strDialogName(TemplateKey(nIDTemplate)), m_bRestoringPlacement(FALSE), m_bApplyScheme(TRUE)
{}

mfcCDialog::mfcCDialog(const char* lpszTemplateName, CWnd* pParentWnd)
    : CNSFlexDialog(lpszTemplateName, pParentWnd, nullptr), m_pToolTip(nullptr), m_bMaximized(FALSE), m_bInitialized(0),
      m_strDialogName(lpszTemplateName), m_bRestoringPlacement(FALSE), m_bApplyScheme(TRUE)
{}

mfcCDialog::~mfcCDialog()
{
    if (m_pToolTip != nullptr)
    {
        m_pToolTip->DestroyWindow();
        delete m_pToolTip;
    }
    for (CColorButton* button : m_colorButtons)
        delete button;
}

int mfcCDialog::Create(UINT nIDTemplate, CWnd* pParentWnd, int /*reserved*/)
{
    m_strDialogName = TemplateKey(nIDTemplate);
    return CDialog::Create(MAKEINTRESOURCEA(nIDTemplate), pParentWnd);
}

int mfcCDialog::Create(const char* lpszTemplateName, CWnd* pParentWnd, int /*reserved*/)
{
    m_strDialogName = lpszTemplateName;
    return CDialog::Create(lpszTemplateName, pParentWnd);
}

CString mfcCDialog::PlacementKey() const
{
    CString key;
    key.Format(kPlacementKey, AfxGetModuleState()->m_lpszCurrentAppName, (LPCSTR)m_strDialogName);
    return key;
}

BOOL mfcCDialog::DestroyWindow()
{
    if (m_hWnd == nullptr || !::IsWindow(m_hWnd))
        return FALSE;
    CRect rect;
    GetWindowRect(&rect);
    HKEY hKey = nullptr;
    if (!m_strDialogName.IsEmpty() &&
        ::RegCreateKeyExA(HKEY_CURRENT_USER, PlacementKey(), 0, nullptr, REG_OPTION_NON_VOLATILE, kReadWrite, nullptr,
                          &hKey, nullptr) == ERROR_SUCCESS)
    {
        bool maximized = IsZoomed() != FALSE;
        if (maximized)
        {
            WINDOWPLACEMENT placement = {};
            placement.length = sizeof(placement);
            GetWindowPlacement(&placement);
            rect = placement.rcNormalPosition;
            WriteDword(hKey, "Maximized", 1);
        }
        WriteDword(hKey, "Bottom", rect.bottom);
        WriteDword(hKey, "Left", rect.left);
        WriteDword(hKey, "Right", rect.right);
        WriteDword(hKey, "Top", rect.top);
        if (!maximized)
            WriteDword(hKey, "Maximized", 0);
        ::RegCloseKey(hKey);
    }
    return CWnd::DestroyWindow();
}

BOOL mfcCDialog::OnInitDialog()
{
    CenterWindow(nullptr);
    BOOL result = CNSFlexDialog::OnInitDialog();
    m_bMaximized = FALSE;
    RestorePlacement();
    m_bInitialized = 1;
    UpdateDialogControls(this, TRUE);
    m_pToolTip = scheme::CreateDialogTips(this, m_lpszTemplateName);
    LocalizationManager* manager = LocalizationManager::Get();
    if (manager->IsTranslationMode())
        manager->TranslateDialog(this, m_strDialogName);
    m_brBackground.CreateSolidBrush(0xFFFFFF);
    if (m_bApplyScheme)
        scheme::SubclassPushButtons(this, m_colorButtons);
    scheme::LoadComboArrows(m_bmpComboArrow, m_bmpComboArrowDisabled);
    return result;
}

void mfcCDialog::RestorePlacement()
{
    HKEY hKey = nullptr;
    if (m_strDialogName.IsEmpty() ||
        ::RegOpenKeyExA(HKEY_CURRENT_USER, PlacementKey(), 0, KEY_READ, &hKey) != ERROR_SUCCESS)
        return;
    DWORD value = 0;
    RECT saved;
    ReadDword(hKey, "Bottom", value);
    saved.bottom = (LONG)value;
    ReadDword(hKey, "Left", value);
    saved.left = (LONG)value;
    ReadDword(hKey, "Right", value);
    saved.right = (LONG)value;
    ReadDword(hKey, "Top", value);
    saved.top = (LONG)value;
    DWORD maximized = (DWORD)m_bMaximized;
    ReadDword(hKey, "Maximized", maximized);
    m_bMaximized = (BOOL)maximized;
    ::RegCloseKey(hKey);

    if (::MonitorFromRect(&saved, MONITOR_DEFAULTTONULL) == nullptr)
        return;  // off every monitor: the dialog stays centred
    if (m_bMaximized)
    {
        m_bRestoringPlacement = TRUE;
        WINDOWPLACEMENT placement = {};
        placement.length = sizeof(placement);
        placement.showCmd = SW_SHOWMAXIMIZED;
        placement.rcNormalPosition = saved;
        SetWindowPlacement(&placement);
        m_bRestoringPlacement = FALSE;
        return;
    }
    WINDOWINFO info = {};
    info.cbSize = sizeof(info);
    GetWindowInfo(&info);
    // A dialog the user can resize gets its size back; a fixed-size one keeps its own.
    UINT flags = (info.dwStyle & WS_THICKFRAME) ? SWP_NOZORDER : SWP_NOZORDER | SWP_NOSIZE;
    SetWindowPos(nullptr, saved.left, saved.top, saved.right - saved.left, saved.bottom - saved.top, flags);
}

void mfcCDialog::CenterWindow(CWnd* pAlternateOwner)
{
    CRect screen;
    ::GetWindowRect(::GetDesktopWindow(), &screen);
    HWND hReference = pAlternateOwner != nullptr ? pAlternateOwner->m_hWnd : ::GetWindow(m_hWnd, GW_OWNER);
    CRect reference = screen;
    if (hReference != nullptr)
        ::GetWindowRect(hReference, &reference);
    CRect own;
    GetWindowRect(&own);
    rules::DialogPoint at =
        rules::CentreDialog({reference.left, reference.top, reference.right, reference.bottom}, own.Width(),
                            own.Height(), {screen.left, screen.top, screen.right, screen.bottom});
    MoveWindow(at.x, at.y, own.Width(), own.Height(), FALSE);
}

BOOL mfcCDialog::OnCommand(WPARAM wParam, LPARAM lParam)
{
    BOOL result = CWnd::OnCommand(wParam, lParam);
    if (m_hWnd != nullptr && m_bInitialized)
        UpdateDialogControls(this, TRUE);
    return result;
}

BOOL mfcCDialog::PreTranslateMessage(MSG* pMsg)
{
    scheme::RelayToTips(m_pToolTip, pMsg);
    return CDialog::PreTranslateMessage(pMsg);
}

LRESULT mfcCDialog::OnNcHitTest(CPoint point)
{
    LRESULT hit = Default();
    if (IsZoomed() || IsIconic() || !(GetStyle() & WS_THICKFRAME) || hit != HTCLIENT)
        return hit;
    CRect window;
    GetWindowRect(&window);
    rules::DialogRect grip = rules::GripSquare({window.left, window.top, window.right, window.bottom},
                                               ::GetSystemMetrics(SM_CXHSCROLL), ::GetSystemMetrics(SM_CYVSCROLL));
    return rules::Contains(grip, {point.x, point.y}) ? HTBOTTOMRIGHT : hit;
}

LRESULT mfcCDialog::OnWindowPosChanging(WPARAM /*wParam*/, LPARAM lParam)
{
    // A maximized placement being restored must not show the dialog before it is ready.
    if (m_bRestoringPlacement)
        ((WINDOWPOS*)lParam)->flags &= ~SWP_SHOWWINDOW;
    Default();
    return 0;
}

HBRUSH mfcCDialog::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    return scheme::SchemeCtlColor(pDC, pWnd, nCtlColor, m_brBackground, m_bmpComboArrow, m_bmpComboArrowDisabled,
                                  scheme::CtlColorKind::kDialog);
}

BOOL mfcCDialog::OnEraseBkgnd(CDC* pDC)
{
    if (!m_bApplyScheme)
        return TRUE;  // the background is left as it is
    CRect client;
    GetClientRect(&client);
    ::FillRect(pDC->m_hDC, &client, (HBRUSH)m_brBackground.GetSafeHandle());
    return TRUE;
}

void mfcCDialog::OnPaint()
{
    scheme::PaintWhiteWithGrip(this, m_brBackground);
}

void mfcCDialog::CustDraw(NMHDR* pNMHDR, LRESULT* pResult)
{
    scheme::AlternateRows(pNMHDR, pResult, rules::kNewFont);
}

void mfcCDialog::OnDestroy()
{
    if (m_pToolTip != nullptr)
    {
        m_pToolTip->DestroyWindow();
        delete m_pToolTip;
        m_pToolTip = nullptr;
    }
    scheme::DeleteComboArrows(m_bmpComboArrow, m_bmpComboArrowDisabled);
    scheme::ReleaseColorButtons(m_colorButtons);
    if (m_brBackground.GetSafeHandle() != nullptr)
        m_brBackground.DeleteObject();
    CWnd::OnDestroy();
}
