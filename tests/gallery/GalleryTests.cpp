// The gallery on its tour, window by window, in every language: the palette where it is fixed,
// texts that come from the store and fit their controls, and a capture run that leaves every
// text it showed in the store under its dialog and control.
#include <afxwin.h>
#include <gtest/gtest.h>

#include "GalleryRun.h"
#include "MenuTextHash.h"
#include "PixelProbe.h"
#include "PoCatalog.h"
#include "resource.h"

#include <commctrl.h>

#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

using gallerytest::TourItem;
using gallerytest::TourPart;
using gallerytest::TourWindow;

namespace {

constexpr COLORREF kSteelBlue = RGB(78, 130, 172);
constexpr COLORREF kLightBlue = RGB(221, 235, 244);
constexpr COLORREF kPaleBlueGrey = RGB(165, 192, 209);
constexpr COLORREF kWhite = RGB(255, 255, 255);

const std::vector<std::string> kTourWindows = {
    "frame", "menu", "main", "main-tooltip", "settings-display", "settings-files", "details", "message"};

std::wstring Widen(std::string_view utf8)
{
    std::wstring wide(utf8.size(), L'\0');
    int length = ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), (int)utf8.size(), wide.data(), (int)wide.size());
    wide.resize((size_t)length);
    return wide;
}

std::wstring Text(HWND hWnd)
{
    wchar_t text[512] = {};
    ::GetWindowTextW(hWnd, text, 512);
    return text;
}

// The text as the window answers WM_GETTEXT: what the system draws a caption bar from.
std::wstring AnsweredText(HWND hWnd)
{
    wchar_t text[512] = {};
    DWORD_PTR result = 0;
    ::SendMessageTimeoutW(hWnd, WM_GETTEXT, 512, (LPARAM)text, SMTO_ABORTIFHUNG, 5000, &result);
    return text;
}

std::wstring ClassName(HWND hWnd)
{
    wchar_t name[64] = {};
    ::GetClassNameW(hWnd, name, 64);
    return name;
}

// A language file of the gallery's store, read as the store reads it.
class StoreFile
{
public:
    explicit StoreFile(const std::string& path) { m_bLoaded = m_catalog.Load(gallerytest::ReadBytes(path)); }
    bool Loaded() const { return m_bLoaded; }
    const kiv::rules::PoEntry* Find(const std::string& section, const std::string& key) const
    {
        return m_catalog.Find(section + "\n" + key);
    }
    std::optional<std::wstring> Translation(const std::string& section, const std::string& key) const
    {
        const kiv::rules::PoEntry* entry = Find(section, key);
        if (entry == nullptr || entry->Translation().empty())
            return std::nullopt;
        return Widen(entry->Translation());
    }
    const kiv::rules::PoCatalog& Catalog() const { return m_catalog; }

private:
    kiv::rules::PoCatalog m_catalog;
    bool m_bLoaded = false;
};

// A text of the program on the screen: where it is shown, under which section and key.
struct ShownText
{
    HWND hWnd;
    std::string section;
    std::string key;
    std::wstring text;
};

bool IsTextControl(HWND hChild)
{
    const std::wstring className = ClassName(hChild);
    const int id = ::GetDlgCtrlID(hChild);
    return (className == L"Static" || className == L"Button") && ::IsWindowVisible(hChild) && id < IDC_VALUE_FIRST &&
           !Text(hChild).empty();
}

// The texts of a part: its caption where it has one, and its static texts and buttons.
std::vector<ShownText> TextsOf(const TourPart& part)
{
    std::vector<ShownText> texts;
    if (part.name == "message")
    {
        for (HWND h = ::GetWindow(part.hWnd, GW_CHILD); h != nullptr; h = ::GetWindow(h, GW_HWNDNEXT))
            if (ClassName(h) == L"Static" && !Text(h).empty())
                texts.push_back({h, "STRINGTABLE", std::to_string(IDS_SAVED), Text(h)});
        return texts;
    }
    if (part.name == "sheet")
        texts.push_back({part.hWnd, "STRINGTABLE", std::to_string(IDS_SHEET_TITLE), Text(part.hWnd)});
    else if (part.name == "frame" || part.name == "dialog")
        texts.push_back({part.hWnd, part.section, "Caption", Text(part.hWnd)});
    if (part.name == "frame")
        return texts;
    for (HWND h = ::GetWindow(part.hWnd, GW_CHILD); h != nullptr; h = ::GetWindow(h, GW_HWNDNEXT))
        if (IsTextControl(h))
            texts.push_back({h, part.section, std::to_string(::GetDlgCtrlID(h)), Text(h)});
    return texts;
}

