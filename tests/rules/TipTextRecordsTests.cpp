#include "TipTextRecords.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using kiv::rules::TextPart;
using kiv::rules::TipTextRecord;
using kiv::rules::WalkTipTextRecords;

namespace {

std::vector<std::pair<unsigned, std::string>> Walk(const std::string& bytes)
{
    std::vector<std::pair<unsigned, std::string>> records;
    WalkTipTextRecords(bytes.data(), bytes.size(),
                       [&](const TipTextRecord& r) { records.emplace_back(r.id, std::string(r.text)); });
    return records;
}

}  // namespace

TEST(TipTextRecords, RecordsFollowEachOther)
{
    const char raw[] = "\xE9\x03Opens the file\nOpen\0\x0A\x00Save\nSave it";
    std::string bytes(raw, sizeof(raw));  // with the last terminator
    auto records = Walk(bytes);
    ASSERT_EQ(2u, records.size());
    EXPECT_EQ(1001u, records[0].first);
    EXPECT_EQ("Opens the file\nOpen", records[0].second);
    EXPECT_EQ(10u, records[1].first);
    EXPECT_EQ("Save\nSave it", records[1].second);
}

TEST(TipTextRecords, FewerThanThreeBytesEndTheWalk)
{
    EXPECT_TRUE(Walk(std::string("\x01\x00", 2)).empty());
    std::string bytes("\x01\x00"
                      "a\0"
                      "\x02\x00",
                      6);
    EXPECT_EQ(1u, Walk(bytes).size());
}

TEST(TipTextRecords, UnterminatedLastTextEndsAtTheEndOfTheData)
{
    auto records = Walk(std::string("\x05\x00"
                                    "abc\ndef",
                                    9));
    ASSERT_EQ(1u, records.size());
    EXPECT_EQ("abc\ndef", records[0].second);
}

TEST(TipTextRecords, EmptyTextIsARecordToo)
{
    auto records = Walk(std::string("\x05\x00\0\x06\x00x\0", 7));
    ASSERT_EQ(2u, records.size());
    EXPECT_EQ("", records[0].second);
    EXPECT_EQ(6u, records[1].first);
}

TEST(TipTextRecords, TipIsPartOneOfTheText)
{
    std::string_view part;
    ASSERT_TRUE(TextPart("Opens the file\nOpen", 1, '\n', part));
    EXPECT_EQ("Open", part);
    EXPECT_FALSE(TextPart("Open", 1, '\n', part));
    ASSERT_TRUE(TextPart("prompt\ntip\nmore", 1, '\n', part));
    EXPECT_EQ("tip", part);
    ASSERT_TRUE(TextPart("prompt\n", 1, '\n', part));
    EXPECT_EQ("", part);
}

TEST(TipTextRecords, AHundredThousandRecordsAreWalkedToTheEndAndNoFurther)
{
    std::string bytes;
    for (unsigned i = 0; i < 100000; ++i)
    {
        bytes += static_cast<char>(i & 0xFF);
        bytes += static_cast<char>((i >> 8) & 0xFF);
        bytes += "Tip " + std::to_string(i) + "\nPrompt";
        bytes += '\0';
    }
    // The last record's terminator is cut off: its text ends where the data does.
    bytes.pop_back();
    std::vector<char> exact(bytes.begin(), bytes.end());  // no byte past the data to lean on
    std::size_t last = 0;
    std::string lastText;
    std::size_t handed = WalkTipTextRecords(exact.data(), exact.size(), [&](const TipTextRecord& r) {
        last = r.id;
        lastText = std::string(r.text);
    });
    EXPECT_EQ(100000u, handed);
    EXPECT_EQ(99999u & 0xFFFF, last);
    EXPECT_EQ("Tip 99999\nPrompt", lastText);
}

// The records carry no lengths: a text runs to its zero. A resource cut short (whatever sizes
// its records seemed to promise) therefore ends its last text at the end of the data, and a
// lone id byte or an id with nothing after it is no record.
TEST(TipTextRecords, RecordCutShortInsideItsIdOrTextNeverReadsPastTheData)
{
    const std::string whole("\x01\x00"
                            "First\nOne\0"
                            "\x02\x00"
                            "Second\nTwo\0",
                            25);
    for (std::size_t size = 0; size <= whole.size(); ++size)
    {
        std::vector<char> cut(whole.begin(), whole.begin() + (std::ptrdiff_t)size);
        std::size_t seen = 0;
        WalkTipTextRecords(cut.data(), cut.size(), [&](const TipTextRecord& r) {
            EXPECT_GE(r.text.data(), cut.data());
            EXPECT_LE(r.text.data() + r.text.size(), cut.data() + cut.size()) << size;
            ++seen;
        });
        std::size_t expected = size < 3 ? 0 : size < 15 ? 1 : 2;
        EXPECT_EQ(expected, seen) << size;
    }
}
