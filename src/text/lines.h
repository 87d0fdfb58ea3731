// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string_view>

namespace orva {

// Lines of a text in memory, without their ends "\n" or "\r\n"; a last line without an end counts.
class LineReader {
public:
    explicit LineReader(std::string_view text) : rest(text) {}
    // Nothing behind the last line.
    std::optional<std::string_view> Next();

private:
    std::string_view rest;
};

} // namespace orva
