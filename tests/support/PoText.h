// PO texts for tests of the language-string store: a German header and entries as the store
// writes them.
#pragma once

#include <string>

namespace kiv_tests {

inline const char kPoHeader[] = "msgid \"\"\n"
                                "msgstr \"\"\n"
                                "\"Project-Id-Version: KivGallery 1.0\\n\"\n"
                                "\"PO-Revision-Date: 2024-05-01 10:00+0200\\n\"\n"
                                "\"Last-Translator: Anna Berg <anna@example.com>\\n\"\n"
                                "\"Language-Team: German\\n\"\n"
                                "\"Language: de\\n\"\n"
                                "\"MIME-Version: 1.0\\n\"\n"
                                "\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
                                "\"Content-Transfer-Encoding: 8bit\\n\"\n"
                                "\"X-Language-Names: German, Deutsch\\n\"\n";

// An entry with the blank line before it; texts in PO syntax.
inline std::string PoEntry(const std::string& section, const std::string& key, const std::string& msgid,
                           const std::string& msgstr)
{
    return "\nmsgctxt \"" + section + "\\n" + key + "\"\nmsgid \"" + msgid + "\"\nmsgstr \"" + msgstr + "\"\n";
}

}  // namespace kiv_tests
