// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "cli/request.h"

namespace orva {

// What no single option can tell: whether all values that the calculation or the diagram takes are there and
// no others. Empty when all is well.
std::string CheckRequest(const Request& request);

} // namespace orva
