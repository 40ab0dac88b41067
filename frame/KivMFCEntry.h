// Entry of the library: registration with the runtime's module state.
#pragma once

#include <afxwin.h>

// Adds one more CDynLinkLibrary for this library to the current module state, so a host
// that keeps its own module state can search this library's resources and classes.
extern "C" AFX_EXT_API void InitKivMFCDLL();

// The library's extension-module record.
AFX_EXT_DATA extern AFX_EXTENSION_MODULE KivMFC64DLL;
