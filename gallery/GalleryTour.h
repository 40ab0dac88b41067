// The tour: every window of the gallery opened in turn, each held on the screen until the
// program taking screenshots has its picture. The handshake is two files in a folder: the
// gallery writes "window.txt" (the window's name and screen rectangle on the first line, then
// one line per part: name, window handle, section of its texts; then one "cut" line per control
// whose text does not fit it), and waits until a file "go" appears, which it removes before it
// goes on.
#pragma once

#include <afxwin.h>

#include <vector>

class CMainFrame;

class CGalleryTour
{
public:
    CGalleryTour(CMainFrame* pFrame, const CString& folder);

    // Operations
    // Called every tick of the frame's timer, also while a window of the tour is modal.
    void Tick();

private:
    enum class Phase
    {
        Open,
        Settle,
        Wait,
        Done
    };
    struct Part
    {
        CString name;
        HWND hWnd;
        CString section;
    };

    void OpenStep();
    BOOL StepWindowReady();
    void WriteHandshake();
    void CloseStep();
    HWND TopDialog() const;
    CRect StepRect() const;
    std::vector<Part> StepParts() const;
    CString CutLines(const Part& part) const;
    CString FilePath(LPCSTR lpszName) const;

    CMainFrame* m_pFrame;
    CString m_folder;
    size_t m_nStep = 0;
    Phase m_phase = Phase::Open;
    int m_nTicks = 0;   // since the window appeared
    int m_nWaited = 0;  // since it was asked to open
    BOOL m_bPointed = FALSE;
};
