// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/curve_run.h"

#include <cmath>

#include "calc/units.h"

namespace orva {

namespace {

constexpr double largestSingle = 3.4028234e38;

bool FitsSingle(double x) {
    return std::abs(x) <= largestSingle; // false for values that are no number
}

} // namespace

void CurveRun::Add(double x, double y, double z) {
    AddOutsideTest(x, y, z);
    if (windowEmpty && IsInWindow(x, y))
        windowEmpty = false;
}

void CurveRun::AddTestingY(double x, double y, double z) {
    AddOutsideTest(x, y, z);
    if (windowEmpty && spec.yMin < y && y < spec.yMax)
        windowEmpty = false;
}

void CurveRun::AddOutsideTest(double x, double y, double z) {
    if (FitsSingle(x) && FitsSingle(y) && FitsSingle(z))
        curve.Add({static_cast<float>(x), static_cast<float>(y), static_cast<float>(z)});
}

bool CurveRun::IsInWindow(double x, double y) const {
    return spec.yMin < y && y < spec.yMax && spec.xMin < x && x < spec.xMax;
}

bool CurveRun::HasTieLine() const {
    return std::abs(outcome.tie.x1 + outcome.tie.x2) > 0;
}

bool CurveRun::HasLoop() const {
    return !model.selection.nonCubic && T < model.substance.Tc;
}

void CurveRun::UseTemperature(double temperature) {
    options.energyFactor = EnergyFactor(options.unitBasis, temperature, model.substance);
}

const AmbientState& CurveRun::Ambient() {
    if (!knownAmbient)
        knownAmbient = EvaluateAmbientState(model);
    return *knownAmbient;
}

bool PassesTriplePoint(CurveRun& run, double value, double limit, TripRule rule) {
    if (!(value < limit))
        return true;
    const bool stops = rule == TripRule::StopAnyEquation || run.model.selection.eos > 0;
    if (run.options.curveTpRestricted && stops)
        return false;
    run.outcome.status = curveBelowTriplePoint;
    return true;
}

bool IsBelowTriplePoint(const CurveRun& run, double value, double limit) {
    return run.options.curveTpRestricted && value < limit;
}

} // namespace orva
