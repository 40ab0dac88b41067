// strFilenameWW: the wide twin splits and rebuilds by the same rules.
#include <KivMFC.h>
#include <gtest/gtest.h>

namespace {

const unsigned short* U(const wchar_t* text)
{
    return reinterpret_cast<const unsigned short*>(text);
}

// Every getter's pointer form: the part, or "<absent>" with the target left unchanged.
CStringW Part(int (strFilenameW::*getter)(strStringW*) const, const strFilenameW& name)
{
    strStringW out(U(L"unchanged"));
    int result = (name.*getter)(&out);
    if (result == -1)
    {
        EXPECT_STREQ(L"unchanged", out);
        return L"<absent>";
    }
    EXPECT_EQ(0, result);
    return out;
}

}  // namespace

TEST(strFilenameW, SplitsAFullNameIntoEveryPart)
{
    strFilenameW f(U(L"C:\\dir\\file.txt"));
    EXPECT_STREQ(L"C:", Part(&strFilenameW::GetDrive, f));
    EXPECT_STREQ(L"C:\\dir\\", Part(&strFilenameW::GetPath, f));
    EXPECT_STREQ(L"file.txt", Part(&strFilenameW::GetNameExt, f));
    EXPECT_STREQ(L"file", Part(&strFilenameW::GetName, f));
    EXPECT_STREQ(L"txt", Part(&strFilenameW::GetExt, f));
    EXPECT_STREQ(L"C:", f.GetDrive());
    EXPECT_STREQ(L"C:\\dir\\", f.GetPath());
    EXPECT_STREQ(L"file.txt", f.GetNameExt());
    EXPECT_STREQ(L"file", f.GetName());
    EXPECT_STREQ(L"txt", f.GetExt());
}

TEST(strFilenameW, DotInDirectoryIsNotExtension)
{
    strFilenameW f(U(L"C:\\dir.old\\file"));
    strStringW ext(U(L"unchanged"));
    EXPECT_EQ(-1, f.GetExt(&ext));
    EXPECT_STREQ(L"unchanged", ext);
    EXPECT_STREQ(L"", f.GetExt());
    EXPECT_STREQ(L"file", f.GetName());
}

TEST(strFilenameW, LastDotStartsTheExtension)
{
    strFilenameW f(U(L"archive.tar.gz"));
    EXPECT_STREQ(L"archive.tar", f.GetName());
    EXPECT_STREQ(L"gz", f.GetExt());
}

TEST(strFilenameW, LeadingDotIsAnEmptyNameWithExtension)
{
    strFilenameW f(U(L".profile"));
    EXPECT_STREQ(L"", Part(&strFilenameW::GetName, f));
    EXPECT_STREQ(L"profile", Part(&strFilenameW::GetExt, f));
}

TEST(strFilenameW, ForwardSlashSeparatesNothing)
{
    strFilenameW f(U(L"dir/sub/file.txt"));
    EXPECT_STREQ(L"<absent>", Part(&strFilenameW::GetPath, f));
    EXPECT_STREQ(L"", f.GetPath());
    EXPECT_STREQ(L"dir/sub/file.txt", Part(&strFilenameW::GetNameExt, f));
    EXPECT_STREQ(L"dir/sub/file", Part(&strFilenameW::GetName, f));
}

TEST(strFilenameW, TrailingBackslashLeavesAnEmptyName)
{
    strFilenameW f(U(L"C:\\dir\\"));
    EXPECT_STREQ(L"C:\\dir\\", Part(&strFilenameW::GetPath, f));
    EXPECT_STREQ(L"", Part(&strFilenameW::GetNameExt, f));
    EXPECT_STREQ(L"", Part(&strFilenameW::GetName, f));
    EXPECT_STREQ(L"<absent>", Part(&strFilenameW::GetExt, f));
}

TEST(strFilenameW, ServerNameHasNoDriveAndIsNotAbsolute)
{
    strFilenameW f(U(L"\\\\server\\share\\f.txt"));
    EXPECT_STREQ(L"<absent>", Part(&strFilenameW::GetDrive, f));
    EXPECT_STREQ(L"\\\\server\\share\\", Part(&strFilenameW::GetPath, f));
    EXPECT_EQ(-1, f.IsAbsolute());
}

