#include "GalleryTour.h"

#include "MainFrame.h"
#include "TourItems.h"
#include <KivMFC.h>
#include "resource.h"

#include <commctrl.h>
#include <prsht.h>

#include <cstdio>

namespace {

enum class Opens
{
    Nothing,
    Menu,
    Command,
    NextPage
};
enum class Closes
{
    Nothing,
    Menu,
    Cancel,
    Sheet,
    MessageBox
};

struct TourStep
{
    const char* name;
    Opens opens;
    UINT command;
    Closes closes;
    const char* section;  // the texts' section of the window (or its page)
    int pointAt = 0;      // a control the pointer rests on until its tooltip shows
};

// The order of the windows, and how each is opened and closed.
const TourStep kSteps[] = {
    {"frame", Opens::Nothing, 0, Closes::Nothing, "128"},
    {"menu", Opens::Menu, 1, Closes::Menu, "128"},
    {"main", Opens::Command, ID_VIEW_MAIN, Closes::Cancel, "200"},
    {"main-tooltip", Opens::Command, ID_VIEW_MAIN, Closes::Cancel, "200", IDC_NEXT},
    {"settings-display", Opens::Command, ID_VIEW_SETTINGS, Closes::Nothing, "300"},
    {"settings-files", Opens::NextPage, 1, Closes::Sheet, "310"},
    {"details", Opens::Command, ID_VIEW_DETAILS, Closes::Cancel, "400"},
    {"message", Opens::Command, ID_VIEW_MESSAGE, Closes::MessageBox, "STRINGTABLE"},
};
constexpr size_t kStepCount = sizeof(kSteps) / sizeof(kSteps[0]);

// Ticks a window is given to paint itself after it appears, and to appear at all.
constexpr int kSettleTicks = 5;
constexpr int kAppearTicks = 150;

bool HasClass(HWND hWnd, const char* name)
{
    char className[32] = {};
    ::GetClassNameA(hWnd, className, sizeof(className));
    return lstrcmpiA(className, name) == 0;
}

struct Search
{
    const char* className;
    HWND found;
};

// The first visible top-level window of the class, in z-order: the one on top.
BOOL CALLBACK FindTopWindow(HWND hWnd, LPARAM lParam)
{
    auto* search = (Search*)lParam;
    if (!::IsWindowVisible(hWnd) || !HasClass(hWnd, search->className))
        return TRUE;
    search->found = hWnd;
    return FALSE;
}

HWND TopWindowOfClass(const char* className)
{
    Search search{className, nullptr};
    ::EnumThreadWindows(::GetCurrentThreadId(), &FindTopWindow, (LPARAM)&search);
    return search.found;
}

// The text a control shows: its translation in translation mode (a wide-text button keeps its
// narrow caption as window text), otherwise its window text.
CStringW ShownText(HWND hControl, const CString& section)
{
    wchar_t text[512] = {};
    ::GetWindowTextW(hControl, text, 512);
    char narrow[512] = {};
    ::GetWindowTextA(hControl, narrow, sizeof(narrow));
    LocalizationManager* manager = LocalizationManager::Get();
    if (narrow[0] == '\0' || !manager->IsTranslationMode())
        return text;
    CString key;
    key.Format("%d", ::GetDlgCtrlID(hControl));
    return manager->GetWideTranslation(narrow, key, section);
}

// Pixels of a control's width that its text cannot use: a check box's or radio button's box, a
// push button's edges, a group box's corners.
int TextMargin(HWND hControl, int dpi)
{
    char className[32] = {};
    ::GetClassNameA(hControl, className, sizeof(className));
    if (lstrcmpiA(className, "Button") != 0)
        return 0;
    const LONG type = ::GetWindowLongA(hControl, GWL_STYLE) & 0x0F;
    const int pixels = type == BS_GROUPBOX ? 16 : (type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON) ? 8 : 18;
    return ::MulDiv(pixels, dpi, 96);
}

// The pointer rests off every window, so that no button shows its hover colour.
void PointerAway()
{
    ::SetCursorPos(::GetSystemMetrics(SM_CXSCREEN) - 1, ::GetSystemMetrics(SM_CYSCREEN) - 1);
}

}  // namespace