// A wide-text button keeps the narrow form of its caption as its window text and draws the
// translation itself: the text as the ANSI code page holds it.
std::wstring AsAnsiText(const std::wstring& text)
{
    return std::wstring(CStringW(CString(CStringW(text.c_str()))).GetString());
}

std::wstring WithoutMnemonics(const std::wstring& text)
{
    std::wstring shown;
    for (size_t i = 0; i < text.size(); ++i)
        if (text[i] != L'&' || (i + 1 < text.size() && text[i + 1] == L'&' && ++i))
            shown += text[i];
    return shown;
}

// Pixels of the control's width that its caption cannot use: frame, check box, padding.
int Margin(HWND hControl, int dpi)
{
    if (ClassName(hControl) != L"Button")
        return 0;
    const LONG type = ::GetWindowLongW(hControl, GWL_STYLE) & 0x0F;
    const int pixels = type == BS_GROUPBOX ? 16 : (type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON) ? 8 : 18;
    return ::MulDiv(pixels, dpi, 96);
}

// The window's rectangle as it is on the screen.
kivtest::PixelProbe ScreenPixels(HWND hWnd)
{
    RECT rect;
    ::GetWindowRect(hWnd, &rect);
    kivtest::PixelProbe probe(rect.right - rect.left, rect.bottom - rect.top);
    HDC hScreen = ::GetDC(nullptr);
    ::BitBlt(probe.DC(), 0, 0, probe.Width(), probe.Height(), hScreen, rect.left, rect.top, SRCCOPY);
    ::ReleaseDC(nullptr, hScreen);
    return probe;
}

int CountColour(HWND hWnd, COLORREF colour)
{
    kivtest::PixelProbe probe = ScreenPixels(hWnd);
    RECT all = {0, 0, probe.Width(), probe.Height()};
    return probe.Count(colour, all);
}

// Runs of one colour, at least three pixels long, down the column x of the window.
int ColourRuns(HWND hWnd, int x, COLORREF colour)
{
    kivtest::PixelProbe probe = ScreenPixels(hWnd);
    int runs = 0, length = 0;
    for (int y = 0; y < probe.Height(); ++y)
    {
        length = probe.Pixel(x, y) == colour ? length + 1 : 0;
        runs += length == 3 ? 1 : 0;
    }
    return runs;
}

// The key of an item in the store: a sub-menu's is the hash of its text in the menu resource.
std::string StoreKey(const TourItem& item)
{
    if (item.key.rfind("bar.", 0) != 0)
        return item.key;
    static HMENU hMenu =
        ::LoadMenuA(::LoadLibraryExA((gallerytest::WinePath(KIV_GALLERY_DIR) + "\\KivGallery.exe").c_str(), nullptr,
                                     LOAD_LIBRARY_AS_DATAFILE),
                    MAKEINTRESOURCEA(IDR_MAINFRAME));
    char text[128] = {};
    const int length = ::GetMenuStringA(hMenu, (UINT)std::stoi(item.key.substr(4)), text, sizeof(text), MF_BYPOSITION);
    return std::to_string((int)kiv::rules::MenuTextHash((const unsigned char*)text, (size_t)length));
}

// Each item whose control gives it a fixed room fits it.
void ExpectItemsFit(const TourWindow& window)
{
    for (const TourItem& item : window.items)
    {
        if (item.room > 0)
        {
            EXPECT_LE(item.needed, item.room)
                << window.name << ": the " << item.kind << " item " << item.section << "/" << item.key
                << " is cut: it needs " << item.needed << " pixels and has " << item.room;
        }
    }
}

class GalleryTour : public testing::Test
{
protected:
    void SetUp() override
    {
        const std::string work = gallerytest::WinePath(KIV_GALLERY_WORK);
        ::CreateDirectoryA(work.c_str(), nullptr);
        m_folder = work + "\\" + testing::UnitTest::GetInstance()->current_test_info()->name();
        ::CreateDirectoryA(m_folder.c_str(), nullptr);
        ::CreateDirectoryA((m_folder + "\\lang").c_str(), nullptr);
    }

