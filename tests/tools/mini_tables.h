// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "database/database_build.h"

namespace orva {

// Two substances and one that is known by name, enough for every kind of row. Values of acetic acid and
// nitrogen are rounded handbook values; the Antoine row of nitrogen gives 101.36 kPa at its boiling
// temperature.
SourceFiles MiniTables();

// The same with the first `from` of a file replaced; the test fails when it is not there.
SourceFiles MiniTablesWith(std::string_view file, std::string_view from, std::string_view to);

// A row appended to a file.
SourceFiles MiniTablesAnd(std::string_view file, std::string_view row);

std::vector<std::string> RefusalTexts(const SourceFiles& files);

} // namespace orva
