// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/eos_temperature.h"

#include <cmath>

#include "state/constants.h"
#include "thermo/cubic_equation.h"
#include "thermo/saturation.h"
#include "thermo/virial_equation.h"

namespace orva {

namespace {

constexpr int newtonSteps = 2000;
constexpr double relativeTolerance = 1e-5;
constexpr double temperatureIncrement = 1e-6; // K, of the forward differences
constexpr double retreat = 0.1;               // of T(cr), after a saturation that failed
constexpr int virialSteps = 1000;
constexpr double virialTolerance = 1e-3; // K

double VirialTemperature(SubstanceModel& model, double p, double v) {
    double T = v * p / gasConstant;
    for (int step = 1; step <= virialSteps; ++step) {
        const double Told = T;
        T = (v - VirialCoefficientB(model, model.selection.eos, Told)) * p / gasConstant;
        if (!std::isfinite(T))
            return 0;
        if (std::abs(T - Told) < virialTolerance || T < 0)
            return T;
    }
    return 0;
}

// Zero at the temperature that belongs to p and v.
double Imbalance(SubstanceModel& model, double p, double v, double T) {
    SetEosCoefficients(model, T);
    const EosParameters& eos = model.eos;
    return (eos.A / ((v + eos.C) * (v + eos.D)) + p) * (v - eos.B) / gasConstant - T;
}

// 0 when the steps run out.
double CubicTemperature(SubstanceModel& model, double p, double v, double T) {
    for (int step = 0; step < newtonSteps; ++step) {
        const double F = Imbalance(model, p, v, T);
        const double F2 = Imbalance(model, p, v, T + temperatureIncrement);
        const double dT = -F / ((F2 - F) / temperatureIncrement);
        T += dT;
        if (!std::isfinite(T))
            return 0;
        if (std::abs(dT) / T <= relativeTolerance)
            return T;
    }
    return 0;
}

// T of the saturation pressure p near p(cr), by Newton's method on p(LV)(T).
double SaturationTemperatureFrom(SubstanceModel& model, double p, double T) {
    int calls = 0;
    while (calls <= 2 * newtonSteps) {
        const double pLV = EosSaturationPressure(model, T).value;
        if (++calls > newtonSteps)
            return 0;
        if (pLV == 0) {
            T -= retreat * model.substance.Tc;
            if (T <= 0)
                return 0;
            continue;
        }
        const double pLV2 = EosSaturationPressure(model, T + temperatureIncrement).value;
        ++calls;
        const double dT = -(p - pLV) / ((pLV - pLV2) / temperatureIncrement);
        T += dT;
        if (!std::isfinite(T))
            return 0;
        if (std::abs(dT) / T <= relativeTolerance)
            return T;
    }
    return 0;
}

// A state inside the two-phase region gets the saturation temperature of its pressure. The cubic is solved
// with the parameters of the last Newton evaluation.
double CorrectedIfWet(SubstanceModel& model, double p, double v, double T) {
    if (SolveEosCubic(model, T, p).rootCount != 3)
        return T;
    if (EosSaturationPressure(model, T).value == 0)
        return 0;
    if (v <= model.work.Roots[0] || v >= model.work.Roots[2])
        return T;
    if (model.substance.pc / 1.5 > p)
        return EosSaturationTemperature(model, p).value;
    return SaturationTemperatureFrom(model, p, T);
}

} // namespace

double EosTemperature(SubstanceModel& model, double p, double rho, bool skipWetCheck) {
    const SubstanceData& substance = model.substance;
    const double v = substance.molarMass / rho;
    if (!std::isfinite(v))
        return 0;
    double T = 0;
    if (model.selection.nonCubic) {
        T = VirialTemperature(model, p, v);
    } else {
        T = CubicTemperature(model, p, v, p < substance.pc ? substance.Tb : substance.Tc);
        if (T > 0 && T < substance.Tc && !skipWetCheck)
            T = CorrectedIfWet(model, p, v, T);
    }
    return T > 0 ? T : 0;
}

} // namespace orva
