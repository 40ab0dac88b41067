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