TEST(strFilenameW, DriveEndsAtTheFirstColon)
{
    EXPECT_STREQ(L"C:", strFilenameW(U(L"C:\\a:b")).GetDrive());
    EXPECT_STREQ(L"file:", strFilenameW(U(L"file:1")).GetDrive());
    EXPECT_STREQ(L"<absent>", Part(&strFilenameW::GetDrive, strFilenameW(U(L"a\\b"))));
}

TEST(strFilenameW, IsAbsoluteAnswersZeroForAnyColon)
{
    EXPECT_EQ(0, strFilenameW(U(L"C:\\x")).IsAbsolute());
    EXPECT_EQ(0, strFilenameW(U(L"C:x")).IsAbsolute());
    EXPECT_EQ(0, strFilenameW(U(L"dir\\a:b")).IsAbsolute());
    EXPECT_EQ(-1, strFilenameW(U(L"dir\\file")).IsAbsolute());
    EXPECT_EQ(-1, strFilenameW(U(L"")).IsAbsolute());
}

TEST(strFilenameW, EmptyNamePlusTextInsertsNoSeparator)
{
    strFilenameW empty;
    EXPECT_STREQ(L"x", empty + U(L"x"));
    EXPECT_STREQ(L"x", empty + strStringW(U(L"x")));
}

TEST(strFilenameW, PlusTextInsertsOneSeparator)
{
    EXPECT_STREQ(L"a\\b", strFilenameW(U(L"a")) + U(L"b"));
    EXPECT_STREQ(L"a\\b", strFilenameW(U(L"a\\")) + U(L"b"));
    EXPECT_STREQ(L"a\\\\b", strFilenameW(U(L"a\\")) + U(L"\\b"));
    EXPECT_STREQ(L"a\\\\b", strFilenameW(U(L"a")) + U(L"\\b"));
    EXPECT_STREQ(L"C:\\b", strFilenameW(U(L"C:")) + strStringW(U(L"b")));
    EXPECT_STREQ(L"a/\\b", strFilenameW(U(L"a/")) + U(L"b"));
    EXPECT_STREQ(L"a\\", strFilenameW(U(L"a")) + U(L""));
}

TEST(strFilenameW, PlusCharacterInsertsNothing)
{
    EXPECT_STREQ(L"ab", strFilenameW(U(L"a")) + static_cast<unsigned short>(L'b'));
    EXPECT_STREQ(L"a\\", strFilenameW(U(L"a")) + static_cast<unsigned short>(L'\\'));
    EXPECT_STREQ(L"x", strFilenameW() + static_cast<unsigned short>(L'x'));
}

TEST(strFilenameW, PlusEqualsChangesThisAndReturnsACopy)
{
    strFilenameW f(U(L"dir"));
    strFilenameW copy = (f += U(L"file"));
    EXPECT_STREQ(L"dir\\file", f);
    EXPECT_STREQ(L"dir\\file", copy);
    copy += static_cast<unsigned short>(L'x');
    EXPECT_STREQ(L"dir\\file", f);
    f += static_cast<unsigned short>(L'.');
    EXPECT_STREQ(L"dir\\file.", f);
}

TEST(strFilenameW, SetExtReplacesOrAddsTheExtension)
{
    strFilenameW f(U(L"C:\\a\\b.txt"));
    EXPECT_EQ(0, f.SetExt(U(L"bmp")));
    EXPECT_STREQ(L"C:\\a\\b.bmp", f);
    EXPECT_EQ(0, f.SetExt(U(L".png")));
    EXPECT_STREQ(L"C:\\a\\b.png", f);
    strFilenameW bare(U(L"C:\\a\\b"));
    bare.SetExt(U(L"txt"));
    EXPECT_STREQ(L"C:\\a\\b.txt", bare);
}

TEST(strFilenameW, SetExtKeepsADriveWithoutBackslashInTheName)
{
    strFilenameW f(U(L"C:b.txt"));
    f.SetExt(U(L"bmp"));
    EXPECT_STREQ(L"C:b.bmp", f);
}

TEST(strFilenameW, SetExtWithNothingChangesNothing)
{
    strFilenameW f(U(L"C:\\a\\b.txt"));
    EXPECT_EQ(0, f.SetExt(U(L"")));
    EXPECT_EQ(0, f.SetExt(nullptr));
    EXPECT_STREQ(L"C:\\a\\b.txt", f);
}

