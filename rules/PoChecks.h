// The checks msgfmt -c makes of a translation that the store itself need not make to read a
// file: C format directives against the text's, and the plural forms of the header. The
// kivstore command runs them so a translator hears of a problem before msgfmt refuses the file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kiv::rules {

// One argument a C format string takes: its number (from 1) and the type a directive gives it.
struct FormatArgument
{
    unsigned number = 0;
    std::string type;  // "int", "unsigned int", "long int", "double", "char*", "wchar_t*", ...
    bool operator==(const FormatArgument&) const = default;
};

// The arguments of a printf format string, by number; false (and why) when a directive is not
// one printf knows, when numbered and unnumbered directives are mixed, or when one argument is
// given two types.
bool ParseCFormat(std::string_view text, std::vector<FormatArgument>& arguments, std::string* problem = nullptr);

// Empty when a translation takes the arguments its source takes, otherwise msgfmt's reason.
// With mayOmit, the translation may leave out arguments (a plural form that stands for one
// number only need not print it).
std::string CompareCFormat(std::string_view source, std::string_view translation, bool mayOmit = false);

// The "Plural-Forms" field of a header: nplurals and the expression that picks a form for n.
struct PluralForms
{
    unsigned long count = 0;
    std::string expression;
};

// Reads the field of a header's text; false (and why) when either part is missing or invalid.
bool ParsePluralForms(std::string_view header, PluralForms& forms, std::string& problem);
// The form the expression picks for n; false for an expression that is not one (C syntax over
// n and numbers: ?:, ||, &&, == !=, < > <= >=, + -, * / %, !, parentheses) or that divides by 0.
bool EvaluatePlural(std::string_view expression, unsigned long n, long long& form);
// What msgfmt says of an expression over n = 0 to 1000 against nplurals, empty when fine:
// negative values, values of nplurals or more, division by zero.
std::string CheckPluralRange(const PluralForms& forms);
// For each form, whether it stands for one number only (of n = 0 to 1000): such a form may
// leave out the number's directive, as "one file" does.
std::vector<bool> FormsOfOneNumber(const PluralForms& forms);

}  // namespace kiv::rules
