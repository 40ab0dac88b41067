// strString: status results, sub-strings, case, conversions and the resource constructor.
#include <KivMFC.h>
#include <gtest/gtest.h>

#include "strings_tests_res.h"

TEST(strString, DefaultIsEmpty)
{
    strString s;
    EXPECT_STREQ("", s);
    EXPECT_EQ(0, s.GetCharLength());
    strString many[3];
    EXPECT_STREQ("", many[2]);
}

TEST(strString, CopiesShareTheBaseBuffer)
{
    strString a("shared");
    strString b(a);
    CString c(a);
    strString d(c);
    EXPECT_EQ(a.GetString(), b.GetString());
    EXPECT_EQ(a.GetString(), d.GetString());
    b += '!';
    EXPECT_STREQ("shared", a);
    EXPECT_STREQ("shared!", b);
}

TEST(strString, AssignmentsReturnThis)
{
    strString s;
    strString other("other");
    EXPECT_EQ(&s, &(s = "text"));
    EXPECT_STREQ("text", s);
    EXPECT_EQ(&s, &(s = CString("base")));
    EXPECT_STREQ("base", s);
    EXPECT_EQ(&s, &(s = other));
    EXPECT_STREQ("other", s);
}

TEST(strString, AppendsReturnThisOrZero)
{
    strString s("ab");
    EXPECT_EQ(&s, &(s += 'c'));
    EXPECT_EQ(&s, &(s += "de"));
    EXPECT_EQ(0, s.Append("fg"));
    EXPECT_STREQ("abcdefg", s);
    EXPECT_EQ(0, s.Append(""));
    EXPECT_STREQ("abcdefg", s);
}

TEST(strString, FindLastGivesTheLastIndexOrMinusOne)
{
    strString s("a\\b\\c");
    EXPECT_EQ(3, s.FindLast('\\'));
    EXPECT_EQ(0, s.FindLast('a'));
    EXPECT_EQ(-1, s.FindLast('/'));
    EXPECT_EQ(-1, strString().FindLast('a'));
}

TEST(strString, GetBufferIsReleasedByTheBase)
{
    strString s("abc");
    char* p = s.GetBuffer(11);
    EXPECT_STREQ("abc", p);
    strcpy(p, "longer text");
    s.ReleaseBuffer();
    EXPECT_STREQ("longer text", s);
    EXPECT_EQ(11, s.GetCharLength());
}

TEST(strString, CaseChangesAnswerZero)
{
    strString s("MiXeD 12");
    EXPECT_EQ(0, s.UpperCase());
    EXPECT_STREQ("MIXED 12", s);
    EXPECT_EQ(0, s.LowerCase());
    EXPECT_STREQ("mixed 12", s);
}

TEST(strString, SubstrMinusOneRunsToTheEnd)
{
    strString s("abcdef");
    EXPECT_STREQ("cdef", s.Substr(2, -1));
    EXPECT_STREQ("abcdef", s.Substr(-4, -1));
    EXPECT_STREQ("", s.Substr(6, -1));
    EXPECT_STREQ("", s.Substr(9, -1));
}

TEST(strString, SubstrClampsItsArguments)
{
    strString s("abcdef");
    EXPECT_STREQ("", s.Substr(2, -2));
    EXPECT_STREQ("ab", s.Substr(-3, 2));
    EXPECT_STREQ("", s.Substr(10, 2));
    EXPECT_STREQ("ef", s.Substr(4, 100));
    EXPECT_STREQ("cd", s.Substr(2, 2));
}

TEST(strString, CallOperatorIsSubstr)
{
    strString s("abcdef");
    EXPECT_STREQ("cdef", s(2, -1));
    EXPECT_STREQ("", s(2, -2));
    EXPECT_STREQ("ab", s(-3, 2));
    EXPECT_STREQ("", s(10, 2));
}

TEST(strString, ToIntStopsAtTheFirstUnusableCharacter)
{
    EXPECT_EQ(12, strString("12abc").ToInt());
    EXPECT_EQ(0, strString("abc").ToInt());
    EXPECT_EQ(-34, strString("  -34").ToInt());
    EXPECT_EQ(0, strString("").ToInt());
}

TEST(strString, ToLongAndToDoubleFollowTheRuntime)
{
    EXPECT_EQ(12L, strString("12abc").ToLong());
    EXPECT_EQ(0L, strString("abc").ToLong());
    EXPECT_EQ(-2147483647L - 1, strString("-2147483648").ToLong());
    EXPECT_DOUBLE_EQ(12.5, strString(" 12.5xyz").ToDouble());
    EXPECT_DOUBLE_EQ(-0.25e3, strString("-0.25e3").ToDouble());
    EXPECT_DOUBLE_EQ(0.0, strString("abc").ToDouble());
}

