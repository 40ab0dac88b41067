// CStringW (UTF-16) as the library relies on it.
#include <afxwin.h>
#include <gtest/gtest.h>

#include "afx_tests_res.h"

TEST(CStringW, MidClampsLikeTheNarrowString)
{
    CStringW s(L"abcdef");
    EXPECT_STREQ(L"cdef", s.Mid(2));
    EXPECT_STREQ(L"ab", s.Mid(-3, 2));
    EXPECT_STREQ(L"", s.Mid(10, 2));
    EXPECT_STREQ(L"", s.Mid(2, -2));
}

TEST(CStringW, TrimRemovesBlanksAndTabs)
{
    CStringW s(L"  \tAbbrechen ");
    s.Trim();
    EXPECT_STREQ(L"Abbrechen", s);
    CStringW blank(L" \t ");
    blank.Trim();
    EXPECT_TRUE(blank.IsEmpty());
}

TEST(CStringW, FormatPercentSTakesAWideString)
{
    CStringW s;
    s.Format(L"%s", L"Datentr\u00e4ger");
    EXPECT_STREQ(L"Datentr\u00e4ger", s);
    s.Format(L"%d", -42);
    EXPECT_STREQ(L"-42", s);
}

TEST(CStringW, LoadStringKeepsTheResourceText)
{
    CStringW s;
    EXPECT_TRUE(s.LoadString(IDS_TEST_UMLAUT));
    EXPECT_STREQ(L"Gr\u00f6\u00dfe", s);
    CStringW missing(L"kept");
    EXPECT_FALSE(missing.LoadString(IDS_TEST_MISSING));
    EXPECT_STREQ(L"kept", missing);
}

TEST(CStringW, NarrowAndWideConvertBothWays)
{
    CString narrow("Gr\xf6\xdf"
                   "e");
    CStringW wide(narrow);
    EXPECT_STREQ(L"Gr\u00f6\u00dfe", wide);
    CString back(wide);
    EXPECT_EQ(narrow, back);
    CStringW assigned;
    assigned = "abc";
    EXPECT_STREQ(L"abc", assigned);
}

TEST(CStringW, CharactersOutsideTheCodePageBecomeQuestionMarksWhenNarrowed)
{
    CString narrow(L"\u65e5\u672c");
    EXPECT_STREQ("??", narrow);
}

TEST(CStringW, AllocSysStringLengthCountsUnits)
{
    CStringW s(L"\U0001F600x");
    BSTR b = s.AllocSysString();
    EXPECT_EQ(3u, ::SysStringLen(b));
    ::SysFreeString(b);
}

TEST(CStringW, MakeUpperAndLower)
{
    CStringW s(L"Title");
    s.MakeUpper();
    EXPECT_STREQ(L"TITLE", s);
    s.MakeLower();
    EXPECT_STREQ(L"title", s);
}

TEST(CStringW, TrimKeepsPrintableAsciiAndRemovesWideBlanks)
{
    CStringW s(L"\u3000\t x~ \u3000");
    s.Trim();
    EXPECT_STREQ(L"x~", s);
    CStringW punctuation(L"!a!");
    punctuation.Trim();
    EXPECT_STREQ(L"!a!", punctuation);
}
