// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "text/number_format.h"

#include <limits>

namespace orva {
namespace {

struct Row {
    const char* mask;
    double value;
    const char* text;
};

void ExpectTexts(const std::vector<Row>& rows) {
    for (const Row& row : rows)
        EXPECT_EQ(Format(row.value, row.mask), row.text) << row.mask << " of " << row.value;
}

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

TEST(Format, RoundsHalfAwayFromZeroOnFifteenDigits) {
    ExpectTexts({
        {"0.00", 1.005, "1.01"}, // 1.00499999999999989... in binary
        {"0.00", -1.005, "-1.01"},
        {"0.00", 1.00499999999, "1.00"},
        {"0.00", 2.675, "2.68"},
        {"0", 0.5, "1"},
        {"0", 1.5, "2"},
        {"0", 2.5, "3"},
        {"0", -2.5, "-3"},
        {"0", 0.49999999999, "0"},
        {"0.0", 0.25, "0.3"},
        {"0.0", 0.35, "0.4"},
        {"0.000", 9.9995, "10.000"},
        {"0", 999.5, "1000"},
        {"0.0E+00", 1.25, "1.3E+00"},
        {"0.0E+00", 9.95, "1.0E+01"},
        {"0.0E+00", 0.0995, "1.0E-01"},
    });
}

TEST(Format, ShowsNoMoreThanFifteenDigits) {
    ExpectTexts({
        {"0.00000000000000000000", 1.0 / 3.0, "0.33333333333333300000"},
        {"0.####################", 0.1, "0.1"},
        {"0", 12345678901234567.0, "12345678901234600"},
        {"0", 1e22, "10000000000000000000000"},
        {"0.00", 0.1 + 0.2, "0.30"},
        {"0.################", 0.1 + 0.2, "0.3"},
    });
}

TEST(Format, ShowsAllDigitsBeforeTheSeparator) {
    ExpectTexts({
        {"0.0", 1234567.89, "1234567.9"},
        {"#.0", 1234567.89, "1234567.9"},
        {".0", 1234567.89, "1234567.9"},
        {"0", 98765.0, "98765"},
    });
}

TEST(Format, FillsWithZerosFromTheFirstFixedPlaceOn) {
    ExpectTexts({
        {"000", 5.0, "005"},
        {"#0#", 5.0, "05"},
        {"0#.#0", 5.0, "05.00"},
        {"0.#0#", 0.5, "0.50"},
    });
}

TEST(Format, GivesAValueThatRoundsToZeroNoSign) {
    ExpectTexts({
        {"0.00", -0.004, "0.00"},
        {"0.00", -0.005, "-0.01"},
        {"0", -0.0, "0"},
        {"#####.0", -0.04, ".0"},
        {" 0.0;-0.0", -0.04, " 0.0"},
        {" 0.0;-0.0", -0.05, "-0.1"},
        {"0.0 kPa", -1e-300, "0.0 kPa"},
    });
}

TEST(Format, PutsTheMinusWhereTheNumberBegins) {
    ExpectTexts({
        {"T = 0.0 K", -5.0, "T = -5.0 K"},
        {" .00", -0.5, " -.50"},
        {"#####0 kPa", -7.0, "-7 kPa"},
        {"K", -7.0, "K"},
    });
}

TEST(Format, TakesTheSignOfTheSecondFormFromItsText) {
    ExpectTexts({
        {"0.0;(0.0)", -2.5, "(2.5)"},
        {"0.0;(0.0)", 2.5, "2.5"},
        {"0.0;0.000", -2.5, "2.500"},
        {"0.0;", -2.5, "-2.5"},
        {"0;-0;zero", 0.0, "0"},
        {"0;-0;zero", -1.0, "-1"},
        {";-0", 1.0, ""},
    });
}

TEST(Format, KeepsLiteralText) {
    ExpectTexts({
        {"m^3/", 5.0, "m^3/"},
        {"", 5.0, ""},
        {"0.0 m^3/kmol", 5.0, "5.0 m^3/kmol"},
        {"0.0 J/(mol K)", 5.0, "5.0 J/(mol K)"},
        {"0.0 °C", -5.0, "-5.0 °C"},
        {"Δh 0", 5.0, "Δh 5"},
        {"00:00", 1234.0, "12:34"},
        {"00:00", 123456.0, "1234:56"},
        {"0.0.", 1.25, "1.3."},
    });
}

TEST(Format, TakesEAsExponentOnlyBeforeASignAndAZero) {
    ExpectTexts({
        {"0 E", 5.0, "5 E"},
        {"0 EOS", 5.0, "5 EOS"},
        {"0E+", 5.0, "5E+"},
        {"0e+1", 5.0, "5e+1"},
        {"0.0E+0", 500.0, "5.0E+2"},
        {"0.0E+000", 500.0, "5.0E+002"},
        {"0.0E+0", 1e10, "1.0E+10"},
        {"0.0E-00", 500.0, "5.0E02"},
        {"0.0E-00", 0.05, "5.0E-02"},
        {"0.0E+00 kPa", 500.0, "5.0E+02 kPa"},
    });
}

TEST(Format, ScalesTheMantissaToThePlacesBeforeTheSeparator) {
    ExpectTexts({
        {"00.0E+00", 12345.0, "12.3E+03"},
        {"000E+00", 12345.0, "123E+02"},
        {"##0.0E+00", 99996.0, "100.0E+03"},
        {"0E+00", 0.0, "0E+00"},
    });
}

TEST(Format, NamesWhatIsNoNumber) {
    ExpectTexts({
        {"0.00", notANumber, "NaN"},
        {"0.00", infinity, "Inf"},
        {"0.00", -infinity, "-Inf"},
        {"T = 0.0# K", notANumber, "T = NaN K"},
        {"T = 0.0# K", -infinity, "T = -Inf K"},
        {"0.0 %", infinity, "Inf %"},
        {" 0.0000E+00;-0.0000E+00", infinity, " Inf"},
        {" 0.0000E+00;-0.0000E+00", -infinity, "-Inf"},
        {" 0.0000E+00;-0.0000E+00", notANumber, " NaN"},
    });
    EXPECT_EQ(Format(-notANumber, "0.0"), "NaN");
}

TEST(Format, CopesWithTheLimitsOfADouble) {
    EXPECT_EQ(Format(std::numeric_limits<double>::max(), "0.0E+00"), "1.8E+308");
    EXPECT_EQ(Format(std::numeric_limits<double>::denorm_min(), "0.0000E+00"), "4.9407E-324");
    EXPECT_EQ(Format(std::numeric_limits<double>::denorm_min(), "0.00"), "0.00");
    EXPECT_EQ(Format(1e308, "0"), "1" + std::string(308, '0'));
    EXPECT_EQ(Format(std::numeric_limits<double>::max(), "0%").size(), 312u);
}

} // namespace
} // namespace orva
