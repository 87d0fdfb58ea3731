// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "helpers/dvopar/request.h"
#include "state/eos_parameters.h"

namespace orva::dvopar {

// "PARAM_VO.DAT" for row 7, "PARA_VO2.DAT" for row 8.
std::string ResultFileName(int row);

// The answer, one item a line: code of the row, CAS number in double quotes, m1, m2, m3, zeta, and k for row
// 8; all digits of a double.
std::string ResultText(const Request& request, const VoHalmeParameters& parameters);

} // namespace orva::dvopar
