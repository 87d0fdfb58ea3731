// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "calc/result_list.h"

namespace orva::test {

// A data series with made-up results: the list takes the numbers as they come.
struct ListOfResults {
    BatchDataSet batch;
    std::vector<ResultRecord> results = std::vector<ResultRecord>(1);
    NameTables names = FillNameTables();
    ResultList list{batch, results, names.DerivativeLabels};

    ListOfResults() {
        list.kind = kindTP;
        list.eos = 6;
        list.date = "21.11.2026";
        list.title = " T, p => rho";
        list.substance = "n-Butan";
        list.modelText = "CEOS Peng / Robinson; Wagner";
        list.vaporPressureName = "Wagner";
    }
    ListOfResults(const ListOfResults&) = delete;
    ListOfResults& operator=(const ListOfResults&) = delete;

    void Add(const BatchRow& row, const ResultRecord& record) {
        batch.rows.push_back(row);
        results.push_back(record);
    }

    std::string Text() const { return ListFileText(ResultListForFile(list)); }

    // Everything behind the head of the columns.
    std::string Body() const {
        const std::string units = "kJ/kmol\r\n" + std::string(70, '=') + "\r\n";
        const std::string text = Text();
        return text.substr(text.find(units) + units.size());
    }
};

inline BatchRow Given(double T, double p, float rhoV = 0, float rhoL = 0, float hLV = 0) {
    BatchRow row;
    row.T = T;
    row.p = p;
    row.rhoV = rhoV;
    row.rhoL = rhoL;
    row.hLV = hLV;
    return row;
}

inline ResultRecord Calculated(const char* phase, float T = 0, float p = 0, float rhoV = 0, float rhoL = 0,
                               float hLV = 0) {
    ResultRecord record;
    record.phase = phase;
    record.Tcalc = T;
    record.pcalc = p;
    record.rhoV = rhoV;
    record.rhoL = rhoL;
    record.hLV = hLV;
    return record;
}

inline std::string FileLines(std::initializer_list<std::string_view> lines) {
    std::string text;
    for (const std::string_view line : lines)
        text.append(line).append("\r\n");
    return text;
}

} // namespace orva::test
