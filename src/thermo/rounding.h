// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace orva {

// Kelvins as a 16-bit whole number, half to even.
inline int RoundedKelvins(double distance) {
    return static_cast<int>(std::nearbyint(std::clamp(distance, -32768.0, 32767.0)));
}

// Distance of T from a range of validity, 0 inside; the upper limit overrides.
inline int RangeDeviation(double T, int Tlo, int Thi) {
    if (T > Thi)
        return RoundedKelvins(T - Thi);
    return T < Tlo ? RoundedKelvins(T - Tlo) : 0;
}

// The same where both limits are given, else 0.
inline int RangeDeviationIfGiven(double T, int Tlo, int Thi) {
    return Tlo > 0 && Thi > 0 ? RangeDeviation(T, Tlo, Thi) : 0;
}

} // namespace orva