    std::string LanguageFile(const std::string& language) const { return m_folder + "\\lang\\" + language + ".po"; }

    // The settings of a run: the language (empty: translation off) and the store folder, with
    // a fresh copy of the gallery's own language file.
    std::string Settings(const std::string& language)
    {
        if (!language.empty() && language != "capture")
        {
            const std::string source = gallerytest::WinePath(KIV_GALLERY_SOURCE);
            gallerytest::WriteBytes(LanguageFile(language),
                                    gallerytest::ReadBytes(source + "\\lang\\" + language + ".po"));
        }
        const std::string ini = m_folder + "\\kiv.ini";
        gallerytest::WriteBytes(ini, "[Environment]\r\nLanguageSetting=" + language +
                                         "\r\n[Store]\r\nDirectory=" + m_folder + "\\lang\r\n");
        return ini;
    }

    // The whole tour; check sees each window while it is on the screen.
    void Tour(const std::string& ini, const std::function<void(const TourWindow&)>& check)
    {
        gallerytest::GalleryRun run(ini, m_folder + "\\handshake");
        ASSERT_TRUE(run.Started());
        std::vector<std::string> names;
        TourWindow window;
        while (run.Next(window))
        {
            names.push_back(window.name);
            check(window);
            run.GoOn();
        }
        EXPECT_EQ(0, run.WaitForExit());
        EXPECT_EQ(kTourWindows, names);
    }

    void ExpectTranslatedRun(const std::string& language);

    std::string m_folder;
};

// The main dialog with the pointer resting on a button: the tooltip of its "_TIPTEXT" record
// is on the screen, beside the pointer, with the record's second line.
void ExpectTooltip(const TourWindow& window)
{
    const TourPart* tip = nullptr;
    for (const TourPart& part : window.parts)
        if (part.name == "tooltip")
            tip = &part;
    ASSERT_NE(nullptr, tip) << "no tooltip shown";
    EXPECT_TRUE(::IsWindowVisible(tip->hWnd));
    EXPECT_EQ(L"Next picture", AnsweredText(tip->hWnd));
    RECT tipRect;
    RECT button;
    ::GetWindowRect(tip->hWnd, &tipRect);
    ::GetWindowRect(::GetDlgItem(window.parts[0].hWnd, IDC_NEXT), &button);
    POINT pointer = {(button.left + button.right) / 2, (button.top + button.bottom) / 2};
    EXPECT_LT(std::abs(tipRect.left - pointer.x), 64) << "the tooltip is beside the pointer";
    EXPECT_LT(std::abs(tipRect.top - pointer.y), 64) << "the tooltip is beside the pointer";
}

