// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/substance_model.h"
#include "thermo/ideal_gas_functions.h"
#include "thermo/residual_functions.h"

namespace orva {

// Caloric functions: ideal-gas functions from the heat-capacity model, residual functions from the equation
// of state, normalised by the reference point; exergies against the ambient state. kJ/kmol, kJ/(kmol K), m/s.

struct CaloricValues {
    double h = 0, u = 0, s = 0, g = 0, f = 0;
    double cp = 0, cv = 0, cpIdeal = 0;
    double exergyH = 0, exergyU = 0;
    double soundSpeed = 0;
};

// One phase of the ambient state.
struct AmbientPhase {
    double h = 0, u = 0, s = 0, v = 0;
};

// The fluid at (Tenv, penv): where only one phase exists, it stands for both. It depends on substance, models
// and reference point alone, so that a whole curve needs it once.
struct AmbientState {
    AmbientPhase liquid, vapour;
    IdealGasTerms reference; // of the reference temperature
    bool hasV = false;
    bool failed = false;
    // Vapour where it exists.
    const AmbientPhase& Single() const { return hasV ? vapour : liquid; }
};

// The shared parameters and the working set are given back as they were; only the reference point may gain
// its standard state.
AmbientState EvaluateAmbientState(SubstanceModel& model);

struct CaloricResult {
    CaloricValues values;
    ResidualState residual;
    bool failed = false;
};

// One phase at T, p, v, given the ambient state. The shared parameters stand at T afterwards.
CaloricResult CaloricState(SubstanceModel& model, double T, double p, double v, const AmbientState& ambient);

// The same with the ambient state of the model.
CaloricResult CaloricState(SubstanceModel& model, double T, double p, double v);

struct SaturationCaloricResult {
    double p = 0;          // p(LV), kPa
    double vL = 0, vV = 0; // m^3/kmol
    CaloricValues liquid, vapour;
    bool failed = false;
};

// Both saturated phases at T. At T(cr) both have the critical volume of the equation.
SaturationCaloricResult SaturationCaloric(SubstanceModel& model, double T, const AmbientState& ambient);
SaturationCaloricResult SaturationCaloric(SubstanceModel& model, double T);

} // namespace orva
