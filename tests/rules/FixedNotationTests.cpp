#include "FixedNotation.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

using kiv::rules::FixedLayout;
using kiv::rules::LayoutFixed;

namespace {

// The text the layout gives for a digit string, as the string classes build it.
std::string Compose(const std::string& digits, int decpt, int sign, int decimals)
{
    FixedLayout l = LayoutFixed(sign, decpt, decimals, static_cast<int>(digits.size()));
    std::string out = l.negative ? "-" : "";
    out += l.leadingZero ? std::string("0") : digits.substr(0, l.integerDigits);
    out += '.';
    out += std::string(l.zeros, '0');
    out += digits.substr(l.fractionFirst);
    return out;
}

}  // namespace

TEST(FixedNotation, IntegerDigitsThenPointThenTheRest)
{
    EXPECT_EQ("12.50", Compose("1250", 2, 0, 2));
    EXPECT_EQ("-1.5", Compose("15", 1, 1, 1));
}

TEST(FixedNotation, ValuesBelowOneStartWithZero)
{
    EXPECT_EQ("0.5", Compose("5", 0, 0, 1));
    EXPECT_EQ("0.25", Compose("25", 0, 0, 2));
}

TEST(FixedNotation, ZeroDecimalsKeepTheTrailingPoint)
{
    EXPECT_EQ("13.", Compose("13", 2, 0, 0));
}

TEST(FixedNotation, NegativeDecptFillsZerosUpToTheFirstDigit)
{
    EXPECT_EQ("0.05", Compose("5", -1, 0, 2));
    EXPECT_EQ("0.0012", Compose("12", -2, 0, 4));
    EXPECT_EQ("-0.05", Compose("5", -1, 1, 2));
}

TEST(FixedNotation, ValueRoundingToNothingGivesAllZeroDecimals)
{
    EXPECT_EQ("0.00", Compose("", -2, 0, 2));
    // A decpt further left than the decimals reach adds no extra zeros.
    EXPECT_EQ("0.00", Compose("", -3, 0, 2));
    EXPECT_EQ("0.", Compose("", -1, 0, -2));
}

TEST(FixedNotation, ShortDigitStringsAreNeverOverrun)
{
    FixedLayout l = LayoutFixed(0, 5, -1, 4);
    EXPECT_FALSE(l.leadingZero);
    EXPECT_EQ(4, l.integerDigits);
    EXPECT_EQ(4, l.fractionFirst);
    l = LayoutFixed(0, INT_MAX, INT_MAX, 0);
    EXPECT_EQ(0, l.integerDigits);
    EXPECT_EQ(0, l.fractionFirst);
    EXPECT_EQ(".", Compose("", 3, 0, 0));
    l = LayoutFixed(0, INT_MIN, INT_MAX, 0);
    EXPECT_TRUE(l.leadingZero);
    EXPECT_EQ(INT_MAX, l.zeros);
    l = LayoutFixed(0, INT_MIN, INT_MIN, 3);
    EXPECT_EQ(0, l.zeros);
}
