#include "strFilename.h"

#define KIV_STR_CLASS strFilename
#define KIV_STR_BASE strString
#define KIV_STR_CHAR char
#include "strFilenameImpl.h"
