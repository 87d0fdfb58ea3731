// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace orva {

// Normalisation of enthalpy and entropy, and the ambient state of the exergies.
struct ReferencePoint {
    std::int16_t kind = 1; // 1 zero at (T0, p0); 2 and 10 from formation data at 298.15 K
    float T0 = 298.15F;    // K
    float p0 = 101.325F;   // kPa
    double h0 = 0;         // kJ/kmol
    double s0 = 0;         // kJ/(kmol K)
    double Tenv = 298.15;  // K
    double penv = 101.325; // kPa

    bool operator==(const ReferencePoint&) const = default;
};

} // namespace orva
