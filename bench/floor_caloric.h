// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>

#include "bench/floor_kernel.h"

namespace orva::bench {

// All caloric functions of one phase for the Peng/Robinson kernel with a heat-capacity polynomial of degree
// four, written out likewise: B, C, D do not move with T, so their slopes are left out.
struct FloorCaloric {
    FloorKernel& kernel;
    double C0, C1, C2, C3, C4; // heat capacity
    double T0, p0;             // reference
    double Tenv, penv;         // ambient state with its functions
    double hEnv = 0, uEnv = 0, sEnv = 0, vEnv = 0;

    struct Values {
        double h, u, s, g, f, cp, cv, exergyH, exergyU, soundSpeed, jouleThomson, lnPhi;
    };

    // The parameter A must stand at T.
    Values At(double T, double p, double v) const {
        constexpr double R = FloorKernel::R;
        const double A = kernel.A, b = kernel.b, c = kernel.c, d = kernel.d;

        const double alpha = 1 + kernel.m * (1 - std::sqrt(T / kernel.Tc));
        const double e = -0.5 * kernel.m * std::sqrt(1 / (kernel.Tc * T));
        const double dA = 2 * kernel.a0 * alpha * e;
        const double d2A = 2 * kernel.a0 * (e * e - 0.5 * alpha * e / T);
        const double lag = T * dA - A;
        const double a = A / (R * T);
        const double da = lag / (R * T) / T;
        const double d2a = (T * T * d2A - 2 * lag) / (R * T) / T / T;

        const double u = v - b, x = v + c, y = v + d, W = x * y, S = 2 * v + c + d;
        const double u2 = u * u, u3 = u2 * u, W2 = W * W;
        const double dpdv = A * S / W2 - R * T / u2;
        const double dpdT = R / u - dA / W;
        const double vT = -dpdT / dpdv;
        const double drift = vT * S;
        const double P1 = -R * vT / u2 - d2A / W + drift * dA / W2;
        const double P2 =
            -R * (u - 2 * T * vT) / u3 + (2 * A * vT + S * dA) / W2 - 2 * drift * A * S / (W2 * W);
        const double vTT = -(P2 * vT + P1) / dpdv;

        const double Delta = c - d;
        const double L = std::log(y / x) - c / x + d / y;
        const double slopes = v * vT * (1 / (y * y) - 1 / (x * x));
        const double bends = (v * vTT + vT * vT) * (1 / (y * y) - 1 / (x * x))
                             - 2 * v * vT * vT * (1 / (y * y * y) - 1 / (x * x * x));
        const double lnPhi = (a / Delta) * L + std::log((R * T / p) / u) + b / u;
        const double first = 1 / T - v * vT / u2 + (da * L + a * slopes) / Delta;
        const double second = -1 / (T * T) - (vT * vT + vTT * v) / u2 + 2 * v * vT * vT / u3
                              + (d2a * L + 2 * da * slopes + a * bends) / Delta;

        const double T2 = T * T, T3 = T2 * T, T4 = T2 * T2, T02 = T0 * T0, T03 = T02 * T0, T04 = T02 * T02;
        const double cpIdeal = C0 + C1 * T + C2 * T2 + C3 * T3 + C4 * T4;
        const double hIdeal = C0 * (T - T0) + (C1 / 2) * (T2 - T02) + (C2 / 3) * (T3 - T03)
                              + (C3 / 4) * (T4 - T04) + (C4 / 5) * (T4 * T - T04 * T0);
        const double sIdeal = C0 * std::log(T / T0) + C1 * (T - T0) + (C2 / 2) * (T2 - T02)
                              + (C3 / 3) * (T3 - T03) + (C4 / 4) * (T4 - T04) - R * std::log(p / p0);

        Values r;
        r.lnPhi = lnPhi;
        r.h = hIdeal - R * T2 * first;
        r.u = r.h - p * v;
        r.s = sIdeal - R * (lnPhi + T * first);
        r.g = r.h - T * r.s;
        r.f = r.g - p * v;
        r.cp = cpIdeal - R * T * (2 * first + T * second);
        r.cv = r.cp - T * dpdT * vT;
        r.jouleThomson = (T * vT - v) / r.cp;
        r.soundSpeed = v / kernel.M * std::sqrt(-dpdv * (r.cp / r.cv) * 1000 * kernel.M);
        r.exergyH = r.h - hEnv - Tenv * (r.s - sEnv);
        r.exergyU = r.u - uEnv - Tenv * (r.s - sEnv) + penv * (v - vEnv);
        return r;
    }
};

} // namespace orva::bench
