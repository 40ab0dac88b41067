// The settings file of the product family: the file named by the environment variable
// KIV_INI, or kiv.ini beside the host's executable.
#pragma once

#include <afx.h>

CString KivIniPath();
// The value of key in section, or defaultText when the file, section or key is missing.
CString KivReadIniString(const char* section, const char* key, const char* defaultText);
