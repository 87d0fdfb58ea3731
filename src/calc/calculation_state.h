// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace orva {

// Numbers of the calculations, in the order of their making; the menu has its own order.
enum CalcKindNumber : std::int16_t {
    kindNone = 0,
    kindTRho = 1,
    kindTRhoLiquid = 2,
    kindTP = 3,
    kindSaturationPressure = 4,
    kindSaturationTemperature = 5,
    kindVaporisationAtT = 6,
    kindVaporisationAtP = 7,
    kindFunctions = 8,
    kindVesselGlobal = 9,
    kindVesselPartial = 10,
    kindVirialComparison = 11,
    kindPolytrope = 12,
    kindPRho = 13,
    kindLiquidDensity = 14,
    kindVaporisationDb = 15,
    kindIdealGasCp = 16,
    kindLiquidCp = 17,
    kindSolidCp = 18,
    kindFrostKalkwarf = 19,
    kindWagner = 20,
    kindAntoineLow = 21,
    kindAntoineHigh = 22,
    kindWithoutFunction = 23, // a database function that does not exist
    kindSolidDensity = 24
};

constexpr bool IsVessel(int kind) {
    return kind == kindVesselGlobal || kind == kindVesselPartial;
}

// What the input window asks for: kind + 100, or one of these.
inline constexpr int inputContextReference = 4;
inline constexpr int inputContextVessel = 33;
inline constexpr int inputContextOffset = 100;

// Second reference point of the Benson method, beside the critical point: K, kPa, kg/m^3.
struct ReferenceDensityPoint {
    float T = 0, p = 0, rhoL = 0, rhoV = 0;
};

// The last solution of the cubic equation, as the diagnosis window shows it.
struct EosStateRecord {
    float T = 0;
    bool hasL = false, hasV = false;
    std::array<double, 3> v{};
    int rootIndex = 0;
    float zV = 0, zL = 0;
    double pEos = 0;
};

// A vessel as the user gave it.
struct VesselInput {
    float m = 0;           // kg
    float V = 0;           // m^3
    float T = 0;           // K
    bool byAmount = false; // the mass was given as kmol
};

// What the drawing of the vessel shows.
struct VesselResult {
    double T = 0, p = 0;
    float liquidPercent = 0;
    double fillPercent = 0;
    std::string note; // "ERROR1", "ERROR2", "ERROR3" or empty
};

// A process that was followed before the result window shows it: where it starts and what it reports.
struct ProcessPoint {
    double T = 0, p = 0; // K, kPa
    std::string report;
};

// What the function inversion keeps while the program runs.
struct IsoState {
    int IsoVariable = 0; // 0 T at given p, 1 p at given T
    int IsoPhase = 1;    // 0 vapour, 1 liquid
    int IsoFunction = 2; // v, h, s, g, u, a, e of h, e of u
    // Row 0 was moved from the point that the input window gave to a working point of the inversion.
    bool moved = false;
    double givenT = 0, givenP = 0;     // K, kPa: the point of the input window
    double workingT = 0, workingP = 0; // K, kPa: where row 0 was moved to
};

// The calculation in force and how it treats equilibrium.
struct CalculationState {
    std::int16_t CalcKind = kindNone;
    bool GlobalMethod =
        true; // both phases from the cubic equation; false: vapour pressure and liquid correlation
    bool BensonLiquid = false;
    ReferenceDensityPoint referenceDensity;
    bool ReferenceDensityPointValid = false;
    bool AssumeEquilibrium = false; // T, p: the user says that they describe equilibrium
    int InputContext = 0;
    int CurrentDataSet = 0;
    int ExtendedLevel = 1; // 1 none, 2 coefficients, 3 derivatives, 4 both
    bool FunctionList = false;
    double diagramTemperature = 298.15; // K, for energies divided by R T
    EosStateRecord eosState;
    std::string CurrentModelText; // the models of the last result, as list and protocol name them
    VesselInput vessel;
    VesselResult vesselResult;
    ProcessPoint processPoint;
    IsoState iso;
};

} // namespace orva
