// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "state/substance_data.h"

namespace orva::dvopar {

// Range of validity of an equation in K; empty where low is not below high.
struct Range {
    double low = 0, high = 0;
};

// The request of the workbench: which row, and what is known of the substance.
struct Request {
    int row = 0;             // of the equation of state, 7 or 8
    SubstanceData substance; // critical data, coefficients of both equations
    int vapourPressure = 0;  // index of the equation, 0 none
    Range pressureRange;     // 0, 0 where it is not told
    bool densityEquation = false;
    bool densityPoint = false; // one density with its slope: rho = r1 + r2 (T - r3)
    Range densityRange;
};

struct ParsedRequest {
    std::optional<Request> request;
    std::string error; // one line, where there is no request
};

// Reads the text of a request: items separated by commas or line ends, in the order
//   code of the row (10 or 11); CAS number in double quotes;
//   flags f1, 1, f2 of the vapour-pressure equation;
//   M, Tb, Tc, pc, rho(c), omega;
//   seven coefficients of the liquid density, lower and upper limit;
//   twelve parameters of the vapour-pressure equation, the last two its limits.
// The flags (f1, f2): (0, 0) none, (0, 1) Antoine, (1, 1) August, (0, 2) Frost/Kalkwarf, (1, 3) Wagner.
// Any bytes are survived; every number must be finite, the critical data positive.
ParsedRequest ParseRequest(std::string_view text);

} // namespace orva::dvopar
