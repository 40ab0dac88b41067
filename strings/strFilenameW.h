// strFilenameW: the wide twin of strFilename, with unsigned short characters. Its members
// are declared in strFilenameClass.h.
#pragma once

#include "strStringW.h"

#define KIV_STR_CLASS strFilenameW
#define KIV_STR_BASE strStringW
#define KIV_STR_CHAR unsigned short
#include "strFilenameClass.h"
