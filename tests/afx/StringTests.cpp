// CString (narrow) as the library relies on it.
#include <afxwin.h>
#include <gtest/gtest.h>

#include "afx_tests_res.h"

TEST(CString, CopiesShareOneBufferUntilOneIsWritten)
{
    CString a("shared");
    CString b = a;
    EXPECT_EQ(a.GetString(), b.GetString());
    b.SetAt(0, 'S');
    EXPECT_NE(a.GetString(), b.GetString());
    EXPECT_STREQ("shared", a);
    EXPECT_STREQ("Shared", b);
}

TEST(CString, GetBufferMakesTheBufferUnique)
{
    CString a("abc");
    CString b = a;
    char* p = b.GetBuffer(10);
    strcpy(p, "xyzzy");
    b.ReleaseBuffer();
    EXPECT_STREQ("abc", a);
    EXPECT_STREQ("xyzzy", b);
    EXPECT_EQ(5, b.GetLength());
}

TEST(CString, ReleaseBufferWithLengthCutsTheText)
{
    CString s;
    char* p = s.GetBuffer(8);
    memcpy(p, "abcdefgh", 8);
    s.ReleaseBuffer(3);
    EXPECT_STREQ("abc", s);
    EXPECT_EQ(3, s.GetLength());
}

TEST(CString, MidClampsNegativeAndOutOfRangeArguments)
{
    CString s("abcdef");
    EXPECT_STREQ("cdef", s.Mid(2));
    EXPECT_STREQ("cd", s.Mid(2, 2));
    EXPECT_STREQ("ab", s.Mid(-3, 2));
    EXPECT_STREQ("", s.Mid(10, 2));
    EXPECT_STREQ("", s.Mid(2, -2));
    EXPECT_STREQ("ef", s.Mid(4, 100));
    EXPECT_STREQ("abcdef", s.Mid(-5));
    EXPECT_STREQ("", s.Mid(6));
    EXPECT_STREQ("", s.Mid(7));
}

TEST(CString, LeftAndRightClamp)
{
    CString s("abcdef");
    EXPECT_STREQ("ab", s.Left(2));
    EXPECT_STREQ("", s.Left(-1));
    EXPECT_STREQ("abcdef", s.Left(99));
    EXPECT_STREQ("ef", s.Right(2));
    EXPECT_STREQ("", s.Right(-1));
    EXPECT_STREQ("abcdef", s.Right(99));
}

TEST(CString, FindAndReverseFind)
{
    CString s("a\\b\\c.txt");
    EXPECT_EQ(1, s.Find('\\'));
    EXPECT_EQ(3, s.Find('\\', 2));
    EXPECT_EQ(-1, s.Find('z'));
    EXPECT_EQ(-1, s.Find('a', 99));
    EXPECT_EQ(-1, s.Find('a', -1));
    EXPECT_EQ(3, s.ReverseFind('\\'));
    EXPECT_EQ(-1, s.ReverseFind('/'));
    EXPECT_EQ(5, s.Find("."));
    EXPECT_EQ(6, s.Find("txt"));
    EXPECT_EQ(-1, s.Find("txt", 7));
    EXPECT_EQ(0, s.Find(""));
    EXPECT_EQ(9, s.Find("", 9));
    EXPECT_EQ(-1, s.Find("", 10));
}

TEST(CString, MakeUpperAndMakeLowerChangeOnlyThisCopy)
{
    CString a("Mixed Case 123");
    CString b = a;
    b.MakeUpper();
    EXPECT_STREQ("MIXED CASE 123", b);
    EXPECT_STREQ("Mixed Case 123", a);
    a.MakeLower();
    EXPECT_STREQ("mixed case 123", a);
}

TEST(CString, TrimRemovesBlanksAndTabsAtBothEnds)
{
    CString s(" \t  Abbrechen \t ");
    s.Trim();
    EXPECT_STREQ("Abbrechen", s);
    CString inner("a \t b");
    inner.Trim();
    EXPECT_STREQ("a \t b", inner);
    CString blank(" \t\r\n ");
    blank.Trim();
    EXPECT_TRUE(blank.IsEmpty());
    CString left("  x  ");
    left.TrimLeft();
    EXPECT_STREQ("x  ", left);
    CString right("  x  ");
    right.TrimRight();
    EXPECT_STREQ("  x", right);
}

TEST(CString, FormatWritesNegativeNumbersWithTheirSign)
{
    CString s;
    s.Format("%d", -1);
    EXPECT_STREQ("-1", s);
    s.Format("%d", 0);
    EXPECT_STREQ("0", s);
    s.Format("%d", -2147483647 - 1);
    EXPECT_STREQ("-2147483648", s);
    s.Format("%s/%d", "2001", 1005);
    EXPECT_STREQ("2001/1005", s);
}

TEST(CString, FormatAcceptsItsOwnTextAsAnArgument)
{
    CString s("abc");
    s.Format("[%s]", s.GetString());
    EXPECT_STREQ("[abc]", s);
}

TEST(CString, FormatOfALongTextGrowsTheBuffer)
{
    CString s;
    CString big('x', 5000);
    s.Format("%s!", big.GetString());
    EXPECT_EQ(5001, s.GetLength());
    EXPECT_EQ('!', s[5000]);
}

