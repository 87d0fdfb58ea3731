// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <vector>

namespace orva::dvopar {

using Values = std::vector<double>;

// Residuals at x; empty where the model cannot be evaluated. Their number must not change.
using Residuals = std::function<Values(const Values& x)>;

struct LeastSquaresResult {
    Values x;
    double sum = 0;      // of the squared residuals
    bool failed = false; // the residuals could not be evaluated at the start
};

// Minimises the sum of squares within the box `low` <= x <= `high`, which holds the start. Levenberg, Quart.
// Appl. Math. 2 (1944) 164; Marquardt, J. Soc. Ind. Appl. Math. 11 (1963) 431; damping scaled by the
// diagonal, slopes by central differences.
LeastSquaresResult MinimiseSquares(const Residuals& residuals, Values start, const Values& low,
                                   const Values& high);

} // namespace orva::dvopar
