// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "text/number_input.h"

#include <clocale>
#include <cmath>

namespace orva {
namespace {

struct Row {
    const char* text;
    double value;
    bool isNumber;
};

const std::vector<Row> rows = {
    {"", 0.0, false},
    {" ", 0.0, false},
    {"0", 0.0, true},
    {"300", 300.0, true},
    {"300.15", 300.15, true},
    {"1,5", 1.5, true},
    {"-1,5", -1.5, true},
    {"+2", 2.0, true},
    {"-.5", -0.5, true},
    {"5.", 5.0, true},
    {"5.e2", 500.0, true},
    {"1E3", 1000.0, true},
    {"1e-3", 0.001, true},
    {"1E+05", 100000.0, true},
    {".30512000E+03", 305.12, true},
    {"  101.325", 101.325, true},
    {"\t7", 7.0, true},
    {"12  ", 12.0, true},
    {" 12abc", 12.0, false},
    {"12 13", 12.0, false},
    {"1.2.3", 1.2, false},
    {"1,2,3", 1.2, false},
    {"1e", 1.0, false},
    {"1e+", 1.0, false},
    {"1e5.5", 1e5, false},
    {"--5", 0.0, false},
    {"+-5", 0.0, false},
    {"- 5", 0.0, false},
    {"-", 0.0, false},
    {".", 0.0, false},
    {"-.", 0.0, false},
    {"e5", 0.0, false},
    {".e5", 0.0, false},
    {"abc", 0.0, false},
    {"inf", 0.0, false},
    {"nan", 0.0, false},
    {"0x10", 0.0, false},
    {"1e400", 0.0, true},
    {"-1e400", 0.0, true},
    {"1e-400", 0.0, true},
    {"1e99999999999999999999", 0.0, true},
    {"0e99999999999999999999", 0.0, true},
    {"1.7976931348623157e308", 1.7976931348623157e308, true},
    {"00012", 12.0, true},
    {"0.1", 0.1, true},
    {"2.30258509299405", 2.30258509299405, true},
    {"5°", 5.0, false},
};

TEST(ParseNumber, ReadsTheNumberAtTheBeginning) {
    for (const Row& row : rows)
        EXPECT_DOUBLE_EQ(ParseNumber(row.text), row.value) << '"' << row.text << '"';
}

TEST(IsNumber, IsTrueForOneWholeNumber) {
    for (const Row& row : rows)
        EXPECT_EQ(IsNumber(row.text), row.isNumber) << '"' << row.text << '"';
}

TEST(ParseNumber, ReadsManyDigits) {
    EXPECT_DOUBLE_EQ(ParseNumber("0." + std::string(400, '3')), 1.0 / 3.0);
    EXPECT_DOUBLE_EQ(ParseNumber("1" + std::string(300, '0')), 1e300);
    EXPECT_DOUBLE_EQ(ParseNumber("1" + std::string(400, '0')), 0.0);
}

TEST(ParseNumber, DoesNotDependOnTheLocale) {
    const std::string old = std::setlocale(LC_NUMERIC, nullptr);
    for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "C"}) {
        std::setlocale(LC_NUMERIC, name);
        EXPECT_DOUBLE_EQ(ParseNumber("1.5"), 1.5);
        EXPECT_DOUBLE_EQ(ParseNumber("1,5"), 1.5);
    }
    std::setlocale(LC_NUMERIC, old.c_str());
}

TEST(IsNumericKey, LetsTheKeysOfNumbersPass) {
    for (const char key : std::string("0123456789Ee-.\r\b\x7F"))
        EXPECT_EQ(IsNumericKey(key), key) << static_cast<int>(key);
    EXPECT_EQ(IsNumericKey(','), '.');
}

TEST(IsNumericKey, DropsEveryOtherKey) {
    const std::string taken = "0123456789Ee-.,\r\n\b\x7F";
    for (int code = 0; code < 256; ++code) {
        const char key = static_cast<char>(code);
        if (taken.find(key) == std::string::npos) {
            EXPECT_EQ(IsNumericKey(key), '\0') << code;
        }
    }
}

TEST(ReadNumber, TellsAZeroFromNothing) {
    EXPECT_EQ(ReadNumber(" 0"), 0.0);
    EXPECT_EQ(ReadNumber("-1,5e2 K"), -150.0);
    EXPECT_EQ(ReadNumber("1e"), 1.0);
    for (const char* text : {"", " ", "-", "e5", "x1", "1e400", "-1e999", "1e-400", "inf", "nan"})
        EXPECT_EQ(ReadNumber(text), std::nullopt) << text;
}

} // namespace
} // namespace orva
