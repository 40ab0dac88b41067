// mfcCDialog's colours and painting: white everywhere with black text, flat combo boxes with
// the library's arrow pictures, alternating report rows and the size grip, read back as pixels.
#include "DialogsTest.h"

#include "Screenshot.h"

namespace dialogs_tests {

namespace {

CSize ClientSize(HWND hWnd)
{
    CRect client;
    ::GetClientRect(hWnd, &client);
    return client.Size();
}

// The showcase dialog, shown, with texts in its edit box and combo boxes and rows in its list.
class SchemeDialog : public TestDialog
{
public:
    SchemeDialog() : TestDialog(IDD_SCHEME, nullptr) {}
    ::mfcCListCtrl m_list;
    BOOL m_bListObject = FALSE;

    BOOL Open()
    {
        if (!Create(IDD_SCHEME, nullptr))
            return FALSE;
        SetDlgItemText(IDC_EDIT, "Text");
        for (int nID : {IDC_COMBO, IDC_COMBO_DISABLED, IDC_COMBO_SIMPLE})
        {
            ::SendMessageA(Item(*this, nID), CB_ADDSTRING, 0, (LPARAM) "First");
            ::SendMessageA(Item(*this, nID), CB_SETCURSEL, 0, 0);
        }
        FillReport(Item(*this, IDC_LIST), 4);
        ShowWindow(SW_SHOWNA);
        UpdateWindow();
        return TRUE;
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        if (m_bListObject)
            DDX_Control(pDX, IDC_LIST, m_list);
    }
};

// A window class "combobox": the system's combo box under a name that differs in case only,
// registered for this program while it lives, where creation finds it before the system's.
class LowerCaseComboClass
{
public:
    LowerCaseComboClass()
    {
        WNDCLASSEXA wc = {};
        wc.cbSize = sizeof(wc);
        ::GetClassInfoExA(nullptr, "ComboBox", &wc);
        wc.hInstance = ::GetModuleHandleA(nullptr);
        wc.lpszClassName = kName;
        wc.style &= ~CS_GLOBALCLASS;
        m_bRegistered = ::RegisterClassExA(&wc) != 0;
    }
    ~LowerCaseComboClass()
    {
        if (m_bRegistered)
            ::UnregisterClassA(kName, ::GetModuleHandleA(nullptr));
    }
    LowerCaseComboClass(const LowerCaseComboClass&) = delete;
    LowerCaseComboClass& operator=(const LowerCaseComboClass&) = delete;

