// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace orva {

// A report for a screen: the rules that the report draws with soft hyphens, which modern screens do not show,
// as plain hyphens. The width of the text stays.
std::string WithVisibleRules(std::string_view report);

} // namespace orva