TEST(strString, ResourceConstructorLoadsTheStringUntranslated)
{
    EXPECT_STREQ("Hello, resources", strString(IDS_STR_HELLO));
    CString expected;
    expected.LoadString(IDS_STR_UMLAUT);
    EXPECT_EQ(expected, strString(IDS_STR_UMLAUT));
    EXPECT_STREQ("Gr\xf6\xdf"
                 "e",
                 strString(IDS_STR_UMLAUT));
}

TEST(strString, MissingResourceStringGivesEmpty)
{
    EXPECT_STREQ("", strString(IDS_STR_MISSING));
    EXPECT_STREQ("", strString(IDS_STR_EMPTY));
}

TEST(strString, ToAlphaPadsIntegersWithZeros)
{
    strString s;
    EXPECT_EQ(0, s.ToAlpha(7L, 3));
    EXPECT_STREQ("007", s);
    EXPECT_EQ(0, s.ToAlpha(-7L, 3));
    EXPECT_STREQ("-07", s);
    EXPECT_EQ(0, s.ToAlpha(-42L, 5));
    EXPECT_STREQ("-0042", s);
    EXPECT_EQ(0, s.ToAlpha(7L, 0));
    EXPECT_STREQ("7", s);
    EXPECT_EQ(0, s.ToAlpha(12345L, 3));
    EXPECT_STREQ("12345", s);
}

TEST(strString, ToAlphaOfTheLargestUnsignedLong)
{
    strString s;
    EXPECT_EQ(0, s.ToAlpha(4294967295UL, 0));
    EXPECT_STREQ("4294967295", s);
    EXPECT_EQ(0, s.ToAlpha(4294967295UL, 11));
    EXPECT_STREQ("04294967295", s);
}

TEST(strString, ToAlphaOfIntAndUnsignedIntAreTheLongForms)
{
    strString s;
    s.ToAlpha(-7, 3);
    EXPECT_STREQ("-07", s);
    s.ToAlpha(4294967295U, 0);
    EXPECT_STREQ("4294967295", s);
    s.ToAlpha(-1, 0);
    EXPECT_STREQ("-1", s);
    s.ToAlpha(static_cast<unsigned int>(-1), 2);
    EXPECT_STREQ("4294967295", s);
}

TEST(strString, ToAlphaNegativeWidthPadsWithBlanksOnTheRight)
{
    strString s;
    s.ToAlpha(42L, -5);
    EXPECT_STREQ("42   ", s);
    s.ToAlpha(-42L, -5);
    EXPECT_STREQ("-42  ", s);
    s.ToAlpha(42UL, -4);
    EXPECT_STREQ("42  ", s);
}

TEST(strString, ToAlphaReplacesTheContents)
{
    strString s("old contents");
    s.ToAlpha(5L, 0);
    EXPECT_STREQ("5", s);
    s.ToAlpha(2.5, 1);
    EXPECT_STREQ("2.5", s);
}

TEST(strString, ToAlphaWithZeroDecimalsKeepsTheTrailingPoint)
{
    strString s;
    s.ToAlpha(12.7, 0);
    EXPECT_STREQ("13.", s);
    s.ToAlpha(0.4, 0);
    EXPECT_STREQ("0.", s);
}

TEST(strString, ToAlphaWithDecimalsWritesFixedNotation)
{
    strString s;
    s.ToAlpha(0.25, 2);
    EXPECT_STREQ("0.25", s);
    s.ToAlpha(12.5, 2);
    EXPECT_STREQ("12.50", s);
    s.ToAlpha(0.5, 1);
    EXPECT_STREQ("0.5", s);
    s.ToAlpha(-1.5, 1);
    EXPECT_STREQ("-1.5", s);
    s.ToAlpha(0.0, 3);
    EXPECT_STREQ("0.000", s);
}

TEST(strString, ToAlphaBelowATenthFillsZerosAfterThePoint)
{
    strString s;
    s.ToAlpha(0.05, 2);
    EXPECT_STREQ("0.05", s);
    s.ToAlpha(0.0012, 4);
    EXPECT_STREQ("0.0012", s);
    s.ToAlpha(-0.05, 2);
    EXPECT_STREQ("-0.05", s);
    s.ToAlpha(0.001, 2);
    EXPECT_STREQ("0.00", s);
    s.ToAlpha(0.0001, 2);
    EXPECT_STREQ("0.00", s);
}

TEST(strString, ToAlphaWithMinusOneDecimalsIsTheRuntimesShortestForm)
{
    strString s;
    for (double value : {12.5, 0.1, -3.25, 100.0, 1e20, 1.0 / 3.0, 0.0})
    {
        char expected[19] = "";
        _gcvt_s(expected, 18, value, 16);
        s.ToAlpha(value, -1);
        EXPECT_STREQ(expected, s) << value;
    }
    s.ToAlpha(12.5, -1);
    EXPECT_STREQ("12.5", s);
    s.ToAlpha(0.1, -1);
    EXPECT_STREQ("0.1", s);
}
