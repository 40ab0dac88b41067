#include "TranslationBuffer.h"

#include <gtest/gtest.h>

#include <string>

using kiv::rules::TranslationCopyLength;

TEST(TranslationBuffer, ShortTextIsCopiedWhole)
{
    std::u16string text(255, u'a');
    EXPECT_EQ(255u, TranslationCopyLength(text.data(), text.size()));
    EXPECT_EQ(0u, TranslationCopyLength(u"", 0));
}

TEST(TranslationBuffer, TextOf256UnitsIsCutTo255)
{
    std::u16string text(256, u'a');
    EXPECT_EQ(255u, TranslationCopyLength(text.data(), text.size()));
    std::u16string longer(100000, u'b');
    EXPECT_EQ(255u, TranslationCopyLength(longer.data(), longer.size()));
}

TEST(TranslationBuffer, CutNeverSplitsASurrogatePair)
{
    std::u16string text(254, u'a');
    text += u"\U0001F600";  // units 254 and 255
    text += u"zz";
    EXPECT_EQ(254u, TranslationCopyLength(text.data(), text.size()));
    std::u16string before(253, u'a');
    before += u"\U0001F600";  // units 253 and 254 fit
    before += u"zz";
    EXPECT_EQ(255u, TranslationCopyLength(before.data(), before.size()));
}
