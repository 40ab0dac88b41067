// CUnicodeButton with real windows: its two modes, WM_UNICODE and the section-carrying
// WM_SETTEXT, hover tracking, the visual-style state numbers, and what each mode paints.
#include "ControlsTest.h"

#include <uxtheme.h>

using namespace controls_tests;

namespace {

class UnicodeButton : public ButtonTest
{
protected:
    // A translation in the manager's cache, as the store's preload puts it there.
    static void Seed(LPCSTR defaultText, LPCWSTR translation, UINT id, LPCSTR section)
    {
        CString key;
        key.Format("%d", id);
        LocalizationManager::Get()->SetTranslation(defaultText, CStringW(translation), key, section);
    }
    // A button already in wide mode with the given wide caption (empty: no caption at all).
    void CreateWide(TestUnicodeButton& button, LPCWSTR caption, DWORD style, const CRect& rect, UINT id, LPCSTR section,
                    bool withFont = true)
    {
        if (*caption != L'\0')
            Seed("Caption", caption, id, section);
        CreateButton(button, *caption != L'\0' ? "Caption" : "", style, rect, id, withFont);
        button.SendMessage(WM_UNICODE, 0, (LPARAM)section);
        ASSERT_TRUE(button.Unicode());
        ASSERT_TRUE(button.TextW() == caption);
    }
    // Exactly what the button paints: the client is covered with the underlay first, and the
    // button's erase leaves it there.
    static PixelProbe PaintedOverUnderlay(HWND hWnd)
    {
        PaintUnderlay(hWnd);
        RepaintNow(hWnd);
        return ReadClient(hWnd);
    }
    // Where the button puts a wide caption inside `text`: centred vertically, and
    // horizontally only when asked and when it fits.
    static void CaptionOrigin(HWND hWnd, const CStringW& caption, const CRect& text, bool centre, float& x, float& y)
    {
        float width = 0, height = 0;
        HDC hDC = ::GetDC(hWnd);
        MeasureWideCaption(hDC, ButtonFont(hWnd), caption, width, height);
        ::ReleaseDC(hWnd, hDC);
        y = text.top + (text.Height() - height) * 0.5f;
        x = (float)text.left;
        if (centre && text.Width() > width)
            x = text.left + (text.Width() - width) * 0.5f;
    }
    // What the window shows with the wide caption drawn over it through a window DC, as the
    // button draws it in its paint: GDI+ draws text on a window unsmoothed and with other
    // advances than into a memory bitmap, so the reference is drawn on a window too.
    static PixelProbe WithCaptionOnWindow(HWND hWnd, const CStringW& caption, float x, float y)
    {
        HDC hDC = ::GetDC(hWnd);
        DrawWideCaption(hDC, DialogFont(), caption, x, y);
        ::ReleaseDC(hWnd, hDC);
        return ReadClient(hWnd);
    }
    // A wide push button with the caption against the same button with none: the caption
    // adds dark pixels inside the box it measures at its centred origin, and none outside.
    void ExpectCaptionDrawnInItsBox(LPCWSTR caption, UINT id, LPCSTR section)
    {
        TestUnicodeButton empty;
        CreateWide(empty, L"", BS_PUSHBUTTON, CRect(10, 10, 130, 40), id, section);
        TestUnicodeButton button;
        CreateWide(button, caption, BS_PUSHBUTTON, CRect(10, 50, 130, 80), id + 1, section);
        CRect client = ClientOf(button.m_hWnd);
        float x = 0, y = 0, width = 0, height = 0;
        CaptionOrigin(button.m_hWnd, caption, client, true, x, y);
        HDC hDC = ::GetDC(button.m_hWnd);
        MeasureWideCaption(hDC, DialogFont(), caption, width, height);
        ::ReleaseDC(button.m_hWnd, hDC);
        CRect box((int)x, (int)y, (int)(x + width) + 1, (int)(y + height) + 1);
        PixelProbe without = PaintedOverUnderlay(empty.m_hWnd);
        PixelProbe with = PaintedOverUnderlay(button.m_hWnd);
        EXPECT_GT(DifferingPixels(without, with, box), 20);
        EXPECT_TRUE(Contains(box, DifferenceBounds(without, with, client)));
        EXPECT_GT(with.Count(kBlack, box), 0);
    }
    static HFONT ButtonFont(HWND hWnd) { return (HFONT)::SendMessageA(hWnd, WM_GETFONT, 0, 0); }
    static CRect ClientOf(HWND hWnd)
    {
        CRect rect;
        ::GetClientRect(hWnd, &rect);
        return rect;
    }
};

const int kPushStates[] = {1, 2, 3, 4, 5};

}  // namespace

// Construction and the two modes

TEST_F(UnicodeButton, StartsInNarrowModeWithEmptyTexts)
{
    TestUnicodeButton button;
    CreateButton(button, "Save", BS_PUSHBUTTON);
    EXPECT_FALSE(button.Unicode());
    EXPECT_FALSE(button.OverControl());
    EXPECT_TRUE(button.TextW().IsEmpty());
    EXPECT_TRUE(button.SavedText().IsEmpty());
    EXPECT_TRUE(FaceIsPainted(ReadClient(button.m_hWnd), FaceOf(button.m_hWnd), kSteelBlue, kWhite));
}

TEST_F(UnicodeButton, SubclassingClearsModeAndHoverFlags)
{
    HWND hWnd = ::CreateWindowExA(0, "BUTTON", "Save", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, 10, 10, 120, 30,
                                  m_parent.m_hWnd, (HMENU)1001, nullptr, nullptr);
    ASSERT_NE(nullptr, hWnd);
    TestUnicodeButton button;
    button.SetFlags(TRUE, TRUE);
    ASSERT_TRUE(button.SubclassWindow(hWnd));
    EXPECT_FALSE(button.Unicode());
    EXPECT_FALSE(button.OverControl());
    EXPECT_EQ((DWORD)BS_PUSHBUTTON, button.GetStyle() & 0x0F);
}

TEST_F(UnicodeButton, RunTimeClassIsUnicodeButtonOverButton)
{
    TestUnicodeButton button;
    EXPECT_STREQ("CUnicodeButton", RUNTIME_CLASS(CUnicodeButton)->m_lpszClassName);
    EXPECT_TRUE(button.IsKindOf(RUNTIME_CLASS(CButton)));
    EXPECT_EQ(0x052D, WM_UNICODE);
}

// WM_UNICODE

