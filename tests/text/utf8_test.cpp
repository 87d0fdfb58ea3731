// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "text/utf8.h"

namespace orva {
namespace {

TEST(Utf8, ReadsBackEveryCharacter) {
    for (char32_t character = 0; character <= 0x10FFFF; ++character) {
        if (character >= 0xD800 && character <= 0xDFFF)
            continue;
        std::string text;
        AppendUtf8(text, character);
        const Utf8Step step = FirstCharacter(text);
        ASSERT_EQ(step.character, character);
        ASSERT_EQ(step.length, text.size());
    }
}

TEST(Utf8, WritesTheKnownBytes) {
    std::string text;
    for (const char32_t character : {U'A', U'ß', U'€', U'\U0001D6E5'})
        AppendUtf8(text, character);
    EXPECT_EQ(text, "A\xC3\x9F\xE2\x82\xAC\xF0\x9D\x9B\xA5");
}

TEST(Utf8, WritesAReplacementForWhatIsNoCharacter) {
    for (const char32_t value : {char32_t{0xD800}, char32_t{0xDFFF}, char32_t{0x110000}}) {
        std::string text;
        AppendUtf8(text, value);
        EXPECT_EQ(text, "\xEF\xBF\xBD");
    }
}

TEST(Utf8, StepsOverWhatIsNoCharacter) {
    struct Row {
        std::string text;
        std::size_t length;
    };
    const std::vector<Row> rows = {
        {"\x80", 1}, // a following byte alone
        {"\xFF"
         "a",
         1},                     // never in UTF-8
        {"\xC0\x80", 1},         // overlong
        {"\xE0\x80\x80", 1},     // overlong
        {"\xED\xA0\x80", 1},     // surrogate
        {"\xF4\x90\x80\x80", 1}, // above U+10FFFF
        {"\xE2\x82", 2},         // cut off
        {"\xE2\x82"
         "a",
         2},                 // broken off
        {"\xF0\x9D\x9B", 3}, // cut off
        {"\xC3", 1},         // cut off
    };
    for (const Row& row : rows) {
        const Utf8Step step = FirstCharacter(row.text);
        EXPECT_FALSE(step.character) << ::testing::PrintToString(row.text);
        EXPECT_EQ(step.length, row.length) << ::testing::PrintToString(row.text);
    }
}

TEST(Utf8, EndsAtTheEnd) {
    const Utf8Step step = FirstCharacter("");
    EXPECT_FALSE(step.character);
    EXPECT_EQ(step.length, 0u);
}

TEST(Utf8, BecomesCharactersAndTextAgain) {
    EXPECT_EQ(CodePoints("aÄ\xF0\x9D\x91\x9D"), U"aÄ\U0001D45D");
    EXPECT_EQ(Utf8(U"aÄ\U0001D45D"), "aÄ\xF0\x9D\x91\x9D");
    EXPECT_EQ(CodePoints("a\xC3"), U"a\uFFFD");
    EXPECT_EQ(CodePoints(""), U"");
}

TEST(Utf8, KnowsPlainAscii) {
    EXPECT_TRUE(IsAscii(""));
    EXPECT_TRUE(IsAscii("\x7F\r\n abc"));
    EXPECT_FALSE(IsAscii("a\x80"));
    EXPECT_FALSE(IsAscii("ä"));
}

} // namespace
} // namespace orva
