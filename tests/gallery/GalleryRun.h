// One run of KivGallery.exe on its tour, with the test as the other side of the handshake:
// the gallery announces each window in window.txt and waits for the file "go".
#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

namespace gallerytest {

// A part of a window with texts of its own section: the window itself, a page, the bar.
struct TourPart
{
    std::string name;  // frame, bar, dialog, sheet, page, message
    HWND hWnd = nullptr;
    std::string section;
};

// A control whose text the gallery found wider than the room its control gives it.
struct TourCut
{
    int id = 0;
    std::string section;
    RECT rect = {};  // on the screen
    int needed = 0, room = 0;
};

// A text of a window that is not a window's own: a combo box item, a tab, a column of a list's
// header, a menu item (whose key "bar.<n>" stands for the sub-menu at that place of the bar).
struct TourItem
{
    std::string kind;  // combo, tab, header, menu
    int id = 0;
    std::string section;
    std::string key;
    RECT rect = {};            // on the screen
    int needed = 0, room = 0;  // room 0: the control sizes the item to its text
    std::wstring text;
};

struct TourWindow
{
    std::string name;  // frame, menu, main, main-tooltip, settings-display, settings-files, details, message
    RECT rect = {};
    std::vector<TourPart> parts;
    std::vector<TourCut> cuts;
    std::vector<TourItem> items;
};

// A folder of the build, as Wine programs see it (the Unix root is drive Z:).
std::string WinePath(const char* unixPath);
std::string ReadBytes(const std::string& path);
void WriteBytes(const std::string& path, const std::string& bytes);

class GalleryRun
{
public:
    // Starts the gallery's tour with the settings file ini (KIV_INI); handshake files go to
    // the folder.
    GalleryRun(const std::string& ini, const std::string& folder);
    ~GalleryRun();
    GalleryRun(const GalleryRun&) = delete;
    GalleryRun& operator=(const GalleryRun&) = delete;

    bool Started() const { return m_bStarted; }
    // The next window of the tour, once it is on the screen; false when the tour has ended or
    // nothing came in time.
    bool Next(TourWindow& window);
    // Lets the gallery close the window and go on.
    void GoOn();
    // The exit code, or -1 when the gallery does not end in time.
    long WaitForExit();

private:
    std::string m_folder;
    PROCESS_INFORMATION m_process = {};
    bool m_bStarted = false;
};

}  // namespace gallerytest