TEST_F(UnicodeButton, UnicodeMessageStoresTheTranslationAndSwitchesToWideMode)
{
    Seed("Save", L"Αποθήκευση", 1101, "300");
    Seed("Save", L"Wrong key", 1102, "300");
    TestUnicodeButton button;
    CreateButton(button, "Save", BS_PUSHBUTTON, CRect(10, 10, 130, 40), 1101);
    MessageSpy spy;
    WatchRepaints(spy, button.m_hWnd);
    EXPECT_EQ(1, button.SendMessage(WM_UNICODE, 0, (LPARAM) "300"));
    EXPECT_TRUE(button.Unicode());
    EXPECT_TRUE(button.TextW() == L"Αποθήκευση");
    EXPECT_TRUE(button.SavedText().IsEmpty());
    CString text;
    button.GetWindowText(text);
    EXPECT_STREQ("Save", text);
    EXPECT_TRUE(spy.Matches({{WM_UNICODE}}));
    EXPECT_FALSE(HasUpdateRegion(button.m_hWnd));
}

TEST_F(UnicodeButton, UnicodeMessageLeavesTheLookUnchangedUntilTheNextRepaint)
{
    Seed("Save", L"Αποθήκευση", 1101, "301");
    TestUnicodeButton button;
    CreateButton(button, "Save", BS_PUSHBUTTON, CRect(10, 10, 130, 40), 1101);
    CRect client = ClientOf(button.m_hWnd);
    PixelProbe narrow = ReadClient(button.m_hWnd);
    button.SendMessage(WM_UNICODE, 0, (LPARAM) "301");
    EXPECT_EQ(0, DifferingPixels(narrow, ReadClient(button.m_hWnd), client));
    PixelProbe wide = PixelProbe::CaptureClient(button.m_hWnd);
    EXPECT_EQ(0, wide.Count(kSteelBlue, client));
    EXPECT_GT(DifferingPixels(narrow, wide, client), client.Width() * client.Height() / 2);
}

TEST_F(UnicodeButton, UnicodeMessageWithoutTranslationShowsTheWindowText)
{
    TestUnicodeButton button;
    CreateButton(button, "Open", BS_PUSHBUTTON, CRect(10, 10, 130, 40), 1103);
    EXPECT_EQ(1, button.SendMessage(WM_UNICODE, 0, (LPARAM) "302"));
    EXPECT_TRUE(button.Unicode());
    EXPECT_TRUE(button.TextW() == L"Open");
}

TEST_F(UnicodeButton, UnicodeMessageWithNullSectionReadsTheEmptySection)
{
    Seed("Save", L"Speichern", 1104, "");
    TestUnicodeButton button;
    CreateButton(button, "Save", BS_PUSHBUTTON, CRect(10, 10, 130, 40), 1104);
    EXPECT_EQ(1, button.SendMessage(WM_UNICODE, 0, 0));
    EXPECT_TRUE(button.Unicode());
    EXPECT_TRUE(button.TextW() == L"Speichern");
    EXPECT_TRUE(PixelProbe::CaptureClient(button.m_hWnd).Count(kBlack, ClientOf(button.m_hWnd)) > 0);
}

// WM_SETTEXT, with and without a section

TEST_F(UnicodeButton, SetTextWithSectionEmptiesWindowTextKeepsCaptionAndStoresTranslation)
{
    Seed("Save", L"Αποθήκευση", 1105, "310");
    TestUnicodeButton button;
    CreateButton(button, "Old", BS_PUSHBUTTON, CRect(10, 10, 130, 40), 1105);
    MessageSpy spy;
    WatchRepaints(spy, button.m_hWnd);
    spy.CaptureText({WM_SETTEXT});
    const char* section = "310";
    EXPECT_EQ(1, button.SendMessage(WM_SETTEXT, (WPARAM)section, (LPARAM) "Save"));
    EXPECT_TRUE(button.Unicode());
    EXPECT_STREQ("Save", button.SavedText());
    EXPECT_TRUE(button.TextW() == L"Αποθήκευση");
    CString text;
    button.GetWindowText(text);
    EXPECT_STREQ("", text);
    EXPECT_TRUE(spy.Matches({{WM_SETTEXT, Expected::kWParam, (WPARAM)section},
                             {WM_SETTEXT, Expected::kWParam, 0},
                             {WM_PAINT},
                             {WM_ERASEBKGND}}));
    ASSERT_EQ(4u, spy.Messages().size());
    EXPECT_EQ("", spy.Messages()[1].text);
}

TEST_F(UnicodeButton, SetTextWithSectionRepaintsOnlyBeforeTheTranslationIsStored)
{
    Seed("Save", L"Αποθήκευση", 1106, "311");
    TestUnicodeButton button;
    CreateButton(button, "Old", BS_PUSHBUTTON, CRect(10, 10, 130, 40), 1106);
    button.m_captionAtPaint.clear();
    button.SendMessage(WM_SETTEXT, (WPARAM) "311", (LPARAM) "Save");
    ASSERT_EQ(1u, button.m_captionAtPaint.size());
    EXPECT_TRUE(button.m_captionAtPaint[0].IsEmpty());
    EXPECT_FALSE(HasUpdateRegion(button.m_hWnd));
    // On screen: the wide look without its caption, until the next repaint shows it.
    CRect client = ClientOf(button.m_hWnd);
    PixelProbe shown = ReadClient(button.m_hWnd);
    PixelProbe repainted = PixelProbe::CaptureClient(button.m_hWnd);
    EXPECT_EQ(0, shown.Count(kBlack, client));
    EXPECT_GT(repainted.Count(kBlack, client), 0);
}

TEST_F(UnicodeButton, SecondSetTextWithSectionKeepsNewTextAndTranslatesTheFirstCaption)
{
    Seed("Save", L"Αποθήκευση", 1107, "312");
    TestUnicodeButton button;
    CreateButton(button, "Old", BS_PUSHBUTTON, CRect(10, 10, 130, 40), 1107);
    button.SendMessage(WM_SETTEXT, (WPARAM) "312", (LPARAM) "Save");
    MessageSpy spy;
    WatchRepaints(spy, button.m_hWnd);
    EXPECT_EQ(1, button.SendMessage(WM_SETTEXT, (WPARAM) "313", (LPARAM) "Store"));
    CString text;
    button.GetWindowText(text);
    EXPECT_STREQ("Store", text);
    EXPECT_STREQ("Save", button.SavedText());
    // Section 313 holds no translation: the answer is the first saved caption, not "Store".
    EXPECT_TRUE(button.TextW() == L"Save");
    EXPECT_TRUE(spy.Matches({{WM_SETTEXT}}));
}

