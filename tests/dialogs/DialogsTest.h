// What the dialog framework's tests share: test classes that read the protected state of the
// library's dialog classes, a fixture that gives each test an application name and placement
// keys of its own, translation mode, readers of tooltips, and checks of command updates,
// tooltip relays, report-row stages and what a window releases.
#pragma once

#include <KivMFC.h>
#include <afxcmn.h>
#include <afxdlgs.h>
#include <afxext.h>
#include <gtest/gtest.h>

#include "DialogPixels.h"
#include "MessageSpy.h"
#include "RegistryRecorder.h"
#include "RegistrySandbox.h"
#include "WindowingTest.h"
#include "dialogs_res.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace dialogs_tests {

using kivtest::PumpPending;

// A window class of the library with an action run once it has handled WM_DESTROY.
template <class Base> class DestroyHooked : public Base
{
public:
    using Base::Base;
    std::function<void()> m_afterDestroy;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        LRESULT result = Base::WindowProc(message, wParam, lParam);
        if (message == WM_DESTROY && m_afterDestroy)
            m_afterDestroy();
        return result;
    }
};

// A dialog or page with hooks around its initialisation and destruction and a record of how
// it changed WM_WINDOWPOSCHANGING.
template <class Base> class Hooked : public DestroyHooked<Base>
{
public:
    using DestroyHooked<Base>::DestroyHooked;

    struct PosChange
    {
        UINT flagsIn, flagsOut;
    };
    std::vector<PosChange> m_posChanges;
    std::function<void()> m_beforeInit, m_afterInit;
    BOOL m_bInitResult = -1;

    BOOL OnInitDialog() override
    {
        if (m_beforeInit)
            m_beforeInit();
        m_bInitResult = Base::OnInitDialog();
        if (m_afterInit)
            m_afterInit();
        return m_bInitResult;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != WM_WINDOWPOSCHANGING)
            return DestroyHooked<Base>::WindowProc(message, wParam, lParam);
        auto* pos = reinterpret_cast<WINDOWPOS*>(lParam);
        UINT flagsIn = pos->flags;
        LRESULT result = DestroyHooked<Base>::WindowProc(message, wParam, lParam);
        m_posChanges.push_back({flagsIn, pos->flags});
        return result;
    }
};

// An mfcCDialog or mfcDialog whose protected state the tests read and set.
template <class Base> class Exposed : public Hooked<Base>
{
public:
    Exposed() = default;
    Exposed(UINT nIDTemplate, CWnd* pParentWnd) : Hooked<Base>(nIDTemplate, pParentWnd) {}
    Exposed(const char* lpszTemplateName, CWnd* pParentWnd) : Hooked<Base>(lpszTemplateName, pParentWnd) {}

    using Base::CenterWindow;
    using Base::m_bApplyScheme;
    using Base::m_bInitialized;
    using Base::m_bMaximized;
    using Base::m_bmpComboArrow;
    using Base::m_bmpComboArrowDisabled;
    using Base::m_brBackground;
    using Base::m_bRestoringPlacement;
    using Base::m_colorButtons;
    using Base::m_pToolTip;
    using Base::m_strDialogName;
};

// The dialog most tests use: Open has a command handler (and an update handler that counts
// its calls and keeps it enabled), Orphan has none, and Owned can be attached to a member
// button through data exchange before the scheme looks at the push buttons.
class TestDialog : public Exposed<::mfcCDialog>
{
public:
    using Exposed::Exposed;
    using ::mfcCDialog::CustDraw;

    BOOL m_bOwnButton = FALSE;
    CButton m_owned;
    int m_nOpened = 0;
    int m_nOpenUpdates = 0;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    afx_msg void OnOpen() { ++m_nOpened; }
    afx_msg void OnUpdateOpen(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()
};

using TestPlainDialog = Exposed<::mfcDialog>;

// Each test gets an application name of its own (and of its process), so the placement keys
// it touches are its own; they are removed afterwards. The mouse pointer is parked far away.
class DialogTest : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    // "Software\Varnelt\<application>", the key every placement of the test lives under.
    const CString& AppKey() const { return m_strAppKey; }
    kivtest::RegistrySandbox& Registry() { return *m_registry; }

    // The placement values under KIVDLG<dialog name>; a missing value is skipped.
    void SavePlacement(const char* lpszDialog, const CRect& rect, DWORD maximized);
    bool ReadPlacement(const char* lpszDialog, CRect& rect, DWORD& maximized);
    // A visible top-level window at exactly this screen rectangle.
    static void CreateOwner(CWnd& owner, const CRect& rect);

private:
    CString m_strAppName;
    CString m_strAppKey;
    LPCSTR m_lpszSavedAppName = nullptr;
    std::unique_ptr<kivtest::RegistrySandbox> m_registry;
};

