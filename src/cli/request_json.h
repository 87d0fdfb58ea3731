// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/request.h"

namespace orva {

// A request, or the line that says what is wrong with it.
struct ReadRequest {
    Request request;
    std::string error;
};

// One line of a file of requests: {"command": "point", "substance": "#1", "T": 300, ...}. Any bytes are
// survived.
ReadRequest RequestFromJson(std::string_view line);

} // namespace orva
