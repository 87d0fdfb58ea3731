// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "cli/request.h"

namespace orva {

// What the arguments of the program say.
struct CommandLine {
    Request request;
    std::string error; // one line, for wrong usage
    std::string help;  // the text that was asked for instead of a command
};

CommandLine ReadCommandLine(int argc, char** argv);

} // namespace orva
