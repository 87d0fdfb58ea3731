// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cmath>
#include <utility>

#include "state/constants.h"
#include "state/substance_model.h"
#include "thermo/pair.h"

namespace orva {

// The generalised cubic equation p = R T / (v - B) - A / ((v + C) (v + D)) and, for rows that are not cubic,
// the truncated virial equation p = R T / (v - Bvir). T in K, p in kPa, v in m^3/kmol.
//
// The cubic is solved several times for one point and ten to fifty times for a saturation pressure. Its
// functions stand in the header, so that the searches hold them without a call and keep volumes and areas in
// registers.

// Evaluates A, B, C, D at T into the shared set. Nothing changes for T below 1e-6 K.
inline void SetEosCoefficients(SubstanceModel& model, double T);

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
inline CubicSolution SolveEosCubic(SubstanceModel& model, double T, double p);

struct AreaRatio {
    double ratio = 0; // (area1 + area2) / (area1 - area2): 0 at saturation, positive where vapour is stable
    double area1 = 0, area2 = 0;
    bool failed = false;
};

// The two lobes between isotherm and isobar, by Maxwell's rule. work.Roots must hold three roots.
inline AreaRatio MaxwellAreaRatio(const SubstanceModel& model, double T, double p);

namespace cubic {

inline constexpr double lowestTemperature = 1e-6; // K
inline constexpr int newtonSteps = 200;
inline constexpr double newtonTolerance = 5e-7; // of the volume
inline constexpr double flatSlope = 1e-80;

inline double Square(double x) {
    return x * x;
}

// T^n; most rows have n = 0, for which no power is taken.
inline double TemperaturePower(double T, double n) {
    return n == 0 ? 1.0 : std::pow(T, n);
}

// The temperature function of Soave, Peng and Robinson.
inline double SoaveFunction(double m, double T, double Tc) {
    return 1 + m * (1 - std::sqrt(T / Tc));
}

void SetVoHalmeCoefficients(SubstanceModel& model, double T);

struct Polynomial {
    double c2, c1, c0; // v^3 + c2 v^2 + c1 v + c0
};

// One root by Newton's method from `v`; false if the slope vanishes or the steps run out. The steps are one
// chain of dependent operations, and with it most of the time of a search: 3 v is 2 v + v to the last bit and
// one operation shorter.
inline bool NewtonRoot(const Polynomial& f, double& v) {
    for (int step = 0; step < newtonSteps; ++step) {
        const double slope = (3 * v + f.c2 + f.c2) * v + f.c1;
        if (std::abs(slope) < flatSlope)
            return false;
        const double value = ((v + f.c2) * v + f.c1) * v + f.c0;
        const double dv = value / slope;
        v -= dv;
        if (std::abs(dv / v) <= newtonTolerance)
            return true;
    }
    return false;
}

// The two other roots by deflation, sorted in. One root remains where the others are complex, none is counted
// after an overflow.
inline int CompleteRoots(const Polynomial& f, double root, std::array<double, 3>& roots) {
    const double e1 = root + f.c2;
    const double e0 = e1 * root + f.c1;
    const double h = -0.5 * e1;
    const double disc = h * h - e0;
    roots[0] = root;
    if (!std::isfinite(disc))
        return 0;
    if (disc < 0)
        return 1;
    const double w = std::sqrt(disc);
    double low = root;
    double middle = h - w;
    double high = h + w;
    if (low > middle)
        std::swap(low, middle);
    if (middle > high)
        std::swap(middle, high);
    if (low > middle)
        std::swap(low, middle);
    roots = {low, middle, high};
    return 3;
}

// Integrals of p dv from vb to va, for both lobes at once.
inline Pair PressureIntegrals(const EosParameters& eos, double RT, Pair va, Pair vb) {
    const Pair gap = (va - eos.B) / (vb - eos.B);
    const Pair repulsion = RT * Pair{std::log(gap[0]), std::log(gap[1])};
    if (eos.C == eos.D)
        return repulsion + eos.A * (Pair{1, 1} / (va + eos.C) - Pair{1, 1} / (vb + eos.C));
    const Pair poles = ((va + eos.C) / (vb + eos.C)) * (vb + eos.D) / (va + eos.D);
    return repulsion + (eos.A / (eos.C - eos.D)) * Pair{std::log(poles[0]), std::log(poles[1])};
}

} // namespace cubic

inline void SetEosCoefficients(SubstanceModel& model, double T) {
    if (T < cubic::lowestTemperature)
        return;
    if (model.selection.eos == eosVoHalme1 || model.selection.eos == eosVoHalme2) {
        cubic::SetVoHalmeCoefficients(model, T);
        return;
    }
    EosParameters& eos = model.eos;
    eos.B = cubic::TemperaturePower(T, eos.nB) * eos.b0;
    eos.C = cubic::TemperaturePower(T, eos.nC) * eos.c0;
    eos.D = cubic::TemperaturePower(T, eos.nD) * eos.d0;
    eos.A = eos.AlphaForm == 1 ? cubic::TemperaturePower(T, eos.nA) * eos.a0
                               : eos.a0 * cubic::Square(cubic::SoaveFunction(eos.nA, T, model.substance.Tc));
}

inline CubicSolution SolveEosCubic(SubstanceModel& model, double T, double p) {
    const EosParameters& eos = model.eos;
    const double RTp = gasConstant * T / p;
    const double q = RTp + eos.B;
    const double sum = eos.D + eos.C;
    const double product = eos.D * eos.C;
    const cubic::Polynomial f{sum - q, product + eos.A / p - sum * q, -eos.A * eos.B / p - product * q};
    if (!std::isfinite(f.c2 + f.c1 + f.c0))
        return {0, true};

    std::array<double, 3>& roots = model.work.Roots;
    roots[0] = roots[2] = 0;
    double root = RTp;
    if (!cubic::NewtonRoot(f, root)) {
        root = 2 * eos.B;
        if (!cubic::NewtonRoot(f, root))
            return {0, true};
    }
    const int count = cubic::CompleteRoots(f, root, roots);
    if (count < 3)
        return {count, count == 0};
    if (roots[0] < eos.B && roots[1] < eos.B) {
        roots[0] = roots[2];
        return {1, false};
    }
    return {3, false};
}

inline AreaRatio MaxwellAreaRatio(const SubstanceModel& model, double T, double p) {
    const std::array<double, 3>& v = model.work.Roots;
    const Pair va{v[2], v[1]};
    const Pair vb{v[1], v[0]};
    const Pair areas = cubic::PressureIntegrals(model.eos, gasConstant * T, va, vb) - (va - vb) * p;
    const double area1 = areas[0];
    const double area2 = areas[1];
    const double ratio = (area1 + area2) / (area1 - area2);
    if (!std::isfinite(ratio))
        return {0, 0, 0, true};
    return {ratio, area1, area2, false};
}

} // namespace orva
