// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "helpers/dvopar/request.h"
#include "state/eos_parameters.h"

namespace orva::dvopar {

struct VoHalmeFit {
    std::optional<VoHalmeParameters> parameters; // zeta, m1, m2, m3 and, for the second row, k
    std::string error;                           // one line, where there are none
};

// Regression of the Vo / Halme equation to vapour pressure and liquid density of the substance. The result
// has real volumes, a positive co-volume and a temperature function that falls between 0.3 T(cr) and T(cr).
VoHalmeFit FitVoHalme(const Request& request);

} // namespace orva::dvopar
