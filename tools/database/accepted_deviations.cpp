// SPDX-License-Identifier: GPL-3.0-or-later
#include "database/accepted_deviations.h"

#include <algorithm>

#include "database/value_checks.h"

namespace orva {

AcceptedDeviations::AcceptedDeviations(const Table& table, const std::vector<CompiledSubstance>& substances,
                                       Refusals& refusals)
    : file(table.file) {
    for (const TableRow& row : table.rows) {
        const std::string cas(table.Cell(row, "cas"));
        const std::string check(table.Cell(row, "check"));
        const auto refuse = [&](std::string reason) {
            refusals.push_back({table.file, row.line, cas, std::move(reason)});
        };
        const auto substance = std::find_if(substances.begin(), substances.end(),
                                            [&](const CompiledSubstance& s) { return s.cas == cas; });
        if (substance == substances.end()) {
            refuse("no substance has this CAS number");
            continue;
        }
        if (table.Cell(row, "name") != substance->nameEnglish)
            refuse("name \"" + std::string(table.Cell(row, "name")) + "\" is not \"" + substance->nameEnglish
                   + "\"");
        const auto checks = ValueChecks();
        if (std::none_of(checks.begin(), checks.end(), [&](const ValueCheck& c) { return c.name == check; }))
            refuse("there is no check \"" + check + "\"");
        const CellNumber limit = ReadNumber(table.Cell(row, "limit"), ColumnKind::coefficient);
        if (limit.fault || !(limit.value > 0))
            refuse("limit: " + limit.fault.value_or("must be above 0"));
        if (table.Cell(row, "reason").empty())
            refuse("reason is missing");
        if (!entries.try_emplace({cas, check}, Entry{limit.value, row.line, false}).second)
            refuse("second row of this substance for \"" + check + "\"");
    }
}

bool AcceptedDeviations::Accept(std::string_view cas, std::string_view check, double size) {
    const auto found = entries.find({std::string(cas), std::string(check)});
    if (found == entries.end() || !(size <= found->second.limit))
        return false;
    found->second.used = true;
    return true;
}

void AcceptedDeviations::RefuseUnused(Refusals& refusals) const {
    for (const auto& [key, entry] : entries) {
        if (!entry.used)
            refusals.push_back(
                {file, entry.line, key.first, "\"" + key.second + "\" holds without this row"});
    }
}

std::vector<std::string> AcceptedColumns() {
    return {"cas", "name", "check", "limit", "reason"};
}

} // namespace orva
