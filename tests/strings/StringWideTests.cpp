// strStringW: the wide twin, with unsigned short characters in its interface.
#include <KivMFC.h>
#include <gtest/gtest.h>

namespace {

const unsigned short* U(const wchar_t* text)
{
    return reinterpret_cast<const unsigned short*>(text);
}

}  // namespace

TEST(strStringW, DefaultIsEmpty)
{
    strStringW s;
    EXPECT_STREQ(L"", s);
    EXPECT_EQ(0, s.GetCharLength());
}

TEST(strStringW, ConstructsAndAssignsFromUnsignedShortText)
{
    strStringW s(U(L"Gr\u00f6\u00dfe \u20ac"));
    EXPECT_STREQ(L"Gr\u00f6\u00dfe \u20ac", s);
    EXPECT_EQ(7, s.GetCharLength());
    strStringW t;
    EXPECT_EQ(&t, &(t = U(L"x")));
    EXPECT_STREQ(L"x", t);
    EXPECT_EQ(&t, &(t = CStringW(L"base")));
    EXPECT_STREQ(L"base", t);
    EXPECT_EQ(&t, &(t = s));
    EXPECT_EQ(s.GetString(), t.GetString());
    strStringW c(CStringW(L"copy"));
    EXPECT_STREQ(L"copy", c);
}

TEST(strStringW, AppendsReturnThisOrZero)
{
    strStringW s(U(L"ab"));
    EXPECT_EQ(&s, &(s += static_cast<unsigned short>(0x20AC)));
    EXPECT_EQ(&s, &(s += U(L"de")));
    EXPECT_EQ(0, s.Append(U(L"fg")));
    EXPECT_STREQ(L"ab\u20acdefg", s);
}

TEST(strStringW, FindLastGivesTheLastIndexOrMinusOne)
{
    strStringW s(U(L"a\\b\\c"));
    EXPECT_EQ(3, s.FindLast(L'\\'));
    EXPECT_EQ(-1, s.FindLast(L'/'));
}

TEST(strStringW, GetBufferGivesUnsignedShortUnits)
{
    strStringW s(U(L"abc"));
    unsigned short* p = s.GetBuffer(8);
    p[3] = 'd';
    p[4] = 0;
    s.ReleaseBuffer();
    EXPECT_STREQ(L"abcd", s);
}

TEST(strStringW, CaseChangesAnswerZero)
{
    strStringW s(U(L"MiXeD 12"));
    EXPECT_EQ(0, s.UpperCase());
    EXPECT_STREQ(L"MIXED 12", s);
    EXPECT_EQ(0, s.LowerCase());
    EXPECT_STREQ(L"mixed 12", s);
}

TEST(strStringW, SubstrMinusOneRunsToTheEnd)
{
    strStringW s(U(L"abcdef"));
    EXPECT_STREQ(L"cdef", s.Substr(2, -1));
    EXPECT_STREQ(L"cdef", s(2, -1));
}

TEST(strStringW, SubstrClampsItsArguments)
{
    strStringW s(U(L"abcdef"));
    EXPECT_STREQ(L"", s.Substr(2, -2));
    EXPECT_STREQ(L"ab", s.Substr(-3, 2));
    EXPECT_STREQ(L"", s.Substr(10, 2));
    EXPECT_STREQ(L"", s(10, 2));
    EXPECT_STREQ(L"ab", s(-3, 2));
}

TEST(strStringW, ToIntStopsAtTheFirstUnusableCharacter)
{
    EXPECT_EQ(12, strStringW(U(L"12abc")).ToInt());
    EXPECT_EQ(0, strStringW(U(L"abc")).ToInt());
    EXPECT_EQ(12L, strStringW(U(L"12abc")).ToLong());
    EXPECT_DOUBLE_EQ(2.5, strStringW(U(L" 2.5x")).ToDouble());
    EXPECT_DOUBLE_EQ(0.0, strStringW(U(L"x")).ToDouble());
}

TEST(strStringW, ToAlphaPadsIntegersWithZeros)
{
    strStringW s;
    EXPECT_EQ(0, s.ToAlpha(7L, 3));
    EXPECT_STREQ(L"007", s);
    EXPECT_EQ(0, s.ToAlpha(-7L, 3));
    EXPECT_STREQ(L"-07", s);
    EXPECT_EQ(0, s.ToAlpha(7L, 0));
    EXPECT_STREQ(L"7", s);
    EXPECT_EQ(0, s.ToAlpha(4294967295UL, 0));
    EXPECT_STREQ(L"4294967295", s);
    EXPECT_EQ(0, s.ToAlpha(-7, 3));
    EXPECT_STREQ(L"-07", s);
    EXPECT_EQ(0, s.ToAlpha(4294967295U, 0));
    EXPECT_STREQ(L"4294967295", s);
    EXPECT_EQ(0, s.ToAlpha(42L, -5));
    EXPECT_STREQ(L"42   ", s);
}

TEST(strStringW, ToAlphaWithDecimalsWritesFixedNotation)
{
    strStringW s;
    s.ToAlpha(12.7, 0);
    EXPECT_STREQ(L"13.", s);
    s.ToAlpha(0.25, 2);
    EXPECT_STREQ(L"0.25", s);
    s.ToAlpha(12.5, 2);
    EXPECT_STREQ(L"12.50", s);
    s.ToAlpha(-1.5, 1);
    EXPECT_STREQ(L"-1.5", s);
}

TEST(strStringW, ToAlphaBelowATenthFillsZerosAfterThePoint)
{
    strStringW s;
    s.ToAlpha(0.05, 2);
    EXPECT_STREQ(L"0.05", s);
    s.ToAlpha(-0.05, 2);
    EXPECT_STREQ(L"-0.05", s);
    s.ToAlpha(0.001, 2);
    EXPECT_STREQ(L"0.00", s);
}

TEST(strStringW, ToAlphaWithMinusOneDecimalsIsTheRuntimesShortestFormWidened)
{
    strStringW s;
    for (double value : {12.5, 0.1, -3.25, 1e20, 1.0 / 3.0})
    {
        char narrow[19] = "";
        _gcvt_s(narrow, 18, value, 16);
        s.ToAlpha(value, -1);
        EXPECT_EQ(CStringW(narrow), s) << value;
    }
    s.ToAlpha(0.1, -1);
    EXPECT_STREQ(L"0.1", s);
}
