// SPDX-License-Identifier: GPL-3.0-or-later
#include "database/table.h"

#include <algorithm>
#include <optional>

#include "text/utf8.h"

namespace orva {
namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr char32_t noBreakSpace = 0xA0;

std::vector<std::string> SplitCells(std::string_view line) {
    std::vector<std::string> cells;
    for (;;) {
        const auto tab = line.find('\t');
        cells.emplace_back(line.substr(0, tab));
        if (tab == line.npos)
            return cells;
        line.remove_prefix(tab + 1);
    }
}

// What is wrong with the characters of a line.
std::optional<std::string> CharacterFault(std::string_view line) {
    while (!line.empty()) {
        const Utf8Step step = FirstCharacter(line);
        if (!step.character)
            return "not UTF-8";
        const char32_t c = *step.character;
        if ((c < 0x20 && c != U'\t') || c == 0x7F)
            return "holds a control character";
        if (c == noBreakSpace)
            return "holds a no-break space";
        line.remove_prefix(step.length);
    }
    return std::nullopt;
}

std::optional<std::string> CellFault(const Table& table, const std::vector<std::string>& cells) {
    if (cells.size() != table.columns.size())
        return std::to_string(cells.size()) + " cells where the table has "
               + std::to_string(table.columns.size()) + " columns";
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (!cells[i].empty() && (cells[i].front() == ' ' || cells[i].back() == ' '))
            return table.columns[i] + ": blank at the beginning or the end";
    }
    return std::nullopt;
}

// Refuses what differs from the columns that the table must have.
bool CheckColumns(const Table& table, int line, const std::vector<std::string>& columns, Refusals& refusals) {
    const std::size_t before = refusals.size();
    for (const std::string& column : table.columns) {
        if (std::find(columns.begin(), columns.end(), column) == columns.end())
            refusals.push_back({table.file, line, "", "unknown column \"" + column + "\""});
        else if (std::count(table.columns.begin(), table.columns.end(), column) > 1)
            refusals.push_back({table.file, line, "", "column \"" + column + "\" stands more than once"});
    }
    for (const std::string& column : columns) {
        if (!table.HasColumn(column))
            refusals.push_back({table.file, line, "", "column \"" + column + "\" is missing"});
    }
    return refusals.size() == before;
}

} // namespace

std::string RefusalText(const Refusal& refusal) {
    std::string text = refusal.file;
    if (refusal.line > 0)
        text += ":" + std::to_string(refusal.line);
    if (!refusal.cas.empty())
        text += ": " + refusal.cas;
    return text + ": " + refusal.reason;
}

bool Table::HasColumn(std::string_view column) const {
    return std::find(columns.begin(), columns.end(), column) != columns.end();
}

std::string_view Table::Cell(const TableRow& row, std::string_view column) const {
    const auto found = std::find(columns.begin(), columns.end(), column);
    if (found == columns.end())
        return {};
    return row.cells[static_cast<std::size_t>(found - columns.begin())];
}

Table ReadTable(std::string_view file, std::string_view bytes, const std::vector<std::string>& columns,
                Refusals& refusals) {
    Table table;
    table.file = file;
    if (bytes.starts_with(byteOrderMark))
        bytes.remove_prefix(byteOrderMark.size());
    for (int line = 1; !bytes.empty(); ++line) {
        const auto end = bytes.find('\n');
        std::string_view text = bytes.substr(0, end);
        bytes.remove_prefix(end == bytes.npos ? bytes.size() : end + 1);
        if (text.ends_with('\r'))
            text.remove_suffix(1);
        if (const auto fault = CharacterFault(text)) {
            refusals.push_back({table.file, line, "", *fault});
            continue;
        }
        if (text.empty() || text.front() == '#')
            continue;
        std::vector<std::string> cells = SplitCells(text);
        if (table.columns.empty()) {
            table.columns = std::move(cells);
            if (!CheckColumns(table, line, columns, refusals))
                return table;
            continue;
        }
        if (const auto fault = CellFault(table, cells)) {
            refusals.push_back({table.file, line, "", *fault});
            continue;
        }
        table.rows.push_back({line, std::move(cells)});
    }
    if (table.columns.empty())
        refusals.push_back({table.file, 0, "", "no line names the columns"});
    return table;
}

} // namespace orva
