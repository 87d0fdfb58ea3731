// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "text/code_page.h"
#include "text/lines.h"

namespace orva::test {
namespace {

std::vector<std::string> Lines(std::string_view text) {
    std::vector<std::string> lines;
    LineReader reader(text);
    while (const auto line = reader.Next())
        lines.emplace_back(*line);
    return lines;
}

using Texts = std::vector<std::string>;

TEST(LineReader, TakesBothLineEndsAndALastLineWithoutOne) {
    EXPECT_EQ(Lines("a\nb\r\nc"), (Texts{"a", "b", "c"}));
    EXPECT_EQ(Lines("a\n"), (Texts{"a"}));
    EXPECT_EQ(Lines("\n\r\na"), (Texts{"", "", "a"}));
    EXPECT_TRUE(Lines("").empty());
}

TEST(LineReader, KeepsEveryOtherByte) {
    using namespace std::string_view_literals;
    EXPECT_EQ(Lines("a\rb\0c\n\xFF"sv), (Texts{std::string("a\rb\0c", 5), "\xFF"}));
}

TEST(TextOfAnyEditor, IsUtf8WhereEveryCharacterIsWhole) {
    EXPECT_EQ(Utf8FromTextFile("größer"), "größer");
    EXPECT_EQ(Utf8FromTextFile("\xEF\xBB\xBFgrößer"), "größer");
    EXPECT_EQ(Utf8FromTextFile("gr\xF6\xDF"
                               "er"),
              "größer");
    EXPECT_EQ(Utf8FromTextFile("ö und \xF6"), "Ã¶ und ö"); // one broken character decides for the whole
    EXPECT_EQ(Utf8FromTextFile(""), "");
}

} // namespace
} // namespace orva::test
