#include "FileNameParts.h"

#include <gtest/gtest.h>

#include <string>

using namespace kiv::rules;

namespace {

// One part of a name as text, or "<absent>", for narrow and 16-bit wide names alike.
template <typename Ch> std::string Text(const std::basic_string<Ch>& name, FilePart part)
{
    if (!part.present)
        return "<absent>";
    EXPECT_GE(part.first, 0);
    EXPECT_GE(part.count, 0);
    EXPECT_LE(part.first + part.count, static_cast<int>(name.size()));
    std::string out;
    for (int i = part.first; i < part.first + part.count; ++i)
        out += static_cast<char>(name[i]);
    return out;
}

struct Parts
{
    std::string drive, path, nameExt, name, ext;
    bool absolute;
};

template <typename Ch> Parts Split(const std::basic_string<Ch>& s)
{
    const Ch* p = s.c_str();
    int n = static_cast<int>(s.size());
    return {Text(s, DrivePart(p, n)), Text(s, PathPart(p, n)), Text(s, NameExtPart(p, n)),
            Text(s, NamePart(p, n)),  Text(s, ExtPart(p, n)),  HasDriveColon(p, n)};
}

std::u16string Wide(const std::string& s)
{
    return std::u16string(s.begin(), s.end());
}

// Every case is checked narrow and wide, with the same expected parts.
void ExpectParts(const std::string& name, const Parts& expected)
{
    for (const Parts& got : {Split(name), Split(Wide(name))})
    {
        EXPECT_EQ(expected.drive, got.drive) << name;
        EXPECT_EQ(expected.path, got.path) << name;
        EXPECT_EQ(expected.nameExt, got.nameExt) << name;
        EXPECT_EQ(expected.name, got.name) << name;
        EXPECT_EQ(expected.ext, got.ext) << name;
        EXPECT_EQ(expected.absolute, got.absolute) << name;
    }
}

}  // namespace

TEST(FileNameParts, FullNameSplitsIntoEveryPart)
{
    ExpectParts("C:\\dir\\file.txt", {"C:", "C:\\dir\\", "file.txt", "file", "txt", true});
}

TEST(FileNameParts, DotInDirectoryIsNotExtension)
{
    ExpectParts("C:\\dir.old\\file", {"C:", "C:\\dir.old\\", "file", "file", "<absent>", true});
}

TEST(FileNameParts, LastDotStartsTheExtension)
{
    ExpectParts("archive.tar.gz", {"<absent>", "<absent>", "archive.tar.gz", "archive.tar", "gz", false});
}

TEST(FileNameParts, LeadingDotIsAnEmptyNameWithExtension)
{
    ExpectParts(".profile", {"<absent>", "<absent>", ".profile", "", "profile", false});
}

TEST(FileNameParts, ForwardSlashSeparatesNothing)
{
    ExpectParts("dir/sub/file.txt", {"<absent>", "<absent>", "dir/sub/file.txt", "dir/sub/file", "txt", false});
}

TEST(FileNameParts, TrailingBackslashLeavesAnEmptyName)
{
    ExpectParts("C:\\dir\\", {"C:", "C:\\dir\\", "", "", "<absent>", true});
}

TEST(FileNameParts, ServerNamesHaveNoDrive)
{
    ExpectParts("\\\\server\\share\\f.txt", {"<absent>", "\\\\server\\share\\", "f.txt", "f", "txt", false});
}

TEST(FileNameParts, DriveEndsAtTheFirstColon)
{
    ExpectParts("C:\\a:b", {"C:", "C:\\", "a:b", "a:b", "<absent>", true});
    ExpectParts("file:1", {"file:", "<absent>", "file:1", "file:1", "<absent>", true});
}

TEST(FileNameParts, TrailingDotIsAnEmptyExtension)
{
    ExpectParts("file.", {"<absent>", "<absent>", "file.", "file", "", false});
}

TEST(FileNameParts, EmptyNameHasOnlyEmptyParts)
{
    ExpectParts("", {"<absent>", "<absent>", "", "", "<absent>", false});
}

TEST(FileNameParts, DriveWithoutBackslashKeepsTheDriveInTheName)
{
    ExpectParts("C:b.txt", {"C:", "<absent>", "C:b.txt", "C:b", "txt", true});
}

TEST(FileNameParts, SeparatorOnlyAfterANonEmptyTextNotEndingInBackslash)
{
    EXPECT_FALSE(NeedsSeparator("", 0));
    EXPECT_TRUE(NeedsSeparator("a", 1));
    EXPECT_FALSE(NeedsSeparator("a\\", 2));
    EXPECT_TRUE(NeedsSeparator("a/", 2));
    EXPECT_FALSE(NeedsSeparator(u"a\\", 2));
    EXPECT_TRUE(NeedsSeparator(u"C:", 2));
}

TEST(FileNameParts, OnlyTheExactUnitsCarryMeaning)
{
    // Wide units whose low byte is '\', '.' or ':' are ordinary characters.
    std::u16string wide = u"a\u015Cb\\c\u012Ed.x\u013A";
    FilePart path = PathPart(wide.c_str(), static_cast<int>(wide.size()));
    EXPECT_EQ(4, path.count);
    FilePart ext = ExtPart(wide.c_str(), static_cast<int>(wide.size()));
    EXPECT_EQ(8, ext.first);
    EXPECT_FALSE(HasDriveColon(wide.c_str(), static_cast<int>(wide.size())));
    // High narrow bytes are negative chars and never match.
    std::string narrow = "\xdc\\\xe4.x";
    EXPECT_EQ(2, PathPart(narrow.c_str(), 5).count);
    EXPECT_EQ(4, ExtPart(narrow.c_str(), 5).first);
}
