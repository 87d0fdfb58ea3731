// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/protocol_recovery.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

#include "text/lines.h"

namespace orva {

namespace {

constexpr std::string_view fileKey = "file";
constexpr std::string_view substanceKey = "substance";
constexpr std::string_view modelKey = "model";
constexpr std::string_view volumeKey = "volumeBasis";
constexpr std::string_view unitKey = "unitBasis";
constexpr std::string_view rowKey = "row";
constexpr std::string_view rowEnd = "end"; // a number cut off in the middle would still be a number

// A field must not hold the signs that end it.
std::string Field(std::string_view text) {
    std::string field(text);
    std::replace_if(
        field.begin(), field.end(), [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
    return field;
}

void AppendLine(std::string& text, std::string_view key, std::string_view field) {
    text.append(key).append("\t").append(Field(field)).append("\n");
}

void AppendRow(std::string& text, const ProtocolRow& row) {
    std::array<char, 32> digits;
    text.append(rowKey);
    for (const float value : row) {
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
        text.append("\t").append(digits.data(), end);
    }
    text.append("\t").append(rowEnd).append("\n");
}

std::vector<std::string_view> Fields(std::string_view line) {
    std::vector<std::string_view> fields;
    for (std::size_t begin = 0; begin <= line.size();) {
        const std::size_t end = std::min(line.find('\t', begin), line.size());
        fields.push_back(line.substr(begin, end - begin));
        begin = end + 1;
    }
    return fields;
}

template<typename T> std::optional<T> WholeNumber(std::string_view text) {
    T value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return value;
}

std::optional<ProtocolRow> RowOf(const std::vector<std::string_view>& fields) {
    if (fields.size() != resultCount + 2 || fields.back() != rowEnd)
        return std::nullopt;
    ProtocolRow row{};
    for (std::size_t column = 0; column < resultCount; ++column) {
        const auto value = WholeNumber<float>(fields[column + 1]);
        if (!value || !std::isfinite(*value))
            return std::nullopt;
        row[column] = *value;
    }
    return row;
}

} // namespace

std::string RecoveryText(const ProtocolRecovery& recovery) {
    std::string text;
    AppendLine(text, fileKey, recovery.protocolFile);
    AppendLine(text, substanceKey, recovery.head.substance);
    AppendLine(text, modelKey, recovery.head.modelText);
    AppendLine(text, volumeKey, std::to_string(recovery.head.volumeBasis));
    AppendLine(text, unitKey, std::to_string(recovery.head.unitBasis));
    for (const ProtocolRow& row : recovery.rows)
        AppendRow(text, row);
    return text;
}

ProtocolRecovery ParseRecovery(std::string_view bytes) {
    ProtocolRecovery recovery;
    LineReader lines(bytes);
    while (const auto line = lines.Next()) {
        const std::vector<std::string_view> fields = Fields(*line);
        const std::string_view key = fields.front();
        if (key == rowKey) {
            if (const auto row = RowOf(fields))
                recovery.rows.push_back(*row);
            else
                ++recovery.damagedRows;
        } else if (fields.size() != 2) {
            continue;
        } else if (key == fileKey) {
            recovery.protocolFile = fields[1];
        } else if (key == substanceKey) {
            recovery.head.substance = fields[1];
        } else if (key == modelKey) {
            recovery.head.modelText = fields[1];
        } else if (key == volumeKey) {
            recovery.head.volumeBasis = WholeNumber<int>(fields[1]).value_or(0);
        } else if (key == unitKey) {
            recovery.head.unitBasis = WholeNumber<int>(fields[1]).value_or(0);
        }
    }
    return recovery;
}

} // namespace orva
