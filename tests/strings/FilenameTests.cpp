// strFilename: splitting a name into its parts and rebuilding it with one part replaced.
#include <KivMFC.h>
#include <gtest/gtest.h>

namespace {

// Every getter's pointer form: the part, or "<absent>" with the target left unchanged.
CString Part(int (strFilename::*getter)(strString*) const, const strFilename& name)
{
    strString out("unchanged");
    int result = (name.*getter)(&out);
    if (result == -1)
    {
        EXPECT_STREQ("unchanged", out);
        return "<absent>";
    }
    EXPECT_EQ(0, result);
    return out;
}

}  // namespace

TEST(strFilename, SplitsAFullNameIntoEveryPart)
{
    strFilename f("C:\\dir\\file.txt");
    EXPECT_STREQ("C:", Part(&strFilename::GetDrive, f));
    EXPECT_STREQ("C:\\dir\\", Part(&strFilename::GetPath, f));
    EXPECT_STREQ("file.txt", Part(&strFilename::GetNameExt, f));
    EXPECT_STREQ("file", Part(&strFilename::GetName, f));
    EXPECT_STREQ("txt", Part(&strFilename::GetExt, f));
    EXPECT_STREQ("C:", f.GetDrive());
    EXPECT_STREQ("C:\\dir\\", f.GetPath());
    EXPECT_STREQ("file.txt", f.GetNameExt());
    EXPECT_STREQ("file", f.GetName());
    EXPECT_STREQ("txt", f.GetExt());
}

TEST(strFilename, DotInDirectoryIsNotExtension)
{
    strFilename f("C:\\dir.old\\file");
    strString ext("unchanged");
    EXPECT_EQ(-1, f.GetExt(&ext));
    EXPECT_STREQ("unchanged", ext);
    EXPECT_STREQ("", f.GetExt());
    EXPECT_STREQ("file", f.GetName());
}

TEST(strFilename, LastDotStartsTheExtension)
{
    strFilename f("archive.tar.gz");
    EXPECT_STREQ("archive.tar", f.GetName());
    EXPECT_STREQ("gz", f.GetExt());
}

TEST(strFilename, LeadingDotIsAnEmptyNameWithExtension)
{
    strFilename f(".profile");
    EXPECT_STREQ("", Part(&strFilename::GetName, f));
    EXPECT_STREQ("profile", Part(&strFilename::GetExt, f));
}

TEST(strFilename, ForwardSlashSeparatesNothing)
{
    strFilename f("dir/sub/file.txt");
    EXPECT_STREQ("<absent>", Part(&strFilename::GetPath, f));
    EXPECT_STREQ("", f.GetPath());
    EXPECT_STREQ("dir/sub/file.txt", Part(&strFilename::GetNameExt, f));
    EXPECT_STREQ("dir/sub/file", Part(&strFilename::GetName, f));
}

TEST(strFilename, TrailingBackslashLeavesAnEmptyName)
{
    strFilename f("C:\\dir\\");
    EXPECT_STREQ("C:\\dir\\", Part(&strFilename::GetPath, f));
    EXPECT_STREQ("", Part(&strFilename::GetNameExt, f));
    EXPECT_STREQ("", Part(&strFilename::GetName, f));
    EXPECT_STREQ("<absent>", Part(&strFilename::GetExt, f));
}

TEST(strFilename, ServerNameHasNoDriveAndIsNotAbsolute)
{
    strFilename f("\\\\server\\share\\f.txt");
    EXPECT_STREQ("<absent>", Part(&strFilename::GetDrive, f));
    EXPECT_STREQ("\\\\server\\share\\", Part(&strFilename::GetPath, f));
    EXPECT_EQ(-1, f.IsAbsolute());
}

TEST(strFilename, DriveEndsAtTheFirstColon)
{
    EXPECT_STREQ("C:", strFilename("C:\\a:b").GetDrive());
    EXPECT_STREQ("file:", strFilename("file:1").GetDrive());
    EXPECT_STREQ("<absent>", Part(&strFilename::GetDrive, strFilename("a\\b")));
}

TEST(strFilename, IsAbsoluteAnswersZeroForAnyColon)
{
    EXPECT_EQ(0, strFilename("C:\\x").IsAbsolute());
    EXPECT_EQ(0, strFilename("C:x").IsAbsolute());
    EXPECT_EQ(0, strFilename("dir\\a:b").IsAbsolute());
    EXPECT_EQ(-1, strFilename("dir\\file").IsAbsolute());
    EXPECT_EQ(-1, strFilename("").IsAbsolute());
}

TEST(strFilename, EmptyNamePlusTextInsertsNoSeparator)
{
    strFilename empty;
    EXPECT_STREQ("x", empty + "x");
    EXPECT_STREQ("x", empty + strString("x"));
}

TEST(strFilename, PlusTextInsertsOneSeparator)
{
    EXPECT_STREQ("a\\b", strFilename("a") + "b");
    EXPECT_STREQ("a\\b", strFilename("a\\") + "b");
    EXPECT_STREQ("a\\\\b", strFilename("a\\") + "\\b");
    EXPECT_STREQ("a\\\\b", strFilename("a") + "\\b");
    EXPECT_STREQ("C:\\b", strFilename("C:") + strString("b"));
    EXPECT_STREQ("a/\\b", strFilename("a/") + "b");
    EXPECT_STREQ("a\\", strFilename("a") + "");
}

