// SPDX-License-Identifier: GPL-3.0-or-later
#include "database/cell_values.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

#include "text/code_page.h"

namespace orva {
namespace {

std::string Quoted(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// True if the written digits before the exponent are all 0.
bool IsWrittenZero(std::string_view cell) {
    return cell.substr(0, cell.find_first_of("eE")).find_first_of("123456789") == std::string_view::npos;
}

std::optional<std::string> LimitFault(float value) {
    using Limits = std::numeric_limits<std::int16_t>;
    if (value != std::trunc(value) || value < static_cast<float>(Limits::min())
        || value > static_cast<float>(Limits::max()))
        return NumberText(value) + " is not a whole number of kelvins in 16 bits";
    return std::nullopt;
}

std::string_view Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\r");
    if (first == text.npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

} // namespace

CellNumber ReadNumber(std::string_view cell, ColumnKind kind) {
    if (cell.empty())
        return {};
    CellNumber number;
    const char* const end = cell.data() + cell.size();
    const auto [stop, error] = std::from_chars(cell.data(), end, number.value);
    if (error == std::errc::invalid_argument || stop != end)
        return {0, Quoted(cell) + " is not a number"};
    if (error == std::errc() && !std::isfinite(number.value))
        return {0, Quoted(cell) + " is not finite"};
    if (error == std::errc::result_out_of_range || (number.value == 0 && !IsWrittenZero(cell)))
        return {0, Quoted(cell) + " is beyond the range of a single"};
    if (kind == ColumnKind::value && number.value == 0)
        number.value = trueZero;
    if (kind == ColumnKind::limit)
        number.fault = LimitFault(number.value);
    return number;
}

Bibliography ReadBibliography(std::string_view sources) {
    Bibliography keys;
    bool inside = false;
    while (!sources.empty()) {
        const auto end = sources.find('\n');
        const std::string_view line = Trimmed(sources.substr(0, end));
        sources.remove_prefix(end == sources.npos ? sources.size() : end + 1);
        if (line.starts_with("#"))
            inside = line == "## Bibliography";
        if (!inside || !line.starts_with("|"))
            continue;
        const std::string_view key = Trimmed(line.substr(1, line.find('|', 1) - 1));
        if (!key.empty() && key != "key" && key.find_first_not_of("-:") != key.npos)
            keys.emplace(key);
    }
    return keys;
}

std::optional<std::string> SourceFault(std::string_view source, const Bibliography& bibliography) {
    if (source.empty())
        return "source key is missing";
    std::string_view key = source;
    if (key.starts_with("FIT:") || key.starts_with("EST:"))
        key.remove_prefix(4);
    if (!bibliography.contains(key))
        return "source key " + Quoted(source) + " is not in the bibliography";
    return std::nullopt;
}

std::optional<std::string> CasFault(std::string_view cas) {
    const std::size_t size = cas.size();
    if (size < 7 || size > 12 || cas[size - 2] != '-' || cas[size - 5] != '-')
        return Quoted(cas) + " is not a CAS number";
    int sum = 0;
    int weight = 0;
    for (std::size_t i = size - 2; i-- > 0;) {
        if (i == size - 5)
            continue;
        if (!IsDigit(cas[i]))
            return Quoted(cas) + " is not a CAS number";
        sum += ++weight * (cas[i] - '0');
    }
    if (!IsDigit(cas[size - 1]))
        return Quoted(cas) + " is not a CAS number";
    if (sum % 10 != cas[size - 1] - '0')
        return "check digit of the CAS number is " + std::to_string(sum % 10) + ", not "
               + std::string(cas.substr(size - 1));
    return std::nullopt;
}

std::optional<std::string> TextFault(std::string_view text, std::size_t width) {
    if (text.empty())
        return "is missing";
    if (!FitsWindows1252(text))
        return Quoted(text) + " cannot be written in Windows-1252";
    const std::size_t bytes = Windows1252FromUtf8(text).size();
    if (bytes > width)
        return Quoted(text) + " has " + std::to_string(bytes) + " bytes, the field " + std::to_string(width);
    return std::nullopt;
}

std::string NumberText(float number) {
    std::array<char, 32> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), number);
    return {text.data(), written.ptr};
}

std::string FixedText(double number, int decimals) {
    std::array<char, 400> text{};
    const auto written =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed, decimals);
    return {text.data(), written.ptr};
}

} // namespace orva
