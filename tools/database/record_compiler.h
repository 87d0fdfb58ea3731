// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "database/cell_values.h"
#include "database/refusal.h"
#include "database/table.h"
#include "substance/record.h"

namespace orva {

// A substance on its way into the database, with the lines that it comes from.
struct CompiledSubstance {
    std::string cas;
    std::string nameEnglish; // before the first ";"
    std::string nameGerman;
    DatabaseRecord record;
    std::map<std::string, int, std::less<>> lines; // file -> line of the row
    bool refused = false;                          // no further checks

    bool Has(std::string_view file) const { return lines.contains(file); }
    int Line(std::string_view file) const; // 0 for a table without a row
};

// Puts the rows of all tables together, one substance for each row of the identities and in their order.
// `tables` stand in the order of TableLayouts().
std::vector<CompiledSubstance> CompileRecords(const std::vector<Table>& tables,
                                              const Bibliography& bibliography, Refusals& refusals);

// Name before the first ";", and the parts behind it, without blanks at the ends.
std::vector<std::string> NameParts(std::string_view name);

} // namespace orva
