// The gallery's application object: loads the translations, shows the frame, and hands new
// texts to the store at exit. Switches: "/tour FOLDER" shows every window in turn (see
// CGalleryTour); "/open NAME" opens one window at start (main, settings, details, message).
#pragma once

#include <KivMFC.h>

class CGalleryApp : public CWinApp
{
public:
    CGalleryApp();

    // Overridables
    BOOL InitInstance() override;
    int ExitInstance() override;

private:
    // The word after the switch ("/tour FOLDER"; quotes allowed), or empty without the switch.
    CString SwitchValue(LPCSTR lpszSwitch) const;

    ULONG_PTR m_gdiplusToken = 0;
};
