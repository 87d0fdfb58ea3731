// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "text/decimal.h"

namespace orva {
namespace {

TEST(SignificantDigits, TakesANumberApart) {
    struct Row {
        double value;
        int count;
        const char* digits;
        int point;
        bool negative;
    };
    const std::vector<Row> rows = {
        {0.0, 15, "", 0, false},
        {-0.0, 15, "", 0, false},
        {1.0, 15, "1", 1, false},
        {-305.12, 15, "30512", 3, true},
        {0.00123, 15, "123", -2, false},
        {1e100, 15, "1", 101, false},
        {999999.5, 6, "1", 7, false},
        {1234566.5, 7, "1234567", 7, false},
        {123456789012344.5, 15, "123456789012345", 15, false},
        {0.1, 17, "10000000000000001", 0, false},
        {5e-324, 3, "494", -323, false},
    };
    for (const Row& row : rows) {
        const Decimal decimal = SignificantDigits(row.value, row.count);
        EXPECT_EQ(decimal.digits, row.digits) << row.value;
        EXPECT_EQ(decimal.point, row.point) << row.value;
        EXPECT_EQ(decimal.negative, row.negative) << row.value;
    }
}

TEST(DecimalRound, CarriesAndDropsZeros) {
    struct Row {
        double value;
        int count;
        const char* whole;
        const char* fraction;
    };
    const std::vector<Row> rows = {
        {12.345, 4, "12", "35"}, {12.345, 2, "12", ""},     {99.95, 3, "100", ""}, {0.0995, 2, "", "1"},
        {0.5, 0, "1", ""},       {0.4, 0, "", ""},          {0.05, -1, "", ""},    {1200.0, 9, "1200", ""},
        {10.01, 2, "10", ""},    {0.00123, 3, "", "00123"}, {-0.4, 0, "", ""},
    };
    for (const Row& row : rows) {
        Decimal decimal = SignificantDigits(row.value, 15);
        decimal.Round(row.count);
        EXPECT_EQ(decimal.Whole(), row.whole) << row.value << " to " << row.count;
        EXPECT_EQ(decimal.Fraction(), row.fraction) << row.value << " to " << row.count;
    }
}

TEST(DecimalRound, TakesTheSignFromZero) {
    Decimal decimal = SignificantDigits(-0.4, 15);
    EXPECT_TRUE(decimal.negative);
    decimal.Round(0);
    EXPECT_FALSE(decimal.negative);
}

} // namespace
} // namespace orva
