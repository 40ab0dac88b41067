// CColorButton with real windows: the colours it stores, the messages it answers and sends
// itself, and the pixels it paints.
#include "ControlsTest.h"

#include <cstdlib>

using namespace controls_tests;

namespace {

class ColorButton : public ButtonTest
{};

void ExpectSystemColours(const TestColorButton& button, bool face)
{
    if (face)
    {
        EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), button.Face());
    }
    EXPECT_EQ(::GetSysColor(COLOR_3DLIGHT), button.Light());
    EXPECT_EQ(::GetSysColor(COLOR_BTNHIGHLIGHT), button.Highlight());
    EXPECT_EQ(::GetSysColor(COLOR_BTNSHADOW), button.Shadow());
    EXPECT_EQ(::GetSysColor(COLOR_3DDKSHADOW), button.DarkShadow());
}

const COLORREF kSeven[7] = {RGB(1, 2, 3),    RGB(4, 5, 6),    RGB(7, 8, 9),   RGB(10, 11, 12),
                            RGB(13, 14, 15), RGB(16, 17, 18), RGB(19, 20, 21)};

void ExpectSeven(const TestColorButton& button)
{
    EXPECT_EQ(kSeven[0], button.Text());
    EXPECT_EQ(kSeven[1], button.Background());
    EXPECT_EQ(kSeven[2], button.Face());
    EXPECT_EQ(kSeven[3], button.Light());
    EXPECT_EQ(kSeven[4], button.Highlight());
    EXPECT_EQ(kSeven[5], button.Shadow());
    EXPECT_EQ(kSeven[6], button.DarkShadow());
}

}  // namespace

// Construction and the stored colours

TEST_F(ColorButton, DefaultConstructorStoresWhiteOnSteelBlueAndSystemColours)
{
    TestColorButton button;
    EXPECT_EQ(0xFFFFFFu, button.Text());
    EXPECT_EQ(0xAC824Eu, button.Background());
    ExpectSystemColours(button, true);
    EXPECT_FALSE(button.OverControl());
    EXPECT_EQ(nullptr, button.m_hWnd);
}

TEST_F(ColorButton, TwoArgumentConstructorIgnoresBackground)
{
    TestColorButton button(RGB(0, 0, 0), RGB(255, 0, 0));
    EXPECT_EQ(0x000000u, button.Text());
    EXPECT_EQ(0xAC824Eu, button.Background());
    ExpectSystemColours(button, true);
    EXPECT_FALSE(button.OverControl());
}

TEST_F(ColorButton, ThreeArgumentConstructorStoresTextBackgroundAndFace)
{
    TestColorButton button(kSeven[0], kSeven[1], kSeven[2]);
    EXPECT_EQ(kSeven[0], button.Text());
    EXPECT_EQ(kSeven[1], button.Background());
    EXPECT_EQ(kSeven[2], button.Face());
    ExpectSystemColours(button, false);
    EXPECT_FALSE(button.OverControl());
}

TEST_F(ColorButton, SevenArgumentConstructorStoresEveryColourInOrder)
{
    TestColorButton button(kSeven[0], kSeven[1], kSeven[2], kSeven[3], kSeven[4], kSeven[5], kSeven[6]);
    ExpectSeven(button);
    EXPECT_FALSE(button.OverControl());
}

TEST_F(ColorButton, RunTimeClassIsColorButtonOverButton)
{
    TestColorButton button;
    EXPECT_STREQ("CColorButton", RUNTIME_CLASS(CColorButton)->m_lpszClassName);
    EXPECT_TRUE(button.IsKindOf(RUNTIME_CLASS(CColorButton)));
    EXPECT_TRUE(button.IsKindOf(RUNTIME_CLASS(CButton)));
}

// SetColor, SetColorToWindowsDefault, MoveButton

TEST_F(ColorButton, SetColorWithoutWindowOnlyStores)
{
    TestColorButton button;
    button.SetColor(RGB(0, 0, 0), RGB(255, 0, 0));
    EXPECT_EQ(0x000000u, button.Text());
    EXPECT_EQ(0x0000FFu, button.Background());
    button.SetColor(kSeven[0], kSeven[1], kSeven[2]);
    EXPECT_EQ(kSeven[2], button.Face());
    button.SetColor(kSeven[0], kSeven[1], kSeven[2], kSeven[3], kSeven[4], kSeven[5], kSeven[6]);
    ExpectSeven(button);
    EXPECT_EQ(nullptr, button.m_hWnd);
}

