// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/substance_model.h"
#include "thermo/thermal_derivatives.h"

namespace orva {

// Residual functions of one phase at T, p, v: the real fluid less the ideal gas at the same T and p.
struct ResidualTable {
    double lnPhi = 0;        // row 0, of the fugacity coefficient
    double dlnPhidT = 0;     // row 1, 1/K
    double d2lnPhidT2 = 0;   // row 2, 1/K^2
    double s = 0;            // row 3, (s - s_idG) / R
    double h = 0;            // row 4, (h - h_idG) / R, K
    double g = 0;            // row 5, (g - g_idG) / R, K
    double cp = 0;           // row 6, (cp - cp_idG) / R
    double jouleThomson = 0; // row 7, dT/dp at constant enthalpy, K/kPa
    double cv = 0;           // row 8, kJ/(kmol K)
    double cpTotal = 0;      // row 9, kJ/(kmol K)
    double soundSpeed = 0;   // row 10, m/s; 0 for an unstable state

    // By its row number 0 to 10; 0 outside.
    double Row(int k) const;
};

struct ResidualState {
    ResidualTable table;
    ThermalDerivatives thermal;
    bool unstable = false; // the speed of sound would be imaginary
    bool failed = false;
};

// Residual functions from the equation of state in force, with the ideal-gas heat capacity at T in kJ/(kmol
// K). The shared parameters stand at T afterwards. Fails on any arithmetic fault and at the co-volume.
ResidualState ResidualFunctions(SubstanceModel& model, double T, double p, double v, double idealCp);

// The same into a state that the caller holds; every value of it is written.
void ResidualFunctions(SubstanceModel& model, double T, double p, double v, double idealCp,
                       ResidualState& state);

// The same with the heat capacity of the model in force.
ResidualState ResidualFunctions(SubstanceModel& model, double T, double p, double v);

} // namespace orva
