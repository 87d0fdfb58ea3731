// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "database/record_compiler.h"

namespace orva {

// Deviations above the refusal limit of a check that stand all the same, each with its limit and its reason:
// a vapour that associates, a liquid with a density maximum.
class AcceptedDeviations {
public:
    // Refuses rows of substances or checks that do not exist, of limits that are no numbers, without a
    // reason, and second rows.
    AcceptedDeviations(const Table& table, const std::vector<CompiledSubstance>& substances,
                       Refusals& refusals);

    // True if a deviation of this size is accepted.
    bool Accept(std::string_view cas, std::string_view check, double size);

    // Refuses the rows that accepted nothing.
    void RefuseUnused(Refusals& refusals) const;

private:
    struct Entry {
        double limit = 0;
        int line = 0;
        bool used = false;
    };
    std::string file;
    std::map<std::pair<std::string, std::string>, Entry> entries; // CAS number, check
};

// Columns of the table.
std::vector<std::string> AcceptedColumns();

} // namespace orva
