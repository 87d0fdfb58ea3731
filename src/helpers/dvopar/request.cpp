// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/dvopar/request.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "state/constants.h"
#include "state/model_selection.h"
#include "text/free_format.h"
#include "text/number_input.h"

namespace orva::dvopar {

namespace {

constexpr std::size_t itemCount = 32;
constexpr std::size_t firstNumber = 2; // behind the code of the row and the CAS number
constexpr std::size_t firstConstant = 5;
constexpr std::size_t firstDensity = 11;
constexpr std::size_t firstPressure = 20;
constexpr int firstRowCode = 10; // of row 7
constexpr double largestSingle = std::numeric_limits<float>::max();

// E of the two correlated Frost/Kalkwarf equations: 27/64 and 0.4275 over ln 10.
constexpr double vanDerWaalsE = 0.183218;
constexpr double redlichKwongE = 0.185652;
constexpr double sameE = 1e-4;

// The number of an item that fits single precision.
std::optional<double> NumberOf(std::string_view item) {
    if (!IsNumber(item))
        return std::nullopt;
    const double value = ParseNumber(item);
    if (!(std::abs(value) <= largestSingle))
        return std::nullopt;
    return value;
}

float Single(double x) {
    return static_cast<float>(x);
}

std::int16_t Kelvins(double x) {
    return static_cast<std::int16_t>(std::nearbyint(std::clamp(x, 0.0, 32767.0)));
}

int EquationOf(double f1, double f2) {
    if (f2 == 1)
        return f1 == 1 ? vpAugust : vpAntoineLow;
    if (f2 == 2)
        return vpFrostKalkwarf;
    return f2 == 3 ? vpWagner : vpNone;
}

bool KnownFlags(double f1, double f2) {
    return (f1 == 0 && (f2 == 0 || f2 == 1 || f2 == 2)) || (f1 == 1 && (f2 == 1 || f2 == 3));
}

void TakeDensity(const double* v, Request& request) {
    LiquidDensityBlock& block = request.substance.rhoLiquid;
    block = {Single(v[0]),  Single(v[1]), Single(v[2]), Single(v[3]),
             Single(v[4]),  Single(v[5]), Single(v[6]), 0,
             Kelvins(v[7]), Kelvins(v[8])};
    // The request does not tell the reference temperature; it is the critical temperature of the source.
    block.Tcr = Single(request.substance.Tc);
    request.densityPoint = block.Tlo == 0 && v[0] > missingValue && v[2] > missingValue;
    request.densityEquation = block.Tlo > 0 && block.Thi > block.Tlo;
    request.densityRange = {v[7], v[8]};
}

// A stored block has C relative to the Celsius scale and F less 2. Of a correlated one only the C is carried
// over to that convention; its F is the exponent itself, which shows in the E that belongs to it.
void TakeFrostKalkwarf(const double* v, Request& request) {
    FrostKalkwarfBlock& block = request.substance.frostKalkwarf;
    block = {Single(v[0]),
             Single(v[1]),
             Single(v[2]),
             Single(v[3]),
             Single(v[4]),
             Single(v[5]),
             Single(v[6]),
             Single(v[7]),
             Single(v[8]),
             0,
             0,
             0};
    const double Tc = request.substance.Tc;
    const double pc = request.substance.pc;
    const auto correlated = [&](double F, double factor) {
        return v[5] == F && std::abs(v[4] * pc / (factor * std::pow(Tc, F)) - 1) < sameE;
    };
    if (correlated(2, vanDerWaalsE) || correlated(2.5, redlichKwongE))
        block.c6 -= 2;
}

void TakeVapourPressure(const double* v, Request& request) {
    SubstanceData& s = request.substance;
    if (request.vapourPressure == vpAntoineLow)
        s.antoineLow = {Single(v[0]), Single(v[1]), Single(v[2]), 0, 0};
    else if (request.vapourPressure == vpAugust)
        s.august = {Single(v[0]), Single(v[1])};
    else if (request.vapourPressure == vpFrostKalkwarf)
        TakeFrostKalkwarf(v, request);
    else if (request.vapourPressure == vpWagner)
        s.wagner = {Single(v[0]),
                    Single(v[1]),
                    Single(v[2]),
                    Single(v[3]),
                    Single(v[4]),
                    Single(v[5]),
                    Single(v[6]),
                    Single(v[7]),
                    Single(v[8]),
                    Single(v[9]),
                    0,
                    0,
                    0};
    request.pressureRange = {v[10], v[11]};
}

std::string TakeNumbers(const std::array<double, itemCount>& v, Request& request) {
    SubstanceData& s = request.substance;
    if (!KnownFlags(v[firstNumber], v[firstNumber + 2]))
        return "unknown form of the vapour-pressure equation";
    request.vapourPressure = EquationOf(v[firstNumber], v[firstNumber + 2]);
    s.molarMass = Single(v[firstConstant]);
    s.Tb = Single(v[firstConstant + 1]);
    s.Tc = v[firstConstant + 2];
    s.pc = v[firstConstant + 3];
    s.rhoc = v[firstConstant + 4];
    s.omega = v[firstConstant + 5];
    if (!(s.molarMass > missingValue && s.Tc > missingValue && s.pc > missingValue))
        return "molar mass, critical temperature or critical pressure is missing";
    TakeDensity(&v[firstDensity], request);
    TakeVapourPressure(&v[firstPressure], request);
    return "";
}

} // namespace

ParsedRequest ParseRequest(std::string_view text) {
    const std::vector<std::string_view> items = FreeFormatItems(text, itemCount);
    if (items.size() < itemCount)
        return {std::nullopt, "the request ends after " + std::to_string(items.size()) + " of "
                                  + std::to_string(itemCount) + " items"};
    const std::optional<double> code = NumberOf(items[0]);
    if (!code || (*code != firstRowCode && *code != firstRowCode + 1))
        return {std::nullopt, "the request is for no Vo / Halme row"};
    Request request;
    request.row = *code == firstRowCode ? eosVoHalme1 : eosVoHalme2;
    request.substance.cas = items[1];
    std::array<double, itemCount> values{};
    for (std::size_t i = firstNumber; i < itemCount; ++i) {
        const std::optional<double> value = NumberOf(items[i]);
        if (!value)
            return {std::nullopt, "item " + std::to_string(i + 1) + " of the request is no number"};
        values[i] = *value;
    }
    const std::string error = TakeNumbers(values, request);
    if (!error.empty())
        return {std::nullopt, error};
    return {request, ""};
}

} // namespace orva::dvopar
