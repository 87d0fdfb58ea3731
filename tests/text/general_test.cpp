// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "text/number_format.h"
#include "text/number_input.h"

#include <cmath>
#include <limits>

namespace orva {
namespace {

template<typename Number> struct Row {
    Number value;
    const char* text;
};

TEST(General, WritesASingleWithSevenDigits) {
    const std::vector<Row<float>> rows = {
        {0.0f, "0"},
        {-0.0f, "0"},
        {1.0f, "1"},
        {-1.5f, "-1.5"},
        {0.1f, "0.1"},
        {300.15f, "300.15"},
        {101.325f, "101.325"},
        {8.31451f, "8.31451"},
        {1.0f / 3.0f, "0.3333333"},
        {2.0f / 3.0f, "0.6666667"},
        {0.001234f, "0.001234"},
        {1234567.0f, "1234567"},
        {123456.78f, "123456.8"},
        {1234567.5f, "1234568"},
        {1234566.5f, "1234567"}, // a tie: away from zero
        {100.0f, "100"},
        {-273.15f, "-273.15"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(General(row.value), row.text);
}

TEST(General, TakesTheExponentFormBeyondSevenPlaces) {
    const std::vector<Row<float>> rows = {
        {0.0000001f, "0.0000001"},
        {0.00000012f, "1.2E-07"},
        {0.00000001f, "1E-08"},
        {0.0123456f, "0.0123456"},
        {0.01234567f, "1.234567E-02"},
        {1.0f / 30.0f, "3.333334E-02"},
        {9999999.0f, "9999999"},
        {1e7f, "1E+07"},
        {12345678.0f, "1.234568E+07"},
        {-12345678.0f, "-1.234568E+07"},
        {9999999.5f, "1E+07"},
        {1e-37f, "1E-37"},
        {std::numeric_limits<float>::max(), "3.402823E+38"},
        {std::numeric_limits<float>::denorm_min(), "1.401298E-45"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(General(row.value), row.text);
}

TEST(General, WritesADoubleWithFifteenDigits) {
    const std::vector<Row<double>> rows = {
        {0.0, "0"},
        {-0.0, "0"},
        {0.1, "0.1"},
        {0.1 + 0.2, "0.3"},
        {1.0 / 3.0, "0.333333333333333"},
        {2.0 / 3.0, "0.666666666666667"},
        {1.0 / 30.0, "3.33333333333333E-02"},
        {2.30258509299405, "2.30258509299405"},
        {999999999999999.0, "999999999999999"},
        {1e15, "1E+15"},
        {1234567890123456.0, "1.23456789012346E+15"},
        {1e-15, "0.000000000000001"},
        {1e-16, "1E-16"},
        {1.5e-120, "1.5E-120"},
        {-2.5e300, "-2.5E+300"},
        {std::numeric_limits<double>::max(), "1.79769313486232E+308"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(General(row.value), row.text);
}

TEST(General, NamesWhatIsNoNumber) {
    constexpr float infinity = std::numeric_limits<float>::infinity();
    EXPECT_EQ(General(infinity), "Inf");
    EXPECT_EQ(General(-infinity), "-Inf");
    EXPECT_EQ(General(std::numeric_limits<float>::quiet_NaN()), "NaN");
    EXPECT_EQ(General(std::numeric_limits<double>::infinity()), "Inf");
    EXPECT_EQ(General(-std::numeric_limits<double>::infinity()), "-Inf");
    EXPECT_EQ(General(std::numeric_limits<double>::quiet_NaN()), "NaN");
}

TEST(General, TakesTheDecimalComma) {
    constexpr NumberStyle comma{','};
    EXPECT_EQ(General(0.75f, comma), "0,75");
    EXPECT_EQ(General(1.0f / 30.0f, comma), "3,333334E-02");
    EXPECT_EQ(General(1e7f, comma), "1E+07");
    EXPECT_EQ(General(-0.75, comma), "-0,75");
    EXPECT_EQ(General(1.5e20, comma), "1,5E+20");
    EXPECT_EQ(General(12.0, comma), "12");
}

TEST(FieldText, IsTheDefaultConversionWhereThatReadsBack) {
    EXPECT_EQ(FieldText(298.15F), "298.15");
    EXPECT_EQ(FieldText(298.15), "298.15");
    EXPECT_EQ(FieldText(-125790.0), "-125790");
    EXPECT_EQ(FieldText(1e-6), "0.000001");
    EXPECT_EQ(FieldText(0.0), "0");
    EXPECT_EQ(FieldText(std::numeric_limits<double>::infinity()), "");
    EXPECT_EQ(FieldText(std::numeric_limits<float>::quiet_NaN()), "");
}

TEST(FieldText, AddsDigitsUntilTheNumberReadsBack) {
    EXPECT_EQ(FieldText(16777216.0F), "16777216"); // seven digits are not enough
    EXPECT_EQ(FieldText(0.1 + 0.2), "0.30000000000000004");
    for (float x : {1.0F / 3, 16777215.0F, std::nextafterf(298.15F, 300), 3.4028235e38F, 1e-37F, -0.1F})
        EXPECT_EQ(static_cast<float>(ParseNumber(FieldText(x))), x) << FieldText(x);
    for (double x : {1.0 / 3, 2.0 / 3e-7, std::nextafter(101.325, 102), 1.7976931348623157e308, 1e-37, -1e22})
        EXPECT_EQ(ParseNumber(FieldText(x)), x) << FieldText(x);
}

TEST(Str, KeepsAPlaceForTheSign) {
    EXPECT_EQ(Str(0.75f), " 0.75");
    EXPECT_EQ(Str(-0.75f), "-0.75");
    EXPECT_EQ(Str(0.0f), " 0");
    EXPECT_EQ(Str(-0.0f), " 0");
    EXPECT_EQ(Str(1e7f), " 1E+07");
    EXPECT_EQ(Str(1.0 / 3.0), " 0.333333333333333");
    EXPECT_EQ(Str(-1.0 / 3.0), "-0.333333333333333");
    EXPECT_EQ(Str(12), " 12");
    EXPECT_EQ(Str(0), " 0");
    EXPECT_EQ(Str(-1), "-1");
    EXPECT_EQ(Str(std::numeric_limits<int>::min()), "-2147483648");
    EXPECT_EQ(Str(std::numeric_limits<double>::infinity()), " Inf");
    EXPECT_EQ(Str(-std::numeric_limits<double>::infinity()), "-Inf");
    EXPECT_EQ(Str(std::numeric_limits<float>::quiet_NaN()), " NaN");
}

TEST(Str, TakesTheDecimalComma) {
    EXPECT_EQ(Str(0.75f, NumberStyle{','}), " 0,75");
    EXPECT_EQ(Str(-1.5e20, NumberStyle{','}), "-1,5E+20");
}

} // namespace
} // namespace orva
