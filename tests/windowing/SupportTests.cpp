// The test support itself: spy, sandbox, probe and driver.
#include "GuiObjects.h"
#include "MessageSpy.h"
#include "ModalDriver.h"
#include "PixelProbe.h"
#include "RegistrySandbox.h"
#include "WindowingTest.h"

using kivtest::Expected;

TEST(MessageSpy, MismatchIsReportedAndOptionalEntriesMayBeMissing)
{
    CWnd wnd;
    ASSERT_TRUE(kivtest::CreateTopLevel(wnd));
    kivtest::MessageSpy spy;
    spy.Only({WM_APP, WM_APP + 1});
    spy.Watch(wnd.m_hWnd);
    wnd.SendMessage(WM_APP, 1, 2);
    spy.Mark(7);
    wnd.SendMessage(WM_APP + 1);
    EXPECT_TRUE(spy.Matches({{WM_APP}, {WM_APP + 5, Expected::kOptional}, Expected::Marker(7), {WM_APP + 1}}));
    EXPECT_FALSE(spy.Matches({{WM_APP}, {WM_APP + 1}}));
    EXPECT_FALSE(spy.Matches({{WM_APP, Expected::kWParam, 9}, Expected::Marker(7), {WM_APP + 1}}));
    EXPECT_FALSE(spy.Matches({{WM_APP}, Expected::Marker(7)}));
    EXPECT_EQ(1, spy.Count(WM_APP));
    spy.Unwatch(wnd.m_hWnd);
    wnd.SendMessage(WM_APP);
    EXPECT_EQ(1, spy.Count(WM_APP));
    wnd.DestroyWindow();
}

TEST(RegistrySandbox, StartsEmptyAndIsRemovedAfterwards)
{
    CString path;
    {
        kivtest::RegistrySandbox sandbox;
        path = sandbox.Path();
        EXPECT_EQ(0, path.Find("Software\\KivTests\\RegistrySandbox.StartsEmptyAndIsRemovedAfterwards."));
        DWORD value = 0;
        EXPECT_FALSE(sandbox.ReadDword("Inner", "Value", value));
        sandbox.WriteDword("Inner", "Value", 12);
        EXPECT_TRUE(sandbox.ReadDword("Inner", "Value", value));
        EXPECT_EQ(12u, value);
        EXPECT_TRUE(sandbox.Exists("Inner"));
    }
    HKEY hKey = nullptr;
    EXPECT_NE(ERROR_SUCCESS, ::RegOpenKeyExA(HKEY_CURRENT_USER, path, 0, KEY_READ, &hKey));
}

TEST(RegistrySandbox, NamedKeyIsEmptiedFirst)
{
    const char* kPath = "Software\\KivTests\\Named";
    HKEY hKey = nullptr;
    ::RegCreateKeyExA(HKEY_CURRENT_USER, "Software\\KivTests\\Named\\Old", 0, nullptr, 0, KEY_WRITE, nullptr, &hKey,
                      nullptr);
    ::RegCloseKey(hKey);
    kivtest::RegistrySandbox sandbox(kPath);
    EXPECT_FALSE(sandbox.Exists("Old"));
    EXPECT_TRUE(sandbox.Exists(nullptr));
}

TEST(PixelProbe, ReadsWhatWasPaintedAndNothingOutside)
{
    kivtest::PixelProbe probe(4, 3, RGB(1, 2, 3));
    EXPECT_EQ(RGB(1, 2, 3), probe.Pixel(3, 2));
    ::SetPixel(probe.DC(), 1, 1, RGB(200, 100, 50));
    EXPECT_EQ(RGB(200, 100, 50), probe.Pixel(1, 1));
    EXPECT_EQ(11, probe.Count(RGB(1, 2, 3), CRect(0, 0, 4, 3)));
    EXPECT_EQ(CLR_INVALID, probe.Pixel(4, 0));
}

TEST(ModalDriver, AnswersAMessageBoxFromInsideItsLoop)
{
    CString text;
    kivtest::ModalDriver driver([&](HWND hBox) {
        text = kivtest::ModalDriver::ItemText(hBox, 0xFFFF);
        kivtest::ModalDriver::Click(hBox, IDNO);
    });
    EXPECT_EQ(IDNO, ::MessageBoxA(nullptr, "Question?", "Driver", MB_YESNO));
    EXPECT_TRUE(driver.Acted());
    EXPECT_STREQ("Question?", text);
}

TEST(GuiObjects, CountsEachGdiObjectWindowAndMenuWhileItLives)
{
    {
        CWnd warmUp;  // the first window of a process makes objects that stay
        ASSERT_TRUE(kivtest::CreateTopLevel(warmUp));
        warmUp.DestroyWindow();
    }
    const kivtest::GuiObjects start = kivtest::CountGuiObjects();
    EXPECT_GT(start.gdi, 0);
    HBRUSH brush = ::CreateSolidBrush(RGB(1, 2, 3));
    HPEN pen = ::CreatePen(PS_SOLID, 1, RGB(1, 2, 3));
    HMENU menu = ::CreatePopupMenu();
    const kivtest::GuiObjects held = kivtest::CountGuiObjects();
    EXPECT_EQ(start.gdi + 2, held.gdi);
    EXPECT_EQ(start.user + 1, held.user);
    CWnd wnd;
    ASSERT_TRUE(kivtest::CreateTopLevel(wnd));
    EXPECT_GT(kivtest::CountGuiObjects().user, held.user);
    ::DeleteObject(brush);
    ::DeleteObject(pen);
    ::DestroyMenu(menu);
    wnd.DestroyWindow();
    const kivtest::GuiObjects end = kivtest::CountGuiObjects();
    EXPECT_EQ(start.gdi, end.gdi);
    EXPECT_EQ(start.user, end.user);
}