TEST_F(ColorButton, TwoArgumentSetColorStoresItsBackground)
{
    TestColorButton button;
    button.SetColor(RGB(0, 0, 0), RGB(255, 0, 0));
    EXPECT_EQ(0x000000u, button.Text());
    EXPECT_EQ(0x0000FFu, button.Background());
    ExpectSystemColours(button, true);
}

TEST_F(ColorButton, ThreeArgumentSetColorStoresTextBackgroundAndFace)
{
    TestColorButton button;
    button.SetColor(kSeven[0], kSeven[1], kSeven[2]);
    EXPECT_EQ(kSeven[0], button.Text());
    EXPECT_EQ(kSeven[1], button.Background());
    EXPECT_EQ(kSeven[2], button.Face());
    ExpectSystemColours(button, false);
}

TEST_F(ColorButton, SevenArgumentSetColorStoresEveryColourInOrder)
{
    TestColorButton button;
    button.SetColor(kSeven[0], kSeven[1], kSeven[2], kSeven[3], kSeven[4], kSeven[5], kSeven[6]);
    ExpectSeven(button);
}

TEST_F(ColorButton, EverySetColorRepaintsAWindowAtOnce)
{
    TestColorButton button;
    CreateButton(button, "OK", BS_PUSHBUTTON);
    MessageSpy spy;
    WatchRepaints(spy, button.m_hWnd);
    spy.Mark(1);
    button.SetColor(kSeven[0], kSeven[1]);
    EXPECT_FALSE(HasUpdateRegion(button.m_hWnd));
    spy.Mark(2);
    button.SetColor(kSeven[0], kSeven[1], kSeven[2]);
    EXPECT_FALSE(HasUpdateRegion(button.m_hWnd));
    spy.Mark(3);
    button.SetColor(kSeven[0], kSeven[1], kSeven[2], kSeven[3], kSeven[4], kSeven[5], kSeven[6]);
    EXPECT_FALSE(HasUpdateRegion(button.m_hWnd));
    EXPECT_TRUE(spy.Matches({Expected::Marker(1),
                             {WM_PAINT},
                             {WM_ERASEBKGND},
                             Expected::Marker(2),
                             {WM_PAINT},
                             {WM_ERASEBKGND},
                             Expected::Marker(3),
                             {WM_PAINT},
                             {WM_ERASEBKGND}}));
    ExpectSeven(button);
}

TEST_F(ColorButton, SetColorRepaintsButDoesNotChangeTheLook)
{
    TestColorButton button;
    CreateButton(button, "OK", BS_PUSHBUTTON);
    CRect face = FaceOf(button.m_hWnd);
    PixelProbe before = PixelProbe::CaptureClient(button.m_hWnd);
    button.SetColor(RGB(255, 0, 0), RGB(0, 255, 0), RGB(0, 0, 255), RGB(255, 255, 0), RGB(0, 255, 255),
                    RGB(255, 0, 255), RGB(1, 1, 1));
    PixelProbe shown = ReadClient(button.m_hWnd);
    PixelProbe after = PixelProbe::CaptureClient(button.m_hWnd);
    EXPECT_EQ(0, DifferingPixels(before, shown, face));
    EXPECT_EQ(0, DifferingPixels(before, after, face));
    EXPECT_TRUE(FaceIsPainted(after, face, kSteelBlue, kWhite));
}

TEST_F(ColorButton, SetColorToWindowsDefaultRestoresDefaultsWithoutRepaint)
{
    TestColorButton button(kSeven[0], kSeven[1], kSeven[2], kSeven[3], kSeven[4], kSeven[5], kSeven[6]);
    CreateButton(button, "OK", BS_PUSHBUTTON);
    MessageSpy spy;
    WatchRepaints(spy, button.m_hWnd);
    button.SetColorToWindowsDefault();
    EXPECT_EQ(0xFFFFFFu, button.Text());
    EXPECT_EQ(0xAC824Eu, button.Background());
    ExpectSystemColours(button, true);
    EXPECT_TRUE(spy.Matches({}));
    EXPECT_FALSE(HasUpdateRegion(button.m_hWnd));
}

