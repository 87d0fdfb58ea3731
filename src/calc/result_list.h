// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "calc/calc_batch.h"
#include "calc/list_page.h"
#include "state/dialogs.h"
#include "state/machine.h"

namespace orva {

// What the list of results is made of: the rows of a data series and what was calculated for them.
struct ResultList {
    const BatchDataSet& batch;
    const std::vector<ResultRecord>& results; // by the number of the row
    const std::array<std::string, 24>& derivativeLabels;
    NumberStyle style{};
    int kind = kindNone;
    bool useGlobal = true;
    bool printFunctions = false; // with derivatives and functions
    int eos = 0;                 // -1 for none
    std::string date{};
    std::string title{}; // of the calculation
    std::string substance{};
    std::string modelText{};
    std::string vaporPressureName{};
    std::string batchFile{}; // empty for none
};

// The list of a calculation that has run through `results`.
ResultList MakeResultList(const CalculationContext& context, const std::vector<ResultRecord>& results);

// The list in English, as it goes to a file or to paper: head, per calculated data set the given and the
// calculated values with their differences and deviations in per cent, means of the deviations, derivatives.
// A row without a result (a phase of blanks) is passed over. Temperatures in K, pressures in kPa, densities
// in kg/m^3, energies in kJ/kmol.
std::vector<ListLine> ResultListForFile(const ResultList& list);
std::vector<ListLine> ResultListForPaper(const ResultList& list);

// Where a list of this name goes: a short name without an ending gets ".LST", one without a folder lies in
// the folder for written files.
std::filesystem::path ResultListPath(const std::string& file, const Machine& machine);

// Writes the list, over a file of this name, in Windows-1252. False, and a box with the system's error text,
// if that is not possible.
bool WriteResultList(const std::string& file, const ResultList& list, const Machine& machine,
                     Dialogs& dialogs);

} // namespace orva
