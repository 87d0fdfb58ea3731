// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace orva {

// One step through a UTF-8 text.
struct Utf8Step {
    std::optional<char32_t> character; // nothing for bytes that are no character
    std::size_t length = 0;            // bytes to go on by, at least 1 unless the text is at its end
};

// The character at the beginning of the text. A broken one, up to the first byte that cannot belong to it, is
// one step, so that a truncated character counts once. Overlong forms, surrogates and values above U+10FFFF
// are no characters (table of well-formed sequences: The Unicode Standard, 15.0, table 3-7).
Utf8Step FirstCharacter(std::string_view text);

// Appends the character; a value that is no character becomes U+FFFD.
void AppendUtf8(std::string& text, char32_t character);

// The characters of a text; a broken one becomes U+FFFD.
std::u32string CodePoints(std::string_view text);

// The text of characters.
std::string Utf8(std::u32string_view characters);

bool IsAscii(std::string_view text);

// True if the text has no broken character.
bool IsUtf8(std::string_view text);

} // namespace orva
