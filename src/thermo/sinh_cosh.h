// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>

#include "state/substance_data.h"

namespace orva {

// What heat capacity, enthalpy and entropy of the ideal gas by the sinh/cosh form share at one temperature.
struct SinhCoshFunctions {
    double u = 0, w = 0; // q2 / T, q4 / T
    double sinhU = 0, coshU = 0, sinhW = 0, coshW = 0;

    SinhCoshFunctions() = default;
    SinhCoshFunctions(const SinhCoshHeatCapacity& q, double T) : u(q.q2 / T), w(q.q4 / T) {
        const double eU = std::exp(u);
        const double eMinusU = std::exp(-u);
        const double eW = std::exp(w);
        const double eMinusW = std::exp(-w);
        sinhU = (eU - eMinusU) * 0.5;
        coshU = (eU + eMinusU) * 0.5;
        sinhW = (eW - eMinusW) * 0.5;
        coshW = (eW + eMinusW) * 0.5;
    }

    // kJ/(kmol K). An overflow of sinh or cosh is a failure, not a vanishing term: no number then.
    double HeatCapacity(const SinhCoshHeatCapacity& q) const {
        const double a = u / sinhU;
        const double b = w / coshW;
        if (!std::isfinite(sinhU) || !std::isfinite(coshW))
            return std::nan("");
        return q.q0 + q.q1 * (a * a) + q.q3 * (b * b);
    }
};

} // namespace orva
