// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <vector>

#include "state/substance_model.h"

// The cubic equations once more, as textbooks write them, in extended precision and solved by other means
// than the program's: p = R T / (v - b) - a(T) / (v^2 + u b v + w b^2). Reid, Prausnitz, Poling, The
// Properties of Gases and Liquids (1987), tables 3-5 and 3-6, equation 5-8.1 ff.
namespace orva::textbook {

using Real = long double;
inline constexpr Real R = 8.31451L;

struct Equation {
    int row;
    Real Tc, pc, omega;

    explicit Equation(const SubstanceModel& model)
        : row(model.selection.eos), Tc(model.substance.Tc), pc(model.substance.pc),
          omega(model.substance.omega) {}

    Real U() const { return row == eosPengRobinson ? 2 : row >= eosRedlichKwong ? 1 : 0; }
    Real W() const { return row == eosPengRobinson ? -1 : 0; }

    // Closed forms of the critical conditions; eta = b / v at the Peng/Robinson critical point.
    Real OmegaA() const {
        if (row <= eosBerthelot)
            return 27.0L / 64;
        if (row < eosPengRobinson)
            return 1 / (9 * (std::cbrt(2.0L) - 1));
        const Real eta = Eta();
        return 8 * (5 * eta + 1) / (49 - 37 * eta);
    }
    Real OmegaB() const {
        if (row <= eosBerthelot)
            return 1.0L / 8;
        return row < eosPengRobinson ? (std::cbrt(2.0L) - 1) / 3 : Eta() / (Eta() + 3);
    }

    Real Alpha(Real T) const {
        const Real Tr = T / Tc;
        switch (row) {
        case eosBerthelot:
            return 1 / Tr;
        case eosRedlichKwong:
            return 1 / std::sqrt(Tr);
        case eosSoaveRedlichKwong:
            return Soave(Tr, 0.48L + 1.574L * omega - 0.176L * omega * omega);
        case eosPengRobinson:
            return Soave(Tr, 0.37464L + 1.54226L * omega - 0.26992L * omega * omega);
        default:
            return 1;
        }
    }

    Real a(Real T) const { return OmegaA() * R * R * Tc * Tc / pc * Alpha(T); }
    Real b() const { return OmegaB() * R * Tc / pc; }

    Real Pressure(Real T, Real v) const {
        return R * T / (v - b()) - a(T) / (v * v + U() * b() * v + W() * b() * b());
    }

    // ln of the fugacity coefficient of the phase with volume v.
    Real LnPhi(Real T, Real p, Real v) const {
        const Real A = a(T) * p / (R * R * T * T);
        const Real B = b() * p / (R * T);
        const Real Z = p * v / (R * T);
        const Real root = std::sqrt(U() * U() - 4 * W());
        const Real attraction =
            root == 0 ? A / Z
                      : A / (B * root) * std::log((2 * Z + B * (U() + root)) / (2 * Z + B * (U() - root)));
        return Z - 1 - std::log(Z - B) - attraction;
    }

    // Volumes above b that have the pressure p, ascending: bisection between the extrema of the cubic.
    std::vector<Real> Volumes(Real T, Real p) const {
        const Real A = a(T) / p;
        const Real q = R * T / p;
        const Real B = b();
        const Real c2 = U() * B - B - q;
        const Real c1 = W() * B * B + A - U() * B * (B + q);
        const Real c0 = -A * B - W() * B * B * (B + q);
        const auto f = [&](Real v) { return ((v + c2) * v + c1) * v + c0; };
        std::vector<Real> ends = {B};
        const Real disc = c2 * c2 - 3 * c1;
        if (disc > 0) {
            // The stationary points without cancellation.
            const Real h = -c2 + (c2 > 0 ? -1 : 1) * std::sqrt(disc);
            const Real s1 = h / 3, s2 = c1 / h;
            for (const Real s : {std::min(s1, s2), std::max(s1, s2)})
                if (s > ends.back())
                    ends.push_back(s);
        }
        ends.push_back(1 + std::abs(c2) + std::sqrt(std::abs(c1)) + std::cbrt(std::abs(c0)));
        ends.back() = std::max(ends.back(), ends[ends.size() - 2]) * 2;
        std::vector<Real> roots;
        for (std::size_t i = 1; i < ends.size(); ++i)
            if (f(ends[i - 1]) * f(ends[i]) < 0)
                roots.push_back(Bisect(f, ends[i - 1], ends[i]));
        return roots;
    }

    // Pressure of equal fugacities, by bisection of ln(p) between the spinodal pressures; 0 if there is none.
    Real SaturationPressure(Real T) const {
        Real low = std::log(pc) - 60, high = std::log(pc);
        for (int i = 0; i < 200; ++i) {
            const Real p = std::exp((low + high) / 2);
            const std::vector<Real> v = Volumes(T, p);
            const bool vapourStable =
                v.size() == 3 ? LnPhi(T, p, v[2]) < LnPhi(T, p, v[0]) : v.at(0) > VolumeOfInflection();
            (vapourStable ? low : high) = (low + high) / 2;
        }
        return std::exp((low + high) / 2);
    }

private:
    static Real Eta() { return 1 / (1 + std::cbrt(4 - std::sqrt(8.0L)) + std::cbrt(4 + std::sqrt(8.0L))); }
    static Real Soave(Real Tr, Real m) {
        const Real f = 1 + m * (1 - std::sqrt(Tr));
        return f * f;
    }
    Real VolumeOfInflection() const {
        const Real zc = row <= eosBerthelot ? 0.375L : row < eosPengRobinson ? 1.0L / 3 : 0.307401L;
        return zc * R * Tc / pc;
    }
    template<class Function> static Real Bisect(const Function& f, Real low, Real high) {
        const bool rising = f(low) < 0;
        for (int i = 0; i < 300; ++i) {
            const Real middle = (low + high) / 2;
            if (middle == low || middle == high)
                break;
            ((f(middle) < 0) == rising ? low : high) = middle;
        }
        return (low + high) / 2;
    }
};

} // namespace orva::textbook
