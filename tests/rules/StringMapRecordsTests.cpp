#include "StringMapRecords.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using kiv::rules::StringMapRecord;
using kiv::rules::WalkStringMapRecords;

namespace {

typedef std::vector<std::pair<unsigned int, std::string>> Records;

// Walks a copy of exactly the given bytes on the heap, so that a read past them is caught.
Records Walk(const std::string& bytes, std::size_t* handed = nullptr)
{
    std::vector<unsigned char> heap(bytes.begin(), bytes.end());
    const unsigned char* begin = heap.data();
    const unsigned char* end = begin + heap.size();
    Records out;
    std::size_t n = WalkStringMapRecords(begin, heap.size(), [&](const StringMapRecord& r) {
        EXPECT_GE(reinterpret_cast<const unsigned char*>(r.name), begin);
        EXPECT_LE(reinterpret_cast<const unsigned char*>(r.name) + r.length, end);
        out.emplace_back(r.id, std::string(r.name, r.length));
    });
    EXPECT_EQ(out.size(), n);
    if (handed)
        *handed = n;
    return out;
}

std::string Bytes(const char* text, std::size_t n)
{
    return std::string(text, n);
}

}  // namespace

TEST(StringMapRecords, RecordsFollowEachOtherWithoutPadding)
{
    Records r = Walk(Bytes("\x01\x00OPEN\0\x02\x00"
                           "Close\0",
                           15));
    EXPECT_EQ((Records{{1, "OPEN"}, {2, "Close"}}), r);
}

TEST(StringMapRecords, IdentifiersAreLittleEndianSixteenBits)
{
    Records r = Walk(Bytes("\x34\x12"
                           "a\0\xff\xff"
                           "b\0",
                           8));
    EXPECT_EQ((Records{{0x1234, "a"}, {0xFFFF, "b"}}), r);
}

TEST(StringMapRecords, IdentifierWithTwoZeroBytesEndsTheData)
{
    Records r = Walk(Bytes("\x01\x00"
                           "A\0\x07\x00\0\0\x02\x00"
                           "B\0",
                           12));
    EXPECT_EQ((Records{{1, "A"}}), r);
}

TEST(StringMapRecords, EndMarkAtTheEndStoresNothing)
{
    Records r = Walk(Bytes("\x01\x00"
                           "A\0\x00\x00\0\0",
                           8));
    EXPECT_EQ((Records{{1, "A"}}), r);
}

TEST(StringMapRecords, EmptyNameBeforeMoreTextIsARecord)
{
    // Only a zero word ends the data; a zero byte followed by text is an empty name.
    Records r = Walk(Bytes("\x05\x00\0\x06\x00"
                           "X\0",
                           7));
    EXPECT_EQ((Records{{5, ""}, {6, "X"}}), r);
}

TEST(StringMapRecords, LastNameWithoutItsZeroStopsAtTheEnd)
{
    Records r = Walk(Bytes("\x01\x00"
                           "A\0\x02\x00"
                           "OPE",
                           9));
    EXPECT_EQ((Records{{1, "A"}, {2, "OPE"}}), r);
}

TEST(StringMapRecords, OddTrailingByteIsNoRecord)
{
    Records r = Walk(Bytes("\x01\x00"
                           "A\0z",
                           5));
    EXPECT_EQ((Records{{1, "A"}}), r);
}

TEST(StringMapRecords, IdentifierWithoutANameIsNoRecord)
{
    Records r = Walk(Bytes("\x01\x00"
                           "A\0\x02\x00",
                           6));
    EXPECT_EQ((Records{{1, "A"}}), r);
}

TEST(StringMapRecords, SingleNameByteAtTheEndIsAName)
{
    Records r = Walk(Bytes("\x01\x00"
                           "A\0\x02\x00"
                           "Q",
                           7));
    EXPECT_EQ((Records{{1, "A"}, {2, "Q"}}), r);
}

TEST(StringMapRecords, ZeroNameByteAtTheEndIsACutEndMark)
{
    Records r = Walk(Bytes("\x01\x00"
                           "A\0\x02\x00\0",
                           7));
    EXPECT_EQ((Records{{1, "A"}}), r);
}

TEST(StringMapRecords, EmptyDataHasNoRecords)
{
    std::size_t handed = 99;
    EXPECT_TRUE(Walk("", &handed).empty());
    EXPECT_EQ(0u, handed);
    EXPECT_EQ(0u, WalkStringMapRecords(nullptr, 0, [](const StringMapRecord&) { FAIL(); }));
}

TEST(StringMapRecords, HighNameBytesAreKeptAsTheyAre)
{
    Records r = Walk(Bytes("\x09\x00\xc4\xd6\0", 5));
    EXPECT_EQ((Records{{9, "\xc4\xd6"}}), r);
}