// The main dialog can be made taller: its size grip is drawn in the lower right corner and
// answers the hit test, and a taller dialog keeps its bottom row at the bottom edge.
void ExpectSizeGrip(HWND hDialog)
{
    RECT client;
    ::GetClientRect(hDialog, &client);
    const int cx = ::GetSystemMetrics(SM_CXHSCROLL), cy = ::GetSystemMetrics(SM_CYVSCROLL);
    POINT corner = {client.right - cx, client.bottom - cy};
    ::ClientToScreen(hDialog, &corner);
    kivtest::PixelProbe pixels = ScreenPixels(hDialog);
    RECT window;
    ::GetWindowRect(hDialog, &window);
    RECT square = {corner.x - window.left, corner.y - window.top, corner.x - window.left + cx,
                   corner.y - window.top + cy};
    RECT whole = {0, 0, pixels.Width(), pixels.Height()};
    EXPECT_LT(pixels.Count(kWhite, square), cx * cy / 2) << "the grip is drawn in the corner";
    EXPECT_GT(pixels.Count(kWhite, whole), pixels.Width() * pixels.Height() / 3) << "on the white dialog";
    auto hitTest = [&](int x, int y) {
        DWORD_PTR result = 0;
        ::SendMessageTimeoutW(hDialog, WM_NCHITTEST, 0, MAKELPARAM(x, y), SMTO_ABORTIFHUNG, 5000, &result);
        return (LRESULT)result;
    };
    EXPECT_EQ(HTBOTTOMRIGHT, hitTest(corner.x + cx / 2, corner.y + cy / 2));
    EXPECT_EQ(HTCLIENT, hitTest((window.left + window.right) / 2, (window.top + window.bottom) / 2));

    RECT close, list;
    ::GetWindowRect(::GetDlgItem(hDialog, IDCANCEL), &close);
    ::GetWindowRect(::GetDlgItem(hDialog, IDC_PICTURES), &list);
    const int width = window.right - window.left, height = window.bottom - window.top;
    ::SetWindowPos(hDialog, nullptr, 0, 0, width, height + 60, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    RECT taller, closeAfter, listAfter;
    ::GetWindowRect(hDialog, &taller);
    ::GetWindowRect(::GetDlgItem(hDialog, IDCANCEL), &closeAfter);
    ::GetWindowRect(::GetDlgItem(hDialog, IDC_PICTURES), &listAfter);
    EXPECT_EQ(height + 60, taller.bottom - taller.top);
    EXPECT_EQ(close.top + 60, closeAfter.top) << "the buttons follow the bottom edge";
    EXPECT_EQ(list.bottom + 60, listAfter.bottom) << "the list grows";
    // Back as it was, so that the placement the dialog keeps is the template's.
    ::SetWindowPos(hDialog, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void ExpectPalette(const TourWindow& window)
{
    if (window.name == "main-tooltip")
        ExpectTooltip(window);
    for (const TourPart& part : window.parts)
    {
        if (part.name != "dialog" && part.name != "page")
            continue;
        RECT client;
        ::GetClientRect(part.hWnd, &client);
        POINT corner = {3, 3};
        ::ClientToScreen(part.hWnd, &corner);
        HDC hScreen = ::GetDC(nullptr);
        EXPECT_EQ(kWhite, ::GetPixel(hScreen, corner.x, corner.y)) << window.name << ": the dialog is white";
        ::ReleaseDC(nullptr, hScreen);
    }
    if (window.name != "main" && window.name != "main-tooltip")
        return;
    HWND hDialog = window.parts[0].hWnd;
    for (int id = IDC_PREVIOUS; id <= IDC_ACTUAL_SIZE; ++id)
    {
        kivtest::PixelProbe button = ScreenPixels(::GetDlgItem(hDialog, id));
        // The button under the pointer shows its hover colour.
        const bool hovered = window.name == "main-tooltip" && id == IDC_NEXT;
        EXPECT_EQ(hovered ? kLightBlue : kSteelBlue, button.Pixel(4, button.Height() / 2)) << "colour button " << id;
    }
    HWND hList = ::GetDlgItem(hDialog, IDC_PICTURES);
    EXPECT_GE(ColourRuns(hList, 4, kLightBlue), 3) << "the list's rows alternate light blue";
    EXPECT_GE(ColourRuns(hList, 4, kWhite), 3) << "and white";
    HWND hUnitTabs = ::GetDlgItem(hDialog, IDC_COLOR_TABS);
    EXPECT_GT(CountColour(hUnitTabs, kSteelBlue), 100) << "the coloured tabs' selected tab";
    EXPECT_GT(CountColour(hUnitTabs, kPaleBlueGrey), 100) << "the coloured tabs' other tabs";
    HWND hPeriodTabs = ::GetDlgItem(hDialog, IDC_PERIOD_TABS);
    EXPECT_GT(CountColour(hPeriodTabs, kSteelBlue), 100) << "the wide-text tabs' selected tab";
    EXPECT_GT(CountColour(hPeriodTabs, kPaleBlueGrey), 100) << "the wide-text tabs' other tabs";
    if (window.name == "main")
        ExpectSizeGrip(hDialog);  // last: it resizes the dialog
}

// Every caption measured in the windows' font; each one that needs more room than its control
// has is reported.
void ExpectCaptionsFit(const TourWindow& window, const std::wstring& face,
                       const std::function<std::wstring(const ShownText&)>& textOf)
{
    HDC hScreen = ::GetDC(nullptr);
    const int dpi = ::GetDeviceCaps(hScreen, LOGPIXELSY);
    HFONT hFont = ::CreateFontW(-::MulDiv(8, dpi, 72), 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0,
                                0, 0, face.c_str());
    HGDIOBJ hOld = ::SelectObject(hScreen, hFont);
    for (const TourPart& part : window.parts)
    {
        for (const ShownText& shown : TextsOf(part))
        {
            if (shown.hWnd == part.hWnd || part.name == "message")
                continue;  // captions and the message box's text are laid out by the system
            const std::wstring text = WithoutMnemonics(textOf(shown));
            SIZE size = {};
            ::GetTextExtentPoint32W(hScreen, text.c_str(), (int)text.size(), &size);
            RECT rect;
            ::GetWindowRect(shown.hWnd, &rect);
            const int room = rect.right - rect.left - Margin(shown.hWnd, dpi);
            EXPECT_LE(size.cx, room) << window.name << ": the text of " << shown.section << "/" << shown.key
                                     << " is cut: it needs " << size.cx << " pixels and has " << room;
        }
    }
    ::SelectObject(hScreen, hOld);
    ::DeleteObject(hFont);
    ::ReleaseDC(nullptr, hScreen);
}

void GalleryTour::ExpectTranslatedRun(const std::string& language)
{
    const std::string ini = Settings(language);
    const std::string before = gallerytest::ReadBytes(LanguageFile(language));
    StoreFile store(LanguageFile(language));
    ASSERT_TRUE(store.Loaded()) << language;
    const std::wstring face = store.Translation("Gallery", "Font").value_or(L"MS Shell Dlg");
    std::set<std::string> kinds;
    Tour(ini, [&](const TourWindow& window) {
        for (const TourPart& part : window.parts)
            for (const ShownText& shown : TextsOf(part))
            {
                std::optional<std::wstring> translation = store.Translation(shown.section, shown.key);
                ASSERT_TRUE(translation.has_value())
                    << window.name << ": no translation of " << shown.section << "/" << shown.key;
                EXPECT_TRUE(*translation == shown.text ||
                            (ClassName(shown.hWnd) == L"Button" && AsAnsiText(*translation) == shown.text))
                    << window.name << ": " << shown.section << "/" << shown.key;
                if (shown.hWnd == part.hWnd)
                {
                    EXPECT_EQ(shown.text, AnsweredText(shown.hWnd))
                        << window.name << ": the caption bar shows the wide caption";
                }
            }
        for (const TourItem& item : window.items)
        {
            std::optional<std::wstring> translation = store.Translation(item.section, StoreKey(item));
            ASSERT_TRUE(translation.has_value()) << window.name << ": no translation of the " << item.kind << " item "
                                                 << item.section << "/" << item.key;
            EXPECT_TRUE(*translation == item.text)
                << window.name << ": the " << item.kind << " item " << item.section << "/" << item.key;
        }
        for (const TourItem& item : window.items)
            kinds.insert(item.kind);
        ExpectItemsFit(window);
        ExpectCaptionsFit(window, face, [&](const ShownText& shown) {
            return store.Translation(shown.section, shown.key).value_or(shown.text);
        });
        EXPECT_TRUE(window.cuts.empty()) << window.name << ": the gallery reports a text that does not fit";
        ExpectPalette(window);
    });
    EXPECT_EQ((std::set<std::string>{"combo", "header", "menu", "tab"}), kinds) << "every kind of item was seen";
    // Every text the gallery asked for is translated: the run adds nothing to the file.
    EXPECT_EQ(before, gallerytest::ReadBytes(LanguageFile(language)));
}

}  // namespace

TEST_F(GalleryTour, EnglishShowsEveryWindowInTheLibrarysPalette)
{
    Tour(Settings(""), [&](const TourWindow& window) {
        ExpectCaptionsFit(window, L"MS Shell Dlg", [](const ShownText& shown) { return shown.text; });
        ExpectItemsFit(window);
        ExpectPalette(window);
    });
}

TEST_F(GalleryTour, GermanTextsComeFromTheStoreAndFitTheirControls)
{
    ExpectTranslatedRun("de");
}

TEST_F(GalleryTour, GreekTextsComeFromTheStoreAndFitTheirControls)
{
    ExpectTranslatedRun("el");
}

TEST_F(GalleryTour, JapaneseTextsComeFromTheStoreAndFitTheirControls)
{
    ExpectTranslatedRun("ja");
}

TEST_F(GalleryTour, TranslationTooLongForItsControlIsReportedAsCutWithItsRectangle)
{
    const std::string ini = Settings("de");
    std::string file = gallerytest::ReadBytes(LanguageFile("de"));
    const std::string short_ = "msgid \"File:\"\nmsgstr \"Datei:\"";
    const size_t at = file.find(short_);
    ASSERT_NE(std::string::npos, at);
    file.replace(at, short_.size(), "msgid \"File:\"\nmsgstr \"Dateiname des gezeigten Bildes:\"");
    gallerytest::WriteBytes(LanguageFile("de"), file);
    std::vector<std::string> cut;
    Tour(ini, [&](const TourWindow& window) {
        for (const gallerytest::TourCut& c : window.cuts)
        {
            cut.push_back(window.name + " " + c.section + "/" + std::to_string(c.id));
            EXPECT_GT(c.needed, c.room);
            HWND hControl = ::GetDlgItem(window.parts[0].hWnd, c.id);
            RECT rect = {};
            ::GetWindowRect(hControl, &rect);
            EXPECT_TRUE(::EqualRect(&rect, &c.rect)) << "the control's rectangle on the screen";
        }
    });
    // The main dialog shows the label twice: alone, and with its tooltip.
    EXPECT_EQ((std::vector<std::string>{"main 200/" + std::to_string(IDC_FILE_LABEL),
                                        "main-tooltip 200/" + std::to_string(IDC_FILE_LABEL)}),
              cut);
}

TEST_F(GalleryTour, CaptureRunLeavesEveryTextItShowedInTheStoreUnderItsDialogAndControl)
{
    gallerytest::WriteBytes(LanguageFile("capture"), "msgid \"\"\nmsgstr \"\"\n"
                                                     "\"Content-Type: text/plain; charset=UTF-8\\n\"\n");
    std::vector<ShownText> shown;
    std::vector<TourItem> items;
    std::set<std::string> kinds;
    Tour(Settings("capture"), [&](const TourWindow& window) {
        for (const TourPart& part : window.parts)
            for (const ShownText& text : TextsOf(part))
                shown.push_back(text);
        for (const TourItem& item : window.items)
        {
            items.push_back(item);
            kinds.insert(item.kind);
        }
    });
    StoreFile store(LanguageFile("capture"));
    ASSERT_TRUE(store.Loaded());
    EXPECT_GE(shown.size(), 45u);
    for (const ShownText& text : shown)
    {
        const kiv::rules::PoEntry* entry = store.Find(text.section, text.key);
        ASSERT_NE(nullptr, entry) << text.section << "/" << text.key;
        EXPECT_EQ(text.text, Widen(entry->msgid)) << text.section << "/" << text.key;
    }
    // Combo box items, tabs, the list's columns and the menus: each under its section and key.
    EXPECT_EQ((std::set<std::string>{"combo", "header", "menu", "tab"}), kinds);
    for (const TourItem& item : items)
    {
        const kiv::rules::PoEntry* entry = store.Find(item.section, StoreKey(item));
        ASSERT_NE(nullptr, entry) << item.kind << " " << item.section << "/" << item.key;
        EXPECT_EQ(item.text, Widen(entry->msgid)) << item.kind << " " << item.section << "/" << item.key;
    }
    // The menu's commands, under the frame's section and their ids.
    HMENU hMenu = ::LoadMenuA(::LoadLibraryExA((gallerytest::WinePath(KIV_GALLERY_DIR) + "\\KivGallery.exe").c_str(),
                                               nullptr, LOAD_LIBRARY_AS_DATAFILE),
                              MAKEINTRESOURCEA(IDR_MAINFRAME));
    ASSERT_NE(nullptr, hMenu);
    for (int i = 0; i < ::GetMenuItemCount(hMenu); ++i)
    {
        HMENU hSub = ::GetSubMenu(hMenu, i);
        for (int j = 0; j < ::GetMenuItemCount(hSub); ++j)
        {
            const UINT id = ::GetMenuItemID(hSub, j);
            char text[128] = {};
            if (id == 0 || ::GetMenuStringA(hSub, (UINT)j, text, sizeof(text), MF_BYPOSITION) == 0)
                continue;
            const kiv::rules::PoEntry* entry = store.Find(std::to_string(IDR_MAINFRAME), std::to_string(id));
            ASSERT_NE(nullptr, entry) << "menu command " << id;
            EXPECT_EQ(text, std::string(entry->msgid)) << "menu command " << id;
        }
    }
}
