// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/dvopar/saturated_state.h"

#include <cmath>

namespace orva::dvopar {

namespace {

constexpr int saturationSteps = 200;
constexpr double saturationTolerance = 1e-12; // of ln p
constexpr int rootSteps = 100;
constexpr double rootTolerance = 1e-15;
constexpr double pressureStride = 2; // while one end of the bracket is open

struct Volumes {
    double vL = 0, vV = 0;
    bool both = false;       // else one volume only,
    bool liquidLike = false; // smaller than the critical volume
};

// v^3 + c2 v^2 + c1 v + c0 = 0.
class VolumeCubic {
public:
    VolumeCubic(const Isotherm& i, double p) : B(i.B), vCrit(i.vCrit), q(i.RT / p + i.B) {
        const double sum = i.C + i.D;
        const double product = i.C * i.D;
        c2 = sum - q;
        c1 = product + i.A / p - sum * q;
        c0 = -i.A * i.B / p - product * q;
    }

    // The outer volumes, to which Newton's method comes from the co-volume and from RT/p + B without
    // overshooting.
    Volumes Solve() const {
        Volumes volumes;
        volumes.liquidLike = At(vCrit) > 0;
        const double disc = c2 * c2 - 3 * c1;
        if (!(disc > 0))
            return volumes;
        const double minimum = (std::sqrt(disc) - c2) / 3;
        const double maximum = c1 / 3 / minimum;
        // Far above the saturation pressure the cubic can have two more roots below the co-volume.
        volumes.both = maximum > B && At(maximum) > 0 && At(minimum) < 0;
        if (volumes.both) {
            volumes.vL = NewtonFrom(B);
            volumes.vV = NewtonFrom(q);
        }
        return volumes;
    }

private:
    double At(double v) const { return ((v + c2) * v + c1) * v + c0; }

    double NewtonFrom(double v) const {
        for (int step = 0; step < rootSteps; ++step) {
            const double dv = -At(v) / ((3 * v + 2 * c2) * v + c1);
            v += dv;
            if (!(std::abs(dv) > rootTolerance * v))
                break;
        }
        return v;
    }

    double B, vCrit, q, c2, c1, c0;
};

// ln phi of the liquid less that of the vapour.
double FugacityGap(const Isotherm& i, double zL, double zV, const Volumes& volumes) {
    const double repulsion = std::log((volumes.vV - i.B) / (volumes.vL - i.B));
    const double attraction =
        i.A / (i.RT * (i.D - i.C))
        * std::log((volumes.vL + i.C) / (volumes.vL + i.D) * (volumes.vV + i.D) / (volumes.vV + i.C));
    return zL - zV + repulsion + attraction;
}

// Trial pressures between those known to be too low and too high.
struct Bracket {
    double low = 0, high = HUGE_VAL;

    double Middle(double p) const {
        if (low > 0 && std::isfinite(high))
            return std::sqrt(low) * std::sqrt(high);
        return low > 0 ? p * pressureStride : p / pressureStride;
    }
    bool Holds(double p) const { return p > low && p < high; }
};

} // namespace

SaturatedState Saturate(const Isotherm& isotherm, double pStart) {
    SaturatedState state;
    Bracket bracket;
    double p = pStart;
    for (int step = 0; step < saturationSteps && p > 0 && std::isfinite(p); ++step) {
        const Volumes volumes = VolumeCubic(isotherm, p).Solve();
        if (!volumes.both) {
            (volumes.liquidLike ? bracket.high : bracket.low) = p;
            p = bracket.Middle(p);
            continue;
        }
        const double zL = p * volumes.vL / isotherm.RT;
        const double zV = p * volumes.vV / isotherm.RT;
        const double gap = FugacityGap(isotherm, zL, zV, volumes);
        const double dlnP = gap / (zV - zL); // d gap / d ln p = zL - zV
        if (!std::isfinite(dlnP))
            return state;
        if (std::abs(dlnP) < saturationTolerance)
            return {p, volumes.vL, volumes.vV, false};
        (gap > 0 ? bracket.low : bracket.high) = p;
        const double next = p * std::exp(dlnP);
        if (next == p)
            return {p, volumes.vL, volumes.vV, false};
        p = bracket.Holds(next) ? next : bracket.Middle(p);
        if (!bracket.Holds(p))
            return {p, volumes.vL, volumes.vV, false};
    }
    return state;
}

} // namespace orva::dvopar
