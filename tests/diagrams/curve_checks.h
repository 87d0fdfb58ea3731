// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>

#include <gtest/gtest.h>

#include "butane_diagram.h"
#include "diagrams/inversion_curves.h"
#include "thermo/eos_temperature.h"
#include "thermo/heat_capacity.h"
#include "thermo/phase_volumes.h"
#include "thermo/residual_functions.h"
#include "thermo/saturation.h"
#include "thermo/vapour_pressure.h"

// Evaluations of their own for the points of curves, each on a copy of the model.
namespace orva::test {

inline constexpr double Tc = 425.125, pc = 3796;
inline constexpr double single = 3e-6; // relative rounding of a stored coordinate, and of the x it came from

inline constexpr double smallValue = 1e-3; // below it an error counts as absolute
inline constexpr double energyScale = 100; // kJ/kmol, of functions that pass through 0

struct Saturated {
    double p = 0, vL = 0, vV = 0;
};

inline Saturated SaturationAt(const ButaneDiagram& d, double T) {
    SubstanceModel model = d.model;
    const double p = EosSaturationPressure(model, T).value;
    return {p, model.work.Roots[0], model.work.Roots[2]};
}

inline double BoilingPoint(const ButaneDiagram& d, double p) {
    SubstanceModel model = d.model;
    return EosSaturationTemperature(model, p).value;
}

// The phase that is there, liquid first.
inline double VolumeAt(const ButaneDiagram& d, double T, double p) {
    SubstanceModel model = d.model;
    PhaseVolumes phases;
    EosPhaseVolumes(model, T, p, phases);
    return phases.hasL ? phases.vL : phases.vV;
}

inline CaloricValues StateAt(const ButaneDiagram& d, double T, double p, double v) {
    SubstanceModel model = d.model;
    return CaloricState(model, T, p, v).values;
}

inline bool SortedByX(const CurvePoints& curve) {
    for (int i = 2; i <= curve.Count(); ++i)
        if (curve[i].x < curve[i - 1].x)
            return false;
    return true;
}

inline void ExpectClose(double found, double expected, double tolerance, const std::string& where,
                        double scale = smallValue) {
    EXPECT_NEAR(found, expected, tolerance * (std::abs(expected) + scale)) << where;
}

inline std::string Place(int type, int i, const CurvePoint& point) {
    return "type " + std::to_string(type) + " point " + std::to_string(i) + " x " + std::to_string(point.x);
}

struct CaloricType {
    int type;
    double CaloricValues::*value;
};

} // namespace orva::test
