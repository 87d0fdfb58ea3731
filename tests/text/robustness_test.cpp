// SPDX-License-Identifier: GPL-3.0-or-later
// Random input. The generators have fixed seeds, so that a failure comes again.
#include <gtest/gtest.h>

#include "text/code_page.h"
#include "text/columns.h"
#include "text/number_format.h"
#include "text/number_input.h"
#include "text/utf8.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <random>

namespace orva {
namespace {

using Random = std::mt19937_64;

std::string RandomText(Random& random, std::string_view alphabet, std::size_t longest) {
    std::string text(random() % (longest + 1), ' ');
    for (char& c : text)
        c = alphabet.empty() ? static_cast<char>(random() % 256) : alphabet[random() % alphabet.size()];
    return text;
}

double RandomDouble(Random& random) {
    return std::bit_cast<double>(random());
}

TEST(Robustness, CodePagesTakeAnyBytes) {
    Random random(1);
    for (int i = 0; i < 20000; ++i) {
        const std::string bytes = RandomText(random, "", 40);
        const std::string fromWindows = Utf8FromWindows1252(bytes);
        const std::string fromOem = Utf8FromOem(bytes);
        ASSERT_TRUE(IsUtf8(fromWindows));
        ASSERT_TRUE(IsUtf8(fromOem));
        ASSERT_EQ(CharacterCount(fromWindows), bytes.size());
        ASSERT_EQ(OemFromUtf8(fromOem), bytes);
        ASSERT_EQ(Windows1252FromUtf8(bytes).size(), CharacterCount(bytes));
        ASSERT_EQ(OemFromUtf8(bytes).size(), CharacterCount(bytes));
        if (FitsWindows1252(bytes)) {
            ASSERT_EQ(Utf8FromWindows1252(Windows1252FromUtf8(bytes)), bytes);
        }
    }
}

TEST(Robustness, ColumnsTakeAnyBytes) {
    Random random(2);
    for (int i = 0; i < 20000; ++i) {
        const std::string bytes = RandomText(random, "", 30);
        const std::size_t width = random() % 40;
        ASSERT_EQ(CharacterCount(PadLeft(bytes, width)), std::max(width, CharacterCount(bytes)));
        ASSERT_EQ(CharacterCount(PadRight(bytes, width)), std::max(width, CharacterCount(bytes)));
        ASSERT_EQ(CharacterCount(FixedField(bytes, width)), width);
    }
}

TEST(Robustness, FormatTakesAnyMaskAndValue) {
    Random random(3);
    for (int i = 0; i < 50000; ++i) {
        const std::string mask = RandomText(random, i % 4 == 0 ? "" : "00##..%;E+- K", 24);
        const double x = RandomDouble(random);
        const std::string text = Format(x, mask);
        // A place shows at most the digits of the largest double, percent signs add two each, an
        // exponent three.
        ASSERT_LE(text.size(), 4 * mask.size() + 320) << mask << " of " << x;
        ASSERT_EQ(Format(x, mask, NumberStyle{','}).size(), text.size()) << mask << " of " << x;
    }
}

TEST(Robustness, FormatIsWithinHalfAUnitOfTheLastPlace) {
    Random random(4);
    std::uniform_real_distribution<double> values(-1e6, 1e6);
    for (int i = 0; i < 20000; ++i) {
        const double x = values(random);
        ASSERT_NEAR(ParseNumber(Format(x, "0.0000")), x, 0.5000001e-4);
        ASSERT_NEAR(ParseNumber(Format(x, "#####.0###", NumberStyle{','})), x, 0.5000001e-4);
        ASSERT_NEAR(ParseNumber(Format(x, ".00000000E+00")), x, 5.0000001e-9 * 10.0 * std::abs(x));
    }
}

TEST(Robustness, GeneralReadsBackAsTheValue) {
    Random random(5);
    for (int i = 0; i < 50000; ++i) {
        const double x = RandomDouble(random);
        if (!std::isnormal(x) || std::abs(x) > 1e307)
            continue;
        const double read = ParseNumber(General(x));
        ASSERT_LE(std::abs(read - x), 5.0001e-15 * std::abs(x)) << General(x);
        const auto single = static_cast<float>(std::remainder(x, 1e6));
        ASSERT_LE(std::abs(ParseNumber(General(single)) - single), 5.0001e-7 * std::abs(single))
            << General(single);
    }
}

TEST(Robustness, ParseNumberIsFiniteForAnyText) {
    Random random(6);
    for (int i = 0; i < 50000; ++i) {
        const std::string text = RandomText(random, i % 2 == 0 ? "" : "0159.,eE+- ", 16);
        ASSERT_TRUE(std::isfinite(ParseNumber(text))) << ::testing::PrintToString(text);
    }
}

} // namespace
} // namespace orva