// Translation mode for the test's span: a settings file of its own naming a language, and a
// store folder of its own, found through KIV_INI.
class TranslationMode
{
public:
    TranslationMode();
    ~TranslationMode();
    TranslationMode(const TranslationMode&) = delete;
    TranslationMode& operator=(const TranslationMode&) = delete;

private:
    std::string m_ini;
    std::string m_store;
};

// One tool of a tooltip control: the window it belongs to and its text.
struct Tip
{
    HWND tool;
    std::string text;
};
std::vector<Tip> TipsOf(HWND hToolTip);
// The tools of a tooltip control as "<control id>:<text>", in the order they were added.
std::vector<std::string> TipTexts(HWND hToolTip);

// A control of a dialog, page or bar.
inline HWND Item(const CWnd& parent, int nID)
{
    return ::GetDlgItem(parent.m_hWnd, nID);
}
// A click on a dialog's push button, as the button reports it to its parent.
void ClickFrom(CWnd& parent, int nID);
// Whether the push button without a command handler is enabled.
BOOL OrphanEnabled(const CWnd& parent);
// An enabled Orphan is disabled again by the update that a click on Open brings, while Open
// (which has a handler) stays enabled.
testing::AssertionResult ClickDisablesTheOrphanAgain(CWnd& parent);

// A push button of its own on the desktop, which no one handles: a walk of command updates
// that strays over the desktop's windows (as UpdateDialogControls does for an object without
// a window) disables it. Such a walk would reach the windows of every program on the display,
// so the tests never make one on purpose.
class StrayButton
{
public:
    StrayButton();
    ~StrayButton();
    StrayButton(const StrayButton&) = delete;
    StrayButton& operator=(const StrayButton&) = delete;
    HWND Handle() const { return m_hWnd; }
    BOOL Enabled() const { return ::IsWindowEnabled(m_hWnd); }

private:
    HWND m_hWnd;
};

// Runs an action when the window receives WM_DESTROY, before the window handles it.
class DestroyWatch
{
public:
    DestroyWatch(HWND hWnd, std::function<void()> action);
    ~DestroyWatch();
    DestroyWatch(const DestroyWatch&) = delete;
    DestroyWatch& operator=(const DestroyWatch&) = delete;

private:
    static LRESULT CALLBACK Proc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
    HWND m_hWnd;
    WNDPROC m_pfnOld;
    std::function<void()> m_action;
};

// Calls wnd.PreTranslateMessage for messages just outside and inside 0x0200 to 0x020E, and
// checks that exactly those inside reach the tooltip as TTM_RELAYEVENT with the message.
testing::AssertionResult RelaysMouseMessages(CWnd& wnd, HWND hToolTip, HWND hControl);

// Reflects NM_CUSTOMDRAW structures of each stage and row to the object and checks its
// answers: item notifications asked for, rows 0 and 2 (and a row whose low 32 bits are 0)
// pale blue and row 1 white in the sub-item stage, which answers subItemAnswer, and nothing
// set in other stages.
void ExpectRowStages(CWnd& target, LRESULT subItemAnswer);

// What a dialog or page holds of the scheme while it runs, and whether it let go of all of it
// when its window was destroyed (read in WM_DESTROY, after the class handled it).
struct SchemeHold
{
    HWND hToolTip = nullptr;
    HWND hButton = nullptr;   // a push button the scheme subclassed
    LONG_PTR buttonProc = 0;  // its window procedure before that
    HGDIOBJ hArrow = nullptr, hArrowDisabled = nullptr, hBrush = nullptr;
};
template <class T> SchemeHold HoldOf(const T& wnd, HWND hButton, LONG_PTR buttonProc)
{
    return {wnd.m_pToolTip ? wnd.m_pToolTip->m_hWnd : nullptr,
            hButton,
            buttonProc,
            wnd.m_bmpComboArrow.GetSafeHandle(),
            wnd.m_bmpComboArrowDisabled.GetSafeHandle(),
            wnd.m_brBackground.GetSafeHandle()};
}
testing::AssertionResult LetGo(const SchemeHold& held);
template <class T> testing::AssertionResult ReleasedAll(const T& wnd, const SchemeHold& held)
{
    if (wnd.m_pToolTip != nullptr || !wnd.m_colorButtons.empty() || wnd.m_bmpComboArrow.GetSafeHandle() ||
        wnd.m_bmpComboArrowDisabled.GetSafeHandle() || wnd.m_brBackground.GetSafeHandle())
        return testing::AssertionFailure() << "a member still holds its object";
    return LetGo(held);
}

// The folder "screenshots" beside the program's folder, made when missing.
std::wstring ScreenshotPath(const char* lpszName);

// The fixtures, named after the classes under test; inside this namespace the library's
// classes are therefore written with their global scope.
class mfcCDialog : public DialogTest
{};
class mfcDialog : public DialogTest
{};
class mfcCPropertyPage : public DialogTest
{};
class mfcCDialogBar : public DialogTest
{};
class mfcCListCtrl : public DialogTest
{};
class CNSFlexDialog : public DialogTest
{};

}  // namespace dialogs_tests
