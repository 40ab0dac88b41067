// The application object of the hello host: loads the translations, shows the dialog, and
// hands new texts to the store at exit.
#pragma once

#include <KivMFC.h>

class CHelloApp : public CWinApp
{
public:
    CHelloApp();

    // Overridables
    BOOL InitInstance() override;
    int ExitInstance() override;

private:
    // TRUE when the command line holds the switch, for example "/message".
    BOOL HasSwitch(LPCSTR lpszSwitch) const;

    ULONG_PTR m_gdiplusToken = 0;
};
