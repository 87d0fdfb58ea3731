// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/columns.h"

#include "text/utf8.h"

namespace orva {

std::size_t CharacterCount(std::string_view text) {
    std::size_t count = 0;
    while (!text.empty()) {
        text.remove_prefix(FirstCharacter(text).length);
        ++count;
    }
    return count;
}

std::string FixedField(std::string_view text, std::size_t width) {
    std::size_t bytes = 0;
    std::size_t count = 0;
    while (count < width && bytes < text.size()) {
        bytes += FirstCharacter(text.substr(bytes)).length;
        ++count;
    }
    return std::string(text.substr(0, bytes)) + Spaces(width - count);
}

std::string PadRight(std::string_view text, std::size_t width) {
    const std::size_t count = CharacterCount(text);
    return std::string(text) + Spaces(count < width ? width - count : 0);
}

std::string PadLeft(std::string_view text, std::size_t width) {
    const std::size_t count = CharacterCount(text);
    return Spaces(count < width ? width - count : 0).append(text);
}

std::string Spaces(std::size_t count) {
    return std::string(count, ' ');
}

std::string Line(std::string_view character, std::size_t count) {
    std::string line;
    line.reserve(character.size() * count);
    for (std::size_t i = 0; i < count; ++i)
        line += character;
    return line;
}

std::string_view TrimRight(std::string_view text) {
    return text.substr(0, text.find_last_not_of(' ') + 1); // npos + 1 is 0: nothing but blanks
}

std::string_view TrimLeft(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

std::string_view Trim(std::string_view text) {
    return TrimLeft(TrimRight(text));
}

} // namespace orva
