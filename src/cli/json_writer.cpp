// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/json_writer.h"

#include <array>
#include <charconv>
#include <cmath>

namespace orva {

namespace {

// Bytes that stand in a JSON text as they are: ASCII but for control characters, quote and backslash.
constexpr std::array<bool, 256> plainBytes = [] {
    std::array<bool, 256> plain{};
    for (std::size_t byte = 0x20; byte < 0x80; ++byte)
        plain[byte] = byte != '"' && byte != '\\';
    return plain;
}();

constexpr bool IsPlain(char c) {
    return plainBytes[static_cast<unsigned char>(c)];
}

constexpr bool IsAsciiByte(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

void AppendEscaped(std::string& text, char c) {
    constexpr std::string_view named = "\"\\\b\f\n\r\t";
    constexpr std::string_view names = "\"\\bfnrt";
    constexpr const char* digits = "0123456789abcdef";
    text += '\\';
    if (const std::size_t at = named.find(c); at != named.npos) {
        text += names[at];
        return;
    }
    text += "u00";
    text += digits[static_cast<unsigned char>(c) >> 4U];
    text += digits[static_cast<unsigned char>(c) & 0xFU];
}

// Characters beyond ASCII and bytes that are none: a broken one ends before the next ASCII byte, so that the
// run can be looked at alone.
void AppendBeyondAscii(std::string& text, std::string_view run) {
    const std::string quoted = JsonText(Json(run));
    text.append(quoted, 1, quoted.size() - 2);
}

} // namespace

void AppendJson(std::string& text, double number) {
    if (!std::isfinite(number)) {
        text += "null";
        return;
    }
    // The library's own digits: where two shortest texts read back the same they need not be those of
    // std::to_chars.
    char digits[64];
    const char* const end = nlohmann::detail::to_chars(digits, digits + sizeof digits, number);
    text.append(digits, static_cast<std::size_t>(end - digits));
}

void AppendJson(std::string& text, int number) {
    char digits[16];
    const auto [end, error] = std::to_chars(digits, digits + sizeof digits, number);
    text.append(digits, static_cast<std::size_t>(end - digits));
}

void AppendJson(std::string& text, std::string_view value) {
    text += '"';
    for (std::size_t at = 0; at < value.size();) {
        std::size_t end = at;
        while (end < value.size() && IsPlain(value[end]))
            ++end;
        text.append(value, at, end - at);
        at = end;
        while (end < value.size() && !IsAsciiByte(value[end]))
            ++end;
        if (end > at)
            AppendBeyondAscii(text, value.substr(at, end - at));
        else if (at < value.size())
            AppendEscaped(text, value[end++]);
        at = end;
    }
    text += '"';
}

} // namespace orva
