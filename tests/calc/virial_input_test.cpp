// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>

#include "calc/virial_input.h"

namespace orva::test {
namespace {

TEST(VirialInput, ShowsAllDigitsAndTakesThemAgain) {
    const std::array<double, 3> constants{1.0 / 3, std::nextafter(2.3e4, 3e4), 1.75};
    VirialInput input(constants);
    EXPECT_EQ(input.par[0], "0.3333333333333333");
    EXPECT_EQ(input.par[2], "1.75");
    EXPECT_FALSE(input.cmdParameter_OK().has_value());
    EXPECT_EQ(input.Constants(), constants);
}

TEST(VirialInput, TakesAnyFiniteNumbers) {
    VirialInput input({1, 2, 3});
    input.par = {"0", "-1,5e-3", "1.75 "};
    EXPECT_FALSE(input.cmdParameter_OK().has_value());
    EXPECT_EQ(input.Constants(), (std::array{0.0, -1.5e-3, 1.75}));
}

TEST(VirialInput, RefusesWhatIsNoNumberAndKeepsTheConstants) {
    for (int field = 0; field < 3; ++field)
        for (const char* text : {"", " ", "-", "e5", "abc", "1e400", "-1e400", "nan", "inf"}) {
            VirialInput input({1, 2, 3});
            input.par = {"4", "5", "6"};
            input.par[static_cast<std::size_t>(field)] = text;
            const auto refused = input.cmdParameter_OK();
            ASSERT_TRUE(refused.has_value()) << field << text;
            EXPECT_EQ(refused->message.text, "keine gültige Eingabe");
            EXPECT_EQ(refused->message.title, "Ausführung nicht möglich");
            EXPECT_EQ(refused->field, field);
            EXPECT_EQ(input.Constants(), (std::array{1.0, 2.0, 3.0}));
        }
}

} // namespace
} // namespace orva::test
