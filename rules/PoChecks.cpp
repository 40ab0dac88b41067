#include "PoChecks.h"

#include "PoCatalog.h"

#include <algorithm>
#include <map>

namespace kiv::rules {

namespace {

bool IsDigit(char c) noexcept
{
    return c >= '0' && c <= '9';
}

// Digits at text[at], as a number (capped: nobody numbers that many arguments); at moves past them.
unsigned ReadNumber(std::string_view text, std::size_t& at)
{
    unsigned value = 0;
    while (at < text.size() && IsDigit(text[at]))
        value = std::min(value * 10 + unsigned(text[at++] - '0'), 100000u);
    return value;
}

// "N$" at text[at]: the argument number, or 0 when there is none (at stays).
unsigned ReadArgumentNumber(std::string_view text, std::size_t at, std::size_t& end)
{
    std::size_t i = at;
    unsigned number = ReadNumber(text, i);
    if (i > at && i < text.size() && text[i] == '$' && number > 0)
    {
        end = i + 1;
        return number;
    }
    end = at;
    return 0;
}

std::string SizePrefix(std::string_view text, std::size_t& at)
{
    static const std::pair<std::string_view, std::string_view> sizes[] = {
        {"hh", "char"},     {"h", "short"},       {"ll", "long long"}, {"l", "long"},
        {"q", "long long"}, {"L", "L"},           {"j", "intmax_t"},   {"z", "size_t"},
        {"t", "ptrdiff_t"}, {"I64", "long long"}, {"I32", ""},         {"I", "size_t"}};
    for (const auto& [prefix, size] : sizes)
        if (text.substr(at, prefix.size()) == prefix)
        {
            at += prefix.size();
            return std::string(size);
        }
    return std::string();
}

// The type of a conversion with its size, empty for a conversion printf does not know.
std::string ConversionType(const std::string& size, char conversion)
{
    std::string wide = size == "long" ? "w" : "";
    switch (conversion)
    {
    case 'd':
    case 'i':
        return size.empty() ? "int" : size + " int";
    case 'o':
    case 'u':
    case 'x':
    case 'X':
        return "unsigned " + (size.empty() ? std::string("int") : size + " int");
    case 'e':
    case 'E':
    case 'f':
    case 'F':
    case 'g':
    case 'G':
    case 'a':
    case 'A':
        return size == "L" ? "long double" : "double";  // %lf is a double too
    case 'c':
        return wide.empty() ? "char" : "wint_t";
    case 'C':
        return "wint_t";
    case 's':
        return wide.empty() ? "char*" : "wchar_t*";
    case 'S':
        return "wchar_t*";
    case 'p':
        return "void*";
    case 'n':
        return (size.empty() ? std::string("int") : size + " int") + "*";
    default:
        return std::string();
    }
}

class FormatReader
{
public:
    explicit FormatReader(std::string_view text) : m_text(text) {}
    bool Read(std::string* problem);
    std::map<unsigned, std::string> arguments;

private:
    bool Directive(std::size_t& at);
    bool Star(std::size_t& at);
    bool Take(unsigned number, const std::string& type);
    bool Numbered(bool numbered);
    bool Fail(std::string why)
    {
        m_problem = std::move(why);
        return false;
    }

