#include "DialogsTest.h"

namespace dialogs_tests {

BEGIN_MESSAGE_MAP(TestDialog, Exposed<::mfcCDialog>)
    ON_BN_CLICKED(IDC_OPEN, &TestDialog::OnOpen)
    ON_UPDATE_COMMAND_UI(IDC_OPEN, &TestDialog::OnUpdateOpen)
END_MESSAGE_MAP()

void TestDialog::DoDataExchange(CDataExchange* pDX)
{
    if (m_bOwnButton)
        DDX_Control(pDX, IDC_OWNED, m_owned);
}

void TestDialog::OnUpdateOpen(CCmdUI* pCmdUI)
{
    ++m_nOpenUpdates;
    pCmdUI->Enable(TRUE);
}

// The fixture

void DialogTest::SetUp()
{
    ::SetCursorPos(1270, 1010);
    INITCOMMONCONTROLSEX icc = {sizeof(icc), ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES};
    ::InitCommonControlsEx(&icc);
    const testing::TestInfo* pInfo = testing::UnitTest::GetInstance()->current_test_info();
    m_strAppName.Format("KivDialogs.%s.%s.%lu", pInfo->test_suite_name(), pInfo->name(), ::GetCurrentProcessId());
    m_strAppKey = "Software\\Varnelt\\" + m_strAppName;
    AFX_MODULE_STATE* pState = AfxGetModuleState();
    m_lpszSavedAppName = pState->m_lpszCurrentAppName;
    pState->m_lpszCurrentAppName = m_strAppName;
    m_registry = std::make_unique<kivtest::RegistrySandbox>(m_strAppKey);
}

void DialogTest::TearDown()
{
    PumpPending();
    AfxGetModuleState()->m_lpszCurrentAppName = m_lpszSavedAppName;
    m_registry.reset();
}

void DialogTest::SavePlacement(const char* lpszDialog, const CRect& rect, DWORD maximized)
{
    CString key = CString("KIVDLG") + lpszDialog;
    Registry().WriteDword(key, "Left", (DWORD)rect.left);
    Registry().WriteDword(key, "Top", (DWORD)rect.top);
    Registry().WriteDword(key, "Right", (DWORD)rect.right);
    Registry().WriteDword(key, "Bottom", (DWORD)rect.bottom);
    Registry().WriteDword(key, "Maximized", maximized);
}

bool DialogTest::ReadPlacement(const char* lpszDialog, CRect& rect, DWORD& maximized)
{
    CString key = CString("KIVDLG") + lpszDialog;
    DWORD left = 0, top = 0, right = 0, bottom = 0;
    bool all = Registry().ReadDword(key, "Left", left) && Registry().ReadDword(key, "Top", top) &&
               Registry().ReadDword(key, "Right", right) && Registry().ReadDword(key, "Bottom", bottom) &&
               Registry().ReadDword(key, "Maximized", maximized);
    rect.SetRect((LONG)left, (LONG)top, (LONG)right, (LONG)bottom);
    return all;
}

void DialogTest::CreateOwner(CWnd& owner, const CRect& rect)
{
    ASSERT_TRUE(owner.CreateEx(0, AfxRegisterWndClass(0, nullptr, (HBRUSH)(COLOR_WINDOW + 1)), "owner",
                               WS_POPUP | WS_VISIBLE | WS_BORDER, rect.left, rect.top, rect.Width(), rect.Height(),
                               nullptr, nullptr));
}

// Translation mode

namespace {

std::string TempName(const char* lpszPrefix)
{
    char dir[MAX_PATH], file[MAX_PATH];
    ::GetTempPathA(MAX_PATH, dir);
    ::GetTempFileNameA(dir, lpszPrefix, 0, file);
    return file;
}

}  // namespace

TranslationMode::TranslationMode() : m_ini(TempName("ini")), m_store(TempName("sto"))
{
    ::DeleteFileA(m_store.c_str());
    ::CreateDirectoryA(m_store.c_str(), nullptr);
    std::string text = "[Environment]\r\nLanguageSetting=German\r\n[Store]\r\nDirectory=" + m_store + "\r\n";
    HANDLE hFile = ::CreateFileA(m_ini.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    ::WriteFile(hFile, text.data(), (DWORD)text.size(), &written, nullptr);
    ::CloseHandle(hFile);
    ::SetEnvironmentVariableA("KIV_INI", m_ini.c_str());
}

TranslationMode::~TranslationMode()
{
    ::SetEnvironmentVariableA("KIV_INI", nullptr);
    ::DeleteFileA(m_ini.c_str());
    ::RemoveDirectoryA(m_store.c_str());
}

// Tooltips

std::vector<Tip> TipsOf(HWND hToolTip)
{
    std::vector<Tip> tips;
    int count = (int)::SendMessageA(hToolTip, TTM_GETTOOLCOUNT, 0, 0);
    for (int i = 0; i < count; ++i)
    {
        TTTOOLINFOA info = {};
        info.cbSize = TTTOOLINFOA_V2_SIZE;
        if (!::SendMessageA(hToolTip, TTM_ENUMTOOLSA, i, (LPARAM)&info))
            continue;
        char text[1024] = {};
        info.lpszText = text;
        ::SendMessageA(hToolTip, TTM_GETTEXTA, sizeof(text), (LPARAM)&info);
        tips.push_back({(info.uFlags & TTF_IDISHWND) ? (HWND)info.uId : nullptr, text});
    }
    return tips;
}

std::vector<std::string> TipTexts(HWND hToolTip)
{
    std::vector<std::string> texts;
    for (const Tip& tip : TipsOf(hToolTip))
        texts.push_back(std::to_string(::GetDlgCtrlID(tip.tool)) + ":" + tip.text);
    return texts;
}

// Commands and updates

void ClickFrom(CWnd& parent, int nID)
{
    parent.SendMessage(WM_COMMAND, MAKEWPARAM(nID, BN_CLICKED), (LPARAM)Item(parent, nID));
}

BOOL OrphanEnabled(const CWnd& parent)
{
    return ::IsWindowEnabled(Item(parent, IDC_ORPHAN));
}

testing::AssertionResult ClickDisablesTheOrphanAgain(CWnd& parent)
{
    ::EnableWindow(Item(parent, IDC_ORPHAN), TRUE);
    ClickFrom(parent, IDC_OPEN);
    if (OrphanEnabled(parent))
        return testing::AssertionFailure() << "Orphan stayed enabled";
    if (!::IsWindowEnabled(Item(parent, IDC_OPEN)))
        return testing::AssertionFailure() << "Open was disabled";
    return testing::AssertionSuccess();
}

StrayButton::StrayButton()
    : m_hWnd(::CreateWindowExA(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, "Button", "Stray",
                               WS_POPUP | WS_VISIBLE | BS_PUSHBUTTON, 1200, 0, 60, 20, nullptr, nullptr, nullptr,
                               nullptr))
{}

StrayButton::~StrayButton()
{
    ::DestroyWindow(m_hWnd);
}

DestroyWatch::DestroyWatch(HWND hWnd, std::function<void()> action) : m_hWnd(hWnd), m_action(std::move(action))
{
    ::SetPropA(hWnd, "DestroyWatch", this);
    m_pfnOld = (WNDPROC)::SetWindowLongPtrA(hWnd, GWLP_WNDPROC, (LONG_PTR)Proc);
}

DestroyWatch::~DestroyWatch()
{
    if (::IsWindow(m_hWnd) && ::GetPropA(m_hWnd, "DestroyWatch") == this)
    {
        ::SetWindowLongPtrA(m_hWnd, GWLP_WNDPROC, (LONG_PTR)m_pfnOld);
        ::RemovePropA(m_hWnd, "DestroyWatch");
    }
}

LRESULT CALLBACK DestroyWatch::Proc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* watch = static_cast<DestroyWatch*>(::GetPropA(hWnd, "DestroyWatch"));
    WNDPROC pfnOld = watch->m_pfnOld;
    if (message == WM_DESTROY && watch->m_action)
        watch->m_action();
    if (message == WM_NCDESTROY)
    {
        ::SetWindowLongPtrA(hWnd, GWLP_WNDPROC, (LONG_PTR)pfnOld);
        ::RemovePropA(hWnd, "DestroyWatch");
    }
    return ::CallWindowProcA(pfnOld, hWnd, message, wParam, lParam);
}

testing::AssertionResult RelaysMouseMessages(CWnd& wnd, HWND hToolTip, HWND hControl)
{
    kivtest::MessageSpy spy;
    spy.Only({TTM_RELAYEVENT});
    spy.Watch(hToolTip);
    std::vector<kivtest::Expected> expected;
    for (UINT message : {0x01FFu, 0x0200u, 0x0201u, 0x020Au, 0x020Eu, 0x020Fu})
    {
        MSG msg = {hControl, message, 0, MAKELPARAM(3, 3), 0, {0, 0}};
        spy.Mark(message);
        wnd.PreTranslateMessage(&msg);
        expected.push_back(kivtest::Expected::Marker(message));
        if (message >= WM_MOUSEMOVE && message <= 0x020E)
            expected.push_back(
                {TTM_RELAYEVENT, kivtest::Expected::kWParam | kivtest::Expected::kLParam, 0, (LPARAM)&msg});
    }
    return spy.Matches(expected);
}

void ExpectRowStages(CWnd& target, LRESULT subItemAnswer)
{
    const DWORD kSubItem = CDDS_ITEMPREPAINT | CDDS_SUBITEM;
    struct Stage
    {
        DWORD stage;
        DWORD_PTR row;
        LRESULT answer;
        COLORREF background;
    } stages[] = {
        {CDDS_PREPAINT, 0, CDRF_NOTIFYITEMDRAW, CLR_INVALID},
        {CDDS_ITEMPREPAINT, 0, CDRF_NOTIFYSUBITEMDRAW, CLR_INVALID},
        {kSubItem, 0, subItemAnswer, kPaleBlue},
        {kSubItem, 1, subItemAnswer, kWhite},
        {kSubItem, 2, subItemAnswer, kPaleBlue},
        {kSubItem, (DWORD_PTR)0x100000000ull, subItemAnswer, kPaleBlue},
        {CDDS_ITEMPOSTPAINT, 1, CDRF_DODEFAULT, CLR_INVALID},
        {CDDS_POSTPAINT, 0, CDRF_DODEFAULT, CLR_INVALID},
    };
    for (const Stage& stage : stages)
    {
        NMLVCUSTOMDRAW draw = {};
        draw.nmcd.hdr = {target.m_hWnd, (UINT_PTR)target.GetDlgCtrlID(), (UINT)NM_CUSTOMDRAW};
        draw.nmcd.dwDrawStage = stage.stage;
        draw.nmcd.dwItemSpec = stage.row;
        draw.clrTextBk = CLR_INVALID;
        LRESULT answer = -1;
        EXPECT_TRUE(target.OnChildNotify(WM_NOTIFY, draw.nmcd.hdr.idFrom, (LPARAM)&draw, &answer));
        EXPECT_EQ(stage.answer, answer) << "stage " << Hex(stage.stage);
        EXPECT_EQ(stage.background, draw.clrTextBk) << "stage " << Hex(stage.stage) << " row " << stage.row;
    }
}

testing::AssertionResult LetGo(const SchemeHold& held)
{
    if (held.hToolTip != nullptr && ::IsWindow(held.hToolTip))
        return testing::AssertionFailure() << "the tooltip window is still there";
    for (HGDIOBJ hObject : {held.hArrow, held.hArrowDisabled, held.hBrush})
        if (::GetObjectType(hObject) != 0)
            return testing::AssertionFailure() << "a picture or the brush was not deleted";
    // Children go after their parent's WM_DESTROY: the button is there, given back.
    if (!::IsWindow(held.hButton) || CWnd::FromHandlePermanent(held.hButton) != nullptr ||
        ::GetWindowLongPtrA(held.hButton, GWLP_WNDPROC) != held.buttonProc)
        return testing::AssertionFailure() << "the push button was not unsubclassed";
    return testing::AssertionSuccess();
}

std::wstring ScreenshotPath(const char* lpszName)
{
    char exe[MAX_PATH];
    DWORD n = ::GetModuleFileNameA(nullptr, exe, MAX_PATH);
    std::string folder(exe, n);
    folder = folder.substr(0, folder.rfind('\\'));
    folder = folder.substr(0, folder.rfind('\\') + 1) + "screenshots";
    ::CreateDirectoryA(folder.c_str(), nullptr);
    return std::wstring(CStringW((folder + "\\" + lpszName).c_str()));
}

}  // namespace dialogs_tests
