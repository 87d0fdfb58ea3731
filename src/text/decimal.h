// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace orva {

// A finite number in decimal digits: 0.d1d2d3... times ten to the power of `point`.
struct Decimal {
    std::string digits; // without zeros at either end; empty for zero
    int point = 0;
    bool negative = false; // never for zero

    // The first `count` digits are kept, half away from zero; a count of 0 or less may leave one digit or
    // none.
    void Round(int count);

    // Digits before the separator, without leading zeros.
    std::string Whole() const;
    // Digits behind the separator, without trailing zeros.
    std::string Fraction() const;
};

// The `count` (at most 17) significant digits of a finite x, half away from zero.
Decimal SignificantDigits(double x, int count);

} // namespace orva
