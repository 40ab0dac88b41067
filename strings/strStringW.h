// strStringW: the wide (UTF-16) twin of strString over CStringW. Its characters are
// unsigned short in the library's interface; CStringW holds them as wchar_t. Its members
// are declared in strStringClass.h.
#pragma once

#include <afxwin.h>

#define KIV_STR_CLASS strStringW
#define KIV_STR_BASE CStringW
#define KIV_STR_CHAR unsigned short
#include "strStringClass.h"
