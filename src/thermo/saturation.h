// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/substance_model.h"
#include "thermo/phase_volumes.h"

namespace orva {

// Vapour-liquid equilibrium of a cubic row by equal areas of the isotherm: a secant search drives the area
// ratio x = (area1 + area2) / (area1 - area2) to 0. x > 0 means that vapour is the stable phase.

struct SaturationResult {
    double value = 0; // p(LV) in kPa or T(LV) in K, 0 when failed
    double areaRatio = 0, area1 = 0, area2 = 0;
    bool failed = false;
    bool rootsOfValue = false; // work.Roots are those of the cubic at `value` itself, the areas theirs
};

// p(LV) at T. On success work.Roots and the parameters stand at the solution: Roots[0] is the liquid,
// Roots[2] the vapour volume. Fails above T(cr) and for rows that are not cubic. The search starts from the
// vapour-pressure equation in force. Near T(cr) it may end by p = p(cr) in single precision, without equal
// areas.
SaturationResult EosSaturationPressure(SubstanceModel& model, double T);

// T(LV) at p, likewise; fails above p(cr). `Tstart` of 0 means that there is no start value. Below 0.02 p(cr)
// a scan downward from T(cr) takes the place of the secant search, and Tstart is not used.
SaturationResult EosSaturationTemperature(SubstanceModel& model, double p, double Tstart = 0);

// Both volumes of the saturated state at T, p that a search has just found: its own roots where it ends on
// them, which hold where rounding hides the liquid volume from a cubic solved at p.
void SaturatedPhaseVolumes(SubstanceModel& model, double T, double p, const SaturationResult& saturation,
                           PhaseVolumes& state);

} // namespace orva
