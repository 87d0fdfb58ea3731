// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orva {

// Fixed-width text columns. All texts are UTF-8; widths count characters, not bytes.
// A broken character counts as one.

std::size_t CharacterCount(std::string_view text);

// The first `width` characters, or the text filled up with blanks behind it.
std::string FixedField(std::string_view text, std::size_t width);

// The text filled up with blanks behind (before) it; a longer text stays whole.
std::string PadRight(std::string_view text, std::size_t width);
std::string PadLeft(std::string_view text, std::size_t width);

std::string Spaces(std::size_t count);

// `character` (one UTF-8 character) repeated.
std::string Line(std::string_view character, std::size_t count);

// Removes blanks only, as the fixed fields of the files need it.
std::string_view TrimRight(std::string_view text);
std::string_view TrimLeft(std::string_view text);
std::string_view Trim(std::string_view text);

} // namespace orva
