// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orva {

enum class ColumnKind {
    value,       // a written 0 is a true zero, which the record holds as 1E-37
    coefficient, // 0 is just 0
    limit        // a whole number of kelvins
};

// A column that goes into the value table of the record.
struct ValueColumn {
    std::string_view column;
    std::string_view field; // name of the record field, or of one of the values that only the loader looks at
    ColumnKind kind;
    std::string_view source; // the column that names the source of the value
};

struct TableLayout {
    std::string_view file;
    std::span<const ValueColumn> values;
    std::span<const std::string_view> texts; // columns beside the values and their sources
    bool isBlock;                            // an equation with the limits Tlo and Thi
};

// The tables whose values make up a record; the first is that of the identities.
std::span<const TableLayout> TableLayouts();

// All columns of a table: texts, values and the sources of values.
std::vector<std::string> Columns(const TableLayout& layout);

// Position in the value table of the record; -1 for none.
int ColumnPosition(const ValueColumn& column);

inline constexpr std::string_view identityFile = "identity.tsv";
inline constexpr std::string_view constantsFile = "constants.tsv";
inline constexpr std::string_view acceptedFile = "accepted_deviations.tsv";
inline constexpr std::string_view synonymsFile = "synonyms.tsv";
inline constexpr std::string_view sourcesFile = "sources.md";
inline constexpr std::string_view versionFile = "version.txt";

// Columns of the table of synonyms.
std::vector<std::string> SynonymColumns();

} // namespace orva
