// The kivstore command over a store folder of PO files, one per language: what translators
// still have to do, merging texts captured in a run, a pseudo-locale for spotting untranslated
// and cut texts, and the checks to run before a file goes back into the store. Portable: the
// same code builds for Linux and Windows.
#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace kiv::tools {

// Runs one command line (without the program name); answers the exit code: 0 done, 1 the
// check found problems or the command failed, 2 a usage error.
int RunStoreTool(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

// The pseudo-locale form of a text: accented letters, about 35 % longer, in brackets; format
// specifiers, hot-key ampersands and line feeds stay as they are.
std::string PseudoText(std::string_view text);
// The printf format specifiers of a text, in order ("%d", "%s", "%5.2f"); "%%" is none.
std::vector<std::string> FormatSpecifiers(std::string_view text);
// Length of UTF-8 text in UTF-16 units.
std::size_t Utf16Length(std::string_view utf8);

}  // namespace kiv::tools
