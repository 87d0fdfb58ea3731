// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "state/substance_model.h"

namespace orva {

// Points of inflection of the isotherm p(v), where d2p/dv2 = 0, found by marching outward from the co-volume.
struct InflectionPoint {
    double v = 0;     // m^3/kmol, 0 for none
    double p = 0;     // kPa
    double slope = 0; // the marched second derivative where the search ended
};
struct SpinodalSearch {
    std::array<InflectionPoint, 2> points;
    bool failed = false; // no first point; a missing second one is no failure
};
SpinodalSearch FindSpinodal(SubstanceModel& model, double T);

// The spinodal: the volumes where dp/dv = 0 on the isotherm of a cubic row below T(cr), liquid branch first.
struct SpinodalPoints {
    std::array<double, 2> v{}; // m^3/kmol
    std::array<double, 2> p{}; // kPa, negative for a stretched liquid
    bool failed = false;
};
SpinodalPoints SpinodalVolumes(SubstanceModel& model, double T);

} // namespace orva
