// Resource identifiers shared by the runtime and its hosts; usable from resource scripts.
#pragma once

#ifndef RC_INVOKED
#include <windows.h>
#endif
#include <winresrc.h>

#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif

#define AFX_IDS_APP_TITLE 0xE000
#define AFX_IDS_IDLEMESSAGE 0xE001

#define ID_APP_ABOUT 0xE140
#define ID_APP_EXIT 0xE141

#define ID_WIZBACK 0x3023
#define ID_WIZNEXT 0x3024
#define ID_WIZFINISH 0x3025
#define ID_APPLY_NOW 0x3021
