#include "strString.h"

#define KIV_STR_CLASS strString
#define KIV_STR_BASE CString
#define KIV_STR_CHAR char
#include "strStringImpl.h"

strString::strString(unsigned int nID) : CString("")
{
    LoadString(nID);
}
