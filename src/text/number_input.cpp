// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/number_input.h"

#include <algorithm>
#include <charconv>

namespace orva {

namespace {

bool IsDigit(std::string_view text, std::size_t at) {
    return at < text.size() && text[at] >= '0' && text[at] <= '9';
}

std::size_t SkipDigits(std::string_view text, std::size_t at) {
    while (IsDigit(text, at))
        ++at;
    return at;
}

bool StandsAt(std::string_view text, std::size_t at, std::string_view characters) {
    return at < text.size() && characters.find(text[at]) != std::string_view::npos;
}

// The length of the number at the beginning, 0 if there is none.
std::size_t NumberLength(std::string_view text) {
    const std::size_t wholeStart = StandsAt(text, 0, "+-") ? 1 : 0;
    std::size_t end = SkipDigits(text, wholeStart);
    std::size_t digitCount = end - wholeStart;
    if (StandsAt(text, end, ".,")) {
        const std::size_t fractionStart = end + 1;
        end = SkipDigits(text, fractionStart);
        digitCount += end - fractionStart;
    }
    if (digitCount == 0)
        return 0;
    if (StandsAt(text, end, "Ee")) {
        const std::size_t exponentStart = end + (StandsAt(text, end + 1, "+-") ? 2 : 1);
        if (IsDigit(text, exponentStart))
            end = SkipDigits(text, exponentStart);
    }
    return end;
}

std::string_view WithoutLeadingBlanks(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(" \t"), text.size()));
}

} // namespace

std::optional<double> ReadNumber(std::string_view text) {
    text = WithoutLeadingBlanks(text);
    std::string number(text.substr(0, NumberLength(text)));
    if (number.empty())
        return std::nullopt;
    std::replace(number.begin(), number.end(), ',', '.');
    const char* first = number.data() + (number.front() == '+' ? 1 : 0);
    double value = 0.0;
    // An error can only be a number beyond the range of a double, too large or too small.
    const auto result = std::from_chars(first, number.data() + number.size(), value);
    return result.ec == std::errc() ? std::optional(value) : std::nullopt;
}

double ParseNumber(std::string_view text) {
    return ReadNumber(text).value_or(0.0);
}

bool IsNumber(std::string_view text) {
    text = WithoutLeadingBlanks(text);
    const std::size_t length = NumberLength(text);
    return length > 0 && WithoutLeadingBlanks(text.substr(length)).empty();
}

char IsNumericKey(char key) {
    constexpr std::string_view taken = "0123456789Ee-.\r\n\b\x7F";
    if (key == ',')
        return '.';
    return taken.find(key) != std::string_view::npos ? key : '\0';
}

} // namespace orva