TEST_F(ColorButton, MoveButtonRepaintsAtOnceWhateverItsRepaintFlag)
{
    TestColorButton button;
    CreateButton(button, "OK", BS_PUSHBUTTON);
    MessageSpy spy;
    WatchRepaints(spy, button.m_hWnd);
    spy.Mark(1);
    button.MoveButton(20, 50, 100, 30, FALSE);
    EXPECT_FALSE(HasUpdateRegion(button.m_hWnd));
    spy.Mark(2);
    button.MoveButton(30, 90, 110, 32, TRUE);
    EXPECT_FALSE(HasUpdateRegion(button.m_hWnd));
    // Moving with a repaint lets the system erase first; the class's own repaint follows.
    EXPECT_TRUE(spy.Matches({Expected::Marker(1),
                             {WM_PAINT},
                             {WM_ERASEBKGND},
                             Expected::Marker(2),
                             {WM_ERASEBKGND, Expected::kOptional},
                             {WM_PAINT},
                             {WM_ERASEBKGND}}));
    CRect rect;
    button.GetWindowRect(&rect);
    m_parent.ScreenToClient(&rect);
    EXPECT_EQ(CRect(30, 90, 140, 122), rect);
    EXPECT_TRUE(FaceIsPainted(ReadClient(button.m_hWnd), FaceOf(button.m_hWnd), kSteelBlue, kWhite));
}

// Hover tracking and the messages it answers

TEST_F(ColorButton, MouseEnteringTakesTheCaptureAndRepaints)
{
    TestColorButton button;
    CreateButton(button, "OK", BS_PUSHBUTTON);
    MessageSpy spy;
    WatchRepaints(spy, button.m_hWnd);
    MoveInside(button);
    EXPECT_EQ(button.m_hWnd, ::GetCapture());
    EXPECT_TRUE(button.OverControl());
    EXPECT_TRUE(spy.Matches({{WM_MOUSEMOVE}, {WM_PAINT}}));
    EXPECT_FALSE(HasUpdateRegion(button.m_hWnd));
}

TEST_F(ColorButton, MouseMovingInsideRepaintsWithoutErase)
{
    TestColorButton button;
    CreateButton(button, "OK", BS_PUSHBUTTON);
    MoveInside(button);
    MessageSpy spy;
    WatchRepaints(spy, button.m_hWnd);
    button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(40, 12));
    EXPECT_TRUE(spy.Matches({{WM_MOUSEMOVE}, {WM_PAINT}}));
    EXPECT_EQ(button.m_hWnd, ::GetCapture());
    EXPECT_TRUE(button.OverControl());
}

TEST_F(ColorButton, MouseLeavingReleasesTheCaptureAndRepaintsWithErase)
{
    TestColorButton button;
    CreateButton(button, "OK", BS_PUSHBUTTON);
    MoveInside(button);
    MessageSpy spy;
    WatchRepaints(spy, button.m_hWnd);
    MoveOutside(button);
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_FALSE(button.OverControl());
    EXPECT_TRUE(spy.Matches({{WM_MOUSEMOVE}, {WM_CAPTURECHANGED}, {WM_PAINT}, {WM_ERASEBKGND}}));
    EXPECT_TRUE(FaceIsPainted(ReadClient(button.m_hWnd), FaceOf(button.m_hWnd), kSteelBlue, kWhite));
}

TEST_F(ColorButton, MouseOutsideWithoutTheCaptureChangesNothing)
{
    TestColorButton button;
    CreateButton(button, "OK", BS_PUSHBUTTON);
    MessageSpy spy;
    WatchRepaints(spy, button.m_hWnd);
    MoveOutside(button);
    EXPECT_TRUE(spy.Matches({{WM_MOUSEMOVE}}));
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_FALSE(button.OverControl());
}

TEST_F(ColorButton, MouseLeavingWithLeftButtonHeldKeepsCaptureAndHoverLook)
{
    TestColorButton button;
    CreateButton(button, "OK", BS_PUSHBUTTON);
    MoveInside(button);
    button.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    MessageSpy spy;
    WatchRepaints(spy, button.m_hWnd);
    MoveOutside(button, MK_LBUTTON);
    // The system button only lets go of its pushed state; the class leaves the hover alone.
    EXPECT_TRUE(spy.Matches({{WM_MOUSEMOVE}, {BM_SETSTATE, Expected::kWParam, FALSE}}));
    EXPECT_EQ(button.m_hWnd, ::GetCapture());
    EXPECT_TRUE(button.OverControl());
    EXPECT_TRUE(FaceIsPainted(PixelProbe::CaptureClient(button.m_hWnd), FaceOf(button.m_hWnd), kLightBlue, kBlack));

    button.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(300, 5));
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_FALSE(button.OverControl());
    EXPECT_EQ(0, spy.Count(WM_COMMAND));
    EXPECT_TRUE(FaceIsPainted(PixelProbe::CaptureClient(button.m_hWnd), FaceOf(button.m_hWnd), kSteelBlue, kWhite));
}

