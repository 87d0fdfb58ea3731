// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace orva {

// The text with its letters "a" to "z" as capitals, for comparing names of files; all other characters stay.
std::string InCapitals(std::string_view text);

} // namespace orva