TEST_F(UnicodeButton, SetTextWithoutSectionRepaintsAndReturnsOne)
{
    TestUnicodeButton button;
    CreateButton(button, "Old", BS_PUSHBUTTON);
    MessageSpy spy;
    WatchRepaints(spy, button.m_hWnd);
    EXPECT_EQ(1, button.SendMessage(WM_SETTEXT, 0, (LPARAM) "New"));
    EXPECT_TRUE(spy.Matches({{WM_SETTEXT}, {WM_PAINT}, {WM_ERASEBKGND}}));
    EXPECT_FALSE(button.Unicode());
    CString text;
    button.GetWindowText(text);
    EXPECT_STREQ("New", text);
    CRect face = FaceOf(button.m_hWnd);
    EXPECT_EQ(0, DifferingPixels(ReadClient(button.m_hWnd),
                                 ReferenceFace(button.m_hWnd, kSteelBlue, kWhite, DT_LEFT, kUnderlay), face));
}

// Hover tracking and the messages it answers

TEST_F(UnicodeButton, MouseEnteringTakesTheCaptureAndRepaintsWithErase)
{
    TestUnicodeButton button;
    CreateButton(button, "Save", BS_PUSHBUTTON);
    MessageSpy spy;
    WatchRepaints(spy, button.m_hWnd);
    MoveInside(button);
    EXPECT_EQ(button.m_hWnd, ::GetCapture());
    EXPECT_TRUE(button.OverControl());
    EXPECT_TRUE(spy.Matches({{WM_MOUSEMOVE}, {WM_PAINT}, {WM_ERASEBKGND}}));
}

TEST_F(UnicodeButton, MouseMovingInsideRepaintsWithErase)
{
    TestUnicodeButton button;
    CreateButton(button, "Save", BS_PUSHBUTTON);
    MoveInside(button);
    MessageSpy spy;
    WatchRepaints(spy, button.m_hWnd);
    button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(40, 12));
    EXPECT_TRUE(spy.Matches({{WM_MOUSEMOVE}, {WM_PAINT}, {WM_ERASEBKGND}}));
    EXPECT_EQ(button.m_hWnd, ::GetCapture());
    EXPECT_TRUE(button.OverControl());
}

TEST_F(UnicodeButton, MouseLeavingReleasesTheCaptureAndRepaints)
{
    TestUnicodeButton button;
    CreateButton(button, "Save", BS_PUSHBUTTON);
    MoveInside(button);
    MessageSpy spy;
    WatchRepaints(spy, button.m_hWnd);
    MoveOutside(button);
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_FALSE(button.OverControl());
    // The release repaints through WM_CAPTURECHANGED, then the move handler repaints again.
    EXPECT_TRUE(
        spy.Matches({{WM_MOUSEMOVE}, {WM_CAPTURECHANGED}, {WM_PAINT}, {WM_ERASEBKGND}, {WM_PAINT}, {WM_ERASEBKGND}}));
    EXPECT_TRUE(FaceIsPainted(ReadClient(button.m_hWnd), FaceOf(button.m_hWnd), kSteelBlue, kWhite));
}

TEST_F(UnicodeButton, MouseOutsideWithoutTheCaptureOnlyPassesTheMoveOn)
{
    TestUnicodeButton button;
    CreateButton(button, "Save", BS_PUSHBUTTON);
    MessageSpy spy;
    WatchRepaints(spy, button.m_hWnd);
    MoveOutside(button);
    EXPECT_TRUE(spy.Matches({{WM_MOUSEMOVE}}));
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_FALSE(button.OverControl());
}

TEST_F(UnicodeButton, MouseLeavingWithLeftButtonHeldKeepsCaptureAndHoverLook)
{
    TestUnicodeButton button;
    CreateButton(button, "Save", BS_PUSHBUTTON);
    MoveInside(button);
    button.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    MessageSpy spy;
    WatchRepaints(spy, button.m_hWnd);
    MoveOutside(button, MK_LBUTTON);
    EXPECT_TRUE(spy.Matches({{WM_MOUSEMOVE}, {BM_SETSTATE, Expected::kWParam, FALSE}}));
    EXPECT_EQ(button.m_hWnd, ::GetCapture());
    EXPECT_TRUE(button.OverControl());
    EXPECT_EQ(2, button.PushState());
    EXPECT_TRUE(FaceIsPainted(PixelProbe::CaptureClient(button.m_hWnd), FaceOf(button.m_hWnd), kLightBlue, kBlack));

    button.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(300, 5));
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_FALSE(button.OverControl());
    EXPECT_EQ(0, spy.Count(WM_COMMAND));
    EXPECT_TRUE(FaceIsPainted(PixelProbe::CaptureClient(button.m_hWnd), FaceOf(button.m_hWnd), kSteelBlue, kWhite));
}

TEST_F(UnicodeButton, PressAndReleaseClicksAndEndsTheHover)
{
    TestUnicodeButton button;
    CreateButton(button, "Save", BS_PUSHBUTTON, CRect(10, 10, 130, 40), 1001);
    MoveInside(button);
    MessageSpy spy;
    WatchRepaints(spy, button.m_hWnd);
    spy.Watch(m_parent.m_hWnd);
    spy.Mark(1);
    button.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_EQ(button.m_hWnd, ::GetCapture());
    EXPECT_TRUE(button.OverControl());
    EXPECT_EQ(3, button.PushState());
    spy.Mark(2);
    button.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_FALSE(button.OverControl());
    // The class repaints, then the system procedure lets go of the capture (which repaints
    // once more) and clicks.
    EXPECT_TRUE(spy.Matches({Expected::Marker(1),
                             {WM_LBUTTONDOWN},
                             {WM_CAPTURECHANGED, Expected::kOptional},
                             {WM_PAINT, Expected::kOptional},
                             {WM_ERASEBKGND, Expected::kOptional},
                             {BM_SETSTATE, Expected::kWParam, TRUE},
                             Expected::Marker(2),
                             {WM_LBUTTONUP},
                             {WM_PAINT},
                             {WM_ERASEBKGND},
                             {BM_SETSTATE, Expected::kWParam, FALSE},
                             {WM_CAPTURECHANGED},
                             {WM_PAINT},
                             {WM_ERASEBKGND},
                             {WM_COMMAND, Expected::kWParam, MAKEWPARAM(1001, BN_CLICKED)}}));

    MoveInside(button);
    EXPECT_EQ(button.m_hWnd, ::GetCapture());
    EXPECT_TRUE(button.OverControl());
}