    std::string_view m_text;
    std::string m_problem;
    unsigned m_next = 0;  // the last unnumbered argument
    int m_numbered = -1;  // unknown, 0 or 1
};

bool FormatReader::Read(std::string* problem)
{
    for (std::size_t at = 0; at < m_text.size(); ++at)
    {
        if (m_text[at] != '%')
            continue;
        if (at + 1 < m_text.size() && m_text[at + 1] == '%')
        {
            ++at;
            continue;
        }
        if (!Directive(at))
        {
            if (problem)
                *problem = m_problem;
            return false;
        }
    }
    return true;
}

bool FormatReader::Numbered(bool numbered)
{
    if (m_numbered == -1)
        m_numbered = numbered ? 1 : 0;
    return m_numbered == (numbered ? 1 : 0) || Fail("numbered and unnumbered directives are mixed");
}

bool FormatReader::Take(unsigned number, const std::string& type)
{
    auto [it, added] = arguments.emplace(number, type);
    return added || it->second == type ||
           Fail("argument " + std::to_string(number) + " is given two types, " + it->second + " and " + type);
}

// A width or precision given by an argument: "*" or "*N$".
bool FormatReader::Star(std::size_t& at)
{
    ++at;
    std::size_t end = at;
    unsigned number = ReadArgumentNumber(m_text, at, end);
    if (!Numbered(number != 0))
        return false;
    at = end;
    return Take(number != 0 ? number : ++m_next, "int");
}

// The directive at m_text[at] == '%'; at ends on its conversion character.
bool FormatReader::Directive(std::size_t& at)
{
    std::size_t i = at + 1;
    unsigned number = ReadArgumentNumber(m_text, i, i);
    while (i < m_text.size() && std::string_view("-+ #0'").find(m_text[i]) != std::string_view::npos)
        ++i;
    if (i < m_text.size() && m_text[i] == '*' && !Star(i))
        return false;
    ReadNumber(m_text, i);
    if (i < m_text.size() && m_text[i] == '.')
    {
        ++i;
        if (i < m_text.size() && m_text[i] == '*' && !Star(i))
            return false;
        ReadNumber(m_text, i);
    }
    std::string size = SizePrefix(m_text, i);
    if (i >= m_text.size())
        return Fail("a directive is not finished at the end of the text");
    std::string type = ConversionType(size, m_text[i]);
    if (type.empty())
        return Fail("'%" + std::string(m_text.substr(at + 1, i - at)) + "' is not a directive printf knows");
    if (!Numbered(number != 0))
        return false;
    at = i;
    return Take(number != 0 ? number : ++m_next, type);
}

// Recursive descent over a plural expression, evaluated as it is read, in unsigned arithmetic
// as gettext evaluates it. Inactive branches of ?: are read but neither divide nor fail.
class PluralReader
{
public:
    PluralReader(std::string_view text, unsigned long long n) : m_text(text), m_n(n) {}
    // Without evaluate, only whether the text is an expression (nothing divides).
    bool Read(long long& value, bool evaluate = true)
    {
        unsigned long long result = 0;
        if (!Conditional(evaluate, result))
            return false;
        Skip();
        value = static_cast<long long>(result);
        return m_at == m_text.size();
    }

private:
    using Value = unsigned long long;
    void Skip()
    {
        while (m_at < m_text.size() && (m_text[m_at] == ' ' || m_text[m_at] == '\t' || m_text[m_at] == '\n'))
            ++m_at;
    }
    bool Accept(std::string_view token)
    {
        Skip();
        if (m_text.substr(m_at, token.size()) != token)
            return false;
        // "<" is not the start of "<=", nor "=" of "=="; "!" is not the start of "!=".
        if (token.size() == 1 && m_at + 1 < m_text.size() && m_text[m_at + 1] == '=' &&
            std::string_view("<>!").find(token[0]) != std::string_view::npos)
            return false;
        m_at += token.size();
        return true;
    }
    struct Operator
    {
        int level;
        char code;
        int length;
    };
    static constexpr int kLevels = 6;
    Operator PeekOperator();
    static Value Apply(char code, Value l, Value r);
    bool Conditional(bool active, Value& value);
    bool Binary(int level, bool active, Value& value);
    bool Unary(bool active, Value& value);

