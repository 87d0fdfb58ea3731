// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/json_writer.h"

#include <gtest/gtest.h>

#include <bit>
#include <limits>
#include <random>

namespace orva::test {
namespace {

template<typename Value> std::string Written(const Value& value) {
    std::string text;
    AppendJson(text, value);
    return text;
}

TEST(JsonWriter, WritesNumbersAsATreeDoes) {
    std::vector<double> numbers{0,
                                -0.0,
                                1,
                                -1.5,
                                300,
                                1e-5,
                                1e15,
                                1e16,
                                123456789012345680,
                                0.1F,
                                5e-324,
                                std::numeric_limits<double>::max(),
                                std::numeric_limits<double>::quiet_NaN(),
                                -std::numeric_limits<double>::infinity()};
    std::mt19937_64 bits(20240611);
    for (int i = 0; i < 20000; ++i)
        numbers.push_back(std::bit_cast<double>(bits()));
    for (const double number : numbers)
        ASSERT_EQ(Written(number), JsonText(Json(number)));
    for (const int number : {0, 7, -12, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_EQ(Written(number), JsonText(Json(number)));
    EXPECT_EQ(Written(0.1F), JsonText(Json(static_cast<double>(0.1F))));
    EXPECT_EQ(Written(true), "true");
    EXPECT_EQ(Written(false), "false");
}

TEST(JsonWriter, WritesTextsAsATreeDoesWhateverTheirBytes) {
    for (const std::string text :
         {"", "n-Butan", "a \"b\" \\ / \b\f\n\r\t \x01\x1F\x7F", "3 V-Lösungen der EOS", "für", "\xC3",
          "\xC3x", "\xE2\x82", "\xE2\x82\xAC\xFF\xFE!", "\xED\xA0\x80", "\xF0\x9F\x98\x80", "\xC0\xAF",
          "ö\xC3ö"})
        EXPECT_EQ(Written(text), JsonText(Json(text)));
    EXPECT_EQ(Written(std::string("a\0b", 3)), "\"a\\u0000b\"");
    std::mt19937 random(7);
    for (int i = 0; i < 5000; ++i) {
        std::string text;
        for (int length = static_cast<int>(random() % 12); length > 0; --length)
            text += static_cast<char>(random());
        ASSERT_EQ(Written(text), JsonText(Json(text)));
    }
}

TEST(JsonWriter, WritesListsAndObjectsAsATreeDoes) {
    const std::array<std::array<float, 3>, 2> table{{{1, 2.5F, 0.1F}, {0, -1, 3}}};
    EXPECT_EQ(Written(table), JsonText(NumbersJson(table)));
    EXPECT_EQ(Written(std::vector<double>()), "[]");
    std::string text;
    AppendObject(text, "kind", 3, "good", true, "T", 300.0, "note", std::string("für \"n\""), "inner",
                 [](std::string& inner) { AppendObject(inner, "a", 1); });
    EXPECT_EQ(text, R"({"kind":3,"good":true,"T":300.0,"note":"für \"n\"","inner":{"a":1}})");
    text.clear();
    AppendObject(text);
    EXPECT_EQ(text, "{}");
}

} // namespace
} // namespace orva::test
