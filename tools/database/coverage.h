// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "database/record_compiler.h"

namespace orva {

// What the database holds, as two tables in Markdown: the blocks with the number of substances, the range of
// validity (median of Tlo/Tc and Thi/Tc) and the sources of their rows; the single values with their sources;
// and the common fluids that lack something. `tables` stand in the order of TableLayouts().
std::string CoverageText(const std::vector<CompiledSubstance>& substances, const std::vector<Table>& tables,
                         int namedOnly);

// A document with the text between the two coverage marks replaced; nothing without the marks.
std::optional<std::string> WithCoverage(std::string_view document, std::string_view coverage);

// The coverage as it stands in a document.
std::string CoverageOf(std::string_view document);

} // namespace orva
