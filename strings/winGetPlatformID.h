// winGetPlatformID: the operating system's platform identifier as its version record
// reports it (VER_PLATFORM_WIN32_NT, 2, on every current system).
#pragma once

#include <afxwin.h>

// 0 and the identifier in *platformId, or GetLastError() with *platformId untouched.
extern "C" AFX_EXT_API unsigned int winGetPlatformID(unsigned int* platformId);