TEST_F(ColorButton, PressAndReleaseClicksAndEndsTheHover)
{
    TestColorButton button;
    CreateButton(button, "OK", BS_PUSHBUTTON, CRect(10, 10, 130, 40), 1001);
    MoveInside(button);
    MessageSpy spy;
    WatchRepaints(spy, button.m_hWnd);
    spy.Watch(m_parent.m_hWnd);
    spy.Mark(1);
    button.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_EQ(button.m_hWnd, ::GetCapture());
    EXPECT_TRUE(button.OverControl());
    EXPECT_TRUE(button.GetState() & BST_PUSHED);
    spy.Mark(2);
    button.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_FALSE(button.OverControl());
    // The class repaints before the system procedure lets go of the capture and clicks.
    EXPECT_TRUE(spy.Matches({Expected::Marker(1),
                             {WM_LBUTTONDOWN},
                             {WM_CAPTURECHANGED, Expected::kOptional},
                             {BM_SETSTATE, Expected::kWParam, TRUE},
                             Expected::Marker(2),
                             {WM_LBUTTONUP},
                             {WM_PAINT},
                             {WM_ERASEBKGND},
                             {BM_SETSTATE, Expected::kWParam, FALSE},
                             {WM_CAPTURECHANGED},
                             {WM_COMMAND, Expected::kWParam, MAKEWPARAM(1001, BN_CLICKED)}}));

    MoveInside(button);
    EXPECT_EQ(button.m_hWnd, ::GetCapture());
    EXPECT_TRUE(button.OverControl());
}

TEST_F(ColorButton, SetTextReturnsTrueAndRepaintsAtOnce)
{
    TestColorButton button;
    CreateButton(button, "OK", BS_PUSHBUTTON);
    PixelProbe before = PixelProbe::CaptureClient(button.m_hWnd);
    MessageSpy spy;
    WatchRepaints(spy, button.m_hWnd);
    EXPECT_EQ(TRUE, button.SendMessage(WM_SETTEXT, 0, (LPARAM) "Cancel"));
    EXPECT_TRUE(spy.Matches({{WM_SETTEXT}, {WM_PAINT}, {WM_ERASEBKGND}}));
    CString text;
    button.GetWindowText(text);
    EXPECT_STREQ("Cancel", text);
    CRect face = FaceOf(button.m_hWnd);
    PixelProbe shown = ReadClient(button.m_hWnd);
    EXPECT_GT(DifferingPixels(before, shown, face), 0);
    EXPECT_EQ(0, DifferingPixels(shown, ReferenceFace(button.m_hWnd, kSteelBlue, kWhite, DT_CENTER, kUnderlay), face));
}