    std::string_view m_text;
    Value m_n;
    std::size_t m_at = 0;
    int m_depth = 0;
};

bool PluralReader::Conditional(bool active, Value& value)
{
    if (++m_depth > 200)
        return false;  // deeper than any real expression: refused rather than overflowing the stack
    bool ok = Binary(0, active, value);
    if (ok && Accept("?"))
    {
        Value yes = 0, no = 0;
        ok = Conditional(active && value != 0, yes) && Accept(":") && Conditional(active && value == 0, no);
        value = value != 0 ? yes : no;
    }
    --m_depth;
    return ok;
}

// The binary operator at the reading position: its level from the loosest (||, &&, == !=,
// < > <= >=, + -, * / %), a code, and its length; level -1 when there is none.
PluralReader::Operator PluralReader::PeekOperator()
{
    Skip();
    const char c = m_at < m_text.size() ? m_text[m_at] : '\0';
    const char d = m_at + 1 < m_text.size() ? m_text[m_at + 1] : '\0';
    if ((c == '|' || c == '&') && d == c)
        return {c == '|' ? 0 : 1, c, 2};
    if ((c == '=' || c == '!') && d == '=')
        return {2, c, 2};
    if ((c == '<' || c == '>') && d == '=')
        return {3, c == '<' ? 'l' : 'g', 2};
    if (c == '<' || c == '>')
        return {3, c, 1};
    if (c == '+' || c == '-')
        return {4, c, 1};
    if (c == '*' || c == '/' || c == '%')
        return {5, c, 1};
    return {-1, '\0', 0};
}

bool PluralReader::Binary(int level, bool active, Value& value)
{
    if (level == kLevels)
        return Unary(active, value);
    if (!Binary(level + 1, active, value))
        return false;
    for (Operator op = PeekOperator(); op.level == level; op = PeekOperator())
    {
        m_at += op.length;
        bool rightActive = active && !(op.code == '|' && value != 0) && !(op.code == '&' && value == 0);
        Value right = 0;
        if (!Binary(level + 1, rightActive, right))
            return false;
        if ((op.code == '/' || op.code == '%') && right == 0)
        {
            if (rightActive)
                return false;
            right = 1;
        }
        value = Apply(op.code, value, right);
    }
    return true;
}

PluralReader::Value PluralReader::Apply(char code, Value l, Value r)
{
    switch (code)
    {
    case '|':
        return l || r;
    case '&':
        return l && r;
    case '=':
        return l == r;
    case '!':
        return l != r;
    case 'l':
        return l <= r;
    case 'g':
        return l >= r;
    case '<':
        return l < r;
    case '>':
        return l > r;
    case '+':
        return l + r;
    case '-':
        return l - r;
    case '*':
        return l * r;
    case '/':
        return l / r;
    default:
        return l % r;
    }
}

bool PluralReader::Unary(bool active, Value& value)
{
    if (Accept("!"))
    {
        if (!Unary(active, value))
            return false;
        value = value == 0;
        return true;
    }
    Skip();
    if (Accept("("))
        return Conditional(active, value) && Accept(")");
    if (m_at < m_text.size() && m_text[m_at] == 'n')
    {
        ++m_at;
        value = m_n;
        return true;
    }
    if (m_at >= m_text.size() || !IsDigit(m_text[m_at]))
        return false;
    value = 0;
    while (m_at < m_text.size() && IsDigit(m_text[m_at]))
        value = std::min<Value>(value * 10 + Value(m_text[m_at++] - '0'), 1ull << 40);
    return true;
}

constexpr unsigned long kLargestN = 1000;  // the numbers msgfmt tries an expression on

}  // namespace

bool ParseCFormat(std::string_view text, std::vector<FormatArgument>& arguments, std::string* problem)
{
    FormatReader reader(text);
    arguments.clear();
    if (!reader.Read(problem))
        return false;
    for (const auto& [number, type] : reader.arguments)
        arguments.push_back({number, type});
    return true;
}

std::string CompareCFormat(std::string_view source, std::string_view translation, bool mayOmit)
{
    std::vector<FormatArgument> wanted, given;
    std::string problem;
    if (!ParseCFormat(source, wanted))
        return std::string();  // nothing to hold the translation to
    if (!ParseCFormat(translation, given, &problem))
        return "the translation is not a valid C format, unlike its text: " + problem;
    for (const FormatArgument& argument : given)
    {
        auto match = std::find_if(wanted.begin(), wanted.end(),
                                  [&](const FormatArgument& w) { return w.number == argument.number; });
        if (match == wanted.end())
            return "the translation takes argument " + std::to_string(argument.number) + ", its text does not";
        if (match->type != argument.type)
            return "argument " + std::to_string(argument.number) + " is " + match->type + " in the text and " +
                   argument.type + " in the translation";
    }
    if (!mayOmit && given.size() != wanted.size())
        return "the translation takes " + std::to_string(given.size()) + " arguments, its text " +
               std::to_string(wanted.size());
    return std::string();
}

bool EvaluatePlural(std::string_view expression, unsigned long n, long long& form)
{
    PluralReader reader(expression, n);
    return reader.Read(form);
}

bool ParsePluralForms(std::string_view header, PluralForms& forms, std::string& problem)
{
    std::string_view field = HeaderField(header, "Plural-Forms");
    std::size_t count = field.find("nplurals=");
    std::size_t plural = field.find("plural=");
    while (plural != std::string_view::npos && plural > 0 && field[plural - 1] == 'n')
        plural = field.find("plural=", plural + 1);
    if (count == std::string_view::npos || plural == std::string_view::npos)
    {
        problem = "the header lacks \"Plural-Forms: nplurals=INTEGER; plural=EXPRESSION;\"";
        return false;
    }
    std::size_t at = count + 9;
    while (at < field.size() && field[at] == ' ')
        ++at;
    std::size_t digits = at;
    forms.count = ReadNumber(field, at);
    if (at == digits || forms.count == 0)
    {
        problem = "the header's nplurals is not a number of forms";
        return false;
    }
    std::string_view expression = field.substr(plural + 7);
    forms.expression = std::string(expression.substr(0, expression.find(';')));
    long long form = 0;
    if (!PluralReader(forms.expression, 0).Read(form, false))
    {
        problem = "the header's plural expression is invalid: " + forms.expression;
        return false;
    }
    return true;
}

std::string CheckPluralRange(const PluralForms& forms)
{
    long long largest = 0;
    for (unsigned long n = 0; n <= kLargestN; ++n)
    {
        long long form = 0;
        if (!EvaluatePlural(forms.expression, n, form))
            return "the plural expression cannot be evaluated for n = " + std::to_string(n) + " (division by zero)";
        if (form < 0)
            return "the plural expression can produce negative values";
        largest = std::max(largest, form);
    }
    if (static_cast<unsigned long long>(largest) >= forms.count)
        return "nplurals = " + std::to_string(forms.count) +
               " but the plural expression can produce values as large as " + std::to_string(largest);
    return std::string();
}

std::vector<bool> FormsOfOneNumber(const PluralForms& forms)
{
    std::vector<unsigned> uses(std::min<unsigned long>(forms.count, 1000), 0);
    for (unsigned long n = 0; n <= kLargestN; ++n)
    {
        long long form = 0;
        if (EvaluatePlural(forms.expression, n, form) && form >= 0 && static_cast<std::size_t>(form) < uses.size())
            ++uses[static_cast<std::size_t>(form)];
    }
    std::vector<bool> one(uses.size());
    for (std::size_t i = 0; i < uses.size(); ++i)
        one[i] = uses[i] == 1;
    return one;
}

}  // namespace kiv::rules
