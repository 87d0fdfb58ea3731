// SPDX-License-Identifier: GPL-3.0-or-later
#include "database/coverage.h"

#include <algorithm>
#include <map>

#include "database/common_fluids.h"
#include "database/table_layout.h"
#include "substance/record_fields.h"

namespace orva {
namespace {

constexpr std::string_view beginMark = "<!-- coverage: written by orva-build-database --coverage -->\n";
constexpr std::string_view endMark = "<!-- end of coverage -->\n";

using Counts = std::map<std::string, int>;

std::string SourceText(const Counts& counts) {
    std::vector<std::pair<std::string, int>> sorted(counts.begin(), counts.end());
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const auto& a, const auto& b) { return a.second > b.second; });
    std::string text;
    for (const auto& [source, count] : sorted)
        text += (text.empty() ? "" : ", ") + source + " " + std::to_string(count);
    return text;
}

std::string MedianText(std::vector<double> values) {
    if (values.empty())
        return "";
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return FixedText(*middle, 2);
}

std::string ValueRow(std::string_view name, const Counts& counts) {
    int sum = 0;
    for (const auto& [source, count] : counts)
        sum += count;
    return "| " + std::string(name) + " | " + std::to_string(sum) + " | " + SourceText(counts) + " |\n";
}

// Tlo/Tc and Thi/Tc of the rows of a block.
std::string RangeText(const std::vector<CompiledSubstance>& substances, const TableLayout& layout) {
    std::vector<double> low, high;
    for (const CompiledSubstance& substance : substances) {
        if (!substance.Has(layout.file))
            continue;
        const auto& values = substance.record.values;
        const double Tc = values[static_cast<std::size_t>(RecordPosition("Tc"))];
        for (const ValueColumn& entry : layout.values) {
            const double reduced = values[static_cast<std::size_t>(ColumnPosition(entry))] / Tc;
            if (entry.column == "Tlo")
                low.push_back(reduced);
            else if (entry.column == "Thi")
                high.push_back(reduced);
        }
    }
    return MedianText(low) + " to " + MedianText(high);
}

Counts SourcesOf(const Table& table, std::string_view column, std::string_view sourceColumn) {
    Counts counts;
    for (const TableRow& row : table.rows) {
        if (column.empty() || !table.Cell(row, column).empty())
            ++counts[std::string(table.Cell(row, sourceColumn))];
    }
    return counts;
}

} // namespace

std::string CoverageText(const std::vector<CompiledSubstance>& substances, const std::vector<Table>& tables,
                         int namedOnly) {
    const std::string incomplete = IncompleteFluids(substances);
    std::string text = std::to_string(substances.size()) + " substances; the search knows "
                       + std::to_string(namedOnly) + " more by name.\n\n"
                       + "| block | substances | T/Tc | by source |\n|---|---|---|---|\n";
    for (std::size_t i = 0; i < tables.size(); ++i) {
        const TableLayout& layout = TableLayouts()[i];
        if (layout.isBlock)
            text += "| `" + std::string(layout.file) + "` | " + std::to_string(tables[i].rows.size()) + " | "
                    + RangeText(substances, layout) + " | " + SourceText(SourcesOf(tables[i], "", "source"))
                    + " |\n";
    }
    text += "\nT/Tc: the medians of both ends of the range of validity.\n\n"
            "| value | substances | by source |\n|---|---|---|\n";
    for (std::size_t i = 0; i < tables.size(); ++i) {
        const TableLayout& layout = TableLayouts()[i];
        if (layout.isBlock)
            continue;
        for (const ValueColumn& entry : layout.values) {
            if (!entry.column.starts_with("TVap"))
                text += ValueRow(entry.column, SourcesOf(tables[i], entry.column, entry.source));
        }
    }
    text += "\nThe common fluids (`tools/database/common_fluids.cpp`, "
            + std::to_string(CommonFluids().size())
            + ") have critical point, acentric factor, boiling temperature, vapour pressure, liquid density, "
              "enthalpy of vaporisation, heat capacities and formation values";
    text += incomplete.empty() ? ".\n" : ", but for these gaps, which no source at hand fills:\n\n";
    std::string_view lines = incomplete;
    while (!lines.empty()) {
        const auto end = lines.find('\n');
        text += "- " + std::string(lines.substr(0, end)) + "\n";
        lines.remove_prefix(end + 1);
    }
    return text;
}

std::optional<std::string> WithCoverage(std::string_view document, std::string_view coverage) {
    const auto begin = document.find(beginMark);
    const auto end = document.find(endMark);
    if (begin == document.npos || end == document.npos || end < begin)
        return std::nullopt;
    return std::string(document.substr(0, begin + beginMark.size())) + "\n" + std::string(coverage) + "\n"
           + std::string(document.substr(end));
}

std::string CoverageOf(std::string_view document) {
    const auto begin = document.find(beginMark);
    const auto end = document.find(endMark);
    if (begin == document.npos || end == document.npos || end < begin + beginMark.size() + 2)
        return "";
    const auto from = begin + beginMark.size() + 1;
    return std::string(document.substr(from, end - from - 1));
}

} // namespace orva
