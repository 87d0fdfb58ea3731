// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orva {

// The number at the beginning of a typed text, after leading blanks or tabs: sign, digits, one separator
// ("," counts as "."), exponent. Reading stops at the first character that is no part of it; without a number
// the result is 0. Overflow gives 0 as well, so that every result is finite.
double ParseNumber(std::string_view text);

// The same, but nothing where ParseNumber has to make up a 0: for a text that begins with no number, or with
// one beyond the range of a double.
std::optional<double> ReadNumber(std::string_view text);

// True if the text, but for blanks around it, is one whole number of the form above, of whatever size.
bool IsNumber(std::string_view text);

// Key filter of numeric fields: digits, "E", "e", "-", ".", ",", Enter, Backspace and Delete pass; "," is
// changed to ".". Returns the character to take, or 0 for a key that is dropped.
char IsNumericKey(char key);

} // namespace orva
