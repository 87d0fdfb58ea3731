// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/saturation_bracket.h"

#include <cmath>

#include "state/constants.h"
#include "thermo/cubic_equation.h"

namespace orva {

namespace {

constexpr int bisections = 200;
constexpr double closed = 1e-14;          // relative width of a bracket that counts as a point
constexpr double lowestPressure = 1e-250; // kPa
constexpr double pressureStride = 0.1;
constexpr double lowestTemperature = 1e-3; // of T(cr)
constexpr double temperatureStride = 0.9;
constexpr double criticalWidth = 1e-6; // of T(cr)
constexpr int newtonSteps = 100;
constexpr double rootTolerance = 1e-15;

// Which phase is stable at a trial state.
enum class Stable { Liquid, Vapour, Unknown };

struct Trial {
    Stable stable = Stable::Unknown;
    bool three = false; // volumes
    AreaRatio areas;
};

// v^3 + c2 v^2 + c1 v + c0 of the state.
struct VolumeCubic {
    double B, q, c2, c1, c0;

    VolumeCubic(const EosParameters& eos, double T, double p) : B(eos.B), q(gasConstant * T / p + eos.B) {
        const double sum = eos.C + eos.D;
        const double product = eos.C * eos.D;
        c2 = sum - q;
        c1 = product + eos.A / p - sum * q;
        c0 = -eos.A * eos.B / p - product * q;
    }

    double At(double v) const { return ((v + c2) * v + c1) * v + c0; }

    double NewtonFrom(double v) const {
        for (int step = 0; step < newtonSteps; ++step) {
            const double dv = -At(v) / ((3 * v + 2 * c2) * v + c1);
            v += dv;
            if (!(std::abs(dv) > rootTolerance * v))
                break;
        }
        return v;
    }

    // Left of its point of inflection the cubic is concave and negative at the co-volume; right of it it is
    // convex and positive at RT/p + B. So Newton's method comes to an outer root from its own side without
    // overshooting.
    double LiquidRoot() const { return NewtonFrom(B); }
    double VapourRoot() const { return NewtonFrom(q); }
};

// Volume roots by the extrema of the cubic; a single root is liquid where it lies left of the inflection.
// Deflation would lose a liquid volume beside a vapour volume that is larger by many orders.
struct TrialVolumes {
    std::array<double, 3> v{};
    bool three = false;
    bool liquidLike = false;
};

TrialVolumes SolveVolumes(const EosParameters& eos, double T, double p) {
    const VolumeCubic cubic(eos, T, p);
    const double inflection = -cubic.c2 / 3;
    const double disc = cubic.c2 * cubic.c2 - 3 * cubic.c1;
    TrialVolumes volumes;
    const bool left = cubic.At(inflection) > 0;
    volumes.liquidLike = left || inflection <= eos.B; // in the second case RT/p is smaller than the co-volume
    if (disc > 0) {
        // Both extrema are positive where there are three volumes; the smaller one follows from their
        // product, since it can be smaller by many orders.
        const double minimum = inflection + std::sqrt(disc) / 3;
        const double maximum = cubic.c1 / 3 / minimum;
        volumes.three = cubic.At(maximum) > 0 && cubic.At(minimum) < 0;
    }
    if (!volumes.three) {
        volumes.v[0] = left ? cubic.LiquidRoot() : cubic.VapourRoot();
        volumes.v[2] = volumes.v[0];
        return volumes;
    }
    volumes.v[0] = cubic.LiquidRoot();
    volumes.v[2] = cubic.VapourRoot();
    volumes.v[1] = -cubic.c0 / (volumes.v[0] * volumes.v[2]);
    return volumes;
}

Trial Judge(SubstanceModel& model, double T, double p) {
    Trial trial;
    const TrialVolumes volumes = SolveVolumes(model.eos, T, p);
    if (!(volumes.v[0] > model.eos.B && std::isfinite(volumes.v[2])))
        return trial;
    model.work.Roots = volumes.v;
    if (!volumes.three) {
        trial.stable = volumes.liquidLike ? Stable::Liquid : Stable::Vapour;
        return trial;
    }
    trial.three = true;
    trial.areas = MaxwellAreaRatio(model, T, p);
    // Three roots that coincide have no areas; the critical point is as near as numbers can tell.
    const bool vapour = trial.areas.failed ? !volumes.liquidLike : trial.areas.ratio > 0;
    trial.stable = vapour ? Stable::Vapour : Stable::Liquid;
    return trial;
}

const SaturationResult notFound{0, 0, 0, 0, true};

// Where the bracket closes there are three volumes, unless they cannot be told apart right below T(cr). An
// isotherm without a loop, of constants that are none, has no saturation.
SaturationResult Solution(const SubstanceModel& model, double T, double value, const Trial& trial) {
    const bool critical = model.substance.Tc - T < criticalWidth * model.substance.Tc;
    if (trial.stable == Stable::Unknown || !(trial.three || critical))
        return notFound;
    return {value, trial.areas.ratio, trial.areas.area1, trial.areas.area2, false, trial.three};
}

// Without attraction and co-volume there is no second phase.
bool HasConstants(const EosParameters& eos) {
    return eos.A > 0 && eos.B > 0;
}

} // namespace

SaturationResult BracketedSaturationPressure(SubstanceModel& model, double T) {
    if (model.selection.nonCubic || !(T > 0 && T < model.substance.Tc) || !std::isfinite(model.substance.pc))
        return notFound;
    SetEosCoefficients(model, T);
    if (!HasConstants(model.eos))
        return notFound;
    double high = model.substance.pc;
    double low = high * pressureStride;
    for (; low > lowestPressure; low *= pressureStride) {
        const Stable stable = Judge(model, T, low).stable;
        if (stable == Stable::Vapour)
            break;
        if (stable == Stable::Liquid)
            high = low;
    }
    if (!(low > lowestPressure))
        return notFound;
    for (int i = 0; i < bisections && high - low > closed * high; ++i) {
        const double middle = std::sqrt(low) * std::sqrt(high);
        (Judge(model, T, middle).stable == Stable::Vapour ? low : high) = middle;
    }
    const double p = 0.5 * (low + high);
    return Solution(model, T, p, Judge(model, T, p));
}

SaturationResult BracketedSaturationTemperature(SubstanceModel& model, double p) {
    const double Tc = model.substance.Tc;
    if (model.selection.nonCubic || !(p > 0 && p < model.substance.pc) || !std::isfinite(Tc))
        return notFound;
    const auto judgeAt = [&](double T) {
        SetEosCoefficients(model, T);
        return Judge(model, T, p);
    };
    SetEosCoefficients(model, Tc);
    if (!HasConstants(model.eos))
        return notFound;
    double high = Tc;
    double low = Tc * temperatureStride;
    for (; low > lowestTemperature * Tc; low *= temperatureStride) {
        const Stable stable = judgeAt(low).stable;
        if (stable == Stable::Liquid)
            break;
        if (stable == Stable::Vapour)
            high = low;
    }
    if (!(low > lowestTemperature * Tc))
        return notFound;
    for (int i = 0; i < bisections && high - low > closed * high; ++i) {
        const double middle = 0.5 * (low + high);
        (judgeAt(middle).stable == Stable::Liquid ? low : high) = middle;
    }
    const double T = 0.5 * (low + high);
    return Solution(model, T, T, judgeAt(T));
}

} // namespace orva
