// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace orva {

inline constexpr double gasConstant = 8.31451; // kJ/(kmol K), CODATA 1986
inline constexpr double ln10 = 2.30258509299405;
inline constexpr double normalPressure = 101.325; // kPa
inline constexpr double missingValue = 1e-6;      // a value below this counts as not given

// Failure number of a property model as the reports print it.
inline constexpr int modelFailure = -1;

} // namespace orva
