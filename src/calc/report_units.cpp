// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/report_units.h"

#include <cstddef>

namespace orva {

namespace {

constexpr int unitBases = 4;

// clang-format off
constexpr std::string_view unitTexts[][unitBases] = {
    {"h/ (kJ/kmol) ", "h/ K", "h/ (R T)", "h/ (kJ/kg) "},
    {"s/ (kJ/kmol/K) ", "s/ R ", "s / (1/K) ", "s / (kJ/(kg K)) "},
    {"g/ (kJ/kmol) ", "g/ K", "g/ (R T)", "g/ (kJ/kg) "},
    {"u/ (kJ/kmol) ", "u/ K", "u/ (R T)", "u/ (kJ/kg) "},
    {"a/ (kJ/kmol) ", "a/ K", "a/ (R T)", "a/ (kJ/kg)"},
    {"e/ (kJ/kmol)", "e/ K", "e/ (R T)", "e/ (kJ/kg) "},
    {"cp/(kJ/kmol/K)", "cp/ R ", "cp /(1/K) ", "cp /(kJ/(kg K)) "},
    {"cV/(kJ/kmol/K)", "cV/R ", "cV /(1/K) ", "cV /(kJ/(kg K)) "},
    {"delta(LV)h/(kJ/kmol)", "delta(LV)h/K", "delta(LV)h/(R T)", "delta(LV)h/(kJ/kg)"},
    {"delta(LV)s/(kJ/(kmol K))", "delta(LV)s/R", "delta(LV)s/(1/K))", "delta(LV)s/(kJ/(kg K))"},
};
// clang-format on

} // namespace

std::string_view UnitText(UnitQuantity quantity, int unitBasis) {
    const int basis = unitBasis >= 0 && unitBasis < unitBases ? unitBasis : 0;
    return unitTexts[static_cast<std::size_t>(quantity)][basis];
}

} // namespace orva
