// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "state/dialogs.h"
#include "state/model_selection.h"
#include "state/substance_data.h"

namespace orva {

// Vapour-pressure equations: a description of the two-phase line that is independent of the equation of
// state. T in K, p in kPa. The equation is named by its index (VaporPressureIndex); index 0 is no equation
// and fails.

struct VapourPressureResult {
    double value = 0; // p in kPa or T in K; 0 when failed
    bool failed = false;
    int deviation = 0; // K out of the range of validity, rounded half to even; negative below the range
};

// p(LV) at T. Fails for T above T(cr) or below 1e-6 K, for a result below 1e-35 kPa and on any arithmetic
// fault.
VapourPressureResult VapourPressure(const SubstanceData& substance, double T, int equation);

// T(LV) at p. Fails for p above p(cr) and where the iteration finds nothing.
VapourPressureResult VapourPressureTemperature(const SubstanceData& substance, double p, int equation);

struct SlopeResult {
    double slope = 0; // K
    bool failed = false;
};

// d ln p / d(1/T) = -T^2 d ln p / dT, which the enthalpy of vaporisation needs.
SlopeResult VapourPressureSlope(const SubstanceData& substance, double T, int equation);

// Fills the block of equation 6, 7 or 8 from T(b), T(cr) and p(cr); nothing happens for other indices or
// without temperatures. Sources: Reid, Prausnitz, Sherwood, The Properties of Gases and Liquids (1977), for
// the Frost/Kalkwarf forms; Thomson, Chem. Rev. 38 (1946) 1, for the Antoine C.
void CorrelateVapourPressure(SubstanceData& substance, int equation, float Tc, float pc, float Tb);

// The same for the correlated equation that is in force, with the constants of the substance itself.
void CorrelateVapourPressure(SubstanceData& substance, int equation);

// The box that warns of a temperature out of range: more than 10 K off for p(T), more than 5 K for T(p).
// The two limits differ on purpose.
std::optional<Message> VapourPressureWarning(const VapourPressureResult& result);
std::optional<Message> VapourPressureTemperatureWarning(const VapourPressureResult& result);

} // namespace orva
