// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/residual_functions.h"

#include <cmath>

#include "state/constants.h"
#include "thermo/cubic_equation.h"
#include "thermo/heat_capacity.h"

namespace orva {

namespace {

constexpr double poleWidth = 1e-17; // m^3/kmol

// What the three rows of ln phi share: volumes over the poles and their slopes along the isobar.
struct FugacityTerms {
    const EosParameters& eos;
    const ParameterSlopes& s;
    double T, p, v;
    double a;           // A / (R T)
    double u, c, d;     // v - B, v + C, v + D
    double vT, vTT, uT; // dv/dT, d2v/dT2 at p, du/dT
};

// ln phi and its derivatives in T for C = D.
void EqualPoles(const FugacityTerms& f, ResidualTable& r) {
    const double c2 = f.c * f.c;
    const double c3 = c2 * f.c;
    const double c4 = c2 * c2;
    const double C = f.eos.C;
    const double dC = f.s.dC;
    const double d2C = f.s.d2C;
    const double wide = 2 * f.v + C;
    const double wideT = 2 * f.vT + dC;
    const double cT = f.vT + dC;
    const double u2 = f.u * f.u;
    const double lag = f.v * f.uT - f.s.dB * f.u;
    r.lnPhi = (std::log((gasConstant * f.T / f.p) / f.u) + f.eos.B / f.u) - f.a * wide / c2;
    r.dlnPhidT = 1 / f.T - lag / u2 - (f.s.da * wide + f.a * wideT) / c2 + 2 * f.a * wide * cT / c3;
    const double t1 = -(f.uT * f.uT + (f.vTT - f.s.d2B) * f.v - f.s.d2B * f.u) / u2;
    const double t2 = 2 * lag * f.uT / (u2 * f.u);
    const double t3 = -1 / (f.T * f.T) + t1 + t2;
    const double e1 = (f.s.d2a * wide + 2 * f.s.da * wideT + (2 * f.vTT + d2C) * f.a) / c2;
    const double e2 = 2 * (f.s.da * wide + f.a * wideT) * cT / c3;
    const double e3 = 2 * (f.s.da * wide * cT + f.a * wideT * cT + f.a * wide * (f.vTT + d2C)) / c3;
    const double e4 = 6 * f.a * wide * cT * cT / c4;
    r.d2lnPhidT2 = t3 - ((e1 - e2) - (e3 - e4));
}

// First and second derivative along the isobar of the part of ln phi that belongs to one pole at v = -X; `x`
// is v + X.
struct PoleSlopes {
    double first, second;

