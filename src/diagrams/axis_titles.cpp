// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/axis_titles.h"

#include "text/columns.h"

namespace orva {

namespace {

constexpr int basisReduced = 2;
constexpr std::size_t unitBases = 4;

struct EnergyTitle {
    Quantity quantity;
    std::string_view byBasis[unitBases]; // molar, by R, by R T, specific
};

using Q = Quantity;

// clang-format off
constexpr EnergyTitle energyTitles[] = {
    {Q::Enthalpy, {"h / (kJ/kmol) ", "h / K", "h / (R T)", "h / (kJ/kg) "}},
    {Q::Entropy, {"s / (kJ/(kmol K)) ", "s / R", "s / (1/K)", "s / (kJ/(kg K)) "}},
    {Q::FreeEnthalpy, {"g / (kJ/kmol) ", "g / K", "g / (R T)", "g / (kJ/kg) "}},
    {Q::InnerEnergy, {"u / (kJ/kmol) ", "u / K", "u / (R T)", "u / (kJ/kg) "}},
    {Q::FreeEnergy, {"a / (kJ/kmol) ", "a / K", "a / (R T)", "a / (kJ/kg) "}},
    {Q::ExergyOfEnthalpy, {"e / (kJ/kmol) ", "e / K", "e / (R T)", "e / (kJ/kg) "}},
    {Q::ExergyOfInnerEnergy, {"e(U) / (kJ/kmol) ", "e(U) / K", "e(U) / (R T)", "e(U) / (kJ/kg) "}},
    {Q::AmbientEntropy, {"T(u) s / (kJ/kmol) ", "T(u) s / K", "T(u) s / (R T)", "T(u) s / (kJ/kg) "}},
    {Q::HeatCapacityP, {"cp / (kJ/(kmol K)) ", "cp / R ", "cp / (1/K) ", "cp / (kJ/(kg K)) "}},
    {Q::HeatCapacityV, {"cV / (kJ/(kmol K)) ", "cV / R ", "cV / (1/K) ", "cV / (kJ/(kg K)) "}},
    // Kept on purpose: divided by R this axis says cp.
    {Q::IsochoricHeatCapacity, {"cV / (kJ/(kmol K)) ", "cp / R ", "cV / (1/K) ", "cV / (kJ/(kg K)) "}},
    {Q::ResidualEnthalpy, {"(h - h_id) / (kJ/kmol) ", "(h - h_id) / K", "(h - h_id) / (R T)", "(h - h_id) / (kJ/kg) "}},
    {Q::ResidualEntropy, {"(s - s_id) / (kJ/(kmol K)) ", "(s - s_id) / R", "(s - s_id) / (1/K)", "(s - s_id) / (kJ/(kg K)) "}},
    {Q::ResidualFreeEnthalpy, {"(g - g_id) / (kJ/kmol) ", "(g - g_id) / K", "(g - g_id) / (R T)", "(g - g_id) / (kJ/kg) "}},
    {Q::ResidualHeatCapacity, {"(cp - cp_id) / (kJ/(kmol K)) ", "(cp - cp_id) / R ", "(cp - cp_id) / (1/K) ", "(cp - cp_id) / (kJ/(kg K)) "}},
    {Q::VaporisationEnthalpy, {"delta(LV)h / (kJ/kmol) ", "delta(LV)h / K", "delta(LV)h / (R T)", "delta(LV)h / (kJ/kg) "}},
    {Q::EosParameterA, {"A / (kPa m^6/kmol^2) ", "A / (kPa m^6/kmol^2) ", "A / (kPa m^6/kmol^2) ", "A / (kPa m^6/kmol^2) "}},
};
// clang-format on

std::string ReducedTitle(Quantity quantity) {
    switch (quantity) {
    case Q::Temperature:
        return "T(red)";
    case Q::Pressure:
        return "p / p(cr)";
    case Q::Volume:
        return "V(red)";
    case Q::PressureVolume:
        return "p(red) V(red)";
    case Q::InverseTemperature:
        return "1 / T(red)";
    case Q::LogPressure:
        return "ln(p(red))";
    default:
        return {};
    }
}

std::string ThermalTitle(Quantity quantity, const Options& options) {
    const std::string volumeUnit(Trim(options.vUnit));
    switch (quantity) {
    case Q::Temperature:
        return "T / " + options.TUnit;
    case Q::Pressure:
        return "p / " + options.pUnit;
    case Q::Volume:
        return "v / (" + volumeUnit + ")";
    case Q::Density:
        return "rho / (kg/m^3)";
    case Q::PressureVolume:
        return "p v / (" + options.pUnit + " " + volumeUnit + ")";
    case Q::InverseTemperature:
        return "1/T / (1/" + options.TUnit + ")";
    case Q::LogPressure:
        return "ln(p / " + options.pUnit + ")";
    case Q::VapourPressureSlope:
        return "dlnp / d(1/T) / K";
    case Q::JouleThomson:
        return "delta / (K/kPa)";
    default:
        return {};
    }
}

} // namespace

std::string AxisTitle(Quantity quantity, const Options& options) {
    if (options.volumeBasis == basisReduced)
        if (std::string title = ReducedTitle(quantity); !title.empty())
            return title;
    for (const EnergyTitle& row : energyTitles)
        if (row.quantity == quantity)
            return std::string(row.byBasis[static_cast<std::size_t>(options.unitBasis) % unitBases]);
    return ThermalTitle(quantity, options);
}

} // namespace orva
