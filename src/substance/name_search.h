// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace orva {

// The spellings of a chemical name, German or English, brought into one: capitals, no blanks, "C" for the
// German "K" and "Z" where the trivial names waver, "OXID" for "OXYD", "METHYL" for "ME-". All text is UTF-8;
// bytes that are not UTF-8 become U+FFFD. The result is what is compared with CAS numbers.
std::string NormaliseName(std::string_view text);

// The search key of a name that NormaliseName has already passed: without "-", "(", ")", "[", "]" and ".".
// This is the spelling of the lines of SYNOM.TXT.
std::string SearchKey(std::string_view normalisedName);

} // namespace orva
