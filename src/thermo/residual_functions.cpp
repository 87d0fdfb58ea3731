// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/residual_functions.h"

#include <cmath>

#include "state/constants.h"
#include "thermo/cubic_equation.h"
#include "thermo/heat_capacity.h"

namespace orva {

namespace {

constexpr double poleWidth = 1e-17; // m^3/kmol

// Without a heat capacity the Joule-Thomson coefficient can be infinite; that row alone is then missing.
double FiniteOrMissing(double x) {
    return std::isfinite(x) ? x : 0;
}

// ln phi and its derivatives in T.
struct FugacityRows {
    double lnPhi, dlnPhidT, d2lnPhidT2;
};

// What the three rows of ln phi share: volumes over the poles and their slopes along the isobar.
struct FugacityTerms {
    const ParameterSlopes& s;
    double T, p, v;
    double a; // A / (R T)
    double B, C, D;
    double u, c, d;     // v - B, v + C, v + D
    double vT, vTT, uT; // dv/dT, d2v/dT2 at p, du/dT
};

// The rows for C = D.
FugacityRows EqualPoles(const FugacityTerms& f) {
    const double c2 = f.c * f.c;
    const double c3 = c2 * f.c;
    const double c4 = c2 * c2;
    const double C = f.C;
    const double dC = f.s.dC;
    const double d2C = f.s.d2C;
    const double wide = 2 * f.v + C;
    const double wideT = 2 * f.vT + dC;
    const double cT = f.vT + dC;
    const double u2 = f.u * f.u;
    const double lag = f.v * f.uT - f.s.dB * f.u;
    const double lnPhi = (std::log((gasConstant * f.T / f.p) / f.u) + f.B / f.u) - f.a * wide / c2;
    const double dlnPhidT =
        1 / f.T - lag / u2 - (f.s.da * wide + f.a * wideT) / c2 + 2 * f.a * wide * cT / c3;
    const double t1 = -(f.uT * f.uT + (f.vTT - f.s.d2B) * f.v - f.s.d2B * f.u) / u2;
    const double t2 = 2 * lag * f.uT / (u2 * f.u);
    const double t3 = -1 / (f.T * f.T) + t1 + t2;
    const double e1 = (f.s.d2a * wide + 2 * f.s.da * wideT + (2 * f.vTT + d2C) * f.a) / c2;
    const double e2 = 2 * (f.s.da * wide + f.a * wideT) * cT / c3;
    const double e3 = 2 * (f.s.da * wide * cT + f.a * wideT * cT + f.a * wide * (f.vTT + d2C)) / c3;
    const double e4 = 6 * f.a * wide * cT * cT / c4;
    return {lnPhi, dlnPhidT, t3 - ((e1 - e2) - (e3 - e4))};
}

// The rows for C and D apart. What belongs to the poles at v = -D and v = -C is formed in pairs: `lag` over
// the square of the distance x is the slope along the isobar of the part of ln phi, `bend` its second
// derivative.
FugacityRows SeparatePoles(const FugacityTerms& f) {
    const double Delta = f.C - f.D;
    const double DT = f.s.dC - f.s.dD;
    const Pair X{f.D, f.C};
    const Pair dX{f.s.dD, f.s.dC};
    const Pair d2X{f.s.d2D, f.s.d2C};
    const Pair x{f.d, f.c};
    const Pair x2 = x * x;
    const Pair poleLag = dX * (2 * f.v + X) + f.v * f.vT;
    const Pair slope = poleLag / x2;
    const Pair bend = (f.v * f.vTT + f.vT * f.vT + d2X * (2 * f.v + X) + (2 * f.vT + dX) * dX) / x2
                      - (2 * poleLag * (f.vT + dX)) / (x2 * x);
    const Pair ratio = X / x;
    const double L = std::log(f.d / f.c) - ratio[1] + ratio[0];

    const double u2 = f.u * f.u;
    const double lag = f.v * f.uT - f.s.dB * f.u;
    const double j = f.s.da * Delta - f.a * DT;
    const double Delta2 = Delta * Delta;
    const Pair overU = Pair{gasConstant * f.T / f.p, f.B} / f.u;
    const Pair overU2 = Pair{lag, -(f.uT * f.uT + (f.vTT - f.s.d2B) * f.v - f.s.d2B * f.u)} / u2;
    const Pair overT = Pair{1, -1} / Pair{f.T, f.T * f.T};
    const Pair overDelta2 = Pair{j * L, f.s.d2a * Delta - (f.s.d2C - f.s.d2D) * f.a} / Delta2;
    const Pair mixed = Pair{-2 * j * DT, j} / Pair{Delta2 * Delta, Delta2};
    const Pair last = Pair{2 * lag * f.uT, f.a} / Pair{u2 * f.u, Delta};
    const double slopes = slope[0] - slope[1];
    const double lnPhi = last[1] * L + (std::log(overU[0]) + overU[1]);
    const double dlnPhidT = overT[0] - overU2[0] + overDelta2[0] + last[1] * slopes;
    const double repulsion = overT[1] + overU2[1] + last[0];
    const double z = repulsion + (overDelta2[1] + mixed[0]) * L + 2 * mixed[1] * slopes;
    return {lnPhi, dlnPhidT, z + last[1] * (bend[0] - bend[1])};
}

// False at the co-volume. The parameters stand at T.
bool CubicRows(const SubstanceModel& model, double T, double p, double v, FugacityRows& rows,
               ThermalDerivatives& thermal) {
    const EosParameters& eos = model.eos;
    if (std::abs(v - eos.B) < poleWidth)
        return false;
    const ParameterSlopes s = ParameterDerivatives(model, T);
    thermal = CubicDerivatives(eos, s, T, v);
    const double vT = thermal.dvdT;
    const FugacityTerms f{s,
                          T,
                          p,
                          v,
                          eos.A / (gasConstant * T),
                          eos.B,
                          eos.C,
                          eos.D,
                          v - eos.B,
                          v + eos.C,
                          v + eos.D,
                          vT,
                          thermal.d2vdT2,
                          vT - s.dB};
    rows = eos.C == eos.D ? EqualPoles(f) : SeparatePoles(f);
    return true;
}

void VirialRows(SubstanceModel& model, double T, double p, double v, FugacityRows& rows,
                ThermalDerivatives& thermal) {
    const VirialSlopes s = VirialDerivatives(model, T);
    thermal = VirialVolumeDerivatives(s, T, p, v);
    const double pRT = p / (gasConstant * T);
    const double lag = s.dB - s.B / T;
    rows = {s.B * pRT, pRT * lag, (pRT / T) * (T * s.d2B - 2 * lag)};
}

// All rows from those of ln phi. False if one of them is not finite.
bool FillTable(double M, double T, double v, double idealCp, const FugacityRows& f,
               const ThermalDerivatives& d, ResidualState& state) {
    const double s = -f.lnPhi - T * f.dlnPhidT;
    const double h = -T * T * f.dlnPhidT;
    const double g = T * f.lnPhi;
    const double cp = -T * (2 * f.dlnPhidT + T * f.d2lnPhidT2);
    const double cpTotal = gasConstant * cp + idealCp;
    const Pair quotients = Pair{T * d.dvdT - v, v} / Pair{cpTotal, M};
    const double cv = cpTotal - T * d.dpdT * d.dvdT;
    const double square = -d.dpdv * (cpTotal / cv) * 1000 * M;
    const double soundSpeed = square >= 0 ? quotients[1] * std::sqrt(square) : 0;
    state.table = {f.lnPhi,
                   f.dlnPhidT,
                   f.d2lnPhidT2,
                   s,
                   h,
                   g,
                   cp,
                   FiniteOrMissing(quotients[0]),
                   cv,
                   cpTotal,
                   FiniteOrMissing(soundSpeed)};
    state.thermal = d;
    state.unstable = !(square >= 0);
    state.failed = false;
    return std::isfinite(f.lnPhi + s + h + cp + cv);
}

} // namespace

double ResidualTable::Row(int k) const {
    const double rows[] = {lnPhi, dlnPhidT, d2lnPhidT2, s, h, g, cp, jouleThomson, cv, cpTotal, soundSpeed};
    return k >= 0 && k <= 10 ? rows[k] : 0;
}

void ResidualFunctions(SubstanceModel& model, double T, double p, double v, double idealCp,
                       ResidualState& state) {
    FugacityRows rows{};
    ThermalDerivatives thermal;
    bool formed = true;
    if (model.selection.nonCubic) {
        VirialRows(model, T, p, v, rows, thermal);
    } else {
        SetEosCoefficients(model, T);
        formed = CubicRows(model, T, p, v, rows, thermal);
    }
    if (!formed || !FillTable(model.substance.molarMass, T, v, idealCp, rows, thermal, state)) {
        state = {};
        state.failed = true;
    }
}

ResidualState ResidualFunctions(SubstanceModel& model, double T, double p, double v, double idealCp) {
    ResidualState state;
    ResidualFunctions(model, T, p, v, idealCp, state);
    return state;
}

ResidualState ResidualFunctions(SubstanceModel& model, double T, double p, double v) {
    const HeatCapacityResult heat = IdealGasCp(model.substance, T, model.selection.cpModel);
    if (heat.failed) {
        ResidualState state;
        state.failed = true;
        return state;
    }
    return ResidualFunctions(model, T, p, v, heat.cp);
}

} // namespace orva
