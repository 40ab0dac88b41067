// What the button tests share: a parent window for the buttons, derived buttons that read
// the protected state, the colours the scheme fixes, and readers of what a window shows.
#pragma once

#include <afxwin.h>
#include <gtest/gtest.h>

#include "ColorButton.h"
#include "LocalizationManager.h"
#include "UnicodeButton.h"

#include "MessageSpy.h"
#include "PixelProbe.h"
#include "WindowingTest.h"

#include <vector>

namespace controls_tests {

using kivtest::Expected;
using kivtest::MessageSpy;
using kivtest::PixelProbe;
using kivtest::PumpPending;

// The scheme's colours, written out here as the tests expect them on screen.
inline constexpr COLORREF kSteelBlue = RGB(78, 130, 172);
inline constexpr COLORREF kLightBlue = RGB(221, 235, 244);
inline constexpr COLORREF kPaleBlueGrey = RGB(165, 192, 209);
inline constexpr COLORREF kWhite = RGB(255, 255, 255);
inline constexpr COLORREF kBlack = RGB(0, 0, 0);
// What the tests paint under a button that draws no background of its own.
inline constexpr COLORREF kUnderlay = RGB(255, 0, 255);

// A colour button whose stored colours and hover flag can be read.
class TestColorButton : public CColorButton
{
public:
    using CColorButton::CColorButton;

    COLORREF Text() const { return m_clrText; }
    COLORREF Background() const { return m_clrBackground; }
    COLORREF Face() const { return m_clrFace; }
    COLORREF Light() const { return m_clrLight; }
    COLORREF Highlight() const { return m_clrHighlight; }
    COLORREF Shadow() const { return m_clrShadow; }
    COLORREF DarkShadow() const { return m_clrDarkShadow; }
    BOOL OverControl() const { return m_bOverControl; }
};

// A wide-text button whose mode, texts, flags and state numbers can be read. It also notes
// the wide caption it held at each WM_PAINT, to tell when a repaint happened.
class TestUnicodeButton : public CUnicodeButton
{
public:
    BOOL Unicode() const { return m_bUnicode; }
    CStringW TextW() const { return m_strTextW; }
    CString SavedText() const { return m_strText; }
    BOOL OverControl() const { return m_bOverControl; }
    void SetFlags(BOOL bUnicode, BOOL bOverControl)
    {
        m_bUnicode = bUnicode;
        m_bOverControl = bOverControl;
    }
    int PushState() { return GetPushButtonState(); }
    int CheckState(int pushState) { return GetCheckBoxState(pushState); }

    std::vector<CStringW> m_captionAtPaint;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_PAINT)
            m_captionAtPaint.push_back(m_strTextW);
        return CUnicodeButton::WindowProc(message, wParam, lParam);
    }
};

// Each test gets a visible parent window of its own, with the real mouse pointer parked far
// from it so that only the tests' own messages move the buttons' hover state.
class ButtonTest : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    // A visible child button in the dialog font (or with no font at all), painted once.
    void CreateButton(CButton& button, LPCSTR caption, DWORD style, const CRect& rect = CRect(10, 10, 130, 40),
                      UINT id = 1001, bool withFont = true);
    // A plain system button of the same kind, to compare with.
    void CreatePlainButton(CWnd& button, LPCSTR caption, DWORD style, const CRect& rect, UINT id = 1002);

    // Records the parts of a button's traffic that hover tracking and repaints decide.
    static void WatchRepaints(MessageSpy& spy, HWND hWnd);
    static BOOL HasUpdateRegion(HWND hWnd) { return ::GetUpdateRect(hWnd, nullptr, FALSE); }
    static void MoveInside(CWnd& button, UINT flags = 0) { button.SendMessage(WM_MOUSEMOVE, flags, MAKELPARAM(5, 5)); }
    static void MoveOutside(CWnd& button, UINT flags = 0)
    {
        button.SendMessage(WM_MOUSEMOVE, flags, MAKELPARAM(300, 5));
    }

    CWnd m_parent;
};

// The client area as the window shows it now, without asking it to repaint.
PixelProbe ReadClient(HWND hWnd);
// Paints the client area in one colour through a window DC, as if something lay under it.
void PaintUnderlay(HWND hWnd, COLORREF colour = kUnderlay);
// Repaints the window now, with erase; the parent does not repaint.
void RepaintNow(HWND hWnd);

// The client rectangle less its outer one-pixel ring: the face the blue scheme fills.
CRect FaceOf(HWND hWnd);
// Pixels inside `area` that differ between the two images (which have the same size).
int DifferingPixels(const PixelProbe& a, const PixelProbe& b, const CRect& area);
// The smallest rectangle holding every pixel of `area` whose colour is not `background`;
// empty when there is none.
CRect InkBounds(const PixelProbe& probe, const CRect& area, COLORREF background);
CRect DifferenceBounds(const PixelProbe& a, const PixelProbe& b, const CRect& area);

// Every pixel of the face is `fill` or `text`, the face's corners are `fill`, and some
// pixels are `text`.
testing::AssertionResult FaceIsPainted(const PixelProbe& probe, const CRect& face, COLORREF fill, COLORREF text);
// Where the narrow caption block goes: measured with DT_CALCRECT | DT_WORDBREAK in the
// button's font at the face's width, then centred in the face.
CRect CentredTextBlock(HWND hWnd, const CRect& face);
// The narrow face as the blue scheme paints it, drawn here into a probe of the client's size
// over `underlay`: fill, text and background colours, the font the button answers, and the
// given line format for the centred block.
PixelProbe ReferenceFace(HWND hWnd, COLORREF fill, COLORREF text, UINT lineFormat, COLORREF underlay);
// Whether `inner` lies wholly inside `outer`; an empty `inner` does not.
testing::AssertionResult Contains(const CRect& outer, const CRect& inner);
// A copy of an image.
PixelProbe CopyOf(const PixelProbe& probe);

// The wide caption drawn as the button draws it in wide mode: the font of the LOGFONT, the
// generic string format showing hot-key prefixes, opaque black, one line from (x, y).
void DrawWideCaption(HDC hDC, HFONT hFont, const CStringW& text, float x, float y);
// Its measured width and height in that font, as the button measures it.
void MeasureWideCaption(HDC hDC, HFONT hFont, const CStringW& text, float& width, float& height);

// `base` with the wide caption drawn over it at (x, y).
PixelProbe WithWideCaption(const PixelProbe& base, HFONT hFont, const CStringW& text, float x, float y);
// The visual-style part and state of the button class drawn into `box` of a probe of the
// window's client size, over `underlay`.
PixelProbe ThemedReference(HWND hWnd, int part, int state, const CRect& box, COLORREF underlay = kUnderlay);

// The font buttons of a dialog get.
HFONT DialogFont();

}  // namespace controls_tests
