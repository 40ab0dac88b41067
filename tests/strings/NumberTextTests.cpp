// Number-to-text of both string classes against what the C runtime itself prints in this
// process, over a table of values, widths and decimals.
#include <KivMFC.h>
#include <gtest/gtest.h>

#include <float.h>
#include <stdlib.h>

#include <string>

namespace {

const long kLongs[] = {0, 7, -7, 42, -42, 99999, -100000, 2147483647, -2147483647 - 1, 1000000000, -999999999};
const unsigned long kUnsignedLongs[] = {0, 7, 42, 99999, 2147483648UL, 4294967295UL, 1000000000};
const int kWidths[] = {0, 1, 2, 3, 5, 10, 11, 12, 40, -1, -3, -5, -11, -12, -40};

const double kReals[] = {0.0,
                         -0.0,
                         12.7,
                         12.5,
                         0.5,
                         -1.5,
                         0.25,
                         0.05,
                         -0.05,
                         0.005,
                         0.0049,
                         0.001,
                         0.0001,
                         1e-10,
                         123456789.125,
                         2.5,
                         3.5,
                         0.125,
                         0.995,
                         9.995,
                         999.9999,
                         1e15,
                         123456789012345.6,
                         1e20,
                         -1e20,
                         1e300,
                         DBL_MAX,
                         DBL_MIN,
                         -DBL_MIN,
                         4.9e-324,
                         -0.0049,
                         1.0 / 3.0,
                         -2.0 / 3.0};
const int kDecimals[] = {0, 1, 2, 3, 6, 15, 20, -2, -5};

// What the print gives in a buffer big enough for anything, with the library's limit of 11
// characters applied: a longer text is an error and leaves nothing.
template <typename Value> std::string RuntimeInteger(const char* format, Value value, int width)
{
    char text[128] = "";
    if (width == 0)
    {
        if constexpr (sizeof(Value) == sizeof(long) && static_cast<Value>(-1) < 0)
            _ltoa_s(static_cast<long>(value), text, sizeof(text), 10);
        else
            _ultoa_s(static_cast<unsigned long>(value), text, sizeof(text), 10);
    }
    else
        _snprintf_s(text, sizeof(text), _TRUNCATE, format, width, value);
    std::string s(text);
    return s.size() > 11 ? std::string() : s;
}

std::wstring Widen(const std::string& s)
{
    return std::wstring(s.begin(), s.end());
}

// The documented steps over the runtime's own digit string.
std::string RuntimeFixed(double value, int decimals)
{
    char digits[349] = "";
    int decpt = 0, sign = 0;
    _fcvt_s(digits, sizeof(digits), value, decimals, &decpt, &sign);
    std::string d(digits);
    std::string out = sign ? "-" : "";
    out += decpt >= 1 ? d.substr(0, decpt) : "0";
    out += ".";
    if (decpt < 0)
    {
        int room = decimals - static_cast<int>(d.size());
        int zeros = -decpt < room ? -decpt : room;
        out += std::string(zeros > 0 ? zeros : 0, '0');
    }
    out += decpt >= 1 ? (static_cast<size_t>(decpt) < d.size() ? d.substr(decpt) : "") : d;
    return out;
}

std::string RuntimeGeneral(double value)
{
    char text[19] = "";
    _gcvt_s(text, 18, value, 16);
    return text;
}

bool g_handlerCalled = false;

void __cdecl RecordInvalidParameter(const wchar_t*, const wchar_t*, const wchar_t*, unsigned int, uintptr_t)
{
    g_handlerCalled = true;
}

// A host's invalid-parameter handler for the time of one test.
class InvalidParameterHandler
{
public:
    InvalidParameterHandler() : m_old(_set_invalid_parameter_handler(RecordInvalidParameter))
    {
        g_handlerCalled = false;
    }
    ~InvalidParameterHandler() { _set_invalid_parameter_handler(m_old); }

private:
    _invalid_parameter_handler m_old;
};

}  // namespace

TEST(strString, ToAlphaOfLongMatchesTheRuntimeForEveryWidth)
{
    strString s;
    for (long value : kLongs)
        for (int width : kWidths)
        {
            s.ToAlpha(value, width);
            EXPECT_EQ(RuntimeInteger("%0*ld", value, width), std::string(s)) << value << " width " << width;
        }
}

TEST(strString, ToAlphaOfUnsignedLongMatchesTheRuntimeForEveryWidth)
{
    strString s;
    for (unsigned long value : kUnsignedLongs)
        for (int width : kWidths)
        {
            s.ToAlpha(value, width);
            EXPECT_EQ(RuntimeInteger("%0*lu", value, width), std::string(s)) << value << " width " << width;
        }
}

TEST(strStringW, ToAlphaOfLongAndUnsignedLongMatchTheRuntime)
{
    strStringW s;
    for (long value : kLongs)
        for (int width : kWidths)
        {
            s.ToAlpha(value, width);
            wchar_t text[128] = L"";
            if (width == 0)
                _ltow_s(value, text, 128, 10);
            else
                _snwprintf_s(text, 128, _TRUNCATE, L"%0*ld", width, value);
            std::wstring expected = wcslen(text) > 11 ? L"" : text;
            EXPECT_EQ(expected, std::wstring(s)) << value << " width " << width;
            EXPECT_EQ(Widen(RuntimeInteger("%0*ld", value, width)), std::wstring(s));
        }
    for (unsigned long value : kUnsignedLongs)
        for (int width : kWidths)
        {
            s.ToAlpha(value, width);
            wchar_t text[128] = L"";
            if (width == 0)
                _ultow_s(value, text, 128, 10);
            else
                _snwprintf_s(text, 128, _TRUNCATE, L"%0*lu", width, value);
            std::wstring expected = wcslen(text) > 11 ? L"" : text;
            EXPECT_EQ(expected, std::wstring(s)) << value << " width " << width;
        }
}

