// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace orva {

// The items of a free-format text: separated by commas or line ends, blanks around them removed. A comma
// within double quotes separates nothing, and the quotes around an item go. Nothing between two commas is an
// empty item; an empty line, or nothing behind the last comma of a line, is none. Reading stops at `limit`
// items. The items are parts of `text`.
std::vector<std::string_view> FreeFormatItems(std::string_view text, std::size_t limit);

} // namespace orva
