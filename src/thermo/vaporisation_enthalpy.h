// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "state/dialogs.h"
#include "state/substance_model.h"
#include "thermo/saturation.h"

namespace orva {

// Seven ways to the enthalpy of vaporisation. T in K, p in kPa, the enthalpy in whole kJ/kmol.

enum VaporisationModel : std::int16_t {
    vaporisationDatabase = 1,         // function of T from the database
    vaporisationChen = 2,             // Chen, J. Chem. Eng. Data 10 (1965) 207
    vaporisationCarruthKobayashi = 3, // Carruth, Kobayashi, Ind. Eng. Chem. Fundam. 11 (1972) 509
    vaporisationWatson = 4,           // Watson, Ind. Eng. Chem. 35 (1943) 398
    vaporisationLiquidDensity = 5,    // Clapeyron with the vapour-pressure equation and rho(L)(T)
    vaporisationBenson = 6,           // the same with rho(L) by the rectilinear diameter
    vaporisationCubic = 7             // residual enthalpies of the cubic equation
};

// How the missing one of T and p was found, or why not.
enum class VaporisationInfo : std::uint8_t {
    None,
    PressureFromEos,
    PressureFromEosFailed,
    PressureFromEquation,
    PressureFromDataRow,
    NoPressure,
    TemperatureFromEos,
    TemperatureFromEosFailed,
    TemperatureFromEquation,
    TemperatureFromDataRow,
    NoTemperature,
    TemperatureAboveCritical
};

// The same in German, "" for none.
std::string InfoText(VaporisationInfo info);

// One saturated state of the Benson method: K, kg/m^3.
struct SaturatedDensities {
    double T = 0, rhoL = 0, rhoV = 0;
};

struct VaporisationRequest {
    double T = 0, p = 0;       // a value up to 1e-6 is missing and is found first
    double rowT = 0, rowP = 0; // of the current data row, where the equations give none
    SaturatedDensities reference;
};

struct VaporisationResult {
    std::int32_t h = 0;          // kJ/kmol, rounded half to even
    double T = 0, p = 0;         // with the missing one found
    double zV = 0, zL = 0;       // compressibility factors of models 5 and 6
    int outside = 0;             // K out of the range of the database function, positive on both sides
    int rootIndex = 0;           // roots of the cubic, models 5 to 7
    double zEosV = 0, zEosL = 0; // factors of the equation of state, model 7
    SaturationResult saturation; // what model 7 found first
    VaporisationInfo info = VaporisationInfo::None;
    bool failed = false;
    std::vector<Message> warnings; // boxes for values out of their range of validity
};

// Database function alone: A exp(-B Tr) (1 - Tr)^(C + D Tr + E Tr^2 + F Tr^3), Tr = T / Tcr of the block;
// DIPPR 106 for B = 0. Fails without a block and above its reference temperature.
struct VaporisationDbResult {
    double h = 0;
    bool failed = false;
};
VaporisationDbResult VaporisationEnthalpyDb(const SubstanceData& substance, double T);

// The way `vaporisationModel` with the vapour-pressure equation `equation`. T above T(cr) fails, T(cr) is
// allowed.
VaporisationResult VaporisationEnthalpy(SubstanceModel& model, int vaporisationModel, int equation,
                                        const VaporisationRequest& request);

} // namespace orva
