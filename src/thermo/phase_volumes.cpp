// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/phase_volumes.h"

#include <cmath>

#include "state/constants.h"
#include "thermo/cubic_equation.h"
#include "thermo/virial_equation.h"

namespace orva {

namespace {

constexpr double equalAreas = 0.001;          // area ratio that counts as saturation
constexpr double criticalVolumeWidth = 0.001; // m^3/kmol
constexpr double smallestRootRatio = 1e-6;

bool SameSingle(double a, double b) {
    return static_cast<float>(a) == static_cast<float>(b);
}

std::int16_t RegionOf(const SubstanceData& substance, double T, double p) {
    const double Tc = substance.Tc;
    const double pc = substance.pc;
    if ((SameSingle(p, pc) && T == Tc) || (T < Tc && p < pc))
        return 0;
    if (T > Tc && p > pc)
        return 2;
    if (T <= Tc && p >= pc)
        return 1;
    return 3;
}

void VirialVolumes(SubstanceModel& model, double T, double p, PhaseVolumes& state) {
    model.work.BVirial = VirialCoefficientB(model, model.selection.eos, T);
    state.verdict = VolumeVerdict::VapourOnly;
    state.hasL = false;
    state.hasV = true;
    state.vV = gasConstant * T / p + model.work.BVirial;
    state.rhoV = model.substance.molarMass / state.vV;
    state.rhoL = 0;
    state.vL = 0;
    // The truncated series has no volume at high pressure where B is negative.
    if (!(state.vV > 0) || !std::isfinite(state.vV) || !std::isfinite(state.rhoV)) {
        state.vV = state.rhoV = 0;
        state.failed = true;
    }
}

// False for roots that are no volumes or too far apart to be told.
bool AcceptThreeRoots(const SubstanceModel& model, PhaseVolumes& state) {
    const auto& roots = model.work.Roots;
    const double B = model.eos.B;
    const bool accepted = roots[0] > B && (roots[2] - B) / (roots[1] - B) >= smallestRootRatio
                          && (roots[1] - B) / (roots[0] - B) >= smallestRootRatio;
    state.verdict = accepted ? VolumeVerdict::ThreeRoots : VolumeVerdict::NoSolution;
    state.failed = !accepted;
    return accepted;
}

// Phase by the areas of the loop. Above T(cr) a small ratio still gives vapour; a clearly negative one
// liquid.
void DecideThreeRoots(const SubstanceModel& model, double T, const AreaRatio& areas, PhaseVolumes& state) {
    const auto& roots = model.work.Roots;
    const double M = model.substance.molarMass;
    state.vV = roots[2];
    state.rhoV = M / state.vV;
    state.vL = roots[0];
    state.rhoL = M / state.vL;
    state.areaRatio = areas.ratio;
    state.area1 = areas.area1;
    state.area2 = areas.area2;
    state.failed = areas.failed;
    if (std::abs(areas.ratio) < equalAreas)
        state.hasL = state.hasV = true;
    if (!(areas.ratio < equalAreas && T <= model.substance.Tc)) {
        state.hasV = true;
        state.hasL = false;
    }
    if (areas.ratio <= -equalAreas) {
        state.hasL = true;
        state.hasV = false;
    }
}

void DecideOneRoot(SubstanceModel& model, double T, double p, PhaseVolumes& state) {
    const double root = model.work.Roots[0];
    const double M = model.substance.molarMass;
    const double Tc = model.substance.Tc;
    const double pc = model.substance.pc;
    const double vCrit = model.eos.vCritCalc;
    state.verdict = VolumeVerdict::OneRoot;
    if (T == Tc && p == pc) {
        state.hasL = state.hasV = true;
        state.vV = state.vL = root;
        state.rhoV = state.rhoL = M / root;
    } else if (T <= Tc && p <= pc) {
        if (root > vCrit) {
            state.hasL = false;
            state.hasV = true;
            state.vV = root;
            if (root > 0)
                state.rhoV = M / root;
        } else if (root < vCrit) {
            state.hasL = true;
            state.hasV = false;
            state.vL = root;
            if (root > 0)
                state.rhoL = M / root;
        }
    } else {
        state.hasL = state.hasV = true;
        state.vV = state.vL = root;
        if (root > 0)
            state.rhoV = state.rhoL = M / root;
        state.supercritical = true;
    }
    if (std::abs(root - vCrit) < criticalVolumeWidth) {
        model.work.RegionCode = 4;
        state.hasL = state.hasV = true;
        state.critical = true;
    }
}

void ClearVerdict(PhaseVolumes& state) {
    state.failed = false;
    state.verdict = VolumeVerdict::None;
    state.supercritical = state.critical = false;
    state.rootCount = 0;
}

} // namespace

void EosPhaseVolumes(SubstanceModel& model, double T, double p, PhaseVolumes& state) {
    ClearVerdict(state);
    if (model.selection.nonCubic) {
        VirialVolumes(model, T, p, state);
        return;
    }
    model.work.RegionCode = RegionOf(model.substance, T, p);
    SetEosCoefficients(model, T);
    const CubicSolution cubic = SolveEosCubic(model, T, p);
    state.rootCount = cubic.rootCount;
    state.failed = cubic.failed;
    if (model.work.Roots[0] <= model.eos.B || model.work.Roots[0] <= 0) {
        state.failed = true;
        return;
    }
    if (cubic.rootCount == 1)
        DecideOneRoot(model, T, p, state);
    else if (cubic.rootCount > 1 && AcceptThreeRoots(model, state))
        DecideThreeRoots(model, T, MaxwellAreaRatio(model, T, p), state);
}

void EosPhaseVolumes(SubstanceModel& model, double T, double p, const AreaRatio& areas, PhaseVolumes& state) {
    ClearVerdict(state);
    model.work.RegionCode = RegionOf(model.substance, T, p);
    state.rootCount = 3;
    if (AcceptThreeRoots(model, state))
        DecideThreeRoots(model, T, areas, state);
}

std::string_view StatusText(const PhaseVolumes& state) {
    switch (state.verdict) {
    case VolumeVerdict::VapourOnly:
        return "EOS nur für die V-Phase anwendbar!";
    case VolumeVerdict::ThreeRoots:
        return "3 V-Lösungen der EOS";
    case VolumeVerdict::NoSolution:
        return "keine Lösung gefunden";
    case VolumeVerdict::OneRoot:
        if (state.supercritical)
            return state.critical ? "1 V-Lösung der EOS; überkritisch; kritisch"
                                  : "1 V-Lösung der EOS; überkritisch";
        return state.critical ? "1 V-Lösung der EOS; kritisch" : "1 V-Lösung der EOS";
    case VolumeVerdict::None:
        break;
    }
    return "";
}

} // namespace orva
