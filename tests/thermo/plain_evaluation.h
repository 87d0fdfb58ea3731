// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "state/substance_model.h"
#include "thermo/parameter_derivatives.h"
#include "thermo/residual_functions.h"

// The cubic equation, its areas, derivatives and residual functions one operation after the other, each
// number by itself, nothing shared and nothing in pairs. The property models must come to the same bits.
namespace orva::plain {

inline constexpr double R = 8.31451;

// The volume roots, ascending; none where Newton's method finds nothing.
inline std::vector<double> Roots(const EosParameters& e, double T, double p) {
    const double q = R * T / p + e.B;
    const double c2 = e.D + e.C - q;
    const double c1 = e.D * e.C + e.A / p - (e.D + e.C) * q;
    const double c0 = -e.A * e.B / p - e.D * e.C * q;
    for (const double start : {R * T / p, 2 * e.B}) {
        double v = start;
        for (int step = 0; step < 200; ++step) {
            const double slope = (2 * v + v + c2 + c2) * v + c1;
            if (std::abs(slope) < 1e-80)
                break;
            const double dv = -(((v + c2) * v + c1) * v + c0) / slope;
            v = v + dv;
            if (!(std::abs(dv / v) <= 5e-7))
                continue;
            const double e1 = v + c2;
            const double h = -0.5 * e1;
            const double disc = h * h - (e1 * v + c1);
            if (disc < 0)
                return {v};
            std::vector<double> roots = {v, h - std::sqrt(disc), h + std::sqrt(disc)};
            std::sort(roots.begin(), roots.end());
            if (roots[1] < e.B)
                return {roots[2]};
            return roots;
        }
    }
    return {};
}

// The area between isotherm and isobar from vb to va.
inline double Lobe(const EosParameters& e, double T, double p, double va, double vb) {
    double integral = R * T * std::log((va - e.B) / (vb - e.B));
    if (e.C == e.D)
        integral += e.A * (1 / (va + e.C) - 1 / (vb + e.C));
    else
        integral += (e.A / (e.C - e.D)) * std::log(((va + e.C) / (vb + e.C)) * (vb + e.D) / (va + e.D));
    return integral - (va - vb) * p;
}

inline ThermalDerivatives Thermal(const EosParameters& e, const ParameterSlopes& s, double T, double v) {
    const double u = v - e.B;
    const double W = (v + e.C) * (v + e.D);
    const double S = 2 * v + e.C + e.D;
    const double Y = (v + e.D) * s.dC + (v + e.C) * s.dD;
    ThermalDerivatives d;
    d.dpdv = e.A * S / (W * W) - R * T / (u * u);
    d.dpdT = Y * e.A / (W * W) + R * (T * s.dB + u) / (u * u) - s.dA / W;
    d.dvdp = 1 / d.dpdv;
    d.dvdT = -d.dpdT / d.dpdv;
    d.dTdv = 1 / d.dvdT;
    d.dTdp = 1 / d.dpdT;

    const double vT = d.dvdT;
    const double E = vT - s.dB;
    const double u3 = u * u * u;
    const double W2 = W * W;
    const double W3 = W2 * W;
    const double drift = 2 * vT * v + Y + vT * (e.C + e.D);
    double P1 = R * ((T * s.d2B + vT) / (u * u) - (2 * (T * s.dB + u) * E) / u3);
    P1 = P1 - s.d2A / W
         + (e.A * ((v + e.D) * s.d2C + (v + e.C) * s.d2D + vT * (s.dC + s.dD) + 2 * s.dC * s.dD)
            + (2 * (vT * v + Y) + vT * (e.C + e.D)) * s.dA)
               / W2;
    P1 = P1 - (drift * 2 * e.A * Y) / W3;
    const double P2 = -R * (u - 2 * T * E) / u3 + (e.A * (2 * vT + s.dC + s.dD) + S * s.dA) / W2
                      - (drift * 2 * e.A * S) / W3;
    d.d2pdv2 =
        2 * (R * T / u3 - e.A * ((e.C + e.D + v) * 3 * v - e.C * e.D + (e.C + e.D) * (e.C + e.D)) / W3);
    d.d2vdT2 = -(P2 * vT + P1) / d.dpdv;
    d.d2Tdv2 = -(P1 / vT + P2) / d.dpdv / vT;
    return d;
}

// ln phi with its two derivatives in T.
using LnPhi = std::array<double, 3>;

inline LnPhi WithEqualPoles(const EosParameters& e, const ParameterSlopes& s, const ThermalDerivatives& d,
                            double T, double p, double v) {
    const double a = e.A / (R * T);
    const double u = v - e.B, c = v + e.C;
    const double c2 = c * c, c3 = c2 * c, c4 = c2 * c2;
    const double vT = d.dvdT, vTT = d.d2vdT2, uT = vT - s.dB;
    const double lag = v * uT - s.dB * u;
    const double wide = 2 * v + e.C, wideT = 2 * vT + s.dC, cT = vT + s.dC;
    const double t1 = -(uT * uT + (vTT - s.d2B) * v - s.d2B * u) / (u * u);
    const double t2 = 2 * lag * uT / (u * u * u);
    const double e1 = (s.d2a * wide + 2 * s.da * wideT + (2 * vTT + s.d2C) * a) / c2;
    const double e2 = 2 * (s.da * wide + a * wideT) * cT / c3;
    const double e3 = 2 * (s.da * wide * cT + a * wideT * cT + a * wide * (vTT + s.d2C)) / c3;
    const double e4 = 6 * a * wide * cT * cT / c4;
    return {std::log((R * T / p) / u) + e.B / u - a * wide / c2,
            1 / T - lag / (u * u) - (s.da * wide + a * wideT) / c2 + 2 * a * wide * cT / c3,
            -1 / (T * T) + t1 + t2 - ((e1 - e2) - (e3 - e4))};
}

inline LnPhi WithSeparatePoles(const EosParameters& e, const ParameterSlopes& s, const ThermalDerivatives& d,
                               double T, double p, double v) {
    const double a = e.A / (R * T);
    const double u = v - e.B, c = v + e.C, D = v + e.D;
    const double vT = d.dvdT, vTT = d.d2vdT2, uT = vT - s.dB;
    const double lag = v * uT - s.dB * u;
    const double Delta = e.C - e.D, DT = s.dC - s.dD, Delta2 = Delta * Delta;
    const double L = std::log(D / c) - e.C / c + e.D / D;
    const double j = s.da * Delta - a * DT;
    const double lagC = s.dC * (2 * v + e.C) + v * vT;
    const double lagD = s.dD * (2 * v + e.D) + v * vT;
    const double slopeC = lagC / (c * c), slopeD = lagD / (D * D);
    const double bendC = (v * vTT + vT * vT + s.d2C * (2 * v + e.C) + (2 * vT + s.dC) * s.dC) / (c * c)
                         - (2 * lagC * (vT + s.dC)) / (c * c * c);
    const double bendD = (v * vTT + vT * vT + s.d2D * (2 * v + e.D) + (2 * vT + s.dD) * s.dD) / (D * D)
                         - (2 * lagD * (vT + s.dD)) / (D * D * D);
    const double t1 = -(uT * uT + (vTT - s.d2B) * v - s.d2B * u) / (u * u);
    const double t2 = 2 * lag * uT / (u * u * u);
    double z = -1 / (T * T) + t1 + t2
               + (((s.d2a * Delta - (s.d2C - s.d2D) * a) / Delta2) + (-2 * j * DT) / (Delta2 * Delta)) * L;
    z = z + 2 * (j / Delta2) * (slopeD - slopeC);
    return {(a / Delta) * L + (std::log((R * T / p) / u) + e.B / u),
            1 / T - lag / (u * u) + (j * L) / Delta2 + (a / Delta) * (slopeD - slopeC),
            z + (a / Delta) * (bendD - bendC)};
}

// All rows, with the parameters of the model at T.
inline ResidualState Residual(const SubstanceModel& model, double T, double p, double v, double idealCp) {
    const ParameterSlopes s = ParameterDerivatives(model, T);
    const EosParameters& e = model.eos;
    ResidualState state;
    ThermalDerivatives& d = state.thermal;
    d = Thermal(e, s, T, v);
    const LnPhi f = e.C == e.D ? WithEqualPoles(e, s, d, T, p, v) : WithSeparatePoles(e, s, d, T, p, v);
    ResidualTable& r = state.table;
    r.lnPhi = f[0];
    r.dlnPhidT = f[1];
    r.d2lnPhidT2 = f[2];
    r.s = -f[0] - T * f[1];
    r.h = -T * T * f[1];
    r.g = T * f[0];
    r.cp = -T * (2 * f[1] + T * f[2]);
    r.cpTotal = R * r.cp + idealCp;
    r.jouleThomson = (T * d.dvdT - v) / r.cpTotal;
    r.cv = r.cpTotal - T * d.dpdT * d.dvdT;
    const double M = model.substance.molarMass;
    const double square = -d.dpdv * (r.cpTotal / r.cv) * 1000 * M;
    state.unstable = !(square >= 0);
    r.soundSpeed = state.unstable ? 0 : (v / M) * std::sqrt(square);
    return state;
}

} // namespace orva::plain
