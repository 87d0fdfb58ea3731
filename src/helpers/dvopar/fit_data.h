// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "helpers/dvopar/request.h"

namespace orva::dvopar {

// One value of the saturation line that the equation of state is to meet.
struct FitPoint {
    enum class Kind { Pressure, Density };
    Kind kind = Kind::Pressure;
    double T = 0;      // K
    double value = 0;  // p in kPa or rho of the liquid in kg/m^3
    double pStart = 0; // kPa, where the search for the saturation pressure begins
    double weight = 1; // of the relative deviation
};

// Values of the vapour-pressure equation and of the liquid density at even steps of T over their ranges of
// validity, within 0.5 and 0.99 T(cr). Where the request holds no usable equation, values estimated from
// critical point and acentric factor take its place: Lee, Kesler, AIChE J. 21 (1975) 510, for the pressure;
// Rackett's equation after Spencer, Danner, J. Chem. Eng. Data 17 (1972) 236, with the factor of Yamada,
// Gunn, J. Chem. Eng. Data 18 (1973) 234, for the density. A vapour-pressure equation that does not reach T =
// 0.7 T(cr) is joined there by the value of the acentric factor.
std::vector<FitPoint> FitPoints(const Request& request);

// The acentric factor of the request, or, where it is 0, the one of its vapour-pressure equation.
double AcentricFactor(const Request& request);

} // namespace orva::dvopar
