#include "MenuTextHash.h"

#include <gtest/gtest.h>

#include <string>

using kiv::rules::MenuTextHash;

namespace {

int KeyOf(const std::string& text)
{
    return static_cast<int>(MenuTextHash(reinterpret_cast<const unsigned char*>(text.data()), text.size()));
}

}  // namespace

TEST(MenuTextHash, AmpersandFileGivesItsKnownKey)
{
    EXPECT_EQ(28605839, KeyOf("&File"));
}

TEST(MenuTextHash, SingleLetterUsesItTwice)
{
    EXPECT_EQ(1106, KeyOf("A"));
}

TEST(MenuTextHash, EmptyTextIsZero)
{
    EXPECT_EQ(0, KeyOf(""));
}

TEST(MenuTextHash, ShortTextsUseFirstAndLastByteOnly)
{
    EXPECT_EQ('a' + 1 + 16 * 'c', KeyOf("abc"));
    EXPECT_EQ(KeyOf("axc"), KeyOf("abc"));
}

TEST(MenuTextHash, LongTextsReadBytesOneToThreeAndTheLast)
{
    EXPECT_EQ(KeyOf("&Filter"), KeyOf("&Fil-------r"));
    EXPECT_NE(KeyOf("&File"), KeyOf("&File\tAlt+F"));  // the tab part counts
    EXPECT_NE(KeyOf("File"), KeyOf("&File"));          // so does the ampersand
}

TEST(MenuTextHash, BytesAboveSevenBitsCountUnsigned)
{
    std::string text = "\xE4xx\xFC";
    unsigned expected = 0xE4u + 8u * (0xFCu + 8u * ((0xFCu * 64u + 'x') * 64u + 'x')) + 1u;
    EXPECT_EQ(static_cast<int>(expected), KeyOf(text));
}

TEST(MenuTextHash, ArithmeticWrapsAtThirtyTwoBits)
{
    std::string text = "\xFF\xFF\xFF\xFF";
    unsigned long long wide = 0xFFull + 8ull * (0xFFull + 8ull * ((0xFFull * 64 + 0xFF) * 64 + 0xFF)) + 1ull;
    EXPECT_EQ(static_cast<unsigned>(wide & 0xFFFFFFFFull),
              MenuTextHash(reinterpret_cast<const unsigned char*>(text.data()), 4));
}
