// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/substance_model.h"

namespace orva {

// First and second derivatives in T of A, B, C, D, and of a = A / (R T), at one temperature.
struct ParameterSlopes {
    double dA = 0, d2A = 0;
    double dB = 0, d2B = 0;
    double dC = 0, d2C = 0;
    double dD = 0, d2D = 0;
    double da = 0, d2a = 0;
};

// Derivatives at T, for which A, B, C, D must be current.
ParameterSlopes ParameterDerivatives(const SubstanceModel& model, double T);

// Second virial coefficient of the row in force with its derivatives in T, m^3/kmol. The parameters are
// brought to T; the coefficient stands in work.BVirial afterwards.
struct VirialSlopes {
    double B = 0, dB = 0, d2B = 0;
};
VirialSlopes VirialDerivatives(SubstanceModel& model, double T);

} // namespace orva
