// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>

#include "diagrams/projections.h"
#include "state/constants.h"
#include "text/number_format.h"
#include "thermo/reference_density.h"
#include "thermo/saturation.h"
#include "thermo/vaporisation_enthalpy.h"
#include "thermo/vapour_pressure.h"

namespace orva {

namespace {

constexpr double smallestLogPressure = 0.01; // kPa
constexpr double roundingOfT = 1e-12;
constexpr double startOfMaximum = -37000; // K, below every slope

// These curves begin at T(cr), which its way through the axis may leave a rounding error too high for an
// equilibrium.
double WithoutRounding(const CurveRun& run, double T) {
    const double Tc = run.model.substance.Tc;
    return T > Tc && T < Tc * (1 + roundingOfT) ? Tc : T;
}

double PressureInForce(CurveRun& run, double T) {
    SubstanceModel& model = run.model;
    if (model.selection.eosPriority)
        return EosSaturationPressure(model, T).value;
    return VapourPressure(model.substance, T, model.selection.vaporPressure).value;
}

// Walks 1/T from the critical point on; `visit` takes x and T.
template<typename Visit> void WalkInverseT(CurveRun& run, Visit visit) {
    const double TFactor = run.options.TFactor;
    WalkIntoWindow(run, 1 / (run.model.substance.Tc * TFactor), run.spec.xMax, run.stepX, [&](double x) {
        const double T = WithoutRounding(run, 1 / (TFactor * x));
        if (IsBelowTriplePoint(run, T, run.model.substance.Ttrip))
            return false;
        visit(x, T);
        return true;
    });
}

bool SearchesMaximum(int equation) {
    return equation == vpFrostKalkwarf || equation == vpWagner || equation == vpFrostKalkwarfVdW
           || equation == vpFrostKalkwarfRK;
}

} // namespace

void VapourPressureCurve(CurveRun& run) {
    const double TFactor = run.options.TFactor;
    WalkIntoWindow(run, run.model.substance.Tc * TFactor, run.spec.xMin, -run.stepX, [&](double x) {
        const double T = WithoutRounding(run, x / TFactor);
        if (IsBelowTriplePoint(run, T, run.model.substance.Ttrip))
            return false;
        const double p = PressureInForce(run, T);
        if (p > missingValue)
            run.Add(x, p * run.options.pFactor, 0);
        return true;
    });
}

void LogVapourPressureCurve(CurveRun& run) {
    WalkInverseT(run, [&](double x, double T) {
        const double p = PressureInForce(run, T);
        if (p > smallestLogPressure)
            run.Add(x, std::log(run.options.pFactor * p), 0);
    });
}

void VapourPressureSlopeCurve(CurveRun& run) {
    const SubstanceModel& model = run.model;
    const int equation = model.selection.vaporPressure;
    double maximum = startOfMaximum;
    double xOfMaximum = 0;
    double TOfMaximum = 0;
    WalkInverseT(run, [&](double x, double T) {
        const SlopeResult slope = VapourPressureSlope(model.substance, T, equation);
        if (slope.failed)
            return;
        run.Add(x, slope.slope, 0);
        if (slope.slope > maximum) {
            maximum = slope.slope;
            xOfMaximum = x;
            TOfMaximum = T;
        }
    });
    const double left = run.spec.xMin + 2 * run.stepX / (run.options.TFactor * model.substance.Tc);
    if (SearchesMaximum(equation) && left < xOfMaximum && run.spec.yMax - 5 * run.stepY > maximum)
        run.outcome.resultText += "; Maximum bei T/K = " + Format(TOfMaximum, "#####0.0", run.mode.style);
}

void VaporisationCurve(CurveRun& run) {
    SubstanceModel& model = run.model;
    const ModelSelection& selection = model.selection;
    VaporisationRequest request;
    if (selection.vaporization == vaporisationBenson) {
        const ReferenceDensityProposal point = ProposeReferenceDensityPoint(model);
        request.reference = {point.T, point.rhoL, point.rhoV};
    }
    bool hasPressure = false;
    WalkGrid(run, run.spec.xMax, run.spec.xMin, -run.stepX, [&](double x) {
        const double T = x / run.options.TFactor;
        if (T > model.substance.Tc)
            return true;
        if (!PassesTriplePoint(run, T, model.substance.Ttrip, TripRule::Stop))
            return false;
        run.UseTemperature(T);
        request.T = T;
        const VaporisationResult found =
            VaporisationEnthalpy(model, selection.vaporization, selection.vaporPressure, request);
        if (found.failed)
            return true;
        hasPressure = hasPressure || found.p > 0;
        run.Add(x, found.h * run.options.energyFactor, found.p);
        return true;
    });
    run.curve.SetZKind(hasPressure ? zPressure : zNothing);
    SortCurveByX(run.curve.Count(), run.curve);
}

} // namespace orva
