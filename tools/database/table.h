// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "database/refusal.h"

namespace orva {

struct TableRow {
    int line = 0; // in the file, from 1
    std::vector<std::string> cells;
};

// A table of tab-separated cells in UTF-8. Lines that begin with "#" are comments, empty lines separate; the
// first other line names the columns.
struct Table {
    std::string file;
    std::vector<std::string> columns;
    std::vector<TableRow> rows;

    bool HasColumn(std::string_view column) const;
    // Cell of a column; empty when there is no such column.
    std::string_view Cell(const TableRow& row, std::string_view column) const;
};

// Reads a table from any bytes. Rows that are not text, that hold control characters, that have more or fewer
// cells than there are columns, or cells with blanks at their ends, are refused and left out. The columns
// must be exactly `columns`, in any order; otherwise that is refused and the table comes back without rows.
Table ReadTable(std::string_view file, std::string_view bytes, const std::vector<std::string>& columns,
                Refusals& refusals);

} // namespace orva
