// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/lines.h"

namespace orva {

std::optional<std::string_view> LineReader::Next() {
    if (rest.empty())
        return std::nullopt;
    const std::size_t end = rest.find('\n');
    std::string_view line = rest.substr(0, end);
    rest = end == rest.npos ? std::string_view() : rest.substr(end + 1);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

} // namespace orva