TEST_F(UnicodeButton, CaptureChangedRepaintsAndKeepsTheHoverFlag)
{
    TestUnicodeButton button;
    CreateButton(button, "Save", BS_PUSHBUTTON);
    MoveInside(button);
    MessageSpy spy;
    WatchRepaints(spy, button.m_hWnd);
    button.SendMessage(WM_CAPTURECHANGED, 0, 0);
    EXPECT_TRUE(spy.Matches({{WM_CAPTURECHANGED}, {WM_PAINT}, {WM_ERASEBKGND}}));
    EXPECT_TRUE(button.OverControl());
}

TEST_F(UnicodeButton, EnableAndDisableRepaintAtOnce)
{
    TestUnicodeButton button;
    CreateButton(button, "Save", BS_PUSHBUTTON);
    MessageSpy spy;
    WatchRepaints(spy, button.m_hWnd);
    spy.Mark(1);
    button.EnableWindow(FALSE);
    EXPECT_TRUE(FaceIsPainted(ReadClient(button.m_hWnd), FaceOf(button.m_hWnd), kSteelBlue, kPaleBlueGrey));
    spy.Mark(2);
    button.EnableWindow(TRUE);
    EXPECT_TRUE(FaceIsPainted(ReadClient(button.m_hWnd), FaceOf(button.m_hWnd), kSteelBlue, kWhite));
    EXPECT_TRUE(spy.Matches({Expected::Marker(1),
                             {WM_ENABLE, Expected::kWParam, FALSE},
                             {WM_PAINT},
                             {WM_ERASEBKGND},
                             Expected::Marker(2),
                             {WM_ENABLE, Expected::kWParam, TRUE},
                             {WM_PAINT},
                             {WM_ERASEBKGND}}));
}

// State numbers

TEST_F(UnicodeButton, PushButtonStateFollowsTheButton)
{
    TestUnicodeButton button;
    CreateButton(button, "Save", BS_PUSHBUTTON);
    EXPECT_EQ(1, button.PushState());
    button.SetFocus();
    EXPECT_EQ(5, button.PushState());
    MoveInside(button);
    EXPECT_EQ(2, button.PushState()) << "hover outranks focus";
    button.SetState(TRUE);
    EXPECT_EQ(3, button.PushState()) << "pressed outranks hover";
    button.SetState(FALSE);
    MoveOutside(button);
    EXPECT_EQ(5, button.PushState());
    m_parent.SetFocus();
    button.EnableWindow(FALSE);
    EXPECT_EQ(4, button.PushState());
    button.SetFlags(FALSE, TRUE);
    EXPECT_EQ(2, button.PushState()) << "a disabled button with the hover flag answers hover";
}

TEST_F(UnicodeButton, CheckBoxStateCoversEveryCheckAndPushState)
{
    TestUnicodeButton button;
    CreateButton(button, "Check", BS_AUTO3STATE);
    const int expected[3][5] = {{1, 2, 3, 4, 1}, {5, 6, 7, 8, 5}, {9, 10, 11, 12, 9}};
    for (int check : {BST_UNCHECKED, BST_CHECKED, BST_INDETERMINATE})
    {
        button.SetCheck(check);
        ASSERT_EQ(check, button.GetCheck());
        for (int push : kPushStates)
            EXPECT_EQ(expected[check][push - 1], button.CheckState(push)) << "check " << check << ", push " << push;
    }
}

TEST_F(UnicodeButton, CheckedHotCheckBoxUsesStateSix)
{
    TestUnicodeButton button;
    CreateWide(button, L"", BS_AUTOCHECKBOX, CRect(10, 10, 160, 40), 1108, "320");
    button.SetCheck(BST_CHECKED);
    MoveInside(button);
    EXPECT_EQ(6, button.CheckState(button.PushState()));
    CRect client = ClientOf(button.m_hWnd);
    CRect box(0, 0, client.Height(), client.Height());
    PixelProbe hot = ThemedReference(button.m_hWnd, 3, 6, box);
    PixelProbe normal = ThemedReference(button.m_hWnd, 3, 5, box);
    EXPECT_GT(DifferingPixels(hot, normal, box), 0) << "the theme tells the two states apart";
    EXPECT_EQ(0, DifferingPixels(PaintedOverUnderlay(button.m_hWnd), hot, client));
}

TEST_F(UnicodeButton, IndeterminateDisabledCheckBoxUsesStateTwelve)
{
    TestUnicodeButton button;
    CreateButton(button, "Check", BS_AUTO3STATE);
    button.SetCheck(BST_INDETERMINATE);
    button.EnableWindow(FALSE);
    EXPECT_EQ(12, button.CheckState(button.PushState()));
}

TEST_F(UnicodeButton, RadioButtonUsesTheCheckBoxStateNumbers)
{
    TestUnicodeButton button;
    CreateWide(button, L"", BS_AUTORADIOBUTTON, CRect(10, 10, 160, 40), 1109, "321");
    button.SetCheck(BST_CHECKED);
    MoveInside(button);
    EXPECT_EQ(6, button.CheckState(button.PushState()));
    CRect client = ClientOf(button.m_hWnd);
    CRect box(0, 0, client.Height(), client.Height());
    EXPECT_EQ(0,
              DifferingPixels(PaintedOverUnderlay(button.m_hWnd), ThemedReference(button.m_hWnd, 2, 6, box), client));
    button.SetCheck(BST_UNCHECKED);
    button.EnableWindow(FALSE);
    MoveOutside(button);
    button.SetFlags(TRUE, FALSE);
    EXPECT_EQ(4, button.CheckState(button.PushState()));
    EXPECT_EQ(0,
              DifferingPixels(PaintedOverUnderlay(button.m_hWnd), ThemedReference(button.m_hWnd, 2, 4, box), client));
}

