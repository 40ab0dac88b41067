// strFilename: a narrow string that knows the parts of a file name in the platform's form
// (drive "C:", directories ending in '\', name, extension after the last '.') and rebuilds
// it with one part replaced. Pure text: nothing touches the file system. Its members are
// declared in strFilenameClass.h.
#pragma once

#include "strString.h"

#define KIV_STR_CLASS strFilename
#define KIV_STR_BASE strString
#define KIV_STR_CHAR char
#include "strFilenameClass.h"
