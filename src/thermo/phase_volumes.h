// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

#include "state/substance_model.h"
#include "thermo/cubic_equation.h"

namespace orva {

// What the volume solver says in words.
enum class VolumeVerdict : std::uint8_t { None, VapourOnly, ThreeRoots, OneRoot, NoSolution };

// Phases and volumes at T, p. Both flags set means: on the two-phase line within tolerance (three roots), or
// one undivided fluid (one root). Values that a branch does not set keep what they held before the call.
struct PhaseVolumes {
    bool hasL = false, hasV = false;
    double rhoV = 0, rhoL = 0; // kg/m^3
    double vV = 0, vL = 0;     // m^3/kmol
    int rootCount = 0;
    double areaRatio = 0, area1 = 0, area2 = 0;
    VolumeVerdict verdict = VolumeVerdict::None;
    bool supercritical = false, critical = false; // words appended to the verdict
    bool failed = false;
};

// Solves the equation of state for v at T, p and decides the phase by equal areas.
void EosPhaseVolumes(SubstanceModel& model, double T, double p, PhaseVolumes& state);

// The same where a search for the saturation has left the three roots of T, p in work.Roots, with their
// areas.
void EosPhaseVolumes(SubstanceModel& model, double T, double p, const AreaRatio& areas, PhaseVolumes& state);

// The verdict in German, "" for none.
std::string_view StatusText(const PhaseVolumes& state);

} // namespace orva