TEST_F(UnicodeButton, NarrowDisabledPaintDoesNotAskForTheState)
{
    TestUnicodeButton button;
    CreateButton(button, "Save", BS_PUSHBUTTON);
    button.EnableWindow(FALSE);
    MessageSpy spy;
    spy.Only({WM_PAINT, WM_ERASEBKGND, WM_GETTEXTLENGTH, WM_GETTEXT, BM_GETSTATE, BM_GETCHECK, WM_GETFONT});
    spy.Watch(button.m_hWnd);
    RepaintNow(button.m_hWnd);
    // A disabled button is painted in the disabled colours whatever its state.
    EXPECT_TRUE(spy.Matches(
        {{WM_PAINT}, {WM_ERASEBKGND}, {WM_GETTEXTLENGTH, Expected::kOptional}, {WM_GETTEXT}, {WM_GETFONT}}));
}

TEST_F(UnicodeButton, NarrowPaintReadsTheCaptionThenTheStateThenTheFont)
{
    TestUnicodeButton button;
    CreateButton(button, "Save", BS_PUSHBUTTON);
    MessageSpy spy;
    spy.Only({WM_PAINT, WM_ERASEBKGND, WM_GETTEXTLENGTH, WM_GETTEXT, BM_GETSTATE, BM_GETCHECK, WM_GETFONT});
    spy.Watch(button.m_hWnd);
    RepaintNow(button.m_hWnd);
    EXPECT_TRUE(spy.Matches({{WM_PAINT},
                             {WM_ERASEBKGND},
                             {WM_GETTEXTLENGTH, Expected::kOptional},
                             {WM_GETTEXT},
                             {BM_GETSTATE},
                             {WM_GETFONT}}));
}

TEST_F(UnicodeButton, WidePaintAsksForStateThenCheckThenFont)
{
    const struct
    {
        DWORD style;
        std::vector<Expected> asks;
    } cases[] = {
        {BS_PUSHBUTTON, {{BM_GETSTATE}, {WM_GETFONT}}},
        {BS_AUTOCHECKBOX, {{BM_GETSTATE}, {BM_GETCHECK}, {WM_GETFONT}}},
        {BS_AUTORADIOBUTTON, {{BM_GETSTATE}, {BM_GETCHECK}, {WM_GETFONT}}},
        {BS_DEFPUSHBUTTON, {{WM_GETFONT}}},
    };
    for (const auto& test : cases)
    {
        SCOPED_TRACE(test.style);
        TestUnicodeButton button;
        CreateWide(button, L"Αποθήκευση", test.style, CRect(10, 10, 160, 40), 1134, "344");
        MessageSpy spy;
        spy.Only({WM_PAINT, WM_GETTEXT, BM_GETSTATE, BM_GETCHECK, WM_GETFONT});
        spy.Watch(button.m_hWnd);
        RepaintNow(button.m_hWnd);
        std::vector<Expected> expected = {{WM_PAINT}};
        expected.insert(expected.end(), test.asks.begin(), test.asks.end());
        EXPECT_TRUE(spy.Matches(expected));
    }
}

// Narrow mode: the blue scheme

TEST_F(UnicodeButton, NarrowButtonIsSteelBlueWithWhiteText)
{
    TestUnicodeButton button;
    CreateButton(button, "Save", BS_PUSHBUTTON);
    CRect face = FaceOf(button.m_hWnd);
    PixelProbe probe = PixelProbe::CaptureClient(button.m_hWnd);
    EXPECT_EQ(0xAC824Eu, probe.Pixel(face.left, face.top));
    EXPECT_TRUE(FaceIsPainted(probe, face, kSteelBlue, kWhite));
    EXPECT_TRUE(Contains(CentredTextBlock(button.m_hWnd, face), InkBounds(probe, face, kSteelBlue)));
}

TEST_F(UnicodeButton, NarrowHoveredButtonIsLightBlueWithBlackText)
{
    TestUnicodeButton button;
    CreateButton(button, "Save", BS_PUSHBUTTON);
    MoveInside(button);
    CRect face = FaceOf(button.m_hWnd);
    PixelProbe probe = PixelProbe::CaptureClient(button.m_hWnd);
    EXPECT_EQ(0xF4EBDDu, probe.Pixel(face.left, face.top));
    EXPECT_TRUE(FaceIsPainted(probe, face, kLightBlue, kBlack));
    EXPECT_TRUE(Contains(CentredTextBlock(button.m_hWnd, face), InkBounds(probe, face, kLightBlue)));
}

TEST_F(UnicodeButton, NarrowPressedButtonLooksLikeNormal)
{
    TestUnicodeButton button;
    CreateButton(button, "Save", BS_PUSHBUTTON);
    CRect face = FaceOf(button.m_hWnd);
    PixelProbe normal = PixelProbe::CaptureClient(button.m_hWnd);
    button.SetState(TRUE);
    ASSERT_EQ(3, button.PushState());
    EXPECT_EQ(0, DifferingPixels(normal, PixelProbe::CaptureClient(button.m_hWnd), face));
}

TEST_F(UnicodeButton, NarrowFocusedButtonLooksLikeNormal)
{
    TestUnicodeButton button;
    CreateButton(button, "Save", BS_PUSHBUTTON);
    CRect face = FaceOf(button.m_hWnd);
    PixelProbe normal = PixelProbe::CaptureClient(button.m_hWnd);
    button.SetFocus();
    ASSERT_EQ(5, button.PushState());
    EXPECT_EQ(0, DifferingPixels(normal, PixelProbe::CaptureClient(button.m_hWnd), face));
}

TEST_F(UnicodeButton, NarrowDisabledButtonUsesPaleText)
{
    TestUnicodeButton button;
    CreateButton(button, "Save", BS_PUSHBUTTON);
    button.EnableWindow(FALSE);
    CRect face = FaceOf(button.m_hWnd);
    PixelProbe probe = PixelProbe::CaptureClient(button.m_hWnd);
    EXPECT_TRUE(FaceIsPainted(probe, face, kSteelBlue, kPaleBlueGrey));
    CRect block = CentredTextBlock(button.m_hWnd, face);
    EXPECT_GT(probe.Count(0xD1C0A5, block), 0);
    EXPECT_EQ(probe.Count(0xD1C0A5, face), probe.Count(0xD1C0A5, block));
}

TEST_F(UnicodeButton, NarrowDisabledButtonWithHoverFlagUsesDisabledColours)
{
    TestUnicodeButton button;
    CreateButton(button, "Save", BS_PUSHBUTTON);
    MoveInside(button);
    button.EnableWindow(FALSE);
    ASSERT_TRUE(button.OverControl());
    ASSERT_EQ(2, button.PushState());
    EXPECT_TRUE(
        FaceIsPainted(PixelProbe::CaptureClient(button.m_hWnd), FaceOf(button.m_hWnd), kSteelBlue, kPaleBlueGrey));
}

