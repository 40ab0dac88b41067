// strString: the library's narrow value string, a thin layer over CString with status
// results (0 means done), a sub-string that takes -1 as "to the end" and number-to-text
// conversions through the C runtime. Its members are declared in strStringClass.h.
#pragma once

#include <afxwin.h>

#define KIV_STR_CLASS strString
#define KIV_STR_BASE CString
#define KIV_STR_CHAR char
#include "strStringClass.h"
