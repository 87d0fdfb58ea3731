// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/cubic_equation.h"

#include <cmath>
#include <utility>

#include "state/constants.h"
#include "thermo/virial_equation.h"

namespace orva {

namespace {

constexpr double lowestTemperature = 1e-6; // K
constexpr int newtonSteps = 200;
constexpr double newtonTolerance = 5e-7; // of the volume
constexpr double flatSlope = 1e-80;
constexpr double voHalmeInflection = 0.76528558; // zero of the fourth term of the temperature function

double Square(double x) {
    return x * x;
}

// T^n; most rows have n = 0, for which no power is taken.
double TemperaturePower(double T, double n) {
    return n == 0 ? 1.0 : std::pow(T, n);
}

// Vo / Halme: A from the temperature function, B, C, D from the critical point; the second row lets them
// shrink away from the critical temperature.
void SetVoHalmeCoefficients(SubstanceModel& model, double T) {
    const double Tc = model.substance.Tc;
    const VoHalmeParameters& vh = model.voHalme;
    EosParameters& eos = model.eos;
    const double theta = std::pow(T / Tc, 0.75);
    const double u = 1 - theta;
    double f = 1 + vh.m1 * u;
    if (T <= Tc)
        f += (vh.m2 + vh.m3 * u) * u * (voHalmeInflection - theta);
    eos.A = vh.ac * Square(f);

    const double b = vh.OmegaB * gasConstant * Tc / model.substance.pc;
    const double w = std::sqrt(vh.s * vh.s + 4 * vh.s);
    eos.B = b;
    eos.C = 0.5 * (vh.s - w) * b;
    eos.D = 0.5 * (vh.s + w) * b;
    if (model.selection.eos == eosVoHalme2) {
        const double shrink = 1 - vh.k * Square(1 - T / Tc);
        eos.B *= shrink;
        eos.C *= shrink;
        eos.D *= shrink;
    }
}

struct CubicPolynomial {
    double c2, c1, c0; // v^3 + c2 v^2 + c1 v + c0
};

// One root by Newton's method from `v`; false if the slope vanishes or the steps run out.
bool NewtonRoot(const CubicPolynomial& cubic, double& v) {
    for (int step = 0; step < newtonSteps; ++step) {
        const double slope = (2 * v + v + cubic.c2 + cubic.c2) * v + cubic.c1;
        if (std::abs(slope) < flatSlope)
            return false;
        const double value = ((v + cubic.c2) * v + cubic.c1) * v + cubic.c0;
        const double dv = -value / slope;
        v += dv;
        if (std::abs(dv / v) <= newtonTolerance)
            return true;
    }
    return false;
}

// The two other roots by deflation, sorted in. One root remains where the others are complex, none is counted
// after an overflow.
int CompleteRoots(const CubicPolynomial& cubic, double root, std::array<double, 3>& roots) {
    const double e1 = root + cubic.c2;
    const double e0 = e1 * root + cubic.c1;
    const double h = -0.5 * e1;
    const double disc = h * h - e0;
    roots[0] = root;
    if (!std::isfinite(disc))
        return 0;
    if (disc < 0)
        return 1;
    const double w = std::sqrt(disc);
    roots[1] = h - w;
    roots[2] = h + w;
    if (roots[0] > roots[1])
        std::swap(roots[0], roots[1]);
    if (roots[1] > roots[2])
        std::swap(roots[1], roots[2]);
    if (roots[0] > roots[1])
        std::swap(roots[0], roots[1]);
    return 3;
}

// Integral of p dv from vb to va.
double PressureIntegral(const EosParameters& eos, double RT, double va, double vb) {
    const double repulsion = RT * std::log((va - eos.B) / (vb - eos.B));
    if (eos.C == eos.D)
        return repulsion + eos.A * (1 / (va + eos.C) - 1 / (vb + eos.C));
    return repulsion
           + (eos.A / (eos.C - eos.D))
                 * std::log(((va + eos.C) / (vb + eos.C)) * (vb + eos.D) / (va + eos.D));
}

} // namespace

void SetEosCoefficients(SubstanceModel& model, double T) {
    if (T < lowestTemperature)
        return;
    if (model.selection.eos == eosVoHalme1 || model.selection.eos == eosVoHalme2) {
        SetVoHalmeCoefficients(model, T);
        return;
    }
    EosParameters& eos = model.eos;
    eos.B = TemperaturePower(T, eos.nB) * eos.b0;
    eos.C = TemperaturePower(T, eos.nC) * eos.c0;
    eos.D = TemperaturePower(T, eos.nD) * eos.d0;
    eos.A = eos.AlphaForm == 1 ? TemperaturePower(T, eos.nA) * eos.a0
                               : eos.a0 * Square(1 + eos.nA * (1 - std::sqrt(T / model.substance.Tc)));
}

PressureResult EosPressure(SubstanceModel& model, double T, double v) {
    EosParameters& eos = model.eos;
    const bool virial = model.selection.nonCubic;
    if (virial)
        eos.B = VirialCoefficientB(model, model.selection.eos, T);
    // Kept on purpose: for a cubic row this is the co-volume of the evaluation before.
    if (v <= eos.B)
        return {0, true};
    double p = 0;
    if (virial) {
        p = gasConstant * T / (v - eos.B);
    } else {
        SetEosCoefficients(model, T);
        p = gasConstant * T / (v - eos.B) - (eos.A / (eos.C + v)) / (eos.D + v);
    }
    if (!std::isfinite(p))
        return {0, true};
    return {p, false};
}

CubicSolution SolveEosCubic(SubstanceModel& model, double T, double p) {
    const EosParameters& eos = model.eos;
    const double RTp = gasConstant * T / p;
    const double q = RTp + eos.B;
    const double sum = eos.D + eos.C;
    const double product = eos.D * eos.C;
    const CubicPolynomial cubic{sum - q, product + eos.A / p - sum * q, -eos.A * eos.B / p - product * q};
    if (!std::isfinite(cubic.c2 + cubic.c1 + cubic.c0))
        return {0, true};

    std::array<double, 3>& roots = model.work.Roots;
    roots[0] = roots[2] = 0;
    double root = RTp;
    if (!NewtonRoot(cubic, root)) {
        root = 2 * eos.B;
        if (!NewtonRoot(cubic, root))
            return {0, true};
    }
    const int count = CompleteRoots(cubic, root, roots);
    if (count < 3)
        return {count, count == 0};
    if (roots[0] < eos.B && roots[1] < eos.B) {
        roots[0] = roots[2];
        return {1, false};
    }
    return {3, false};
}

AreaRatio MaxwellAreaRatio(const SubstanceModel& model, double T, double p) {
    const std::array<double, 3>& v = model.work.Roots;
    const double RT = gasConstant * T;
    AreaRatio result;
    result.area1 = PressureIntegral(model.eos, RT, v[2], v[1]) - (v[2] - v[1]) * p;
    result.area2 = PressureIntegral(model.eos, RT, v[1], v[0]) - (v[1] - v[0]) * p;
    result.ratio = (result.area1 + result.area2) / (result.area1 - result.area2);
    if (!std::isfinite(result.ratio))
        return {0, 0, 0, true};
    return result;
}

} // namespace orva