TEST_F(UnicodeButton, NarrowMultiLineCaptionIsCentredWithLeftAlignedLines)
{
    TestUnicodeButton button;
    CreateButton(button, "Apply all of the changes", BS_PUSHBUTTON, CRect(10, 10, 80, 70));
    CRect face = FaceOf(button.m_hWnd);
    PixelProbe probe = PixelProbe::CaptureClient(button.m_hWnd);
    PixelProbe centred = ReferenceFace(button.m_hWnd, kSteelBlue, kWhite, DT_CENTER, kUnderlay);
    PixelProbe leftAligned = ReferenceFace(button.m_hWnd, kSteelBlue, kWhite, DT_LEFT, kUnderlay);
    ASSERT_GT(DifferingPixels(centred, leftAligned, face), 0) << "the lines should differ in width";
    EXPECT_EQ(0, DifferingPixels(probe, leftAligned, face));
    EXPECT_TRUE(Contains(CentredTextBlock(button.m_hWnd, face), InkBounds(probe, face, kSteelBlue)));
}

TEST_F(UnicodeButton, NarrowEmptyCaptionPaintsOnlyTheFill)
{
    TestUnicodeButton button;
    CreateButton(button, "", BS_PUSHBUTTON);
    CRect face = FaceOf(button.m_hWnd);
    EXPECT_EQ(face.Width() * face.Height(), PixelProbe::CaptureClient(button.m_hWnd).Count(kSteelBlue, face));
}

TEST_F(UnicodeButton, NarrowButtonWithoutFontDrawsItsCaptionInTheSystemFont)
{
    TestUnicodeButton button;
    CreateButton(button, "Save", BS_PUSHBUTTON, CRect(10, 10, 130, 40), 1001, false);
    ASSERT_EQ(0, button.SendMessage(WM_GETFONT));
    CRect face = FaceOf(button.m_hWnd);
    PixelProbe probe = PixelProbe::CaptureClient(button.m_hWnd);
    EXPECT_GT(probe.Count(kWhite, face), 0);
    EXPECT_EQ(0, DifferingPixels(probe, ReferenceFace(button.m_hWnd, kSteelBlue, kWhite, DT_LEFT, kUnderlay), face));
}

TEST_F(UnicodeButton, NarrowCheckBoxAndRadioButtonArePaintedByTheSystem)
{
    for (DWORD style : {BS_AUTOCHECKBOX, BS_AUTO3STATE, BS_AUTORADIOBUTTON, BS_GROUPBOX})
    {
        SCOPED_TRACE(style);
        TestUnicodeButton button;
        CreateButton(button, "Check", style, CRect(10, 10, 130, 40), 1001);
        CWnd plain;
        CreatePlainButton(plain, "Check", style, CRect(10, 50, 130, 80));
        PixelProbe ours = PixelProbe::CaptureClient(button.m_hWnd);
        CRect client = ClientOf(button.m_hWnd);
        EXPECT_EQ(0, ours.Count(kSteelBlue, client));
        EXPECT_EQ(0, DifferingPixels(ours, PixelProbe::CaptureClient(plain.m_hWnd), client));
    }
}

// Wide mode: the themed background and the GDI+ caption

TEST_F(UnicodeButton, WidePushButtonDrawsTheThemedBackgroundOfItsState)
{
    TestUnicodeButton button;
    CreateWide(button, L"", BS_PUSHBUTTON, CRect(10, 10, 130, 40), 1110, "330");
    CRect client = ClientOf(button.m_hWnd);
    EXPECT_EQ(
        0, DifferingPixels(PaintedOverUnderlay(button.m_hWnd), ThemedReference(button.m_hWnd, 1, 1, client), client));
    MoveInside(button);
    EXPECT_EQ(
        0, DifferingPixels(PaintedOverUnderlay(button.m_hWnd), ThemedReference(button.m_hWnd, 1, 2, client), client));
    button.SetState(TRUE);
    EXPECT_EQ(
        0, DifferingPixels(PaintedOverUnderlay(button.m_hWnd), ThemedReference(button.m_hWnd, 1, 3, client), client));
    button.SetState(FALSE);
    MoveOutside(button);
    button.SetFocus();
    EXPECT_EQ(
        0, DifferingPixels(PaintedOverUnderlay(button.m_hWnd), ThemedReference(button.m_hWnd, 1, 5, client), client));
    m_parent.SetFocus();
    button.EnableWindow(FALSE);
    EXPECT_EQ(
        0, DifferingPixels(PaintedOverUnderlay(button.m_hWnd), ThemedReference(button.m_hWnd, 1, 4, client), client));
}

TEST_F(UnicodeButton, WidePushButtonCentresItsCaption)
{
    TestUnicodeButton empty;
    CreateWide(empty, L"", BS_PUSHBUTTON, CRect(10, 10, 130, 40), 1111, "331");
    TestUnicodeButton button;
    CreateWide(button, L"Αποθήκευση", BS_PUSHBUTTON, CRect(10, 50, 130, 80), 1112, "331");
    CRect client = ClientOf(button.m_hWnd);
    float x = 0, y = 0;
    CaptionOrigin(button.m_hWnd, button.TextW(), client, true, x, y);
    EXPECT_GT(x, 1.0f);
    PixelProbe without = PaintedOverUnderlay(empty.m_hWnd);
    EXPECT_EQ(0, DifferingPixels(without, ThemedReference(empty.m_hWnd, 1, 1, client), client));
    PixelProbe expected = WithCaptionOnWindow(empty.m_hWnd, button.TextW(), x, y);
    EXPECT_EQ(0, DifferingPixels(PaintedOverUnderlay(button.m_hWnd), expected, client));
}

TEST_F(UnicodeButton, GreekCaptionIsDrawnInWideMode)
{
    ExpectCaptionDrawnInItsBox(L"Αποθήκευση", 1113, "332");
}

TEST_F(UnicodeButton, JapaneseCaptionIsDrawnInWideMode)
{
    ExpectCaptionDrawnInItsBox(L"保存", 1115, "333");
}

