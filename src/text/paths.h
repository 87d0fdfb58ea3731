// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace orva {

// Paths as text, in UTF-8.
std::string PathText(const std::filesystem::path& path);
std::filesystem::path PathOf(std::string_view text);

// A path for a label that has room for `maxLength` characters. A longer one keeps its beginning ("C:", or "/"
// on systems without drives), "...", and its end from a folder separator on, so that whole names are left and
// the limit holds. Where no separator follows, as in one very long name, the end begins inside of the name.
// Both "\" and "/" separate.
std::string ShortenPath(std::string_view path, std::size_t maxLength);

} // namespace orva
