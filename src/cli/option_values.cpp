// SPDX-License-Identifier: GPL-3.0-or-later
#include <charconv>
#include <cmath>

#include "cli/option_table.h"

namespace orva {

namespace {

// A whole text as one finite number with a decimal point.
std::optional<double> NumberIn(std::string_view text) {
    if (!text.empty() && text.front() == '+')
        text.remove_prefix(1);
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(number))
        return std::nullopt;
    return number;
}

std::optional<std::vector<double>> NumbersIn(std::string_view text) {
    std::vector<double> numbers;
    while (true) {
        const std::size_t comma = text.find(',');
        const std::optional<double> number = NumberIn(text.substr(0, comma));
        if (!number)
            return std::nullopt;
        numbers.push_back(*number);
        if (comma == text.npos)
            return numbers;
        text.remove_prefix(comma + 1);
    }
}

bool IsChoice(std::string_view choices, std::string_view word) {
    while (!choices.empty()) {
        const std::size_t bar = choices.find('|');
        if (choices.substr(0, bar) == word)
            return true;
        choices.remove_prefix(bar == choices.npos ? choices.size() : bar + 1);
    }
    return false;
}

// What the option wants, for the error line.
std::string Wanted(const OptionRow& row) {
    switch (row.kind) {
    case ValueKind::Integer:
        return "a whole number from " + std::to_string(static_cast<int>(row.low)) + " to "
               + std::to_string(static_cast<int>(row.high));
    case ValueKind::Number:
        return "a number";
    case ValueKind::NumberList:
        return std::to_string(row.count) + " numbers";
    case ValueKind::OneOrMore:
        return "1 to " + std::to_string(row.count) + " numbers";
    case ValueKind::WordOrList:
        return std::string(row.choices) + " or " + std::to_string(row.count) + " numbers";
    case ValueKind::Text:
        return "a text";
    case ValueKind::Choice:
        return "one of " + std::string(row.choices);
    case ValueKind::Switch:
        return "on or off";
    case ValueKind::Flag:
        return "true or false";
    }
    return {};
}

std::string Refusal(const OptionRow& row, std::string_view given) {
    return "option " + std::string(row.name) + " takes " + Wanted(row) + ", not " + std::string(given);
}

bool NumbersFit(const OptionRow& row, const std::vector<double>& numbers) {
    for (const double number : numbers) {
        if (!std::isfinite(number) || number < row.low || number > row.high)
            return false;
        if (row.kind == ValueKind::Integer && number != std::trunc(number))
            return false;
    }
    if (row.kind == ValueKind::OneOrMore)
        return !numbers.empty() && numbers.size() <= row.count;
    return numbers.size() == row.count;
}

bool ReadText(const OptionRow& row, std::string_view text, OptionValue& value) {
    switch (row.kind) {
    case ValueKind::Text:
        value.text = text;
        return !text.empty();
    case ValueKind::Choice:
        value.text = text;
        return IsChoice(row.choices, text);
    case ValueKind::Switch:
    case ValueKind::Flag:
        value.on = text == "on" || text == "true";
        return value.on || text == "off" || text == "false";
    case ValueKind::WordOrList:
        if (IsChoice(row.choices, text)) {
            value.text = text;
            return true;
        }
        break;
    default:
        break;
    }
    std::optional<std::vector<double>> numbers = NumbersIn(text);
    if (!numbers)
        return false;
    value.numbers = std::move(*numbers);
    return NumbersFit(row, value.numbers);
}

bool TakesList(ValueKind kind) {
    return kind == ValueKind::NumberList || kind == ValueKind::OneOrMore || kind == ValueKind::WordOrList;
}

bool TakesWord(ValueKind kind) {
    return kind == ValueKind::Text || kind == ValueKind::Choice || kind == ValueKind::Switch
           || kind == ValueKind::WordOrList;
}

bool ReadJson(const OptionRow& row, const Json& json, OptionValue& value) {
    if (json.is_string()) {
        const auto& text = json.get_ref<const std::string&>();
        if (row.kind == ValueKind::WordOrList)
            value.text = text;
        return row.kind == ValueKind::WordOrList ? IsChoice(row.choices, text)
                                                 : TakesWord(row.kind) && ReadText(row, text, value);
    }
    if (json.is_boolean()) {
        value.on = json.get<bool>();
        return row.kind == ValueKind::Switch || row.kind == ValueKind::Flag;
    }
    if (row.kind == ValueKind::Choice && json.is_number_integer())
        return ReadText(row, std::to_string(json.get<std::int64_t>()), value);
    if (json.is_number() && !TakesWord(row.kind) && row.kind != ValueKind::Flag) {
        value.numbers = {json.get<double>()};
        return NumbersFit(row, value.numbers);
    }
    if (!json.is_array() || !TakesList(row.kind))
        return false;
    for (const Json& element : json) {
        if (!element.is_number())
            return false;
        value.numbers.push_back(element.get<double>());
    }
    return NumbersFit(row, value.numbers);
}

} // namespace

std::string TakeOptionText(const OptionRow& row, std::string_view text, Request& request) {
    OptionValue value;
    if (!ReadText(row, text, value))
        return Refusal(row, JsonText(Json(text)));
    row.put(request, value);
    return {};
}

std::string TakeOptionJson(const OptionRow& row, const Json& json, Request& request) {
    OptionValue value;
    if (!ReadJson(row, json, value))
        return Refusal(row, JsonText(json));
    row.put(request, value);
    return {};
}

} // namespace orva
