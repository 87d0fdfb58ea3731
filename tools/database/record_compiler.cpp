// SPDX-License-Identifier: GPL-3.0-or-later
#include "database/record_compiler.h"

#include <charconv>
#include <cstdint>

#include "database/table_layout.h"

namespace orva {
namespace {

constexpr std::size_t formulaWidth = 12, nameWidth = 40, casWidth = 12;

using IndexByCas = std::map<std::string, std::size_t, std::less<>>;

class Compiler {
public:
    Compiler(const Bibliography& keys, Refusals& list) : bibliography(keys), refusals(list) {}

    void TakeIdentities(const Table& table) {
        for (const TableRow& row : table.rows)
            TakeIdentity(table, row);
    }

    void TakeTable(const Table& table, const TableLayout& layout) {
        for (const TableRow& row : table.rows) {
            const std::string_view cas = table.Cell(row, "cas");
            const auto found = byCas.find(cas);
            if (found == byCas.end()) {
                refusals.push_back(
                    {table.file, row.line, std::string(cas), "no substance has this CAS number"});
                continue;
            }
            CompiledSubstance& substance = substances[found->second];
            if (substance.Has(table.file)) {
                Refuse(substance, table, row, SecondRow(substance, table.file));
                continue;
            }
            substance.lines.emplace(table.file, row.line);
            if (table.Cell(row, "name") != substance.nameEnglish)
                Refuse(substance, table, row,
                       "name \"" + std::string(table.Cell(row, "name")) + "\" is not \""
                           + substance.nameEnglish + "\"");
            TakeValues(substance, table, row, layout);
        }
    }

    std::vector<CompiledSubstance> substances;

private:
    void TakeIdentity(const Table& table, const TableRow& row) {
        const std::string cas(table.Cell(row, "cas"));
        if (const auto found = byCas.find(cas); found != byCas.end()) {
            CompiledSubstance& first = substances[found->second];
            Refuse(first, table, row, SecondRow(first, table.file));
            return;
        }
        byCas.emplace(cas, substances.size());
        CompiledSubstance& substance = substances.emplace_back();
        substance.cas = cas;
        substance.lines.emplace(table.file, row.line);
        TakeNumber(substance, table, row);
        DatabaseRecord& record = substance.record;
        record.cas = cas;
        record.formula = TakeText(substance, table, row, "formula", formulaWidth);
        record.nameEnglish = TakeText(substance, table, row, "name_en", nameWidth);
        record.nameGerman = TakeText(substance, table, row, "name_de", nameWidth);
        substance.nameEnglish = NameParts(record.nameEnglish).front();
        substance.nameGerman = NameParts(record.nameGerman).front();
        if (auto fault = TextFault(cas, casWidth))
            Refuse(substance, table, row, "cas: " + *fault);
        else if ((fault = CasFault(cas)))
            Refuse(substance, table, row, *fault);
        TakeName(substance, table, row, "name_en", substance.nameEnglish, englishNames);
        TakeName(substance, table, row, "name_de", substance.nameGerman, germanNames);
        TakeValues(substance, table, row, TableLayouts().front());
    }

    // Record order and serial number are one and the same.
    void TakeNumber(CompiledSubstance& substance, const Table& table, const TableRow& row) {
        const std::string expected = std::to_string(substances.size());
        const std::string_view number = table.Cell(row, "number");
        if (number != expected)
            Refuse(substance, table, row,
                   "number " + std::string(number) + " stands where " + expected + " belongs");
        std::from_chars(expected.data(), expected.data() + expected.size(), substance.record.number);
    }

    std::string TakeText(CompiledSubstance& substance, const Table& table, const TableRow& row,
                         std::string_view column, std::size_t width) {
        const std::string_view text = table.Cell(row, column);
        if (const auto fault = TextFault(text, width))
            Refuse(substance, table, row, std::string(column) + ": " + *fault);
        return std::string(text);
    }

    void TakeName(CompiledSubstance& substance, const Table& table, const TableRow& row,
                  std::string_view column, const std::string& name,
                  std::map<std::string, std::string>& names) {
        const auto [first, isNew] = names.emplace(name, substance.cas);
        if (!isNew)
            Refuse(substance, table, row,
                   std::string(column) + ": \"" + name + "\" is the name of " + first->second + " already");
    }

    void TakeValues(CompiledSubstance& substance, const Table& table, const TableRow& row,
                    const TableLayout& layout) {
        std::string_view sourceChecked;
        for (const ValueColumn& entry : layout.values) {
            const std::string_view cell = table.Cell(row, entry.column);
            const CellNumber number = ReadNumber(cell, entry.kind);
            if (number.fault)
                Refuse(substance, table, row, std::string(entry.column) + ": " + *number.fault);
            substance.record.values[static_cast<std::size_t>(ColumnPosition(entry))] = number.value;
            if ((cell.empty() && !layout.isBlock) || entry.source == sourceChecked)
                continue;
            sourceChecked = entry.source;
            if (const auto fault = SourceFault(table.Cell(row, entry.source), bibliography))
                Refuse(substance, table, row, std::string(entry.source) + ": " + *fault);
        }
    }

    static std::string SecondRow(const CompiledSubstance& substance, std::string_view file) {
        return "second row of this substance, the first is line " + std::to_string(substance.Line(file));
    }

    void Refuse(CompiledSubstance& substance, const Table& table, const TableRow& row, std::string reason) {
        substance.refused = true;
        refusals.push_back({table.file, row.line, substance.cas, std::move(reason)});
    }

    const Bibliography& bibliography;
    Refusals& refusals;
    IndexByCas byCas;
    std::map<std::string, std::string> englishNames, germanNames; // name -> CAS number
};

} // namespace

int CompiledSubstance::Line(std::string_view file) const {
    const auto found = lines.find(file);
    return found == lines.end() ? 0 : found->second;
}

std::vector<CompiledSubstance> CompileRecords(const std::vector<Table>& tables,
                                              const Bibliography& bibliography, Refusals& refusals) {
    Compiler compiler(bibliography, refusals);
    compiler.TakeIdentities(tables.front());
    for (std::size_t i = 1; i < tables.size(); ++i)
        compiler.TakeTable(tables[i], TableLayouts()[i]);
    return std::move(compiler.substances);
}

std::vector<std::string> NameParts(std::string_view name) {
    std::vector<std::string> parts;
    for (;;) {
        const auto end = name.find(';');
        std::string_view part = name.substr(0, end);
        while (part.starts_with(' '))
            part.remove_prefix(1);
        while (part.ends_with(' '))
            part.remove_suffix(1);
        parts.emplace_back(part);
        if (end == name.npos)
            return parts;
        name.remove_prefix(end + 1);
    }
}

} // namespace orva
