// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/result_list_functions.h"

#include <algorithm>

namespace orva {

namespace {

constexpr std::size_t ruleWidth = 70;
constexpr std::size_t labelStop = 5;
constexpr std::array<std::size_t, 2> valueStops{22, 48}; // liquid, vapour

enum class Table : std::uint8_t { Derivative, Second, Coefficient, Mechanical, SingleRule, DoubleRule };

// The rows of one data set: which label, which number of which table.
struct FunctionRow {
    Table table;
    std::size_t label = 0, entry = 0;
};

constexpr FunctionRow functionRows[] = {
    {Table::Derivative, 0, 0},   {Table::Derivative, 1, 1},   {Table::Derivative, 2, 2},
    {Table::Derivative, 3, 3},   {Table::Derivative, 4, 4},   {Table::Derivative, 5, 5},
    {Table::Second, 9, 0},       {Table::Second, 12, 3},      {Table::Second, 13, 4},
    {Table::SingleRule},         {Table::Coefficient, 21, 7}, {Table::Coefficient, 23, 9},
    {Table::Coefficient, 22, 8}, {Table::Coefficient, 14, 0}, {Table::Coefficient, 15, 1},
    {Table::Coefficient, 16, 2}, {Table::Coefficient, 17, 3}, {Table::Coefficient, 18, 4},
    {Table::Coefficient, 19, 5}, {Table::Coefficient, 20, 6}, {Table::SingleRule},
    {Table::Mechanical, 6, 0},   {Table::Mechanical, 7, 1},   {Table::Mechanical, 8, 2},
    {Table::DoubleRule},
};

// Lists go to printers that know plain digits only.
std::string PlainDigits(std::string label) {
    constexpr std::string_view square = "²";
    if (const std::size_t at = label.find(square); at != std::string::npos)
        label.replace(at, square.size(), "2");
    return label;
}

float ValueOf(const ResultRecord& record, std::size_t phase, const FunctionRow& row) {
    switch (row.table) {
    case Table::Derivative:
        return record.deriv[phase].at(row.entry);
    case Table::Second:
        return record.resid[phase].at(row.entry);
    case Table::Coefficient:
        return record.coeff[phase].at(row.entry);
    case Table::Mechanical:
        return record.mech[phase].at(row.entry);
    case Table::SingleRule:
    case Table::DoubleRule:
        break;
    }
    return 0;
}

void WriteDataSet(const ResultList& list, int number, ListPage& page) {
    const ResultRecord& record = list.results[static_cast<std::size_t>(number)];
    const std::array<bool, 2> has{record.phase.find('L') != std::string::npos,
                                  record.phase.find('V') != std::string::npos};
    page.TextLine(0, "for data set" + Str(number));
    page.At(0, "T/K =" + ListNumber(record.T, list.style));
    page.At(18, "p/kPa =" + ListNumber(record.p, list.style));
    page.At(36, "v/m^3/kmol =" + ListNumber(record.v, list.style)).EndLine();
    for (const FunctionRow& row : functionRows) {
        if (row.table == Table::SingleRule || row.table == Table::DoubleRule) {
            page.Rule(row.table == Table::SingleRule ? ListLineKind::SingleRule : ListLineKind::DoubleRule,
                      ruleWidth);
            continue;
        }
        page.At(labelStop, PlainDigits(list.derivativeLabels.at(row.label)) + ": ");
        for (std::size_t phase = 0; phase < has.size(); ++phase)
            if (has[phase])
                page.At(valueStops[phase], ListNumber(ValueOf(record, phase, row), list.style));
        page.EndLine();
    }
}

} // namespace

int ResultListRowCount(const ResultList& list) {
    return static_cast<int>(list.batch.rows.size()) - 1;
}

bool HasResult(const ResultList& list, int number) {
    const auto at = static_cast<std::size_t>(number);
    return at < list.results.size() && list.results[at].phase.find_first_not_of(' ') != std::string::npos;
}

std::string ListNumber(float x, NumberStyle style) {
    return Str(x, style) + " ";
}

std::string ListNumber(double x, NumberStyle style) {
    return Str(x, style) + " ";
}

void WriteDerivatives(const ResultList& list, ListPage& page) {
    constexpr std::string_view title = "T -, p -, v - derivatives and thermodynamic functions";
    page.LineFeeds(3);
    page.TextLine(0, title);
    page.Rule(ListLineKind::Underline, title.size());
    page.EmptyLine();
    page.Rule(ListLineKind::SingleRule, ruleWidth);
    page.At(26, "L-phase").At(52, "V-phase").EndLine();
    page.Rule(ListLineKind::SingleRule, ruleWidth);
    for (int number = 1; number <= ResultListRowCount(list); ++number) {
        if (!HasResult(list, number))
            continue;
        // Calculated without these functions: its point was not kept.
        const ResultRecord& record = list.results[static_cast<std::size_t>(number)];
        if (record.T != 0 || record.p != 0)
            WriteDataSet(list, number, page);
    }
}

} // namespace orva