TEST(strFilenameW, SetExtOfADottedDirectoryAppendsToTheName)
{
    strFilenameW f(U(L"C:\\dir.old\\file"));
    f.SetExt(U(L"txt"));
    EXPECT_STREQ(L"C:\\dir.old\\file.txt", f);
}

TEST(strFilenameW, SetNameKeepsPathAndExtension)
{
    strFilenameW f(U(L"C:\\a\\b.txt"));
    EXPECT_EQ(0, f.SetName(U(L"c")));
    EXPECT_STREQ(L"C:\\a\\c.txt", f);
    strFilenameW plain(U(L"b.txt"));
    plain.SetName(U(L"c"));
    EXPECT_STREQ(L"c.txt", plain);
}

TEST(strFilenameW, SetNameDropsTheDotOfAnEmptyExtension)
{
    strFilenameW f(U(L"C:\\a\\file."));
    f.SetName(U(L"new"));
    EXPECT_STREQ(L"C:\\a\\new", f);
}

// A null name is taken as empty: only the path and the extension remain.
TEST(strFilenameW, SetNameWithNullNameKeepsPathAndExtension)
{
    strFilenameW f(U(L"C:\\a\\b.txt"));
    EXPECT_EQ(0, f.SetName(nullptr));
    EXPECT_STREQ(L"C:\\a\\.txt", f);
}

TEST(strFilenameW, SetNameExtReplacesEverythingAfterThePath)
{
    strFilenameW f(U(L"C:\\a\\b.txt"));
    EXPECT_EQ(0, f.SetNameExt(U(L"c.bmp")));
    EXPECT_STREQ(L"C:\\a\\c.bmp", f);
    strFilenameW plain(U(L"b.txt"));
    plain.SetNameExt(U(L"c"));
    EXPECT_STREQ(L"c", plain);
}

TEST(strFilenameW, SetPathJoinsWithOneSeparator)
{
    strFilenameW f(U(L"C:\\a\\b.txt"));
    EXPECT_EQ(0, f.SetPath(U(L"D:\\x\\")));
    EXPECT_STREQ(L"D:\\x\\b.txt", f);
    f.SetPath(U(L"D:\\y"));
    EXPECT_STREQ(L"D:\\y\\b.txt", f);
    f.SetPath(U(L"C:"));
    EXPECT_STREQ(L"C:\\b.txt", f);
    f.SetPath(U(L""));
    EXPECT_STREQ(L"b.txt", f);
    strFilenameW plain(U(L"name.ext"));
    plain.SetPath(U(L"dir"));
    EXPECT_STREQ(L"dir\\name.ext", plain);
}

TEST(strFilenameW, GetPathIsAFileName)
{
    strFilenameW path = strFilenameW(U(L"C:\\dir\\file.txt")).GetPath();
    EXPECT_STREQ(L"C:\\dir\\file2", path + U(L"file2"));
}

TEST(strFilenameW, NullTargetGetsTheAnswerOnly)
{
    strFilenameW f(U(L"C:\\dir\\file.txt"));
    EXPECT_EQ(0, f.GetExt(nullptr));
    EXPECT_EQ(-1, strFilenameW(U(L"x")).GetExt(nullptr));
}

TEST(strFilenameW, AssignsFromItselfAndText)
{
    strFilenameW f;
    strFilenameW g(U(L"g.txt"));
    EXPECT_EQ(&f, &(f = U(L"a.txt")));
    EXPECT_STREQ(L"a.txt", f);
    EXPECT_EQ(&f, &(f = g));
    EXPECT_STREQ(L"g.txt", f);
}

TEST(strFilenameW, SplitsNamesBeyondTheAnsiCodePage)
{
    strFilenameW f(U(L"C:\\D\u00e4ten\\\u65e5\u672c.\u8868"));
    EXPECT_STREQ(L"C:\\D\u00e4ten\\", f.GetPath());
    EXPECT_STREQ(L"\u65e5\u672c", f.GetName());
    EXPECT_STREQ(L"\u8868", f.GetExt());
    f.SetExt(U(L"\u00e9"));
    EXPECT_STREQ(L"C:\\D\u00e4ten\\\u65e5\u672c.\u00e9", f);
}
