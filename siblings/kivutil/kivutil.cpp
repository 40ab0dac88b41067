// The setting reader of the product family.
#include "KivIni.h"
#include "KivSiblings.h"

#include <type_traits>

CString kivGetIniString(const char* section, const char* key, const char* defaultText)
{
    return KivReadIniString(section, key, defaultText);
}

static_assert(std::is_same_v<decltype(&kivGetIniString), kiv::siblings::IniReaderFn>,
              "the reader has the type its callers request");