TEST(CString, LoadStringFindsAPresentIdAndFailsForAMissingOne)
{
    CString s;
    EXPECT_TRUE(s.LoadString(IDS_TEST_HELLO));
    EXPECT_STREQ("Hello, resources", s);
    EXPECT_TRUE(s.LoadString(IDS_TEST_LAST_IN_BLOCK));
    EXPECT_STREQ("last of its block", s);
    CString missing;
    EXPECT_FALSE(missing.LoadString(IDS_TEST_MISSING));
    EXPECT_TRUE(missing.IsEmpty());
    CString absentBlock;
    EXPECT_FALSE(absentBlock.LoadString(40000));
    EXPECT_TRUE(absentBlock.IsEmpty());
}

TEST(CString, ConstructionFromAnIntegerResourceNameLoadsTheString)
{
    CString s(MAKEINTRESOURCEA(IDS_TEST_HELLO));
    EXPECT_STREQ("Hello, resources", s);
}

TEST(CString, NonAsciiTextConvertsThroughTheAnsiCodePage)
{
    ASSERT_EQ(1252u, ::GetACP());
    CString narrow(L"Gr\u00f6\u00dfe");
    EXPECT_STREQ("Gr\xf6\xdf"
                 "e",
                 narrow);
    CStringW wide("Datentr\xe4ger");
    EXPECT_STREQ(L"Datentr\u00e4ger", wide);
    CString loaded;
    ASSERT_TRUE(loaded.LoadString(IDS_TEST_UMLAUT));
    EXPECT_STREQ("Gr\xf6\xdf"
                 "e",
                 loaded);
}

TEST(CString, AllocSysStringGivesAWideCopyOfTheRightLength)
{
    CString s("K\xe4se");
    BSTR b = s.AllocSysString();
    ASSERT_NE(nullptr, b);
    EXPECT_EQ(4u, ::SysStringLen(b));
    EXPECT_STREQ(L"K\u00e4se", b);
    ::SysFreeString(b);
    CString empty;
    BSTR e = empty.AllocSysString();
    ASSERT_NE(nullptr, e);
    EXPECT_EQ(0u, ::SysStringLen(e));
    ::SysFreeString(e);
}

TEST(CString, ComparisonOperatorsAreCaseSensitive)
{
    CString a("Title"), b("title");
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
    EXPECT_TRUE(a == "Title");
    EXPECT_TRUE("Title" == a);
    EXPECT_TRUE(a < b);
    EXPECT_EQ(0, a.CompareNoCase("TITLE"));
    EXPECT_TRUE(CString() == "");
}

TEST(CString, ConcatenationOfEveryKind)
{
    CString a("ab");
    EXPECT_STREQ("abcd", a + "cd");
    EXPECT_STREQ("xab", "x" + a);
    EXPECT_STREQ("ab!", a + '!');
    EXPECT_STREQ("abab", a + a);
    a += a;
    EXPECT_STREQ("abab", a);
    a += 'c';
    a += "de";
    EXPECT_STREQ("ababcde", a);
}

TEST(CString, AppendOfItsOwnTextSurvivesGrowth)
{
    CString s("0123456789");
    for (int i = 0; i < 6; ++i)
        s.Append(s.GetString() + 5, 5);
    EXPECT_EQ(40, s.GetLength());
    EXPECT_STREQ("0123456789567895678956789567895678956789", s);
}

TEST(CString, EmptyStringsAreValid)
{
    CString s;
    EXPECT_TRUE(s.IsEmpty());
    EXPECT_EQ(0, s.GetLength());
    EXPECT_STREQ("", s);
    s = "x";
    s.Empty();
    EXPECT_STREQ("", s);
    CString n(static_cast<const char*>(nullptr));
    EXPECT_TRUE(n.IsEmpty());
}

TEST(CString, ReplaceRemoveInsertDelete)
{
    CString s("a.b.c");
    EXPECT_EQ(2, s.Replace('.', '\\'));
    EXPECT_STREQ("a\\b\\c", s);
    EXPECT_EQ(2, s.Replace("\\", "::"));
    EXPECT_STREQ("a::b::c", s);
    EXPECT_EQ(4, s.Remove(':'));
    EXPECT_STREQ("abc", s);
    s.Insert(1, "XY");
    EXPECT_STREQ("aXYbc", s);
    s.Delete(1, 2);
    EXPECT_STREQ("abc", s);
}

TEST(AfxExtractSubString, PicksTheFieldOrFailsPastTheEnd)
{
    CString s;
    EXPECT_TRUE(AfxExtractSubString(s, "one\ntwo\nthree", 1));
    EXPECT_STREQ("two", s);
    EXPECT_TRUE(AfxExtractSubString(s, "one\ntwo\nthree", 2));
    EXPECT_STREQ("three", s);
    EXPECT_FALSE(AfxExtractSubString(s, "one\ntwo\nthree", 3));
    EXPECT_STREQ("", s);
    EXPECT_TRUE(AfxExtractSubString(s, "a,,b", 1, ','));
    EXPECT_STREQ("", s);
}
