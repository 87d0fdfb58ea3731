// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace orva {

// Texts of the model lists, each blank-padded to 35 characters, and the labels of the derivative rows (14
// characters).
struct NameTables {
    std::array<std::string, 17> EosNames;              // index = ModelSelection.eos
    std::array<std::string, 9> VaporPressureNames;     // index = ModelSelection.vaporPressure
    std::array<std::string, 7> VaporizationModelNames; // index = ModelSelection.vaporization - 1
    std::array<std::string, 3> CpModelNames;           // index = ModelSelection.cpModel
    std::array<std::string, 24> DerivativeLabels;
};

// The tables as they stand at start.
NameTables FillNameTables();

// Three-letter code of a vapour-pressure index, "000" outside of 1 to 8.
std::string_view VaporPressureCodeOf(int vaporPressure);

// Index of a three-letter code, 0 for none.
int VaporPressureIndexOf(std::string_view code);

} // namespace orva
