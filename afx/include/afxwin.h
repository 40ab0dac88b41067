// Windows part of the runtime: module state, libraries, resources, value types, command
// targets, windows, drawing, dialogs, controls, applications and frames.
#pragma once

#include "afx.h"
#include "afxcoll.h"
#include "afxtypes_.h"
#include "afxstat_.h"
#include "afxdll_.h"
#include "afxres.h"

AFX_API CWinApp* AFXAPI AfxGetApp();
AFX_API LPCSTR AFXAPI AfxGetAppName();
AFX_API HINSTANCE AFXAPI AfxGetInstanceHandle();
AFX_API HINSTANCE AFXAPI AfxGetResourceHandle();
AFX_API void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource);
// The first module of the chain (application, then each library) holding the resource.
AFX_API HINSTANCE AFXAPI AfxFindResourceHandle(LPCSTR lpszName, LPCSTR lpszType);
// Initialises the module state for the application module hInstance, as a GUI or a
// console host does before it uses the runtime.
AFX_API BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPSTR lpCmdLine, int nCmdShow);

#include "afxgdi_.h"
#include "afxwnd_.h"
#include "afxdlg_.h"
#include "afxframe_.h"