    static constexpr char kName[] = "combobox";
    BOOL m_bRegistered = FALSE;
};

testing::AssertionResult ColoursAreBlackOnWhite(HDC hDC, HBRUSH hBrush)
{
    if (::GetTextColor(hDC) != kBlack || ::GetBkColor(hDC) != kWhite || BrushColour(hBrush) != kWhite)
        return testing::AssertionFailure() << "text " << Hex(::GetTextColor(hDC)) << ", background "
                                           << Hex(::GetBkColor(hDC)) << ", brush " << Hex(BrushColour(hBrush));
    return testing::AssertionSuccess();
}

// Background pixels of a control's rectangle in the dialog are white, and it shows black text.
testing::AssertionResult WhiteWithBlackText(const PixelProbe& probe, const CRect& rect)
{
    CRect inner = rect;
    inner.DeflateRect(3, 3);
    if (probe.Count(kBlack, inner) == 0)
        return testing::AssertionFailure() << "no black text";
    int whites = probe.Count(kWhite, inner);
    if (whites * 2 < inner.Width() * inner.Height())
        return testing::AssertionFailure() << "only " << whites << " white pixels";
    return AreaIs(probe, CRect(inner.right - 3, inner.top, inner.right, inner.bottom), kWhite);
}

}  // namespace

// White and black

TEST_F(mfcCDialog, StaticEditAndDialogAreWhiteWithBlackText)
{
    SchemeDialog dlg;
    ASSERT_TRUE(dlg.Open());
    PixelProbe probe = PixelProbe::CaptureClient(dlg.m_hWnd);
    EXPECT_TRUE(WhiteWithBlackText(probe, RectInParent(Item(dlg, IDC_LABEL))));
    CRect edit = RectInParent(Item(dlg, IDC_EDIT));
    edit.DeflateRect(2, 2);  // its sunken border
    EXPECT_TRUE(WhiteWithBlackText(probe, edit));
    CRect client;
    dlg.GetClientRect(&client);
    EXPECT_TRUE(AreaIs(probe, CRect(client.right - 40, 4, client.right - 4, 20), kWhite));
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, EveryControlColourGetsBlackTextOnWhite)
{
    SchemeDialog dlg;
    ASSERT_TRUE(dlg.Open());
    for (UINT message = WM_CTLCOLORMSGBOX; message <= WM_CTLCOLORSTATIC; ++message)
    {
        PixelProbe probe(8, 8);
        ::SetTextColor(probe.DC(), RGB(255, 0, 0));
        ::SetBkColor(probe.DC(), RGB(0, 0, 255));
        HWND hControl = message == WM_CTLCOLORDLG ? dlg.m_hWnd : Item(dlg, IDC_LABEL);
        HBRUSH hBrush = (HBRUSH)dlg.SendMessage(message, (WPARAM)probe.DC(), (LPARAM)hControl);
        EXPECT_TRUE(ColoursAreBlackOnWhite(probe.DC(), hBrush)) << "message " << Hex(message);
        EXPECT_EQ(hBrush, dlg.m_brBackground.GetSafeHandle());
    }
    dlg.DestroyWindow();
}

// Combo boxes

TEST_F(mfcCDialog, EnabledDropDownListComboIsFlatWithASteelBlueUnderlineAndTheArrow)
{
    SchemeDialog dlg;
    ASSERT_TRUE(dlg.Open());
    HWND hCombo = Item(dlg, IDC_COMBO);
    CSize size = ClientSize(hCombo);
    PixelProbe picture = LibraryPicture(2012);
    // On screen the underline's top row lies on the client area's lowest row.
    EXPECT_TRUE(ShowsFlatCombo(PixelProbe::CaptureClient(hCombo), size.cx, size.cy, kSteelBlue, picture));
    for (UINT message : {WM_CTLCOLOREDIT, WM_CTLCOLORSTATIC, WM_CTLCOLORMSGBOX})
    {
        HBRUSH hBrush = nullptr;
        PixelProbe probe = CtlColorPixels(dlg.m_hWnd, hCombo, message, &hBrush);
        EXPECT_TRUE(ShowsFlatCombo(probe, size.cx, size.cy, kSteelBlue, picture)) << message;
        EXPECT_TRUE(ColoursAreBlackOnWhite(probe.DC(), hBrush));
    }
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, EnabledDropDownComboWithAnEditBoxIsDrawnFlatToo)
{
    SchemeDialog dlg;
    ASSERT_TRUE(dlg.Open());
    HWND hCombo = ::CreateWindowExA(0, "ComboBox", "", WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, 7, 200, 120, 150,
                                    dlg.m_hWnd, (HMENU)2002, nullptr, nullptr);
    CSize size = ClientSize(hCombo);
    PixelProbe probe = CtlColorPixels(dlg.m_hWnd, hCombo, WM_CTLCOLOREDIT);
    EXPECT_TRUE(ShowsFlatCombo(probe, size.cx, size.cy, kSteelBlue, LibraryPicture(2012)));
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, DisabledDropDownListComboGetsAGreyUnderlineAndTheDisabledArrow)
{
    SchemeDialog dlg;
    ASSERT_TRUE(dlg.Open());
    HWND hCombo = Item(dlg, IDC_COMBO_DISABLED);
    ASSERT_FALSE(::IsWindowEnabled(hCombo));
    CSize size = ClientSize(hCombo);
    PixelProbe picture = LibraryPicture(2013);
    EXPECT_TRUE(ShowsFlatCombo(PixelProbe::CaptureClient(hCombo), size.cx, size.cy, kGrey, picture));
    PixelProbe probe = CtlColorPixels(dlg.m_hWnd, hCombo, WM_CTLCOLORSTATIC);
    EXPECT_TRUE(ShowsFlatCombo(probe, size.cx, size.cy, kGrey, picture));
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, SimpleComboGetsNoUnderlineAndNoPictureOnlyTheWhiteColours)
{
    SchemeDialog dlg;
    ASSERT_TRUE(dlg.Open());
    HWND hCombo = Item(dlg, IDC_COMBO_SIMPLE);
    PixelProbe shown = PixelProbe::CaptureClient(hCombo);
    CRect all(0, 0, shown.Width(), shown.Height());
    EXPECT_EQ(0, shown.Count(kSteelBlue, all));
    HBRUSH hBrush = nullptr;
    PixelProbe probe = CtlColorPixels(dlg.m_hWnd, hCombo, WM_CTLCOLOREDIT, &hBrush);
    EXPECT_EQ(0, PaintedPixels(probe));
    EXPECT_TRUE(ColoursAreBlackOnWhite(probe.DC(), hBrush));
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, ComboIsDrawnOnlyForTheEditStaticAndMessageBoxColours)
{
    SchemeDialog dlg;
    ASSERT_TRUE(dlg.Open());
    for (UINT message : {WM_CTLCOLORLISTBOX, WM_CTLCOLORBTN, WM_CTLCOLORDLG, WM_CTLCOLORSCROLLBAR})
        EXPECT_EQ(0, PaintedPixels(CtlColorPixels(dlg.m_hWnd, Item(dlg, IDC_COMBO), message))) << message;
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, ClassNameComboboxInAnotherCaseIsNotAComboBox)
{
    SchemeDialog dlg;
    ASSERT_TRUE(dlg.Open());
    LowerCaseComboClass lowerCase;
    ASSERT_TRUE(lowerCase.m_bRegistered);
    CRect rect = RectInParent(Item(dlg, IDC_COMBO));
    HWND hOther = ::CreateWindowExA(0, LowerCaseComboClass::kName, "", WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST,
                                    rect.left, rect.top + 120, rect.Width(), 200, dlg.m_hWnd, (HMENU)2001,
                                    ::GetModuleHandleA(nullptr), nullptr);
    ASSERT_NE(nullptr, hOther);
    char name[32] = {};
    ::GetClassNameA(hOther, name, sizeof(name));
    ASSERT_STREQ("combobox", name);
    EXPECT_EQ(0, ::SendMessageA(hOther, CB_ADDSTRING, 0, (LPARAM) "works"));  // a combo box in all but name
    PixelProbe shown = PixelProbe::CaptureClient(hOther);
    EXPECT_EQ(0, shown.Count(kSteelBlue, CRect(0, 0, shown.Width(), shown.Height())));
    HBRUSH hBrush = nullptr;
    PixelProbe probe = CtlColorPixels(dlg.m_hWnd, hOther, WM_CTLCOLOREDIT, &hBrush);
    EXPECT_EQ(0, PaintedPixels(probe));
    EXPECT_TRUE(ColoursAreBlackOnWhite(probe.DC(), hBrush));
    EXPECT_GT(PaintedPixels(CtlColorPixels(dlg.m_hWnd, Item(dlg, IDC_COMBO), WM_CTLCOLOREDIT)), 0);
    ::DestroyWindow(hOther);
    dlg.DestroyWindow();
}

// Report rows

TEST_F(mfcCDialog, ReflectedCustomDrawAlternatesReportRowsInEveryColumn)
{
    TestDialog dlg(IDD_PLAIN, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    ListHost host;
    ASSERT_TRUE(kivtest::CreateTopLevel(host, 300, 200));
    host.m_pReflectTo = &dlg;
    HWND hList = ::CreateWindowExA(0, WC_LISTVIEWA, "", WS_CHILD | WS_VISIBLE | LVS_REPORT, 0, 0, 260, 140, host.m_hWnd,
                                   (HMENU)IDC_LIST, nullptr, nullptr);
    FillReport(hList, 3);
    EXPECT_EQ(AlternatingRows(3), RowBackgrounds(hList, 3));
    host.DestroyWindow();
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, CustomDrawStagesAnswerAsTheRowTableSays)
{
    TestDialog dlg(IDD_PLAIN, nullptr);
    ASSERT_TRUE(dlg.Create(IDD_PLAIN, nullptr));
    ExpectRowStages(dlg, CDRF_NEWFONT);
    dlg.DestroyWindow();
}

// The size grip

TEST_F(mfcCDialog, ResizableDialogShowsTheSizeGrip)
{
    SchemeDialog dlg;
    ASSERT_TRUE(dlg.Open());
    CRect client;
    dlg.GetClientRect(&client);
    PixelProbe probe = PixelProbe::CaptureClient(dlg.m_hWnd);
    PixelProbe grip = ReferenceGrip(client);
    CRect square = GripSquare(client);
    EXPECT_GT(grip.Count(kWhite, square), 0);
    EXPECT_LT(grip.Count(kWhite, square), square.Width() * square.Height());
    for (int y = square.top; y < square.bottom; ++y)
        for (int x = square.left; x < square.right; ++x)
            ASSERT_EQ(grip.Pixel(x, y), probe.Pixel(x, y)) << x << "," << y;
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, MaximizedDialogShowsNoSizeGrip)
{
    SchemeDialog dlg;
    ASSERT_TRUE(dlg.Open());
    dlg.ShowWindow(SW_SHOWMAXIMIZED);
    CRect client;
    dlg.GetClientRect(&client);
    EXPECT_TRUE(AreaIs(PixelProbe::CaptureClient(dlg.m_hWnd), GripSquare(client), kWhite));
    dlg.DestroyWindow();
}

TEST_F(mfcCDialog, FixedSizeDialogNeverShowsASizeGrip)
{
    TestDialog dlg("SETTINGS", nullptr);
    ASSERT_TRUE(dlg.Create("SETTINGS", nullptr));
    dlg.ShowWindow(SW_SHOWNA);
    CRect client;
    dlg.GetClientRect(&client);
    EXPECT_TRUE(AreaIs(PixelProbe::CaptureClient(dlg.m_hWnd), GripSquare(client), kWhite));
    dlg.DestroyWindow();
}

// What a person sees

TEST_F(mfcCDialog, ScreenshotShowsTheScheme)
{
    SchemeDialog dlg;
    dlg.m_bListObject = TRUE;
    ASSERT_TRUE(dlg.Open());
    dlg.SetWindowPos(&CWnd::wndTopMost, 100, 100, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE);
    dlg.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    PumpPending();
    EXPECT_TRUE(kivtest::SaveWindowPng(dlg.m_hWnd, ScreenshotPath("mfcCDialog-scheme.png")));
    dlg.DestroyWindow();
}

}  // namespace dialogs_tests