TEST(strFilename, PlusCharacterInsertsNothing)
{
    EXPECT_STREQ("ab", strFilename("a") + 'b');
    EXPECT_STREQ("a\\", strFilename("a") + '\\');
    EXPECT_STREQ("x", strFilename() + 'x');
}

TEST(strFilename, PlusEqualsChangesThisAndReturnsACopy)
{
    strFilename f("dir");
    strFilename copy = (f += "file");
    EXPECT_STREQ("dir\\file", f);
    EXPECT_STREQ("dir\\file", copy);
    copy += 'x';
    EXPECT_STREQ("dir\\file", f);
    f += '.';
    EXPECT_STREQ("dir\\file.", f);
}

TEST(strFilename, SetExtReplacesOrAddsTheExtension)
{
    strFilename f("C:\\a\\b.txt");
    EXPECT_EQ(0, f.SetExt("bmp"));
    EXPECT_STREQ("C:\\a\\b.bmp", f);
    EXPECT_EQ(0, f.SetExt(".png"));
    EXPECT_STREQ("C:\\a\\b.png", f);
    strFilename bare("C:\\a\\b");
    bare.SetExt("txt");
    EXPECT_STREQ("C:\\a\\b.txt", bare);
}

TEST(strFilename, SetExtKeepsADriveWithoutBackslashInTheName)
{
    strFilename f("C:b.txt");
    f.SetExt("bmp");
    EXPECT_STREQ("C:b.bmp", f);
}

TEST(strFilename, SetExtWithNothingChangesNothing)
{
    strFilename f("C:\\a\\b.txt");
    EXPECT_EQ(0, f.SetExt(""));
    EXPECT_EQ(0, f.SetExt(nullptr));
    EXPECT_STREQ("C:\\a\\b.txt", f);
}

TEST(strFilename, SetExtOfADottedDirectoryAppendsToTheName)
{
    strFilename f("C:\\dir.old\\file");
    f.SetExt("txt");
    EXPECT_STREQ("C:\\dir.old\\file.txt", f);
}

TEST(strFilename, SetNameKeepsPathAndExtension)
{
    strFilename f("C:\\a\\b.txt");
    EXPECT_EQ(0, f.SetName("c"));
    EXPECT_STREQ("C:\\a\\c.txt", f);
    strFilename plain("b.txt");
    plain.SetName("c");
    EXPECT_STREQ("c.txt", plain);
}

TEST(strFilename, SetNameDropsTheDotOfAnEmptyExtension)
{
    strFilename f("C:\\a\\file.");
    f.SetName("new");
    EXPECT_STREQ("C:\\a\\new", f);
}

// A null name is taken as empty: only the path and the extension remain.
TEST(strFilename, SetNameWithNullNameKeepsPathAndExtension)
{
    strFilename f("C:\\a\\b.txt");
    EXPECT_EQ(0, f.SetName(nullptr));
    EXPECT_STREQ("C:\\a\\.txt", f);
}

TEST(strFilename, SetNameExtReplacesEverythingAfterThePath)
{
    strFilename f("C:\\a\\b.txt");
    EXPECT_EQ(0, f.SetNameExt("c.bmp"));
    EXPECT_STREQ("C:\\a\\c.bmp", f);
    strFilename plain("b.txt");
    plain.SetNameExt("c");
    EXPECT_STREQ("c", plain);
}

TEST(strFilename, SetPathJoinsWithOneSeparator)
{
    strFilename f("C:\\a\\b.txt");
    EXPECT_EQ(0, f.SetPath("D:\\x\\"));
    EXPECT_STREQ("D:\\x\\b.txt", f);
    f.SetPath("D:\\y");
    EXPECT_STREQ("D:\\y\\b.txt", f);
    f.SetPath("C:");
    EXPECT_STREQ("C:\\b.txt", f);
    f.SetPath("");
    EXPECT_STREQ("b.txt", f);
    strFilename plain("name.ext");
    plain.SetPath("dir");
    EXPECT_STREQ("dir\\name.ext", plain);
}

TEST(strFilename, GetPathIsAFileName)
{
    strFilename path = strFilename("C:\\dir\\file.txt").GetPath();
    EXPECT_STREQ("C:\\dir\\file2", path + "file2");
}

TEST(strFilename, NullTargetGetsTheAnswerOnly)
{
    strFilename f("C:\\dir\\file.txt");
    EXPECT_EQ(0, f.GetExt(nullptr));
    EXPECT_EQ(-1, strFilename("x").GetExt(nullptr));
}

TEST(strFilename, AssignsFromItselfAndText)
{
    strFilename f;
    strFilename g("g.txt");
    EXPECT_EQ(&f, &(f = "a.txt"));
    EXPECT_STREQ("a.txt", f);
    EXPECT_EQ(&f, &(f = g));
    EXPECT_STREQ("g.txt", f);
}
