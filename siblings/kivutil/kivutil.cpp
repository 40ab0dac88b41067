// The setting reader of the product family.
#include "KivIni.h"

CString kivGetIniString(const char* section, const char* key, const char* defaultText)
{
    return KivReadIniString(section, key, defaultText);
}