    PoleSlopes(double X, double dX, double d2X, double x, const FugacityTerms& f) {
        const double lag = dX * (2 * f.v + X) + f.v * f.vT;
        const double x2 = x * x;
        first = lag / x2;
        second = (f.v * f.vTT + f.vT * f.vT + d2X * (2 * f.v + X) + (2 * f.vT + dX) * dX) / x2
                 - (2 * lag * (f.vT + dX)) / (x2 * x);
    }
};

// ln phi and its derivatives in T for C and D apart.
void SeparatePoles(const FugacityTerms& f, ResidualTable& r) {
    const EosParameters& eos = f.eos;
    const double Delta = eos.C - eos.D;
    const double DT = f.s.dC - f.s.dD;
    const double L = std::log(f.d / f.c) - eos.C / f.c + eos.D / f.d;
    const double u2 = f.u * f.u;
    const double lag = f.v * f.uT - f.s.dB * f.u;
    const double j = f.s.da * Delta - f.a * DT;
    const double Delta2 = Delta * Delta;
    const PoleSlopes atD(eos.D, f.s.dD, f.s.d2D, f.d, f);
    const PoleSlopes atC(eos.C, f.s.dC, f.s.d2C, f.c, f);
    r.lnPhi = (f.a / Delta) * L + (std::log((gasConstant * f.T / f.p) / f.u) + eos.B / f.u);
    r.dlnPhidT = 1 / f.T - lag / u2 + (j * L) / Delta2 + (f.a / Delta) * (atD.first - atC.first);
    const double t1 = -(f.uT * f.uT + (f.vTT - f.s.d2B) * f.v - f.s.d2B * f.u) / u2;
    const double t2 = 2 * lag * f.uT / (u2 * f.u);
    const double t3 = -1 / (f.T * f.T) + t1 + t2;
    double z =
        t3
        + (((f.s.d2a * Delta - (f.s.d2C - f.s.d2D) * f.a) / Delta2) + (-2 * j * DT) / (Delta2 * Delta)) * L;
    z = z + 2 * (j / Delta2) * (atD.first - atC.first);
    r.d2lnPhidT2 = z + (f.a / Delta) * (atD.second - atC.second);
}

bool CubicRows(SubstanceModel& model, double T, double p, double v, ResidualState& state) {
    SetEosCoefficients(model, T);
    const EosParameters& eos = model.eos;
    if (std::abs(v - eos.B) < poleWidth)
        return false;
    const ParameterSlopes s = ParameterDerivatives(model, T);
    state.thermal = CubicDerivatives(eos, s, T, v);
    const double vT = state.thermal.dvdT;
    const FugacityTerms f{eos,
                          s,
                          T,
                          p,
                          v,
                          eos.A / (gasConstant * T),
                          v - eos.B,
                          v + eos.C,
                          v + eos.D,
                          vT,
                          state.thermal.d2vdT2,
                          vT - s.dB};
    if (eos.C == eos.D)
        EqualPoles(f, state.table);
    else
        SeparatePoles(f, state.table);
    return true;
}

void VirialRows(SubstanceModel& model, double T, double p, double v, ResidualState& state) {
    const VirialSlopes s = VirialDerivatives(model, T);
    state.thermal = VirialVolumeDerivatives(s, T, p, v);
    const double pRT = p / (gasConstant * T);
    const double lag = s.dB - s.B / T;
    state.table.lnPhi = s.B * pRT;
    state.table.dlnPhidT = pRT * lag;
    state.table.d2lnPhidT2 = (pRT / T) * (T * s.d2B - 2 * lag);
}

void DerivedRows(double M, double T, double v, double idealCp, ResidualState& state) {
    ResidualTable& r = state.table;
    const ThermalDerivatives& d = state.thermal;
    r.s = -r.lnPhi - T * r.dlnPhidT;
    r.h = -T * T * r.dlnPhidT;
    r.g = T * r.lnPhi;
    r.cp = -T * (2 * r.dlnPhidT + T * r.d2lnPhidT2);
    r.cpTotal = gasConstant * r.cp + idealCp;
    r.jouleThomson = (T * d.dvdT - v) / r.cpTotal;
    r.cv = r.cpTotal - T * d.dpdT * d.dvdT;
    const double square = -d.dpdv * (r.cpTotal / r.cv) * 1000 * M;
    state.unstable = !(square >= 0);
    r.soundSpeed = state.unstable ? 0 : (v / M) * std::sqrt(square);
}

// Without a heat capacity the Joule-Thomson coefficient can be infinite; that row alone is then missing.
void ClearInfiniteRows(ResidualTable& r) {
    if (!std::isfinite(r.jouleThomson))
        r.jouleThomson = 0;
    if (!std::isfinite(r.soundSpeed))
        r.soundSpeed = 0;
}

} // namespace

double ResidualTable::Row(int k) const {
    const double rows[] = {lnPhi, dlnPhidT, d2lnPhidT2, s, h, g, cp, jouleThomson, cv, cpTotal, soundSpeed};
    return k >= 0 && k <= 10 ? rows[k] : 0;
}

ResidualState ResidualFunctions(SubstanceModel& model, double T, double p, double v, double idealCp) {
    ResidualState state;
    if (model.selection.nonCubic)
        VirialRows(model, T, p, v, state);
    else if (!CubicRows(model, T, p, v, state))
        state.failed = true;
    if (!state.failed)
        DerivedRows(model.substance.molarMass, T, v, idealCp, state);
    const ResidualTable& r = state.table;
    if (state.failed || !std::isfinite(r.lnPhi + r.s + r.h + r.cp + r.cv)) {
        state = {};
        state.failed = true;
    }
    ClearInfiniteRows(state.table);
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