TEST_F(UnicodeButton, JapaneseCaptionShowsItsGlyphsInAJapaneseFont)
{
    LOGFONTA lf = {};
    lf.lfHeight = -13;
    lf.lfCharSet = DEFAULT_CHARSET;
    lstrcpyA(lf.lfFaceName, "Noto Sans CJK JP");
    HFONT hFont = ::CreateFontIndirectA(&lf);
    TestUnicodeButton saveButton;
    CreateWide(saveButton, L"保存", BS_PUSHBUTTON, CRect(10, 10, 130, 40), 1117, "334");
    TestUnicodeButton reversed;
    CreateWide(reversed, L"存保", BS_PUSHBUTTON, CRect(10, 50, 130, 80), 1118, "334");
    saveButton.SendMessage(WM_SETFONT, (WPARAM)hFont, FALSE);
    reversed.SendMessage(WM_SETFONT, (WPARAM)hFont, FALSE);
    CRect client = ClientOf(saveButton.m_hWnd);
    // Two different glyphs swap places; boxes standing for missing glyphs would not.
    EXPECT_GT(DifferingPixels(PaintedOverUnderlay(saveButton.m_hWnd), PaintedOverUnderlay(reversed.m_hWnd), client),
              20);
    saveButton.DestroyWindow();
    reversed.DestroyWindow();
    ::DeleteObject(hFont);
}

TEST_F(UnicodeButton, CaptionWiderThanTheButtonRunsFromTheLeftEdge)
{
    TestUnicodeButton empty;
    CreateWide(empty, L"", BS_PUSHBUTTON, CRect(10, 10, 50, 40), 1119, "335");
    TestUnicodeButton button;
    CreateWide(button, L"Αποθήκευση και κλείσιμο", BS_PUSHBUTTON, CRect(10, 50, 50, 80), 1120, "335");
    CRect client = ClientOf(button.m_hWnd);
    float x = 0, y = 0;
    CaptionOrigin(button.m_hWnd, button.TextW(), client, true, x, y);
    ASSERT_EQ(0.0f, x);
    PixelProbe shown = PaintedOverUnderlay(button.m_hWnd);
    PixelProbe without = PaintedOverUnderlay(empty.m_hWnd);
    EXPECT_EQ(0, DifferingPixels(shown, WithCaptionOnWindow(empty.m_hWnd, button.TextW(), 0, y), client));
    CRect ink = DifferenceBounds(without, shown, client);
    EXPECT_LE(ink.left, 2);
    EXPECT_EQ(client.right, ink.right) << "the caption runs past the right edge";
}

TEST_F(UnicodeButton, DefaultPushButtonGetsNoThemedBackgroundInWideMode)
{
    TestUnicodeButton empty;
    CreateWide(empty, L"", BS_DEFPUSHBUTTON, CRect(10, 10, 130, 40), 1121, "336");
    TestUnicodeButton button;
    CreateWide(button, L"Αποθήκευση", BS_DEFPUSHBUTTON, CRect(10, 50, 130, 80), 1122, "336");
    CRect client = ClientOf(button.m_hWnd);
    EXPECT_EQ(client.Width() * client.Height(), PaintedOverUnderlay(empty.m_hWnd).Count(kUnderlay, client));
    float x = 0, y = 0;
    CaptionOrigin(button.m_hWnd, button.TextW(), client, false, x, y);
    EXPECT_EQ(0, DifferingPixels(PaintedOverUnderlay(button.m_hWnd),
                                 WithCaptionOnWindow(empty.m_hWnd, button.TextW(), x, y), client));
}

TEST_F(UnicodeButton, PushButtonWithFurtherStyleBitsShowsOnlyItsCaptionInWideMode)
{
    for (DWORD style : {(DWORD)BS_MULTILINE, (DWORD)BS_CENTER, (DWORD)BS_LEFT, (DWORD)BS_FLAT})
    {
        SCOPED_TRACE(style);
        TestUnicodeButton button;
        CreateWide(button, L"", BS_PUSHBUTTON | style, CRect(10, 10, 130, 40), 1123, "337");
        CRect client = ClientOf(button.m_hWnd);
        EXPECT_EQ(client.Width() * client.Height(), PaintedOverUnderlay(button.m_hWnd).Count(kUnderlay, client));
    }
}

TEST_F(UnicodeButton, WideCheckBoxDrawsItsMarkInASquareAndTheCaptionAfterIt)
{
    TestUnicodeButton empty;
    CreateWide(empty, L"", BS_AUTOCHECKBOX, CRect(10, 50, 210, 80), 1132, "338");
    TestUnicodeButton button;
    CreateWide(button, L"Αποθήκευση", BS_AUTOCHECKBOX, CRect(10, 10, 210, 40), 1124, "338");
    CRect client = ClientOf(button.m_hWnd);
    CRect box(0, 0, client.Height(), client.Height());
    CRect text(box.right, 0, client.right, client.bottom);
    float x = 0, y = 0;
    CaptionOrigin(button.m_hWnd, button.TextW(), text, false, x, y);
    EXPECT_EQ(30.0f, x);
    EXPECT_EQ(0, DifferingPixels(PaintedOverUnderlay(empty.m_hWnd), ThemedReference(empty.m_hWnd, 3, 1, box), client));
    PixelProbe expected = WithCaptionOnWindow(empty.m_hWnd, button.TextW(), x, y);
    EXPECT_EQ(0, DifferingPixels(PaintedOverUnderlay(button.m_hWnd), expected, client));
}

TEST_F(UnicodeButton, WideRadioButtonDrawsItsMarkInASquareAndTheCaptionAfterIt)
{
    TestUnicodeButton empty;
    CreateWide(empty, L"", BS_RADIOBUTTON, CRect(10, 50, 210, 80), 1133, "339");
    TestUnicodeButton button;
    CreateWide(button, L"Αποθήκευση", BS_RADIOBUTTON, CRect(10, 10, 210, 40), 1125, "339");
    button.SetCheck(BST_CHECKED);
    empty.SetCheck(BST_CHECKED);
    CRect client = ClientOf(button.m_hWnd);
    CRect box(0, 0, client.Height(), client.Height());
    CRect text(box.right, 0, client.right, client.bottom);
    float x = 0, y = 0;
    CaptionOrigin(button.m_hWnd, button.TextW(), text, false, x, y);
    EXPECT_EQ(0, DifferingPixels(PaintedOverUnderlay(empty.m_hWnd), ThemedReference(empty.m_hWnd, 2, 5, box), client));
    PixelProbe expected = WithCaptionOnWindow(empty.m_hWnd, button.TextW(), x, y);
    EXPECT_EQ(0, DifferingPixels(PaintedOverUnderlay(button.m_hWnd), expected, client));
}