CGalleryTour::CGalleryTour(CMainFrame* pFrame, const CString& folder) : m_pFrame(pFrame), m_folder(folder)
{
    PointerAway();
    ::DeleteFileA(FilePath("go"));
    ::DeleteFileA(FilePath("window.txt"));
}

CString CGalleryTour::FilePath(LPCSTR lpszName) const
{
    return m_folder + "\\" + lpszName;
}

void CGalleryTour::Tick()
{
    switch (m_phase)
    {
    case Phase::Open:
        OpenStep();
        m_phase = Phase::Settle;
        m_nTicks = 0;
        m_nWaited = 0;
        break;
    case Phase::Settle:
        if (!StepWindowReady() && ++m_nWaited < kAppearTicks)
            break;
        if (++m_nTicks >= kSettleTicks)
        {
            WriteHandshake();
            m_phase = Phase::Wait;
        }
        break;
    case Phase::Wait:
        if (::GetFileAttributesA(FilePath("go")) == INVALID_FILE_ATTRIBUTES)
            break;
        ::DeleteFileA(FilePath("go"));
        CloseStep();
        m_phase = ++m_nStep < kStepCount ? Phase::Open : Phase::Done;
        if (m_phase == Phase::Done)
            m_pFrame->PostMessage(WM_CLOSE);
        break;
    case Phase::Done:
        break;
    }
}

// Opening never waits here: modal windows run from posted messages, with the timer going on.
void CGalleryTour::OpenStep()
{
    const TourStep& step = kSteps[m_nStep];
    if (step.opens == Opens::Menu)
        m_pFrame->PostMessage(WM_GALLERY_OPEN_MENU, step.command);
    else if (step.opens == Opens::Command)
        m_pFrame->PostMessage(WM_COMMAND, step.command);
    else if (step.opens == Opens::NextPage)
        ::PostMessageA(TopDialog(), PSM_SETCURSEL, step.command, 0);
}

BOOL CGalleryTour::StepWindowReady()
{
    const TourStep& step = kSteps[m_nStep];
    if (step.opens == Opens::Menu)
        return TopWindowOfClass("#32768") != nullptr;
    if (step.opens != Opens::Command)
        return TRUE;
    HWND hDialog = TopDialog();
    if (hDialog == nullptr || step.pointAt == 0)
        return hDialog != nullptr;
    // The pointer moves once, as a person's would, and the dialog's tooltip does the rest.
    HWND hControl = ::GetDlgItem(hDialog, step.pointAt);
    if (!m_bPointed && hControl != nullptr)
    {
        CRect control;
        ::GetWindowRect(hControl, &control);
        ::SetCursorPos(control.CenterPoint().x, control.CenterPoint().y);
        m_bPointed = TRUE;
    }
    return TopWindowOfClass(TOOLTIPS_CLASSA) != nullptr;
}

