// The key scheme of the translation cache: numeric keys and sections are their decimal
// text, so key 1005 of dialog 2001 is the key "1005" in the section "2001". Internal to the
// library.
#pragma once

#include <afx.h>

namespace kiv::localization {

inline CString KeyText(int number)
{
    CString text;
    text.Format("%d", number);
    return text;
}

// The section of message texts and string resources.
inline constexpr char kStringTableSection[] = "STRINGTABLE";

}  // namespace kiv::localization
