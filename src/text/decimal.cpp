// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/decimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace orva {

void Decimal::Round(int count) {
    if (count < static_cast<int>(digits.size())) {
        const bool up = count >= 0 && digits[static_cast<std::size_t>(count)] >= '5';
        digits.resize(static_cast<std::size_t>(std::max(count, 0)));
        if (up) {
            const std::size_t nines = digits.size() - (digits.find_last_not_of('9') + 1);
            digits.resize(digits.size() - nines);
            if (digits.empty()) {
                digits.assign(1, '1');
                ++point;
            } else {
                ++digits.back();
            }
        }
    }
    digits.resize(digits.find_last_not_of('0') + 1);
    if (digits.empty()) {
        point = 0;
        negative = false;
    }
}

std::string Decimal::Whole() const {
    if (point <= 0)
        return {};
    std::string whole = digits.substr(0, static_cast<std::size_t>(point));
    whole.resize(digits.empty() ? 0 : static_cast<std::size_t>(point), '0');
    return whole;
}

std::string Decimal::Fraction() const {
    if (point <= 0)
        return digits.empty() ? std::string() : std::string(static_cast<std::size_t>(-point), '0') + digits;
    return static_cast<std::size_t>(point) < digits.size() ? digits.substr(static_cast<std::size_t>(point))
                                                           : std::string();
}

Decimal SignificantDigits(double x, int count) {
    // Far more digits than are kept, so that a tie shows as one: the rounding of the conversion itself is to
    // even.
    constexpr int printed = 40;
    std::array<char, printed + 16> text;
    const char* end = std::to_chars(text.data(), text.data() + text.size(), std::abs(x),
                                    std::chars_format::scientific, printed - 1)
                          .ptr;
    const char* exponent = std::find<const char*>(text.data(), end, 'e') + 1;
    int power = 0;
    std::from_chars(exponent + (*exponent == '+' ? 1 : 0), end, power);
    Decimal decimal;
    decimal.digits = text[0] + std::string(text.data() + 2, printed - 1);
    decimal.point = power + 1;
    decimal.negative = std::signbit(x);
    if (x == 0.0)
        decimal.digits.clear();
    decimal.Round(count);
    return decimal;
}

} // namespace orva
