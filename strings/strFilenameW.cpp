#include "strFilenameW.h"

#define KIV_STR_CLASS strFilenameW
#define KIV_STR_BASE strStringW
#define KIV_STR_CHAR unsigned short
#include "strFilenameImpl.h"