TEST_F(ColorButton, EnableAndDisableRepaintAtOnce)
{
    TestColorButton button;
    CreateButton(button, "OK", BS_PUSHBUTTON);
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

TEST_F(ColorButton, IgnoresTheWideTextMessage)
{
    TestColorButton button;
    CreateButton(button, "OK", BS_PUSHBUTTON);
    MessageSpy spy;
    WatchRepaints(spy, button.m_hWnd);
    EXPECT_EQ(0, button.SendMessage(WM_UNICODE, 0, (LPARAM) "300"));
    EXPECT_TRUE(spy.Matches({{WM_UNICODE}}));
    CString text;
    button.GetWindowText(text);
    EXPECT_STREQ("OK", text);
}

TEST_F(ColorButton, SubclassingKeepsThePushButtonStyle)
{
    HWND hWnd = ::CreateWindowExA(0, "BUTTON", "OK", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, 10, 10, 120, 30,
                                  m_parent.m_hWnd, (HMENU)1001, nullptr, nullptr);
    ASSERT_NE(nullptr, hWnd);
    ::SendMessageA(hWnd, WM_SETFONT, (WPARAM)DialogFont(), FALSE);
    TestColorButton button;
    ASSERT_TRUE(button.SubclassWindow(hWnd));
    EXPECT_EQ((DWORD)BS_PUSHBUTTON, button.GetStyle() & 0x0F);
    EXPECT_EQ(&button, CWnd::FromHandlePermanent(hWnd));
    EXPECT_TRUE(FaceIsPainted(PixelProbe::CaptureClient(hWnd), FaceOf(hWnd), kSteelBlue, kWhite));
}

TEST_F(ColorButton, DrawItemDrawsNothingOfItsOwn)
{
    TestColorButton button;
    CreateButton(button, "OK", BS_PUSHBUTTON);
    PixelProbe probe(120, 30, kUnderlay);
    DRAWITEMSTRUCT dis = {ODT_BUTTON, 1001, 0, ODA_DRAWENTIRE, 0, button.m_hWnd, probe.DC(), {0, 0, 120, 30}, 0};
    button.DrawItem(&dis);
    EXPECT_EQ(120 * 30, probe.Count(kUnderlay, CRect(0, 0, 120, 30)));
}

TEST_F(ColorButton, PaintReadsTheCaptionThenTheStateThenTheFont)
{
    TestColorButton button;
    CreateButton(button, "OK", BS_PUSHBUTTON);
    MessageSpy spy;
    spy.Only({WM_PAINT, WM_ERASEBKGND, WM_GETTEXTLENGTH, WM_GETTEXT, BM_GETSTATE, WM_GETFONT});
    spy.Watch(button.m_hWnd);
    RepaintNow(button.m_hWnd);
    EXPECT_TRUE(spy.Matches({{WM_PAINT},
                             {WM_ERASEBKGND},
                             {WM_GETTEXTLENGTH, Expected::kOptional},
                             {WM_GETTEXT},
                             {BM_GETSTATE},
                             {WM_GETFONT}}));
}

// What each state looks like

TEST_F(ColorButton, NormalButtonIsSteelBlueWithWhiteText)
{
    TestColorButton button;
    CreateButton(button, "OK", BS_PUSHBUTTON);
    CRect face = FaceOf(button.m_hWnd);
    PixelProbe probe = PixelProbe::CaptureClient(button.m_hWnd);
    EXPECT_EQ(0xAC824Eu, probe.Pixel(face.left, face.top));
    EXPECT_TRUE(FaceIsPainted(probe, face, kSteelBlue, kWhite));
    CRect ink = InkBounds(probe, face, kSteelBlue);
    CRect block = CentredTextBlock(button.m_hWnd, face);
    EXPECT_TRUE(Contains(block, ink));
}

TEST_F(ColorButton, HoveredButtonIsLightBlueWithBlackText)
{
    TestColorButton button;
    CreateButton(button, "OK", BS_PUSHBUTTON);
    MoveInside(button);
    CRect face = FaceOf(button.m_hWnd);
    PixelProbe probe = PixelProbe::CaptureClient(button.m_hWnd);
    EXPECT_EQ(0xF4EBDDu, probe.Pixel(face.left, face.top));
    EXPECT_TRUE(FaceIsPainted(probe, face, kLightBlue, kBlack));
    EXPECT_EQ(0, DifferingPixels(probe, ReferenceFace(button.m_hWnd, kLightBlue, kBlack, DT_CENTER, kUnderlay), face));
}

TEST_F(ColorButton, PressedButtonLooksLikeNormal)
{
    TestColorButton button;
    CreateButton(button, "OK", BS_PUSHBUTTON);
    CRect face = FaceOf(button.m_hWnd);
    PixelProbe normal = PixelProbe::CaptureClient(button.m_hWnd);
    button.SetState(TRUE);
    ASSERT_TRUE(button.GetState() & BST_PUSHED);
    PixelProbe pressed = PixelProbe::CaptureClient(button.m_hWnd);
    EXPECT_EQ(0, DifferingPixels(normal, pressed, face));
    EXPECT_TRUE(FaceIsPainted(pressed, face, kSteelBlue, kWhite));
}

TEST_F(ColorButton, PressedOutranksHover)
{
    TestColorButton button;
    CreateButton(button, "OK", BS_PUSHBUTTON);
    MoveInside(button);
    button.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    ASSERT_TRUE(button.OverControl());
    ASSERT_TRUE(button.GetState() & BST_PUSHED);
    EXPECT_TRUE(FaceIsPainted(PixelProbe::CaptureClient(button.m_hWnd), FaceOf(button.m_hWnd), kSteelBlue, kWhite));
}

TEST_F(ColorButton, FocusedButtonLooksLikeNormal)
{
    TestColorButton button;
    CreateButton(button, "OK", BS_PUSHBUTTON);
    CRect face = FaceOf(button.m_hWnd);
    PixelProbe normal = PixelProbe::CaptureClient(button.m_hWnd);
    button.SetFocus();
    ASSERT_TRUE(button.GetState() & BST_FOCUS);
    PixelProbe focused = PixelProbe::CaptureClient(button.m_hWnd);
    EXPECT_EQ(0, DifferingPixels(normal, focused, face));
    EXPECT_TRUE(FaceIsPainted(focused, face, kSteelBlue, kWhite));
}

TEST_F(ColorButton, DisabledButtonUsesPaleText)
{
    TestColorButton button;
    CreateButton(button, "OK", BS_PUSHBUTTON);
    button.EnableWindow(FALSE);
    CRect face = FaceOf(button.m_hWnd);
    PixelProbe probe = PixelProbe::CaptureClient(button.m_hWnd);
    EXPECT_TRUE(FaceIsPainted(probe, face, kSteelBlue, kPaleBlueGrey));
    CRect block = CentredTextBlock(button.m_hWnd, face);
    EXPECT_GT(probe.Count(0xD1C0A5, block), 0);
    EXPECT_EQ(probe.Count(0xD1C0A5, face), probe.Count(0xD1C0A5, block));
}

TEST_F(ColorButton, DisabledButtonStillHoveredShowsTheHoverLook)
{
    TestColorButton button;
    CreateButton(button, "OK", BS_PUSHBUTTON);
    MoveInside(button);
    button.EnableWindow(FALSE);
    ASSERT_TRUE(button.OverControl());
    EXPECT_TRUE(FaceIsPainted(PixelProbe::CaptureClient(button.m_hWnd), FaceOf(button.m_hWnd), kLightBlue, kBlack));
}

TEST_F(ColorButton, DefaultPushButtonIsPaintedBlue)
{
    TestColorButton button;
    CreateButton(button, "OK", BS_DEFPUSHBUTTON);
    EXPECT_TRUE(FaceIsPainted(PixelProbe::CaptureClient(button.m_hWnd), FaceOf(button.m_hWnd), kSteelBlue, kWhite));
}

TEST_F(ColorButton, MultiLineCaptionWrapsAtTheFaceWidthAndIsCentred)
{
    TestColorButton button;
    CreateButton(button, "Apply all of the changes", BS_PUSHBUTTON, CRect(10, 10, 80, 70));
    CRect face = FaceOf(button.m_hWnd);
    PixelProbe probe = PixelProbe::CaptureClient(button.m_hWnd);
    PixelProbe centred = ReferenceFace(button.m_hWnd, kSteelBlue, kWhite, DT_CENTER, kUnderlay);
    PixelProbe leftAligned = ReferenceFace(button.m_hWnd, kSteelBlue, kWhite, DT_LEFT, kUnderlay);
    ASSERT_GT(DifferingPixels(centred, leftAligned, face), 0) << "the lines should differ in width";
    EXPECT_EQ(0, DifferingPixels(probe, centred, face));
    CRect ink = InkBounds(probe, face, kSteelBlue);
    TEXTMETRICA tm = {};
    HDC hDC = ::GetDC(button.m_hWnd);
    HGDIOBJ hOld = ::SelectObject(hDC, DialogFont());
    ::GetTextMetricsA(hDC, &tm);
    ::SelectObject(hDC, hOld);
    ::ReleaseDC(button.m_hWnd, hDC);
    EXPECT_GT(ink.Height(), tm.tmHeight) << "more than one line";
    EXPECT_LE(ink.Width(), face.Width());
    EXPECT_LE(std::abs((ink.left - face.left) - (face.right - ink.right)), 2);
    EXPECT_LE(std::abs((ink.top - face.top) - (face.bottom - ink.bottom)), tm.tmHeight / 2);
}

TEST_F(ColorButton, EmptyCaptionPaintsOnlyTheFill)
{
    TestColorButton button;
    CreateButton(button, "", BS_PUSHBUTTON);
    CRect face = FaceOf(button.m_hWnd);
    PixelProbe probe = PixelProbe::CaptureClient(button.m_hWnd);
    EXPECT_EQ(face.Width() * face.Height(), probe.Count(kSteelBlue, face));
}

TEST_F(ColorButton, ButtonWithoutFontDrawsItsCaptionInTheSystemFont)
{
    TestColorButton button;
    CreateButton(button, "OK", BS_PUSHBUTTON, CRect(10, 10, 130, 40), 1001, false);
    ASSERT_EQ(0, button.SendMessage(WM_GETFONT));
    CRect face = FaceOf(button.m_hWnd);
    PixelProbe probe = PixelProbe::CaptureClient(button.m_hWnd);
    // The system font is smoothed, so its edges mix the two colours.
    EXPECT_GT(probe.Count(kWhite, face), 0);
    EXPECT_EQ(kSteelBlue, probe.Pixel(face.left, face.top));
    EXPECT_TRUE(Contains(CentredTextBlock(button.m_hWnd, face), InkBounds(probe, face, kSteelBlue)));
    EXPECT_EQ(0, DifferingPixels(probe, ReferenceFace(button.m_hWnd, kSteelBlue, kWhite, DT_CENTER, kUnderlay), face));
}

// Other button types keep the system's painting

TEST_F(ColorButton, CheckBoxIsPaintedByTheSystem)
{
    for (DWORD style : {BS_CHECKBOX, BS_AUTOCHECKBOX, BS_3STATE, BS_AUTO3STATE})
    {
        SCOPED_TRACE(style);
        TestColorButton button;
        CreateButton(button, "Check", style, CRect(10, 10, 130, 40), 1001);
        CWnd plain;
        CreatePlainButton(plain, "Check", style, CRect(10, 50, 130, 80));
        button.SendMessage(BM_SETCHECK, BST_CHECKED);
        plain.SendMessage(BM_SETCHECK, BST_CHECKED);
        PixelProbe ours = PixelProbe::CaptureClient(button.m_hWnd);
        PixelProbe system = PixelProbe::CaptureClient(plain.m_hWnd);
        CRect client(0, 0, 120, 30);
        EXPECT_EQ(0, ours.Count(kSteelBlue, client));
        EXPECT_EQ(0, DifferingPixels(ours, system, client));
    }
}

TEST_F(ColorButton, RadioButtonIsPaintedByTheSystem)
{
    for (DWORD style : {BS_RADIOBUTTON, BS_AUTORADIOBUTTON})
    {
        SCOPED_TRACE(style);
        TestColorButton button;
        CreateButton(button, "Radio", style, CRect(10, 10, 130, 40), 1001);
        CWnd plain;
        CreatePlainButton(plain, "Radio", style, CRect(10, 50, 130, 80));
        PixelProbe ours = PixelProbe::CaptureClient(button.m_hWnd);
        PixelProbe system = PixelProbe::CaptureClient(plain.m_hWnd);
        CRect client(0, 0, 120, 30);
        EXPECT_EQ(0, ours.Count(kSteelBlue, client));
        EXPECT_EQ(0, DifferingPixels(ours, system, client));
    }
}

TEST_F(ColorButton, GroupBoxIsPaintedByTheSystem)
{
    TestColorButton button;
    CreateButton(button, "Group", BS_GROUPBOX, CRect(10, 10, 130, 60), 1001);
    CWnd plain;
    CreatePlainButton(plain, "Group", BS_GROUPBOX, CRect(10, 70, 130, 120));
    PixelProbe ours = PixelProbe::CaptureClient(button.m_hWnd);
    PixelProbe system = PixelProbe::CaptureClient(plain.m_hWnd);
    CRect client(0, 0, 120, 50);
    EXPECT_EQ(0, ours.Count(kSteelBlue, client));
    EXPECT_EQ(0, DifferingPixels(ours, system, client));
}

TEST_F(ColorButton, MoveButtonWithoutAWindowRepaintsNoOtherWindow)
{
    TestColorButton button;
    ::UpdateWindow(m_parent.m_hWnd);
    ASSERT_FALSE(HasUpdateRegion(m_parent.m_hWnd));
    button.MoveButton(20, 50, 100, 30, TRUE);
    button.SetColor(RGB(1, 2, 3), RGB(4, 5, 6));
    EXPECT_EQ(nullptr, button.m_hWnd);
    EXPECT_FALSE(HasUpdateRegion(m_parent.m_hWnd));  // a null handle would have reached every window
}