TEST_F(UnicodeButton, WideThreeStateCheckBoxShowsOnlyItsCaption)
{
    TestUnicodeButton button;
    CreateWide(button, L"", BS_AUTO3STATE, CRect(10, 10, 210, 40), 1126, "340");
    CRect client = ClientOf(button.m_hWnd);
    EXPECT_EQ(client.Width() * client.Height(), PaintedOverUnderlay(button.m_hWnd).Count(kUnderlay, client));
}

TEST_F(UnicodeButton, WideCaptionUnderlinesTheHotKey)
{
    TestUnicodeButton plain;
    CreateWide(plain, L"Save", BS_DEFPUSHBUTTON, CRect(10, 10, 130, 40), 1127, "341");
    TestUnicodeButton prefixed;
    CreateWide(prefixed, L"&Save", BS_DEFPUSHBUTTON, CRect(10, 50, 130, 80), 1128, "341");
    CRect client = ClientOf(plain.m_hWnd);
    PixelProbe without = PaintedOverUnderlay(plain.m_hWnd);
    PixelProbe with = PaintedOverUnderlay(prefixed.m_hWnd);
    // The ampersand is not drawn; only a short line under the first letter is added.
    CRect added = DifferenceBounds(without, with, client);
    ASSERT_FALSE(added.IsRectEmpty());
    CRect letters = InkBounds(without, client, kUnderlay);
    EXPECT_LE(added.Height(), 2);
    EXPECT_GE(added.top, letters.bottom - 1);
    EXPECT_LT(added.Width(), letters.Width() / 2);
}

TEST_F(UnicodeButton, WideButtonWithoutThemeDrawsOnlyItsCaption)
{
    TestUnicodeButton empty;
    CreateWide(empty, L"", BS_PUSHBUTTON, CRect(10, 10, 130, 40), 1135, "345");
    TestUnicodeButton button;
    CreateWide(button, L"Αποθήκευση", BS_PUSHBUTTON, CRect(10, 50, 130, 80), 1136, "345");
    // Pointed at a class list that the theme does not hold, the window has no style to open.
    ::SetWindowTheme(empty.m_hWnd, nullptr, L"NoSuchClass");
    ::SetWindowTheme(button.m_hWnd, nullptr, L"NoSuchClass");
    HTHEME theme = ::OpenThemeData(button.m_hWnd, L"Button");
    ASSERT_EQ(nullptr, theme);
    CRect client = ClientOf(button.m_hWnd);
    EXPECT_EQ(client.Width() * client.Height(), PaintedOverUnderlay(empty.m_hWnd).Count(kUnderlay, client));
    float x = 0, y = 0;
    CaptionOrigin(button.m_hWnd, button.TextW(), client, true, x, y);
    EXPECT_EQ(0, DifferingPixels(PaintedOverUnderlay(button.m_hWnd),
                                 WithCaptionOnWindow(empty.m_hWnd, button.TextW(), x, y), client));
}

TEST_F(UnicodeButton, WideButtonWithoutFontStillDrawsBackgroundAndCaption)
{
    TestUnicodeButton empty;
    CreateWide(empty, L"", BS_PUSHBUTTON, CRect(10, 10, 130, 40), 1129, "342", false);
    TestUnicodeButton button;
    CreateWide(button, L"Αποθήκευση", BS_PUSHBUTTON, CRect(10, 50, 130, 80), 1130, "342", false);
    ASSERT_EQ(0, button.SendMessage(WM_GETFONT));
    CRect client = ClientOf(button.m_hWnd);
    PixelProbe without = PaintedOverUnderlay(empty.m_hWnd);
    EXPECT_EQ(0, DifferingPixels(without, ThemedReference(empty.m_hWnd, 1, 1, client), client));
    EXPECT_GT(DifferingPixels(without, PaintedOverUnderlay(button.m_hWnd), client), 20);
}

TEST_F(UnicodeButton, DrawItemDrawsTheWideCaptionOnlyInWideMode)
{
    TestUnicodeButton button;
    CreateButton(button, "Save", BS_DEFPUSHBUTTON, CRect(10, 10, 130, 40), 1131);
    CRect client = ClientOf(button.m_hWnd);
    PixelProbe probe(client.Width(), client.Height(), kUnderlay);
    DRAWITEMSTRUCT dis = {ODT_BUTTON, 1131, 0, ODA_DRAWENTIRE, 0, button.m_hWnd, probe.DC(), client, 0};
    button.DrawItem(&dis);
    EXPECT_EQ(client.Width() * client.Height(), probe.Count(kUnderlay, client)) << "narrow mode draws nothing";

    Seed("Save", L"Αποθήκευση", 1131, "343");
    button.SendMessage(WM_UNICODE, 0, (LPARAM) "343");
    button.DrawItem(&dis);
    float x = 0, y = 0;
    CaptionOrigin(button.m_hWnd, button.TextW(), client, false, x, y);
    PixelProbe underlay(client.Width(), client.Height(), kUnderlay);
    EXPECT_EQ(0, DifferingPixels(probe, WithWideCaption(underlay, DialogFont(), button.TextW(), x, y), client));
}

TEST_F(UnicodeButton, WithoutAWindowStartsNarrowAndDrawsIntoAMemoryContextWithoutCrashing)
{
    TestUnicodeButton button;
    EXPECT_FALSE(button.Unicode());
    EXPECT_FALSE(button.OverControl());
    HDC hScreen = ::GetDC(nullptr);
    HDC hDC = ::CreateCompatibleDC(hScreen);
    HBITMAP hBitmap = ::CreateCompatibleBitmap(hScreen, 120, 30);
    HGDIOBJ hOld = ::SelectObject(hDC, hBitmap);
    DRAWITEMSTRUCT item = {ODT_BUTTON, 0, 0, ODA_DRAWENTIRE, 0, nullptr, hDC, {0, 0, 120, 30}, 0};
    button.SetFlags(TRUE, FALSE);  // wide mode with no caption and no window to ask for a font
    button.DrawItem(&item);
    button.SetFlags(FALSE, FALSE);
    button.DrawItem(&item);
    ::SelectObject(hDC, hOld);
    ::DeleteObject(hBitmap);
    ::DeleteDC(hDC);
    ::ReleaseDC(nullptr, hScreen);
    EXPECT_EQ(nullptr, button.m_hWnd);
    EXPECT_TRUE(button.TextW().IsEmpty());
}