void CGalleryTour::CloseStep()
{
    HWND hDialog = TopDialog();
    if (m_bPointed)
    {
        PointerAway();
        m_bPointed = FALSE;
    }
    switch (kSteps[m_nStep].closes)
    {
    case Closes::Menu:
        ::EndMenu();
        break;
    case Closes::Cancel:
        ::PostMessageA(hDialog, WM_COMMAND, IDCANCEL, 0);
        break;
    case Closes::Sheet:
        ::PostMessageA(hDialog, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
        break;
    case Closes::MessageBox:
        ::PostMessageA(hDialog, WM_COMMAND, IDOK, 0);
        break;
    case Closes::Nothing:
        break;
    }
}

HWND CGalleryTour::TopDialog() const
{
    return TopWindowOfClass("#32770");
}

CRect CGalleryTour::StepRect() const
{
    CRect rect;
    const TourStep& step = kSteps[m_nStep];
    if (step.opens == Opens::Nothing || step.opens == Opens::Menu)
    {
        m_pFrame->GetWindowRect(&rect);
        CRect menu;
        if (HWND hMenu = TopWindowOfClass("#32768"); hMenu != nullptr && ::GetWindowRect(hMenu, &menu))
            rect.UnionRect(&rect, &menu);
        return rect;
    }
    ::GetWindowRect(TopDialog(), &rect);
    CRect tip;
    if (HWND hTip = TopWindowOfClass(TOOLTIPS_CLASSA);
        step.pointAt != 0 && hTip != nullptr && ::GetWindowRect(hTip, &tip))
        rect.UnionRect(&rect, &tip);
    return rect;
}

std::vector<CGalleryTour::Part> CGalleryTour::StepParts() const
{
    const TourStep& step = kSteps[m_nStep];
    std::vector<Part> parts;
    if (step.opens == Opens::Nothing || step.opens == Opens::Menu)
    {
        parts.push_back({"frame", m_pFrame->m_hWnd, step.section});
        if (step.opens == Opens::Nothing)
            parts.push_back({"bar", m_pFrame->Bar().m_hWnd, "150"});
        return parts;
    }
    HWND hDialog = TopDialog();
    if (step.closes == Closes::MessageBox)
    {
        parts.push_back({"message", hDialog, step.section});
        return parts;
    }
    HWND hPage = (HWND)::SendMessageA(hDialog, PSM_GETCURRENTPAGEHWND, 0, 0);
    if (hPage != nullptr)
    {
        parts.push_back({"sheet", hDialog, "SettingsSheet"});
        parts.push_back({"page", hPage, step.section});
        return parts;
    }
    parts.push_back({"dialog", hDialog, step.section});
    if (HWND hTip = TopWindowOfClass(TOOLTIPS_CLASSA); step.pointAt != 0 && hTip != nullptr)
        parts.push_back({"tooltip", hTip, step.section});
    return parts;
}

// The static texts and buttons of a part whose text is wider, in the control's own font, than
// the room the control gives it: "cut <id> <section> <left> <top> <width> <height> <needed>
// <room>", the rectangle on the screen.
CString CGalleryTour::CutLines(const Part& part) const
{
    CString lines;
    HDC hScreen = ::GetDC(nullptr);
    const int dpi = ::GetDeviceCaps(hScreen, LOGPIXELSX);
    ::ReleaseDC(nullptr, hScreen);
    for (HWND h = ::GetWindow(part.hWnd, GW_CHILD); h != nullptr; h = ::GetWindow(h, GW_HWNDNEXT))
    {
        char className[32] = {};
        ::GetClassNameA(h, className, sizeof(className));
        const int id = ::GetDlgCtrlID(h);
        if ((lstrcmpiA(className, "Static") != 0 && lstrcmpiA(className, "Button") != 0) || !::IsWindowVisible(h) ||
            id <= 0 || id >= IDC_VALUE_FIRST)
            continue;
        TourItem control;
        control.id = id;
        control.section = part.section;
        control.text = ShownText(h, part.section);
        ::GetWindowRect(h, &control.rect);
        control.needed = TextWidth(h, control.text);
        control.room = control.rect.Width() - TextMargin(h, dpi);
        if (!control.text.IsEmpty())
            lines += ItemCutLine(control);
    }
    return lines;
}

// Written whole, then renamed, so that the other side never reads half a file.
void CGalleryTour::WriteHandshake()
{
    const CRect rect = StepRect();
    CString text;
    text.Format("%s %d %d %d %d\n", kSteps[m_nStep].name, rect.left, rect.top, rect.Width(), rect.Height());
    for (const Part& part : StepParts())
    {
        CString line;
        line.Format("%s %llu %s\n", (LPCSTR)part.name, (unsigned long long)(UINT_PTR)part.hWnd, (LPCSTR)part.section);
        text += line;
    }
    for (const Part& part : StepParts())
    {
        if (part.name == "dialog" || part.name == "page" || part.name == "bar")
        {
            text += CutLines(part);
            for (const TourItem& item : ControlItems(part.hWnd, part.section))
                text += ItemLine(item) + ItemCutLine(item);
        }
        if (part.name == "frame")
            for (const TourItem& item : MenuItems(part.hWnd, part.section))
                text += ItemLine(item);
    }
    const CString temporary = FilePath("window.tmp");
    if (FILE* file = std::fopen(temporary, "wb"))
    {
        std::fwrite(text.GetString(), 1, (size_t)text.GetLength(), file);
        std::fclose(file);
        ::MoveFileExA(temporary, FilePath("window.txt"), MOVEFILE_REPLACE_EXISTING);
    }
}
