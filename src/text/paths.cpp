// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/paths.h"

#include <vector>

#include "text/utf8.h"

namespace orva {

namespace {

constexpr std::string_view separators = "\\/";
constexpr std::string_view gap = "...";
constexpr std::size_t driveLength = 2;
constexpr std::size_t keptBesideEnd = 5; // drive and gap

// Byte position of every character, and the length of the text at the end.
std::vector<std::size_t> CharacterStarts(std::string_view text) {
    std::vector<std::size_t> starts;
    std::size_t at = 0;
    while (at < text.size()) {
        starts.push_back(at);
        at += FirstCharacter(text.substr(at)).length;
    }
    starts.push_back(text.size());
    return starts;
}

} // namespace

std::string PathText(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::filesystem::path PathOf(std::string_view text) {
    return {std::u8string(text.begin(), text.end())};
}

std::string ShortenPath(std::string_view path, std::size_t maxLength) {
    const std::vector<std::size_t> starts = CharacterStarts(path);
    const std::size_t length = starts.size() - 1;
    if (length <= maxLength)
        return std::string(path);
    const std::size_t earliest = starts[std::min(length, length - maxLength + keptBesideEnd)];
    const std::size_t separator = path.find_first_of(separators, earliest);
    const std::string_view end = path.substr(separator == path.npos ? earliest : separator);
    const std::size_t beginning = path.starts_with('/') ? 1 : driveLength;
    return std::string(path.substr(0, starts[std::min(beginning, length)])).append(gap).append(end);
}

} // namespace orva
