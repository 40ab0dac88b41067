#include "Utf8.h"

#include <gtest/gtest.h>

using kiv::rules::AppendUtf8;
using kiv::rules::DecodeUtf8;
using kiv::rules::IsValidUtf8;
using kiv::rules::Utf16Length;

TEST(IsValidUtf8, AcceptsEveryPlaneOfUnicode)
{
    EXPECT_TRUE(IsValidUtf8(""));
    EXPECT_TRUE(IsValidUtf8("plain"));
    EXPECT_TRUE(IsValidUtf8("\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80"));  // a-umlaut, euro, emoji
    EXPECT_TRUE(IsValidUtf8("\xF4\x8F\xBF\xBF"));                      // U+10FFFF
}

TEST(IsValidUtf8, RefusesOverlongSurrogateAndTooHighForms)
{
    EXPECT_FALSE(IsValidUtf8("\xC0\xAF"));
    EXPECT_FALSE(IsValidUtf8("\xE0\x80\xAF"));
    EXPECT_FALSE(IsValidUtf8("\xF0\x80\x80\xAF"));
    EXPECT_FALSE(IsValidUtf8("\xED\xA0\x80"));      // U+D800
    EXPECT_FALSE(IsValidUtf8("\xF4\x90\x80\x80"));  // above U+10FFFF
    EXPECT_FALSE(IsValidUtf8("\xFF"));
}

TEST(IsValidUtf8, RefusesCutAndStraySequences)
{
    EXPECT_FALSE(IsValidUtf8("\xC3"));
    EXPECT_FALSE(IsValidUtf8("\xE2\x82"));
    EXPECT_FALSE(IsValidUtf8("\x80"));
    EXPECT_FALSE(IsValidUtf8("\xE2\x28\xA1"));
}

TEST(AppendUtf8, EncodesSurrogatePairsAsOneCharacter)
{
    const char16_t units[] = {u'A', 0xE4, 0x20AC, 0xD83D, 0xDE00};
    std::string out = "x";
    ASSERT_TRUE(AppendUtf8(units, 5, out));
    EXPECT_EQ("xA\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80", out);
}

TEST(AppendUtf8, LoneSurrogateIsRefusedAndLeavesTheOutputAlone)
{
    const char16_t high[] = {u'a', 0xD83D, u'b'};
    const char16_t low[] = {0xDE00};
    const char16_t last[] = {u'a', 0xD800};
    std::string out = "kept";
    EXPECT_FALSE(AppendUtf8(high, 3, out));
    EXPECT_FALSE(AppendUtf8(low, 1, out));
    EXPECT_FALSE(AppendUtf8(last, 2, out));
    EXPECT_EQ("kept", out);
}

TEST(DecodeUtf8, GivesBackTheUnitsThatWereEncoded)
{
    const char16_t units[] = {u'A', 0x7F, 0x80, 0x7FF, 0x800, 0xFFFD, 0xD800, 0xDC00, 0xDBFF, 0xDFFF};
    std::string utf8;
    ASSERT_TRUE(AppendUtf8(units, 10, utf8));
    ASSERT_EQ(10u, Utf16Length(utf8));
    char16_t decoded[10] = {};
    DecodeUtf8(utf8, decoded);
    EXPECT_EQ(std::u16string(units, 10), std::u16string(decoded, 10));
}

// ASCII is read eight bytes at a time: runs of every length, cut by other characters at every place.
TEST(DecodeUtf8, AsciiRunsOfEveryLengthBesideOtherCharactersAndTheEndItAnswers)
{
    for (std::size_t before = 0; before < 20; ++before)
        for (std::size_t after = 0; after < 20; ++after)
        {
            std::u16string units;
            for (std::size_t i = 0; i < before; ++i)
                units += static_cast<char16_t>(u'a' + i);
            units += u"\u00DC\U0001F600";
            for (std::size_t i = 0; i < after; ++i)
                units += static_cast<char16_t>(u'0' + i % 10);
            std::string utf8;
            ASSERT_TRUE(AppendUtf8(units.data(), units.size(), utf8));
            std::u16string decoded(utf8.size() + 1, u'#');
            char16_t* end = DecodeUtf8(utf8, decoded.data());
            ASSERT_EQ(units.size(), static_cast<std::size_t>(end - decoded.data())) << before << " " << after;
            EXPECT_EQ(units, decoded.substr(0, units.size()));
            EXPECT_EQ(u'#', decoded[units.size()]);  // nothing written past the end
        }
}

TEST(FirstCharacter, TakesOneWholeCharacterOfEachLength)
{
    using kiv::rules::FirstCharacter;
    EXPECT_EQ("", FirstCharacter(""));
    EXPECT_EQ("H", FirstCharacter("Hallo"));
    EXPECT_EQ("\xC3\x9C", FirstCharacter("\xC3\x9C"
                                         "bersetzung"));
    EXPECT_EQ("\xE6\x97\xA5", FirstCharacter("\xE6\x97\xA5\xE6\x9C\xAC"));
    EXPECT_EQ("\xF0\x9F\x98\x80", FirstCharacter("\xF0\x9F\x98\x80!"));
}

TEST(FirstCharacter, NeverReachesPastACutText)
{
    // Callers hand well-formed text; a cut one still yields no more than it holds.
    EXPECT_EQ("\xE6\x97", kiv::rules::FirstCharacter("\xE6\x97"));
}
