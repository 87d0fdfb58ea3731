// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/substance_model.h"

namespace orva {

// The generalised cubic equation p = R T / (v - B) - A / ((v + C) (v + D)) and, for rows that are not cubic,
// the truncated virial equation p = R T / (v - Bvir). T in K, p in kPa, v in m^3/kmol.

// Evaluates A, B, C, D at T into the shared set. Nothing changes for T below 1e-6 K.
void SetEosCoefficients(SubstanceModel& model, double T);

struct PressureResult {
    double p = 0;
    bool failed = false;
};

// p(T, v). Fails for v at or below the co-volume, which for a cubic row is the B of the previous evaluation:
// the comparison comes before the parameters are brought to T, and stays so.
PressureResult EosPressure(SubstanceModel& model, double T, double v);

struct CubicSolution {
    int rootCount = 0; // 0, 1 or 3
    bool failed = false;
};

// Volume roots of the cubic at T, p into work.Roots, ascending. A, B, C, D must stand at T.
// With one root it is Roots[0], and Roots[2] is 0.
CubicSolution SolveEosCubic(SubstanceModel& model, double T, double p);

struct AreaRatio {
    double ratio = 0; // (area1 + area2) / (area1 - area2): 0 at saturation, positive where vapour is stable
    double area1 = 0, area2 = 0;
    bool failed = false;
};

// The two lobes between isotherm and isobar, by Maxwell's rule. work.Roots must hold three roots.
AreaRatio MaxwellAreaRatio(const SubstanceModel& model, double T, double p);

} // namespace orva
