// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cmath>

namespace orva::bench {

// The Peng/Robinson formulas written out for one substance, with nothing around them: no rows, no records, no
// failure status. It is the floor that the general solver is compared with; the order of operations is the
// same, so that the digits can be compared too.
struct FloorKernel {
    double Tc, pc, M;
    double a0, m, b, c, d, vCrit;
    double A = 0;

    FloorKernel(double criticalT, double criticalP, double omega, double molarMass)
        : Tc(criticalT), pc(criticalP), M(molarMass) {
        const double y = std::cbrt(13 + std::pow(2.0, 4.5));
        const double Omega1 = -1.0 / 32.0 - 21 / (32 * y) + 3 * y / 32;
        const double Omega2 = (10.0 / 3.0) * Omega1 * Omega1 + (4.0 / 3.0) * Omega1 + 1.0 / 3.0;
        a0 = Omega2 * R * R * Tc * Tc / pc;
        m = 0.37464 + 1.54226 * omega - 0.26992 * omega * omega;
        b = Omega1 * R * Tc / pc;
        c = (1 - std::sqrt(2.0)) * b;
        d = (1 + std::sqrt(2.0)) * b;
        vCrit = 0.3074 * R * Tc / pc;
    }

    static constexpr double R = 8.31451;

    void SetTemperature(double T) {
        const double f = 1 + m * (1 - std::sqrt(T / Tc));
        A = a0 * (f * f);
    }

    // Volume roots, ascending; returns their number.
    int Roots(double T, double p, std::array<double, 3>& v) const {
        const double q = R * T / p + b;
        const double c2 = d + c - q;
        const double c1 = d * c + A / p - (d + c) * q;
        const double c0 = -A * b / p - d * c * q;
        double r = R * T / p;
        for (double start : {r, 2 * b}) {
            r = start;
            for (int step = 0; step < 200; ++step) {
                const double dF = (2 * r + r + c2 + c2) * r + c1;
                const double dv = -(((r + c2) * r + c1) * r + c0) / dF;
                r += dv;
                if (std::abs(dv) <= 5e-7 * std::abs(r))
                    return Deflate(r, c2, c1, v);
            }
        }
        return 0;
    }

    // (area1 + area2) / (area1 - area2) of three roots.
    double AreaRatio(double T, double p, const std::array<double, 3>& v) const {
        const double area1 = Lobe(T, p, v[2], v[1]);
        const double area2 = Lobe(T, p, v[1], v[0]);
        return (area1 + area2) / (area1 - area2);
    }

    struct Volumes {
        double vV = 0, vL = 0, rhoV = 0, rhoL = 0;
    };

    Volumes PhaseVolumes(double T, double p) {
        SetTemperature(T);
        std::array<double, 3> v{};
        if (Roots(T, p, v) == 3) {
            const double x = AreaRatio(T, p, v);
            return x <= -0.001 ? Volumes{0, v[0], 0, M / v[0]} : Volumes{v[2], 0, M / v[2], 0};
        }
        return v[0] > vCrit ? Volumes{v[0], 0, M / v[0], 0} : Volumes{0, v[0], 0, M / v[0]};
    }

    // Secant search for equal areas from a start pressure inside the loop.
    double SaturationPressure(double T, double p) {
        SetTemperature(T);
        std::array<double, 3> v{};
        double step = 0.01 * p, pOld = 0, xOld = 0;
        for (int pass = 1; pass <= 300; ++pass) {
            if (Roots(T, p, v) != 3)
                return 0;
            const double x = AreaRatio(T, p, v);
            if (pass == 1)
                step = x < 0 ? -step : step;
            else if (std::abs(x) < 1e-5)
                return p;
            else
                step = -(p - pOld) * x / (x - xOld);
            pOld = p;
            xOld = x;
            p += step;
        }
        return 0;
    }

private:
    static int Deflate(double r, double c2, double c1, std::array<double, 3>& v) {
        const double e1 = r + c2;
        const double h = -0.5 * e1;
        const double disc = h * h - (e1 * r + c1);
        v[0] = r;
        if (disc < 0)
            return 1;
        const double w = std::sqrt(disc);
        v = r > h + w   ? std::array{h - w, h + w, r}
            : r < h - w ? std::array{r, h - w, h + w}
                        : std::array{h - w, r, h + w};
        return 3;
    }

    double Lobe(double T, double p, double va, double vb) const {
        return R * T * std::log((va - b) / (vb - b))
               + A / (c - d) * std::log((va + c) / (vb + c) * (vb + d) / (va + d)) - (va - vb) * p;
    }
};

} // namespace orva::bench