// Eleven characters fit the buffer of 12; more are an error of the secure print, not a cut,
// and the string becomes empty. No invalid-parameter handler of the host is called for it.
TEST(strString, ToAlphaBeyondElevenCharactersGivesEmptyTextWithoutTheHandler)
{
    InvalidParameterHandler handler;
    strString s("old");
    s.ToAlpha(7L, 11);
    EXPECT_STREQ("00000000007", s);
    s.ToAlpha(7L, 12);
    EXPECT_STREQ("", s);
    s.ToAlpha(-2147483647L - 1, 12);
    EXPECT_STREQ("", s);
    s.ToAlpha(7UL, -40);
    EXPECT_STREQ("", s);
    s.ToAlpha(7, 1000);
    EXPECT_STREQ("", s);
    strStringW w(reinterpret_cast<const unsigned short*>(L"old"));
    w.ToAlpha(7L, 12);
    EXPECT_STREQ(L"", w);
    w.ToAlpha(7UL, -12);
    EXPECT_STREQ(L"", w);
    w.ToAlpha(7L, 11);
    EXPECT_STREQ(L"00000000007", w);
    EXPECT_FALSE(g_handlerCalled);
}

TEST(strString, ToAlphaOfTheSmallestLongFitsWithoutWidth)
{
    strString s;
    s.ToAlpha(-2147483647L - 1, 0);
    EXPECT_STREQ("-2147483648", s);
    s.ToAlpha(-2147483647L - 1, 11);
    EXPECT_STREQ("-2147483648", s);
}

TEST(strString, ToAlphaOfRealsMatchesTheRuntimesDigits)
{
    strString s;
    for (double value : kReals)
        for (int decimals : kDecimals)
        {
            s.ToAlpha(value, decimals);
            EXPECT_EQ(RuntimeFixed(value, decimals), std::string(s)) << value << " decimals " << decimals;
        }
}

// Where the value does not round to a negative zero, fixed notation is what the print
// writes with the same number of decimals (and a point even with none).
TEST(strString, ToAlphaOfRealsMatchesThePrintsFixedNotation)
{
    strString s;
    for (double value : {0.0, 12.7, 12.5,  0.5,   -1.5,  0.25,     0.05,          -0.05, 0.005, 0.001, 0.0001,   1e-10,
                         2.5, 3.5,  0.125, 0.995, 9.995, 999.9999, 123456789.125, 1e15,  1e20,  -1e20, 1.0 / 3.0})
        for (int decimals : {0, 1, 2, 3, 6})
        {
            char text[128] = "";
            _snprintf_s(text, sizeof(text), _TRUNCATE, "%.*f", decimals, value);
            std::string expected = text;
            if (decimals == 0)
                expected += '.';
            s.ToAlpha(value, decimals);
            EXPECT_EQ(expected, std::string(s)) << value << " decimals " << decimals;
        }
}

TEST(strString, ToAlphaOfRealsWithMinusOneDecimalsMatchesTheRuntime)
{
    strString s;
    for (double value : kReals)
    {
        s.ToAlpha(value, -1);
        EXPECT_EQ(RuntimeGeneral(value), std::string(s)) << value;
    }
    // Eighteen characters: the runtime's limit for its buffer, whatever it does there.
    s.ToAlpha(-1.234567890123456, -1);
    EXPECT_EQ(RuntimeGeneral(-1.234567890123456), std::string(s));
    EXPECT_LE(s.GetLength(), 18);
}

TEST(strStringW, ToAlphaOfRealsIsTheNarrowTextWidened)
{
    strString narrow;
    strStringW wide;
    for (double value : kReals)
        for (int decimals : {0, 1, 2, 3, 6, 15, 20, -1, -2, -5})
        {
            narrow.ToAlpha(value, decimals);
            wide.ToAlpha(value, decimals);
            EXPECT_EQ(CStringW(narrow), wide) << value << " decimals " << decimals;
        }
}

TEST(strString, ToAlphaOfNegativeZeroKeepsTheSign)
{
    strString s;
    s.ToAlpha(-0.0, 2);
    EXPECT_EQ(RuntimeFixed(-0.0, 2), std::string(s));
    s.ToAlpha(0.0, 2);
    EXPECT_STREQ("0.00", s);
}

TEST(strString, ToAlphaRoundsAtTheLastDecimalAsTheRuntimeDoes)
{
    strString s;
    s.ToAlpha(0.995, 2);
    EXPECT_EQ(RuntimeFixed(0.995, 2), std::string(s));
    s.ToAlpha(9.9999, 2);
    EXPECT_STREQ("10.00", s);
    s.ToAlpha(0.96, 1);
    EXPECT_STREQ("1.0", s);
    s.ToAlpha(99.5, 0);
    EXPECT_STREQ("100.", s);
}
