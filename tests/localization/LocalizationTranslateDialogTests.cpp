// Translated texts put onto live windows: what TranslateDialog and SendTranslationToWnd send
// to each control, in which order, and what they record when the cache has no translation.
#include "LocalizationTestSupport.h"
#include "MessageSpy.h"

#include <string>
#include <vector>

namespace localization_tests {

namespace {

using kivtest::Expected;
using kivtest::MessageSpy;

// A dialog window of the system's dialog class with controls created straight into it.
class TestDialog
{
public:
    TestDialog()
    {
        m_hWnd = ::CreateWindowExA(0, "#32770", "Options", WS_POPUP | WS_CAPTION, 10, 10, 300, 200, nullptr, nullptr,
                                   nullptr, nullptr);
    }
    ~TestDialog()
    {
        if (::IsWindow(m_hWnd))
            ::DestroyWindow(m_hWnd);
    }
    // A child at the bottom of its siblings' Z order, so controls walk in the order added.
    HWND Add(const char* className, int id, const char* text, HWND parent = nullptr)
    {
        HWND hWnd = ::CreateWindowExA(0, className, text, WS_CHILD | WS_VISIBLE, 0, 0, 80, 20, parent ? parent : m_hWnd,
                                      (HMENU)(INT_PTR)id, nullptr, nullptr);
        ::SetWindowPos(hWnd, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        return hWnd;
    }
    CWnd* Wnd() const { return CWnd::FromHandle(m_hWnd); }
    HWND m_hWnd;
};

std::wstring WideText(HWND hWnd)
{
    wchar_t text[1024] = {};
    ::GetWindowTextW(hWnd, text, 1024);
    return text;
}

std::string NarrowText(HWND hWnd)
{
    char text[1024] = {};
    ::GetWindowTextA(hWnd, text, 1024);
    return text;
}

// Records the retitling messages of the windows it watches, with their texts.
struct RetitleSpy : MessageSpy
{
    RetitleSpy()
    {
        Only({WM_SETTEXT, WM_UNICODE});
        CaptureText({WM_SETTEXT, WM_UNICODE});
    }
};

Expected SetText()
{
    return {WM_SETTEXT, Expected::kWParam, 0, 0};
}
Expected Unicode()
{
    return {WM_UNICODE, Expected::kWParam, 0, 0};
}

}  // namespace

TEST_F(LocalizationManager, TranslateDialogSendsTheTranslationThenTheSection)
{
    UseRecordingStore();
    WriteSetting("German");
    Manager* m = Manager::Get();
    m->SetTranslation("File", CStringW(L"Datei"), "1005", "2001");
    TestDialog dialog;
    HWND label = dialog.Add("Static", 1005, "File");
    RetitleSpy spy;
    spy.Watch(label);

    EXPECT_EQ(1, m->TranslateDialog(dialog.Wnd(), 2001));

    EXPECT_TRUE(spy.Matches({SetText(), Unicode()}));
    ASSERT_EQ(2u, spy.Messages().size());
    EXPECT_EQ("Datei", spy.Messages()[0].text);
    EXPECT_EQ("2001", spy.Messages()[1].text);
    EXPECT_EQ("Datei", NarrowText(label));
}

TEST_F(LocalizationManager, TranslateDialogLeavesTheDialogCaptionAsItIs)
{
    UseRecordingStore();
    WriteSetting("German");
    Manager* m = Manager::Get();
    TestDialog dialog;
    dialog.Add("Button", 1, "OK");
    RetitleSpy spy;
    spy.Watch(dialog.m_hWnd);
    m->TranslateDialog(dialog.Wnd(), 2001);
    EXPECT_TRUE(spy.Messages().empty());
    EXPECT_EQ("Options", NarrowText(dialog.m_hWnd));
}

TEST_F(LocalizationManager, TranslateDialogWithAStringSectionUsesItUnchanged)
{
    UseRecordingStore();
    WriteSetting("German");
    Manager* m = Manager::Get();
    m->SetTranslation("Close", CStringW(L"Schließen"), "2", "IDD_Options ");
    TestDialog dialog;
    HWND button = dialog.Add("Button", 2, "Close");
    RetitleSpy spy;
    spy.Watch(button);
    EXPECT_EQ(1, m->TranslateDialog(dialog.Wnd(), CString("IDD_Options ")));
    ASSERT_EQ(2u, spy.Messages().size());
    EXPECT_EQ("IDD_Options ", spy.Messages()[1].text);
    EXPECT_EQ(L"Schließen", WideText(button));
}

TEST_F(LocalizationManager, TranslateDialogSkipsAControlWithIdMinusOneButWalksItsChildren)
{
    UseRecordingStore();
    WriteSetting("German");
    Manager* m = Manager::Get();
    m->SetTranslation("Inner", CStringW(L"Innen"), "7", "2001");
    TestDialog dialog;
    HWND frame = dialog.Add("Static", -1, "Frame");
    HWND inner = dialog.Add("Button", 7, "Inner", frame);
    ASSERT_EQ(-1, ::GetDlgCtrlID(frame));
    RetitleSpy spy;
    spy.Watch(frame);
    spy.Watch(inner);

    m->TranslateDialog(dialog.Wnd(), 2001);

    for (const kivtest::SpyMessage& msg : spy.Messages())
        EXPECT_EQ(inner, msg.hwnd);
    EXPECT_TRUE(spy.Matches({SetText(), Unicode()}));
    EXPECT_EQ("Frame", NarrowText(frame));
    EXPECT_EQ("Innen", NarrowText(inner));
    // Neither translated nor recorded: the cache holds only the entry set above.
    EXPECT_EQ(1, CachedEntryCount(m));
    EXPECT_EQ(nullptr, CachedEntry(m, "2001", "-1"));
}

TEST_F(LocalizationManager, TranslateDialogRecordsAnUntranslatedButtonWithItsOwnTextThenSetsItNextTime)
{
    UseRecordingStore();
    WriteSetting("German");
    Manager* m = Manager::Get();
    TestDialog dialog;
    HWND ok = dialog.Add("Button", 1, "OK");
    RetitleSpy spy;
    spy.Watch(ok);

    m->TranslateDialog(dialog.Wnd(), 2001);
    EXPECT_TRUE(spy.Messages().empty());
    const TranslationEntry* entry = CachedEntry(m, "2001", "1");
    ASSERT_NE(nullptr, entry);
    EXPECT_STREQ("OK", entry->defaultText);
    EXPECT_STREQ(L"OK", entry->translatedText);

    m->TranslateDialog(dialog.Wnd(), 2001);
    EXPECT_TRUE(spy.Matches({SetText(), Unicode()}));
    ASSERT_EQ(2u, spy.Messages().size());
    EXPECT_EQ("OK", spy.Messages()[0].text);
    EXPECT_EQ("2001", spy.Messages()[1].text);
}

TEST_F(LocalizationManager, TranslateDialogRecordsAnEmptyCaptionAsEmpty)
{
    UseRecordingStore();
    WriteSetting("German");
    Manager* m = Manager::Get();
    TestDialog dialog;
    dialog.Add("Static", 1007, "");
    m->TranslateDialog(dialog.Wnd(), 2001);
    const TranslationEntry* entry = CachedEntry(m, "2001", "1007");
    ASSERT_NE(nullptr, entry);
    EXPECT_STREQ("", entry->defaultText);
    EXPECT_STREQ(L"", entry->translatedText);
}

TEST_F(LocalizationManager, TranslateDialogNeverRetitlesAnEditBox)
{
    UseRecordingStore();
    WriteSetting("German");
    Manager* m = Manager::Get();
    m->SetTranslation("Name", CStringW(L"Vorname"), "1006", "2001");
    TestDialog dialog;
    HWND edit = dialog.Add("Edit", 1006, "Name");
    HWND list = dialog.Add("ListBox", 1008, "");
    RetitleSpy spy;
    spy.Watch(edit);
    spy.Watch(list);
    m->TranslateDialog(dialog.Wnd(), 2001);
    EXPECT_TRUE(spy.Messages().empty());
    EXPECT_EQ("Name", NarrowText(edit));
    EXPECT_EQ(nullptr, CachedEntry(m, "2001", "1008"));  // other classes are not recorded either
}

TEST_F(LocalizationManager, TranslateDialogOutsideTranslationModeAnswersZeroAndRecordsNothing)
{
    UseRecordingStore();
    WriteSetting("");
    Manager* m = Manager::Get();
    m->SetTranslation("File", CStringW(L"Datei"), "1005", "2001");
    TestDialog dialog;
    HWND label = dialog.Add("Static", 1005, "File");
    HWND other = dialog.Add("Static", 1009, "Other");
    RetitleSpy spy;
    spy.Watch(label);
    spy.Watch(other);
    EXPECT_EQ(0, m->TranslateDialog(dialog.Wnd(), 2001));
    EXPECT_EQ(0, m->TranslateDialog(dialog.Wnd(), CString("2001")));
    EXPECT_TRUE(spy.Messages().empty());
    EXPECT_EQ(1, CachedEntryCount(m));
}

TEST_F(LocalizationManager, SendTranslationToWndWorksOutsideTranslationModeAndRecordsMisses)
{
    UseRecordingStore();
    WriteSetting("");
    Manager* m = Manager::Get();
    m->SetTranslation("File", CStringW(L"Datei"), "1005", "2001");
    TestDialog dialog;
    HWND label = dialog.Add("Static", 1005, "File");
    HWND other = dialog.Add("Static", 1009, "Other");
    RetitleSpy spy;
    spy.Watch(label);
    spy.Watch(other);

    m->SendTranslationToWnd(label, "File", 1005, 2001);
    m->SendTranslationToWnd(other, "Other", CString("1009"), CString("2001"));

    // Only the text is sent: no section follows it.
    EXPECT_TRUE(spy.Matches({SetText()}));
    ASSERT_EQ(1u, spy.Messages().size());
    EXPECT_EQ(label, spy.Messages()[0].hwnd);
    EXPECT_EQ("Datei", spy.Messages()[0].text);
    const TranslationEntry* miss = CachedEntry(m, "2001", "1009");
    ASSERT_NE(nullptr, miss);
    EXPECT_STREQ("Other", miss->defaultText);
    EXPECT_STREQ(L"", miss->translatedText);
    EXPECT_EQ("Other", NarrowText(other));
}

TEST_F(LocalizationManager, TranslateDialogTranslatesANestedButtonUnderTheDialogSection)
{
    UseRecordingStore();
    WriteSetting("German");
    Manager* m = Manager::Get();
    m->SetTranslation("Apply", CStringW(L"Übernehmen"), "1010", "2001");
    m->SetTranslation("Apply", CStringW(L"wrong"), "1010", "300");
    TestDialog dialog;
    HWND page = dialog.Add("#32770", 300, "");
    HWND button = dialog.Add("Button", 1010, "Apply", page);
    RetitleSpy spy;
    spy.Watch(button);
    m->TranslateDialog(dialog.Wnd(), 2001);
    ASSERT_EQ(2u, spy.Messages().size());
    EXPECT_EQ("2001", spy.Messages()[1].text);
    EXPECT_EQ(L"Übernehmen", WideText(button));
}

TEST_F(LocalizationManager, TranslateDialogWalksDepthFirstInZOrder)
{
    UseRecordingStore();
    WriteSetting("German");
    Manager* m = Manager::Get();
    TestDialog dialog;
    HWND first = dialog.Add("Button", 11, "first");
    HWND group = dialog.Add("Static", 12, "group");
    HWND inner1 = dialog.Add("Button", 13, "inner one", group);
    HWND inner2 = dialog.Add("Static", 14, "inner two", group);
    HWND last = dialog.Add("Button", 15, "last");
    for (int id = 11; id <= 15; ++id)
        m->SetTranslation("x", CStringW(L"t"), CString(std::to_string(id).c_str()), "2001");
    RetitleSpy spy;
    for (HWND h : {first, group, inner1, inner2, last})
        spy.Watch(h);
    spy.Only({WM_SETTEXT});

    m->TranslateDialog(dialog.Wnd(), 2001);

    std::vector<HWND> order;
    for (const kivtest::SpyMessage& msg : spy.Messages())
        order.push_back(msg.hwnd);
    EXPECT_EQ((std::vector<HWND>{first, group, inner1, inner2, last}), order);
}

TEST_F(LocalizationManager, TranslateDialogCutsATranslationOf256UnitsTo255)
{
    UseRecordingStore();
    WriteSetting("German");
    Manager* m = Manager::Get();
    std::wstring longText(300, L'x');
    std::wstring fits(255, L'y');
    m->SetTranslation("a", CStringW(longText.c_str()), "1", "2001");
    m->SetTranslation("b", CStringW(fits.c_str()), "2", "2001");
    TestDialog dialog;
    HWND cut = dialog.Add("Static", 1, "a");
    HWND whole = dialog.Add("Static", 2, "b");
    RetitleSpy spy;
    spy.Watch(cut);
    m->TranslateDialog(dialog.Wnd(), 2001);
    EXPECT_EQ(std::wstring(255, L'x'), WideText(cut));
    EXPECT_EQ(fits, WideText(whole));
    EXPECT_TRUE(spy.Matches({SetText(), Unicode()}));  // the section still follows
    m->SendTranslationToWnd(cut, "a", 1, 2001);
    EXPECT_EQ(std::wstring(255, L'x'), WideText(cut));
}

TEST_F(LocalizationManager, TranslateDialogOfANullDialogWalksNothing)
{
    UseRecordingStore();
    WriteSetting("German");
    Manager* m = Manager::Get();
    CWnd noWindow;
    EXPECT_EQ(1, m->TranslateDialog(nullptr, 2001));
    EXPECT_EQ(1, m->TranslateDialog(&noWindow, CString("2001")));
    EXPECT_EQ(0, CachedEntryCount(m));
}

namespace {

WNDPROC g_staticProc = nullptr;

// A control that destroys its dialog when it is retitled.
LRESULT CALLBACK DestroyParentOnSetText(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = ::CallWindowProcW(g_staticProc, hWnd, message, wParam, lParam);
    if (message == WM_SETTEXT)
        ::DestroyWindow(::GetParent(hWnd));
    return result;
}

}  // namespace

TEST_F(LocalizationManager, TranslateDialogSurvivesADialogDestroyedDuringTheWalk)
{
    UseRecordingStore();
    WriteSetting("German");
    Manager* m = Manager::Get();
    m->SetTranslation("a", CStringW(L"A"), "1", "2001");
    m->SetTranslation("b", CStringW(L"B"), "2", "2001");
    TestDialog dialog;
    HWND first = dialog.Add("Static", 1, "a");
    dialog.Add("Static", 2, "b");
    g_staticProc = (WNDPROC)::SetWindowLongPtrW(first, GWLP_WNDPROC, (LONG_PTR)DestroyParentOnSetText);
    EXPECT_EQ(1, m->TranslateDialog(dialog.Wnd(), 2001));
    EXPECT_FALSE(::IsWindow(dialog.m_hWnd));
    m->SendTranslationToWnd(first, "a", 1, 2001);  // a dead handle: no effect
}

TEST_F(LocalizationManager, TranslateDialogWithANullSectionUsesTheEmptySection)
{
    UseRecordingStore();
    WriteSetting("German");
    Manager* m = Manager::Get();
    m->SetTranslation("File", CStringW(L"Datei"), "1005", "");
    TestDialog dialog;
    HWND label = dialog.Add("Static", 1005, "File");
    RetitleSpy spy;
    spy.Watch(label);
    EXPECT_EQ(1, m->TranslateDialog(dialog.Wnd(), CString((LPCSTR) nullptr)));
    EXPECT_TRUE(spy.Matches({SetText(), Unicode()}));
    ASSERT_EQ(2u, spy.Messages().size());
    EXPECT_EQ("Datei", spy.Messages()[0].text);
    EXPECT_EQ("", spy.Messages()[1].text);
}

TEST_F(LocalizationManager, SendTranslationToWndWithANullSectionOrANullWindowDoesNotCrash)
{
    UseRecordingStore();
    WriteSetting("");
    Manager* m = Manager::Get();
    m->SetTranslation("File", CStringW(L"Datei"), "1005", "");
    TestDialog dialog;
    HWND label = dialog.Add("Static", 1005, "File");
    m->SendTranslationToWnd(label, "File", CString("1005"), CString((LPCSTR) nullptr));
    EXPECT_EQ(L"Datei", WideText(label));
    m->SendTranslationToWnd(nullptr, "Gone", CString("1006"), CString((LPCSTR) nullptr));
    const TranslationEntry* miss = CachedEntry(m, "", "1006");
    ASSERT_NE(nullptr, miss);  // the miss is recorded even though no window shows it
    EXPECT_STREQ("Gone", miss->defaultText);
}

// Nothing but the translation and the section reaches a translated control (its text is read
// without a message); an edit box hears nothing at all.
TEST_F(LocalizationManager, TranslateDialogSendsATranslatedControlNothingElseAndAnEditBoxNothing)
{
    UseRecordingStore();
    WriteSetting("German");
    Manager* m = Manager::Get();
    m->SetTranslation("File", CStringW(L"Datei"), "1005", "2001");
    m->SetTranslation("Name", CStringW(L"Vorname"), "1006", "2001");
    TestDialog dialog;
    HWND label = dialog.Add("Static", 1005, "File");
    HWND edit = dialog.Add("Edit", 1006, "Name");
    MessageSpy spy;
    spy.Ignore({WM_PAINT, WM_NCPAINT, WM_ERASEBKGND, WM_CTLCOLORSTATIC, WM_CTLCOLOREDIT, WM_TIMER});
    spy.Watch(label);
    spy.Watch(edit);
    m->TranslateDialog(dialog.Wnd(), 2001);
    std::vector<UINT> toLabel, toEdit;
    for (const kivtest::SpyMessage& message : spy.Messages())
        (message.hwnd == label ? toLabel : toEdit).push_back(message.message);
    EXPECT_EQ((std::vector<UINT>{WM_SETTEXT, WM_UNICODE}), toLabel);
    EXPECT_TRUE(toEdit.empty()) << toEdit.size() << " messages, the first " << (toEdit.empty() ? 0 : toEdit[0]);
    spy.Unwatch(label);
    spy.Unwatch(edit);
}

}  // namespace localization_tests
